// VLAN membership, the port VLAN shadow and its undo, broadcast egress,
// hybrid tag mode, VLAN filter and the listings.
#include <cstring>

#include "test_support.h"
#include "ze_lsw_vlan.h"
#include "ze_lsw_vlan_cfg.h"

namespace {

using namespace ::testing;
using namespace zetest;

class VlanTest : public SimTest {
protected:
    static void expect_entry(uint32_t i, uint8_t state, uint8_t mask, uint16_t vlan) {
        const ze_port_vlan_cfg_s &e = uc_port_vlan_cfg[i];
        EXPECT_TRUE(e.state == state && e.port_mask == mask && e.vlan == vlan)
            << "entry " << i << ": " << +e.state << " " << +e.port_mask << " " << e.vlan;
    }
    static uint32_t member(uint32_t vlan, uint32_t port) { return zesim::word(0x400, 4 + 4 * port, {vlan}); }
    // (function, result) of every trace record.
    std::vector<std::pair<std::string, uint32_t>> trace_log() const {
        std::vector<std::pair<std::string, uint32_t>> out;
        for (const auto &t : traces()) out.emplace_back(t.func, t.result);
        return out;
    }
};

TEST_F(VlanTest, MembershipIsWrittenAndRecordedPerVlan) {
    EXPECT_EQ(ze_lsw_vlan_add_port(100, 2), 0u); EXPECT_EQ(ze_lsw_vlan_add_port(100, 6), 0u);
    EXPECT_EQ(member(100, 2), 1u); expect_entry(0, 1, 0x44, 100);
    EXPECT_EQ(ze_lsw_vlan_del_port(100, 2), 0u);
    EXPECT_EQ(member(100, 2), 0u); expect_entry(0, 1, 0x40, 100);
    // Port 7 has no member word: the block goes back as read, bit 7 is kept.
    EXPECT_EQ(ze_lsw_vlan_add_port(100, 7), 0u); expect_entry(0, 1, 0xc0, 100);
    EXPECT_EQ(entries_of(0x401).back().sent, entries_of(0x400).back().returned);
    // Port 8 passes the broadcast port check but has no bit to record.
    EXPECT_EQ(ze_lsw_vlan_bc_add_port(200, 8), 0u); expect_entry(1, 1, 0x00, 200);
    EXPECT_EQ(word_at(entries_of(0x716)[0].sent, 8), 8u);
    EXPECT_EQ(ze_lsw_vlan_bc_add_port(200, 9), 0xffffffffu); EXPECT_EQ(entries_of(0x716).size(), 1u);
}

// The emptied entry is removed and the later ones move down before the
// delete writes its own trace record.
TEST_F(VlanTest, RemovingAnEntryInTheMiddlePacksTheTable) {
    for (uint32_t vlan : {10u, 20u, 30u, 40u}) ze_lsw_vlan_add_port(vlan, 1);
    ze_lsw_vlan_bc_add_port(20, 3); expect_entry(1, 1, 0x0a, 20);  // same entry, second bit
    ze_lsw_vlan_bc_del_port(20, 3); expect_entry(1, 1, 0x02, 20);
    ze_host_trace_clear(); ze_lsw_vlan_del_port(20, 1);
    expect_entry(0, 1, 0x02, 10); expect_entry(1, 1, 0x02, 30); expect_entry(2, 1, 0x02, 40); expect_entry(3, 0, 0, 0);
    EXPECT_THAT(trace_log(), ElementsAre(Pair("ze_lsw_vlan_inner_cfg_sort", 0), Pair("ze_lsw_vlan_del_port", 0)));
}

TEST_F(VlanTest, AFullShadowDoesNotFailTheAdd) {
    for (uint32_t i = 0; i < ZE_VLAN_CFG_COUNT; ++i) uc_port_vlan_cfg[i] = {1, 1, static_cast<uint16_t>(i)};
    EXPECT_EQ(ze_lsw_vlan_add_port(5000, 2), 0u);  // 5000 fits no u16 entry of 0..4095
    EXPECT_EQ(member(5000, 2), 1u);
    EXPECT_THAT(trace_log(), Contains(Pair("ze_lsw_vlan_inner_save_cfg", ZE_ERR_FULL)));
    // A VLAN never recorded cancels nothing and the delete still succeeds.
    std::memset(uc_port_vlan_cfg, 0, sizeof uc_port_vlan_cfg);
    EXPECT_EQ(ze_lsw_vlan_del_port(77, 1), 0u);
    EXPECT_THAT(trace_log(), Contains(Pair("ze_lsw_vlan_inner_cancel_cfg", ZE_ERR_NOT_FOUND)));
}

// Failures leave the shadow alone; the member read's failure is not seen by
// the get, which reports no member and writes no trace.
TEST_F(VlanTest, DriverFailuresMapAndLeaveTheShadowAlone) {
    zesim::fail(0x401, ZE_DRV_INVALID_PARAM); EXPECT_EQ(ze_lsw_vlan_add_port(100, 2), ZE_ERR_PARAM);
    zesim::fail(0x716, 0x1234); EXPECT_EQ(ze_lsw_vlan_bc_add_port(100, 2), 0xffffffffu);
    expect_entry(0, 0, 0, 0);
    zesim::fail(0x400, 0x1234); EXPECT_EQ(ze_lsw_vlan_add_port(100, 2), 0xffffffffu);
    zesim::set_word(0x400, 12, 1, {100}); ze_host_trace_clear();  // port 2 is a member, unseen
    uint32_t bitmap = 0xffff;
    EXPECT_EQ(ze_lsw_vlan_get_port(100, &bitmap), 0u); EXPECT_EQ(bitmap, 0u); EXPECT_TRUE(traces().empty());
    EXPECT_EQ(ze_lsw_vlan_get_port(100, nullptr), ZE_ERR_NULL_PTR);
}

// Each port's pass walks by position: removing VLAN 10 moves VLAN 20 into
// the current position, so port 0's pass never reaches VLAN 20 and its
// membership of port 0 survives.
TEST_F(VlanTest, DeleteAllSkipsTheEntryMovedIntoTheCurrentPosition) {
    ze_lsw_vlan_add_port(10, 0); ze_lsw_vlan_add_port(20, 0); ze_lsw_vlan_add_port(30, 4);
    EXPECT_EQ(ze_lsw_vlan_del_all_cfg(), 0u);
    EXPECT_EQ(member(10, 0), 0u); EXPECT_EQ(member(30, 4), 0u); EXPECT_EQ(member(20, 0), 1u);
    expect_entry(0, 1, 0x01, 20); expect_entry(1, 0, 0, 0);
}

// Written at 8 + 4p and 36 + 4p of the filter mode block, read from 4p of
// the read-out. Port 8's first word is port 1's second; its own second word
// has no place in the block, and the read-out has no word for it.
TEST_F(VlanTest, VlanFilterWritesBothWordsAndReadsTheReadout) {
    EXPECT_EQ(ze_lsw_vlan_set_vlanfilter(3, 1), 0u);
    const zesim::Bytes sent = entries_of(0x40b).at(0).sent;
    EXPECT_EQ(word_at(sent, 20), 1u); EXPECT_EQ(word_at(sent, 48), 1u);
    zesim::set_word(0x40a, 8 + 4 * 2, 9);
    EXPECT_EQ(ze_lsw_vlan_set_vlanfilter(8, 5), 0u); EXPECT_EQ(zesim::word(0x40a, 40), 5u);
    for (auto [port, want] : {std::pair{3u, 1u}, {2u, 9u}, {8u, 0u}}) {
        uint8_t v = 0x55;
        EXPECT_EQ(ze_lsw_vlan_get_vlanfilter(port, &v), 0u); EXPECT_EQ(v, want) << port;
    }
    uint8_t v = 0;
    EXPECT_EQ(ze_lsw_vlan_set_vlanfilter(9, 1), 0xffffffffu); EXPECT_EQ(ze_lsw_vlan_get_vlanfilter(9, &v), 0xffffffffu);
}

TEST_F(VlanTest, HybridTagModeCoversPortsZeroToFour) {
    EXPECT_EQ(ze_lsw_vlan_set_hybrid_tagmode(100, 4, 1), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0x343, 0x342}));
    EXPECT_EQ(zesim::word(0x343, 20, {100}), 1u);
    const zesim::Bytes before = zesim::block(0x343, {100});
    EXPECT_EQ(ze_lsw_vlan_set_hybrid_tagmode(100, 5, 1), 0u); EXPECT_EQ(zesim::block(0x343, {100}), before);
    uint8_t mode = 7;
    EXPECT_EQ(ze_lsw_vlan_get_hybrid_tagmode(100, 5, &mode), 0u); EXPECT_EQ(mode, 7u);
    EXPECT_EQ(ze_lsw_vlan_get_hybrid_tagmode(100, 4, &mode), 0u); EXPECT_EQ(mode, 1u);
    EXPECT_TRUE(traces().empty());
    zesim::fail(0x343, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ(ze_lsw_vlan_get_hybrid_tagmode(100, 4, &mode), ZE_ERR_PARAM); EXPECT_EQ(traces().size(), 1u);
}

