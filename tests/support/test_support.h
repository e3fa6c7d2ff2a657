// Shared fixture: a fresh simulator, empty shadow tables, an empty trace ring
// and the library's console output captured, for every test.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "command_table.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace zesh {
// Failure messages and test lists show a command row by its name.
void PrintTo(const CommandSpec &row, std::ostream *os);
}  // namespace zesh

namespace zetest {

class SimTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Console output of the library since the test started (or last take).
    std::string console() const { return console_; }
    std::string take_console();

    // Trace records (not debug records) since the test started.
    std::vector<ze_host_trace_rec> traces() const;
    // Debug records' texts.
    std::vector<std::string> debug_lines() const;

    // Calls a registered command by its full name.
    uint32_t call(const std::string &name, void *req, uint32_t len, uint32_t *reply_len);

    std::string console_;
};

// Blocks and request structures hold their words in the processor's native
// order; tests that lay out or read bytes build them from native words.
uint32_t word_at(const zesim::Bytes &b, uint32_t offset);
zesim::Bytes native_words(std::initializer_list<uint32_t> words);
inline constexpr bool kBigEndian = std::endian::native == std::endian::big;

// A test whose expectations are written as a little-endian processor's words
// (byte and 16-bit fields packed into words, or the library placing bytes in
// memory order, as an EFC key value copied into a key word): on a big-endian
// processor it is skipped with a message naming what differs.
#define ZE_LITTLE_ENDIAN_LAYOUT(what) \
    if (zetest::kBigEndian) GTEST_SKIP() << "big-endian processors see other words: " << what

// The ioctl log entries of one command id.
std::vector<zesim::LogEntry> entries_of(uint32_t cmd);

// Name of a test instantiated over the command table: the row's command.
std::string row_name(const ::testing::TestParamInfo<zesh::CommandSpec> &info);

}  // namespace zetest
