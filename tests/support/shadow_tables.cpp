#include "shadow_tables.h"

#include <cstring>

#include "ze_lsw_car_shadow.h"
#include "ze_lsw_flow_shadow.h"
#include "ze_lsw_sec_status.h"
#include "ze_lsw_vlan_cfg.h"

namespace zetest {

namespace {
#define ZE_SHADOW(global) {#global, &(global), sizeof(global)}
const ShadowTable kShadowTables[] = {
    ZE_SHADOW(st_sfcmapping),    ZE_SHADOW(st_efcservice),       ZE_SHADOW(ui_g0status),
    ZE_SHADOW(g_st_fcar_status), ZE_SHADOW(uc_port_vlan_cfg), ZE_SHADOW(st_ip_filter_status),
};
#undef ZE_SHADOW
}  // namespace

std::span<const ShadowTable> shadow_tables() { return kShadowTables; }

void clear_shadow_tables() {
    for (const ShadowTable &t : kShadowTables) std::memset(t.address, 0, t.size);
}

}  // namespace zetest
