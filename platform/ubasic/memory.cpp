// Memory primitives, with accounting so hosts can check the library frees
// what it allocates.
#include <cstdlib>
#include <cstring>

#include "ze_host.h"

namespace {
int64_t g_outstanding = 0;
int32_t g_fail_in = -1;  // allocations left before a forced failure; -1: none
}  // namespace

extern "C" {

void *ze_os_memset(void *dst, int c, size_t n) { return std::memset(dst, c, n); }
void *ze_os_memcpy(void *dst, const void *src, size_t n) { return std::memcpy(dst, src, n); }
int ze_os_memcmp(const void *a, const void *b, size_t n) { return std::memcmp(a, b, n); }
char *ze_os_strncpy(char *dst, const char *src, size_t n) { return std::strncpy(dst, src, n); }

void *ze_os_malloc(size_t n) {
    if (g_fail_in >= 0 && g_fail_in-- == 0) return nullptr;
    void *p = std::malloc(n);
    if (p) ++g_outstanding;
    return p;
}

void ze_os_free(void *p) {
    if (p) --g_outstanding;
    std::free(p);
}

int64_t ze_host_heap_outstanding(void) { return g_outstanding; }
void ze_host_malloc_fail_at(int32_t nth) { g_fail_in = nth; }

}  // extern "C"
