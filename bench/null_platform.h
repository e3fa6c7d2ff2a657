// A platform that answers every call at once: the benchmarks link it in
// place of the terminal's libze_ubasic and libze_dp, so what they time is
// the adapter library's own work. It counts the kernel crossings a real
// platform would make (device-node ioctls, named kernel calls, datapath API
// calls), which the benchmarks weigh against a bare ioctl.
#pragma once

#include <stdint.h>

#include "ze_ubasic.h"

namespace nullp {

struct Crossings {
    uint64_t ioctls;        // ze_os_sendioctl and each ze_dp_* call
    uint64_t kernel_calls;  // ze_os_hlp_sendioctl
};

Crossings crossings();

// Lets a benchmark fill the block of a datapath command as a driver would
// (null: blocks come back as sent).
using Answer = void (*)(uint32_t cmd, void *block);
void set_answer(Answer answer);

// The handler registered under `name` through ze_ifm_regapi (null: none).
ze_ifm_handler_f registered(const char *name);

}  // namespace nullp
