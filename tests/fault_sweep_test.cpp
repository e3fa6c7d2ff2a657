// The fault sweep. Every exported function that issues a driver command, a
// named kernel call or a datapath library call is run once without faults
// on a fresh simulator (its API table example, after the example's setup)
// to learn what it issues. Then each command and call fails in turn, each
// occurrence in turn (evenly spread samples past kSampled), with the
// driver's 0xf0000101 and with another code, and each heap allocation
// fails in turn. No case may crash or leak; each must return what the
// function's failure rule allows and leave the shadow tables as the rule
// says.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "api_call.h"
#include "fault_sweep_rules.h"
#include "shadow_tables.h"
#include "shell.h"
#include "test_support.h"
#include "ze_lsw_flow.h"
#include "ze_result.h"

namespace sweep {
void PrintTo(const FunctionRule &r, std::ostream *os) { *os << r.function; }
}  // namespace sweep

namespace {

using sweep::Result;
using zesh::api::Row;

constexpr uint32_t kOtherCode = 0xf00001ff;  // a driver answer the library does not tell apart
constexpr uint32_t kCodes[] = {ZE_DRV_INVALID_PARAM, kOtherCode};
constexpr uint32_t kSampled = 40;      // occurrences failed per command or call, at most
constexpr uint32_t kReported = 10;     // failing cases reported per function
constexpr int32_t kAllocations = 64;   // more allocations in one call are a runaway
constexpr char kOpen[] = "0x0";        // the bracket open: its failure is that of the command it opens
constexpr char kClose[] = "0x1";       // the bracket close, whose answer the channel ignores

// One thing a function issues, named as the simulator's faults name it (a
// command id "0x101" or a call name), and which occurrence it is.
struct Issue {
    std::string event;
    uint32_t nth = 0;
    bool operator==(const Issue &) const = default;
};

// A place to fail: what fails, and the step its failure stands for (an
// open stands for the command it brackets; anything else for itself).
struct Fault {
    Issue hit, step;
    bool operator==(const Fault &) const = default;
};

std::string hex(uint32_t v) {
    char s[16];
    std::snprintf(s, sizeof s, "0x%x", v);
    return s;
}

// Everything a run issued, in order. Occurrences are counted as the
// simulator counts them for a fault: a command id over every ioctl with
// that id, a name over every entry with that name.
std::vector<Fault> issued(const std::deque<zesim::LogEntry> &log) {
    std::vector<Fault> out;
    std::map<std::string, uint32_t> seen;
    size_t open = SIZE_MAX;
    for (const zesim::LogEntry &e : log) {
        const bool ioctl = e.kind == zesim::EntryKind::Ioctl;
        const std::string id = ioctl ? hex(e.cmd) : "";
        if (ioctl) ++seen[id];
        if (!e.name.empty()) ++seen[e.name];
        const std::string event = e.name.empty() ? id : e.name;
        const Issue is{event, seen[event]};
        out.push_back({is, is});
        if (ioctl && e.name.empty() && e.cmd == zesim::kCmdOpen) {
            open = out.size() - 1;
        } else if (ioctl && e.name.empty() && e.cmd != zesim::kCmdClose && open != SIZE_MAX) {
            out[open].step = is;
            open = SIZE_MAX;
        }
    }
    return out;
}

// Every occurrence of an event issued up to kSampled times; of one issued
// more often, kSampled occurrences spread evenly from the first to the last.
std::vector<Fault> sampled(const std::vector<Fault> &all) {
    std::map<std::string, uint32_t> total;
    for (const Fault &f : all) total[f.hit.event] = f.hit.nth;
    std::vector<Fault> out;
    for (const Fault &f : all) {
        const uint32_t n = total[f.hit.event];
        bool keep = n <= kSampled;
        for (uint32_t k = 0; !keep && k < kSampled; ++k) keep = f.hit.nth == 1 + k * (n - 1) / (kSampled - 1);
        if (keep) out.push_back(f);
    }
    return out;
}

void inject(const Issue &hit, uint32_t code) {
    if (hit.event.starts_with("0x"))
        zesim::fail(static_cast<uint32_t>(std::stoul(hit.event, nullptr, 16)), code, hit.nth);
    else
        zesim::fail_call(hit.event.c_str(), code, hit.nth);
}

// Every shadow table's bytes, in the order of the shared list.
using Tables = std::vector<zesim::Bytes>;

Tables snapshot() {
    Tables t;
    for (const zetest::ShadowTable &s : zetest::shadow_tables()) {
        const auto *p = static_cast<const uint8_t *>(s.address);
        t.emplace_back(p, p + s.size);
    }
    return t;
}

// The tables with every sfid's GEM port removed as a GEM port deletion
// records it: entry in use, T-CONT 8, GEM port 4096.
Tables gem_ports_gone(Tables t) {
    const auto tables = zetest::shadow_tables();
    for (size_t i = 0; i < tables.size(); ++i) {
        if (std::string_view(tables[i].name) != "st_sfcmapping") continue;
        for (size_t off = 0; off + sizeof(ze_sfc_shadow_s) <= t[i].size(); off += sizeof(ze_sfc_shadow_s)) {
            ze_sfc_shadow_s e;
            std::memcpy(&e, t[i].data() + off, sizeof e);
            e.status = 1;
            e.tcont = 8;
            e.gemport = 4096;
            std::memcpy(t[i].data() + off, &e, sizeof e);
        }
    }
    return t;
}

struct Call {
    uint32_t result = 0;
    int64_t leaked = 0;
    Tables before, after;
};

void discard(const char *, size_t, void *) {}

class Sweep : public zetest::SimTest {
protected:
    // The row's example on a fresh simulator: its setup, then the call with
    // `arm` run just before it. What the call issued stays in the log.
    Call run(const Row &row, const std::function<void()> &arm) {
        zesim::reset();
        zetest::clear_shadow_tables();
        if (row.example.setup) {
            std::ostringstream out;
            zesh::Shell shell(out);
            EXPECT_TRUE(shell.run_line(row.example.setup)) << out.str();
        }
        ze_host_set_print_sink(discard, nullptr);
        std::vector<zesh::api::Bytes> args = zesh::api::empty_args(row);
        const auto lines = zesh::split_line(row.example.args);
        std::string error;
        EXPECT_TRUE(zesh::api::fill_args(row, lines.empty() ? std::vector<std::string>{} : lines[0], args, error))
            << error;
        Call r;
        r.before = snapshot();
        zesim::clear_log();
        const int64_t heap = ze_host_heap_outstanding();
        arm();
        r.result = zesh::api::invoke(row, args);
        ze_host_malloc_fail_at(-1);
        zesim::clear_faults();
        r.leaked = ze_host_heap_outstanding() - heap;
        r.after = snapshot();
        return r;
    }
};

// What a function's rule says of one failure.
struct Expected {
    Result result;
    sweep::Shadow shadow;
};

Expected expected(const sweep::Rule &rule, const Fault &f) {
    if (f.hit.event == kClose) return {Result::Ignored, sweep::Shadow::AsWithout};
    for (const sweep::Step &s : rule.except)
        if (f.step.event == s.event && (s.nth == 0 || s.nth == f.step.nth))
            return {s.result, s.result == Result::Ignored ? sweep::Shadow::AsWithout : rule.shadow};
    return {rule.result, rule.shadow};
}

// How a run broke what was expected of it (empty when it did not). `code`
// is the injected code, 0 for a failed allocation.
std::string violation(const Expected &want, uint32_t code, const Call &fine, const Call &r) {
    if (r.leaked) return "leaks " + std::to_string(r.leaked) + " heap blocks";
    uint32_t allowed = fine.result;
    if (want.result == Result::Folded)
        allowed = ZE_ERR_FAIL;
    else if (want.result != Result::Ignored && code == 0)
        allowed = ZE_ERR_NO_MEMORY;
    else if (want.result == Result::Mapped)
        allowed = code == ZE_DRV_INVALID_PARAM ? ZE_ERR_PARAM : ZE_ERR_FAIL;
    else if (want.result == Result::PassedOn)
        allowed = code;
    if (r.result != allowed) return "returns " + hex(r.result) + " where its rule gives " + hex(allowed);

    using sweep::Shadow;
    std::vector<const Tables *> may_hold;
    if (want.shadow != Shadow::AsWithout) may_hold.push_back(&r.before);
    if (want.shadow != Shadow::Unchanged) may_hold.push_back(&fine.after);
    Tables gone;
    if (want.shadow == Shadow::GemFirst) may_hold.push_back(&(gone = gem_ports_gone(r.before)));
    const auto tables = zetest::shadow_tables();
    for (size_t t = 0; t < tables.size(); ++t) {
        if (std::any_of(may_hold.begin(), may_hold.end(), [&](const Tables *m) { return (*m)[t] == r.after[t]; }))
            continue;
        for (size_t b = 0; b < r.after[t].size(); ++b) {
            bool held = false;
            for (const Tables *m : may_hold) held = held || (*m)[t][b] == r.after[t][b];
            if (!held)
                return std::string("leaves ") + tables[t].name + " byte " + std::to_string(b) + " = " +
                       hex(r.after[t][b]) + " (before the call " + hex(r.before[t][b]) + ", after it without faults " +
                       hex(fine.after[t][b]) + ")";
        }
    }
    return {};
}

std::string describe(const Fault &f, uint32_t code) {
    std::string s = f.hit.event + " #" + std::to_string(f.hit.nth);
    if (f.step != f.hit) s += " (opening " + f.step.event + " #" + std::to_string(f.step.nth) + ")";
    return s + " fails with " + hex(code);
}

// A failure ends the function: after the failing step it issues nothing
// but the close of the failing command's own bracket.
std::string went_on(const std::vector<Fault> &learned, const Fault &f, const std::vector<Fault> &got) {
    size_t end = static_cast<size_t>(std::find(learned.begin(), learned.end(), f) - learned.begin()) + 1;
    if (f.hit.event != kOpen && end < learned.size() && learned[end].hit.event == kClose) ++end;
    for (size_t i = 0; i < std::max(got.size(), end); ++i) {
        if (i >= got.size()) return "stops before " + learned[i].hit.event + " #" + std::to_string(learned[i].hit.nth);
        if (i >= end || got[i].hit != learned[i].hit)
            return "goes on after the failure with " + got[i].hit.event + " #" + std::to_string(got[i].hit.nth);
    }
    return {};
}

// The distinct events of a run, in the order first issued.
std::string events_of(const std::vector<Fault> &issued) {
    std::string s;
    std::set<std::string> named;
    for (const Fault &f : issued)
        if (named.insert(f.hit.event).second) s += (s.empty() ? "" : " ") + f.hit.event;
    return s;
}

using FaultSweepRules = Sweep;

TEST_F(FaultSweepRules, NameEveryFunctionThatReachesTheDriverOnce) {
    std::set<std::string_view> ruled;
    for (const sweep::FunctionRule &r : sweep::kFunctionRules) {
        EXPECT_TRUE(ruled.insert(r.function).second) << r.function << " has two rules";
        EXPECT_NE(zesh::api::find(r.function), nullptr) << r.function << " is not an exported API function";
    }
    for (const zesh::api::Area &area : zesh::api::areas())
        for (const Row &row : area.rows) {
            run(row, [] {});
            const std::vector<Fault> learned = issued(zesim::log());
            if (learned.empty())
                EXPECT_FALSE(ruled.contains(row.name)) << row.name << " has a failure rule but issues nothing";
            else
                EXPECT_TRUE(ruled.contains(row.name))
                    << row.name << " issues " << events_of(learned) << " and has no failure rule";
        }
}

class FaultSweep : public Sweep, public ::testing::WithParamInterface<sweep::FunctionRule> {};

TEST_P(FaultSweep, EachFailureKeepsTheFunctionsRule) {
    const sweep::FunctionRule &fr = GetParam();
    const Row *row = zesh::api::find(fr.function);
    ASSERT_NE(row, nullptr) << fr.function;
    const Call fine = run(*row, [] {});
    const std::vector<Fault> learned = issued(zesim::log());
    ASSERT_FALSE(learned.empty()) << fr.function << " issues nothing";
    ASSERT_EQ(fine.leaked, 0) << fr.function << " leaks without faults";

    uint32_t failing = 0;
    auto report = [&](const std::string &what, const std::string &broken) {
        if (!broken.empty() && ++failing <= kReported) ADD_FAILURE() << fr.function << ": " << what << ": " << broken;
    };
    for (const Fault &f : sampled(learned))
        for (uint32_t code : kCodes) {
            const Expected want = expected(fr.rule, f);
            const Call r = run(*row, [&] { inject(f.hit, code); });
            std::string broken = violation(want, code, fine, r);
            if (broken.empty() && want.result != Result::Ignored) broken = went_on(learned, f, issued(zesim::log()));
            report(describe(f, code), broken);
        }
    // Allocations are counted by failing them: the first whose failure
    // changes nothing is one the call does not make.
    for (int32_t n = 0;; ++n) {
        ASSERT_LT(n, kAllocations) << fr.function << " allocates without end";
        const Call r = run(*row, [n] { ze_host_malloc_fail_at(n); });
        if (r.result == fine.result && issued(zesim::log()) == learned && r.after == fine.after && !r.leaked) break;
        report("allocation #" + std::to_string(n) + " fails", violation({fr.rule.result, fr.rule.shadow}, 0, fine, r));
    }
    EXPECT_LE(failing, kReported) << fr.function << ": " << failing - kReported << " more failing cases";
}

INSTANTIATE_TEST_SUITE_P(Every, FaultSweep, ::testing::ValuesIn(sweep::kFunctionRules),
                         [](const auto &info) { return std::string(info.param.function); });

}  // namespace
