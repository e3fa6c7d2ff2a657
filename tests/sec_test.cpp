// IP filter modes and rules with their shadow, source-MAC lists and the
// security listings.
#include <cstring>

#include "test_support.h"
#include "ze_lsw_sec.h"
#include "ze_lsw_sec_status.h"

namespace {

using namespace zetest;

class SecTest : public SimTest {
protected:
    static ze_lsw_ip_filter_rule_s rule(uint32_t field, uint32_t ipversion = 0) {
        ze_lsw_ip_filter_rule_s r{};
        r.porttype = 1, r.field = field, r.ipversion = ipversion, r.mask = 0x118;
        for (uint8_t i = 0; i < 16; ++i) r.ip[i] = static_cast<uint8_t>(i + 1);
        return r;
    }
    static uint32_t add(ze_lsw_ip_filter_rule_s r) { return ze_lsw_sec_add_ip_filter_table(&r); }
    static uint32_t used_slots() {
        uint32_t n = 0;
        for (const auto &s : st_ip_filter_status) n += s.used;
        return n;
    }
    static void fill_table() {
        std::memset(st_ip_filter_status, 0, sizeof st_ip_filter_status);
        for (uint32_t i = 0; i < ZE_LSW_IP_FILTER_COUNT; ++i) ASSERT_EQ(add(rule(100 + i)), 0u);
    }
    static uint32_t sent_word(uint32_t off) { return word_at(entries_of(0x409).back().sent, off); }
};

TEST_F(SecTest, IpFilterModesBySelector) {
    for (uint32_t sel : {0u, 1u, 2u}) EXPECT_EQ(ze_lsw_sec_set_ip_filtermode(sel, 3 + sel), 0u);
    EXPECT_EQ(zesim::word(0x40a, 0), 3u); EXPECT_EQ(zesim::word(0x40a, 4), 4u);
    EXPECT_EQ(zesim::word(0x40a, 8), 0u);  // selector 2 writes nothing
    uint32_t mode = 9;
    EXPECT_EQ(ze_lsw_sec_get_ip_filtermode(1, &mode), 0u); EXPECT_EQ(mode, 4u);
    EXPECT_EQ(ze_lsw_sec_get_ip_filtermode(2, &mode), 0u); EXPECT_EQ(mode, 4u);
}

// Rules go to the first free index; the address bytes sent follow the IP
// version while the shadow keeps the caller's 32 bytes.
TEST_F(SecTest, RuleAddSendsTheAddressByVersionAndKeepsTheCallersBytes) {
    for (auto [index, address_bytes] : {std::pair{0u, 4u}, {1u, 16u}, {2u, 0u}}) {
        const auto r = rule(index, index);  // field and version alike
        EXPECT_EQ(add(r), 0u);
        const zesim::Bytes sent = entries_of(0x409).back().sent;
        for (auto [off, v] : {std::pair{0u, index}, {4u, 1u}, {8u, 1u}, {16u, index}, {36u, 0x118u}})
            EXPECT_EQ(word_at(sent, off), v) << "@" << off;
        for (uint32_t i = 0; i < 16; ++i) EXPECT_EQ(sent[20 + i], i < address_bytes ? i + 1 : 0u) << index;
        EXPECT_EQ(0, std::memcmp(&st_ip_filter_status[index].rule, &r, sizeof r));
    }
}

TEST_F(SecTest, DuplicateFullAndFailedRulesAreRefused) {
    auto r = rule(7), other = rule(8);
    uint32_t index = 99;
    EXPECT_EQ(add(r), 0u); EXPECT_EQ(add(r), 0xffffffffu);
    EXPECT_EQ(ze_lsw_sec_get_ip_filter_table_index(&r, &index), ZE_ERR_EXISTS); EXPECT_EQ(index, 0u);
    EXPECT_EQ(entries_of(0x409).size(), 1u);
    zesim::fail(0x409, 0x1234);
    EXPECT_EQ(add(other), 0xffffffffu); EXPECT_EQ(used_slots(), 1u);
    zesim::clear_faults();
    fill_table();
    index = 99;
    EXPECT_EQ(ze_lsw_sec_get_ip_filter_table_index(&other, &index), ZE_ERR_FULL); EXPECT_EQ(index, 99u);
    EXPECT_EQ(add(other), 0xffffffffu);
    EXPECT_EQ(ze_lsw_sec_get_ip_filter_table_index(nullptr, &index), ZE_ERR_NULL_PTR);
}

// Unknown rules: the first free slot (1) is retired, harmlessly; with a full
// table rule 0 goes, and a failing driver changes nothing in the result.
TEST_F(SecTest, DeleteAlwaysSucceedsAndRetiresTheSlotTheSearchNames) {
    auto b = rule(2), unknown = rule(3);
    add(rule(1)); add(b);
    EXPECT_EQ(ze_lsw_sec_del_ip_filter_table(&b), 0u);
    EXPECT_EQ(sent_word(0), 1u); EXPECT_EQ(sent_word(4), 0u); EXPECT_EQ(sent_word(12), 5u);
    EXPECT_EQ(entries_of(0x408).size(), 1u); EXPECT_EQ(used_slots(), 1u);
    EXPECT_EQ(ze_lsw_sec_del_ip_filter_table(&unknown), 0u);
    EXPECT_EQ(sent_word(0), 1u); EXPECT_EQ(st_ip_filter_status[0].used, 1u);
    fill_table();
    zesim::fail(0x409, 0x1234);
    EXPECT_EQ(ze_lsw_sec_del_ip_filter_table(&unknown), 0u);
    EXPECT_EQ(sent_word(0), 0u); EXPECT_EQ(st_ip_filter_status[0].used, 0u); EXPECT_EQ(used_slots(), 63u);
}

TEST_F(SecTest, BlackMacListFullDuplicateAndMissing) {
    uint8_t mac[6] = {0x00, 0xaa, 0xbb, 0xcc, 0xdd, 0x00};
    auto kept_byte = [] { return zesim::block(0x402, {3})[12 + 12 * 4 + 5]; };  // entry 4's last MAC byte
    for (mac[5] = 0; mac[5] < 8; ++mac[5]) ASSERT_EQ(ze_lsw_sec_add_blackmac(3, mac), 0u);
    EXPECT_EQ(ze_lsw_sec_add_blackmac(3, mac), ZE_ERR_BLACKMAC_FULL);
    const size_t writes = entries_of(0x403).size();
    ze_host_trace_clear();
    mac[5] = 4;
    EXPECT_EQ(ze_lsw_sec_add_blackmac(3, mac), 0u);  // already listed
    EXPECT_EQ(entries_of(0x403).size(), writes);
    ASSERT_EQ(traces().size(), 1u);
    EXPECT_EQ(traces()[0].result, ZE_ERR_EXISTS);
    EXPECT_EQ(ze_lsw_sec_del_blackmac(3, mac), 0u);
    EXPECT_EQ(zesim::word(0x402, 8 + 12 * 4, {3}), 0u); EXPECT_EQ(kept_byte(), 4u);  // the MAC bytes stay
    EXPECT_EQ(ze_lsw_sec_del_blackmac(3, mac), ZE_ERR_BLACKMAC_MISSING);
    mac[5] = 8;
    EXPECT_EQ(ze_lsw_sec_add_blackmac(3, mac), 0u); EXPECT_EQ(kept_byte(), 8u);  // takes the freed entry
    EXPECT_EQ(ze_lsw_sec_get_blackmode(3, nullptr), ZE_ERR_NULL_PTR);
}

TEST_F(SecTest, SourceMacListing) {
    const uint8_t mac[6] = {0x00, 0x1a, 0x2b, 0x3c, 0x4d, 0x5e};
    ze_lsw_sec_add_blackmac(1, mac);
    ze_lsw_sec_set_blackmode(1, 2); ze_lsw_sec_set_blackmode(6, 3);
    ze_lsw_sec_set_blackmode(8, 9);  // no name
    EXPECT_EQ(ze_lsw_sec_diagnose(0), 0u);
    EXPECT_EQ(take_console(), "GE0     : IGNORE          \r\n\r\n"
                              "FE1     : BACK            \r\n00:1a:2b:3c:4d:5e\r\n\r\n"
                              "FE2     : IGNORE          \r\n\r\nFE3     : IGNORE          \r\n\r\n"
                              "FE4     : IGNORE          \r\n\r\nPON     : IGNORE          \r\n\r\n"
                              "CPU     : THRU            \r\n\r\n        : IGNORE          \r\n\r\n"
                              "        :                 \r\n\r\n");
    zesim::fail(0x402, 0x1234, 2);
    EXPECT_EQ(ze_lsw_sec_diagnose(0), 0u); EXPECT_EQ(console(), "GE0     : IGNORE          \r\n\r\n");
}

// The address prints from its last byte to its first; the mask column is
// its low byte.
TEST_F(SecTest, IpFilterListing) {
    auto r = rule(2);
    r.mask = 0x1ff;
    add(r); add(rule(3, 1));
    EXPECT_EQ(ze_lsw_sec_diagnose(1), 0u);
    EXPECT_EQ(take_console(),
              "index     porttype  field     ipversion mask      ip        \r\n dmask = 511 smask = 511 \r\n"
              "0         1         2         0         255       0.0.0.0.0.0.0.0.0.0.0.0.4.3.2.1\r\n"
              " dmask = 280 smask = 280 \r\n"
              "1         1         3         1         24        16.15.14.13.12.11.10.9.8.7.6.5.4.3.2.1\r\n");
    ze_lsw_ip_filter_rule_s got;
    EXPECT_EQ(ze_lsw_sec_diagnose(2), 0u);
    EXPECT_EQ(ze_lsw_sec_get_ip_filter_table(2, &got), ZE_ERR_NOT_FOUND); EXPECT_EQ(console(), "");
}

}  // namespace
