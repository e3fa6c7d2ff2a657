// The command registry table, for tests and tools linked with the library's
// objects. Internal: the shared object does not export it.
#pragma once

#include "ze_adapter_cli.h"

extern "C" {
extern const ze_adapter_cli_entry_s g_st_adapter_cli[];
extern const uint32_t g_ui_adapter_cli_count;
}
