// Host datapath API library. Block calls travel as datapath channel commands
// with the matching block's get or set id; counter clears, the right release
// and the device open/close are operations of the simulator (a real device
// node has no equivalent on the host, so they answer ZE_HOST_ERR_UNSUPPORTED
// there).
#include "ze_dp.h"

#include "../ubasic/recorder.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace {

constexpr const char *kDpNode = ZE_HOST_DP_NODE;

int32_t send_block(const char *name, uint32_t cmd, void *block) {
    if (ze_host_backend_is_simulator())
        return static_cast<int32_t>(zesim::dp_block_call(name, cmd, block));
    uint32_t r = ze_os_sendioctl(kDpNode, 0, 0);
    if (r) return static_cast<int32_t>(r);
    r = ze_os_sendioctl(kDpNode, cmd, reinterpret_cast<uintptr_t>(block));
    ze_os_sendioctl(kDpNode, 1, 0);
    return static_cast<int32_t>(r);
}

int32_t send_op(const char *name, uint32_t index) {
    if (!ze_host_backend_is_simulator()) return static_cast<int32_t>(ZE_HOST_ERR_UNSUPPORTED);
    return static_cast<int32_t>(zesim::dp_op(name, index));
}

int32_t block_call(const char *name, uint32_t cmd, void *block) {
    return zehost::recorded_dp_block(name, cmd, block, send_block);
}

int32_t op(const char *name, uint32_t index) { return zehost::recorded_dp_op(name, index, send_op); }

}  // namespace

#define ZE_DP_BLOCK_CALL(fn, cmd) \
    int32_t fn(void *a) { return block_call(#fn, cmd, a); }

extern "C" {

int32_t ze_host_dp_block_call(const char *name, uint32_t cmd, void *block) {
    return block_call(name, cmd, block);
}
int32_t ze_host_dp_op(const char *name, uint32_t index) { return op(name, index); }

int32_t ze_dp_dev_open(void) { return op("ze_dp_dev_open", 0); }
int32_t ze_dp_dev_close(void) { return op("ze_dp_dev_close", 0); }

// The VLAN filter attributes (eight words) have no command of the library's
// own; the host gives them the ids 0x406/0x407.
ZE_DP_BLOCK_CALL(ze_dp_vlan_filter_attr_get, 0x406)
ZE_DP_BLOCK_CALL(ze_dp_vlan_filter_attr_set, 0x407)
ZE_DP_BLOCK_CALL(ze_dp_glb_attr_get, 0x100)
ZE_DP_BLOCK_CALL(ze_dp_glb_attr_set, 0x101)
ZE_DP_BLOCK_CALL(ze_dp_security_attr_get, 0x40a)
ZE_DP_BLOCK_CALL(ze_dp_security_attr_set, 0x40b)
ZE_DP_BLOCK_CALL(ze_dp_uni_cpu_port_attr_get, 0x310)
ZE_DP_BLOCK_CALL(ze_dp_uni_cpu_port_attr_set, 0x311)
ZE_DP_BLOCK_CALL(ze_dp_uni_eth_port_attr_get, 0x320)
ZE_DP_BLOCK_CALL(ze_dp_uni_eth_port_attr_set, 0x321)
ZE_DP_BLOCK_CALL(ze_dp_nni_eth_port_attr_get, 0x350)
ZE_DP_BLOCK_CALL(ze_dp_nni_eth_port_attr_set, 0x351)
ZE_DP_BLOCK_CALL(ze_dp_vlan_filter_table_item_get, 0x400)
ZE_DP_BLOCK_CALL(ze_dp_vlan_filter_table_item_set, 0x401)
ZE_DP_BLOCK_CALL(ze_dp_l2_attr_get, 0x700)
ZE_DP_BLOCK_CALL(ze_dp_l2_attr_set, 0x701)
ZE_DP_BLOCK_CALL(ze_dp_l2_vlan_bc_add, 0x716)

int32_t ze_dp_cnt_ipv6_clr(uint32_t index) { return op("ze_dp_cnt_ipv6_clr", index); }
int32_t ze_dp_cnt_ipv4_clr(uint32_t index) { return op("ze_dp_cnt_ipv4_clr", index); }
int32_t ze_dp_l2_cnt_clr(uint32_t port) { return op("ze_dp_l2_cnt_clr", port); }
int32_t ze_dp_igr_flow_cnt_table_item_clr(uint32_t entry) {
    return op("ze_dp_igr_flow_cnt_table_item_clr", entry);
}
int32_t ze_dp_egr_flow_cnt_table_item_clr(uint32_t entry) {
    return op("ze_dp_egr_flow_cnt_table_item_clr", entry);
}
int32_t ze_dp_qos_drop_reason_clr(uint32_t index) { return op("ze_dp_qos_drop_reason_clr", index); }
int32_t ze_dp_right_release(void) { return op("ze_dp_right_release", 0); }

}  // extern "C"
