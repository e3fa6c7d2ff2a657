// Interactive line input: libedit (editing, history kept in a file, tab
// completion) when the build found it, plain reading otherwise. Ctrl-C
// drops the line being typed; end of input (Ctrl-D on an empty line) ends.
#pragma once

#include <optional>
#include <string>

namespace zesh {

void line_input_init();
std::optional<std::string> read_line(const char *prompt);

}  // namespace zesh
