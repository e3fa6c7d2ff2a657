// Fixture of the flow classifier suites: besides the shared fixture, a heap
// balance check, and helpers that build records.
#pragma once

#include <cstring>
#include <string>
#include <tuple>

#include "test_support.h"
#include "ze_host.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_flow_shadow.h"

namespace zetest {

// Records start all zero, pad included (searches compare every byte), and
// the helpers set only the members they name.
inline ze_sfc_mapping_s vlan_mapping(uint16_t vlan, uint32_t mask = ZE_SFC_KEY_VLAN) {
    ze_sfc_mapping_s m{};
    m.key_mask = mask;
    m.vlan = vlan;
    return m;
}
inline ze_efc_rule_s rule(uint32_t mask) {
    ze_efc_rule_s r{};
    r.key_mask = mask;
    return r;
}
inline ze_efc_action_s action(uint32_t mask = 0) {
    ze_efc_action_s a{};
    a.act_mask = mask;
    return a;
}
// A rule on the destination address alone, every bit compared.
inline ze_efc_rule_s ip_rule(uint32_t dip) {
    ze_efc_rule_s r = rule(1u << 3);
    r.dip = dip;
    r.dip_mask = 0xffffffff;
    return r;
}
// Checks words of a block sent to the datapath: {offset, value} pairs.
inline void expect_words(const zesim::Bytes &b, std::initializer_list<std::pair<uint32_t, uint32_t>> want) {
    for (auto [offset, value] : want) EXPECT_EQ(word_at(b, offset), value) << "offset " << offset;
}
// Marks fids [from, to] in use (single-entry rules' eof left 0).
inline void occupy_fids(uint32_t from, uint32_t to) {
    for (uint32_t f = from; f <= to; ++f) st_efcservice[f].status = 1;
}
// Status, T-CONT and GEM port of an sfid's shadow entry.
inline std::tuple<int, int, int> gem_shadow(uint32_t sfid) {
    return {st_sfcmapping[sfid].status, st_sfcmapping[sfid].tcont, st_sfcmapping[sfid].gemport};
}

class FlowTest : public SimTest {
protected:
    void SetUp() override {
        SimTest::SetUp();
        heap_at_start_ = ze_host_heap_outstanding();
    }
    void TearDown() override {
        EXPECT_EQ(ze_host_heap_outstanding(), heap_at_start_) << "heap not balanced";
        ze_host_malloc_fail_at(-1);
        SimTest::TearDown();
    }

    // The last trace record of a function (all zero when there is none).
    ze_host_trace_rec last_trace_of(const std::string &func) const {
        ze_host_trace_rec out{};
        for (const auto &t : traces())
            if (func == t.func) out = t;
        return out;
    }

    // Every debug record names a function whose name starts with `prefix`
    // (an API function, never an inner helper).
    static void expect_debug_under(const std::string &prefix) {
        for (uint32_t i = 0; i < ze_host_trace_count(); ++i) {
            ze_host_trace_rec r;
            ze_host_trace_get(i, &r);
            EXPECT_TRUE(r.kind != ZE_HOST_REC_DEBUG || std::string(r.func).rfind(prefix, 0) == 0) << r.func;
        }
    }

    int64_t heap_at_start_ = 0;
};

}  // namespace zetest