TEST_F(VlanTest, BroadcastEgressBitmapAndListing) {
    ze_lsw_vlan_bc_add_port(100, 1); ze_lsw_vlan_bc_add_port(100, 6);
    zesim::set_word(0x718, 4 + 12 * 5 + 4, 40, {100});  // an egress port past bit 31
    zesim::set_word(0x718, 4 + 12 * 5 + 8, 1, {100});
    uint32_t bitmap = 0;
    EXPECT_EQ(ze_lsw_vlan_bc_get_port(100, &bitmap), 0u); EXPECT_EQ(bitmap, 0x42u);
    EXPECT_EQ(ze_lsw_vlan_display_bcegrs(100), 0u);
    EXPECT_EQ(take_console(), "index   egr     fid     \r\n0       1       0       \r\n"
                              "1       6       0       \r\n5       40      0       \r\n");
    zesim::fail(0x718, 0x1234);
    EXPECT_EQ(ze_lsw_vlan_display_bcegrs(100), 0xffffffffu); EXPECT_EQ(console(), "");
}

TEST_F(VlanTest, DiagnoseListsVlansWithMembersAndTagModes) {
    ze_lsw_vlan_add_port(1, 0); ze_lsw_vlan_add_port(1, 6); ze_lsw_vlan_add_port(4095, 5);
    ze_lsw_vlan_set_hybrid_tagmode(1, 0, 1);
    const std::string head = "vlan    ge0     fe1     fe2     fe3     fe4     pon     cpu     \r\n"
                             "1       1       0       0       0       0       0       1       \r\n";
    EXPECT_EQ(ze_lsw_vlan_diagnose(0), 0u);
    EXPECT_EQ(take_console(), head + "        untag   tag     tag     tag     tag     tag     \r\n"
                                     "4095    0       0       0       0       0       1       0       \r\n"
                                     "        tag     tag     tag     tag     tag     tag     \r\n");
    EXPECT_EQ(ze_lsw_vlan_diagnose(1), 0u); EXPECT_EQ(console(), "");
    zesim::fail(0x343, 0x1234);
    EXPECT_EQ(ze_lsw_vlan_diagnose(0), 0u); EXPECT_EQ(console(), head);
    EXPECT_THAT(trace_log(), Contains(Pair("ze_lsw_vlan_inner_printfvlaninfo", 0xffffffffu)));
}

}  // namespace
