// Runs one request frame against the hosted library: a registered command
// by name, an exported function by name, a shell line, or the description
// of the command or API table.
#pragma once

#include <sys/socket.h>

#include <cstdint>
#include <span>
#include <vector>

#include "access.h"
#include "command_table.h"
#include "protocol.h"

namespace zesh::serve {

class Dispatcher {
public:
    explicit Dispatcher(const Access &access);
    // The answer to one whole frame; its data stays valid until the next run.
    Answer run(std::span<const uint8_t> frame, const ucred &peer);

private:
    Answer call(const Header &h, std::span<const uint8_t> body, const ucred &peer);
    Answer api(const Header &h, std::span<const uint8_t> body, const ucred &peer);
    Answer line(const Header &h, std::span<const uint8_t> body, const ucred &peer);
    Answer described(const Header &h, std::span<const uint8_t> body, const std::vector<uint8_t> &what);

    const Access &access_;
    std::vector<uint8_t> data_;             // the last call's reply bytes or parameters
    std::vector<uint8_t> description_;      // the describe answer's data, made once
    std::vector<uint8_t> api_description_;  // the describe-API answer's data, made once
};

// The command table as the describe answer carries it: the registered rows
// of the shell's tables, the byte order, the backend and the result codes.
std::vector<uint8_t> describe_commands();
// The API table as the describe-API answer carries it.
std::vector<uint8_t> describe_api();
// The wire's code of a field type.
uint32_t wire_type(FieldType t);

}  // namespace zesh::serve
