// Shared fixture: a fresh simulator, empty shadow tables, an empty trace ring
// and the library's console output captured, for every test.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
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

// Little-endian word of a byte vector.
uint32_t word_at(const zesim::Bytes &b, uint32_t offset);

// The ioctl log entries of one command id.
std::vector<zesim::LogEntry> entries_of(uint32_t cmd);

// Name of a test instantiated over the command table: the row's command.
std::string row_name(const ::testing::TestParamInfo<zesh::CommandSpec> &info);

}  // namespace zetest
