// Must not compile: the row writes the MTU getter's output as a value.
#include "api_table.h"
#include "ze_lsw_port.h"

namespace {
const zesh::api::Row kRow = ZE_API_ROW(ze_lsw_port_get_mtu, "wrong", "0", 0, zesh::api::u32("port", "port"),
                                       zesh::api::u32("mtu", "not a pointer"));
}
