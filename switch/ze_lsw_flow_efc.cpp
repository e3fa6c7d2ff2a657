// Extended classifier rules: the per-fid shadow, the search for a free run
// of entries inside one group, installing a rule as a run of entries whose
// last carries the end-of-rule mark, and removing rules again.
#include "ze_blocks_efc.h"
#include "ze_dp_block.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_flow_function.cpp";
// The install whose steps the helpers below log.
constexpr char kSetEfc[] = "ze_lsw_flow_set_efc";

using ze::EfcAttr;

// A first fid of exactly 405 searches from this fid.
constexpr uint32_t kFirstFidWrapped = 1;
// The search cursor and run length are 8-bit: fids above 255 are never
// handed out, and the cursor wraps from 255 to 0.
constexpr uint32_t kCursorSpan = 256;
// Every (cursor, run) state of a search has been seen after this many
// steps; a search that has not stopped by then never will.
constexpr uint32_t kSearchSteps = kCursorSpan * (ZE_EFC_GROUP_SIZE + 1);

constexpr uint32_t kMaxFwdAct = 12;

// Constants the datapath expects in every installed entry.
constexpr uint32_t kConst152 = 7, kConst156 = 1, kConst196 = 5, kConst200 = 5;

// The action mask's groups: bits first..last give the group's field the
// values 1..n (the highest set bit wins); the group's first bit also takes
// a value from the action, where the group has one.
struct ActGroup {
    uint32_t first, last;
    ze::U32<EfcAttr::kSize> field;
    ze::U32<EfcAttr::kSize> value_field;
    uint32_t (*value)(const ze_efc_action_s &);  // null: none
};

const ActGroup kActGroups[] = {
    {0, 1, EfcAttr::tagact, EfcAttr::tagact, nullptr},
    {2, 6, EfcAttr::spriact, EfcAttr::spvalue, [](const ze_efc_action_s &a) -> uint32_t { return a.spri; }},
    {7, 11, EfcAttr::cpriact, EfcAttr::cpvalue, [](const ze_efc_action_s &a) -> uint32_t { return a.cpri; }},
    {12, 14, EfcAttr::svact, EfcAttr::svvalue, [](const ze_efc_action_s &a) -> uint32_t { return a.svlan; }},
    {15, 17, EfcAttr::cvact, EfcAttr::cvvalue, [](const ze_efc_action_s &a) -> uint32_t { return a.cvlan; }},
};

constexpr uint32_t group_bits(const ActGroup &g) { return (2u << g.last) - (1u << g.first); }

// Reads and writes a word of the action half, given as a field of the
// whole block.
uint32_t get_action(const uint8_t *tail, ze::U32<EfcAttr::kSize> f) {
    uint32_t v = 0;
    __builtin_memcpy(&v, tail + (f.offset - EfcAttr::kActionOffset), 4);
    return v;
}
void put_action(uint8_t *tail, ze::U32<EfcAttr::kSize> f, uint32_t v) {
    __builtin_memcpy(tail + (f.offset - EfcAttr::kActionOffset), &v, 4);
}

bool in_use(uint32_t fid, uint8_t *eof = nullptr) {
    uint8_t status = 0, e = 0;
    ze_lsw_efc_get_status(fid, &status, &e);
    if (eof) *eof = e;
    return status == 1;
}

// A block that removes entries: invalid, with the n fields at their base.
void removal_block(ze::Block<EfcAttr> &b) {
    b.set(EfcAttr::n0, ze::kEfcNOffset);
    b.set(EfcAttr::n1, ze::kEfcNOffset);
}

void set_fids(ze::Block<EfcAttr> &b, uint32_t fid) {
    b.set(EfcAttr::fid, fid);
    b.set(EfcAttr::fid2, fid);
}

// Writes the rule's entries fid..fid+count-1 from its items.
uint32_t write_entries(ze::Block<EfcAttr> &b, const ze_efc_item_s *items, uint32_t count,
                       uint32_t fid, uint32_t n, uint32_t bitmap) {
    for (uint32_t i = 0; i < count; ++i) {
        const ze_efc_item_s &it = items[i];
        uint32_t eof = i + 1 == count ? 1 : 0;
        set_fids(b, fid + i);
        b.set(EfcAttr::valid, 1);
        b.set(EfcAttr::g0, it.g0);
        b.set(EfcAttr::k0, it.k0);
        b.set(EfcAttr::g1, it.g1);
        b.set(EfcAttr::k1, it.k1);
        b.set(EfcAttr::n0, n);
        b.set(EfcAttr::n1, n);
        b.set(EfcAttr::igr, bitmap);
        b.set(EfcAttr::eof, eof);
        ZE_FLOW_DEBUG_AS(kSetEfc, " g0 %d k0 0x%x\n", it.g0, it.k0);
        ZE_FLOW_DEBUG_AS(kSetEfc, " g1 %d k1 0x%x\n", it.g1, it.k1);
        uint32_t r = ze::dp_write(b);
        if (r == 0) r = ze::map_err(ze_lsw_efc_set_status(fid + i, 1, eof));
        if (r) return r;
        ZE_FLOW_DEBUG_AS(kSetEfc, " ~~~~~ us_fid %-8d\n", fid + i);
    }
    return ZE_OK;
}

