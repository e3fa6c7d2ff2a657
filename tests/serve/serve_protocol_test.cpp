// Untrusted input on the wire: truncated, oversized, random and unknown
// frames each get an error answer, and the daemon goes on serving. Run
// under the sanitizers, the unchecked handlers' zero-length requests show
// that every handler stays inside the buffer it is given.
#include <random>

#include "command_table.h"
#include "daemon.h"
#include "serve/protocol.h"
#include "test_support.h"

namespace {

using zetest::RawAnswer;
using zetest::RawClient;

const std::vector<uint8_t> kVersionRequest(4, 0);
std::vector<uint8_t> filled_past_the_buffer() {
    std::vector<uint8_t> b(ZE_IFM_REQUEST_MAX + 1, 0);
    b.back() = 1;
    return b;
}
const std::vector<uint8_t> kFlowDiagnosePastIt = filled_past_the_buffer();

class Protocol : public ::testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(daemon.stop(), 0) << daemon.log(); }

    // The daemon still answers a well-formed call, on a new connection.
    void expect_serving() {
        RawClient c(daemon.socket());
        exchange(c, zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("chip_get_version", kVersionRequest), 7));
        EXPECT_EQ(last.status, ZE_IFM_STATUS_OK);
        EXPECT_EQ(last.data, zetest::native_words({0x00010002}));
    }

    void exchange(RawClient &c, const std::vector<uint8_t> &f) {
        ASSERT_TRUE(c.send(f));
        ASSERT_TRUE(c.read(last));
    }

    zetest::Daemon daemon;
    RawAnswer last;
};

TEST_F(Protocol, EveryTruncationOfACallIsMalformed) {
    const auto whole = zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("chip_get_version", kVersionRequest), 3);
    RawClient c(daemon.socket());
    // The length word claims, and the frame holds, only the first n bytes.
    for (uint32_t n = 0; n + 4 < whole.size(); ++n) {
        SCOPED_TRACE(n);
        std::vector<uint8_t> cut(whole.begin(), whole.begin() + 4 + n);
        ze_ifm_put32(cut.data(), n);
        exchange(c, cut);
        EXPECT_EQ(last.status, ZE_IFM_STATUS_MALFORMED);
        EXPECT_EQ(last.tag, n >= 12 ? 3u : 0u);
        EXPECT_EQ(last.reply_len, ZE_IFM_NO_REPLY);
        EXPECT_FALSE(last.text.empty());
    }
    exchange(c, whole);
    EXPECT_EQ(last.status, ZE_IFM_STATUS_OK);
}

TEST_F(Protocol, LengthsUpToTheLimitAreAnsweredAndPastItCloseTheConnection) {
    RawClient c(daemon.socket());
    std::mt19937 rng(11);
    // Calls of sizes up to the largest frame whose request length claims the
    // whole body: past the buffer too large, else at odds with the body.
    for (uint32_t size = ZE_IFM_HEADER_SIZE; size <= ZE_IFM_FRAME_MAX; size += 4093) {
        std::vector<uint8_t> body(size - ZE_IFM_HEADER_SIZE);
        for (auto &b : body) b = static_cast<uint8_t>(rng());
        if (body.size() >= 8) {
            ze_ifm_put32(body.data(), static_cast<uint32_t>(body.size()));
            ze_ifm_put16(&body[6], 0);  // no further bytes
        }
        exchange(c, zetest::frame(ZE_IFM_KIND_CALL, body));
        EXPECT_EQ(last.status, body.size() > ZE_IFM_REQUEST_MAX ? ZE_IFM_STATUS_TOO_LARGE : ZE_IFM_STATUS_MALFORMED)
            << size;
    }
    std::vector<uint8_t> body = zetest::call_body("chip_get_version", std::vector<uint8_t>(ZE_IFM_REQUEST_MAX + 1));
    exchange(c, zetest::frame(ZE_IFM_KIND_CALL, body));
    EXPECT_EQ(last.status, ZE_IFM_STATUS_TOO_LARGE);

    for (uint32_t claimed : {ZE_IFM_FRAME_MAX - 3, 0x7fffffffu, 0xffffffffu}) {
        RawClient big(daemon.socket());
        std::vector<uint8_t> f = zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("chip_get_version", kVersionRequest), 9);
        ze_ifm_put32(f.data(), claimed);
        exchange(big, f);
        EXPECT_EQ(last.status, ZE_IFM_STATUS_TOO_LARGE);
        EXPECT_EQ(last.tag, 9u);
        EXPECT_TRUE(big.closed_by_daemon());
    }
    expect_serving();
}

