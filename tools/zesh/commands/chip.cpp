#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"chip_get_version", 4, 4, ">version:u32@0"},
    {"chip_get_vendor", 2, 2, ">vendor:u16@0"},
    {"chip_set_upmode", 4, kNoReply, "mode:u32@0"},
    {"chip_get_upmode", 4, 4, ">mode:u32@0"},
    {"chip_set_access_mode", 4, kNoReply, "mode:u32@0"},
    {"chip_get_access_mode", 4, 4, ">mode:u32@0"},
};

}  // namespace

const std::span<const CommandSpec> kChipCommands = kRows;

}  // namespace zesh