// Converts the rule, finds room and writes the entries; `fid` gets the
// rule's last fid.
uint32_t install(uint32_t first, const ze_efc_rule_s &rule, const ze_efc_action_s *action,
                 uint32_t fwd_act, ze_efc_item_s *items, uint16_t &fid) {
    ze::Block<EfcAttr> b;
    uint32_t r = ze::map_err(ze_lsw_efc_get_attr(&rule, items));
    if (r) return r;
    uint8_t count = 0;
    ze_lsw_efc_count_itemnum(items, &count);
    if (count == 0) count = 1;
    ZE_FLOW_DEBUG_AS(kSetEfc, "uc_flownum %-8d\r\n", count);
    uint32_t bitmap = 0;
    r = ze::map_err(ze_lsw_flow_get_portbitmap(rule.key_mask, rule.igr_port, &bitmap));
    if (r) return r;
    uint16_t start = 0;
    r = ze_lsw_efc_get_fid(first, count, &start);
    ZE_FLOW_DEBUG_AS(kSetEfc, " ui_ret %-8d  us_fid %d\r\n", r, start);
    r = ze::map_err(r);
    if (r == 0) r = ze::map_err(ze_lsw_efc_get_fact(action, fwd_act, b.data() + EfcAttr::kActionOffset));
    if (r == 0) r = write_entries(b, items, count, start, rule.n_base + ze::kEfcNOffset, bitmap);
    if (r == 0) fid = static_cast<uint16_t>(start + count - 1);
    return r;
}

}  // namespace

