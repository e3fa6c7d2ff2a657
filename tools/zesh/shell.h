// The shell: runs command lines against the library's registered commands
// and its own built-ins (help, trace, sim ...).
#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <span>
#include <string>
#include <vector>

namespace zesh {

class Shell {
public:
    explicit Shell(std::ostream &out);
    ~Shell();
    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    // Runs one line (commands separated by ';', '#' starts a comment).
    // Returns false when a command could not be run (unknown name, bad
    // arguments); the result code of a command that ran does not count.
    bool run_line(const std::string &line);
    bool quit_requested() const { return quit_; }

    // Names for completion: built-ins and registered commands (both forms).
    std::vector<std::string> completion_names() const;

    std::ostream &out() { return out_; }

    // Last character the library printed during the running command.
    char console_last_ = '\n';

private:
    bool run_words(const std::vector<std::string> &words);
    bool run_command(const std::vector<std::string> &words);
    bool help(const std::vector<std::string> &words);
    bool trace(const std::vector<std::string> &words);

    std::ostream &out_;
    bool quit_ = false;
};

// Splits a line into commands and words, honouring double quotes.
std::vector<std::vector<std::string>> split_line(const std::string &line);

// Parses a number: decimal, 0x hexadecimal or negative decimal.
bool parse_number(const std::string &s, uint64_t &value);

// The meaning of a result code, as the shell prints it.
const char *result_meaning(uint32_t code);

// Built-in "sim ..." sub-commands; later areas add rows.
struct SimCommand {
    const char *name;
    const char *usage;
    bool (*run)(Shell &sh, const std::vector<std::string> &args);
};
std::span<const SimCommand> sim_commands();
bool run_sim(Shell &sh, const std::vector<std::string> &words);

}  // namespace zesh
