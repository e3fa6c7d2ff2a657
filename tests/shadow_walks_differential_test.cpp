// The shadow walks against the implementations they replaced: the port VLAN
// record's search, cancel and delete-all, and the IP filter slot search. The
// earlier implementations are kept here as references; both run the same
// seeded random histories and everything observable is compared.
#include <chrono>
#include <cstdio>
#include <cstring>
#include <random>

#include "test_support.h"
#include "ze_lsw_common.h"
#include "ze_lsw_sec.h"
#include "ze_lsw_sec_status.h"
#include "ze_lsw_vlan.h"
#include "ze_lsw_vlan_cfg.h"

namespace {

using namespace zetest;

constexpr uint32_t kSeeds = 6;
constexpr auto kTimeBudget = std::chrono::seconds(8);

// ---- what a call leaves behind ----------------------------------------------

// Every trace and debug record, as the host's echo writes them (the ring
// keeps only the latest few thousand).
class TraceCapture {
public:
    TraceCapture() : stream_(open_memstream(&text_, &size_)) { ze_host_trace_echo(stream_); }
    ~TraceCapture() {
        ze_host_trace_echo(nullptr);
        std::fclose(stream_);
        std::free(text_);
    }
    // The records written since the last take.
    std::string take() {
        std::fflush(stream_);
        std::string s(text_ + taken_, size_ - taken_);
        taken_ = size_;
        return s;
    }

private:
    char *text_ = nullptr;
    size_t size_ = 0;
    size_t taken_ = 0;
    FILE *stream_;
};

struct Observed {
    uint32_t result;
    std::string traces;
    std::string console;
    std::vector<std::string> log;  // one line per driver command
    std::string shadow;            // the shadow table's bytes

    bool operator==(const Observed &) const = default;
};

std::string hex(const zesim::Bytes &b) {
    std::string s;
    char buf[4];
    for (uint8_t v : b) {
        std::snprintf(buf, sizeof buf, "%02x", v);
        s += buf;
    }
    return s;
}

std::vector<std::string> driver_log() {
    std::vector<std::string> out;
    for (const zesim::LogEntry &e : zesim::log())
        out.push_back(std::to_string(e.cmd) + " " + e.name + " " + std::to_string(e.result) + " " +
                      hex(e.sent) + " " + hex(e.returned));
    return out;
}

template <class T, size_t N>
std::string bytes_of(const T (&table)[N]) {
    return std::string(reinterpret_cast<const char *>(table), sizeof table);
}

class ShadowWalks : public SimTest {
protected:
    // Runs `op` and collects what it left: its result, every record, the
    // console text, the driver commands with their blocks and `table`.
    template <class Op, class T, size_t N>
    Observed observe(Op &&op, const T (&table)[N]) {
        zesim::clear_log();
        traces_.take();
        take_console();
        uint32_t r = op();
        return {r, traces_.take(), take_console(), driver_log(), bytes_of(table)};
    }

    // Runs `history` once per seed, within the time budget.
    template <class History>
    void for_seeds(History &&history) {
        const auto deadline = std::chrono::steady_clock::now() + kTimeBudget;
        for (uint32_t seed = 1; seed <= kSeeds && std::chrono::steady_clock::now() < deadline; ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            history(seed);
            if (HasFailure()) return;
        }
    }

    TraceCapture traces_;
};

// ---- the port VLAN record -----------------------------------------------------

constexpr uint8_t kFree = 0, kUsed = 1;

uint8_t port_bit(uint32_t port) { return port < 8 ? static_cast<uint8_t>(1u << port) : 0; }

// The scans as they were: entry by entry from the front.
uint32_t reference_save(ze_port_vlan_cfg_s *t, uint32_t vlan, uint32_t port) {
    for (uint32_t i = 0; i < ZE_VLAN_CFG_COUNT; ++i) {
        ze_port_vlan_cfg_s &e = t[i];
        if (e.state == kFree) {
            e = {kUsed, port_bit(port), static_cast<uint16_t>(vlan)};
            return ZE_OK;
        }
        if (e.state == kUsed && e.vlan == static_cast<uint16_t>(vlan)) {
            e.port_mask |= port_bit(port);
            return ZE_OK;
        }
    }
    return ZE_ERR_FULL;
}

uint32_t reference_cancel(ze_port_vlan_cfg_s *t, uint32_t vlan, uint32_t port) {
    for (uint32_t i = 0; i < ZE_VLAN_CFG_COUNT; ++i) {
        ze_port_vlan_cfg_s &e = t[i];
        if (e.state == kFree) break;
        if (e.state != kUsed || e.vlan != static_cast<uint16_t>(vlan)) continue;
        e.port_mask &= static_cast<uint8_t>(~port_bit(port));
        if (e.port_mask == 0) {
            while (i + 1 < ZE_VLAN_CFG_COUNT && t[i + 1].state == kUsed) {
                t[i] = t[i + 1];
                ++i;
            }
            t[i] = ze_port_vlan_cfg_s{};
        }
        return ZE_OK;
    }
    return ZE_ERR_NOT_FOUND;
}

// Per port, every position of the table, with the removals closing the gap
// under the walk.
uint32_t reference_del_all() {
    for (uint32_t port = 0; port <= ZE_PORT_CPU; ++port) {
        for (const ze_port_vlan_cfg_s &e : uc_port_vlan_cfg) {
            if (e.state == kFree) continue;
            uint32_t vlan = e.vlan;
            ze_lsw_vlan_del_port(vlan, port);
            ze_lsw_vlan_bc_del_port(vlan, port);
        }
    }
    return ZE_OK;
}

// A random history of VLAN configuration over a pool of VLAN ids (some
// beyond 4095, two of which share their low 16 bits), with driver faults
// armed now and then, a delete-all at random points and one at the end.
class VlanHistory {
public:
    VlanHistory(uint32_t seed, uint32_t pool, uint32_t steps) : rng_(seed), pool_(pool), steps_(steps) {}

