#pragma once

#include "../command_table.h"

namespace zesh {

extern const std::span<const CommandSpec> kChipCommands;
extern const std::span<const CommandSpec> kCarCommands;
extern const std::span<const CommandSpec> kQosCommands;

}  // namespace zesh
