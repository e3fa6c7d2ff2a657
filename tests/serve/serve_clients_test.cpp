// Many clients at once: concurrent clients each get the answers to their
// own requests and leave the library's shadow tables consistent; a client
// killed mid-frame or one that never reads its answers costs the others
// nothing.
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

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

// The requests of flow_add_mapping and gmac_set_gemport/gmac_get_gemport.
struct Mapping {
    uint32_t key_mask, mode;
    uint8_t igr, pad[3];
    uint16_t vlan, fid, pri, fifth, dir, sfid;
};
struct Gem {
    uint16_t index, gemport;
    uint32_t tcont;
};
static_assert(sizeof(Mapping) == 24 && sizeof(Gem) == 8);

// One client's share of the load: a mapping of its own VLAN, a GEM port on
// the sfid it got, the GEM port read back, the mapping removed. Every
// answer must carry what this client's own request asked for.
void provision_and_remove(ze_ifm_client *c, uint16_t client, int rounds, int &failures) {
    for (int i = 0; i < rounds; ++i) {
        const uint16_t vlan = static_cast<uint16_t>(100 + client * 256 + i % 200);
        Mapping m{};
        m.key_mask = 2;  // key: VLAN
        m.vlan = vlan;
        uint32_t len = sizeof m;
        bool ok = !ze_ifm_client_call_on(c, "flow_add_mapping", &m, sizeof m, &m, &len, nullptr) && m.vlan == vlan;
        Gem set{m.sfid, static_cast<uint16_t>(1 + client * 500 + i % 500), client + 1u}, got{m.sfid, 0, 0};
        len = sizeof got;
        ok = ok && !ze_ifm_client_call_on(c, "gmac_set_gemport", &set, sizeof set, nullptr, nullptr, nullptr) &&
             !ze_ifm_client_call_on(c, "gmac_get_gemport", &got, sizeof got, &got, &len, nullptr) &&
             got.gemport == set.gemport && reinterpret_cast<const uint8_t *>(&got)[4] == set.tcont &&
             !ze_ifm_client_call_on(c, "flow_del_mapping_by_sfid", &m.sfid, 2, nullptr, nullptr, nullptr);
        failures += ok ? 0 : 1;
    }
}

// A process's resident memory in kB, and the processor time it used.
long resident_kb(pid_t pid) {
    std::ifstream in("/proc/" + std::to_string(pid) + "/status");
    std::string key;
    long kb = 0;
    while (in >> key)
        if (key == "VmRSS:" && in >> kb) break;
    return kb;
}
long cpu_ticks(pid_t pid) {
    std::ifstream in("/proc/" + std::to_string(pid) + "/stat");
    std::string word;
    long ticks = 0;
    for (int i = 1; i <= 15 && in >> word; ++i)
        if (i >= 14) ticks += std::stol(word);  // user and system time
    return ticks;
}

// Waits until the process has used no processor time for 200 ms.
void wait_until_idle(pid_t pid) {
    for (long calm = 0, last = -1, i = 0; calm < 2 && i < 100; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        const long now = cpu_ticks(pid);
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
    zetest::Daemon daemon;
};

TEST_F(Clients, EightConcurrentClientsKeepTheShadowTablesConsistent) {
    constexpr int kClients = 8, kRounds = 400;
    std::vector<int> failures(kClients, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < kClients; ++t)
        threads.emplace_back([&, t] {
            ze_ifm_client *c = ze_ifm_client_open(daemon.socket().c_str());
            provision_and_remove(c, static_cast<uint16_t>(t), c ? kRounds : 0, failures[t]);
            ze_ifm_client_close(c);
        });
    for (auto &t : threads) t.join();
    EXPECT_EQ(failures, std::vector<int>(kClients, 0));

    // Every mapping and GEM port is gone again: the listing is a fresh
    // library's, and the next mapping gets the first sfid.
    const std::string check = "flow_diagnose 1; flow_add_mapping key_mask=2 vlan=7 dir=0";
    std::ostringstream fresh;
    zesh::Shell(fresh).run_line(check);
    std::string listed;
    EXPECT_EQ(zetest::run_line(daemon.socket(), check, &listed), 0u);
    EXPECT_EQ(listed, fresh.str());
}

TEST_F(Clients, AClientKilledMidFrameCostsTheOthersNothing) {
    RawClient other(daemon.socket());
    RawAnswer a;
    ASSERT_TRUE(other.send(zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("chip_set_upmode 0"), 1)));
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    pid_t child = fork();
    if (child == 0) {  // a whole request, then half of the next; then killed
        RawClient dying(daemon.socket());
        auto f = zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("sim blocks; help"), 1);
        f.insert(f.end(), f.begin(), f.begin() + static_cast<long>(f.size() / 2));
        dying.send(f);
        (void)!write(ready[1], "x", 1);
        pause();
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
        sent += n > 0 ? static_cast<size_t>(n) : 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    wait_until_idle(daemon.pid());
    ze_ifm_client *c = ze_ifm_client_open(daemon.socket().c_str());
    for (int i = 0; i < 50; ++i) {
        std::string echoed;
        EXPECT_EQ(zetest::run_line(c, "echo " + std::to_string(i), &echoed), 0u);
        EXPECT_EQ(echoed, std::to_string(i) + "\n");
    }
    ze_ifm_client_close(c);
    // Its answers are 11 kB each: all of them would be 44 MB.
    EXPECT_LT(resident_kb(daemon.pid()) - before, 8 * 1024);
    EXPECT_EQ(daemon.stop(), 0) << daemon.log();
}

}  // namespace
