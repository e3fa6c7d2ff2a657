// GPON MAC: GEM mappings with their attribute block and shadow record,
// downstream type, AES, FEC, and the commands over them.
#include "flow_fixture.h"
#include "ze_gmac.h"

namespace {

using namespace zetest;
using GmacTest = FlowTest;

// A set maps, brings the port up and records the shadow; a delete empties
// the mapping and invalidates the port; a failure stops a set and keeps the
// earlier steps.
TEST_F(GmacTest, SetMapsBringsThePortUpDeleteInvalidatesIt) {
    zesim::set_word(0x202, 12, 1, {1001});  // AES already on
    ASSERT_EQ(ze_gmac_set_gemport(4, 2, 1001), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0xb05, 0x202, 0x203}));
    expect_words(entries_of(0xb05)[0].sent, {{0, 4}, {4, 1001}, {8, 2}});
    expect_words(entries_of(0x203)[0].sent, {{0, 1001}, {8, 2}, {12, 1}, {16, 1}});
    EXPECT_EQ(gem_shadow(4), std::tuple(1, 2, 1001));
    zesim::clear_log();
    ASSERT_EQ(ze_gmac_del_gemport(4), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0xb04, 0xb05, 0x202, 0x203}));
    EXPECT_EQ(zesim::word(0xb04, 4, {4}), 4096u);
    EXPECT_EQ(zesim::word(0xb04, 8, {4}), 8u);
    EXPECT_EQ(zesim::word(0x202, 16, {1001}), 0u);
    EXPECT_EQ(gem_shadow(4), std::tuple(1, 8, 4096));  // in use, without a GEM port
    zesim::fail(0x203, 0xf0000101);
    EXPECT_EQ(ze_gmac_set_gemport(5, 3, 1002), 18u);
    EXPECT_EQ(zesim::word(0xb04, 4, {5}), 1002u);
    EXPECT_EQ(st_sfcmapping[5].status, 0);
    zesim::clear_faults();
    EXPECT_EQ(ze_gmac_set_gemport(200, 2, 1001), 0xffffffffu);  // the shadow refuses 200
}

TEST_F(GmacTest, NeverWrittenMappingIsEmptyAndItsDeleteSendsNoSet) {
    uint8_t tcont = 0;
    uint16_t gem = 0;
    ASSERT_EQ(ze_gmac_get_gemport(17, &tcont, &gem), 0u);
    EXPECT_EQ(std::tuple(tcont, gem), std::tuple(8, 4096));
    EXPECT_EQ(ze_gmac_get_gemport(17, nullptr, &gem), 31u);
    zesim::clear_log();
    ASSERT_EQ(ze_gmac_del_gemport(9), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0xb04}));
    EXPECT_EQ(st_sfcmapping[9].status, 0);
}

TEST_F(GmacTest, DownstreamTypeSetOverwritesTheWholeBlock) {
    zesim::set_word(0x202, 12, 1, {300});
    ASSERT_EQ(ze_gmac_set_down_gemport_type(300, 5), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0x203}));
    uint32_t type = 0;
    uint8_t aes = 9;
    ASSERT_EQ(ze_gmac_get_down_gemport_type(300, &type), 0u);
    ASSERT_EQ(ze_gmac_get_aes(300, &aes), 0u);
    EXPECT_EQ(std::tuple(type, aes), std::tuple(5u, 0));
    EXPECT_EQ(zesim::word(0x202, 16, {300}), 1u);
    ASSERT_EQ(ze_gmac_del_down_gemport(300), 0u);
    EXPECT_EQ(zesim::word(0x202, 16, {300}), 0u);
    EXPECT_EQ(zesim::word(0x202, 8, {300}), 5u);
}

TEST_F(GmacTest, FecIsReadBySelector) {
    zesim::set_word(0x208, 4, 1);
    zesim::set_word(0x20a, 8, 0);
    const uint32_t cases[][3] = {{1, 0x208, 1}, {5, 0x208, 1}, {0, 0x20a, 0}};
    for (const auto &c : cases) {
        zesim::clear_log();
        uint8_t fec = 7;
        ASSERT_EQ(ze_gmac_get_fec(c[0], &fec), 0u);
        EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{c[1]}));
        EXPECT_EQ(fec, c[2]);
    }
    zesim::clear_log();
    EXPECT_EQ(ze_gmac_set_fec(), 0u);
    EXPECT_TRUE(zesim::commands().empty());
}

// The GEM port travels at offset 2 and its T-CONT at 4, both ways.
TEST_F(GmacTest, GemPortCommandLayouts) {
    uint8_t set[8];  // index 4, GEM port 1001, T-CONT 2
    zesim::store_field(set, 2, 4), zesim::store_field(set + 2, 2, 1001), zesim::store_field(set + 4, 4, 2);
    uint32_t reply = 0;
    ASSERT_EQ(call("ze_adapter_cli_gmac_set_gemport", set, 8, &reply), 0u);
    EXPECT_EQ(zesim::word(0xb04, 4, {4}), 1001u);
    uint8_t get[8] = {};
    zesim::store_field(get, 2, 4);
    ASSERT_EQ(call("ze_adapter_cli_gmac_get_gemport", get, 8, &reply), 0u);
    EXPECT_EQ(zesim::load_field(get + 2, 2), 1001u);
    EXPECT_EQ(get[4], 2);
}

}  // namespace
