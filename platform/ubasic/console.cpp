// Console output with a sink that hosts can redirect.
#include <cstdarg>
#include <cstdio>
#include <vector>

#include "ze_host.h"

namespace {

struct Sink {
    ze_host_print_sink_f fn = nullptr;
    void *ctx = nullptr;
};

Sink &sink() {
    static Sink s;
    return s;
}

}  // namespace

extern "C" {

void ze_host_set_print_sink(ze_host_print_sink_f fn, void *ctx) { sink() = Sink{fn, ctx}; }

int ze_os_printf(const char *fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    va_list again;
    va_copy(again, ap);
    char small[512];
    int n = std::vsnprintf(small, sizeof small, fmt, ap);
    va_end(ap);
    if (n < 0) {
        va_end(again);
        return n;
    }
    const char *text = small;
    std::vector<char> big;
    if (static_cast<size_t>(n) >= sizeof small) {
        big.resize(static_cast<size_t>(n) + 1);
        std::vsnprintf(big.data(), big.size(), fmt, again);
        text = big.data();
    }
    va_end(again);
    const Sink &s = sink();
    if (s.fn)
        s.fn(text, static_cast<size_t>(n), s.ctx);
    else
        std::fwrite(text, 1, static_cast<size_t>(n), stdout);
    return n;
}

}  // extern "C"
