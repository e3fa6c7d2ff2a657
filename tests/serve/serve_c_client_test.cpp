// The C client library: the process connection and its socket choice, the
// caller's reply room, exported functions by name, and answers from a
// daemon that breaks the format.
#include <cstdlib>

#include "daemon.h"
#include "test_support.h"
#include "ze_ifm_client.h"

namespace {

uint32_t version_call(uint8_t (&reply)[4], uint32_t room = 4) {
    uint8_t req[4] = {};
    return ze_ifm_client_call("chip_get_version", req, 4, reply, &room, nullptr);
}

TEST(CClient, ProcessConnectionFollowsTheEnvironmentAndReconnects) {
    uint8_t reply[4] = {};
    auto first = std::make_unique<zetest::Daemon>();
    setenv(ZE_IFM_SOCKET_ENV, first->socket().c_str(), 1);
    EXPECT_EQ(version_call(reply), 0u);
    EXPECT_EQ(zetest::word_at(zesim::Bytes(reply, reply + 4), 0), 0x00010002u);
    first.reset();
    // The broken connection is reported, then the next call opens a new
    // one to wherever the environment points now.
    EXPECT_EQ(version_call(reply), ZE_IFM_CLIENT_ERR_IO);
    EXPECT_EQ(version_call(reply), ZE_IFM_CLIENT_ERR_CONNECT);
    zetest::Daemon second;
    setenv(ZE_IFM_SOCKET_ENV, second.socket().c_str(), 1);
    EXPECT_EQ(version_call(reply), 0u);
    EXPECT_EQ(ze_ifm_client_connect("/nonexistent/ifm.sock"), ZE_IFM_CLIENT_ERR_CONNECT);
    EXPECT_EQ(version_call(reply), ZE_IFM_CLIENT_ERR_CONNECT);
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
    EXPECT_EQ(reply[2], 0xaa);
    char *why = nullptr;
    EXPECT_EQ(ze_ifm_client_call_on(c, "no_such", nullptr, 0, nullptr, nullptr, &why),
              ZE_IFM_CLIENT_ERR_STATUS(ZE_IFM_STATUS_UNKNOWN_COMMAND));
    EXPECT_STREQ(why, "no command 'no_such'");
    ze_ifm_client_free(why);
    EXPECT_EQ(ze_ifm_client_line_on(c, "chip_get_upmode", nullptr), 0u);  // still usable
    ze_ifm_client_close(c);
}

TEST(CClient, CallsAnExportedFunctionWithEachParametersBytes) {
    zetest::Daemon d;
    ze_ifm_client *c = ze_ifm_client_open(d.socket().c_str());
    ASSERT_NE(c, nullptr);
    uint32_t port = 5;
    uint16_t vlan = 0;
    void *params[] = {&port, &vlan};
    uint32_t sizes[] = {4, 2};
    EXPECT_EQ(ze_ifm_client_api_on(c, "ze_lsw_port_get_defvlan", 2, params, sizes, nullptr), 0u);
    EXPECT_EQ(vlan, 1u);
    // A parameter of another size is refused, and nothing is written back.
    uint32_t wide = 7;
    params[1] = &wide;
    sizes[1] = sizeof wide;
    char *why = nullptr;
    EXPECT_EQ(ze_ifm_client_api_on(c, "ze_lsw_port_get_defvlan", 2, params, sizes, &why),
              ZE_IFM_CLIENT_ERR_STATUS(ZE_IFM_STATUS_BAD_ARGUMENTS));
    EXPECT_STREQ(why, "vlan of ze_lsw_port_get_defvlan is 2 bytes, not 4");
    EXPECT_EQ(wide, 7u);
    ze_ifm_client_free(why);
    ze_ifm_client_close(c);
}

// The answer a client gets from a peer that sends `bytes` to its first
// request (tag 1).
uint32_t answered_with(const std::vector<uint8_t> &bytes) {
    zetest::FakeDaemon fake({bytes});
    ze_ifm_client *client = ze_ifm_client_open(fake.socket().c_str());
    uint8_t reply[4];
    uint32_t len = 4;
    char *printed = nullptr;
    uint32_t r = ze_ifm_client_call_on(client, "x", nullptr, 0, reply, &len, &printed);
    EXPECT_EQ(printed == nullptr, r != 0);
    ze_ifm_client_free(printed);
    ze_ifm_client_close(client);
    return r;
}

std::vector<uint8_t> answer(uint32_t data_len, uint32_t text_len, size_t extra, uint32_t tag = 1) {
    std::vector<uint8_t> f(ZE_IFM_HEADER_SIZE + ZE_IFM_ANSWER_SIZE + extra);
    ze_ifm_put_header(f.data(), static_cast<uint32_t>(ZE_IFM_ANSWER_SIZE + extra),
                      ZE_IFM_KIND_CALL | ZE_IFM_ANSWER_BIT, tag, 0);
    ze_ifm_put32(&f[ZE_IFM_HEADER_SIZE + 12], data_len);
    ze_ifm_put32(&f[ZE_IFM_HEADER_SIZE + 16], text_len);
    return f;
}

TEST(CClient, RefusesAnswersThatBreakTheWireFormat) {
    auto cut = answer(4, 2, 6);
    cut.resize(cut.size() - 3);
    auto huge = answer(0, 0, 0), short_one = answer(0, 0, 0);
    ze_ifm_put32(huge.data(), ZE_IFM_ANSWER_MAX);
    ze_ifm_put32(short_one.data(), 12);
    EXPECT_EQ(answered_with(answer(4, 2, 6)), 0u);
    EXPECT_EQ(answered_with(answer(0xfffffff0u, 2, 6)), ZE_IFM_CLIENT_ERR_ANSWER);  // data past the frame
    EXPECT_EQ(answered_with(answer(4, 1, 6)), ZE_IFM_CLIENT_ERR_ANSWER);           // lengths disagree
    EXPECT_EQ(answered_with(answer(4, 2, 6, 2)), ZE_IFM_CLIENT_ERR_ANSWER);        // another request's tag
    EXPECT_EQ(answered_with(huge), ZE_IFM_CLIENT_ERR_ANSWER);
    EXPECT_EQ(answered_with(short_one), ZE_IFM_CLIENT_ERR_ANSWER);
    EXPECT_EQ(answered_with(cut), ZE_IFM_CLIENT_ERR_IO);
    EXPECT_EQ(answered_with({}), ZE_IFM_CLIENT_ERR_IO);
}

}  // namespace
