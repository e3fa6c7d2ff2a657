// The shape every command handler shares: request check, the API call with
// the request's fields, the family's reply-length and failure rules, and the
// closing trace record. Handler files state only their request structure and
// the call. Internal.
#pragma once

#include <stdint.h>

#include "ze_dp_block.h"
#include "ze_result.h"

namespace ze::cli {

// A handler family: its source path (printed and traced) and whether it is
// one of the strict families (mac, phy, port, sec, vlan, pm), which fold
// every API failure into 0xffffffff and write the reply length only on
// success. The others return the API's code and always write it.
struct Family {
    const char *path;
    bool strict;
};

// 0 in place of a reply size: the handler writes no reply length.
inline constexpr uint32_t kNoReply = 0;

// Refusal of a request: null buffer, wrong length or null reply-length word.
void print_refusal(const Family &f, uint32_t line);

// Checks the request against its exact size; prints the refusal.
bool request_ok(const Family &f, uint32_t line, const void *req, uint32_t len, uint32_t size,
                const uint32_t *reply_len);

// Applies the family's rules to the API result and traces it.
uint32_t finish(const Family &f, const char *func, uint32_t line, uint32_t result,
                uint32_t *reply_len, uint32_t reply_size);

// The standard handler: `call` gets the request structure laid over the
// buffer and returns the API's result.
template <class Req, class Call>
uint32_t handle(const Family &f, const char *func, uint32_t line, void *req, uint32_t len,
                uint32_t *reply_len, uint32_t reply_size, Call &&call) {
    if (!request_ok(f, line, req, len, sizeof(Req), reply_len)) return ZE_ERR_PARAM;
    uint32_t r = call(*static_cast<Req *>(req));
    return finish(f, func, line, r, reply_len, reply_size);
}

// A command with an empty request: length 0 and a non-null buffer.
template <class Call>
uint32_t handle_empty(const Family &f, const char *func, uint32_t line, void *req, uint32_t len,
                      uint32_t *reply_len, Call &&call) {
    if (!request_ok(f, line, req, len, 0, reply_len)) return ZE_ERR_PARAM;
    return finish(f, func, line, call(), reply_len, kNoReply);
}

// Request structures shared by many commands.
struct U8Req {
    uint8_t value;
};
struct U16Req {
    uint16_t value;
};
struct U32Req {
    uint32_t value;
};
struct U32PairReq {
    uint32_t first;
    uint32_t second;
};
struct U32TripleReq {
    uint32_t a, b, c;
};
struct U32QuadReq {
    uint32_t a, b, c, d;
};
// A port and a value narrower than a word, replied in place.
template <class T>
struct PortNarrowReq {
    uint32_t port;
    T value;
};
using PortU8Req = PortNarrowReq<uint8_t>;
using PortU16Req = PortNarrowReq<uint16_t>;
static_assert(sizeof(U8Req) == 1 && sizeof(U16Req) == 2 && sizeof(U32Req) == 4 &&
              sizeof(U32PairReq) == 8 && sizeof(U32TripleReq) == 12 && sizeof(U32QuadReq) == 16 &&
              sizeof(PortU8Req) == 8 && sizeof(PortU16Req) == 8);

}  // namespace ze::cli

#define ZE_CLI_HANDLE(Req, reply_size, call) \
    ::ze::cli::handle<Req>(kFamily, __func__, __LINE__, req, req_len, reply_len, reply_size, call)
