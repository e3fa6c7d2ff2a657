/*
 * The smallest platform the adapter library can run on, written against the
 * C library alone so that it builds with musl. Its driver keeps the 76-byte
 * global attribute block (command 0x100 reads it, 0x101 writes it) and
 * accepts the bracket commands; every other command fails as unknown. The
 * datapath API library's calls are generated from ze_dp.h beside this file.
 */
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ze_ubasic.h"

enum {
    CMD_OPEN = 0,
    CMD_CLOSE = 1,
    CMD_GLOBAL_GET = 0x100,
    CMD_GLOBAL_SET = 0x101,
    GLOBAL_BLOCK_LENGTH = 76
};
#define ERR_UNKNOWN_COMMAND 0xf0000102u

static uint8_t global_block[GLOBAL_BLOCK_LENGTH];

uint32_t ze_os_sendioctl(const char *dev_path, uint32_t cmd, uintptr_t arg) {
    (void)dev_path;
    switch (cmd) {
        case CMD_OPEN:
        case CMD_CLOSE: return 0;
        case CMD_GLOBAL_GET: memcpy((void *)arg, global_block, GLOBAL_BLOCK_LENGTH); return 0;
        case CMD_GLOBAL_SET: memcpy(global_block, (const void *)arg, GLOBAL_BLOCK_LENGTH); return 0;
        default: return ERR_UNKNOWN_COMMAND;
    }
}

uint32_t ze_os_hlp_sendioctl(const char *kfunc, void *payload, uint32_t len, uint32_t *out_len) {
    (void)kfunc, (void)payload, (void)len, (void)out_len;
    return ERR_UNKNOWN_COMMAND;
}

void ze_log_systrace(uint32_t module, const char *file, const char *func, uint32_t line,
                     uint32_t result, uint32_t v1, uint32_t v2, uint32_t v3, uint32_t v4) {
    (void)module, (void)file, (void)func, (void)line, (void)result, (void)v1, (void)v2, (void)v3,
        (void)v4;
}

void ze_log_debug(uint32_t module, const char *file, const char *func, uint32_t line,
                  uint32_t level, const char *fmt, ...) {
    (void)module, (void)file, (void)func, (void)line, (void)level, (void)fmt;
}

uint32_t ze_ifm_regapi(const char *name, ze_ifm_handler_f handler) {
    (void)name, (void)handler;
    return 0;
}

int ze_os_printf(const char *fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    int n = vprintf(fmt, ap);
    va_end(ap);
    return n;
}

void *ze_os_memset(void *dst, int c, size_t n) { return memset(dst, c, n); }
void *ze_os_memcpy(void *dst, const void *src, size_t n) { return memcpy(dst, src, n); }
int ze_os_memcmp(const void *a, const void *b, size_t n) { return memcmp(a, b, n); }
char *ze_os_strncpy(char *dst, const char *src, size_t n) { return strncpy(dst, src, n); }
void *ze_os_malloc(size_t n) { return malloc(n); }
void ze_os_free(void *p) { free(p); }
