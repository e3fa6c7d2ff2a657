#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"emac_set_fec", "set the EPON FEC of one LLID (selector 0) or the whole MAC (1)", 8, kNoReply, "selector:u32@0 llid:u8@4 fec:u8@5"},
    {"emac_get_fec", "EPON FEC of one LLID (selector 0) or the whole MAC (1)", 8, 8, "selector:u32@0 llid:u8@4 >fec:u8@5"},
};

}  // namespace

const std::span<const CommandSpec> kEmacCommands = kRows;

}  // namespace zesh
