// Every registered command through the daemon equals the same command run
// in-process: result, reply length, reply bytes and printed text. Both
// sides start from a fresh library and see the same sequence of requests,
// each on a freshly reset simulator.
#include <regex>

#include "command_table.h"
#include "daemon.h"
#include "request.h"
#include "test_support.h"
#include "ze_ifm_client.h"

namespace {

using zesh::CommandSpec;

struct Outcome {
    uint32_t result;
    uint32_t reply_len;
    std::vector<uint8_t> reply;
    std::string printed;
};

// The IP rule commands dump their request with its buffer's address, which
// differs between the two processes.
std::string without_addresses(const std::string &s) {
    static const std::regex kAddress(R"(\[0x[0-9a-f]+\] :)");
    return std::regex_replace(s, kAddress, "[address] :");
}

bool operator==(const Outcome &a, const Outcome &b) {
    return a.result == b.result && a.reply_len == b.reply_len && a.reply == b.reply &&
           without_addresses(a.printed) == without_addresses(b.printed);
}

void PrintTo(const Outcome &o, std::ostream *os) {
    *os << "result " << o.result << ", reply length " << o.reply_len << ", " << o.reply.size()
        << " reply bytes, printed \"" << o.printed << "\"";
}

// Two requests per command: all zeros, and every byte a small value that
// differs from its neighbours.
std::vector<std::vector<uint8_t>> requests_for(const CommandSpec &c) {
    std::vector<uint8_t> zeros(c.request), pattern(c.request);
    for (size_t i = 0; i < pattern.size(); ++i) pattern[i] = static_cast<uint8_t>(i % 7);
    return {zeros, pattern};
}

class Roundtrip : public zetest::SimTest {
protected:
    Outcome in_process(const CommandSpec &c, const std::vector<uint8_t> &request) {
        zesim::reset();
        take_console();
        std::vector<uint8_t> buf(zesh::kRequestBufferSize, 0);
        std::copy(request.begin(), request.end(), buf.begin());
        uint32_t reply_len = zesh::kReplyUnset;
        Outcome o{call(std::string(zesh::kCliPrefix) + c.name, buf.data(),
                       static_cast<uint32_t>(request.size()), &reply_len),
                  ZE_IFM_NO_REPLY, {}, ""};
        if (reply_len != zesh::kReplyUnset) {
            o.reply_len = reply_len;
            o.reply.assign(buf.begin(), buf.begin() + reply_len);
        }
        o.printed = take_console();
        return o;
    }

    Outcome remote(ze_ifm_client *client, const CommandSpec &c, const std::vector<uint8_t> &request) {
        char *text = nullptr;
        EXPECT_EQ(ze_ifm_client_line_on(client, "sim reset", &text), 0u);
        ze_ifm_client_free(text);
        std::vector<uint8_t> reply(zesh::kRequestBufferSize);
        uint32_t reply_len = static_cast<uint32_t>(reply.size());
        Outcome o{ze_ifm_client_call_on(client, c.name, request.data(), static_cast<uint32_t>(request.size()),
                                        reply.data(), &reply_len, &text),
                  reply_len, {}, text ? text : ""};
        ze_ifm_client_free(text);
        if (reply_len != ZE_IFM_NO_REPLY) o.reply.assign(reply.begin(), reply.begin() + reply_len);
        return o;
    }
};

TEST_F(Roundtrip, EveryCommandAnswersAsInProcess) {
    zetest::Daemon daemon;
    ze_ifm_client *client = ze_ifm_client_open(daemon.socket().c_str());
    ASSERT_NE(client, nullptr);
    for (const CommandSpec &c : zesh::all_commands()) {
        for (const auto &request : requests_for(c)) {
            SCOPED_TRACE(c.name);
            EXPECT_EQ(remote(client, c, request), in_process(c, request));
        }
    }
    ze_ifm_client_close(client);
    EXPECT_EQ(daemon.stop(), 0) << daemon.log();
}

}  // namespace
