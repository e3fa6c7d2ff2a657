#pragma once

#include "../command_table.h"

namespace zesh {

extern const std::span<const CommandSpec> kChipCommands;
extern const std::span<const CommandSpec> kGmacCommands;
extern const std::span<const CommandSpec> kFlowCommands;

}  // namespace zesh
