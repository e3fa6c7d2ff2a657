/* The C client of the interface manager daemon. Every size read from the
 * daemon is checked against the wire limits before it is used. */
#define _POSIX_C_SOURCE 200809L

#include "ze_ifm_client.h"

#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

struct ze_ifm_client {
    int fd;       /* -1 once the stream can no longer be followed */
    uint32_t tag; /* of the last request */
};

/* An answer as read from the daemon; owns `frame`. */
typedef struct {
    uint8_t *frame;
    uint32_t status, result, reply_len;
    const uint8_t *data, *text;
    uint32_t data_len, text_len;
} answer;

static int send_all(int fd, const uint8_t *p, size_t n) {
    while (n) {
        ssize_t k = send(fd, p, n, MSG_NOSIGNAL);
        if (k < 0 && errno == EINTR) continue;
        if (k <= 0) return -1;
        p += k;
        n -= (size_t)k;
    }
    return 0;
}

static int recv_all(int fd, uint8_t *p, size_t n) {
    while (n) {
        ssize_t k = recv(fd, p, n, 0);
        if (k < 0 && errno == EINTR) continue;
        if (k <= 0) return -1;
        p += k;
        n -= (size_t)k;
    }
    return 0;
}

/* Reads the answer to request `kind` with `tag`, or an answer to no request
 * (the daemon refusing the connection or a frame it could not read). */
static uint32_t read_answer(ze_ifm_client *c, uint16_t kind, answer *a) {
    uint8_t word[4];
    if (recv_all(c->fd, word, 4)) return ZE_IFM_CLIENT_ERR_IO;
    uint32_t length = ze_ifm_get32(word);
    if (length < ZE_IFM_HEADER_SIZE - 4 + ZE_IFM_ANSWER_SIZE || length > ZE_IFM_ANSWER_MAX - 4)
        return ZE_IFM_CLIENT_ERR_ANSWER;
    a->frame = malloc((size_t)length + 4);
    if (!a->frame) return ZE_IFM_CLIENT_ERR_MEMORY;
    memcpy(a->frame, word, 4);
    if (recv_all(c->fd, a->frame + 4, length)) return ZE_IFM_CLIENT_ERR_IO;
    const uint8_t *h = a->frame, *b = a->frame + ZE_IFM_HEADER_SIZE;
    uint16_t got = ze_ifm_get16(h + 6);
    int ours = got == (kind | ZE_IFM_ANSWER_BIT) && ze_ifm_get32(h + 8) == c->tag;
    if (ze_ifm_get16(h + 4) != ZE_IFM_VERSION || (!ours && got != ZE_IFM_ANSWER_BIT))
        return ZE_IFM_CLIENT_ERR_ANSWER;
    a->status = ze_ifm_get32(b);
    a->result = ze_ifm_get32(b + 4);
    a->reply_len = ze_ifm_get32(b + 8);
    a->data_len = ze_ifm_get32(b + 12);
    a->text_len = ze_ifm_get32(b + 16);
    uint32_t room = length - (ZE_IFM_HEADER_SIZE - 4) - ZE_IFM_ANSWER_SIZE;
    if (a->data_len > room || a->text_len != room - a->data_len) return ZE_IFM_CLIENT_ERR_ANSWER;
    if (!ours && a->status == ZE_IFM_STATUS_OK) return ZE_IFM_CLIENT_ERR_ANSWER;
    a->data = b + ZE_IFM_ANSWER_SIZE;
    a->text = a->data + a->data_len;
    return 0;
}

/* Sends one request (the body in two parts) and reads its answer. After a
 * failure the connection is given up: the stream can no longer be followed. */
static uint32_t exchange(ze_ifm_client *c, uint16_t kind, const void *p1, size_t n1, const void *p2,
                         size_t n2, answer *a) {
    memset(a, 0, sizeof *a);
    if (c->fd < 0) return ZE_IFM_CLIENT_ERR_IO;
    size_t size = ZE_IFM_HEADER_SIZE + n1 + n2;
    if (size > ZE_IFM_FRAME_MAX) return ZE_IFM_CLIENT_ERR_ARGUMENT;
    uint8_t *frame = malloc(size);
    if (!frame) return ZE_IFM_CLIENT_ERR_MEMORY;
    ze_ifm_put_header(frame, (uint32_t)(n1 + n2), kind, ++c->tag, 0);
    if (n1) memcpy(frame + ZE_IFM_HEADER_SIZE, p1, n1);
    if (n2) memcpy(frame + ZE_IFM_HEADER_SIZE + n1, p2, n2);
    int sent = send_all(c->fd, frame, size);
    free(frame);
    /* A daemon that refused the connection has left its reason to read. */
    uint32_t r = read_answer(c, kind, a);
    if (r || sent) {
        close(c->fd);
        c->fd = -1;
    }
    if (r == 0 && sent && a->status == ZE_IFM_STATUS_OK) r = ZE_IFM_CLIENT_ERR_IO;
    if (r) {
        free(a->frame);
        a->frame = NULL;
    }
    return r;
}

