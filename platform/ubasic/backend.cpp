// Datapath backend selection and the two kernel channels: device-node ioctls
// and named kernel calls.
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <string>

#include "recorder.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace {

constexpr const char *kDpNode = "/dev/ze_ioctl_dp";

struct Backend {
    bool simulator = true;
    std::string dp_node;  // device backend: where "/dev/ze_ioctl_dp" really is
};

Backend &backend() {
    static Backend b;
    return b;
}

uint32_t device_ioctl(const char *path, uint32_t cmd, uintptr_t arg) {
    int fd = open(path, O_RDWR | O_CLOEXEC);
    if (fd < 0) return ZE_HOST_ERR_NODE_OPEN;
    int rc = ::ioctl(fd, static_cast<unsigned long>(ZE_HOST_IOCTL_REQUEST(cmd)), arg);
    close(fd);
    return rc < 0 ? ZE_HOST_ERR_IOCTL : static_cast<uint32_t>(rc);
}

}  // namespace

extern "C" {

void ze_host_use_simulator(void) { backend() = Backend{}; }

void ze_host_use_device(const char *dp_node_path) {
    backend() = Backend{false, dp_node_path ? dp_node_path : kDpNode};
}

int ze_host_backend_is_simulator(void) { return backend().simulator ? 1 : 0; }

static uint32_t send_ioctl(const char *dev_path, uint32_t cmd, uintptr_t arg) {
    const Backend &b = backend();
    const bool dp = dev_path && std::string(dev_path) == kDpNode;
    if (b.simulator) return dp ? zesim::ioctl(cmd, arg) : ZE_HOST_ERR_NODE_OPEN;
    return device_ioctl(dp ? b.dp_node.c_str() : dev_path, cmd, arg);
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
