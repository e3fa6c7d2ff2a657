// Services and mappings: round trips, direction normalisation, the order
// of removals, and inner results coming back as 0xffffffff.
#include "flow_fixture.h"
#include "ze_gmac.h"

namespace {

using namespace zetest;
using FlowServiceTest = FlowTest;

TEST_F(FlowServiceTest, ServiceRoundTripAndUnknownServices) {
    ze_efc_rule_s r = ip_rule(0x0a000001);
    ze_efc_action_s a = action(1u << 2);
    uint16_t found = 0;
    ASSERT_EQ(ze_lsw_flow_add_service(&r, &a, 2, nullptr), 0u);  // saved without a fid pointer too
    EXPECT_EQ(st_efcservice[1].rule.dip, 0x0a000001u);           // searched from fid 1
    ASSERT_EQ(ze_lsw_flow_get_service(&r, &a, 2, &found), 0u);
    EXPECT_EQ(found, 1);
    ASSERT_EQ(ze_lsw_flow_del_service(&r, &a, 2), 0u);
    EXPECT_EQ(ze_lsw_flow_get_service(&r, &a, 2, &found), 14u);
    EXPECT_EQ(ze_lsw_flow_del_service(&r, &a, 2), 0xffffffffu);  // the search's 14, remapped
    EXPECT_EQ(ze_lsw_flow_del_fid(1), 0xffffffffu);
    EXPECT_EQ(ze_lsw_flow_add_service(nullptr, &a, 2, &found), 31u);
}

// Normalisation: the record as the caller gives it, the direction, the key
// mask and ingress bitmap that are installed and saved, and another bitmap
// that the removal finds the mapping with.
TEST_F(FlowServiceTest, MappingDirectionNormalisation) {
    struct Case { uint32_t mask; uint8_t igr; uint32_t dir, want_mask; uint8_t want_igr, del_igr; };
    const Case cases[] = {
        {ZE_SFC_KEY_VLAN, 0x20, 0, 0x3, 0x3f, 0x20},  // LAN bits added, others kept
        {ZE_SFC_KEY_VLAN | ZE_SFC_KEY_IGR, 0x04, 0, 0x3, 0x04, 0x04},
        {ZE_SFC_KEY_VLAN, 0x07, 1, 0x3, 0x20, 0x1c},  // downstream: any bitmap
        {ZE_SFC_KEY_VLAN, 0x07, 2, 0x2, 0x07, 0x07},
    };
    for (const Case &c : cases) {
        ze_sfc_mapping_s m = vlan_mapping(100, c.mask), del = m;
        m.igr = c.igr;
        del.igr = c.del_igr;
        uint16_t sfid = 0xffff;
        ASSERT_EQ(ze_lsw_flow_add_mapping(&m, c.dir, &sfid), 0u);
        EXPECT_EQ(std::tuple(sfid, m.key_mask, m.igr), std::tuple(0, c.want_mask, c.want_igr)) << c.dir;
        EXPECT_EQ(std::memcmp(&st_sfcmapping[0].mapping, &m, sizeof m), 0);
        ASSERT_EQ(ze_lsw_flow_del_mapping(&del, c.dir), 0u) << c.dir;
        EXPECT_EQ(st_sfcmapping[0].status, 0);
        EXPECT_EQ(ze_lsw_flow_del_mapping(&del, c.dir), 0xffffffffu);  // the search's 14, remapped
    }
}

TEST_F(FlowServiceTest, DeleteBySfidRemovesTheGemPortFirst) {
    ze_sfc_mapping_s m = vlan_mapping(300);
    uint16_t sfid = 0;
    ASSERT_EQ(ze_lsw_flow_add_mapping(&m, 0, &sfid), 0u);
    ASSERT_EQ(ze_gmac_set_gemport(sfid, 1, 1100), 0u);
    zesim::clear_log();
    ASSERT_EQ(ze_lsw_flow_del_mapping_by_sfid(sfid), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0xb04, 0xb05, 0x202, 0x203, 0x507}));
    EXPECT_EQ(st_sfcmapping[sfid].status, 0);
    EXPECT_EQ(ze_lsw_flow_del_mapping_by_sfid(sfid), 0xffffffffu);
}

TEST_F(FlowServiceTest, DeleteAllRemovesServicesBeforeMappings) {
    ze_efc_rule_s r = ip_rule(0x0a000003);
    ze_efc_action_s a = action();
    ze_sfc_mapping_s m = vlan_mapping(400);
    uint16_t sfid = 0;
    ASSERT_EQ(ze_lsw_flow_add_mapping(&m, 0, &sfid), 0u);
    ASSERT_EQ(ze_lsw_flow_add_service(&r, &a, 0, nullptr), 0u);
    zesim::clear_log();
    ASSERT_EQ(ze_lsw_flow_del_all(0, 0, 0, 0), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0x505, 0xb04, 0x507}));
    EXPECT_EQ(std::tuple(st_efcservice[1].status, st_sfcmapping[0].status), std::tuple(0, 0));
    // The install's 18 is remapped like any inner result.
    zesim::fail(0x505, 0xf0000101);
    EXPECT_EQ(ze_lsw_flow_add_service(&r, &a, 0, nullptr), 0xffffffffu);
}

TEST_F(FlowServiceTest, IgmpPriorityService) {
    ZE_LITTLE_ENDIAN_LAYOUT("the key value's byte is copied into the k0 word in memory order");
    ASSERT_EQ(ze_lsw_flow_change_igmp_pri(6), 0u);
    auto w = entries_of(0x505);
    ASSERT_EQ(w.size(), 1u);
    // g0 (key type 7), k0, igr (every port: mask bit 0 clear), spriact, spvalue, act
    expect_words(w[0].sent, {{16, 7}, {20, 2}, {48, 0x7f}, {112, 1}, {116, 6}, {120, 2}});
    EXPECT_EQ(st_efcservice[1].rule.igr_port, 5);
}

// The service command replies the fid at 104; the mapping command replies
// the record normalised, which its removal finds as sent.
TEST_F(FlowServiceTest, ServiceAndMappingCommands) {
    uint8_t svc[108] = {};
    ze_efc_rule_s r = ip_rule(0x0a000004);
    std::memcpy(svc, &r, sizeof r);
    uint32_t reply = 0;
    ASSERT_EQ(call("ze_adapter_cli_flow_add_service", svc, 108, &reply), 0u);
    EXPECT_EQ(zesim::load_field(svc + 104, 2), 1u);
    EXPECT_EQ(call("ze_adapter_cli_flow_del_service", svc, 108, &reply), 0u);
    EXPECT_EQ(call("ze_adapter_cli_flow_del_service", svc, 108, &reply), 0xffffffffu);

    uint8_t map[24] = {};
    ze_sfc_mapping_s m = vlan_mapping(500);
    std::memcpy(map, &m, sizeof m);
    st_sfcmapping[0].status = 1;
    ASSERT_EQ(call("ze_adapter_cli_flow_add_mapping", map, 24, &reply), 0u);
    EXPECT_EQ(map[8], 0x1f);
    EXPECT_EQ(zesim::load_field(map + 22, 2), 1u);  // the sfid
    EXPECT_EQ(call("ze_adapter_cli_flow_del_mapping", map, 20, &reply), 0u);
    EXPECT_EQ(call("ze_adapter_cli_flow_del_all", nullptr, 0, nullptr), 0u);  // request not looked at
}

}  // namespace
