// Chip attributes and the chip commands.
#include <cstring>

#include "test_support.h"
#include "ze_adapter_cli.h"
#include "ze_chip.h"

namespace {

using Chip = zetest::SimTest;

TEST_F(Chip, UpModeReadCopiesOnlyKnownModes) {
    const struct {
        uint32_t driver, result, seen;
    } cases[] = {{0, 0, 0}, {1, 0, 1}, {2, 0, 2}, {3, ZE_ERR_UNKNOWN_VALUE, 99}, {0xffffffff, ZE_ERR_UNKNOWN_VALUE, 99}};
    for (const auto &c : cases) {
        zesim::set_word(0x100, 4, c.driver);
        uint32_t mode = 99;
        EXPECT_EQ(ze_chip_get_upmode(&mode), c.result) << c.driver;
        EXPECT_EQ(mode, c.seen) << c.driver;
        EXPECT_EQ(traces().back().result, c.result);
    }
    EXPECT_EQ(ze_chip_get_upmode(nullptr), ZE_ERR_NULL_PTR);
}

// The set carries every other word of the block as read.
TEST_F(Chip, UpModeWriteStoresZeroAndOneOnly) {
    const struct {
        uint32_t request, stored;
    } cases[] = {{0, 0}, {1, 1}, {2, 1}, {7, 1}};
    for (const auto &c : cases) {
        zesim::set_word(0x100, 4, 1);
        zesim::set_word(0x100, 72, 0xabcdef01);
        zesim::clear_log();
        EXPECT_EQ(ze_chip_set_upmode(c.request), 0u);
        EXPECT_EQ(zesim::word(0x100, 4), c.stored) << c.request;
        EXPECT_EQ(zesim::word(0x100, 72), 0xabcdef01u);
        EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{0x100, 0x101}));
    }
}

TEST_F(Chip, PrioritySelectionInitWritesItsTenWords) {
    zesim::set_word(0x100, 8, 0x5a);
    ASSERT_EQ(ze_chip_init_vlan_pri_select(), 0u);
    const uint32_t expected[] = {5, 0, 3, 0, 3, 0, 3, 0};
    for (uint32_t i = 0; i < 8; ++i) EXPECT_EQ(zesim::word(0x100, 12 + 4 * i), expected[i]) << i;
    EXPECT_EQ(zesim::word(0x100, 8), 0x5au);
    EXPECT_EQ(zesim::word(0x100, 4), 1u);
}

TEST_F(Chip, AccessModePassesAnyValue) {
    ASSERT_EQ(ze_chip_set_access_mode(0xfeedface), 0u);
    uint32_t mode = 0;
    ASSERT_EQ(ze_chip_get_access_mode(&mode), 0u);
    EXPECT_EQ(mode, 0xfeedfaceu);
    EXPECT_EQ(ze_chip_get_access_mode(nullptr), ZE_ERR_NULL_PTR);
}

TEST_F(Chip, IdentityVendorIsWholeWordOrLow16Bits) {
    zesim::set_word(0x102, 24, 0x12345678);
    zesim::set_word(0x102, 12, 0x00030004);
    uint32_t version = 0, vendor = 0, flag = 0;
    ASSERT_EQ(ze_chip_get_chip_version(&version, &vendor, &flag), 0u);
    EXPECT_EQ(version, 0x00030004u);
    EXPECT_EQ(vendor, 0x12345678u);
    EXPECT_EQ(flag, 1u);
    uint16_t vendor16 = 0;
    ASSERT_EQ(ze_chip_get_vendor(&vendor16), 0u);
    EXPECT_EQ(vendor16, 0x5678);
    ASSERT_EQ(ze_chip_get_version(&version), 0u);
    EXPECT_EQ(version, 0x00030004u);
}

TEST_F(Chip, NullOutputsSendNothing) {
    uint32_t a = 0, b = 0;
    EXPECT_EQ(ze_chip_get_chip_version(nullptr, &a, &b), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_chip_get_chip_version(&a, nullptr, &b), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_chip_get_chip_version(&a, &b, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_chip_get_vendor(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_chip_get_version(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_TRUE(traces().empty());
}

TEST_F(Chip, WatchdogOnlyTraces) {
    EXPECT_EQ(ze_chip_clr_watchdog(), 0u);
    EXPECT_TRUE(zesim::log().empty());
    auto recs = traces();
    ASSERT_EQ(recs.size(), 1u);
    EXPECT_STREQ(recs[0].file, "ze_chip.cpp");
    EXPECT_STREQ(recs[0].func, "ze_chip_clr_watchdog");
}

TEST_F(Chip, CommandsReachTheDriverAndBack) {
    uint32_t buf = 0, reply = 0;
    ASSERT_EQ(call("ze_adapter_cli_chip_set_upmode", &buf, 4, &reply), 0u);
    ASSERT_EQ(call("ze_adapter_cli_chip_get_upmode", &buf, 4, &reply), 0u);
    EXPECT_EQ(buf, 0u);
    uint16_t vendor = 0;
    ASSERT_EQ(call("ze_adapter_cli_chip_get_vendor", &vendor, 2, &reply), 0u);
    EXPECT_EQ(vendor, 0x5a45);
    zesim::set_word(0x100, 4, 3);  // the API's own failure still replies
    reply = 0;
    EXPECT_EQ(call("ze_adapter_cli_chip_get_upmode", &buf, 4, &reply), ZE_ERR_UNKNOWN_VALUE);
    EXPECT_EQ(reply, 4u);
}

TEST_F(Chip, RefusedRequestPrintsAndDoesNotTrace) {
    uint32_t buf[2] = {}, reply = 0xdead;
    EXPECT_EQ(ze_adapter_cli_chip_get_version(buf, 5, &reply), ZE_ERR_PARAM);
    EXPECT_EQ(reply, 0xdeadu);
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_THAT(console(), ::testing::MatchesRegex(
                               "\r\n\\[ERROR INPUT NULL PTR \\.\\./adapter_cli/ze_adatper_cli_chip\\.cpp [0-9]+\\]"
                               "!!!!!!!!!!!!!!!!!!\r\n"));
}

}  // namespace
