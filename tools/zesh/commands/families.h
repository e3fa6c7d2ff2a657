#pragma once

#include "../command_table.h"

namespace zesh {

extern const std::span<const CommandSpec> kChipCommands;
extern const std::span<const CommandSpec> kCarCommands;
extern const std::span<const CommandSpec> kQosCommands;
extern const std::span<const CommandSpec> kEmacCommands;
extern const std::span<const CommandSpec> kGmacCommands;
extern const std::span<const CommandSpec> kFlowCommands;
extern const std::span<const CommandSpec> kPhyCommands;
extern const std::span<const CommandSpec> kPortCommands;
extern const std::span<const CommandSpec> kCarCommands;
extern const std::span<const CommandSpec> kQosCommands;
extern const std::span<const CommandSpec> kMacCommands;
extern const std::span<const CommandSpec> kSecCommands;
extern const std::span<const CommandSpec> kVlanCommands;
extern const std::span<const CommandSpec> kPmCommands;

}  // namespace zesh
