// The operator shell: command lines, request building and printed replies.
#include <sstream>

#include "shell.h"
#include "test_support.h"
#include "values.h"

namespace {

class ShellTest : public zetest::SimTest {
protected:
    std::string run(const std::string &line, bool expect_ok = true) {
        std::ostringstream out;
        {
            zesh::Shell sh(out);
            EXPECT_EQ(sh.run_line(line), expect_ok) << line;
        }
        return out.str();
    }
};

TEST_F(ShellTest, RunsCommandsWithOrWithoutPrefix) {
    EXPECT_EQ(run("chip_set_upmode 0; ze_adapter_cli_chip_get_upmode"),
              "chip_set_upmode: result 0 (ok)\n"
              "chip_get_upmode: result 0 (ok)\n"
              "  mode = 0 (0x0)\n");
}

TEST_F(ShellTest, FieldsByNameAndRawHex) {
    run("chip_set_access_mode mode=0x1f");
    EXPECT_EQ(zesim::word(0x100, 8), 0x1fu);
    run(std::string("chip_set_access_mode --hex ") + (zetest::kBigEndian ? "00000005" : "05000000"));
    EXPECT_EQ(zesim::word(0x100, 8), 5u);
}

TEST_F(ShellTest, WrongLengthShowsTheHandlersRefusal) {
    std::string out = run("chip_get_upmode --len 5");
    EXPECT_NE(out.find("[ERROR INPUT NULL PTR ../adapter_cli/ze_adatper_cli_chip.cpp"), std::string::npos);
    EXPECT_NE(out.find("chip_get_upmode: result 18 (invalid parameter)\n"), std::string::npos);
    EXPECT_EQ(out.find("mode ="), std::string::npos);
}

TEST_F(ShellTest, DriverFailureFromInjectedFault) {
    std::string out = run("sim fail 0x100 7; chip_get_access_mode");
    EXPECT_NE(out.find("result 0xffffffff (failed; the code does not say why)"), std::string::npos);
    // the chip family replies even on failure
    EXPECT_NE(out.find("  mode = 0 (0x0)"), std::string::npos);
}

TEST_F(ShellTest, RejectsWhatItCannotRun) {
    const char *bad[] = {"no_such_command", "chip_set_upmode 1 2", "chip_set_upmode x",
                         "chip_set_upmode bogus=1", "help nothing", "sim nothing", "trace x",
                         "sim set 0x100 73 1", "sim set 0x999 0 1", "api", "api ze_nothing",
                         "api ze_lsw_port_set_mtu 3", "chip_get_upmode mode=1"};
    for (const char *line : bad) run(line, false);
    EXPECT_TRUE(zesim::commands().empty());
}

TEST_F(ShellTest, HelpGroupsCommandsByFamily) {
    std::string all = run("help");
    size_t chip = all.find("\nchip: "), port = all.find("\nport: ");
    ASSERT_NE(chip, std::string::npos);
    ASSERT_NE(port, std::string::npos);
    size_t mtu = all.find("  lsw_port_set_mtu ");
    EXPECT_GT(mtu, port);
    EXPECT_LT(all.find("  chip_get_version "), port);
    EXPECT_NE(all.find("sim fail"), std::string::npos);
    std::string family = run("help vlan");
    EXPECT_EQ(family.find("chip_"), std::string::npos);
    EXPECT_NE(family.find("  lsw_vlan_add_port "), std::string::npos);
    std::string one = run("help flow_add_mapping");
    EXPECT_NE(one.find("request 24 bytes, reply 24 bytes"), std::string::npos);
    EXPECT_NE(one.find("usage: flow_add_mapping key_mask [mode=0] [igr=0] [vlan=0]"), std::string::npos);
    EXPECT_NE(one.find("optional, default 0"), std::string::npos);
    EXPECT_NE(run("help api").find("  ze_lsw_port_init_network "), std::string::npos);
    EXPECT_NE(run("help api ze_lsw_port_get_mtu").find("uint32_t ze_lsw_port_get_mtu(uint32_t port, uint32_t *mtu)"),
              std::string::npos);
}

// What the operator gets for what is not yet a request: every input field
// named, each value within its field, numbers decimal or 0x only.
TEST_F(ShellTest, RefusesMissingWideAndMistypedInput) {
    struct Case {
        const char *line;
        const char *message;
    } cases[] = {
        {"lsw_port_set_mtu 3", "lsw_port_set_mtu: missing mtu\nusage: lsw_port_set_mtu port mtu\n"},
        {"lsw_vlan_set_tag port=1 vlan=70000 mode=1", "vlan=70000 is out of range: vlan is u16, 0 to 65535"},
        {"lsw_port_set_mtu 3 4294967297", "mtu is u32, 0 to 4294967295"},
        {"lsw_port_set_mtu 3 -1", "mtu is u32"},
        {"lsw_car_set_flow_car 9 1 1 1 -2147483649 1 1", "p4 is i32, -2147483648 to 2147483647"},
        {"lsw_port_set_mut 3 1", "no such command; did you mean lsw_port_set_mtu"},
        {"lsw_port_set_mtu 3 mut=1", "no input field 'mut'; did you mean mtu?"},
        {"api ze_lsw_port_set_mut 3 1", "did you mean ze_lsw_port_set_mtu"},
        {"api ze_board_read_phymem 0 16385", "len is at most 16384"},
        {"lsw_mac_add valid=1 vlan=1 mac=00:11:22:33:44 port=2", "bad value '00:11:22:33:44' for mac"},
    };
    for (const Case &c : cases) EXPECT_NE(run(c.line, false).find(c.message), std::string::npos) << c.line;
    EXPECT_TRUE(zesim::commands().empty());
}

TEST_F(ShellTest, NumbersAreDecimalOrHexAndOptionalFieldsTakeTheirDefault) {
    run("lsw_port_set_mtu 3 01600");
    EXPECT_EQ(run("lsw_port_get_mtu 0"), "lsw_port_get_mtu: result 0 (ok)\n  mtu = 1600 (0x640)\n");
    std::string out = run("flow_add_mapping key_mask=2 vlan=100 dir=0");
    EXPECT_NE(out.find("  sfid = 0 (0x0)"), std::string::npos);
    EXPECT_NE(out.find("  igr = 31 (0x1f)"), std::string::npos);  // upstream: every LAN port
}

TEST_F(ShellTest, ApiCallsPrintResultAndOutputs) {
    EXPECT_EQ(run("api ze_lsw_port_set_mtu 3 1600; api ze_lsw_port_get_mtu 8"),
              "ze_lsw_port_set_mtu: result 0 (ok)\n"
              "ze_lsw_port_get_mtu: result 0 (ok)\n"
              "  mtu = 1600 (0x640)\n");
    std::string out = run("api ze_hlp_sdk_dp_cmdtype 0x100 00000000");
    const char *mtu_block = zetest::kBigEndian ? "00000640" : "40060000";  // the MTU word
    EXPECT_NE(out.find(std::string("  block = ") + mtu_block + "\n  outlen = 4 (0x4)\n"), std::string::npos) << out;
    EXPECT_EQ(zesim::log()[1].sent.size(), 76u);  // the driver knows the block by its id
    out = run("api ze_igmp_get_ifname eth0; api ze_lsw_mc_mac_check 01:00:5e:00:00:01");
    EXPECT_NE(out.find("  flag = 1 (0x1)"), std::string::npos);
    out = run("api ze_lsw_flow_add_service key_mask=0x8 dip=10.10.0.5 dip_mask=255.255.255.255 act_mask=4 spri=5 fwd_act=2");
    EXPECT_NE(out.find("  fid = 1 (0x1)"), std::string::npos) << out;
    EXPECT_NE(run("api ze_lsw_efc_count_itemnum g0=1", false).find("'g0' names more than one field"), std::string::npos);
}

TEST_F(ShellTest, JsonGivesOneObjectPerOutcome) {
    std::ostringstream out;
    {
        zesh::Shell sh(out);
        sh.set_json(true);
        sh.run_line("lsw_port_set_mtu 3 1600; lsw_port_get_mtu 0; lsw_mac_get_agetime --len 4; "
                    "lsw_port_set_mtu 3; api ze_lsw_mc_mac_check 01:00:5e:00:00:01; echo \"a\tb\"; "
                    "sim fail 0x100 7; lsw_port_get_mtu 0; lsw_vlan_display_vlanbcegrs 1");
    }
    std::istringstream lines(out.str());
    std::vector<std::string> objects;
    for (std::string l; std::getline(lines, l);) objects.push_back(l);
    ASSERT_EQ(objects.size(), 9u) << out.str();
    EXPECT_EQ(objects[0], R"({"command":"lsw_port_set_mtu","result":0,"name":"ZE_OK","meaning":"ok","reply":null,"printed":""})");
    EXPECT_EQ(objects[1], R"({"command":"lsw_port_get_mtu","result":0,"name":"ZE_OK","meaning":"ok","reply":{"mtu":1600},"printed":""})");
    EXPECT_EQ(objects[3].rfind(R"({"error":"lsw_port_set_mtu: missing mtu\nusage: lsw_port_set_mtu port mtu","input":)", 0), 0u);
    EXPECT_NE(objects[4].find(R"("outputs":{"flag":1})"), std::string::npos) << objects[4];
    EXPECT_EQ(objects[5], R"({"builtin":"echo","ok":true,"printed":"a\tb\n"})");
    EXPECT_EQ(objects[6], R"({"builtin":"sim fail","ok":true,"printed":""})");
    EXPECT_NE(objects[7].find(R"("result":4294967295,"name":"ZE_ERR_FAIL")"), std::string::npos);
    EXPECT_NE(objects[8].find(R"("printed":"index )"), std::string::npos) << objects[8];
}

// The formatting reads only the outcome: an executor that hands every
// request on (as a remote one would) gives the same text.
TEST_F(ShellTest, FormattingDependsOnlyOnTheOutcome) {
    struct Relay : zesh::Executor {
        zesh::LocalExecutor &inner;
        std::vector<std::pair<std::string, uint32_t>> seen;
        explicit Relay(zesh::LocalExecutor &e) : inner(e) {}
        zesh::Outcome run_command(const std::string &n, std::span<const uint8_t> r, uint32_t len) override {
            seen.emplace_back(n, len);
            zesh::Outcome o = inner.run_command(n, r, len);
            return zesh::Outcome{o.code, o.reply_len, o.reply, {}, o.printed, {}};
        }
        zesh::Outcome call_api(const std::string &n, std::vector<zesh::Bytes> a) override {
            seen.emplace_back(n, static_cast<uint32_t>(a.size()));
            return inner.call_api(n, std::move(a));
        }
        zesh::Outcome run_builtin(const std::vector<std::string> &w) override { return inner.run_builtin(w); }
    };
    const std::string line = "chip_get_upmode; flow_diagnose 1; api ze_lsw_port_get_mtu 0; sim log 2; trace 1";
    std::string direct = run(line);
    zesim::reset();
    ze_host_trace_clear();
    std::ostringstream relayed, idle;
    zesh::LocalExecutor local(idle);
    Relay relay(local);
    {
        zesh::Shell sh(relayed, &relay);
        EXPECT_TRUE(sh.run_line(line));
    }
    EXPECT_EQ(relayed.str(), direct);
    EXPECT_EQ(relay.seen, (std::vector<std::pair<std::string, uint32_t>>{
                              {"ze_adapter_cli_chip_get_upmode", 4}, {"ze_adapter_cli_flow_diagnose", 4},
                              {"ze_lsw_port_get_mtu", 2}}));
}

TEST_F(ShellTest, TraceShowsRecentRecords) {
    std::string out = run("chip_get_version; trace 1");
    EXPECT_NE(out.find("ze_adapter_cli_chip_get_version result=0x00000000"), std::string::npos);
}

TEST(ShellSplit, CommandsWordsQuotesAndComments) {
    auto cmds = zesh::split_line(R"(echo "a b";  x 1 ;; y # z; w)");
    ASSERT_EQ(cmds.size(), 3u);
    EXPECT_EQ(cmds[0], (std::vector<std::string>{"echo", "a b"}));
    EXPECT_EQ(cmds[1], (std::vector<std::string>{"x", "1"}));
    EXPECT_EQ(cmds[2], (std::vector<std::string>{"y"}));
}

TEST(ShellNumbers, DecimalHexAndNegative) {
    const std::pair<const char *, uint64_t> good[] = {{"0x1F", 31}, {"-1", ~0ull}, {"01600", 1600}, {"0", 0}, {"0X10", 16}};
    for (auto [text, value] : good) {
        uint64_t v = 0;
        EXPECT_TRUE(zesh::parse_number(text, v)) << text;
        EXPECT_EQ(v, value) << text;
    }
    uint64_t v;
    for (const char *bad : {"12ab", "", "0x", "-", "0x-1", "08x", "99999999999999999999"})
        EXPECT_FALSE(zesh::parse_number(bad, v)) << bad;
}

}  // namespace
