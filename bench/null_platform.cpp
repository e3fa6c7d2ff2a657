// The null platform: every symbol of ze_ubasic.h and ze_dp.h, answering at
// once. Console output and trace records are discarded without formatting;
// memory primitives are the C library's.
#include "null_platform.h"

#include <cstdlib>
#include <cstring>

#include "ze_dp.h"
#include "ze_ubasic.h"

namespace {

nullp::Crossings g_crossings{};
nullp::Answer g_answer = nullptr;

struct Registration {
    const char *name;
    ze_ifm_handler_f handler;
};
constexpr int kMaxRegistrations = 256;
Registration g_registered[kMaxRegistrations];
int g_registered_count = 0;

int32_t dp_call() {
    ++g_crossings.ioctls;
    return 0;
}

}  // namespace

namespace nullp {

Crossings crossings() { return g_crossings; }
void set_answer(Answer answer) { g_answer = answer; }

ze_ifm_handler_f registered(const char *name) {
    for (int i = 0; i < g_registered_count; ++i)
        if (std::strcmp(g_registered[i].name, name) == 0) return g_registered[i].handler;
    return nullptr;
}

}  // namespace nullp

extern "C" {

uint32_t ze_os_sendioctl(const char *, uint32_t cmd, uintptr_t arg) {
    ++g_crossings.ioctls;
    if (g_answer && arg) g_answer(cmd, reinterpret_cast<void *>(arg));
    return 0;
}

uint32_t ze_os_hlp_sendioctl(const char *, void *, uint32_t, uint32_t *) {
    ++g_crossings.kernel_calls;
    return 0;
}

void ze_log_systrace(uint32_t, const char *, const char *, uint32_t, uint32_t, uint32_t, uint32_t,
                     uint32_t, uint32_t) {}
void ze_log_debug(uint32_t, const char *, const char *, uint32_t, uint32_t, const char *, ...) {}
uint32_t ze_ifm_regapi(const char *name, ze_ifm_handler_f handler) {
    if (g_registered_count < kMaxRegistrations) g_registered[g_registered_count++] = {name, handler};
    return 0;
}
int ze_os_printf(const char *, ...) { return 0; }

void *ze_os_memset(void *dst, int c, size_t n) { return std::memset(dst, c, n); }
void *ze_os_memcpy(void *dst, const void *src, size_t n) { return std::memcpy(dst, src, n); }
int ze_os_memcmp(const void *a, const void *b, size_t n) { return std::memcmp(a, b, n); }
char *ze_os_strncpy(char *dst, const char *src, size_t n) { return std::strncpy(dst, src, n); }
void *ze_os_malloc(size_t n) { return std::malloc(n); }
void ze_os_free(void *p) { std::free(p); }

int32_t ze_dp_dev_open(void) { return dp_call(); }
int32_t ze_dp_dev_close(void) { return dp_call(); }
int32_t ze_dp_vlan_filter_attr_get(void *) { return dp_call(); }
int32_t ze_dp_vlan_filter_attr_set(void *) { return dp_call(); }
int32_t ze_dp_glb_attr_get(void *) { return dp_call(); }
int32_t ze_dp_glb_attr_set(void *) { return dp_call(); }
int32_t ze_dp_security_attr_get(void *) { return dp_call(); }
int32_t ze_dp_security_attr_set(void *) { return dp_call(); }
int32_t ze_dp_uni_cpu_port_attr_get(void *) { return dp_call(); }
int32_t ze_dp_uni_cpu_port_attr_set(void *) { return dp_call(); }
int32_t ze_dp_uni_eth_port_attr_get(void *) { return dp_call(); }
int32_t ze_dp_uni_eth_port_attr_set(void *) { return dp_call(); }
int32_t ze_dp_nni_eth_port_attr_get(void *) { return dp_call(); }
int32_t ze_dp_nni_eth_port_attr_set(void *) { return dp_call(); }
int32_t ze_dp_vlan_filter_table_item_get(void *) { return dp_call(); }
int32_t ze_dp_vlan_filter_table_item_set(void *) { return dp_call(); }
int32_t ze_dp_l2_attr_get(void *) { return dp_call(); }
int32_t ze_dp_l2_attr_set(void *) { return dp_call(); }
int32_t ze_dp_l2_vlan_bc_add(void *) { return dp_call(); }
int32_t ze_dp_cnt_ipv6_clr(uint32_t) { return dp_call(); }
int32_t ze_dp_cnt_ipv4_clr(uint32_t) { return dp_call(); }
int32_t ze_dp_l2_cnt_clr(uint32_t) { return dp_call(); }
int32_t ze_dp_igr_flow_cnt_table_item_clr(uint32_t) { return dp_call(); }
int32_t ze_dp_egr_flow_cnt_table_item_clr(uint32_t) { return dp_call(); }
int32_t ze_dp_qos_drop_reason_clr(uint32_t) { return dp_call(); }
int32_t ze_dp_right_release(void) { return dp_call(); }

}  // extern "C"