TEST_F(Protocol, WrongVersionUnknownKindFlagsAndCommandsAreRefused) {
    struct Case {
        std::vector<uint8_t> frame;
        uint32_t status;
    } cases[] = {
        {zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("chip_get_version", kVersionRequest), 1, 2),
         ZE_IFM_STATUS_WRONG_VERSION},
        {zetest::frame(ZE_IFM_KIND_DESCRIBE_API + 1, {}), ZE_IFM_STATUS_UNKNOWN_KIND},
        {zetest::frame(0x7fff, {}), ZE_IFM_STATUS_UNKNOWN_KIND},
        {zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("echo x"), 1, ZE_IFM_VERSION, 1),
         ZE_IFM_STATUS_UNSUPPORTED_FLAGS},
        {zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("no_such_command", {})), ZE_IFM_STATUS_UNKNOWN_COMMAND},
        {zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body(std::string("chip_get_version\0x", 18), kVersionRequest)),
         ZE_IFM_STATUS_UNKNOWN_COMMAND},
        {zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("emac_get_llid", kVersionRequest)),
         ZE_IFM_STATUS_UNKNOWN_COMMAND},
        {zetest::frame(ZE_IFM_KIND_DESCRIBE, {1}), ZE_IFM_STATUS_MALFORMED},
        {zetest::frame(ZE_IFM_KIND_DESCRIBE_API, {1}), ZE_IFM_STATUS_MALFORMED},
        // A request within the buffer, with further bytes past it.
        {zetest::frame(ZE_IFM_KIND_CALL, zesh::serve::call_body("flow_diagnose", kFlowDiagnosePastIt, 0)),
         ZE_IFM_STATUS_TOO_LARGE},
        {zetest::frame(ZE_IFM_KIND_LINE, {'e', 0, 'x'}), ZE_IFM_STATUS_MALFORMED},
    };
    RawClient c(daemon.socket());
    for (const Case &k : cases) {
        exchange(c, k.frame);
        EXPECT_EQ(last.status, k.status) << last.text;
        EXPECT_EQ(last.kind, (ze_ifm_get16(&k.frame[6]) | ZE_IFM_ANSWER_BIT));
    }
    expect_serving();
}

TEST_F(Protocol, RandomFramesAndStreamsNeverStopTheDaemon) {
    std::mt19937 rng(5);
    RawClient c(daemon.socket());
    for (int i = 0; i < 300; ++i) {
        std::vector<uint8_t> f(ZE_IFM_HEADER_SIZE + rng() % 200);
        for (auto &b : f) b = static_cast<uint8_t>(rng());
        ze_ifm_put32(f.data(), static_cast<uint32_t>(f.size() - 4));
        if (i % 2) ze_ifm_put16(&f[4], ZE_IFM_VERSION);
        if (i % 4 == 1) ze_ifm_put16(&f[6], static_cast<uint16_t>(1 + rng() % 3));
        if (i % 8 == 1) ze_ifm_put32(&f[12], 0);
        exchange(c, f);
        EXPECT_EQ(last.tag, ze_ifm_get32(&f[8]));
    }
    // Streams of noise, then gone, often inside a frame.
    for (int i = 0; i < 30; ++i) {
        RawClient noise(daemon.socket());
        std::vector<uint8_t> junk(1 + rng() % 3000);
        for (auto &b : junk) b = static_cast<uint8_t>(rng());
        noise.send(junk);
    }
    expect_serving();
}

TEST_F(Protocol, PipelinedRequestsAreAnsweredInOrder) {
    RawClient c(daemon.socket());
    std::vector<uint8_t> burst;
    for (uint32_t tag = 1; tag <= 200; ++tag) {
        auto f = tag % 2 ? zetest::frame(ZE_IFM_KIND_LINE, zetest::text_body("echo " + std::to_string(tag)), tag)
                         : zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body("chip_get_version", kVersionRequest), tag);
        burst.insert(burst.end(), f.begin(), f.end());
    }
    ASSERT_TRUE(c.send(burst));
    for (uint32_t tag = 1; tag <= 200; ++tag) {
        ASSERT_TRUE(c.read(last));
        EXPECT_EQ(last.tag, tag);
        EXPECT_EQ(last.status, ZE_IFM_STATUS_OK);
        EXPECT_EQ(last.text, tag % 2 ? std::to_string(tag) + "\n" : "");
    }
}

// The handlers that read or write their request unchecked get a request of
// nothing at all; a buffer cut to the request's length would be overrun.
TEST_F(Protocol, UncheckedHandlersStayInsideTheBuffer) {
    RawClient c(daemon.socket());
    for (const zesh::CommandSpec &row : zesh::all_commands()) {
        if (row.checked) continue;
        SCOPED_TRACE(row.name);
        exchange(c, zetest::frame(ZE_IFM_KIND_CALL, zetest::call_body(row.name, {})));
        EXPECT_EQ(last.status, ZE_IFM_STATUS_OK) << last.text;
    }
    expect_serving();
}

}  // namespace
