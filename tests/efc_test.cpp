// Extended flow classifier: rule conversion into key items, the free-run
// search, install blocks, rule ranges and deletes.
#include <algorithm>

#include "flow_fixture.h"

namespace {

using namespace zetest;
using EfcTest = FlowTest;

// Single keys of types 6 (0x800), 15 (6) and 7 (2): two items, the second
// half empty.
ze_efc_rule_s three_singles(uint32_t more_bits = 0, uint32_t n_base = 0, uint8_t igr_port = 0) {
    ze_efc_rule_s r = rule((1u << 7) | (1u << 10) | (1u << 15) | more_bits);
    r.n_base = n_base;
    r.key10 = 6;
    r.igr_port = igr_port;
    r.key7 = 0x0800;
    r.key15 = 2;
    return r;
}

// Installs a rule searching from `first`; returns its fid.
uint16_t install(const ze_efc_rule_s &r, uint32_t first = 1, const ze_efc_action_s &a = action(), uint32_t fwd = 0) {
    uint16_t fid = 0;
    EXPECT_EQ(ze_lsw_flow_set_efc(first, &r, &a, fwd, &fid), 0u);
    return fid;
}

// Key items of representative rules (item words are m1, m0, g1, g0, k1, k0)
// and, when given, the first debug lines of the conversion.
TEST_F(EfcTest, RuleToKeyItems) {
    ZE_LITTLE_ENDIAN_LAYOUT("key values are the rule's bytes copied into key words in memory order");
    auto check = [&](const char *name, const ze_efc_rule_s &r, const std::vector<ze_efc_item_s> &want,
                     uint32_t g0status, const std::vector<std::string> &want_lines = {}) {
        ze_host_trace_clear();
        ze_efc_item_s items[ZE_EFC_ITEM_COUNT] = {};
        uint8_t count = 0xff;
        ASSERT_EQ(ze_lsw_efc_get_attr(&r, items), 0u) << name;
        expect_debug_under("ze_lsw_efc_get_");
        auto lines = debug_lines();
        EXPECT_EQ(std::vector(lines.begin(), lines.begin() + std::min(lines.size(), want_lines.size())), want_lines)
            << name;
        ze_lsw_efc_count_itemnum(items, &count);
        ASSERT_EQ(count, want.size()) << name;
        for (size_t i = 0; i < want.size(); ++i)
            EXPECT_EQ(std::memcmp(&items[i], &want[i], sizeof items[i]), 0) << name << " item " << i;
        EXPECT_EQ(ui_g0status, g0status) << name;
    };
    ze_efc_rule_s macs = rule(0x6);  // each MAC address a whole item
    const uint8_t addr[12] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0xff, 0xff, 0xff, 0x00, 0xff, 0xf0};
    std::memcpy(macs.dmac, addr, 12);
    std::memset(macs.smac, 0xff, 12);
    // first address byte low in k0; ~0xffffff00 and ~0xfff0 as 16 bits
    check("dmac, smac", macs, {{4, 8, 1, 1, 0x5544, 0x33221100}, {0, 0, 2, 2, 0xffff, 0xffffffff}}, 0);
    // the closing line shows the item current after the placement
    check("odd singles leave a half item", three_singles(), {{0, 0, 15, 6, 6, 0x800}, {0, 0, 0, 7, 0, 2}}, 1,
          {"ze_lsw_efc_get_value() entry 0       6       2048    6       \n",
           "ze_lsw_efc_get_value() end 6       2048    0       0       \n",
           "ze_lsw_efc_get_value() entry 0       15      6       15      \n", "ze_lsw_efc_get_value() index:1  \n",
           "ze_lsw_efc_get_value() end 0       0       0       0       \n"});
    ze_efc_rule_s pairs = rule((1u << 3) | (1u << 4) | (1u << 18) | (1u << 19));
    pairs.dip = 0x0a000001, pairs.dip_mask = 0xffffff00, pairs.sip = 0xc0a80001, pairs.sip_mask = 0xffff0000;
    pairs.key18_19 = 0x1234, pairs.key18_19_masknum = 5;
    check("ipv4 pair, counted pair", pairs, {{16, 8, 4, 3, 0xc0a80001, 0x0a000001}, {5, 5, 17, 11, 0x1234, 0x1234}}, 0);
    check("lone address", ip_rule(0x0a000001), {{0, 0, 0, 3, 0, 0x0a000001}}, 1,
          {"ze_lsw_efc_get_masknum() entry ui_bitmask = 0\r\n", "~~~dip = 0xa000001 \r\n",
           "~ui_dipmask = 0xffffffff \r\n", "~ui_m0 = 0x0 \r\n"});
    check("no keys", rule(0), {}, 0);
    check("ingress port only", rule(1), {}, 0);
    check("bits past 21", rule(3u << 22), {}, 0);
}

