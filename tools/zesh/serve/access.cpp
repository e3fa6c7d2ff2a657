#include "access.h"

#include <algorithm>
#include <string>

#include "api_table.h"
#include "shell.h"

namespace zesh::serve {

bool Access::admits(const ucred &peer) const {
    return std::ranges::find(options_.allow_uid, peer.uid) != options_.allow_uid.end() ||
           std::ranges::find(options_.allow_gid, peer.gid) != options_.allow_gid.end();
}

bool Access::may_write_board(uid_t uid) const {
    return std::ranges::find(options_.board_writers, uid) != options_.board_writers.end();
}

bool writes_board_memory(std::string_view function) {
    const api::Row *row = api::find(function);
    return row && (row->flags & api::kWritesBoard);
}

// The line is split exactly as the shell will split it, so what is checked
// is what would run: a call of an exported function is "api NAME ARGS".
bool line_writes_board(const std::string &line) {
    for (const auto &words : split_line(line))
        if (words.size() > 1 && words[0] == "api" && writes_board_memory(words[1])) return true;
    return false;
}

}  // namespace zesh::serve
