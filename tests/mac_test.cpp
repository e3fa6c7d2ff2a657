// L2 attributes, static entries, the item read-out and the table listing.
#include <cstring>

#include "test_support.h"
#include "ze_lsw_mac.h"

namespace {

using namespace zetest;

class MacTest : public SimTest {
protected:
    static uint32_t l2(uint32_t offset) { return zesim::word(0x700, offset); }
    // An address-table entry stored straight into the simulated table.
    static void put_item(uint32_t index, const uint8_t (&mac)[6], uint32_t vlan, uint32_t egress) {
        zesim::Bytes b(36, 0);
        std::memcpy(b.data(), &index, 4); std::memcpy(b.data() + 4, mac, 6);
        std::memcpy(b.data() + 12, &vlan, 4); std::memcpy(b.data() + 24, &egress, 4);
        zesim::store_field(b.data() + 28, 4, 1), zesim::store_field(b.data() + 32, 4, 1);  // age_en, valid
        zesim::store(0x704, b);
    }
};

TEST_F(MacTest, AgeTimeIsClampedBelowOneDay) {
    for (auto [given, stored] : {std::pair{86400u, 86399u}, {86399u, 86399u}, {0u, 0u}, {0xffffffffu, 86399u}}) {
        uint32_t got = 1;
        EXPECT_EQ(ze_lsw_mac_set_agetime(given), 0u); EXPECT_EQ(l2(172), stored) << given;
        EXPECT_EQ(ze_lsw_mac_get_agetime(&got), 0u); EXPECT_EQ(got, stored);
    }
}

// Each per-port array has eight words: port 8 reaches the next array.
TEST_F(MacTest, PerPortWordsAndPortEightReachingTheNextArray) {
    uint16_t count = 0;
    uint8_t enable = 0;
    EXPECT_EQ(ze_lsw_mac_set_limitcount(2, 0x12345), 0u); EXPECT_EQ(l2(72 + 8), 0x12345u);
    EXPECT_EQ(ze_lsw_mac_get_limitcount(2, &count), 0u); EXPECT_EQ(count, 0x2345u);
    EXPECT_EQ(ze_lsw_mac_set_learn(8, 1), 0u); EXPECT_EQ(l2(40), 1u);
    EXPECT_EQ(ze_lsw_mac_get_limitenable(0, &enable), 0u); EXPECT_EQ(enable, 1u);
    EXPECT_EQ(ze_lsw_mac_set_limitenable(8, 7), 0u);
    EXPECT_EQ(ze_lsw_mac_get_limitcount(0, &count), 0u); EXPECT_EQ(count, 7u);
}

TEST_F(MacTest, PortIsCheckedBeforeTheOutputAndNullOutputsSendNothing) {
    uint16_t count;
    EXPECT_EQ(ze_lsw_mac_set_learn(9, 1), 0xffffffffu);
    EXPECT_EQ(ze_lsw_mac_get_limitenable(9, nullptr), 0xffffffffu);
    EXPECT_EQ(ze_lsw_mac_get_limitenable(1, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_mac_get_limitcount(1, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_mac_get_limitcount(9, &count), 0xffffffffu);
    EXPECT_EQ(ze_lsw_mac_get_learn_fail(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_mac_get_ageenable(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(zesim::commands().empty());
}

TEST_F(MacTest, StaticEntriesRoundTripThroughTheTable) {
    ze_lsw_l2_entry_s e{0, 1, 100, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, 1, 0, 2}, got = e;
    EXPECT_EQ(ze_lsw_mac_add(&e), 0u);
    const zesim::Bytes sent = entries_of(0x712).at(0).sent;
    EXPECT_EQ(0, std::memcmp(sent.data(), e.mac, 6));
    for (auto [off, v] : {std::pair{8u, 100u}, {12u, 1u}, {20u, 0x04u}, {24u, 1u}})
        EXPECT_EQ(word_at(sent, off), v) << "@" << off;

    got.untag = got.age_en = got.port = 0;
    EXPECT_EQ(ze_lsw_mac_get(&got), 0u);
    EXPECT_EQ(got.port, 2u); EXPECT_EQ(got.untag, 1u); EXPECT_EQ(got.age_en, 1u);
    EXPECT_EQ(ze_lsw_mac_del(e.mac, 100), 0u); EXPECT_EQ(ze_lsw_mac_get(&got), 0xffffffffu);

    e.port = 7;  // no bitmap bit
    EXPECT_EQ(ze_lsw_mac_add(&e), 0u); EXPECT_EQ(word_at(entries_of(0x712).back().sent, 20), 0u);
    got.port = 5;
    EXPECT_EQ(ze_lsw_mac_get(&got), 0u); EXPECT_EQ(got.port, 5u);  // an empty bitmap names no port
}

// A unicast item reports the port of its single-bit bitmap, a 01:00:5e one
// the raw bitmap, any other (33:33, two bits) keeps the caller's port; the
// listing shows every valid index up to a failed read.
TEST_F(MacTest, ItemReadAndListing) {
    put_item(0, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, 100, 0x04);
    put_item(5, {0x01, 0x00, 0x5e, 0x7f, 0x00, 0x0a}, 4000, 0x61);
    put_item(6, {0x33, 0x33, 0x00, 0x00, 0x00, 0x01}, 30, 0x21);
    for (auto [index, port, vlan] : {std::tuple{0u, 2u, 100u}, {5u, 0x61u, 4000u}, {6u, 99u, 30u}}) {
        ze_lsw_l2_entry_s e{};
        e.port = 99;
        EXPECT_EQ(ze_lsw_mac_get_l2item(index, &e), 0u);
        EXPECT_EQ(e.valid, 1u); EXPECT_EQ(e.port, port) << index; EXPECT_EQ(e.vlan, vlan); EXPECT_EQ(e.age_en, 1u);
    }
    ze_lsw_l2_entry_s untouched, e;
    std::memset(&untouched, 0xab, sizeof untouched); e = untouched;
    EXPECT_EQ(ze_lsw_mac_get_l2item(7, &e), 0u); EXPECT_EQ(0, std::memcmp(&e, &untouched, sizeof e));

    const std::string head = "index   mac                 vlan    fid     egr     age_en     untag   \r\n"
                             "0       00:11:22:33:44:55   100     0       4       1       0       \r\n";
    EXPECT_EQ(ze_lsw_mac_diagnose(0), 0u);
    EXPECT_EQ(take_console(), head + "5       01:00:5e:7f:00:0a   4000    0       97      1       0       \r\n"
                                     "6       33:33:00:00:00:01   30      0       33      1       0       \r\n");
    EXPECT_EQ(entries_of(0x704).size(), 4u + 1024u);
    zesim::fail(0x704, 0x1234, 3);
    EXPECT_EQ(ze_lsw_mac_diagnose(0), 0u); EXPECT_EQ(take_console(), head);
    EXPECT_EQ(ze_lsw_mac_diagnose(1), 0u); EXPECT_EQ(console(), "");
}

}  // namespace
