/*
 * QoS: ingress priority of a flow, queue map, queue buffers, queue and
 * egress shaping, egress scheduling and WRED profiles. Every call is a
 * read-modify-write of one driver block; the library keeps no QoS state.
 *
 * Choices where the behaviour of an odd argument is otherwise undefined:
 * - ze_lsw_qos_get_queue_buffer tests only `b2` for null (31); a null `b1`
 *   is simply not written.
 * - ze_lsw_qos_get_wred refuses a null record with 31 (nothing to read the
 *   profile key from).
 * - The scheduling calls take queues 0..7; a larger queue is refused with 18
 *   before any driver access, as it names no entry of the port's block.
 */
#ifndef ZE_LSW_QOS_H
#define ZE_LSW_QOS_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Egress queues per port; a queue's global id is port * 8 + queue. */
#define ZE_LSW_QOS_QUEUE_COUNT 8u
/* Highest port of the egress scheduler. */
#define ZE_LSW_QOS_SCH_PORT_MAX 13u
/* Rate put into an egress shaper when 0 is asked for; it is then disabled. */
#define ZE_LSW_QOS_EGR_DEFAULT_RATE 15625u

/* A WRED profile as the driver keeps it: eleven words, of which words 0 and
 * 2 name the profile and the other nine are its settings. */
typedef struct {
    uint32_t word[11];
} ze_lsw_qos_wred_s;

ZE_API uint32_t ze_lsw_qos_get_queuecount(uint8_t *count);

/* Ingress priority of a flow (sfid 0..127). The set reports success once
 * the read succeeded, whatever the driver says to the write. */
ZE_API uint32_t ze_lsw_qos_get_in_pri(uint32_t flow, uint32_t *priority);
ZE_API uint32_t ze_lsw_qos_set_in_pri(uint32_t flow, uint32_t priority);

/* Sets the ingress priority of every in-use flow mapped to the GEM port;
 * the second argument is not used. Any failure ends the walk with
 * 0xffffffff (18 only for the driver's invalid-parameter answer). */
ZE_API uint32_t ze_lsw_qos_set_gemport_pri(uint32_t gemport, uint32_t unused, uint32_t priority);
/* Does nothing; 0. */
ZE_API uint32_t ze_lsw_qos_get_gemport_pri(void);

/* Queue shaping by global queue id. */
ZE_API uint32_t ze_lsw_qos_get_queue_shaping(uint32_t queue, uint32_t *p1, uint32_t *p2,
                                             uint32_t *p3);
ZE_API uint32_t ze_lsw_qos_set_queue_shaping(uint32_t queue, uint32_t p1, uint32_t p2,
                                             uint32_t p3);

/* Egress shaping of a shaper port (Ethernet ports are shaper port + 8).
 * Rate 0 leaves the shaper disabled at the default rate. */
ZE_API uint32_t ze_lsw_qos_get_egr_shaping(uint32_t port, uint32_t *rate);
ZE_API uint32_t ze_lsw_qos_set_egr_shaping(uint32_t port, uint32_t rate);

/* Egress scheduling attributes of one queue of a port 0..13. The getter
 * returns the low byte of the second parameter only; its third argument is
 * not used. */
ZE_API uint32_t ze_lsw_qos_set_egr_schattr(uint32_t port, uint32_t queue, uint32_t s1,
                                           uint32_t s2);
ZE_API uint32_t ze_lsw_qos_get_egr_schattr(uint32_t port, uint32_t queue, uint32_t *unused,
                                           uint8_t *s2);

/* Queue buffer limits by global queue id. */
ZE_API uint32_t ze_lsw_qos_set_queue_buffer(uint32_t queue, uint32_t b1, uint32_t b2);
ZE_API uint32_t ze_lsw_qos_get_queue_buffer(uint32_t queue, uint32_t *b1, uint32_t *b2);

/* Egress queue of a (port, priority) pair. */
ZE_API uint32_t ze_lsw_qos_set_queue_map(uint32_t port, uint32_t priority, uint32_t queue);
ZE_API uint32_t ze_lsw_qos_get_queue_map(uint32_t port, uint32_t priority, uint8_t *queue);

/* WRED profile named by words 0 and 2 of the record. The getter fills the
 * record; the setter writes it whole. */
ZE_API uint32_t ze_lsw_qos_get_wred(ze_lsw_qos_wred_s *profile);
ZE_API uint32_t ze_lsw_qos_set_wred(ze_lsw_qos_wred_s profile);

ZE_END_DECLS

#endif
