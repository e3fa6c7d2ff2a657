#pragma once

#include "../command_table.h"

namespace zesh {

extern const std::span<const CommandSpec> kChipCommands;
extern const std::span<const CommandSpec> kCarCommands;
extern const std::span<const CommandSpec> kQosCommands;
extern const std::span<const CommandSpec> kPmCommands;

}  // namespace zesh
