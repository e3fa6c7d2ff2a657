// The daemon's log: one line per event, to standard error or to syslog.
#pragma once

namespace zesh::serve {

void log_to_syslog();
void log_line(const char *fmt, ...) __attribute__((format(printf, 1, 2)));

}  // namespace zesh::serve