TEST_F(EfcTest, MaskCountStopsAtTheWordWidthAndPlacementAtTheListEnd) {
    const uint32_t cases[][2] = {{0, 0}, {0xfe, 0}, {0xff, 8}, {0x7fffffff, 31}, {0xffffffff, 32}};
    for (const auto &c : cases) {
        uint32_t n = 99;
        EXPECT_EQ(ze_lsw_efc_get_masknum(c[0], &n), 0u);
        EXPECT_EQ(n, c[1]) << std::hex << c[0];
    }
    EXPECT_EQ(ze_lsw_efc_get_masknum(1, nullptr), 31u);
    ze_efc_item_s items[ZE_EFC_ITEM_COUNT] = {};
    uint8_t index = ZE_EFC_ITEM_COUNT;  // key placement never writes past the list
    EXPECT_EQ(ze_lsw_efc_get_value(&index, items, 1, 1, 1), 18u);
    EXPECT_EQ(ze_lsw_efc_get_value(nullptr, items, 1, 1, 1), 31u);
    index = ZE_EFC_ITEM_COUNT - 1;  // completing the last item reads nothing past it
    ui_g0status = 1;
    EXPECT_EQ(ze_lsw_efc_get_value(&index, items, 1, 1, 1), 0u);
    EXPECT_EQ(debug_lines().back(), "ze_lsw_efc_get_value() end 0       0       0       0       \n");
}

// Free-run search: fids in use given as ranges, then the search.
TEST_F(EfcTest, FreeRunSearch) {
    struct Case {
        const char *name;
        std::vector<std::pair<uint32_t, uint32_t>> used;
        uint32_t first, count, result;
        uint16_t fid;
    };
    const Case cases[] = {
        {"first free", {}, 1, 1, 0, 1},
        {"skips used", {{1, 2}}, 1, 1, 0, 3},
        {"run rejected at a group boundary is forgotten", {{0, 22}, {29, 255}}, 0, 3, 0, 26},
        {"run inside a group", {{0, 22}}, 0, 2, 0, 23},
        {"405 starts at 1", {}, 405, 1, 0, 1},
        {"first cut to 8 bits", {}, 300, 1, 0, 44},
        {"a run counted through the wrap is rejected", {{3, 254}}, 255, 2, 0, 1},
        {"no room anywhere", {{0, 255}}, 0, 1, 16, 0xffff},
        {"longer than a group", {}, 0, 26, 16, 0xffff},
        {"first past 405", {}, 406, 1, 18, 0xffff},
    };
    for (const Case &c : cases) {
        std::memset(st_efcservice, 0, sizeof st_efcservice);
        for (auto [from, to] : c.used) occupy_fids(from, to);
        uint16_t fid = 0xffff;
        EXPECT_EQ(ze_lsw_efc_get_fid(c.first, c.count, &fid), c.result) << c.name;
        EXPECT_EQ(fid, c.fid) << c.name;
    }
}

// fid range: statuses and eofs of a group, then the start of the rule
// ending at the fid.
TEST_F(EfcTest, RuleRangeWalksBackToThePreviousRule) {
    occupy_fids(50, 56);
    occupy_fids(75, 79);
    st_efcservice[52].eof = st_efcservice[56].eof = 1;
    const uint32_t cases[][2] = {{52, 50}, {56, 53}, {50, 50}, {60, 60}, {57, 57}, {79, 75}};
    for (const auto &c : cases) {
        uint16_t start = 0;
        EXPECT_EQ(ze_lsw_efc_get_fid_range(c[0], &start), 0u);
        EXPECT_EQ(start, c[1]) << c[0];
    }
}

