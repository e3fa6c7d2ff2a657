// Every row of the shell's command table against its registered handler:
// the registry holds the rows' commands in the same order, a checked handler
// refuses any other length, and the reply length is the row's.
#include <vector>

#include "command_table.h"
#include "request.h"
#include "test_support.h"
#include "ze_result.h"

namespace {

using zesh::CommandSpec;

class CommandRows : public zetest::SimTest, public ::testing::WithParamInterface<const CommandSpec *> {
protected:
    std::string full() const { return std::string(zesh::kCliPrefix) + GetParam()->name; }
};

std::vector<const CommandSpec *> rows() {
    std::vector<const CommandSpec *> v;
    for (const CommandSpec &c : zesh::all_commands()) v.push_back(&c);
    return v;
}

TEST_P(CommandRows, RefusesEveryOtherLength) {
    const CommandSpec &c = *GetParam();
    if (!c.checked) GTEST_SKIP() << "the handler does not check its request";
    std::vector<uint8_t> buf(zesh::kRequestBufferSize, 0);
    for (uint32_t len : {c.request + 1, c.request ? c.request - 1 : 4096u}) {
        uint32_t reply = zesh::kReplyUnset;
        EXPECT_EQ(call(full(), buf.data(), len, &reply), ZE_ERR_PARAM) << "length " << len;
        EXPECT_EQ(reply, zesh::kReplyUnset);
    }
    uint32_t reply = zesh::kReplyUnset;
    EXPECT_EQ(call(full(), nullptr, c.request, &reply), ZE_ERR_PARAM);
    EXPECT_EQ(call(full(), buf.data(), c.request, nullptr), ZE_ERR_PARAM);
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_NE(console().find("[ERROR INPUT NULL PTR ../adapter_cli/"), std::string::npos);
}

TEST_P(CommandRows, RepliesWithTheRowsLength) {
    const CommandSpec &c = *GetParam();
    zesh::Request req(c);
    uint32_t reply = zesh::kReplyUnset;
    uint32_t r = call(full(), req.data(), req.length(), &reply);
    if (c.reply == zesh::kNoReply) {
        EXPECT_EQ(reply, zesh::kReplyUnset) << "result " << r;
    } else if (reply != zesh::kReplyUnset || r == 0) {
        EXPECT_EQ(reply, static_cast<uint32_t>(c.reply)) << "result " << r;
    }
    EXPECT_EQ(console().find("[ERROR INPUT NULL PTR"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(AllCommands, CommandRows, ::testing::ValuesIn(rows()),
                         [](const auto &info) { return std::string(info.param->name); });

class Registered : public zetest::SimTest {};

TEST_F(Registered, SameCommandsInTheSameOrderAsTheRows) {
    auto table = zesh::all_commands();
    ASSERT_EQ(ze_host_ifm_count(), table.size());
    for (uint32_t i = 0; i < table.size(); ++i)
        EXPECT_EQ(std::string(ze_host_ifm_at(i, nullptr)), std::string(zesh::kCliPrefix) + table[i].name)
            << "entry " << i;
}

}  // namespace
