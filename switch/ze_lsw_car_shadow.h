// The record of flow CAR profiles handed out by GEM port. Process global,
// zero at load, never cleared and never read back from the datapath.
// Internal.
#pragma once

#include <stdint.h>

#include "ze_lsw_car.h"

// One profile's record (32 bytes), indexed by profile number.
struct ze_fcar_status_s {
    uint32_t params[6];  // parameters 1..6 as the request gave them
    uint8_t in_use;      // 1: handed out
    uint8_t pad;
    uint16_t gemport;
    uint32_t direction;  // 0 upstream, 1 downstream
};
static_assert(sizeof(ze_fcar_status_s) == 32);

extern "C" {
extern ze_fcar_status_s g_st_fcar_status[ZE_LSW_CAR_PROFILE_COUNT];
}
