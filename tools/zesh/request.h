// A command's request buffer, filled from shell words and printed back from
// the reply, both driven by the command table.
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
    // request; "--len N" overrides the length sent.
    bool fill(std::span<const std::string> words, std::string &error);

    uint8_t *data() { return buf_.data(); }
    uint32_t length() const { return length_; }

    // The reply fields within the reply length, one "  name = value" line each.
    std::string format_reply(uint32_t reply_len) const;

private:
    bool set_field(const Field &f, const std::string &value, std::string &error);

    const CommandSpec &row_;
    std::vector<Field> fields_;
    std::vector<uint8_t> buf_;
    uint32_t length_;
};

std::string describe_command(const CommandSpec &row);
std::string format_code(uint32_t code);

}  // namespace zesh
