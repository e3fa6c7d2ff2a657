// Writes the fuzzer's seed inputs: the registered commands of each example
// script, in script order, built into requests by the shell's own request
// builder and cut into inputs of zefuzz::kMaxSteps steps.
//   fuzz_seeds OUTDIR SCRIPT...
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <vector>

#include "command_input.h"
#include "command_table.h"
#include "request.h"
#include "shell.h"

namespace {

// The steps of a script: its registered commands with well-formed arguments
// (built-ins and lines the shell would refuse are left out).
std::vector<std::vector<uint8_t>> steps_of(const std::filesystem::path &script) {
    std::vector<std::vector<uint8_t>> steps;
    std::ifstream in(script);
    for (std::string line; std::getline(in, line);) {
        for (const auto &words : zesh::split_line(line)) {
            const zesh::CommandSpec *row = zesh::find_command(words[0]);
            if (!row) continue;
            zesh::Request req(*row);
            std::string error;
            if (!req.fill(std::span(words).subspan(1), error)) continue;
            std::vector<uint8_t> step;
            zefuzz::append_step(step, static_cast<uint32_t>(row - zesh::all_commands().data()),
                                {req.data(), req.length()});
            steps.push_back(std::move(step));
        }
    }
    return steps;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: fuzz_seeds OUTDIR SCRIPT...\n");
        return 2;
    }
    const std::filesystem::path outdir = argv[1];
    std::filesystem::create_directories(outdir);
    size_t written = 0;
    for (int i = 2; i < argc; ++i) {
        const std::filesystem::path script = argv[i];
        const auto steps = steps_of(script);
        for (size_t first = 0; first < steps.size(); first += zefuzz::kMaxSteps) {
            std::vector<uint8_t> input;
            for (size_t s = first; s < steps.size() && s < first + zefuzz::kMaxSteps; ++s)
                input.insert(input.end(), steps[s].begin(), steps[s].end());
            const auto name = script.stem().string() + "-" + std::to_string(first / zefuzz::kMaxSteps);
            std::ofstream(outdir / name, std::ios::binary)
                .write(reinterpret_cast<const char *>(input.data()), static_cast<std::streamsize>(input.size()));
            ++written;
        }
    }
    std::printf("%zu seed inputs in %s\n", written, outdir.c_str());
    return 0;
}
