// The shadow of the IP filter rules added since load. Internal.
#pragma once

#include <stdint.h>

#include "ze_lsw_sec.h"

extern "C" {

// A rule as the caller added it; its position is its index in the driver.
typedef struct {
    ze_lsw_ip_filter_rule_s rule;
    uint8_t used;  // 1 used, 0 free
} ze_ip_filter_status_s;

extern ze_ip_filter_status_s st_ip_filter_status[ZE_LSW_IP_FILTER_COUNT];
}
