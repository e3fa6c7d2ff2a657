// The operator shell: command lines, request building and printed replies.
#include <sstream>

#include "shell.h"
#include "test_support.h"

namespace {

class ShellTest : public zetest::SimTest {
protected:
    std::string run(const std::string &line, bool expect_ok = true) {
        std::ostringstream out;
        {
            zesh::Shell sh(out);
            EXPECT_EQ(sh.run_line(line), expect_ok) << line;
        }
        return out.str();
    }
};

TEST_F(ShellTest, RunsCommandsWithOrWithoutPrefix) {
    EXPECT_EQ(run("chip_set_upmode 0; ze_adapter_cli_chip_get_upmode"),
              "chip_set_upmode: result 0 (ok)\n"
              "chip_get_upmode: result 0 (ok)\n"
              "  mode = 0 (0x0)\n");
}

TEST_F(ShellTest, FieldsByNameAndRawHex) {
    run("chip_set_access_mode mode=0x1f");
    EXPECT_EQ(zesim::word(0x100, 8), 0x1fu);
    run(std::string("chip_set_access_mode --hex ") + (zetest::kBigEndian ? "00000005" : "05000000"));
    EXPECT_EQ(zesim::word(0x100, 8), 5u);
}

TEST_F(ShellTest, WrongLengthShowsTheHandlersRefusal) {
    std::string out = run("chip_get_upmode --len 5");
    EXPECT_NE(out.find("[ERROR INPUT NULL PTR ../adapter_cli/ze_adatper_cli_chip.cpp"), std::string::npos);
    EXPECT_NE(out.find("chip_get_upmode: result 18 (invalid parameter)\n"), std::string::npos);
    EXPECT_EQ(out.find("mode ="), std::string::npos);
}

TEST_F(ShellTest, DriverFailureFromInjectedFault) {
    std::string out = run("sim fail 0x100 7; chip_get_access_mode");
    EXPECT_NE(out.find("result 0xffffffff (driver failure)"), std::string::npos);
    // the chip family replies even on failure
    EXPECT_NE(out.find("  mode = 0 (0x0)"), std::string::npos);
}

TEST_F(ShellTest, RejectsWhatItCannotRun) {
    const char *bad[] = {"no_such_command", "chip_set_upmode 1 2", "chip_set_upmode x",
                         "chip_set_upmode bogus=1", "help nothing", "sim nothing", "trace x",
                         "sim set 0x100 73 1", "sim set 0x999 0 1"};
    for (const char *line : bad) run(line, false);
    EXPECT_TRUE(zesim::commands().empty());
}

TEST_F(ShellTest, HelpListsRegisteredCommandsAndFields) {
    std::string all = run("help");
    EXPECT_NE(all.find("  chip_get_version\n"), std::string::npos);
    EXPECT_NE(all.find("sim fail"), std::string::npos);
    std::string one = run("help chip_get_vendor");
    EXPECT_NE(one.find("ze_adapter_cli_chip_get_vendor: request 2 bytes, reply 2 bytes"), std::string::npos);
    EXPECT_NE(one.find("vendor"), std::string::npos);
}

TEST_F(ShellTest, TraceShowsRecentRecords) {
    std::string out = run("chip_get_version; trace 1");
    EXPECT_NE(out.find("ze_adapter_cli_chip_get_version result=0x00000000"), std::string::npos);
}

TEST(ShellSplit, CommandsWordsQuotesAndComments) {
    auto cmds = zesh::split_line(R"(echo "a b";  x 1 ;; y # z; w)");
    ASSERT_EQ(cmds.size(), 3u);
    EXPECT_EQ(cmds[0], (std::vector<std::string>{"echo", "a b"}));
    EXPECT_EQ(cmds[1], (std::vector<std::string>{"x", "1"}));
    EXPECT_EQ(cmds[2], (std::vector<std::string>{"y"}));
}

TEST(ShellNumbers, DecimalHexAndNegative) {
    uint64_t v = 0;
    EXPECT_TRUE(zesh::parse_number("0x1F", v));
    EXPECT_EQ(v, 31u);
    EXPECT_TRUE(zesh::parse_number("-1", v));
    EXPECT_EQ(static_cast<uint32_t>(v), 0xffffffffu);
    EXPECT_FALSE(zesh::parse_number("12ab", v));
    EXPECT_FALSE(zesh::parse_number("", v));
}

}  // namespace
