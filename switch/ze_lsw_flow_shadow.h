// The flow classifiers' shadow tables: what the library installed, by sfid
// and by fid, and the half-item flag of the rule conversion. Process
// globals, zero at load, never read back from the datapath. Internal.
#pragma once

#include <stdint.h>

#include "ze_dp_block.h"
#include "ze_lsw_flow.h"

// One EFC shadow entry (108 bytes); rule, action and forward action are
// kept in a rule's last entry only.
struct ze_efc_shadow_s {
    uint8_t status;  // 1: entry in use
    uint8_t eof;     // 1: last entry of a rule
    uint8_t pad[2];
    ze_efc_rule_s rule;
    ze_efc_action_s action;
    uint32_t fwd_act;
};

static_assert(sizeof(ze_sfc_mapping_s) == 20 && sizeof(ze_sfc_shadow_s) == 24);
static_assert(sizeof(ze_efc_rule_s) == 80 && sizeof(ze_efc_action_s) == 20);
static_assert(sizeof(ze_efc_shadow_s) == 108 && sizeof(ze_efc_item_s) == 24);

extern "C" {
extern ze_sfc_shadow_s st_sfcmapping[ZE_SFC_ENTRY_COUNT];
extern ze_efc_shadow_s st_efcservice[ZE_EFC_ENTRY_COUNT];
// 0: the next single key fills the first half of the current item; 1: the
// second half, completing it.
extern uint32_t ui_g0status;
}

namespace ze {

// Ingress bitmap bits of a mapping record: the five LAN ports, the PON port.
inline constexpr uint8_t kIgrLanPorts = 0x1f;
inline constexpr uint8_t kIgrPonPort = 0x20;

// Debug records of the flow classifier functions, always at level 3.
inline constexpr uint32_t kFlowDebugLevel = 3;

}  // namespace ze

// A debug record under the name of the API function it belongs to; inner
// helpers name that function, API functions use ZE_FLOW_DEBUG.
#define ZE_FLOW_DEBUG_AS(name, ...) \
    ze_log_debug(::ze::kModLsw, kTraceFile, name, __LINE__, ::ze::kFlowDebugLevel, __VA_ARGS__)
#define ZE_FLOW_DEBUG(...) ZE_FLOW_DEBUG_AS(__func__, __VA_ARGS__)
