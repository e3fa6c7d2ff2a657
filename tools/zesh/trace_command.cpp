// "trace [N|clear]": the library's recent trace and debug records.
#include <ostream>

#include "shell.h"
#include "values.h"
#include "ze_host.h"

namespace zesh {

bool run_trace(std::ostream &out, const std::vector<std::string> &w) {
    if (w.size() > 1 && w[1] == "clear") {
        ze_host_trace_clear();
        return true;
    }
    uint64_t n = 20;
    if (w.size() > 1 && !parse_number(w[1], n)) {
        out << "usage: trace [N|clear]\n";
        return false;
    }
    uint32_t count = ze_host_trace_count();
    uint32_t first = n < count ? count - static_cast<uint32_t>(n) : 0;
    for (uint32_t i = first; i < count; ++i) {
        ze_host_trace_rec rec;
        ze_host_trace_get(i, &rec);
        char line[512];
        ze_host_trace_format(&rec, line, sizeof line);
        out << line << "\n";
    }
    return true;
}

}  // namespace zesh
