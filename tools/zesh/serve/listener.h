// The daemon's listening socket and its file.
#pragma once

#include <sys/types.h>

#include <string>

#include "options.h"

namespace zesh::serve {

class Listener {
public:
    // Creates the socket file with the options' mode and group. A stale
    // socket file (nobody accepts on it) is replaced; a live daemon's socket,
    // or any other kind of file, is left alone and the open fails.
    bool open(const Options &o, std::string &error);
    int fd() const { return fd_; }
    // Closes the socket and removes its file, unless another daemon has
    // replaced it since.
    void remove();

private:
    int fd_ = -1;
    std::string path_;  // absolute, so removal works after a change of directory
    dev_t dev_ = 0;
    ino_t ino_ = 0;
};

}  // namespace zesh::serve
