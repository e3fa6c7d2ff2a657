// The shell: turns command lines into requests for an executor (registered
// commands, API calls, host built-ins), runs its own built-ins (help, echo,
// quit) and prints each outcome as text or as one JSON object per line.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "executor.h"

namespace zesh {

struct CommandSpec;
namespace api {
struct Row;
}

class Shell {
public:
    // Without an executor the shell runs everything in this process.
    explicit Shell(std::ostream &out, Executor *executor = nullptr);
    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    // One JSON object per command instead of text.
    void set_json(bool on) { json_ = on; }

    // Runs one line (commands separated by ';', '#' starts a comment).
    // Returns false when a command could not be run (unknown name, bad
    // arguments); the result code of a command that ran does not count.
    bool run_line(const std::string &line);
    bool quit_requested() const { return quit_; }

private:
    bool run_words(const std::vector<std::string> &words);
    bool run_command(const std::vector<std::string> &words);
    bool run_api(const std::vector<std::string> &words);
    bool run_builtin(const std::vector<std::string> &words);
    bool local(const std::vector<std::string> &words, bool ok, const std::string &text);
    bool refuse(const std::string &input, const std::string &message);
    bool ran(const std::vector<std::string> &words, const Outcome &o);
    void result(const char *kind, const std::string &name, const Outcome &o, const std::string &fields,
                const std::string &json_fields);

    std::ostream &out_;
    std::unique_ptr<Executor> own_;
    Executor &exec_;
    bool json_ = false;
    bool quit_ = false;
};

// Splits a line into commands and words, honouring double quotes.
std::vector<std::vector<std::string>> split_line(const std::string &line);
// The words as a line that split_line gives back as the same words (a word
// that is empty or holds a blank, ';' or '#' is quoted).
std::string quoted_line(const std::vector<std::string> &words);
// The words with one blank between them, as messages quote a line.
std::string joined(const std::vector<std::string> &words);
// The built-ins' names, then the commands' names: what a line may start with.
std::vector<std::string> command_words();

// The meaning and the symbolic name of a result code, as the shell prints them.
const char *result_meaning(uint32_t code);
const char *result_name(uint32_t code);

// Built-in "sim ..." sub-commands; later areas add rows.
struct SimCommand {
    const char *name;
    const char *usage;    // "sim NAME ARGS"
    const char *summary;  // one line: what it does
    bool (*run)(std::ostream &out, const std::vector<std::string> &args);
    // It changes what the simulated driver answers outside the driver
    // commands: a recording holds it and a replay runs it again.
    bool replayed = false;
};
std::span<const SimCommand> sim_commands();
bool run_sim(std::ostream &out, const std::vector<std::string> &words);
// "trace [N|clear]".
bool run_trace(std::ostream &out, const std::vector<std::string> &words);

// The shell's own built-ins and what each does, for help and completion.
struct Builtin {
    const char *name;
    const char *usage;
    const char *summary;
};
std::span<const Builtin> builtins();

}  // namespace zesh
