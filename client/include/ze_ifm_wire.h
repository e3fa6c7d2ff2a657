/*
 * The interface manager's wire format: how a client process reaches the
 * commands that a `zesh serve` daemon hosts, over a Unix-domain stream
 * socket. C11 and C++.
 *
 * Every message is a frame: a 16-byte header and a body. All integers of
 * the header and of the bodies below are big-endian (network byte order).
 * The request and reply bytes of a command are the exception: they are the
 * command's request structure exactly as the handler reads it, in the
 * daemon processor's own byte order, which the describe answer states.
 *
 *   offset  size  header field
 *   0       4     length   bytes that follow this word (12 + body size)
 *   4       2     version  ZE_IFM_VERSION
 *   6       2     kind     request kind; an answer carries it with
 *                          ZE_IFM_ANSWER_BIT set
 *   8       4     tag      chosen by the client, echoed in the answer
 *   12      4     flags    request options (none in version 1: 0), or
 *                          answer flags
 *
 * The length word and the version keep these places in every version, so a
 * daemon can always skip a frame it does not understand and say why.
 *
 * Request bodies:
 *   ZE_IFM_KIND_CALL      u32 request length N, u16 name length K,
 *                         u16 0, the command name (K bytes, with or
 *                         without the "ze_adapter_cli_" prefix), the
 *                         request bytes (N <= ZE_IFM_REQUEST_MAX)
 *   ZE_IFM_KIND_DESCRIBE  empty
 *   ZE_IFM_KIND_LINE      a shell line (commands separated by ';'), as
 *                         text without a terminating NUL
 *   ZE_IFM_KIND_API       reserved: an exported API function by name with
 *                         typed arguments
 *
 * Answer body (one answer per request, in the order of the requests):
 *   0   u32 status       ZE_IFM_STATUS_*
 *   4   u32 result       the handler's result code (CALL); 0 when every
 *                        command of the line could run, 1 otherwise (LINE)
 *   8   u32 reply length as the handler wrote it, or ZE_IFM_NO_REPLY
 *   12  u32 data length  D: the reply bytes up to the reply length (CALL),
 *                        the description (DESCRIBE)
 *   16  u32 text length  T: everything the request printed, or the reason
 *                        of a refusal when status is not ZE_IFM_STATUS_OK
 *   20  D data bytes, then T text bytes
 *
 * Describe data:
 *   u8 byte order of request and reply bytes (ZE_IFM_ORDER_*), u8 backend
 *   (ZE_IFM_BACKEND_*), u16 command count, u32 request buffer size; then
 *   per command: u8 name length, name (without the prefix), u8 family
 *   length, family, u8 summary length, its one-line summary, u32 request
 *   length, u32 reply length (ZE_IFM_NO_REPLY: none), u8 1 when the
 *   handler checks the request length, u8 field count, and per field: u8
 *   name length, name, u8 type (ZE_IFM_FIELD_*), u8 direction
 *   (ZE_IFM_DIR_*), u16 offset, u16 size, u8 1 when the input may be left
 *   out, u8 length and the value it then takes, written as the shell reads
 *   it; then u16 result count and per result code: u32 code, u8 name
 *   length, its symbolic name, u8 meaning length, its meaning.
 */
#ifndef ZE_IFM_WIRE_H
#define ZE_IFM_WIRE_H

#include <stdint.h>

#define ZE_IFM_VERSION 1u
#define ZE_IFM_HEADER_SIZE 16u
#define ZE_IFM_ANSWER_SIZE 20u /* fixed part of an answer body */

/* Largest frame (all of it, length word included) a daemon reads; a larger
 * length word is answered ZE_IFM_STATUS_TOO_LARGE and the connection closed,
 * since the stream can no longer be followed. */
#define ZE_IFM_FRAME_MAX 65536u
/* Largest frame a daemon sends; clients refuse anything larger. */
#define ZE_IFM_ANSWER_MAX 2097152u
/* Most request bytes one call carries: every handler gets a buffer this
 * large, zero past what the client sent. */
