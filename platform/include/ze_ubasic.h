/*
 * Basic services of the terminal platform (libze_ubasic): device-node ioctls,
 * named kernel calls, trace and debug records, the interface manager and the
 * console/memory primitives. The adapter library imports exactly these.
 */
#ifndef ZE_UBASIC_H
#define ZE_UBASIC_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

uint32_t ze_os_sendioctl(const char *dev_path, uint32_t cmd, uintptr_t arg);
uint32_t ze_os_hlp_sendioctl(const char *kfunc, void *payload, uint32_t len, uint32_t *out_len);

void ze_log_systrace(uint32_t module, const char *file, const char *func, uint32_t line,
                     uint32_t result, uint32_t v1, uint32_t v2, uint32_t v3, uint32_t v4);
void ze_log_debug(uint32_t module, const char *file, const char *func, uint32_t line,
                  uint32_t level, const char *fmt, ...) __attribute__((format(printf, 6, 7)));

typedef uint32_t (*ze_ifm_handler_f)(void *req, uint32_t req_len, uint32_t *reply_len);
uint32_t ze_ifm_regapi(const char *name, ze_ifm_handler_f handler);

int ze_os_printf(const char *fmt, ...) __attribute__((format(printf, 1, 2)));
void *ze_os_memset(void *dst, int c, size_t n);
void *ze_os_memcpy(void *dst, const void *src, size_t n);
int ze_os_memcmp(const void *a, const void *b, size_t n);
char *ze_os_strncpy(char *dst, const char *src, size_t n);
void *ze_os_malloc(size_t n);
void ze_os_free(void *p);

#ifdef __cplusplus
}
#endif

#endif
