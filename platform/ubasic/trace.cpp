// Trace and debug records: a bounded ring that hosts read, plus an optional
// text echo of every record.
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <deque>

#include "ze_host.h"

namespace {

struct Ring {
    std::deque<ze_host_trace_rec> recs;
    FILE *echo = nullptr;
};

Ring &ring() {
    static Ring r;
    return r;
}

void copy_text(char *dst, size_t n, const char *src) {
    std::snprintf(dst, n, "%s", src ? src : "");
}

void add(const ze_host_trace_rec &rec) {
    Ring &r = ring();
    if (r.recs.size() == ZE_HOST_TRACE_CAPACITY) r.recs.pop_front();
    r.recs.push_back(rec);
    if (r.echo) {
        char line[512];
        ze_host_trace_format(&rec, line, sizeof line);
        std::fprintf(r.echo, "%s\n", line);
    }
}

ze_host_trace_rec header(ze_host_rec_kind kind, uint32_t module, const char *file,
                         const char *func, uint32_t line) {
    ze_host_trace_rec rec{};
    rec.kind = kind;
    rec.module = module;
    copy_text(rec.file, sizeof rec.file, file);
    copy_text(rec.func, sizeof rec.func, func);
    rec.line = line;
    return rec;
}

}  // namespace

extern "C" {

void ze_log_systrace(uint32_t module, const char *file, const char *func, uint32_t line,
                     uint32_t result, uint32_t v1, uint32_t v2, uint32_t v3, uint32_t v4) {
    ze_host_trace_rec rec = header(ZE_HOST_REC_TRACE, module, file, func, line);
    rec.result = result;
    rec.v[0] = v1;
    rec.v[1] = v2;
    rec.v[2] = v3;
    rec.v[3] = v4;
    add(rec);
}

void ze_log_debug(uint32_t module, const char *file, const char *func, uint32_t line,
                  uint32_t level, const char *fmt, ...) {
    ze_host_trace_rec rec = header(ZE_HOST_REC_DEBUG, module, file, func, line);
    rec.result = level;
    va_list ap;
    va_start(ap, fmt);
    std::vsnprintf(rec.text, sizeof rec.text, fmt, ap);
    va_end(ap);
    add(rec);
}

uint32_t ze_host_trace_count(void) { return static_cast<uint32_t>(ring().recs.size()); }

int ze_host_trace_get(uint32_t i, ze_host_trace_rec *out) {
    if (!out || i >= ring().recs.size()) return -1;
    *out = ring().recs[i];
    return 0;
}

void ze_host_trace_clear(void) { ring().recs.clear(); }

void ze_host_trace_echo(FILE *stream) { ring().echo = stream; }

void ze_host_trace_format(const ze_host_trace_rec *rec, char *buf, size_t len) {
    if (rec->kind == ZE_HOST_REC_TRACE) {
        std::snprintf(buf, len, "trace %08x %s:%u %s result=0x%08x [0x%x 0x%x 0x%x 0x%x]",
                      rec->module, rec->file, rec->line, rec->func, rec->result, rec->v[0],
                      rec->v[1], rec->v[2], rec->v[3]);
        return;
    }
    // Debug text carries its own line ends; show them escaped to keep one line.
    char text[2 * sizeof rec->text];
    size_t o = 0;
    for (const char *p = rec->text; *p && o + 2 < sizeof text; ++p) {
        if (*p == '\r' || *p == '\n') {
            text[o++] = '\\';
            text[o++] = *p == '\r' ? 'r' : 'n';
        } else {
            text[o++] = *p;
        }
    }
    text[o] = 0;
    std::snprintf(buf, len, "debug %08x %s:%u %s level=%u \"%s\"", rec->module, rec->file,
                  rec->line, rec->func, rec->result, text);
}

}  // extern "C"
