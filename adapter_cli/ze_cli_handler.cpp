#include "ze_cli_handler.h"

#include "ze_ubasic.h"

namespace ze::cli {

void print_refusal(const Family &f, uint32_t line) {
    ze_os_printf("\r\n[ERROR INPUT NULL PTR %s %d]!!!!!!!!!!!!!!!!!!\r\n", f.path,
                 static_cast<int>(line));
}

bool request_ok(const Family &f, uint32_t line, const void *req, uint32_t len, uint32_t size,
                const uint32_t *reply_len) {
    if (req && len == size && reply_len) return true;
    print_refusal(f, line);
    return false;
}

uint32_t finish(const Family &f, const char *func, uint32_t line, uint32_t result,
                uint32_t *reply_len, uint32_t reply_size) {
    if (f.strict && result != ZE_OK) result = ZE_ERR_FAIL;
    if (reply_size != kNoReply && (!f.strict || result == ZE_OK)) *reply_len = reply_size;
    ze_log_systrace(kModLsw, f.path, func, line, result, result, 0, 0, 0);
    return result;
}

}  // namespace ze::cli
