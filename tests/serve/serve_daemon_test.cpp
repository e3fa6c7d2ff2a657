// The daemon's life and its doors: start beside a stale or a live socket,
// detach, stop on a signal; socket permissions, admitted credentials and
// the board-write allowance.
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <fstream>
#include <thread>

#include "daemon.h"
#include "test_support.h"
#include "ze_ifm_client.h"

namespace {

using zetest::Daemon;
using zetest::run_zesh;

bool exists(const std::string &path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

// A socket file that nobody listens on any more.
void make_stale_socket(const std::string &path) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    std::strncpy(addr.sun_path, path.c_str(), sizeof addr.sun_path - 1);
    int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr *>(&addr), sizeof addr), 0);
    close(fd);
}

pid_t daemon_pid(const std::string &path) {
    zetest::RawClient c(path);
    ucred peer{};
    socklen_t len = sizeof peer;
    getsockopt(c.fd(), SOL_SOCKET, SO_PEERCRED, &peer, &len);
    return peer.pid;
}

// The daemon removes its socket as it exits.
bool removed(const std::string &path) {
    for (int i = 0; i < 500 && exists(path); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return !exists(path);
}

uint32_t line(const std::string &socket, const std::string &text, std::string *printed = nullptr) {
    ze_ifm_client *c = ze_ifm_client_open(socket.c_str());
    if (!c) return ZE_IFM_CLIENT_ERR_CONNECT;
    char *out = nullptr;
    uint32_t r = ze_ifm_client_line_on(c, text.c_str(), &out);
    if (printed) *printed = out ? out : "";
    ze_ifm_client_free(out);
    ze_ifm_client_close(c);
    return r;
}

TEST(DaemonLife, ReplacesAStaleSocketKeepsALiveOneAndDetaches) {
    const std::string dir = zetest::fresh_dir(), path = dir + "/ifm.sock";
    make_stale_socket(path);
    ASSERT_EQ(run_zesh({"serve", "--socket", path}), 0);  // detaches once it listens
    const pid_t pid = daemon_pid(path);
    ASSERT_GT(pid, 0);
    EXPECT_NE(pid, getpid());

    EXPECT_EQ(run_zesh({"serve", "--socket", path, "--foreground"}), 1);
    EXPECT_EQ(line(path, "echo still here"), 0u);

    const std::string file = dir + "/plain";
    std::ofstream(file) << "keep";
    EXPECT_EQ(run_zesh({"serve", "--socket", file, "--foreground"}), 1);
    EXPECT_TRUE(exists(file));

    kill(pid, SIGTERM);
    EXPECT_TRUE(removed(path));
    std::system(("rm -rf '" + dir + "'").c_str());
}

TEST(DaemonLife, TermAndIntStopCleanly) {
    for (int sig : {SIGTERM, SIGINT}) {
        Daemon d;
        ASSERT_EQ(line(d.socket(), "chip_get_upmode"), 0u);
        EXPECT_EQ(d.stop(sig), 0) << d.log();
        EXPECT_FALSE(exists(d.socket()));
    }
}

TEST(DaemonAccess, SocketFileTakesTheModeAndGroup) {
    for (const char *mode : {"0660", "0600"}) {
        Daemon d({"--mode", mode, "--group", std::to_string(getgid())});
        struct stat st;
        ASSERT_EQ(stat(d.socket().c_str(), &st), 0);
        EXPECT_TRUE(S_ISSOCK(st.st_mode));
        EXPECT_EQ(st.st_mode & 07777, std::stoul(mode, nullptr, 8));
        EXPECT_EQ(st.st_gid, getgid());
        EXPECT_EQ(d.stop(), 0);
    }
}

TEST(DaemonAccess, RefusesClientsWhoseUidAndGidAreNotAllowed) {
    Daemon d({"--allow-uid", "4242", "--allow-gid", "4242"});
    std::string why;
    EXPECT_EQ(line(d.socket(), "echo hi", &why), ZE_IFM_CLIENT_ERR_STATUS(ZE_IFM_STATUS_NOT_PERMITTED));
    EXPECT_NE(why.find("may not connect"), std::string::npos) << why;
    EXPECT_EQ(d.stop(), 0);
    EXPECT_NE(d.log().find("uid " + std::to_string(getuid()) + " gid " + std::to_string(getgid()) + " refused"),
              std::string::npos);

    Daemon by_gid({"--allow-uid", "4242", "--allow-gid", std::to_string(getgid())});
    EXPECT_EQ(line(by_gid.socket(), "echo hi"), 0u);
    EXPECT_EQ(by_gid.stop(), 0);
}

TEST(DaemonAccess, BoardWritesNeedTheirOwnAllowance) {
    const std::string writes[] = {"api ze_board_write_phymem 0x100 1", "echo x; api ze_board_write_phymem 0 0"};
    Daemon plain;
    for (const std::string &w : writes)
        EXPECT_EQ(line(plain.socket(), w), ZE_IFM_CLIENT_ERR_STATUS(ZE_IFM_STATUS_NOT_PERMITTED)) << w;
    std::string out;
    EXPECT_EQ(line(plain.socket(), "echo api ze_board_write_phymem", &out), 0u);
    EXPECT_EQ(out, "api ze_board_write_phymem\n");
    EXPECT_EQ(plain.stop(), 0);

    Daemon allowed({"--allow-board-write", std::to_string(getuid())});
    for (const std::string &w : writes) EXPECT_EQ(line(allowed.socket(), w), 0u) << w;
    EXPECT_EQ(allowed.stop(), 0);
}

}  // namespace
