// The mac, sec and vlan command handlers: argument order, strict failure
// folding, and the unchecked ageing-time and IP filter rule commands.
#include <cstring>

#include "test_support.h"
#include "ze_lsw_sec_status.h"
#include "ze_lsw_vlan_cfg.h"

namespace {

class CliL2Test : public zetest::SimTest {
protected:
    void SetUp() override {
        SimTest::SetUp();
        std::memset(buf_, 0, sizeof buf_);
    }
    uint32_t run(const std::string &suffix, uint32_t len) {
        reply_ = 0xdeadbeef;
        return call("ze_adapter_cli_" + suffix, buf_, len, &reply_);
    }
    void put(uint32_t off, uint32_t v, uint32_t width = 4) { zesim::store_field(buf_ + off, width, v); }
    uint32_t at(uint32_t off) const { return zetest::word_at(zesim::Bytes(buf_, buf_ + sizeof buf_), off); }

    alignas(4) uint8_t buf_[64];
    uint32_t reply_ = 0;
};

// The VLAN at offset 4 is the API's first argument; the tag commands take
// port u16 at 0, VLAN u16 at 4 and the mode byte at 6.
TEST_F(CliL2Test, RequestFieldsReachTheApiInItsOrder) {
    put(0, 3); put(4, 100);
    EXPECT_EQ(run("lsw_vlan_add_port", 8), 0u); EXPECT_EQ(reply_, 0xdeadbeefu);
    EXPECT_EQ(zesim::word(0x400, 16, {100}), 1u);
    put(0, 2, 2); put(4, 100, 2); put(6, 1, 1);
    EXPECT_EQ(run("lsw_vlan_set_tag", 8), 0u); EXPECT_EQ(zesim::word(0x343, 12, {100}), 1u);
    put(6, 0, 1);
    EXPECT_EQ(run("lsw_vlan_get_tag", 8), 0u); EXPECT_EQ(buf_[6], 1u);
    put(0, 100, 2);  // VLAN u16 at 0, the bitmap replied at 4
    EXPECT_EQ(run("lsw_vlan_get_port", 8), 0u); EXPECT_EQ(at(4), 0x08u);
}

// Port 9 (18 from the API) and an empty rule index (14) alike become
// 0xffffffff, with no reply length.
TEST_F(CliL2Test, StrictFamiliesFoldFailuresAndReplyOnlyOnSuccess) {
    for (auto [suffix, len, first_word] : {std::tuple{"lsw_mac_get_limitcount", 8u, 9u},
                                           {"lsw_vlan_get_vlanfilter", 8u, 9u},
                                           {"lsw_sec_get_ip_filtertable", 36u, 0u}}) {
        put(0, first_word);
        EXPECT_EQ(run(suffix, len), 0xffffffffu) << suffix; EXPECT_EQ(reply_, 0xdeadbeefu) << suffix;
    }
}

TEST_F(CliL2Test, AgeTimeCommandsTakeTheBufferUnchecked) {
    put(0, 100000);
    EXPECT_EQ(run("lsw_mac_set_agetime", 0), 0u); EXPECT_EQ(reply_, 0xdeadbeefu);
    put(0, 0);
    EXPECT_EQ(run("lsw_mac_get_agetime", 77), 0u); EXPECT_EQ(at(0), 86399u); EXPECT_EQ(reply_, 4u);
    EXPECT_EQ(console(), "");
}

TEST_F(CliL2Test, RuleCommandsDumpTheRequestAndReplyEightBytes) {
    put(0, 1); put(4, 2); put(12, 0x18); put(16, 0xc0a8010a);  // porttype, field, mask, 192.168.1.10
    EXPECT_EQ(run("lsw_sec_add_ip_filtertable", 3), 0u); EXPECT_EQ(reply_, 8u);
    // The dump shows the request's bytes as the processor holds its words.
    char want[160];
    std::snprintf(want, sizeof want,
                  zetest::kBigEndian
                      ? "\r\n[0x%08x] : 00 00 00 01 00 00 00 02 00 00 00 00 00 00 00 18 "
                        "\r\n[0x%08x] : c0 a8 01 0a 00 00 00 00 00 00 00 00 00 00 00 00 \r\n"
                      : "\r\n[0x%08x] : 01 00 00 00 02 00 00 00 00 00 00 00 18 00 00 00 "
                        "\r\n[0x%08x] : 0a 01 a8 c0 00 00 00 00 00 00 00 00 00 00 00 00 \r\n",
                  static_cast<uint32_t>(reinterpret_cast<uintptr_t>(buf_)),
                  static_cast<uint32_t>(reinterpret_cast<uintptr_t>(buf_ + 16)));
    EXPECT_EQ(take_console(), want); EXPECT_EQ(st_ip_filter_status[0].used, 1u);
    EXPECT_EQ(run("lsw_sec_add_ip_filtertable", 32), 0xffffffffu); EXPECT_EQ(reply_, 0xdeadbeefu);  // duplicate
    EXPECT_EQ(run("lsw_sec_del_ip_filtertable", 0), 0u); EXPECT_EQ(reply_, 8u);
    EXPECT_EQ(st_ip_filter_status[0].used, 0u);
}

}  // namespace
