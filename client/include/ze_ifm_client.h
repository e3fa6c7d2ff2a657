/*
 * Client of the interface manager daemon (`zesh serve`): runs the adapter
 * library's registered commands from another process, by name, with one
 * request buffer, as the interface manager would in-process. C11 and C++.
 *
 * The socket: the path given to a connect or open call; without one,
 * $ZE_IFM_SOCKET; without that, ZE_IFM_SOCKET_DEFAULT.
 *
 * A call returns the command's result code, or one of the transport codes
 * below. Those never collide with the library's codes (0, small positive
 * codes, 0xffffffff) nor with the driver's and host platform's
 * (0xf00001xx, 0xf00002xx).
 *
 * A connection serves one caller at a time; take one per thread.
 */
#ifndef ZE_IFM_CLIENT_H
#define ZE_IFM_CLIENT_H

#include <stdint.h>

#include "ze_ifm_wire.h"

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define ZE_IFM_CLIENT_API __attribute__((visibility("default")))
#else
#define ZE_IFM_CLIENT_API
#endif

#define ZE_IFM_SOCKET_ENV "ZE_IFM_SOCKET"
#define ZE_IFM_SOCKET_DEFAULT "/run/ze_ifm.sock"

#define ZE_IFM_CLIENT_ERR_CONNECT 0xf0003001u  /* no daemon could be reached */
#define ZE_IFM_CLIENT_ERR_IO 0xf0003002u       /* the connection broke */
#define ZE_IFM_CLIENT_ERR_ANSWER 0xf0003003u   /* the daemon's answer is malformed or too large */
#define ZE_IFM_CLIENT_ERR_ARGUMENT 0xf0003004u /* null name or line, name or request too long */
#define ZE_IFM_CLIENT_ERR_MEMORY 0xf0003005u
/* The daemon refused the request with ZE_IFM_STATUS_<s>; the printed text
 * says why. */
#define ZE_IFM_CLIENT_ERR_STATUS(s) (0xf0003100u + (uint32_t)(s))

typedef struct ze_ifm_client ze_ifm_client;

/* A connection of its own; NULL (and errno set) when no daemon answers. */
ZE_IFM_CLIENT_API ze_ifm_client *ze_ifm_client_open(const char *path);
ZE_IFM_CLIENT_API void ze_ifm_client_close(ze_ifm_client *c);

/*
 * Runs command `name` (with or without the "ze_adapter_cli_" prefix) with
 * `len` request bytes (at most ZE_IFM_REQUEST_MAX), laid out in the
 * daemon's byte order.
 *   reply, reply_len  in: `reply` holds *reply_len bytes (NULL, or 0: none
 *                     wanted); out: the reply length the command wrote, or
 *                     ZE_IFM_NO_REPLY, and the reply bytes up to it (at
 *                     most the room given). `reply` may be `req`.
 *   printed           out: everything the command printed, NUL-terminated,
 *                     to be freed with ze_ifm_client_free; NULL: not wanted.
 *                     After a refusal, the daemon's reason.
 */
ZE_IFM_CLIENT_API uint32_t ze_ifm_client_call_on(ze_ifm_client *c, const char *name, const void *req,
                                                 uint32_t len, void *reply, uint32_t *reply_len,
                                                 char **printed);

/* Runs a shell line (built-ins such as "sim reset" included); returns 0
 * when every command of it could run, 1 when one could not, or a transport
 * code. */
ZE_IFM_CLIENT_API uint32_t ze_ifm_client_line_on(ze_ifm_client *c, const char *line, char **printed);

/* The process's own connection, opened by the first call (or by connect)
 * and opened again by the next call after it broke. */
ZE_IFM_CLIENT_API uint32_t ze_ifm_client_connect(const char *path);
ZE_IFM_CLIENT_API void ze_ifm_client_disconnect(void);
ZE_IFM_CLIENT_API uint32_t ze_ifm_client_call(const char *name, const void *req, uint32_t len, void *reply,
                                              uint32_t *reply_len, char **printed);

ZE_IFM_CLIENT_API void ze_ifm_client_free(char *printed);

#ifdef __cplusplus
}
#endif

#endif
