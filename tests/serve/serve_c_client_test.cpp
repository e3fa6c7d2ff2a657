// The C client library: the process connection and its socket choice, the
// caller's reply room, argument refusals, and answers from a daemon that
// does not keep to the wire format.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <thread>

#include "daemon.h"
#include "test_support.h"
#include "ze_ifm_client.h"

namespace {

const uint8_t kVersion[] = {0x02, 0x00, 0x01, 0x00};

TEST(CClient, ProcessConnectionFollowsTheEnvironmentAndReconnects) {
    uint8_t req[4] = {}, reply[4] = {};
    uint32_t len = sizeof reply;
    char *printed = nullptr;
    {
        zetest::Daemon first;
        setenv(ZE_IFM_SOCKET_ENV, first.socket().c_str(), 1);
        EXPECT_EQ(ze_ifm_client_call("chip_get_version", req, 4, reply, &len, &printed), 0u);
        EXPECT_EQ(len, 4u);
        EXPECT_EQ(std::memcmp(reply, kVersion, 4), 0);
        EXPECT_STREQ(printed, "");
        ze_ifm_client_free(printed);
        EXPECT_EQ(first.stop(), 0);
    }
    // The daemon went away: the broken connection is reported, then the
    // next call opens a new one to wherever the environment points now.
    EXPECT_EQ(ze_ifm_client_call("chip_get_version", req, 4, reply, &len, nullptr), ZE_IFM_CLIENT_ERR_IO);
    EXPECT_EQ(ze_ifm_client_call("chip_get_version", req, 4, reply, &len, nullptr), ZE_IFM_CLIENT_ERR_CONNECT);
    zetest::Daemon second;
    setenv(ZE_IFM_SOCKET_ENV, second.socket().c_str(), 1);
    EXPECT_EQ(ze_ifm_client_call("chip_get_version", req, 4, reply, &len, nullptr), 0u);

    EXPECT_EQ(ze_ifm_client_connect("/nonexistent/ifm.sock"), ZE_IFM_CLIENT_ERR_CONNECT);
    EXPECT_EQ(ze_ifm_client_call("chip_get_version", req, 4, reply, &len, nullptr), ZE_IFM_CLIENT_ERR_CONNECT);
    EXPECT_EQ(ze_ifm_client_connect(nullptr), 0u);
    EXPECT_EQ(ze_ifm_client_call("chip_get_version", req, 4, reply, &len, nullptr), 0u);
    ze_ifm_client_disconnect();
    unsetenv(ZE_IFM_SOCKET_ENV);
}

TEST(CClient, RepliesFitTheRoomGivenAndRefusalsSayWhy) {
    zetest::Daemon d;
    ze_ifm_client *c = ze_ifm_client_open(d.socket().c_str());
    ASSERT_NE(c, nullptr);
    uint8_t req[4] = {}, reply[4] = {0xaa, 0xaa, 0xaa, 0xaa};
    uint32_t len = 2;
    EXPECT_EQ(ze_ifm_client_call_on(c, "ze_adapter_cli_chip_get_version", req, 4, reply, &len, nullptr), 0u);
    EXPECT_EQ(len, 4u);
    EXPECT_EQ(reply[1], 0x00);
    EXPECT_EQ(reply[2], 0xaa);
    len = 0;
    EXPECT_EQ(ze_ifm_client_call_on(c, "chip_set_upmode", req, 4, nullptr, &len, nullptr), 0u);
    EXPECT_EQ(len, ZE_IFM_NO_REPLY);

    const std::string too_long(ZE_IFM_NAME_MAX + 1, 'x');
    std::vector<uint8_t> big(ZE_IFM_REQUEST_MAX + 1);
    EXPECT_EQ(ze_ifm_client_call_on(c, nullptr, req, 4, nullptr, nullptr, nullptr), ZE_IFM_CLIENT_ERR_ARGUMENT);
    EXPECT_EQ(ze_ifm_client_call_on(c, too_long.c_str(), req, 4, nullptr, nullptr, nullptr), ZE_IFM_CLIENT_ERR_ARGUMENT);
    EXPECT_EQ(ze_ifm_client_call_on(c, "chip_get_version", big.data(), static_cast<uint32_t>(big.size()), nullptr,
                                    nullptr, nullptr),
              ZE_IFM_CLIENT_ERR_ARGUMENT);
    EXPECT_EQ(ze_ifm_client_line_on(c, nullptr, nullptr), ZE_IFM_CLIENT_ERR_ARGUMENT);

    char *why = nullptr;
    EXPECT_EQ(ze_ifm_client_call_on(c, "no_such", nullptr, 0, nullptr, nullptr, &why),
              ZE_IFM_CLIENT_ERR_STATUS(ZE_IFM_STATUS_UNKNOWN_COMMAND));
    EXPECT_STREQ(why, "no command 'no_such'");
    ze_ifm_client_free(why);
    // The connection stays usable after a refusal.
    EXPECT_EQ(ze_ifm_client_line_on(c, "chip_get_upmode", nullptr), 0u);
    ze_ifm_client_close(c);
    EXPECT_EQ(d.stop(), 0);
}

// A peer that answers each request with whatever bytes a case makes of the
// request's tag.
class FakeDaemon {
public:
    explicit FakeDaemon(std::vector<uint8_t> (*answer)(uint32_t tag))
        : dir_(zetest::fresh_dir()), path_(dir_ + "/fake.sock") {
        sockaddr_un addr{};
        addr.sun_family = AF_UNIX;
        std::strncpy(addr.sun_path, path_.c_str(), sizeof addr.sun_path - 1);
        fd_ = socket(AF_UNIX, SOCK_STREAM, 0);
        EXPECT_EQ(bind(fd_, reinterpret_cast<sockaddr *>(&addr), sizeof addr), 0);
        listen(fd_, 1);
        thread_ = std::thread([this, answer] {
            int c = accept(fd_, nullptr, nullptr);
            std::vector<uint8_t> request(ZE_IFM_FRAME_MAX);
            ssize_t n = recv(c, request.data(), request.size(), 0);
            if (n >= static_cast<ssize_t>(ZE_IFM_HEADER_SIZE)) {
                auto bytes = answer(ze_ifm_get32(&request[8]));
                (void)!send(c, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            }
            close(c);
        });
    }
    ~FakeDaemon() {
        thread_.join();
        close(fd_);
        unlink(path_.c_str());
        rmdir(dir_.c_str());
    }
    const std::string &path() const { return path_; }

private:
    std::string dir_, path_;
    int fd_;
    std::thread thread_;
};

std::vector<uint8_t> answer_frame(uint32_t tag, uint32_t data_len, uint32_t text_len, size_t extra) {
    std::vector<uint8_t> f(ZE_IFM_HEADER_SIZE + ZE_IFM_ANSWER_SIZE + extra);
    ze_ifm_put_header(f.data(), static_cast<uint32_t>(ZE_IFM_ANSWER_SIZE + extra),
                      ZE_IFM_KIND_CALL | ZE_IFM_ANSWER_BIT, tag, 0);
    ze_ifm_put32(&f[ZE_IFM_HEADER_SIZE + 8], 4);
    ze_ifm_put32(&f[ZE_IFM_HEADER_SIZE + 12], data_len);
    ze_ifm_put32(&f[ZE_IFM_HEADER_SIZE + 16], text_len);
    return f;
}

TEST(CClient, RefusesAnswersThatBreakTheWireFormat) {
    struct Case {
        const char *what;
        std::vector<uint8_t> (*answer)(uint32_t tag);
        uint32_t expected;
    } cases[] = {
        {"well formed", [](uint32_t tag) { return answer_frame(tag, 4, 2, 6); }, 0},
        {"data past the frame", [](uint32_t tag) { return answer_frame(tag, 0xfffffff0u, 2, 6); },
         ZE_IFM_CLIENT_ERR_ANSWER},
        {"text and data disagree", [](uint32_t tag) { return answer_frame(tag, 4, 1, 6); }, ZE_IFM_CLIENT_ERR_ANSWER},
        {"another request's tag", [](uint32_t tag) { return answer_frame(tag + 1, 4, 2, 6); },
         ZE_IFM_CLIENT_ERR_ANSWER},
        {"larger than any answer",
         [](uint32_t) {
             std::vector<uint8_t> f(4);
             ze_ifm_put32(f.data(), ZE_IFM_ANSWER_MAX);
             return f;
         },
         ZE_IFM_CLIENT_ERR_ANSWER},
        {"shorter than an answer",
         [](uint32_t tag) {
             auto f = answer_frame(tag, 0, 0, 0);
             ze_ifm_put32(f.data(), 12);
             return f;
         },
         ZE_IFM_CLIENT_ERR_ANSWER},
        {"cut short",
         [](uint32_t tag) {
             auto f = answer_frame(tag, 4, 2, 6);
             f.resize(f.size() - 3);
             return f;
         },
         ZE_IFM_CLIENT_ERR_IO},
        {"nothing", [](uint32_t) { return std::vector<uint8_t>(); }, ZE_IFM_CLIENT_ERR_IO},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.what);
        FakeDaemon fake(k.answer);
        ze_ifm_client *c = ze_ifm_client_open(fake.path().c_str());
        ASSERT_NE(c, nullptr);
        uint8_t reply[4];
        uint32_t len = 4;
        char *printed = nullptr;
        EXPECT_EQ(ze_ifm_client_call_on(c, "x", nullptr, 0, reply, &len, &printed), k.expected);
        EXPECT_EQ(printed == nullptr, k.expected != 0);
        ze_ifm_client_free(printed);
        ze_ifm_client_close(c);
    }
}

}  // namespace
