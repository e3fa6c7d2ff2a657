// Many clients at once: concurrent clients each get the answers to their
// own requests and leave the library's shadow tables consistent; a client
// killed mid-frame or one that never reads its answers costs the others
// nothing.
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>

#include "daemon.h"
#include "shell.h"
#include "test_support.h"
#include "ze_ifm_client.h"

namespace {

using zetest::RawAnswer;
using zetest::RawClient;

template <class T>
void put(std::vector<uint8_t> &b, size_t at, T v) {
    std::memcpy(&b[at], &v, sizeof v);
}
template <class T>
T get(const std::vector<uint8_t> &b, size_t at) {
    T v;
    std::memcpy(&v, &b[at], sizeof v);
    return v;
}

std::string run_line(ze_ifm_client *c, const std::string &line) {
    char *text = nullptr;
    EXPECT_EQ(ze_ifm_client_line_on(c, line.c_str(), &text), 0u) << line;
    std::string s = text ? text : "";
    ze_ifm_client_free(text);
    return s;
}

// One client's share of the load: a mapping of its own VLAN, a GEM port on
// the sfid it got, the GEM port read back, the mapping removed. Every
// answer must carry what this client's own request asked for.
void provision_and_remove(const std::string &socket, uint16_t client, int rounds, int &failures) {
    ze_ifm_client *c = ze_ifm_client_open(socket.c_str());
    if (!c) {
        ++failures;
        return;
    }
    for (int i = 0; i < rounds; ++i) {
        const uint16_t vlan = static_cast<uint16_t>(100 + client * 256 + i % 200);
        const uint16_t gemport = static_cast<uint16_t>(1 + client * 500 + i % 500);
        std::vector<uint8_t> mapping(24, 0), gem(8, 0);
        put<uint32_t>(mapping, 0, 2);  // key: VLAN
        put<uint16_t>(mapping, 12, vlan);
        uint32_t len = 24;
        bool ok = ze_ifm_client_call_on(c, "flow_add_mapping", mapping.data(), 24, mapping.data(), &len, nullptr) == 0 &&
                  len == 24 && get<uint16_t>(mapping, 12) == vlan && get<uint16_t>(mapping, 22) < 128;
        const uint16_t sfid = get<uint16_t>(mapping, 22);
        put<uint16_t>(gem, 0, sfid);
        put<uint16_t>(gem, 2, gemport);
        put<uint32_t>(gem, 4, client + 1u);
        ok = ok && ze_ifm_client_call_on(c, "gmac_set_gemport", gem.data(), 8, nullptr, nullptr, nullptr) == 0;
        std::vector<uint8_t> got(8, 0);
        put<uint16_t>(got, 0, sfid);
        len = 8;
        ok = ok && ze_ifm_client_call_on(c, "gmac_get_gemport", got.data(), 8, got.data(), &len, nullptr) == 0 &&
             get<uint16_t>(got, 2) == gemport && got[4] == client + 1;
        ok = ok && ze_ifm_client_call_on(c, "flow_del_mapping_by_sfid", &sfid, 2, nullptr, nullptr, nullptr) == 0;
        failures += ok ? 0 : 1;
    }
    ze_ifm_client_close(c);
}

// A process's resident memory in kB.
long resident_kb(pid_t pid) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string key;
    long kb = 0;
    while (status >> key)
        if (key == "VmRSS:" && status >> kb) break;
    return kb;
}

// Waits until a process has used no processor time for 200 ms (at most 10 s).
void wait_until_idle(pid_t pid) {
    auto cpu_ticks = [pid] {
        std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
        std::string word;
        long ticks = 0;
        for (int i = 1; i <= 15 && stat >> word; ++i)
            if (i >= 14) ticks += std::stol(word);  // user and system time
        return ticks;
    };
    long last = -1;
    for (int calm = 0, i = 0; calm < 2 && i < 100; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        const long now = cpu_ticks();
        calm = now == last ? calm + 1 : 0;
        last = now;
    }
}

class Clients : public zetest::SimTest {
protected:
    void TearDown() override {
        EXPECT_EQ(daemon.stop(), 0) << daemon.log();
        SimTest::TearDown();
    }

