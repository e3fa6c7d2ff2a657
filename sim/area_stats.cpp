// Statistics: every counter block the statistic groups read, the clear
// commands and the datapath library's counter clears, and the host's
// counter controls (fill with a position pattern, set one counter).
//
// What each clear zeroes (the driver's choice, modelled here):
// - 260: the switch counters (parser to queue manager, reasons, routing,
//   multicast, flow classifiers, DMA, PON buffers) and every queue's counters;
// - 3350: the GPON MAC counters and alarm counts;
// - 3372: the CPU port channel counters;
// - 3589: the EPON MAC block, EPON alarms and callback counts;
// - ze_dp_cnt_ipv6_clr / ze_dp_cnt_ipv4_clr(i): route index i's record;
// - ze_dp_l2_cnt_clr(p): Ethernet port p's MAC counters;
// - ze_dp_qos_drop_reason_clr(p): port p's drop-reason record;
// - ze_dp_igr/egr_flow_cnt_table_item_clr(e): per-entry flow counters that no
//   statistic group reads; accepted and nothing else changes.
// Key words (port, queue, route index) survive a clear.
#include <vector>

#include "areas.h"

namespace zesim {
namespace {

constexpr uint32_t kDropReasons = 2628, kDropRecord = 504, kDropPorts = 8;
constexpr uint32_t kUniEth = 802, kQueueCounters = 2590;
constexpr uint32_t kRouteIpv6 = 3364, kRouteIpv4 = 3369;

const BlockDesc kBlocks[] = {
    {"GPON alarm counts, first read", 527, 0, 560},
    {"GPON alarm counts", 518, 0, 560},
    {"Ethernet port MAC counters", kUniEth, 0, 416, {{0, 4}}},
    {"queue counters", kQueueCounters, 0, 32, {{0, 4}}},
    {"drop reasons, eight port records", kDropReasons, 0, 4032},
    {"receive DMA counters", 3330, 0, 252},
    {"transmit DMA counters", 3331, 0, 384},
    {"parser counters", 3332, 0, 48},
    {"flow counters", 3333, 0, 16},
    {"extended flow classifier counters", 3334, 0, 212},
    {"capture counters", 3335, 0, 208},
    {"layer 2 counters", 3336, 0, 84},
    {"layer 3 counters", 3337, 0, 44},
    {"meter counters", 3338, 0, 56},
    {"multicast distribution counters", 3339, 0, 64},
    {"CFM counters", 3340, 0, 88},
    {"queue manager counters", 3341, 0, 56},
    {"pass-through reasons", 3344, 0, 408},
    {"to-CPU reasons", 3345, 0, 512},
    {"GPON OMCI and PRBS counters", 3352, 0, 36},
    {"GPON downstream TC counters", 3353, 0, 68},
    {"GPON downstream FEC counters", 3354, 0, 24},
    {"GPON downstream GEM counters", 3355, 0, 124},
    {"GPON upstream counters", 3356, 0, 88},
    {"EPON MAC counters", 3360, 0, 5752},
    {"multicast class counters", 3362, 0, 28},
    {"routing counters", 3363, 0, 48},
    {"IPv6 route counters", kRouteIpv6, 0, 72, {{0, 4}}},
    {"PON transmit buffers and queues", 3367, 0, 160},
    {"IPv4 route counters", kRouteIpv4, 0, 72, {{0, 4}}},
    {"simple flow classifier counters", 3370, 0, 52},
    {"CPU port channel counters", 3371, 0, 1600},
    {"EPON alarm counts", 3588, 0, 352},
    {"EPON callback counts", 3668, 0, 64},
};

// Instances of the keyed counter blocks: key values 0..count-1.
struct Keyed {
    uint32_t id;
    uint32_t count;
};
constexpr Keyed kKeyed[] = {
    {kUniEth, 5}, {kQueueCounters, 128}, {kRouteIpv6, 16}, {kRouteIpv4, 16}};

uint32_t instances(const BlockDesc &d) {
    for (const Keyed &k : kKeyed)
        if (k.id == d.get_id) return k.count;
    return 1;
}

bool is_key_word(const BlockDesc &d, uint32_t off) {
    for (const KeyField &k : d.keys)
        if (k.width && k.offset == off) return true;
    return false;
}

// Zeroes every counter of a stored block; key words stay.
void zero_counters(uint8_t *blk, void *ctx) {
    const auto &d = *static_cast<const BlockDesc *>(ctx);
    for (uint32_t off = 0; off + 4 <= d.length; off += 4)
        if (!is_key_word(d, off)) put_u32(blk, off, 0);
}

void zero_all(uint32_t id) {
    for_each_stored(id, zero_counters, const_cast<BlockDesc *>(find_block(id)));
}

void zero_instance(uint32_t id, uint32_t key) {
    const BlockDesc *d = find_block(id);
    std::vector<uint8_t> src(d->length, 0);
    put_u32(src.data(), 0, key);
    zero_counters(stored_block(id, src.data()), const_cast<BlockDesc *>(d));
}

template <size_t N>
uint32_t zero_each(const uint32_t (&ids)[N]) {
    for (uint32_t id : ids) zero_all(id);
    return 0;
}

constexpr uint32_t kSwitchCounters[] = {3330, 3331, 3332, 3333, 3334,          3335, 3336,
                                        3337, 3338, 3339, 3340, 3341,          3344, 3345,
                                        3362, 3363, 3367, 3370, kQueueCounters};
constexpr uint32_t kGponCounters[] = {3352, 3353, 3354, 3355, 3356, 527, 518};
constexpr uint32_t kCpuCounters[] = {3371};
constexpr uint32_t kEponCounters[] = {3360, 3588, 3668};

const ActionDesc kActions[] = {
    {"clear switch counters", 260, 0, [](uint8_t *) { return zero_each(kSwitchCounters); }},
    {"clear GPON counters", 3350, 0, [](uint8_t *) { return zero_each(kGponCounters); }},
    {"clear CPU port channel counters", 3372, 0, [](uint8_t *) { return zero_each(kCpuCounters); }},
    {"clear EPON counters", 3589, 0, [](uint8_t *) { return zero_each(kEponCounters); }},
    {"EPON bandwidth statistic", 3590, 8, [](uint8_t *) { return 0u; }},
};

uint32_t clear_drop_reasons(uint32_t port) {
    if (port < kDropPorts) {
        const BlockDesc *d = find_block(kDropReasons);
        std::vector<uint8_t> src(d->length, 0);
        uint8_t *blk = stored_block(kDropReasons, src.data());
        for (uint32_t off = 0; off < kDropRecord; off += 4)
            put_u32(blk, kDropRecord * port + off, 0);
    }
    return 0;
}

const DpOpDesc kOps[] = {
    {"ze_dp_cnt_ipv6_clr", [](uint32_t i) { return zero_instance(kRouteIpv6, i), 0u; }},
    {"ze_dp_cnt_ipv4_clr", [](uint32_t i) { return zero_instance(kRouteIpv4, i), 0u; }},
    {"ze_dp_l2_cnt_clr", [](uint32_t p) { return zero_instance(kUniEth, p), 0u; }},
    {"ze_dp_igr_flow_cnt_table_item_clr", [](uint32_t) { return 0u; }},
    {"ze_dp_egr_flow_cnt_table_item_clr", [](uint32_t) { return 0u; }},
    {"ze_dp_qos_drop_reason_clr", clear_drop_reasons},
};

}  // namespace

const Area kStatsArea{"stats", kBlocks, kActions, {}, kOps};

uint32_t counter_pattern(uint32_t instance, uint32_t offset) {
    return (instance + 1) * 100000 + offset;
}

void fill_counters() {
    for (const BlockDesc &d : kBlocks) {
        for (uint32_t i = 0; i < instances(d); ++i) {
            std::vector<uint8_t> src(d.length, 0);
            if (d.keys[0].width) put_u32(src.data(), 0, i);
            uint8_t *blk = stored_block(d.get_id, src.data());
            for (uint32_t off = 0; off + 4 <= d.length; off += 4)
                if (!is_key_word(d, off)) put_u32(blk, off, counter_pattern(i, off));
        }
    }
}

bool set_counter(uint32_t id, uint32_t offset, uint64_t value,
                 std::initializer_list<uint32_t> keys) {
    const BlockDesc *d = find_block(id);
    const uint32_t length = d ? d->length : 0;
    if (offset > length || length - offset < 4) return false;
    set_word(id, offset, static_cast<uint32_t>(value), keys);
    if (length - offset >= 8) set_word(id, offset + 4, static_cast<uint32_t>(value >> 32), keys);
    return true;
}

}  // namespace zesim
