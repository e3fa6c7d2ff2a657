#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"chip_get_version", "chip version word", 4, 4, ">version:u32@0"},
    {"chip_get_vendor", "vendor id (low 16 bits of the vendor word)", 2, 2, ">vendor:u16@0"},
    {"chip_set_upmode", "set the up mode: 0 EPON, 1 GPON", 4, kNoReply, "mode:u32@0"},
    {"chip_get_upmode", "up mode: 0 EPON, 1 GPON, 2 neither", 4, 4, ">mode:u32@0"},
    {"chip_set_access_mode", "set the access mode", 4, kNoReply, "mode:u32@0"},
    {"chip_get_access_mode", "access mode", 4, 4, ">mode:u32@0"},
};

}  // namespace

const std::span<const CommandSpec> kChipCommands = kRows;

}  // namespace zesh
