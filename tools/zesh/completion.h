// What Tab offers: command and built-in names first, then a command's or an
// API function's field names ("mtu="), sim sub-commands after "sim", help
// topics after "help", function names after "api".
#pragma once

#include <string>
#include <vector>

namespace zesh {

// Candidates for the word being typed (`partial`) after the words before it
// in the same command.
std::vector<std::string> completions(const std::vector<std::string> &before, const std::string &partial);

}  // namespace zesh
