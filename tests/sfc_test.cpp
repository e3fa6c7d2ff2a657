// Simple flow classifier: install blocks, sfid allocation, deletes, the
// partial table clear, and the shadow searches.
#include "flow_fixture.h"
#include "ze_blocks_sfc.h"
#include "ze_gmac.h"

namespace {

using namespace zetest;
using SfcTest = FlowTest;

// Installs `n` VLAN mappings 100, 101, ... and saves them as the add does.
void install_vlans(uint32_t n) {
    for (uint32_t i = 0; i < n; ++i) {
        ze_sfc_mapping_s m = vlan_mapping(static_cast<uint16_t>(100 + i));
        uint16_t sfid = 0;
        ASSERT_EQ(ze_lsw_flow_set_sfc(&m, &sfid), 0u);
        ASSERT_EQ(ze_lsw_flow_save_mapping(sfid, &m), 0u);
    }
}

TEST_F(SfcTest, InstallWritesEveryKeyOfTheMaskWithoutReadingFirst) {
    ze_sfc_mapping_s m = vlan_mapping(300, 0x1f);
    m.match_mode = 7;  // each key's mode: 7 / 5 = 1
    m.igr = 0x21, m.fid = 9, m.pri = 5, m.fifth = 0x4242;
    uint16_t sfid = 0xffff;
    ASSERT_EQ(ze_lsw_flow_set_sfc(&m, &sfid), 0u);
    EXPECT_EQ(sfid, 0);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0x507}));
    expect_words(entries_of(0x507)[0].sent,
                 {{0, 0}, {4, 1}, {8, 1}, {12, 1}, {16, 9}, {20, 1}, {24, 1}, {28, 300}, {32, 1}, {36, 1},
                  {40, 5}, {44, 0x21}, {48, 1}, {52, 1}, {56, 0x4242}, {60, 0}, {64, 0}});
    EXPECT_EQ(st_sfcmapping[0].status, 1);
    // keys whose bit is clear stay 0
    m.key_mask = ZE_SFC_KEY_VLAN;
    ASSERT_EQ(ze_lsw_flow_set_sfc(&m, nullptr), 0u);
    expect_words(entries_of(0x507)[1].sent, {{32, 0}, {40, 0}, {44, 0}});
}

// A full table takes no install and writes nothing; a deleted sfid is the
// next one taken.
TEST_F(SfcTest, FullTableThenLowestFreeSfidReused) {
    install_vlans(128);
    zesim::clear_log();
    ze_sfc_mapping_s m = vlan_mapping(999);
    uint16_t sfid = 0xabcd;
    EXPECT_EQ(ze_lsw_flow_set_sfc(&m, &sfid), 0xffffffffu);
    EXPECT_EQ(sfid, 0xabcd);
    EXPECT_TRUE(zesim::commands().empty());
    ASSERT_EQ(ze_lsw_flow_delete_sfc(3), 0u);
    expect_words(entries_of(0x507).back().sent, {{0, 3}, {4, 0}, {8, 0}});  // invalid, disabled
    ASSERT_EQ(ze_lsw_flow_set_sfc(&m, &sfid), 0u);
    EXPECT_EQ(sfid, 3);
}

// Refused deletes write nothing; a failed write keeps the shadow, and the
// delete of all stops at the first GEM port failure.
TEST_F(SfcTest, DeleteRefusalsAndFailures) {
    EXPECT_EQ(ze_lsw_flow_delete_sfc(5), 14u);  // free
    EXPECT_EQ(last_trace_of("ze_lsw_flow_delete_sfc").result, 18u);
    EXPECT_EQ(ze_lsw_flow_delete_sfc(200), 18u);
    EXPECT_TRUE(zesim::commands().empty());
    install_vlans(3);
    zesim::fail(0x507, 0xf0000101, 1);
    EXPECT_EQ(ze_lsw_flow_delete_sfc(0), 18u);
    EXPECT_EQ(st_sfcmapping[0].status, 1);
    zesim::clear_log();
    zesim::fail(0xb04, 0x1234, 2);
    EXPECT_EQ(ze_lsw_flow_sfc_delete_all(), 0xffffffffu);
    EXPECT_EQ(entries_of(0x507).size(), 1u);  // sfid 0 removed
    EXPECT_EQ(st_sfcmapping[1].status, 1);
}

TEST_F(SfcTest, DeleteAllClearsOnlyTheFirst2560BytesOfTheShadow) {
    for (uint32_t s = 0; s < 128; ++s) ASSERT_EQ(ze_gmac_set_gemport(s, 1, 1000 + s), 0u);
    for (uint32_t s = 0; s < 128; ++s) st_sfcmapping[s].mapping.fifth = 0x5555;
    zesim::clear_log();
    ASSERT_EQ(ze_lsw_flow_sfc_delete_all(), 0u);
    EXPECT_EQ(entries_of(0x507).size(), 128u);
    EXPECT_EQ(entries_of(0xb05).size(), 128u);  // every GEM port removed first
    EXPECT_EQ(std::tuple(st_sfcmapping[105].status, st_sfcmapping[106].status), std::tuple(0, 0));
    EXPECT_EQ(st_sfcmapping[106].mapping.fifth, 0x5555);  // the tail of entry 106 survives
    for (uint32_t s = 107; s < 128; ++s) EXPECT_EQ(gem_shadow(s), std::tuple(1, 8, 4096)) << s;
}

