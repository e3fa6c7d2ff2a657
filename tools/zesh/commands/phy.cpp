#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_phy_get_power", 8, 8, "port:u32@0 >power:u32@4"},
    {"lsw_phy_set_status", 8, kNoReply, "port:u32@0 status:u32@4"},
    {"lsw_phy_get_status", 8, 8, "port:u32@0 >status:u32@4"},
    {"lsw_phy_set_mode", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_phy_get_mode", 8, 8, "port:u32@0 >mode:u32@4"},
};

}  // namespace

const std::span<const CommandSpec> kPhyCommands = kRows;

}  // namespace zesh
