// Interactive line input: libedit (editing, history, tab completion) when
// the build found it, plain reading otherwise.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zesh {

void line_input_init(std::vector<std::string> completion_names);
std::optional<std::string> read_line(const char *prompt);

}  // namespace zesh