static uint32_t give_text(const answer *a, char **printed) {
    if (!printed) return 0;
    *printed = malloc((size_t)a->text_len + 1);
    if (!*printed) return ZE_IFM_CLIENT_ERR_MEMORY;
    memcpy(*printed, a->text, a->text_len);
    (*printed)[a->text_len] = '\0';
    return 0;
}

/* The answer's status and text; the result code when the daemon ran it. */
static uint32_t finish(answer *a, char **printed) {
    uint32_t r = give_text(a, printed);
    if (!r) r = a->status == ZE_IFM_STATUS_OK ? a->result : ZE_IFM_CLIENT_ERR_STATUS(a->status);
    free(a->frame);
    return r;
}

ze_ifm_client *ze_ifm_client_open(const char *path) {
    if (!path) path = getenv(ZE_IFM_SOCKET_ENV);
    if (!path || !*path) path = ZE_IFM_SOCKET_DEFAULT;
    struct sockaddr_un addr;
    memset(&addr, 0, sizeof addr);
    addr.sun_family = AF_UNIX;
    if (strlen(path) >= sizeof addr.sun_path) {
        errno = ENAMETOOLONG;
        return NULL;
    }
    strcpy(addr.sun_path, path);
    ze_ifm_client *c = malloc(sizeof *c);
    if (!c) return NULL;
    c->tag = 0;
    c->fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (c->fd < 0 || connect(c->fd, (const struct sockaddr *)&addr, sizeof addr) != 0) {
        int err = errno;
        ze_ifm_client_close(c);
        errno = err;
        return NULL;
    }
    return c;
}

void ze_ifm_client_close(ze_ifm_client *c) {
    if (!c) return;
    if (c->fd >= 0) close(c->fd);
    free(c);
}

uint32_t ze_ifm_client_call_on(ze_ifm_client *c, const char *name, const void *req, uint32_t len,
                               void *reply, uint32_t *reply_len, char **printed) {
    if (printed) *printed = NULL;
    size_t name_len = name ? strlen(name) : 0;
    if (!c || !name || name_len > ZE_IFM_NAME_MAX || len > ZE_IFM_REQUEST_MAX || (len && !req))
        return ZE_IFM_CLIENT_ERR_ARGUMENT;
    uint8_t head[8 + ZE_IFM_NAME_MAX];
    ze_ifm_put32(head, len);
    ze_ifm_put16(head + 4, (uint16_t)name_len);
    ze_ifm_put16(head + 6, 0);
    memcpy(head + 8, name, name_len);
    answer a;
    uint32_t r = exchange(c, ZE_IFM_KIND_CALL, head, 8 + name_len, req, len, &a);
    if (r) return r;
    uint32_t room = reply_len ? *reply_len : 0;
    if (reply_len) *reply_len = a.status == ZE_IFM_STATUS_OK ? a.reply_len : ZE_IFM_NO_REPLY;
    if (reply && a.status == ZE_IFM_STATUS_OK) memcpy(reply, a.data, a.data_len < room ? a.data_len : room);
    return finish(&a, printed);
}

uint32_t ze_ifm_client_line_on(ze_ifm_client *c, const char *line, char **printed) {
    if (printed) *printed = NULL;
    if (!c || !line) return ZE_IFM_CLIENT_ERR_ARGUMENT;
    answer a;
    uint32_t r = exchange(c, ZE_IFM_KIND_LINE, line, strlen(line), NULL, 0, &a);
    return r ? r : finish(&a, printed);
}

/* ---- The process's own connection ---------------------------------------- */

static ze_ifm_client *g_client;
static char *g_path; /* as given to connect; NULL: the environment or default */

uint32_t ze_ifm_client_connect(const char *path) {
    ze_ifm_client_disconnect();
    if (path && !(g_path = strdup(path))) return ZE_IFM_CLIENT_ERR_MEMORY;
    g_client = ze_ifm_client_open(g_path);
    return g_client ? 0 : ZE_IFM_CLIENT_ERR_CONNECT;
}

void ze_ifm_client_disconnect(void) {
    ze_ifm_client_close(g_client);
    g_client = NULL;
    free(g_path);
    g_path = NULL;
}

uint32_t ze_ifm_client_call(const char *name, const void *req, uint32_t len, void *reply,
                            uint32_t *reply_len, char **printed) {
    if (printed) *printed = NULL;
    if (!g_client || g_client->fd < 0) {
        ze_ifm_client_close(g_client);
        g_client = ze_ifm_client_open(g_path);
        if (!g_client) return ZE_IFM_CLIENT_ERR_CONNECT;
    }
    return ze_ifm_client_call_on(g_client, name, req, len, reply, reply_len, printed);
}

void ze_ifm_client_free(char *printed) { free(printed); }
