// Flow listings, byte for byte.
#include "flow_fixture.h"
#include "ze_gmac.h"

namespace {

using namespace zetest;
using FlowDiagTest = FlowTest;

const char kSfcHeader[] =
    "sfid    fid_vld    fid     vlan_vld    vlan    pri_vld    pri     igr     non_mode    \r\n";
const char kGemHeader[] = "sfid    tcont   gemport \r\n";
const char kEfcHeader[] =
    "fid     igr     eof     g0      k0              m0      n0      g1      k1              m1      n1      \r\n";
const char kActHeader[] =
    "fid     tagact  cvact   cvvalue svact   svvalue cpriact cpvalue spriact spvalue act     \r\n";

// Empty tables print their headers only, and selector 2 nothing; a failed
// read stops a listing before its second table, though the flow listing
// still answers 0.
TEST_F(FlowDiagTest, EmptyTablesAndFailedReadsStopAtTheHeaders) {
    ASSERT_EQ(ze_lsw_flow_sfc_diagnose(0, 0, 0, 0), 0u);
    EXPECT_EQ(take_console(), std::string(kSfcHeader) + kGemHeader);
    ASSERT_EQ(ze_lsw_flow_efc_diagnose(0, 0, 0, 0), 0u);
    EXPECT_EQ(take_console(), std::string(kEfcHeader) + kActHeader);
    EXPECT_EQ(ze_lsw_flow_diagnose(2, 0, 0, 0), 0u);
    EXPECT_EQ(console(), "");
    st_efcservice[4].status = 1;
    zesim::fail(0x504, 0x9);
    EXPECT_EQ(ze_lsw_flow_efc_diagnose(0, 0, 0, 0), 0xffffffffu);
    EXPECT_EQ(take_console(), kEfcHeader);
    EXPECT_EQ(ze_lsw_flow_diagnose(0, 0, 0, 0), 0u);
    EXPECT_EQ(take_console(), kEfcHeader);
    st_sfcmapping[2].status = 1;
    zesim::clear_faults();
    zesim::fail(0xb04, 0xf0000101);
    EXPECT_EQ(ze_lsw_flow_sfc_diagnose(0, 0, 0, 0), 18u);
    EXPECT_THAT(console(), testing::HasSubstr(kGemHeader));
}

TEST_F(FlowDiagTest, SfcListingShowsModesOredAndTheGemPort) {
    // VLAN mode 1, priority mode 0
    ze_sfc_mapping_s m = vlan_mapping(100, ZE_SFC_KEY_VLAN | ZE_SFC_KEY_IGR);
    m.match_mode = 5, m.igr = 0x1f;
    uint16_t sfid = 0;
    ASSERT_EQ(ze_lsw_flow_add_mapping(&m, 0, &sfid), 0u);
    ASSERT_EQ(ze_gmac_set_gemport(sfid, 1, 1001), 0u);
    ASSERT_EQ(ze_lsw_flow_diagnose(1, 0, 0, 0), 0u);
    EXPECT_EQ(console(), std::string(kSfcHeader) +
                             "0       0          0       1           100     0          0       31         1           \r\n" +
                             kGemHeader + "0       1       1001    \r\n");
}

TEST_F(FlowDiagTest, EfcListingRepeatsKeysInDecimalAndActionsInHex) {
    ZE_LITTLE_ENDIAN_LAYOUT("the listed key words hold the rule's key bytes in memory order");
    ze_efc_rule_s r = ip_rule(0x0a000001);
    r.key_mask |= 1u << 15;
    r.key15 = 2;
    ze_efc_action_s a = action((1u << 2) | (1u << 13));
    a.spri = 5;
    ASSERT_EQ(ze_lsw_flow_add_service(&r, &a, 2, nullptr), 0u);
    ASSERT_EQ(ze_lsw_flow_diagnose(0, 0, 0, 0), 0u);
    EXPECT_EQ(console(),
              std::string(kEfcHeader) +
                  // the decimal k0 fills its column and more
                  "1       127     1       3       0xa000001       1677721612       7       0x2             2       2       \r\n" +
                  kActHeader +
                  "1       0       0       0       0x2       0       0       0       0x1       5       2       \r\n");
}

}  // namespace
