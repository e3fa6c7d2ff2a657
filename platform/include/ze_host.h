/*
 * Host-side controls of the PC platform libraries. A hosting program (the
 * shell, a test) uses these to choose the datapath backend, read the trace
 * ring, capture console output and look up registered commands. A terminal's
 * own platform has none of this; the adapter library never calls it.
 */
#ifndef ZE_HOST_H
#define ZE_HOST_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#include "ze_ubasic.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Datapath backend ------------------------------------------------------
 * The simulator is the default. A device backend opens the given node for
 * every command that ze_os_sendioctl sends to "/dev/ze_ioctl_dp" (the other
 * two nodes are opened by their own path) and issues
 *     ioctl(fd, ZE_HOST_IOCTL_REQUEST(cmd), arg)
 * i.e. direction read/write, type = high byte of the command id, number = low
 * byte, size 0. Errors of the backend itself are the codes below; they never
 * collide with the driver's 0xf0000101. */
#define ZE_HOST_IOCTL_REQUEST(cmd) \
    ((uint32_t)((3u << 30) | (((cmd) >> 8 & 0xffu) << 8) | ((cmd) & 0xffu)))

#define ZE_HOST_ERR_NODE_OPEN   0xf0000201u /* the device node could not be opened */
#define ZE_HOST_ERR_IOCTL       0xf0000202u /* the node refused the ioctl */
#define ZE_HOST_ERR_UNSUPPORTED 0xf0000203u /* the backend cannot serve this call */

#define ZE_HOST_DP_NODE "/dev/ze_ioctl_dp"

void ze_host_use_simulator(void);
/* Route datapath commands to a real device node, e.g. "/dev/ze_ioctl_dp". */
void ze_host_use_device(const char *dp_node_path);
/* 1 when the simulator is the backend. */
int ze_host_backend_is_simulator(void);

/* ---- Trace and debug ring ------------------------------------------------ */
#define ZE_HOST_TRACE_CAPACITY 4096u

typedef enum { ZE_HOST_REC_TRACE = 0, ZE_HOST_REC_DEBUG = 1 } ze_host_rec_kind;

typedef struct {
    ze_host_rec_kind kind;
    uint32_t module;
    char file[64];
    char func[64];
    uint32_t line;
    uint32_t result; /* trace: result; debug: level */
    uint32_t v[4];   /* trace only */
    char text[256];  /* debug only: the formatted message */
} ze_host_trace_rec;

/* Number of records held (at most ZE_HOST_TRACE_CAPACITY; older ones drop). */
uint32_t ze_host_trace_count(void);
/* Record i, 0 being the oldest held. Returns 0, or -1 past the end. */
int ze_host_trace_get(uint32_t i, ze_host_trace_rec *out);
void ze_host_trace_clear(void);
/* Also write each record as one text line to this stream (NULL: none). */
void ze_host_trace_echo(FILE *stream);
/* The text line of a record, as the echo writes it (no newline). */
void ze_host_trace_format(const ze_host_trace_rec *rec, char *buf, size_t len);

/* ---- Console output ------------------------------------------------------ */
typedef void (*ze_host_print_sink_f)(const char *text, size_t len, void *ctx);
/* Redirect ze_os_printf; NULL restores stdout. */
void ze_host_set_print_sink(ze_host_print_sink_f sink, void *ctx);

/* ---- Interface manager --------------------------------------------------- */
ze_ifm_handler_f ze_host_ifm_find(const char *name);
uint32_t ze_host_ifm_count(void);
/* Entry i in registration order; returns its name and handler. */
const char *ze_host_ifm_at(uint32_t i, ze_ifm_handler_f *handler);
void ze_host_ifm_clear(void);
/* Make the registration number `nth` (0-based, counted from now) fail with
 * `code`; code 0 disarms. */
void ze_host_ifm_fail_at(uint32_t nth, uint32_t code);

/* ---- Recording -----------------------------------------------------------
 * Every device-node ioctl, named kernel call and datapath library call of the
 * process, written to a file as one text line each (the format is in the
 * README, "Record and replay"); `zesh replay` re-issues them and compares the
 * answers. Recording changes nothing that the library or the datapath sees. */
/* The first line of a recording: the stem and the format version. */
#define ZE_HOST_RECORD_HEADER_STEM "ze_adapter recording format "
#define ZE_HOST_RECORD_FORMAT "1"
/* Record into `path` (replaced; a recording in progress ends first).
 * Returns 0, or -1 when the file cannot be written. */
int ze_host_record_start(const char *path);
void ze_host_record_stop(void);
/* 1 while a recording is on. */
int ze_host_recording(void);
/* A line of the host's own: a "# ..." note for the reader, or a line that a
 * replay acts on. Line breaks in `text` become blanks. */
void ze_host_record_text(const char *text);

/* The datapath library's two kinds of call, made by name as its named
 * functions make them (libze_dp): a block exchanged with datapath command
 * `cmd`, and an operation with an index (0 for those without). */
int32_t ze_host_dp_block_call(const char *name, uint32_t cmd, void *block);
int32_t ze_host_dp_op(const char *name, uint32_t index);

/* ---- Heap accounting ----------------------------------------------------- */
/* Blocks handed out by ze_os_malloc and not yet freed. */
int64_t ze_host_heap_outstanding(void);
/* Make the next `nth` (0-based) ze_os_malloc return NULL; -1 disarms. */
void ze_host_malloc_fail_at(int32_t nth);

#ifdef __cplusplus
}
#endif

#endif
