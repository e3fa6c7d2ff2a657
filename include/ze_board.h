/* Board physical memory, read and written through the kernel's misc
 * utilities. Results: 0, 27 when the payload cannot be allocated, 31 for a
 * null read buffer, 18 for a read length too large to describe, or the
 * kernel's own code unchanged. */
#ifndef ZE_BOARD_H
#define ZE_BOARD_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Writes one 32-bit word at a physical address. */
ZE_API uint32_t ze_board_write_phymem(uint32_t addr, uint32_t value);
/* Reads `len` bytes from a physical address into `buf`; `buf` is written
 * only when the kernel call succeeds. */
ZE_API uint32_t ze_board_read_phymem(uint32_t addr, uint32_t len, void *buf);

ZE_END_DECLS

#endif
