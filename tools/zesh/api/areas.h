// Each area's rows, defined in the file of that name.
#pragma once

#include "../api_table.h"

namespace zesh::api {

std::span<const Row> pon_rows();
std::span<const Row> port_rows();
std::span<const Row> mac_rows();
std::span<const Row> vlan_rows();
std::span<const Row> flow_rows();
std::span<const Row> car_rows();
std::span<const Row> qos_rows();
std::span<const Row> sec_rows();
std::span<const Row> pm_rows();
std::span<const Row> board_rows();
std::span<const Row> channel_rows();

}  // namespace zesh::api
