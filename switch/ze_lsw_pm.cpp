// Statistics frame and printer, and the functions that are not one table
// over one block: queue walk, route counters, clear-all, EPON bandwidth and
// the two empty functions. The group tables live in ze_lsw_pm_groups_*.cpp.
#include "ze_lsw_pm.h"

#include "ze_blocks_qos.h"
#include "ze_dp.h"
#include "ze_lsw_pm_frame.h"

namespace ze::pm {
namespace {

uint64_t value(const Cell &cell, const CounterView &b, uint32_t base, uint32_t instance) {
    uint32_t off = base + cell.offset + cell.stride * instance;
    if (cell.width == 8) return b.u64(off);
    return cell.width == 4 ? b.u32(off) : 0;
}

// Entry number of an indexed cell; a filler shows 0.
uint32_t number(const Cell &cell, uint32_t instance) { return cell.width ? instance : 0; }

}  // namespace

void print_short_sep() { ze_os_printf("==============================\n"); }

void print_long_sep() {
    ze_os_printf(
        "=========================================================================================="
        "="
        "\n");
}

void print_indexed32(const char *lname, uint32_t lnum, uint32_t lval, const char *rname,
                     uint32_t rnum, uint32_t rval) {
    ze_os_printf("%-32s %03u: %016u | %-32s %03u: %016u\n", lname, lnum, lval, rname, rnum, rval);
}

void print_rows(const Rows &rows, const CounterView &b, uint32_t base, uint32_t instance) {
    for (const Row &row : rows) {
        const Cell &l = row.left;
        const Cell &r = row.right;
        unsigned long long lv = value(l, b, base, instance);
        unsigned long long rv = value(r, b, base, instance);
        switch (row.line) {
        case Line::Pair32:
            ze_os_printf("%-32s : %-16u | %-32s : %-16u\n", l.name, static_cast<uint32_t>(lv),
                         r.name, static_cast<uint32_t>(rv));
            break;
        case Line::Pair64:
            ze_os_printf("%-32s : %-16llu | %-32s : %-16llu\n", l.name, lv, r.name, rv);
            break;
        case Line::Single64:
            ze_os_printf("%-32s : %-16llu \n", l.name, lv);
            break;
        case Line::Indexed32:
            print_indexed32(l.name, number(l, instance), static_cast<uint32_t>(lv), r.name,
                            number(r, instance), static_cast<uint32_t>(rv));
            break;
        case Line::Indexed64:
            ze_os_printf("%-32s %03u: %016llu | %-32s %03u: %016llu\n", l.name, number(l, instance),
                         lv, r.name, number(r, instance), rv);
            break;
        case Line::ShortSep:
            print_short_sep();
            break;
        case Line::LongSep:
            print_long_sep();
            break;
        case Line::Label:
            ze_os_printf("%s\n", l.name);
            break;
        case Line::Include:
            print_rows(*row.sub, b, base + l.offset, instance);
            break;
        }
    }
}

void print_alarm_lines(const AlarmLines &lines, const CounterView *const *blocks) {
    for (const AlarmLine &a : lines) {
        const CounterView &b = *blocks[a.block];
        switch (a.form) {
        case AlarmForm::U32Blank:
            ze_os_printf("%s: %u \n", a.label, b.u32(a.offset));
            break;
        case AlarmForm::U32:
            ze_os_printf("%s: %u\n", a.label, b.u32(a.offset));
            break;
        case AlarmForm::U64:
            ze_os_printf("%s: %llu\n", a.label, static_cast<unsigned long long>(b.u64(a.offset)));
            break;
        }
    }
}

uint32_t show(const TraceSite &site, const Group &g) {
    CounterBlock b(g.len);
    return show(site, b, g.cmd, [&](const CounterBlock &blk) { print_rows(g.rows, blk); });
}

}  // namespace ze::pm

