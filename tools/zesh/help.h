// The shell's help: commands by family, one family, one command, and the
// API functions by area or one function.
#pragma once

#include <string>
#include <vector>

namespace zesh {

// The text for "help [NAME | FAMILY | api [NAME]]"; `ok` false when the
// topic is unknown.
std::string help_text(const std::vector<std::string> &words, bool &ok);

// Every word that "help" takes as a topic.
std::vector<std::string> help_topics();

}  // namespace zesh
