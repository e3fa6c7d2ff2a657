// A command's request buffer, filled from shell words, and its reply fields
// read back, both driven by the command table.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "command_table.h"

namespace zesh {

// Every handler gets a zero-padded buffer at least this large, whatever the
// request length, so a handler that reads more than it was sent stays inside.
inline constexpr uint32_t kRequestBufferSize = 4096;
inline constexpr uint32_t kReplyUnset = 0xdeadbeef;

class Request {
public:
    explicit Request(const CommandSpec &row);

    // Values in field order, name=value words, or "--hex HEX..." for the raw
    // request; "--len N" overrides the length sent. Every input field must
    // be given unless it is optional (or the request is given raw).
    bool fill(std::span<const std::string> words, std::string &error);

    uint8_t *data() { return buf_.data(); }
    uint32_t length() const { return length_; }

private:
    const CommandSpec &row_;
    std::vector<Field> fields_;
    std::vector<uint8_t> buf_;
    uint32_t length_;
};

// "NAME field field [opt=DEFAULT]": how the command is written.
std::string usage_of(const CommandSpec &row);

// The reply fields that lie within the reply length: one "  name = value"
// line each, or their JSON members.
std::string format_reply(const CommandSpec &row, std::span<const uint8_t> reply);
std::string json_reply(const CommandSpec &row, std::span<const uint8_t> reply);

std::string describe_command(const CommandSpec &row);
std::string format_code(uint32_t code);

}  // namespace zesh
