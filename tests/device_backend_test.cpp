// The host device backend keeps each device node open across commands and
// opens it again when it is lost or when the host switches node or backend.
// A FIFO serves as the node: it opens without blocking and rejects every
// ioctl, and its path names the descriptors open on it.
#include <dirent.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include "ze_host.h"

namespace {

constexpr char kDpNode[] = "/dev/ze_ioctl_dp";

// The descriptors of this process open on `path`.
std::vector<int> open_on(const std::string &path) {
    std::vector<int> fds;
    DIR *dir = opendir("/proc/self/fd");
    if (!dir) return fds;
    while (dirent *e = readdir(dir)) {
        char target[PATH_MAX];
        std::string link = std::string("/proc/self/fd/") + e->d_name;
        ssize_t n = readlink(link.c_str(), target, sizeof target - 1);
        if (n > 0 && std::string(target, static_cast<size_t>(n)) == path) fds.push_back(std::atoi(e->d_name));
    }
    closedir(dir);
    return fds;
}

// Under a user-mode emulator (qemu-user) an ioctl it does not know never
// reaches the kernel, so a closed descriptor is not reported as one.
bool ioctls_reach_the_kernel() {
    errno = 0;
    return ioctl(-1, ZE_HOST_IOCTL_REQUEST(0x100), 0) == -1 && errno == EBADF;
}

class DeviceBackend : public ::testing::Test {
protected:
    void SetUp() override {
        char tmpl[] = "/tmp/ze_node_XXXXXX";
        ASSERT_NE(mkdtemp(tmpl), nullptr);
        dir_ = tmpl;
        for (const char *name : {"/dp", "/other"}) ASSERT_EQ(mkfifo((dir_ + name).c_str(), 0600), 0);
    }
    void TearDown() override {
        ze_host_use_simulator();
        for (const char *name : {"/dp", "/other"}) unlink((dir_ + name).c_str());
        rmdir(dir_.c_str());
    }
    static uint32_t command() { return ze_os_sendioctl(kDpNode, 0x100, 0); }

    std::string dir_;
};

TEST_F(DeviceBackend, OpensTheNodeOnceForManyCommands) {
    const std::string node = dir_ + "/dp";
    ze_host_use_device(node.c_str());
    EXPECT_TRUE(open_on(node).empty());
    for (int i = 0; i < 5; ++i) EXPECT_EQ(command(), ZE_HOST_ERR_IOCTL);
    EXPECT_EQ(open_on(node).size(), 1u);
}

TEST_F(DeviceBackend, SwitchingNodeOrBackendClosesIt) {
    const std::string node = dir_ + "/dp", other = dir_ + "/other";
    ze_host_use_device(node.c_str());
    command();
    ze_host_use_device(other.c_str());
    command();
    EXPECT_TRUE(open_on(node).empty());
    EXPECT_EQ(open_on(other).size(), 1u);
    ze_host_use_simulator();
    EXPECT_TRUE(open_on(other).empty());
}

// A descriptor closed under the backend fails one command and is opened
// afresh for the next.
TEST_F(DeviceBackend, ALostDescriptorIsOpenedAgain) {
    if (!ioctls_reach_the_kernel()) GTEST_SKIP() << "ioctls do not reach the kernel here (an emulator)";
    const std::string node = dir_ + "/dp";
    ze_host_use_device(node.c_str());
    command();
    std::vector<int> fds = open_on(node);
    ASSERT_EQ(fds.size(), 1u);
    close(fds[0]);
    EXPECT_EQ(command(), ZE_HOST_ERR_IOCTL);
    EXPECT_EQ(command(), ZE_HOST_ERR_IOCTL);
    EXPECT_EQ(open_on(node).size(), 1u);
}

TEST_F(DeviceBackend, AMissingNodeIsTriedAgainOnTheNextCommand) {
    const std::string node = dir_ + "/later";
    ze_host_use_device(node.c_str());
    EXPECT_EQ(command(), ZE_HOST_ERR_NODE_OPEN);
    ASSERT_EQ(mkfifo(node.c_str(), 0600), 0);
    EXPECT_EQ(command(), ZE_HOST_ERR_IOCTL);
    ze_host_use_simulator();
    unlink(node.c_str());
}

}  // namespace
