// The shell's help: commands by family, one family, one command, and the
// API functions by area or one function.
#pragma once

#include <string>
#include <vector>

namespace zesh {

// The text for "help [NAME | FAMILY | api [NAME]]"; `ok` false when the
// topic is unknown.
std::string help_text(const std::vector<std::string> &words, bool &ok);

// One line of a help listing: the usage in a column, then the summary.
std::string help_line(const char *usage, const char *summary);

// Every word that "help" takes as a topic.
std::vector<std::string> help_topics();

}  // namespace zesh