    template <class Step, class DelAll>
    void run(Step &&step, DelAll &&del_all) {
        for (uint32_t s = 0; s < steps_; ++s) {
            uint32_t kind = pick(20);
            if (kind == 0) {
                arm_fault();
                del_all();
            } else {
                step(kind % 4, vlan(), pick(10));
            }
        }
        arm_fault();
        del_all();
    }

private:
    uint32_t pick(uint32_t n) { return std::uniform_int_distribution<uint32_t>(0, n - 1)(rng_); }
    uint32_t vlan() {
        static constexpr uint32_t kWide[] = {4096, 5000, 65536 + 7, 7};
        uint32_t v = pick(pool_ + 4);
        return v < pool_ ? v : kWide[v - pool_];
    }
    void arm_fault() {
        static constexpr uint32_t kCmds[] = {0x400, 0x401, 0x717, 0};
        static constexpr uint32_t kCodes[] = {ZE_DRV_INVALID_PARAM, 0xf0000999};
        if (pick(2)) zesim::fail(kCmds[pick(4)], kCodes[pick(2)], 1 + pick(pool_));
    }

    std::mt19937 rng_;
    uint32_t pool_;
    uint32_t steps_;
};

uint32_t vlan_step(uint32_t kind, uint32_t vlan, uint32_t port) {
    switch (kind) {
        case 0: return ze_lsw_vlan_add_port(vlan, port);
        case 1: return ze_lsw_vlan_del_port(vlan, port);
        case 2: return ze_lsw_vlan_bc_add_port(vlan, port);
        default: return ze_lsw_vlan_bc_del_port(vlan, port);
    }
}

class VlanWalks : public ShadowWalks {
protected:
    void SetUp() override {
        ShadowWalks::SetUp();
        std::memset(uc_port_vlan_cfg, 0, sizeof uc_port_vlan_cfg);
    }

