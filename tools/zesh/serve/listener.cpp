#include "listener.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>

namespace zesh::serve {
namespace {

std::string absolute(const std::string &path) {
    if (path.starts_with("/")) return path;
    char cwd[PATH_MAX];
    return getcwd(cwd, sizeof cwd) ? std::string(cwd) + "/" + path : path;
}

std::string why(const std::string &what) { return what + ": " + std::strerror(errno); }

// Makes room for the socket: true when the path is free or held a stale
// socket, now removed.
bool clear_stale(const std::string &path, const sockaddr_un &addr, std::string &error) {
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) return true;
    if (!S_ISSOCK(st.st_mode)) {
        error = path + " exists and is not a socket";
        return false;
    }
    int probe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (probe < 0) {
        error = why("socket");
        return false;
    }
    int rc = connect(probe, reinterpret_cast<const sockaddr *>(&addr), sizeof addr);
    int err = errno;
    close(probe);
    if (rc == 0) {
        error = "another daemon serves " + path;
        return false;
    }
    if (err != ECONNREFUSED) {
        errno = err;
        error = why("cannot probe " + path);
        return false;
    }
    if (unlink(path.c_str()) != 0) {
        error = why("cannot remove the stale " + path);
        return false;
    }
    return true;
}

}  // namespace

bool Listener::open(const Options &o, std::string &error) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    if (o.socket.size() >= sizeof addr.sun_path) {
        error = "socket path too long: " + o.socket;
        return false;
    }
    std::memcpy(addr.sun_path, o.socket.c_str(), o.socket.size() + 1);
    if (!clear_stale(o.socket, addr, error)) return false;

    fd_ = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd_ < 0) {
        error = why("socket");
        return false;
    }
    // Born private; opened up to the requested mode once its group is set.
    mode_t old = umask(0177);
    int rc = bind(fd_, reinterpret_cast<const sockaddr *>(&addr), sizeof addr);
    umask(old);
    if (rc != 0) {
        error = why("cannot bind " + o.socket);
        return false;
    }
    path_ = absolute(o.socket);
    struct stat st;
    if ((o.group && chown(o.socket.c_str(), static_cast<uid_t>(-1), *o.group) != 0) ||
        chmod(o.socket.c_str(), o.mode) != 0 || stat(o.socket.c_str(), &st) != 0 ||
        listen(fd_, 64) != 0) {
        error = why("cannot set up " + o.socket);
        remove();
        return false;
    }
    dev_ = st.st_dev;
    ino_ = st.st_ino;
    return true;
}

void Listener::remove() {
    struct stat st;
    if (!path_.empty() && stat(path_.c_str(), &st) == 0 && (ino_ == 0 || (st.st_dev == dev_ && st.st_ino == ino_)))
        unlink(path_.c_str());
    if (fd_ >= 0) close(fd_);
    fd_ = -1;
    path_.clear();
}

}  // namespace zesh::serve
