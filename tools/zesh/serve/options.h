// The daemon's command line.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace zesh::serve {

struct Options {
    std::string socket;
    std::string device;               // empty: the simulator
    mode_t mode = 0660;
    std::optional<gid_t> group;       // group of the socket file
    std::vector<uid_t> allow_uid;     // default: the daemon's own uid and root
    std::vector<gid_t> allow_gid;     // default: the socket's group, if given
    std::vector<uid_t> board_writers; // uids allowed to write board memory
    bool foreground = false;
    bool syslog = false;
};

// Parses the words after "serve"; on failure `error` says why.
std::optional<Options> parse_options(int argc, char **argv, std::string &error);

extern const char *const kServeUsage;

}  // namespace zesh::serve
