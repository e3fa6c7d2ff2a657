/*
 * Rate limiting (CAR): flow CAR profiles by sfid and by GEM port, the EFC
 * CAR, the simple CAR, protocol packet actions and CARs, the CAR of packets
 * sent to the CPU by reason, the Ethernet port CAR, and the start-up state
 * of WRED and of the flow CAR profiles. Parameter meanings and units are the
 * datapath's; the library passes them through.
 *
 * Choices where an odd argument would otherwise reach outside a block:
 * - A protocol sub-entry whose field would lie beyond the 60-byte protocol
 *   block (action: sub-entry above 5; CAR: above 11) is refused with 18
 *   before any driver access.
 * - ze_lsw_car_get_gemport_car refuses a null output with 31.
 */
#ifndef ZE_LSW_CAR_H
#define ZE_LSW_CAR_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Number of flow CAR profiles (one per sfid). */
#define ZE_LSW_CAR_PROFILE_COUNT 128u

/* A flow CAR as ze_lsw_car_get_flow_car returns it (24 bytes). */
typedef struct {
    uint32_t p1;
    uint32_t p2;
    uint32_t p3;
    int32_t p4;
    uint8_t p5;
    uint8_t pad[3];
    uint32_t p6;
} ze_lsw_car_param_s;

/* Flow CAR with the sfid's own profile. Allowed once per sfid: a profile
 * that already holds a value gives 0xffffffff. */
ZE_API uint32_t ze_lsw_car_set_flow_car(uint32_t sfid, uint32_t p1, uint32_t p2, uint32_t p3,
                                        int32_t p4, uint8_t p5, uint32_t p6);
ZE_API uint32_t ze_lsw_car_get_flow_car(uint32_t sfid, ze_lsw_car_param_s *car);

/* A profile shared by the flows of a GEM port in one direction (0 upstream,
 * 1 downstream); an identical earlier request reuses its profile. */
ZE_API uint32_t ze_lsw_car_set_gemport_car(uint32_t gemport, uint32_t direction, uint32_t p1,
                                           uint32_t p2, uint32_t p3, int32_t p4, uint8_t p5,
                                           uint32_t p6);
/* The six profile words of the first flow of the GEM port in `direction`. */
ZE_API uint32_t ze_lsw_car_get_gemport_car(uint32_t gemport, uint32_t direction,
                                           uint32_t params[6]);

/* CAR of an extended classifier rule. */
ZE_API uint32_t ze_lsw_car_set_efc_car(uint32_t index, uint32_t v1, uint32_t v2, uint32_t v3);
ZE_API uint32_t ze_lsw_car_get_efc_car(uint32_t index, uint8_t *v1, uint32_t *v2, uint32_t *v3);

/* Simple CAR, kinds 0 to 3; any other kind changes and returns nothing. */
ZE_API uint32_t ze_lsw_car_set_simple_car(uint32_t kind, uint32_t v1, uint32_t v2, uint32_t v3);
ZE_API uint32_t ze_lsw_car_get_simple_car(uint32_t kind, uint8_t *v1, uint32_t *v2, uint32_t *v3);

/* Packet action and CAR of sub-entry `sub` of a protocol entry. Setting a
 * CAR starts from entry 0's block, whose other fields the entry takes over. */
ZE_API uint32_t ze_lsw_car_set_protocol_paket_action(uint32_t entry, uint32_t sub,
                                                     uint32_t action);
ZE_API uint32_t ze_lsw_car_get_protocol_paket_action(uint32_t entry, uint32_t sub,
                                                     uint32_t *action);
ZE_API uint32_t ze_lsw_car_set_protocol_paket_car(uint32_t entry, uint32_t sub, uint32_t car);
ZE_API uint32_t ze_lsw_car_get_protocol_paket_car(uint32_t entry, uint32_t sub, uint8_t *car);

/* CAR of the packets sent to the CPU for a reason; the reason's block names
 * the to-CPU CAR that is changed. */
ZE_API uint32_t ze_lsw_car_set_tocpu_reason_car(uint32_t reason, uint32_t v1, uint32_t v2,
                                                uint32_t v3);
ZE_API uint32_t ze_lsw_car_get_tocpu_reason_car(uint32_t reason, uint8_t *v1, uint32_t *v2,
                                                uint32_t *v3);

/* Ethernet port CAR: direction 0 ingress (words 1 and 3 of `params`),
 * 1 egress (the egress shaper of port + 8 at rate word 1), any other
 * direction does nothing. `params` holds at least four words. */
ZE_API uint32_t ze_lsw_car_set_eth_car(uint32_t port, uint32_t direction, const uint32_t *params);

/* Start-up state of both WRED tables and of every flow CAR profile (all
 * freed). A failing profile write gives 0xffffffff whatever the driver
 * said. The GEM-port profile record is left as it is. */
ZE_API uint32_t ze_lsw_car_init_wred(void);

ZE_END_DECLS

#endif
