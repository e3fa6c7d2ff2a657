// libFuzzer target: every input runs a short sequence of registered commands
// (command_input.h) through their handlers on the simulator, under ASan and
// UBSan. A checked handler gets a heap buffer of exactly the request length,
// so any read or write past what the client sent is a finding; a handler
// that does not check its request gets the zero-padded buffer the interface
// manager guarantees. After every input, every block the library took from
// the platform heap must have been given back.
//
// By default every input starts from a fresh simulator and empty shadow
// tables. With ZE_FUZZ_KEEP_STATE=1 in the environment the state carries
// over from input to input, so the tables fill and their full and
// wrap-around paths are reached.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "command_input.h"
#include "command_table.h"
#include "request.h"
#include "shadow_tables.h"
#include "ze_adapter_cli.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace {

struct Target {
    const zesh::CommandSpec *row;
    ze_ifm_handler_f handler;
};

std::vector<Target> g_targets;
bool g_keep_state = false;

void discard(const char *, size_t, void *) {}

[[noreturn]] void finding(const char *what, const Target &t, uint32_t value) {
    std::fprintf(stderr, "command fuzzer: %s%s: %s (%u)\n", zesh::kCliPrefix, t.row->name, what, value);
    std::abort();
}

void run(const zefuzz::Step &step) {
    const Target &t = g_targets[step.row];
    const uint32_t capacity = t.row->checked ? step.length : zesh::kRequestBufferSize;
    std::unique_ptr<uint8_t[]> buf(new uint8_t[capacity]());
    std::copy_n(step.bytes.begin(), std::min(step.length, capacity), buf.get());
    uint32_t reply = zesh::kReplyUnset;
    t.handler(buf.get(), step.length, &reply);
    if (reply != zesh::kReplyUnset && reply > capacity) finding("reply longer than the buffer", t, reply);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    ze_host_use_simulator();
    ze_host_set_print_sink(discard, nullptr);
    if (uint32_t r = ze_adapter_cli_init()) {
        std::fprintf(stderr, "command fuzzer: registration failed with 0x%08x\n", r);
        std::abort();
    }
    for (const zesh::CommandSpec &row : zesh::all_commands()) {
        const std::string name = std::string(zesh::kCliPrefix) + row.name;
        ze_ifm_handler_f h = ze_host_ifm_find(name.c_str());
        if (!h) {
            std::fprintf(stderr, "command fuzzer: %s is not registered\n", name.c_str());
            std::abort();
        }
        g_targets.push_back({&row, h});
    }
    const char *keep = std::getenv("ZE_FUZZ_KEEP_STATE");
    g_keep_state = keep && std::strcmp(keep, "1") == 0;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (g_keep_state) {
        zesim::clear_log();  // the log would only grow
    } else {
        zesim::reset();
        zetest::clear_shadow_tables();
    }
    ze_host_trace_clear();
    const int64_t heap = ze_host_heap_outstanding();
    zefuzz::StepReader reader({data, size});
    zefuzz::Step step;
    while (reader.next(step)) {
        run(step);
        const int64_t outstanding = ze_host_heap_outstanding();
        if (outstanding != heap)
            finding("platform heap blocks not given back", g_targets[step.row],
                    static_cast<uint32_t>(outstanding - heap));
    }
    return 0;
}