extern "C" {

ze_efc_shadow_s st_efcservice[ZE_EFC_ENTRY_COUNT];

uint32_t ze_lsw_efc_get_status(uint32_t fid, uint8_t *status, uint8_t *eof) {
    if (fid >= ZE_EFC_ENTRY_COUNT) return ze::trace(ZE_SITE, ZE_ERR_PARAM, fid);
    if (status) {
        *status = st_efcservice[fid].status;
        *eof = st_efcservice[fid].eof;
    }
    return ZE_OK;
}

uint32_t ze_lsw_efc_set_status(uint32_t fid, uint32_t status, uint32_t eof) {
    if (fid >= ZE_EFC_ENTRY_COUNT) return ze::trace(ZE_SITE, ZE_ERR_PARAM, fid);
    st_efcservice[fid].status = static_cast<uint8_t>(status);
    st_efcservice[fid].eof = static_cast<uint8_t>(eof);
    return ZE_OK;
}

uint32_t ze_lsw_efc_get_fid(uint32_t first, uint32_t count, uint16_t *fid) {
    if (!fid || first > ZE_EFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    uint8_t c = static_cast<uint8_t>(first == ZE_EFC_ENTRY_COUNT ? kFirstFidWrapped : first);
    uint8_t run = 0;
    for (uint32_t step = 0; step < kSearchSteps; ++step) {
        run = in_use(c) ? 0 : static_cast<uint8_t>(run + 1);
        if (run == count) {
            if ((c + 1u - count) / ZE_EFC_GROUP_SIZE == c / ZE_EFC_GROUP_SIZE) {
                *fid = static_cast<uint16_t>(c + 1 - run);
                ZE_FLOW_DEBUG("*puc_fid %d", *fid);
                return ze::traced(ZE_SITE, ZE_OK);
            }
            run = 0;
        }
        ++c;
    }
    return ze::traced(ZE_SITE, ZE_ERR_FULL);
}

uint32_t ze_lsw_efc_get_fid_range(uint32_t fid, uint16_t *start) {
    if (!start) return ZE_ERR_NULL_PTR;
    uint32_t base = fid / ZE_EFC_GROUP_SIZE * ZE_EFC_GROUP_SIZE;
    for (uint32_t f = fid; f > base; --f) {
        uint8_t status = 0, eof = 0;
        uint32_t r = ze::map_err(ze_lsw_efc_get_status(f - 1, &status, &eof));
        if (r) return ze::traced(ZE_SITE, r);
        if (status != 1 || eof == 1) {
            *start = static_cast<uint16_t>(f);
            return ze::traced(ZE_SITE, ZE_OK);
        }
    }
    *start = static_cast<uint16_t>(base);
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_efc_get_fwd_act(uint32_t fwd_act, uint32_t *act) {
    if (!act) return ZE_ERR_NULL_PTR;
    if (fwd_act <= kMaxFwdAct) *act = fwd_act;
    return ZE_OK;
}

uint32_t ze_lsw_efc_get_fact(const ze_efc_action_s *action, uint32_t fwd_act, uint8_t *tail) {
    if (!action || !tail) return ZE_ERR_NULL_PTR;
    for (const ActGroup &g : kActGroups) {
        // The group's set bits, lowest first.
        for (uint32_t bits = action->act_mask & group_bits(g); bits; bits &= bits - 1) {
            const uint32_t bit = static_cast<uint32_t>(__builtin_ctz(bits));
            put_action(tail, g.field, bit - g.first + 1);
            if (bit == g.first && g.value) put_action(tail, g.value_field, g.value(*action));
        }
    }
    uint32_t egress = 0;
    ze_lsw_port_get_bitmap(action->egress_port, &egress);
    put_action(tail, EfcAttr::egress, egress);
    put_action(tail, EfcAttr::const152, kConst152);
    put_action(tail, EfcAttr::const156, kConst156);
    put_action(tail, EfcAttr::ext, action->ext);
    put_action(tail, EfcAttr::const196, kConst196);
    put_action(tail, EfcAttr::const200, kConst200);
    // An unknown forward action leaves the act word as the block held it.
    uint32_t act = get_action(tail, EfcAttr::act);
    ze_lsw_efc_get_fwd_act(fwd_act, &act);
    put_action(tail, EfcAttr::act, act);
    return ZE_OK;
}

uint32_t ze_lsw_flow_set_efc(uint32_t first, const ze_efc_rule_s *rule,
                             const ze_efc_action_s *action, uint32_t fwd_act, uint16_t *fid) {
    if (!rule || !fid) return ZE_ERR_NULL_PTR;
    auto *items = static_cast<ze_efc_item_s *>(ze_os_malloc(sizeof(ze_efc_item_s) * ZE_EFC_ITEM_COUNT));
    if (!items) return ze::traced(ZE_SITE, ZE_ERR_NO_MEMORY);
    ze_os_memset(items, 0, sizeof(ze_efc_item_s) * ZE_EFC_ITEM_COUNT);
    uint16_t last = 0;
    uint32_t r = install(first, *rule, action, fwd_act, items, last);
    ze_os_free(items);
    if (r == 0) *fid = last;
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_delete_efc(uint32_t fid) {
    uint8_t status = 0, eof = 0;
    uint32_t r = ze::map_err(ze_lsw_efc_get_status(fid, &status, &eof));
    if (r) return ze::traced(ZE_SITE, r);
    if (status != 1 || eof != 1) {
        ze::traced(ZE_SITE, ZE_ERR_PARAM);
        return ZE_ERR_NOT_FOUND;
    }
    r = ze::map_err(ze_lsw_flow_delete_service(fid));
    if (r) return ze::traced(ZE_SITE, r);
    uint16_t start = static_cast<uint16_t>(fid);
    ze_lsw_efc_get_fid_range(fid, &start);
    ze::Block<EfcAttr> b;
    removal_block(b);
    for (uint32_t s = start; s <= fid; ++s) {
        set_fids(b, s);
        ZE_FLOW_DEBUG("us_startfid %d us_fid: %d\r\n", s, fid);
        ze::dp_write(b);
        ze_lsw_efc_set_status(s, 0, 0);
    }
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_flow_efc_delete_all(uint32_t, uint32_t, uint32_t, uint32_t) {
    ze::Block<EfcAttr> b;
    removal_block(b);
    for (uint32_t fid = 0; fid < ZE_EFC_ENTRY_COUNT; ++fid) {
        if (!in_use(fid)) continue;
        set_fids(b, fid);
        uint32_t r = ze::dp_write(b);
        if (r) return ze::traced(ZE_SITE, r);
    }
    return ze::traced(ZE_SITE, ze_lsw_service_clear_all());
}

uint32_t ze_lsw_flow_delete_service(uint32_t fid) {
    if (fid >= ZE_EFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ze_os_memset(&st_efcservice[fid], 0, sizeof st_efcservice[fid]);
    return ZE_OK;
}

uint32_t ze_lsw_service_clear_all(void) {
    ze_os_memset(st_efcservice, 0, sizeof st_efcservice);
    return ZE_OK;
}

uint32_t ze_lsw_flow_get_service_func(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                      uint32_t fwd_act, uint16_t *fid) {
    if (!rule || !action || !fid) return ZE_ERR_NULL_PTR;
    for (uint32_t f = 0; f < ZE_EFC_ENTRY_COUNT; ++f) {
        const ze_efc_shadow_s &e = st_efcservice[f];
        if (e.status == 1 && __builtin_memcmp(&e.rule, rule, sizeof *rule) == 0 &&
            __builtin_memcmp(&e.action, action, sizeof *action) == 0 && e.fwd_act == fwd_act) {
            *fid = static_cast<uint16_t>(f);
            return ZE_OK;
        }
    }
    return ze::traced(ZE_SITE, ZE_ERR_NOT_FOUND);
}

}  // extern "C"