// One block per item with eof on the last; a rule without keys still takes
// one entry.
TEST_F(EfcTest, InstallWritesOneBlockPerItemWithEofOnTheLast) {
    ZE_LITTLE_ENDIAN_LAYOUT("key values are the rule's bytes copied into key words in memory order");
    ze_efc_action_s a = action((1u << 12) | (1u << 2));
    a.egress_port = 5, a.ext = 0x11, a.spri = 3, a.svlan = 200;
    EXPECT_EQ(install(three_singles(1u << 0, 1, 2), 1, a, 4), 2);
    expect_debug_under("ze_lsw_");
    ASSERT_EQ(zesim::commands(), (std::vector<uint32_t>{0x505, 0x505}));
    auto writes = entries_of(0x505);
    // offset -> value of the first and the second entry
    const uint32_t expect[][3] = {
        {0, 1, 2},     {4, 1, 2},      {8, 1, 1},       {12, 0, 1},       {16, 6, 7},   {20, 0x800, 2}, {24, 0, 0},
        {28, 3, 3},    {32, 15, 0},    {36, 6, 0},      {40, 0, 0},       {44, 3, 3},   {48, 0x4, 0x4}, {84, 0, 0},
        {96, 1, 1},    {100, 200, 200}, {112, 1, 1},    {116, 3, 3},      {120, 4, 4},  {124, 0x20, 0x20},
        {152, 7, 7},   {156, 1, 1},    {164, 0x11, 0x11}, {196, 5, 5},    {200, 5, 5},
    };
    for (const auto &e : expect) {
        EXPECT_EQ(word_at(writes[0].sent, e[0]), e[1]) << "first, offset " << e[0];
        EXPECT_EQ(word_at(writes[1].sent, e[0]), e[2]) << "second, offset " << e[0];
    }
    EXPECT_EQ(std::tuple(st_efcservice[1].status, st_efcservice[1].eof, st_efcservice[2].eof), std::tuple(1, 0, 1));
    EXPECT_EQ(install(rule(0)), 3);
    ASSERT_EQ(entries_of(0x505).size(), 3u);
    EXPECT_EQ(word_at(entries_of(0x505)[2].sent, 12), 1u);  // eof
}

TEST_F(EfcTest, ActionGroupsKeepTheirHighestBit) {
    const uint32_t cases[][4] = {  // mask, forward action, offset, value
        {(1u << 15) | (1u << 17), 0, 88, 3}, {(1u << 0) | (1u << 1), 0, 84, 2}, {(1u << 7) | (1u << 11), 0, 104, 5},
        {1u << 13, 0, 96, 2},                {0, 12, 120, 12},                 {0, 13, 120, 0},
    };
    for (const auto &c : cases) {
        uint8_t block[216] = {};
        ze_efc_action_s a = action(c[0]);
        ASSERT_EQ(ze_lsw_efc_get_fact(&a, c[1], block + 84), 0u);
        EXPECT_EQ(word_at(zesim::Bytes(block, block + 216), c[2]), c[3]) << std::hex << c[0] << " fwd " << c[1];
    }
}

// Only the forward codes 0..12 reach the act word; any other code keeps
// what the block held, while every other action word is written.
TEST_F(EfcTest, UnknownForwardActionKeepsTheActWord) {
    const uint32_t cases[][2] = {{13, 0x5a5a5a5a}, {0xffffffff, 0x5a5a5a5a}, {12, 12}, {0, 0}};  // code, act
    for (const auto &c : cases) {
        zesim::Bytes block(216, 0x5a);
        ze_efc_action_s a = action();
        uint32_t act = 0x5a5a5a5a;
        EXPECT_EQ(ze_lsw_efc_get_fwd_act(c[0], &act), 0u);
        EXPECT_EQ(act, c[1]) << "get_fwd_act " << c[0];
        ASSERT_EQ(ze_lsw_efc_get_fact(&a, c[0], block.data() + 84), 0u);
        EXPECT_EQ(word_at(block, 120), c[1]) << "get_fact " << c[0];
        EXPECT_EQ(word_at(block, 152), 7u);
    }
    EXPECT_EQ(ze_lsw_efc_get_fwd_act(1, nullptr), ZE_ERR_NULL_PTR);
}

