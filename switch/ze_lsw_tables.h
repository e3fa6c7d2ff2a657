// The port name tables, shared by the areas that print ports. Internal.
#pragma once

#include <stdint.h>

extern "C" {
// Port labels "eth0".."eth4", "pon", "cpu", "prbs", "all", by port number.
extern const char *const g_phy_port[9];
// Port names "GE0", "FE1".."FE4", "PON", "CPU" and two empty fields.
extern const char g_portname[9][8];
// Source-MAC filter mode names by mode 0..3.
extern const char g_port_smacmode[4][16];
}
