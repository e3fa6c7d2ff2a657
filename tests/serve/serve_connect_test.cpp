// `zesh --connect`: scripts, JSON and interactive use against a daemon
// print what they print in-process; a daemon out of reach or lost is
// reported with exit status 3; a recording made on the daemon replays as
// identical.
#include <poll.h>
#include <pty.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

#include "daemon.h"
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

// A peer that answers the describe request and then closes the connection
// on the next request: the daemon lost in the middle of a script.
class VanishingDaemon {
public:
    VanishingDaemon() : dir_(zetest::fresh_dir()), path_(dir_ + "/ifm.sock") {
        sockaddr_un addr{};
        addr.sun_family = AF_UNIX;
        std::strncpy(addr.sun_path, path_.c_str(), sizeof addr.sun_path - 1);
        fd_ = ::socket(AF_UNIX, SOCK_STREAM, 0);
        EXPECT_EQ(bind(fd_, reinterpret_cast<sockaddr *>(&addr), sizeof addr), 0);
        listen(fd_, 1);
        peer_ = std::thread([this] {
            int c = accept(fd_, nullptr, nullptr);
            uint8_t request[ZE_IFM_HEADER_SIZE];
            if (recv(c, request, sizeof request, MSG_WAITALL) == sizeof request) {
                const uint8_t described[] = {ZE_IFM_ORDER_LITTLE, ZE_IFM_BACKEND_SIMULATOR};
                std::vector<uint8_t> a(ZE_IFM_HEADER_SIZE + ZE_IFM_ANSWER_SIZE);
                ze_ifm_put_header(a.data(), ZE_IFM_ANSWER_SIZE + 2, ZE_IFM_KIND_DESCRIBE | ZE_IFM_ANSWER_BIT,
                                  ze_ifm_get32(request + 8), 0);
                ze_ifm_put32(&a[ZE_IFM_HEADER_SIZE + 12], 2);
                a.insert(a.end(), described, described + 2);
                (void)!send(c, a.data(), a.size(), MSG_NOSIGNAL);
                (void)!recv(c, request, sizeof request, 0);  // the next request, left unanswered
            }
            close(c);
        });
    }
    ~VanishingDaemon() {
        peer_.join();
        close(fd_);
        std::filesystem::remove_all(dir_);
    }
    const std::string &socket() const { return path_; }

private:
    std::string dir_, path_;
    int fd_ = -1;
    std::thread peer_;
};

TEST(Connect, ADaemonOutOfReachOrLostEndsTheShellWithStatusThree) {
    const zetest::Ran absent = run_zesh({"--connect", "/nonexistent/ifm.sock", "-c", "echo hi"});
    EXPECT_EQ(absent.status, 3);
    EXPECT_EQ(absent.out, "");
    EXPECT_EQ(absent.err, "zesh: no daemon at /nonexistent/ifm.sock: No such file or directory\n");

    for (const char *json : {"", "--json"}) {
        VanishingDaemon vanishing;
        std::vector<std::string> args{"--connect", vanishing.socket(), "-c", "echo before; chip_get_version; echo after"};
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

#ifdef ZESH_HAVE_LIBEDIT
// Reads the terminal until `want` appears (or 5 s pass); returns all read.
std::string read_until(int fd, const std::string &want) {
    std::string seen;
    for (int i = 0; i < 50 && seen.find(want) == std::string::npos; ++i) {
        pollfd p{fd, POLLIN, 0};
        char buf[4096];
        ssize_t n = poll(&p, 1, 100) > 0 ? read(fd, buf, sizeof buf) : 0;
        if (n < 0) break;
        seen.append(buf, static_cast<size_t>(n));
    }
    return seen;
}

TEST(Connect, InteractiveCompletionComesFromTheLocalTables) {
    Daemon daemon;
    int fd = -1;
    const pid_t pid = forkpty(&fd, nullptr, nullptr, nullptr);
    if (pid == 0) {
        setenv("ZESH_HISTORY", "/dev/null", 1);
        setenv("TERM", "xterm", 1);
        execl(ZESH_BINARY, "zesh", "--connect", daemon.socket().c_str(), nullptr);
        _exit(127);
    }
    EXPECT_NE(read_until(fd, "zesh> ").find("in the daemon at " + daemon.socket()), std::string::npos);
    // The command's name and then its field's name are completed.
    const std::string keys = "lsw_port_get_m\tp\t0\r";
    ASSERT_EQ(write(fd, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    const std::string shown = read_until(fd, "zesh> ");
    EXPECT_NE(shown.find("lsw_port_get_mtu: result 0 (ok)\r\n  mtu = 1518"), std::string::npos) << shown;
    ASSERT_EQ(write(fd, "\x04", 1), 1);
    int status = -1;
    waitpid(pid, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    close(fd);
    EXPECT_EQ(daemon.stop(), 0) << daemon.log();
}
#endif

}  // namespace