TEST_F(EfcTest, InstallFailuresFreeTheItemList) {
    ze_efc_rule_s r = rule(1u << 7);
    ze_efc_action_s a = action();
    uint16_t fid = 0xffff;
    ze_host_malloc_fail_at(0);
    EXPECT_EQ(ze_lsw_flow_set_efc(1, &r, &a, 0, &fid), 27u);
    EXPECT_TRUE(zesim::commands().empty());
    zesim::fail(0x505, 0xf0000101);
    EXPECT_EQ(ze_lsw_flow_set_efc(1, &r, &a, 0, &fid), 18u);
    zesim::clear_faults();
    occupy_fids(0, 255);
    EXPECT_EQ(ze_lsw_flow_set_efc(1, &r, &a, 0, &fid), 0xffffffffu);
    EXPECT_EQ(ze_lsw_flow_set_efc(1, &r, nullptr, 0, &fid), 0xffffffffu);
    EXPECT_EQ(fid, 0xffff);
    EXPECT_EQ(ze_lsw_flow_set_efc(1, nullptr, &a, 0, &fid), 31u);
}

TEST_F(EfcTest, DeleteRemovesTheWholeRuleFromItsGroupStart) {
    ze_efc_rule_s r = rule((1u << 7) | (1u << 8) | (1u << 9) | (1u << 10) | (1u << 11));
    ze_efc_action_s a = action();
    ASSERT_EQ(install(r, 50), 52);
    ASSERT_EQ(ze_lsw_flow_save_service(&r, &a, 0, 52), 0u);
    zesim::clear_log();
    EXPECT_EQ(ze_lsw_flow_delete_efc(51), 14u);  // not the rule's last entry
    EXPECT_TRUE(zesim::commands().empty());
    ASSERT_EQ(ze_lsw_flow_delete_efc(52), 0u);
    auto w = entries_of(0x505);
    ASSERT_EQ(w.size(), 3u);
    for (uint32_t i = 0; i < 3; ++i) {  // fid, fid, valid 0, n0 = n1 = 2
        expect_words(w[i].sent, {{0, 50 + i}, {4, 50 + i}, {8, 0}, {28, 2}, {44, 2}});
        EXPECT_EQ(st_efcservice[50 + i].status, 0);
    }
    EXPECT_EQ(ze_lsw_flow_delete_efc(405), 0xffffffffu);
}

TEST_F(EfcTest, DeleteAllWritesEveryEntryInUseThenClearsTheShadow) {
    occupy_fids(3, 4);
    st_efcservice[300].status = 1;
    zesim::fail(0x505, 0x77, 2);  // the second write fails: the shadow stays
    EXPECT_EQ(ze_lsw_flow_efc_delete_all(0, 0, 0, 0), 0xffffffffu);
    EXPECT_EQ(st_efcservice[3].status, 1);
    zesim::clear_faults();
    zesim::clear_log();
    ASSERT_EQ(ze_lsw_flow_efc_delete_all(0, 0, 0, 0), 0u);
    auto w = entries_of(0x505);
    ASSERT_EQ(w.size(), 3u);
    EXPECT_EQ(word_at(w[2].sent, 0), 300u);
    const auto *bytes = reinterpret_cast<uint8_t *>(st_efcservice);
    EXPECT_EQ(std::count(bytes, bytes + sizeof st_efcservice, 0), static_cast<long>(sizeof st_efcservice));
}

TEST_F(EfcTest, ServiceShadowSearchAndRanges) {
    ze_efc_rule_s r = rule(1u << 7);
    ze_efc_action_s a = action(4);
    uint16_t fid = 0;
    EXPECT_EQ(ze_lsw_flow_save_service(&r, &a, 2, 405), 18u);
    EXPECT_EQ(last_trace_of("ze_lsw_flow_save_service").v[0], 18u);  // the result, not the fid
    EXPECT_EQ(ze_lsw_flow_save_service(nullptr, &a, 2, 7), 31u);
    ASSERT_EQ(ze_lsw_flow_save_service(&r, &a, 2, 7), 0u);
    EXPECT_EQ(ze_lsw_flow_get_service_func(&r, &a, 2, &fid), 0u);
    EXPECT_EQ(fid, 7);
    EXPECT_EQ(ze_lsw_flow_get_service_func(&r, &a, 3, &fid), 14u);
    EXPECT_EQ(ze_lsw_flow_delete_service(405), 18u);
    EXPECT_EQ(ze_lsw_efc_get_status(405, nullptr, nullptr), 18u);
    EXPECT_EQ(last_trace_of("ze_lsw_efc_get_status").v[0], 405u);  // the status read records the fid
    EXPECT_EQ(ze_lsw_efc_set_status(405, 1, 1), 18u);
}

}  // namespace
