#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_phy_get_power", "PHY power of a port (placeholder)", 8, 8, "port:u32@0 >power:u32@4"},
    {"lsw_phy_set_status", "set the PHY status of a port (placeholder)", 8, kNoReply, "port:u32@0 status:u32@4"},
    {"lsw_phy_get_status", "PHY status of a port (placeholder)", 8, 8, "port:u32@0 >status:u32@4"},
    {"lsw_phy_set_mode", "set the PHY mode of a port (placeholder)", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_phy_get_mode", "PHY mode of a port (placeholder)", 8, 8, "port:u32@0 >mode:u32@4"},
};

}  // namespace

const std::span<const CommandSpec> kPhyCommands = kRows;

}  // namespace zesh