    // Every delete-all of one history, under `del_all`.
    std::vector<Observed> delete_alls(uint32_t seed, uint32_t pool, uint32_t steps, uint32_t (*del_all)()) {
        zesim::reset();
        std::memset(uc_port_vlan_cfg, 0, sizeof uc_port_vlan_cfg);
        std::vector<Observed> out;
        VlanHistory(seed, pool, steps)
            .run(vlan_step, [&] { out.push_back(observe(del_all, uc_port_vlan_cfg)); });
        return out;
    }
};

// Each step's save or cancel, run by the library on its table and by the
// reference on a copy, leaves the same table and result, and traces what
// the reference implies.
TEST_F(VlanWalks, SearchesAgreeWithTheEntryByEntryScan) {
    for_seeds([&](uint32_t seed) {
        std::memset(uc_port_vlan_cfg, 0, sizeof uc_port_vlan_cfg);
        static ze_port_vlan_cfg_s copy[ZE_VLAN_CFG_COUNT];
        VlanHistory(seed, 700, 2000)
            .run(
                [&](uint32_t kind, uint32_t vlan, uint32_t port) {
                    std::memcpy(copy, uc_port_vlan_cfg, sizeof copy);
                    const bool save = kind % 2 == 0;
                    uint32_t expected = save ? reference_save(copy, vlan, port) : reference_cancel(copy, vlan, port);
                    ze_host_trace_clear();
                    uint32_t got = save ? ze_lsw_vlan_inner_save_cfg(vlan, port)
                                        : ze_lsw_vlan_inner_cancel_cfg(vlan, port);
                    ASSERT_EQ(got, expected) << (save ? "save " : "cancel ") << vlan << " " << port;
                    ASSERT_EQ(bytes_of(uc_port_vlan_cfg), bytes_of(copy));
                    if (expected != ZE_OK) {
                        EXPECT_EQ(traces().back().result, expected);
                    }
                },
                [] {});
    });
}

TEST_F(VlanWalks, AFullTableEndsEverySearch) {
    for (uint32_t i = 0; i < ZE_VLAN_CFG_COUNT; ++i)
        uc_port_vlan_cfg[i] = {kUsed, 1, static_cast<uint16_t>(4095 - i)};
    static ze_port_vlan_cfg_s copy[ZE_VLAN_CFG_COUNT];
    for (uint32_t vlan : {0u, 4095u, 4096u, 17u}) {
        std::memcpy(copy, uc_port_vlan_cfg, sizeof copy);
        EXPECT_EQ(ze_lsw_vlan_inner_save_cfg(vlan, 3), reference_save(copy, vlan, 3));
        EXPECT_EQ(ze_lsw_vlan_inner_cancel_cfg(vlan, 0), reference_cancel(copy, vlan, 0));
        EXPECT_EQ(bytes_of(uc_port_vlan_cfg), bytes_of(copy));
    }
}

// Small pools give many delete-alls over short tables; a large one gives
// long tables with removals throughout.
TEST_F(VlanWalks, DeleteAllAgreesWithThePositionWalk) {
    for_seeds([&](uint32_t seed) {
        for (auto [pool, steps] : {std::pair{12u, 300u}, std::pair{200u, 500u}}) {
            std::vector<Observed> now = delete_alls(seed, pool, steps, ze_lsw_vlan_del_all_cfg);
            std::vector<Observed> before = delete_alls(seed, pool, steps, reference_del_all);
            ASSERT_EQ(now.size(), before.size());
            for (size_t i = 0; i < now.size(); ++i) {
                SCOPED_TRACE("delete-all " + std::to_string(i));
                EXPECT_EQ(now[i].result, before[i].result);
                EXPECT_EQ(now[i].traces, before[i].traces);
                EXPECT_EQ(now[i].console, before[i].console);
                EXPECT_EQ(now[i].log, before[i].log);
                ASSERT_EQ(now[i].shadow, before[i].shadow);
            }
        }
    });
}

// ---- the IP filter table ------------------------------------------------------

// The slot search as it was: a scan for the same rule, then one for a free
// slot.
uint32_t reference_index(const ze_lsw_ip_filter_rule_s &rule, uint32_t *index) {
    for (uint32_t i = 0; i < ZE_LSW_IP_FILTER_COUNT; ++i) {
        const ze_ip_filter_status_s &s = st_ip_filter_status[i];
        if (s.used && std::memcmp(&s.rule, &rule, sizeof rule) == 0) {
            *index = i;
            return ZE_ERR_EXISTS;
        }
    }
    for (uint32_t i = 0; i < ZE_LSW_IP_FILTER_COUNT; ++i) {
        if (!st_ip_filter_status[i].used) {
            *index = i;
            return ZE_OK;
        }
    }
    return ZE_ERR_FULL;
}

// Histories of adds and deletes over a pool of 80 rules (more than the table
// holds), some differing in a single byte; before every step the library's
// search and the reference agree on the result, the index and the trace.
TEST_F(ShadowWalks, IpFilterSearchAgreesWithTheTwoScans) {
    for_seeds([&](uint32_t seed) {
        std::memset(st_ip_filter_status, 0, sizeof st_ip_filter_status);
        std::mt19937 rng(seed);
        std::vector<ze_lsw_ip_filter_rule_s> pool(80);
        for (size_t i = 0; i < pool.size(); ++i) {
            ze_lsw_ip_filter_rule_s &r = pool[i];
            std::memset(&r, 0, sizeof r);
            r.porttype = i % 3;
            r.ipversion = i % 2;
            r.mask = 24;
            r.ip[i % 16] = static_cast<uint8_t>(1 + i / 16);
        }
        for (uint32_t step = 0; step < 2000; ++step) {
            const ze_lsw_ip_filter_rule_s &rule = pool[rng() % pool.size()];
            uint32_t expected_index = 0xdead, got_index = 0xdead;
            uint32_t expected = reference_index(rule, &expected_index);
            ze_host_trace_clear();
            ASSERT_EQ(ze_lsw_sec_get_ip_filter_table_index(&rule, &got_index), expected);
            ASSERT_EQ(got_index, expected_index);
            ASSERT_EQ(traces().size(), 1u);
            EXPECT_EQ(traces()[0].result, expected);
            if (rng() % 3)
                ze_lsw_sec_add_ip_filter_table(&rule);
            else
                ze_lsw_sec_del_ip_filter_table(&rule);
        }
    });
}

}  // namespace
