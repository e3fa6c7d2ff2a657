#pragma once

#include "../command_table.h"

namespace zesh {

extern const std::span<const CommandSpec> kChipCommands;

}  // namespace zesh