namespace {

using namespace ze::pm;

constexpr char kTraceFile[] = "ze_lsw_pm.cpp";

// ---- Queues -------------------------------------------------------------------

constexpr uint32_t kQueueCounters = 2590, kQueueCountersLen = 32;
constexpr uint32_t kQueueCount = 128;
constexpr uint32_t kLastPerPortQueuePort = 14;
constexpr uint32_t kQueueGroups = 8, kQueuePriorities = 8;

using ze::QosQueueMap;

uint32_t all_queues(const ze::TraceSite &site) {
    ze_os_printf("%-5s %-15s %-15s %-15s %-15s %-15s %-15s\n", "Q_id", "Q_in", "Q_out",
                 "Q_tail_drop", "buf_low_drop", "q_fwred_drop", "g_gwred_drop");
    for (uint32_t q = 0; q < kQueueCount; ++q) {
        CounterBlock b(kQueueCountersLen);
        b.set_index(q);
        uint32_t r = show(site, b, kQueueCounters, [](const CounterBlock &blk) {
            ze_os_printf("%-5u %-15u %-15u %-15u %-15u %-15u %-15u\n", blk.u32(0), blk.u32(4),
                         blk.u32(8), blk.u32(12), blk.u32(16), blk.u32(20), blk.u32(24));
        });
        if (r) return r;
    }
    return ZE_OK;
}

// Queue counter blocks hold the queue id in word 0, then six counters.
// The queue counters are read before the mapping's valid flag is looked at.
uint32_t port_queues(const ze::TraceSite &site, uint32_t port) {
    ze_os_printf("%-4s %-4s %-4s %-15s %-15s %-15s %-15s %-15s %-15s\n", "Gid", "Pri", "Q_id",
                 "Q_in", "Q_out", "Q_tail_drop", "buf_low_drop", "q_fwred_drop", "g_gwred_drop");
    for (uint32_t g = 0; g < kQueueGroups; ++g) {
        for (uint32_t p = 0; p < kQueuePriorities; ++p) {
            ze::Block<QosQueueMap> map;
            map.set(QosQueueMap::port, port);
            map.set(QosQueueMap::group, g);
            map.set(QosQueueMap::priority, p);
            uint32_t r = ze::dp_read(map);
            CounterBlock b(kQueueCountersLen);
            b.set_index(map.get(QosQueueMap::queue));
            if (r == 0) r = b.read(kQueueCounters);
            if (r) return ze::traced(site, r);
            if (map.get(QosQueueMap::valid) == 0) continue;
            ze_os_printf("%-4u %-4u %-4u %-15u %-15u %-15u %-15u %-15u %-15u\n", g, p, b.u32(0),
                         b.u32(4), b.u32(8), b.u32(12), b.u32(16), b.u32(20), b.u32(24));
        }
    }
    return ZE_OK;
}

// ---- Route counters -------------------------------------------------------------

constexpr uint32_t kRouteLen = 72;
constexpr uint32_t kRouteIndexes = 16;

struct RouteFamily {
    uint32_t cmd;
    const char *name;
    bool heads_index;  // the index line comes before this family's rows
};
constexpr RouteFamily kIpv6Routes{3364, "ipv6", true};
constexpr RouteFamily kIpv4Routes{3369, "ipv4", false};

constexpr Row kRouteRows[] = {
    pair64(w("rt_rx_frame_num", 8), w("rt_rx_byte_num", 16)),
    pair64(w("rt_rx_uc_frame_num", 24), w("rt_rx_mc_frame_num", 32)),
    pair64(w("txdma_rx_frame_num", 40), w("txdma_rx_byte_num", 48)),
    pair64(w("txdma_rx_uc_frame_num", 56), w("txdma_rx_mc_frame_num", 64)),
};

uint32_t route_family(const ze::TraceSite &site, const RouteFamily &f, uint32_t index) {
    CounterBlock b(kRouteLen);
    b.set_index(index);
    return show(site, b, f.cmd, [&](const CounterBlock &blk) {
        if (f.heads_index) ze_os_printf("index   : %u\n", index);
        ze_os_printf("============%s================\n", f.name);
        print_rows(kRouteRows, blk);
    });
}

// One index: the IPv6 record (headed by the index line once it is in), then
// the IPv4 record.
uint32_t route_index(const ze::TraceSite &site, uint32_t index) {
    uint32_t r = route_family(site, kIpv6Routes, index);
    return r ? r : route_family(site, kIpv4Routes, index);
}

// ---- Clear-all ---------------------------------------------------------------------

// A family cleared index by index; where two calls are named, both run for
// an index before the next index.
struct IndexedClear {
    uint32_t count;
    int32_t (*first)(uint32_t);
    int32_t (*second)(uint32_t);
};

constexpr IndexedClear kRouteClear{16, ze_dp_cnt_ipv6_clr, ze_dp_cnt_ipv4_clr};
constexpr uint32_t kPayloadFreeClears[] = {260, 3589, 3372, 3350};
constexpr IndexedClear kLaterClears[] = {
    {7, ze_dp_l2_cnt_clr, nullptr},
    {32, ze_dp_igr_flow_cnt_table_item_clr, ze_dp_egr_flow_cnt_table_item_clr},
    {8, ze_dp_qos_drop_reason_clr, nullptr},
};

uint32_t clear_each(const IndexedClear &c) {
    for (uint32_t i = 0; i < c.count; ++i) {
        uint32_t r = ze::map_err(static_cast<uint32_t>(c.first(i)));
        if (r == 0 && c.second) r = ze::map_err(static_cast<uint32_t>(c.second(i)));
        if (r) return r;
    }
    return ZE_OK;
}

constexpr uint32_t kEponBandwidth = 3590;

}  // namespace

extern "C" {

uint32_t ze_lsw_pm_get_queue_statistic(uint32_t port) {
    return port > kLastPerPortQueuePort ? all_queues(ZE_SITE) : port_queues(ZE_SITE, port);
}

uint32_t ze_lsw_pm_get_ipv6_statistic(uint32_t index) {
    if (index < kRouteIndexes) return route_index(ZE_SITE, index);
    for (uint32_t i = 0; i < kRouteIndexes; ++i) {
        uint32_t r = route_index(ZE_SITE, i);
        if (r) return r;
        print_short_sep();
        print_short_sep();
    }
    ze_dp_right_release();
    return ZE_OK;
}

uint32_t ze_lsw_pm_clear_all_statistic(void) {
    uint32_t r = clear_each(kRouteClear);
    for (uint32_t cmd : kPayloadFreeClears)
        if (r == 0) r = ze::dp_send(cmd, nullptr, 0);
    for (const IndexedClear &c : kLaterClears)
        if (r == 0) r = clear_each(c);
    return r ? ze::traced(ZE_SITE, r) : ZE_OK;
}

uint32_t ze_lsw_pm_get_epon_bandwidth_statistic(uint32_t a, uint32_t b) {
    uint32_t block[2] = {a, b};
    uint32_t r = ze::dp_send(kEponBandwidth, block, sizeof block);
    return r ? ze::traced(ZE_SITE, r) : ZE_OK;
}

uint32_t ze_lsw_pm_get_eth_statistic(uint32_t) { return ZE_OK; }

uint32_t ze_lsw_pm_get_ugmac_line_statistic(void) { return ZE_OK; }

}  // extern "C"
