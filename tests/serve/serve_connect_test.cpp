// `zesh --connect`: scripts and JSON against a daemon print what they
// print in-process; a daemon out of reach or lost is
// reported with exit status 3; a recording made on the daemon replays as
// identical.
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

#include "daemon.h"
#include "serve/protocol.h"
#include "test_support.h"

namespace {

using zetest::Daemon;
using zetest::run_zesh;

// What a shell input is given as: a script file, or a line after -c.
struct Input {
    std::string name;
    std::vector<std::string> args;
};

// Every example script, and lines whose requests the daemon must receive
// whole: short lengths that the unchecked handlers read past (and dump),
// API outputs of every kind, built-ins with quoted and refused words.
std::vector<Input> inputs() {
    std::vector<Input> in;
    for (const auto &e : std::filesystem::directory_iterator(ZE_EXAMPLES_DIR))
        if (e.path().extension() == ".zesh") in.push_back({e.path().stem().string(), {e.path().string()}});
    std::sort(in.begin(), in.end(), [](const Input &a, const Input &b) { return a.name < b.name; });
    const std::pair<const char *, const char *> lines[] = {
        {"short_lengths",
         "lsw_mac_set_agetime 300 --len 0; lsw_mac_get_agetime --len 0; flow_diagnose 1 --len 0; "
         "chip_get_upmode --len 5; lsw_sec_add_ip_filtertable porttype=1 field=2 ipversion=0 mask=32 "
         "ip=10.0.0.1 --len 0; lsw_sec_diagnose 1"},
        {"api_outputs",
         "api ze_lsw_flow_add_mapping key_mask=2 vlan=100 dir=0; api ze_hlp_sdk_dp_cmdtype 0x100 00000000; "
         "api ze_igmp_get_ifname eth0; api ze_board_read_phymem 0x1000 16; api ze_lsw_efc_get_attr "
         "key_mask=0x8 dip=10.10.0.5 dip_mask=255.255.255.255; api ze_lsw_port_get_defvlan 99"},
        {"builtins",
         "echo \"a;b # c\"; sim fail 0x100 7 2; lsw_port_get_mtu 0; lsw_port_get_mtu 0; sim nope; sim; "
         "sim load \"no such; file\"; trace 3; help lsw_port_set_mtu; no_such; lsw_port_set_mtu 3; "
         "api ze_board_write_phymem 0x10 5"},
    };
    for (auto [name, line] : lines) in.push_back({name, {"-c", line}});
    return in;
}

void PrintTo(const Input &in, std::ostream *os) { *os << in.name; }

class ConnectPrintsAsInProcess : public ::testing::TestWithParam<Input> {};

TEST_P(ConnectPrintsAsInProcess, TextAndJson) {
    for (bool json : {false, true}) {
        SCOPED_TRACE(json ? "--json" : "text");
        std::vector<std::string> local = GetParam().args;
        if (json) local.insert(local.begin(), "--json");
        Daemon daemon({"--allow-board-write", std::to_string(getuid())});
        std::vector<std::string> remote = local;
        remote.insert(remote.begin(), {"--connect", daemon.socket()});
        const zetest::Ran here = run_zesh(local), there = run_zesh(remote);
        EXPECT_EQ(there.status, here.status);
        EXPECT_EQ(zetest::without_addresses(there.out), zetest::without_addresses(here.out));
        EXPECT_EQ(there.err, here.err);
        EXPECT_EQ(daemon.stop(), 0) << daemon.log();
    }
}

INSTANTIATE_TEST_SUITE_P(Every, ConnectPrintsAsInProcess, ::testing::ValuesIn(inputs()),
                         [](const auto &info) { return info.param.name; });

// A daemon that answers the describe request and is gone at the next.
std::vector<uint8_t> described_then_gone() {
    zesh::serve::Answer a;
    a.kind = ZE_IFM_KIND_DESCRIBE;
    a.tag = 1;
    const uint8_t described[] = {ZE_IFM_ORDER_LITTLE, ZE_IFM_BACKEND_SIMULATOR};
    a.data = described;
    std::vector<uint8_t> frame;
    zesh::serve::encode(a, frame);
    return frame;
}

TEST(Connect, ADaemonOutOfReachOrLostEndsTheShellWithStatusThree) {
    const zetest::Ran absent = run_zesh({"--connect", "/nonexistent/ifm.sock", "-c", "echo hi"});
    EXPECT_EQ(absent.status, 3);
    EXPECT_EQ(absent.out, "");
    EXPECT_EQ(absent.err, "zesh: no daemon at /nonexistent/ifm.sock: No such file or directory\n");

    for (const char *json : {"", "--json"}) {
        zetest::FakeDaemon vanishing({described_then_gone()});
        std::vector<std::string> args{"--connect", vanishing.socket(), "-c",
                                      "echo before; chip_get_version; echo after"};
        if (*json) args.insert(args.begin(), json);
        const zetest::Ran lost = run_zesh(args);
        EXPECT_EQ(lost.status, 3);
        EXPECT_EQ(lost.out, *json ? "{\"builtin\":\"echo\",\"ok\":true,\"printed\":\"before\\n\"}\n" : "before\n");
        EXPECT_EQ(lost.err, "zesh: lost the daemon at " + vanishing.socket() + ": the connection broke\n");
    }

    // What would set up this process's own host belongs to the daemon.
    for (const char *host : {"--device", "--record", "--trace-file"})
        EXPECT_EQ(run_zesh({"--connect", "x.sock", host, "/dev/null", "-c", "echo"}).status, 2) << host;
}

TEST(Connect, ARecordingOnTheDaemonReplaysAsIdentical) {
    const std::string dir = zetest::fresh_dir(), services = std::string(ZE_EXAMPLES_DIR) + "/services.zesh";
    {
        Daemon daemon({"--record", dir + "/daemon.rec"});
        ASSERT_EQ(run_zesh({"--connect", daemon.socket(), services}).status, 0);
        // Another client's requests go into the same recording.
        std::string printed;
        EXPECT_EQ(zetest::run_line(daemon.socket(), "chip_set_upmode 0; chip_get_upmode", &printed), 0u);
        EXPECT_EQ(daemon.stop(), 0) << daemon.log();
    }
    std::ofstream(dir + "/both.zesh") << zetest::file_text(services) << "chip_set_upmode 0; chip_get_upmode\n";
    ASSERT_EQ(run_zesh({"--record", dir + "/local.rec", dir + "/both.zesh"}).status, 0);

    const zetest::Ran replayed = run_zesh({"replay", dir + "/daemon.rec"});
    EXPECT_EQ(replayed.status, 0) << replayed.out;
    EXPECT_EQ(replayed.out, run_zesh({"replay", dir + "/local.rec"}).out);
    EXPECT_TRUE(std::regex_search(replayed.out, std::regex("^replay identical: [1-9][0-9]+ commands\n$")));
    const std::string recording = zetest::file_text(dir + "/daemon.rec");
    EXPECT_NE(recording.find("> flow_add_service --hex "), std::string::npos);
    EXPECT_NE(recording.find("> chip_set_upmode 0; chip_get_upmode\n"), std::string::npos);
    std::filesystem::remove_all(dir);
}

}  // namespace