TEST_F(SfcTest, GemPortSearchesFollowDirectionAndStart) {
    // GEM port 77 downstream, 77 upstream, 88 upstream, 77 upstream but free
    const uint8_t igr[] = {0x20, 0x02, 0x02, 0x02};
    const uint16_t gem[] = {77, 77, 88, 77};
    for (uint32_t s = 0; s < 4; ++s) {
        st_sfcmapping[s].status = s < 3 ? 1 : 0;
        st_sfcmapping[s].gemport = gem[s];
        st_sfcmapping[s].mapping.igr = igr[s];
    }
    const uint32_t cases[][5] = {  // GEM port, direction, first, result, sfid
        {77, 0, 0, 0, 1}, {77, 1, 0, 0, 0}, {77, 1, 1, 18, 0xffff}, {77, 2, 0, 18, 0xffff}, {77, 0, 128, 18, 0xffff},
    };
    for (const auto &c : cases) {
        uint16_t sfid = 0xffff;
        EXPECT_EQ(ze_lsw_flow_get_sfid_by_gemport(c[0], c[1], c[2], &sfid), c[3]) << c[1] << " " << c[2];
        EXPECT_EQ(sfid, c[4]) << c[1] << " " << c[2];
    }
    uint16_t sfid = 0xffff, count = 0xffff;
    EXPECT_EQ(ze_lsw_flow_get_sfid(88, &sfid), 0u);
    EXPECT_EQ(sfid, 2);
    EXPECT_EQ(ze_lsw_flow_get_sfid(99, &sfid), 18u);
    EXPECT_EQ(ze_lsw_flow_get_sfc_item_count(77, 2, &count), 0u);
    EXPECT_EQ(count, 0xffff);  // no count for another direction
    EXPECT_EQ(ze_lsw_flow_get_sfc_item_count(77, 0, &count), 0u);
    EXPECT_EQ(count, 1);
}

// The VLAN search traces nothing; the record search compares every byte.
TEST_F(SfcTest, SearchesByVlanAndByRecord) {
    install_vlans(2);
    ze_lsw_flow_save_gemmap(1, 3, 1234);
    uint16_t gem = 0, tcont = 0, sfid = 0;
    ze_sfc_mapping_s m;
    ze_host_trace_clear();
    EXPECT_EQ(ze_lsw_flow_get_gemmap_by_vlan(101, &gem, &tcont, &m), 0u);
    EXPECT_EQ(std::tuple(gem, tcont, m.vlan), std::tuple(1234, 3, 101));
    EXPECT_EQ(ze_lsw_flow_get_gemmap_by_vlan(555, &gem, &tcont, &m), 0xffffffffu);
    EXPECT_EQ(ze_lsw_flow_get_gemmap_by_vlan(101, nullptr, &tcont, &m), 0xffffffffu);
    EXPECT_TRUE(traces().empty());
    m = vlan_mapping(101);
    EXPECT_EQ(ze_lsw_flow_get_sfid_bymapping(&m, &sfid), 0u);
    EXPECT_EQ(sfid, 1);
    m.pad[1] = 1;
    EXPECT_EQ(ze_lsw_flow_get_sfid_bymapping(&m, &sfid), 14u);
    EXPECT_EQ(last_trace_of("ze_lsw_flow_get_sfid_bymapping").result, 18u);
}

TEST_F(SfcTest, ShadowAccessorsRejectOutOfRangeSfids) {
    ze_sfc_shadow_s e;
    EXPECT_EQ(ze_lsw_sfc_get_status(128, nullptr), 18u);
    EXPECT_EQ(ze_lsw_sfc_set_status(128, 1), 18u);
    EXPECT_EQ(ze_lsw_flow_save_gemmap(128, 1, 1), 18u);
    EXPECT_EQ(ze_lsw_sfc_get_gemmapping(128, &e), 18u);
    EXPECT_EQ(ze_lsw_sfc_delete_gemmapping(128), 18u);
    EXPECT_EQ(ze_lsw_flow_save_mapping(127, nullptr), 31u);
    EXPECT_EQ(ze_lsw_sfc_get_status(127, nullptr), 0u);
}

TEST_F(SfcTest, PrintedFormListsEntriesInUse) {
    ze_lsw_flow_save_gemmap(2, 1, 1002);
    ze_lsw_flow_save_gemmap(9, 8, 4096);
    ASSERT_EQ(ze_lsw_flow_sfc_printf_info(), 0u);
    EXPECT_EQ(console(),
              "sfid    TCONT      GEMPORT\r\n"
              "2       1          1002        \r\n"
              "9       8          4096        \r\n");
}

}  // namespace
