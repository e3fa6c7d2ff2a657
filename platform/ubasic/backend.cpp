// Datapath backend selection and the two kernel channels: device-node ioctls
// and named kernel calls.
#include <errno.h>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "recorder.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace {

constexpr const char *kDpNode = "/dev/ze_ioctl_dp";

// A device node opened on its first command and kept open, so a command
// costs its ioctl alone.
struct OpenNode {
    std::string path;
    int fd = -1;

    void close_fd() {
        if (fd >= 0) ::close(fd);
        fd = -1;
    }
};

// The three nodes the library names: the datapath node (wherever the host
// put it) and the interface and sysctl nodes by their own paths.
constexpr int kNodeSlots = 3;

struct Backend {
    bool simulator = true;
    std::string dp_node;  // device backend: where "/dev/ze_ioctl_dp" really is
    OpenNode nodes[kNodeSlots];

    void close_all() {
        for (OpenNode &n : nodes) n.close_fd();
    }
};

Backend &backend() {
    static Backend b;
    return b;
}

// The open node for a path, opening it when it is not; null when it cannot
// be opened.
OpenNode *node_for(Backend &b, const char *path) {
    OpenNode *slot = nullptr;
    for (OpenNode &n : b.nodes) {
        if (n.fd >= 0 && n.path == path) return &n;
        if (!slot && n.fd < 0) slot = &n;
    }
    if (!slot) {  // a fourth path: let the first node go
        slot = &b.nodes[0];
        slot->close_fd();
    }
    int fd = open(path, O_RDWR | O_CLOEXEC);
    if (fd < 0) return nullptr;
    slot->path = path;
    slot->fd = fd;
    return slot;
}

// A failure that says the descriptor or its device is gone, rather than that
// the driver refused the request: the node is reopened on the next command.
// A descriptor the kernel no longer knows is only forgotten, since its
// number may already name another file.
void forget_lost_node(OpenNode &n, int err) {
    if (err == EBADF)
        n.fd = -1;
    else if (err == ENODEV || err == ENXIO || err == EIO)
        n.close_fd();
}

uint32_t device_ioctl(Backend &b, const char *path, uint32_t cmd, uintptr_t arg) {
    OpenNode *n = path ? node_for(b, path) : nullptr;
    if (!n) return ZE_HOST_ERR_NODE_OPEN;
    int rc = ::ioctl(n->fd, static_cast<unsigned long>(ZE_HOST_IOCTL_REQUEST(cmd)), arg);
    if (rc < 0) forget_lost_node(*n, errno);
    return rc < 0 ? ZE_HOST_ERR_IOCTL : static_cast<uint32_t>(rc);
}

void switch_backend(bool simulator, const char *dp_node) {
    Backend &b = backend();
    b.close_all();
    b.simulator = simulator;
    b.dp_node = dp_node;
}

}  // namespace

extern "C" {

void ze_host_use_simulator(void) { switch_backend(true, ""); }

void ze_host_use_device(const char *dp_node_path) {
    switch_backend(false, dp_node_path ? dp_node_path : kDpNode);
}

int ze_host_backend_is_simulator(void) { return backend().simulator ? 1 : 0; }

static uint32_t send_ioctl(const char *dev_path, uint32_t cmd, uintptr_t arg) {
    Backend &b = backend();
    const bool dp = dev_path && std::strcmp(dev_path, kDpNode) == 0;
    if (b.simulator) return dp ? zesim::ioctl(cmd, arg) : ZE_HOST_ERR_NODE_OPEN;
    return device_ioctl(b, dp ? b.dp_node.c_str() : dev_path, cmd, arg);
}

static uint32_t send_kernel_call(const char *kfunc, void *payload, uint32_t len, uint32_t *out_len) {
    if (!backend().simulator) return ZE_HOST_ERR_UNSUPPORTED;
    return zesim::kernel_call(kfunc, payload, len, out_len);
}

uint32_t ze_os_sendioctl(const char *dev_path, uint32_t cmd, uintptr_t arg) {
    return zehost::recorded_ioctl(dev_path, cmd, arg, send_ioctl);
}

uint32_t ze_os_hlp_sendioctl(const char *kfunc, void *payload, uint32_t len, uint32_t *out_len) {
    return zehost::recorded_kernel_call(kfunc, payload, len, out_len, send_kernel_call);
}

}  // extern "C"
