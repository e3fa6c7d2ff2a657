// PHY control: reserved operations that answer success and do nothing yet.
#include "ze_lsw_phy.h"

#include "ze_dp_block.h"

namespace {
constexpr char kTraceFile[] = "ze_lsw_phy.cpp";
}  // namespace

extern "C" {

uint32_t ze_lsw_phy_get_mode(uint32_t, uint32_t *) { return ze::traced(ZE_SITE, ZE_OK); }
uint32_t ze_lsw_phy_set_mode(uint32_t, uint32_t) { return ze::traced(ZE_SITE, ZE_OK); }
uint32_t ze_lsw_phy_get_status(uint32_t, uint32_t *) { return ze::traced(ZE_SITE, ZE_OK); }
uint32_t ze_lsw_phy_set_status(uint32_t, uint32_t) { return ze::traced(ZE_SITE, ZE_OK); }
uint32_t ze_lsw_phy_get_power(uint32_t, uint32_t *) { return ze::traced(ZE_SITE, ZE_OK); }
uint32_t ze_lsw_phy_set_power(uint32_t, uint32_t) { return ze::traced(ZE_SITE, ZE_OK); }

}  // extern "C"
