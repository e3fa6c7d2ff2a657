// Who may use the daemon, and who may write board memory through it.
#pragma once

#include <sys/socket.h>

#include <string_view>

#include "options.h"

namespace zesh::serve {

class Access {
public:
    explicit Access(const Options &o) : options_(o) {}
    // A client is admitted when its uid or its primary gid is allowed.
    bool admits(const ucred &peer) const;
    bool may_write_board(uid_t uid) const;

private:
    const Options &options_;
};

// True when an exported function writes the board's physical memory.
bool writes_board_memory(std::string_view function);
// True when any command of a shell line calls such a function.
bool line_writes_board(const std::string &line);

}  // namespace zesh::serve
