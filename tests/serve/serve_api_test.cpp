// Exported functions by name through the daemon: every API table row's
// example gives the outcome it gives in-process, and API frames that do not
// fit the function (a hostile client's) get error answers, never a call
// that reads or writes outside the parameters the daemon holds. Run under
// the sanitizers, a call past a buffer would show.
#include <unistd.h>

#include <sstream>

#include "api_call.h"
#include "connect/remote_executor.h"
#include "daemon.h"
#include "serve/protocol.h"
#include "shell.h"
#include "test_support.h"

namespace {

using zesh::api::Bytes;
using zesh::api::Row;

std::vector<Bytes> example_args(const Row &row) {
    std::vector<std::string> words;
    std::istringstream in(row.example.args);
    for (std::string w; in >> w;) words.push_back(w);
    std::vector<Bytes> args = zesh::api::empty_args(row);
    std::string error;
    EXPECT_TRUE(zesh::api::fill_args(row, words, args, error)) << row.name << ": " << error;
    return args;
}

class ApiThroughTheDaemon : public zetest::SimTest {
protected:
    void TearDown() override {
        EXPECT_EQ(daemon.stop(), 0) << daemon.log();
        SimTest::TearDown();
    }
    zetest::Daemon daemon{{"--allow-board-write", std::to_string(getuid())}};
};

// Both sides start from a fresh library and see the same setups and calls
// in the same order.
TEST_F(ApiThroughTheDaemon, EveryRowsExampleAnswersAsInProcess) {
    std::ostringstream idle, here_out, there_out;
    zesh::LocalExecutor here(idle);
    zesh::RemoteExecutor there;
    std::string why;
    ASSERT_TRUE(there.connect(daemon.socket(), why)) << why;
    zesh::Shell here_shell(here_out, &here), there_shell(there_out, &there);
    for (const zesh::api::Area &area : zesh::api::areas()) {
        for (const Row &row : area.rows) {
            SCOPED_TRACE(row.name);
            if (row.example.setup) {
                here_shell.run_line(row.example.setup);
                there_shell.run_line(row.example.setup);
                EXPECT_EQ(zetest::without_addresses(there_out.str()), zetest::without_addresses(here_out.str()));
            }
            const zesh::Outcome a = here.call_api(row.name, example_args(row));
            const zesh::Outcome b = there.call_api(row.name, example_args(row));
            EXPECT_EQ(b.refused, a.refused);
            EXPECT_EQ(b.code, a.code);
            EXPECT_EQ(b.args, a.args);
            EXPECT_EQ(b.printed, a.printed);
        }
    }
    EXPECT_FALSE(there.lost());
}

// The example's arguments of a function, changed by `change`.
Bytes body_of(const char *function, void (*change)(std::vector<Bytes> &) = nullptr) {
    std::vector<Bytes> args = example_args(*zesh::api::find(function));
    if (change) change(args);
    return zesh::serve::api_body(function, args);
}

void put_u32(Bytes &b, uint32_t v) { std::memcpy(b.data(), &v, 4); }

TEST(ApiFrames, ThoseThatDoNotFitTheFunctionAreRefused) {
    struct Case {
        const char *what;
        Bytes body;
        uint32_t status;
    };
    Bytes size_past_body = body_of("ze_lsw_port_get_defvlan"), trailing = size_past_body, name_past_body(4, 0),
          many_params = zesh::serve::api_body("ze_lsw_port_get_defvlan", {});
    ze_ifm_put32(&size_past_body[4 + std::strlen("ze_lsw_port_get_defvlan")], 0xffffffffu);
    trailing.push_back(0);
    ze_ifm_put16(name_past_body.data(), 200);
    ze_ifm_put16(&many_params[2], 0xffff);
    const Case cases[] = {
        {"the example", body_of("ze_hlp_sdk_dp_cmdtype"), ZE_IFM_STATUS_OK},
        {"a byte string of the buffer's size",
         body_of("ze_hlp_sdk_dp_cmdtype", [](auto &a) { put_u32(a[2], zesh::api::kByteStringMax); }), ZE_IFM_STATUS_OK},
        {"an output buffer of the buffer's size",
         body_of("ze_board_read_phymem", [](auto &a) { put_u32(a[1], zesh::api::kByteStringMax); }), ZE_IFM_STATUS_OK},
        {"no such function", zesh::serve::api_body("ze_no_such", {}), ZE_IFM_STATUS_UNKNOWN_COMMAND},
        {"a NUL in the name", zesh::serve::api_body(std::string("ze_lsw_port_check\0", 18), {{0, 0, 0, 0}}),
         ZE_IFM_STATUS_UNKNOWN_COMMAND},
        {"a body shorter than its head", {0, 1}, ZE_IFM_STATUS_MALFORMED},
        {"a name past the body", name_past_body, ZE_IFM_STATUS_MALFORMED},
        {"more parameters than the body holds", many_params, ZE_IFM_STATUS_MALFORMED},
        {"a size past the body", size_past_body, ZE_IFM_STATUS_MALFORMED},
        {"bytes after the parameters", trailing, ZE_IFM_STATUS_MALFORMED},
        {"a parameter too few", body_of("ze_lsw_port_get_defvlan", [](auto &a) { a.pop_back(); }),
         ZE_IFM_STATUS_BAD_ARGUMENTS},
        {"an output a byte short", body_of("ze_lsw_port_get_defvlan", [](auto &a) { a[1].pop_back(); }),
         ZE_IFM_STATUS_BAD_ARGUMENTS},
        {"a byte string's length past its buffer",
         body_of("ze_hlp_sdk_dp_cmdtype", [](auto &a) { put_u32(a[2], zesh::api::kByteStringMax + 1); }),
         ZE_IFM_STATUS_BAD_ARGUMENTS},
        {"a huge byte string length", body_of("ze_hlp_sdk_dp_cmdtype", [](auto &a) { put_u32(a[2], 0xffffffffu); }),
         ZE_IFM_STATUS_BAD_ARGUMENTS},
        {"an output buffer smaller than its size word",
         body_of("ze_board_read_phymem", [](auto &a) { put_u32(a[1], zesh::api::kByteStringMax + 1); }),
         ZE_IFM_STATUS_BAD_ARGUMENTS},
        {"a text without its terminator", body_of("ze_igmp_add_ifname", [](auto &a) { a[0].assign(a[0].size(), 'x'); }),
         ZE_IFM_STATUS_BAD_ARGUMENTS},
        {"a board write not allowed", body_of("ze_board_write_phymem"), ZE_IFM_STATUS_NOT_PERMITTED},
    };
    zetest::Daemon daemon;
    zetest::RawClient c(daemon.socket());
    for (const Case &k : cases) {
        SCOPED_TRACE(k.what);
        zetest::RawAnswer a;
        ASSERT_TRUE(c.send(zetest::frame(ZE_IFM_KIND_API, k.body)));
        ASSERT_TRUE(c.read(a));
        EXPECT_EQ(a.status, k.status) << a.text;
        EXPECT_EQ(a.text.empty(), k.status == ZE_IFM_STATUS_OK) << a.text;  // a refusal says why
    }
    std::string printed;
    EXPECT_EQ(zetest::run_line(daemon.socket(), "chip_get_upmode", &printed), 0u);
    EXPECT_EQ(printed, "chip_get_upmode: result 0 (ok)\n  mode = 1 (0x1)\n");
    EXPECT_EQ(daemon.stop(), 0) << daemon.log();
}

}  // namespace
