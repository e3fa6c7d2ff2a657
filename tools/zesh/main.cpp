// zesh: the operator shell. Hosts the adapter library on the simulator (or a
// real device node), registers its commands and runs them by name.
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>

#include "line_input.h"
#include "replay.h"
#include "serve/serve.h"
#include "shell.h"
#include "ze_adapter_cli.h"
#include "ze_host.h"

namespace {

void usage() {
    std::cout << "usage: zesh [--json] [--device NODE] [--trace | --trace-file F] [--record F]\n"
                 "            [-c 'CMD; CMD ...' | FILE]\n"
                 "       zesh [--device NODE] [--record F] [-c 'CMD; ...'] replay RECORDING\n"
                 "  no argument: interactive (a non-terminal input is read as a script)\n"
                 "  --json         print each outcome as one JSON object per line\n"
                 "  --device NODE  send datapath commands to NODE instead of the simulator\n"
                 "  --trace        echo every trace record to stderr\n"
                 "  --trace-file F append every trace record to file F\n"
                 "  --record F     write every driver command, kernel call and datapath library\n"
                 "                 call to F, one line each\n"
                 "  replay R       re-issue recording R (after the -c commands, e.g. 'sim load S')\n"
                 "                 and compare every answer: exit 0 identical, 1 differs, 2 unusable\n";
}

// Runs one input line; a recording notes it first, so that a reader finds
// the calls of each command under it.
bool run_noted(zesh::Shell &sh, const std::string &line) {
    if (ze_host_recording() && !zesh::split_line(line).empty())
        ze_host_record_text(("# zesh> " + line).c_str());
    return sh.run_line(line);
}

bool run_stream(zesh::Shell &sh, std::istream &in) {
    bool ok = true;
    std::string line;
    while (!sh.quit_requested() && std::getline(in, line)) ok = run_noted(sh, line) && ok;
    return ok;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc > 1 && !std::strcmp(argv[1], "serve")) return zesh::serve_main(argc - 2, argv + 2);
    const char *script = nullptr, *file = nullptr, *replay_file = nullptr;
    bool json = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--json")) {
            json = true;
        } else if (!std::strcmp(argv[i], "-c") && i + 1 < argc) {
            script = argv[++i];
        } else if (!std::strcmp(argv[i], "--device") && i + 1 < argc) {
            ze_host_use_device(argv[++i]);
        } else if (!std::strcmp(argv[i], "--trace")) {
            ze_host_trace_echo(stderr);
        } else if (!std::strcmp(argv[i], "--trace-file") && i + 1 < argc) {
            FILE *f = std::fopen(argv[++i], "a");
            if (!f) {
                std::cerr << "zesh: cannot open " << argv[i] << "\n";
                return 2;
            }
            std::setvbuf(f, nullptr, _IOLBF, 0);
            ze_host_trace_echo(f);
        } else if (!std::strcmp(argv[i], "--record") && i + 1 < argc) {
            if (ze_host_record_start(argv[++i])) {
                std::cerr << "zesh: cannot write " << argv[i] << "\n";
                return 2;
            }
        } else if (!std::strcmp(argv[i], "replay") && i + 1 < argc && !file && !replay_file) {
            replay_file = argv[++i];
        } else if (!std::strcmp(argv[i], "-h") || !std::strcmp(argv[i], "--help")) {
            usage();
            return 0;
        } else if (argv[i][0] != '-' && !file && !replay_file) {
            file = argv[i];
        } else {
            usage();
            return 2;
        }
    }

    zesh::Shell sh(std::cout);
    sh.set_json(json);
    uint32_t r = ze_adapter_cli_init();
    if (r) {
        std::cerr << "\nzesh: command registration failed with 0x" << std::hex << r << "\n";
        return 1;
    }

    if (replay_file) {
        if (script && !run_noted(sh, script)) return zesh::kReplayUnusable;
        return zesh::replay(std::cout, replay_file);
    }
    if (script) return run_noted(sh, script) ? 0 : 1;
    if (file) {
        std::ifstream in(file);
        if (!in) {
            std::cerr << "zesh: cannot open " << file << "\n";
            return 2;
        }
        return run_stream(sh, in) ? 0 : 1;
    }
    if (!isatty(STDIN_FILENO)) return run_stream(sh, std::cin) ? 0 : 1;

    std::cout << "zesh: switch adapter shell on "
              << (ze_host_backend_is_simulator() ? "the simulator" : "a device node")
              << ". 'help' lists the commands.\n";
    zesh::line_input_init();
    while (!sh.quit_requested()) {
        auto line = zesh::read_line("zesh> ");
        if (!line) break;
        run_noted(sh, *line);
    }
    return 0;
}
