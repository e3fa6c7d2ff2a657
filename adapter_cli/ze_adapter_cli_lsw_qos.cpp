// QoS commands: queue map, queue buffers, egress scheduling, WRED, egress
// and queue shaping, queue count and ingress priority.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_qos.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_qos.cpp", false};
constexpr uint32_t kNoReply = ze::cli::kNoReply;

using ze::cli::U32PairReq;
using ze::cli::U32QuadReq;
using ze::cli::U32Req;
using ze::cli::U32TripleReq;

struct QueueBufferReq {
    uint8_t queue;
    uint8_t pad[3];
    uint32_t b1, b2;
};
struct QueueShapingReq {
    uint8_t queue;
    uint8_t pad[3];
    uint32_t p1, p2, p3;
};
struct SchattrReq {
    uint32_t port, queue, unused;
    uint8_t s2;
    uint8_t pad[3];
};
static_assert(sizeof(QueueBufferReq) == 12 && sizeof(QueueShapingReq) == 16 &&
              sizeof(SchattrReq) == 16 && sizeof(ze_lsw_qos_wred_s) == 44);

// The scheduling attribute reply covers the first 12 bytes only.
constexpr uint32_t kSchattrReply = 12;

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_lsw_qos_get_queue_map(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32TripleReq, 12, [](U32TripleReq &r) {
        return ze_lsw_qos_get_queue_map(r.a, r.b, reinterpret_cast<uint8_t *>(&r.c));
    });
}

uint32_t ze_adapter_cli_lsw_qos_set_queue_map(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32TripleReq, kNoReply,
                         [](U32TripleReq &r) { return ze_lsw_qos_set_queue_map(r.a, r.b, r.c); });
}

uint32_t ze_adapter_cli_lsw_qos_get_queue_buffer(void *req, uint32_t req_len,
                                                 uint32_t *reply_len) {
    return ZE_CLI_HANDLE(QueueBufferReq, 12, [](QueueBufferReq &r) {
        return ze_lsw_qos_get_queue_buffer(r.queue, &r.b1, &r.b2);
    });
}

uint32_t ze_adapter_cli_lsw_qos_set_queue_buffer(void *req, uint32_t req_len,
                                                 uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32TripleReq, kNoReply, [](U32TripleReq &r) {
        return ze_lsw_qos_set_queue_buffer(r.a, r.b, r.c);
    });
}

uint32_t ze_adapter_cli_lsw_qos_get_egr_schattr(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(SchattrReq, kSchattrReply, [](SchattrReq &r) {
        return ze_lsw_qos_get_egr_schattr(r.port, r.queue, &r.unused, &r.s2);
    });
}

uint32_t ze_adapter_cli_lsw_qos_set_egr_schattr(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32QuadReq, kNoReply, [](U32QuadReq &r) {
        return ze_lsw_qos_set_egr_schattr(r.a, r.b, r.c, r.d);
    });
}

uint32_t ze_adapter_cli_lsw_qos_set_wred(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze_lsw_qos_wred_s, kNoReply,
                         [](ze_lsw_qos_wred_s &r) { return ze_lsw_qos_set_wred(r); });
}

uint32_t ze_adapter_cli_lsw_qos_get_wred(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze_lsw_qos_wred_s, sizeof(ze_lsw_qos_wred_s),
                         [](ze_lsw_qos_wred_s &r) { return ze_lsw_qos_get_wred(&r); });
}

uint32_t ze_adapter_cli_lsw_qos_set_egr_shaping(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply, [](U32PairReq &r) {
        return ze_lsw_qos_set_egr_shaping(r.first, r.second);
    });
}

uint32_t ze_adapter_cli_lsw_qos_get_egr_shaping(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, 8, [](U32PairReq &r) {
        return ze_lsw_qos_get_egr_shaping(r.first, &r.second);
    });
}

uint32_t ze_adapter_cli_lsw_qos_set_queue_shaping(void *req, uint32_t req_len,
                                                  uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32QuadReq, kNoReply, [](U32QuadReq &r) {
        return ze_lsw_qos_set_queue_shaping(r.a, r.b, r.c, r.d);
    });
}

uint32_t ze_adapter_cli_lsw_qos_get_queue_shaping(void *req, uint32_t req_len,
                                                  uint32_t *reply_len) {
    return ZE_CLI_HANDLE(QueueShapingReq, 16, [](QueueShapingReq &r) {
        return ze_lsw_qos_get_queue_shaping(r.queue, &r.p1, &r.p2, &r.p3);
    });
}

uint32_t ze_adapter_cli_lsw_qos_get_queuecount(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) {
        return ze_lsw_qos_get_queuecount(reinterpret_cast<uint8_t *>(&r.value));
    });
}

uint32_t ze_adapter_cli_lsw_qos_set_in_pri(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply,
                         [](U32PairReq &r) { return ze_lsw_qos_set_in_pri(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_qos_get_in_pri(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, 8,
                         [](U32PairReq &r) { return ze_lsw_qos_get_in_pri(r.first, &r.second); });
}

}  // extern "C"
