#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"gmac_set_aes", 4, kNoReply, "gemport:u16@0 aes:u16@2"},
    {"gmac_get_aes", 4, 4, "gemport:u16@0 >aes:u8@2"},
    {"gmac_set_gemport", 8, kNoReply, "index:u16@0 gemport:u16@2 tcont:u32@4"},
    {"gmac_get_gemport", 8, 8, "index:u16@0 >gemport:u16@2 >tcont:u8@4"},
    {"gmac_set_fec", 8, kNoReply, "unused:u32@0"},
    {"gmac_get_fec", 8, 8, "selector:u32@0 >fec:u8@4"},
    {"gmac_del_gemport", 2, kNoReply, "index:u16@0"},
    {"gmac_set_down_gemport_type", 8, kNoReply, "gemport:u16@0 type:u32@4"},
    {"gmac_get_down_gemport_type", 8, 8, "gemport:u16@0 >type:u32@4"},
    {"gmac_del_down_gemport", 2, kNoReply, "gemport:u16@0"},
};

}  // namespace

const std::span<const CommandSpec> kGmacCommands = kRows;

}  // namespace zesh