#define ZE_IFM_REQUEST_MAX 4096u
/* Longest command name (the registry keeps names of up to 127 bytes). */
#define ZE_IFM_NAME_MAX 127u
/* Most printed text one answer carries; the rest is cut and the answer
 * flagged ZE_IFM_ANSWER_TRUNCATED. */
#define ZE_IFM_TEXT_MAX 1048576u

#define ZE_IFM_KIND_CALL 1u
#define ZE_IFM_KIND_DESCRIBE 2u
#define ZE_IFM_KIND_LINE 3u
#define ZE_IFM_KIND_API 4u /* reserved */
#define ZE_IFM_ANSWER_BIT 0x8000u

/* Request flags. */
#define ZE_IFM_FLAG_JSON 0x1u /* reserved: answer text as JSON */
/* Answer flags. */
#define ZE_IFM_ANSWER_TRUNCATED 0x1u

#define ZE_IFM_STATUS_OK 0u
#define ZE_IFM_STATUS_MALFORMED 1u        /* the body does not match its kind */
#define ZE_IFM_STATUS_TOO_LARGE 2u        /* frame or request past its limit */
#define ZE_IFM_STATUS_UNKNOWN_KIND 3u
#define ZE_IFM_STATUS_UNKNOWN_COMMAND 4u
#define ZE_IFM_STATUS_WRONG_VERSION 5u
#define ZE_IFM_STATUS_NOT_PERMITTED 6u    /* credentials or board-write refusal */
#define ZE_IFM_STATUS_UNSUPPORTED_FLAGS 7u
#define ZE_IFM_STATUS_BUSY 8u             /* too many clients connected */

#define ZE_IFM_NO_REPLY 0xffffffffu /* the handler wrote no reply length */

#define ZE_IFM_ORDER_LITTLE 0u
#define ZE_IFM_ORDER_BIG 1u
#define ZE_IFM_BACKEND_SIMULATOR 0u
#define ZE_IFM_BACKEND_DEVICE 1u

#define ZE_IFM_FIELD_U8 0u
#define ZE_IFM_FIELD_U16 1u
#define ZE_IFM_FIELD_U32 2u
#define ZE_IFM_FIELD_I32 3u
#define ZE_IFM_FIELD_MAC 4u   /* 6 bytes in transmission order */
#define ZE_IFM_FIELD_IPV4 5u  /* u32, a.b.c.d being a << 24 | ... | d */
#define ZE_IFM_FIELD_BYTES 6u /* raw bytes */
#define ZE_IFM_FIELD_U64 7u
#define ZE_IFM_FIELD_TEXT 8u  /* a string and its terminator */
#define ZE_IFM_DIR_IN 0u
#define ZE_IFM_DIR_OUT 1u     /* written by the command */
#define ZE_IFM_DIR_INOUT 2u

/* Big-endian access to wire integers. */
static inline void ze_ifm_put16(uint8_t *p, uint16_t v) {
    p[0] = (uint8_t)(v >> 8);
    p[1] = (uint8_t)v;
}
static inline void ze_ifm_put32(uint8_t *p, uint32_t v) {
    p[0] = (uint8_t)(v >> 24);
    p[1] = (uint8_t)(v >> 16);
    p[2] = (uint8_t)(v >> 8);
    p[3] = (uint8_t)v;
}
static inline uint16_t ze_ifm_get16(const uint8_t *p) { return (uint16_t)(p[0] << 8 | p[1]); }
static inline uint32_t ze_ifm_get32(const uint8_t *p) {
    return (uint32_t)p[0] << 24 | (uint32_t)p[1] << 16 | (uint32_t)p[2] << 8 | (uint32_t)p[3];
}

/* A frame header. */
static inline void ze_ifm_put_header(uint8_t *p, uint32_t body_size, uint16_t kind, uint32_t tag,
                                     uint32_t flags) {
    ze_ifm_put32(p, ZE_IFM_HEADER_SIZE - 4u + body_size);
    ze_ifm_put16(p + 4, (uint16_t)ZE_IFM_VERSION);
    ze_ifm_put16(p + 6, kind);
    ze_ifm_put32(p + 8, tag);
    ze_ifm_put32(p + 12, flags);
}

#endif
