/* EPON MAC: forward error correction, per logical link (LLID 0..7) or for
 * the whole MAC. */
#ifndef ZE_EMAC_H
#define ZE_EMAC_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

#define ZE_EMAC_FEC_PER_LLID 0u /* selector: the FEC of one LLID */
#define ZE_EMAC_FEC_GLOBAL   1u /* selector: the MAC's FEC; the LLID is ignored */
#define ZE_EMAC_LLID_COUNT   8u

/* Request of the EPON FEC commands (8 bytes); the get command writes fec. */
typedef struct {
    uint32_t selector;
    uint8_t llid;
    uint8_t fec;
    uint8_t pad[2];
} ze_emac_fec_s;

/* Selector 0 with an LLID of 8 or more returns 18 and sends nothing; any
 * selector other than 0 and 1 returns 0xffffffff and sends nothing. Driver
 * failures: 0xf0000101 gives 18, anything else 0xffffffff. The get returns
 * the low byte of the FEC word and does not check its output pointer; the
 * set stores the value as given. */
ZE_API uint32_t ze_emac_get_fec(uint32_t llid, uint32_t selector, uint8_t *fec);
ZE_API uint32_t ze_emac_set_fec(uint32_t llid, uint32_t selector, uint32_t fec);

ZE_END_DECLS

#endif
