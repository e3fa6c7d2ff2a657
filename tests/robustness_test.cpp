// Every registered command survives hostile requests: random field values
// drawn around the tables' edges, and random lengths. Run under the
// sanitizers this catches reads and writes outside blocks, shadow tables and
// requests, and allocations that are not given back.
#include <cstring>
#include <random>
#include <vector>

#include "command_table.h"
#include "request.h"
#include "test_support.h"

namespace {

using zesh::CommandSpec;

class Robustness : public zetest::SimTest, public ::testing::WithParamInterface<CommandSpec> {};

// Values near the edges of the library's tables and ranges, or anything.
uint32_t edgy(std::mt19937 &rng) {
    static const uint32_t kEdges[] = {0,   1,    2,    3,    4,    5,    6,    7,    8,         9,
                                      13,  14,   15,   16,   24,   25,   63,   64,   127,       128,
                                      255, 256,  404,  405,  1023, 1024, 4095, 4096, 0x7fffffff, 0xffffffff};
    switch (rng() % 3) {
        case 0: return kEdges[rng() % std::size(kEdges)];
        case 1: return rng() % 16;
        default: return static_cast<uint32_t>(rng());
    }
}

TEST_P(Robustness, HostileRequestsNeitherCrashNorLeak) {
    const CommandSpec &c = GetParam();
    const std::string name = std::string(zesh::kCliPrefix) + c.name;
    std::mt19937 rng(static_cast<uint32_t>(std::hash<std::string>{}(name)));
    std::vector<uint8_t> buf(zesh::kRequestBufferSize);
    int64_t heap = ze_host_heap_outstanding();
    for (int round = 0; round < 40; ++round) {
        for (size_t off = 0; off < buf.size(); off += 4) {
            uint32_t v = off < 128 ? edgy(rng) : 0;
            std::memcpy(&buf[off], &v, 4);
        }
        // A checked command also meets lengths around its own.
        uint32_t len = c.request;
        if (c.checked && round % 4 == 3) len = rng() % (c.request + 8);
        uint32_t reply = zesh::kReplyUnset;
        call(name, buf.data(), len, &reply);
        EXPECT_TRUE(reply == zesh::kReplyUnset || reply <= zesh::kRequestBufferSize) << reply;
        if (round % 8 == 7) {
            zesim::clear_log();
            ze_host_trace_clear();
            take_console();
        }
    }
    EXPECT_EQ(ze_host_heap_outstanding(), heap);
}

INSTANTIATE_TEST_SUITE_P(AllCommands, Robustness, ::testing::ValuesIn(zesh::all_commands()), zetest::row_name);

}  // namespace
