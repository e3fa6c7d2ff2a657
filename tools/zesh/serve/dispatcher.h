// Runs one request frame against the hosted library: a registered command
// by name, the description of the command table, or a shell line.
#pragma once

#include <sys/socket.h>

#include <cstdint>
#include <span>
#include <vector>

#include "access.h"
#include "protocol.h"

namespace zesh::serve {

class Dispatcher {
public:
    explicit Dispatcher(const Access &access);
    // The answer to one whole frame; its data stays valid until the next run.
    Answer run(std::span<const uint8_t> frame, const ucred &peer);

private:
    Answer call(const Header &h, std::span<const uint8_t> body);
    Answer line(const Header &h, std::span<const uint8_t> body, const ucred &peer);

    const Access &access_;
    std::vector<uint8_t> reply_;        // the last call's reply bytes
    std::vector<uint8_t> description_;  // the describe answer's data, made once
};

// The command table as the describe answer carries it: the registered rows
// of the shell's tables, the byte order, the backend and the result codes.
std::vector<uint8_t> describe_commands();

}  // namespace zesh::serve
