// One ze_lsw_vlan_del_all_cfg over a record of N VLANs (the argument), on the
// null platform: run under callgrind, its instruction count shows the walk's
// growth free of the timing noise of a shared machine:
//   valgrind --tool=callgrind --toggle-collect=ze_lsw_vlan_del_all_cfg del_all_cost 4095
#include <cstdlib>

#include "ze_lsw_vlan.h"

int main(int argc, char **argv) {
    const unsigned long count = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 4095;
    for (unsigned long vlan = 0; vlan < count; ++vlan) ze_lsw_vlan_add_port(static_cast<uint32_t>(vlan), 2);
    return static_cast<int>(ze_lsw_vlan_del_all_cfg());
}
