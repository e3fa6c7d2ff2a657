#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"gmac_set_aes", "switch AES of a GEM port on or off", 4, kNoReply, "gemport:u16@0 aes:u16@2"},
    {"gmac_get_aes", "AES state of a GEM port", 4, 4, "gemport:u16@0 >aes:u8@2"},
    {"gmac_set_gemport", "map a flow index (sfid) to a GEM port on a T-CONT", 8, kNoReply, "index:u16@0 gemport:u16@2 tcont:u32@4"},
    {"gmac_get_gemport", "GEM port and T-CONT of a flow index", 8, 8, "index:u16@0 >gemport:u16@2 >tcont:u8@4"},
    {"gmac_set_fec", "no effect: the GPON FEC is not settable", 8, kNoReply, "unused:u32@0"},
    {"gmac_get_fec", "GPON FEC state (selector picks the block)", 8, 8, "selector:u32@0 >fec:u8@4"},
    {"gmac_del_gemport", "remove the GEM port mapping of a flow index", 2, kNoReply, "index:u16@0"},
    {"gmac_set_down_gemport_type", "set the downstream type of a GEM port", 8, kNoReply, "gemport:u16@0 type:u32@4"},
    {"gmac_get_down_gemport_type", "downstream type of a GEM port", 8, 8, "gemport:u16@0 >type:u32@4"},
    {"gmac_del_down_gemport", "invalidate a downstream GEM port", 2, kNoReply, "gemport:u16@0"},
};

}  // namespace

const std::span<const CommandSpec> kGmacCommands = kRows;

}  // namespace zesh