    std::string in_process(const std::string &line) {
        std::ostringstream out;
        zesh::Shell sh(out);
        sh.run_line(line);
        return out.str();
    }

    zetest::Daemon daemon;
};

TEST_F(Clients, EightConcurrentClientsKeepTheShadowTablesConsistent) {
    constexpr int kClients = 8, kRounds = 400;
    std::vector<int> failures(kClients, 0);
    std::vector<std::thread> threads;
    const auto start = std::chrono::steady_clock::now();
    for (int t = 0; t < kClients; ++t)
        threads.emplace_back(provision_and_remove, daemon.socket(), static_cast<uint16_t>(t), kRounds,
                             std::ref(failures[t]));
    for (auto &t : threads) t.join();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
    EXPECT_EQ(failures, std::vector<int>(kClients, 0));

    // Every mapping and GEM port is gone again: the listing is a fresh
    // library's, and the next mapping gets the first sfid.
    ze_ifm_client *c = ze_ifm_client_open(daemon.socket().c_str());
    ASSERT_NE(c, nullptr);
    const std::string first = "flow_add_mapping key_mask=2 vlan=7 dir=0";
    EXPECT_EQ(run_line(c, "flow_diagnose 1; " + first), in_process("flow_diagnose 1; " + first));
    ze_ifm_client_close(c);
}

TEST_F(Clients, AClientKilledMidFrameCostsTheOthersNothing) {
    RawClient other(daemon.socket());
    RawAnswer a;
    ASSERT_TRUE(other.send(zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("chip_set_upmode 0"), 1)));
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    pid_t child = fork();
    if (child == 0) {
        RawClient dying(daemon.socket());
        auto f = zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("sim blocks; help"), 1);
        auto big = zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("sim blocks; help"), 2);
        f.insert(f.end(), big.begin(), big.begin() + static_cast<long>(big.size() / 2));
        dying.send(f);  // a whole request, then half of the next
        (void)!write(ready[1], "x", 1);
        pause();
        _exit(0);
    }
    char x;
    ASSERT_EQ(read(ready[0], &x, 1), 1);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ready[0]);
    close(ready[1]);

    ASSERT_TRUE(other.read(a));
    EXPECT_EQ(a.text, "chip_set_upmode: result 0 (ok)\n");
    ASSERT_TRUE(other.send(zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("chip_get_upmode"), 2)));
    ASSERT_TRUE(other.read(a));
    EXPECT_EQ(a.tag, 2u);
    EXPECT_EQ(a.text, "chip_get_upmode: result 0 (ok)\n  mode = 0 (0x0)\n");
}

TEST(ClientsApart, AClientThatNeverReadsCannotHoldUpTheOthers) {
    // Memory the sanitizer keeps back from freed blocks would hide what the
    // daemon holds.
    setenv("ASAN_OPTIONS", "quarantine_size_mb=0", 1);
    zetest::Daemon daemon;
    unsetenv("ASAN_OPTIONS");
    const long before = resident_kb(daemon.pid());
    RawClient hog(daemon.socket());
    const auto request = zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("help; sim blocks"));
    std::vector<uint8_t> burst;
    for (int i = 0; i < 4000; ++i) burst.insert(burst.end(), request.begin(), request.end());
    // Send what the socket takes without waiting; the daemon stops taking
    // once its answers to the hog are backed up.
    size_t sent = 0;
    for (int tries = 0; tries < 200 && sent < burst.size(); ++tries) {
        ssize_t n = send(hog.fd(), burst.data() + sent, burst.size() - sent, MSG_DONTWAIT | MSG_NOSIGNAL);
        if (n > 0) sent += static_cast<size_t>(n);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    wait_until_idle(daemon.pid());
    ze_ifm_client *c = ze_ifm_client_open(daemon.socket().c_str());
    ASSERT_NE(c, nullptr);
    for (int i = 0; i < 50; ++i) EXPECT_EQ(run_line(c, "echo " + std::to_string(i)), std::to_string(i) + "\n");
    ze_ifm_client_close(c);
    // Its answers are 11 kB each: all of them would be 44 MB.
    EXPECT_LT(resident_kb(daemon.pid()) - before, 8 * 1024);
    EXPECT_EQ(daemon.stop(), 0) << daemon.log();
}

}  // namespace
