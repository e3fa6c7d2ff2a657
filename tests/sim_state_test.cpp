// Simulator save and load: a loaded state answers every get as the saved one
// did, and a truncated or malformed file changes nothing.
#include <fstream>
#include <sstream>

#include "example_scripts.h"
#include "test_support.h"

namespace {

using ::testing::HasSubstr;

// Every get the log holds, sent again in a bracket of its own: its answer.
std::vector<zesim::Bytes> answers(const std::vector<zesim::LogEntry> &gets) {
    std::vector<zesim::Bytes> out;
    for (zesim::LogEntry e : gets) {
        zesim::ioctl(zesim::kCmdOpen, 0);
        zesim::ioctl(e.cmd, reinterpret_cast<uintptr_t>(e.sent.data()));
        zesim::ioctl(zesim::kCmdClose, 0);
        out.push_back(e.sent);
    }
    return out;
}

class SimState : public zetest::SimTest {
protected:
    void TearDown() override {
        std::remove(path_.c_str());
        SimTest::TearDown();
    }
    std::string path_ = zetest::scratch_file(".state");
};

class ExampleState : public SimState, public ::testing::WithParamInterface<std::string> {};

TEST_P(ExampleState, SaveResetLoadAnswersEveryGetAsBefore) {
    zetest::run_example(GetParam());
    std::vector<zesim::LogEntry> gets;
    for (const zesim::LogEntry &e : zesim::log()) {
        const zesim::BlockDesc *d = zesim::find_block(e.cmd);
        if (e.kind == zesim::EntryKind::Ioctl && d && d->get_id == e.cmd && e.has_block) gets.push_back(e);
    }
    ASSERT_FALSE(gets.empty());
    const std::vector<zesim::Bytes> saved = answers(gets);
    const zesim::State state = zesim::state();
    std::string error;
    ASSERT_TRUE(zesim::save_state(path_, error)) << error;
    zesim::reset();
    ASSERT_TRUE(zesim::load_state(path_, error)) << error;
    EXPECT_EQ(zesim::state(), state);
    EXPECT_EQ(answers(gets), saved);
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleState, ::testing::ValuesIn(zetest::example_scripts()),
                         [](const auto &info) { return info.param.substr(0, info.param.find('.')); });

TEST_F(SimState, AnOpenBracketIsKept) {
    ASSERT_EQ(zesim::ioctl(zesim::kCmdOpen, 0), 0u);
    std::string error;
    ASSERT_TRUE(zesim::save_state(path_, error)) << error;
    zesim::reset();
    ASSERT_TRUE(zesim::load_state(path_, error)) << error;
    EXPECT_EQ(zesim::ioctl(zesim::kCmdClose, 0), 0u);
}

TEST_F(SimState, MalformedFileIsRefusedAndChangesNothing) {
    zesim::set_word(0x100, 0, 1600);
    zesim::set_word(0x400, 4, 1, {7});
    std::string error;
    ASSERT_TRUE(zesim::save_state(path_, error)) << error;
    std::ifstream in(path_);
    const std::string good{std::istreambuf_iterator<char>(in), {}};
    const std::string head = "zesim state format 1\nbracket closed\n";
    const std::string global = "block 0x100 " + std::string(152, '0') + "\n";
    const std::pair<std::string, const char *> kCases[] = {
        {good.substr(0, good.find("block 0x400") + 20), "truncated: no end line"},
        {good.substr(0, good.find("block 0x400") + 21), "line 6: expected 'block ID HEX'"},
        {good.substr(0, good.rfind("end")), "truncated: no end line"},
        {"", "not a simulator state file"},
        {"zesim state format 9\n", "state format 9 is not supported"},
        {"zesim state format 1\n", "truncated: no bracket line"},
        {"zesim state format 1\nbracket ajar\nend 0\n", "line 2: expected 'bracket open' or 'bracket closed'"},
        {head + global + "end 2\n", "line 4: the file holds 1 blocks, its end line says 2"},
        {head + global + "end 1\nblock 0x100 00\n", "line 5: text after the end line"},
        {head + "block 0x100 0\nend 1\n", "line 3: expected 'block ID HEX'"},
        {head + "block 0x999 00\nend 1\n", "no block with command 0x999"},
        {head + "block 0x100 00\nend 1\n", "block 0x100 holds 1 bytes, not 76"},
        {head + global + global + "end 2\n", "block 0x100 appears twice with the same key"},
    };
    zesim::set_word(0x100, 0, 9000);
    const zesim::State before = zesim::state();
    for (const auto &[text, message] : kCases) {
        std::ofstream(path_) << text;
        EXPECT_FALSE(zesim::load_state(path_, error)) << text;
        EXPECT_THAT(error, HasSubstr(message)) << text;
        EXPECT_EQ(zesim::state(), before) << text;
    }
}

}  // namespace
