#include "log.h"

#include <syslog.h>

#include <cstdarg>
#include <cstdio>

namespace zesh::serve {
namespace {
bool g_syslog = false;
}

void log_to_syslog() {
    openlog("zesh-serve", LOG_PID, LOG_DAEMON);
    g_syslog = true;
}

void log_line(const char *fmt, ...) {
    char line[512];
    va_list ap;
    va_start(ap, fmt);
    std::vsnprintf(line, sizeof line, fmt, ap);
    va_end(ap);
    if (g_syslog)
        syslog(LOG_INFO, "%s", line);
    else
        std::fprintf(stderr, "zesh serve: %s\n", line);
}

}  // namespace zesh::serve
