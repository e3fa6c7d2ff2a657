/*
 * GPON MAC: GEM mapping of each flow index (sfid), GEM port attributes
 * (valid, downstream type, AES) and the FEC state.
 *
 * A mapping entry holding GEM port 4096 on T-CONT 8 is empty. Setting and
 * deleting a mapping also record it in the flow classifier's shadow. GEM
 * port ids and indices are not range-checked here; the driver does that.
 */
#ifndef ZE_GMAC_H
#define ZE_GMAC_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

#define ZE_GMAC_GEMPORT_NONE 4096u
#define ZE_GMAC_TCONT_NONE   8u

ZE_API uint32_t ze_gmac_get_gemport(uint32_t index, uint8_t *tcont, uint16_t *gemport);
/* Maps the index to the GEM port on the T-CONT and marks the GEM port valid
 * with downstream type 2; a failing step stops, earlier ones stay. */
ZE_API uint32_t ze_gmac_set_gemport(uint32_t index, uint32_t tcont, uint32_t gemport);
/* Empties the mapping and invalidates its GEM port; an empty entry is left
 * alone and reported as success. */
ZE_API uint32_t ze_gmac_del_gemport(uint32_t index);
ZE_API uint32_t ze_gmac_del_down_gemport(uint32_t gemport);
ZE_API uint32_t ze_gmac_get_down_gemport_type(uint32_t gemport, uint32_t *type);
/* Writes the whole attribute block without reading it: AES off, valid. */
ZE_API uint32_t ze_gmac_set_down_gemport_type(uint32_t gemport, uint32_t type);
ZE_API uint32_t ze_gmac_get_aes(uint32_t gemport, uint8_t *aes);
ZE_API uint32_t ze_gmac_set_aes(uint32_t gemport, uint32_t aes);
/* Selector 0 reads one FEC block, any other selector the other. */
ZE_API uint32_t ze_gmac_get_fec(uint32_t selector, uint8_t *fec);
/* FEC is not settable from here: does nothing and returns 0. */
ZE_API uint32_t ze_gmac_set_fec(void);

ZE_END_DECLS

#endif
