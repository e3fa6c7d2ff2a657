// Board physical memory through the kernel's misc utility calls. The
// payloads are short-lived heap blocks, freed on every way out.
#include "ze_board.h"

#include "ze_dp_block.h"

namespace {

constexpr char kTraceFile[] = "../board/ze_board.cpp";
#define ZE_BOARD_SITE (::ze::TraceSite{kTraceFile, __func__, __LINE__, ::ze::kModBoard})

// Both payloads start with the address and the length; the write carries
// its word after them, the read gets its data back from the same offset.
constexpr uint32_t kHeaderSize = 8;
constexpr uint32_t kWriteLength = 4;
constexpr uint32_t kWritePayloadSize = kHeaderSize + kWriteLength;
// The read payload is allocated one word larger than the length it is sent
// with.
constexpr uint32_t kReadSlack = 4;

void put_u32(uint8_t *p, uint32_t off, uint32_t v) { __builtin_memcpy(p + off, &v, 4); }

}  // namespace

extern "C" {

uint32_t ze_board_write_phymem(uint32_t addr, uint32_t value) {
    auto *p = static_cast<uint8_t *>(ze_os_malloc(kWritePayloadSize));
    if (!p) return ze::traced(ZE_BOARD_SITE, ZE_ERR_NO_MEMORY);
    put_u32(p, 0, addr);
    put_u32(p, 4, kWriteLength);
    put_u32(p, kHeaderSize, value);
    uint32_t outlen = 0;
    uint32_t r = ze_os_hlp_sendioctl("ze_kernel_misc_util_writephymem", p, kWritePayloadSize, &outlen);
    ze_os_free(p);
    return ze::traced(ZE_BOARD_SITE, r);
}

// A length whose payload size would not fit in 32 bits is refused with 18
// before anything is allocated.
uint32_t ze_board_read_phymem(uint32_t addr, uint32_t len, void *buf) {
    if (!buf) return ZE_ERR_NULL_PTR;
    if (len > UINT32_MAX - kHeaderSize - kReadSlack) return ze::traced(ZE_BOARD_SITE, ZE_ERR_PARAM);
    const uint32_t size = kHeaderSize + len + kReadSlack;
    auto *p = static_cast<uint8_t *>(ze_os_malloc(size));
    if (!p) return ze::traced(ZE_BOARD_SITE, ZE_ERR_NO_MEMORY);
    ze_os_memset(p, 0, size);
    put_u32(p, 0, addr);
    put_u32(p, 4, len);
    uint32_t outlen = 0;
    uint32_t r = ze_os_hlp_sendioctl("ze_kernel_misc_util_readphymem", p, kHeaderSize + len, &outlen);
    if (r == 0) __builtin_memcpy(buf, p + kHeaderSize, len);
    ze_os_free(p);
    return ze::traced(ZE_BOARD_SITE, r);
}

}  // extern "C"
