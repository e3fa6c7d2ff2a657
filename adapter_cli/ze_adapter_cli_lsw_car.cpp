// CAR commands: start-up, protocol packet CAR and action, simple CAR, EFC
// CAR, flow and GEM-port CAR, to-CPU reason CAR.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_car.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_car.cpp", false};
constexpr uint32_t kNoReply = ze::cli::kNoReply;

using ze::cli::U32QuadReq;
using ze::cli::U32TripleReq;

// A key, then a byte value and two words written back (simple, EFC and
// to-CPU CAR reads). The EFC command's key is the low 16 bits.
struct CarValuesReq {
    uint32_t key;
    uint8_t v1;
    uint8_t pad[3];
    uint32_t v2, v3;
};
struct ProtocolCarReq {
    uint32_t entry, sub;
    uint8_t car;
    uint8_t pad[3];
};
// The flow CAR commands and the GEM-port CAR set: an sfid or GEM port, then
// the six parameters.
struct FlowCarReq {
    uint16_t id;
    uint8_t pad[2];
    ze_lsw_car_param_s car;
};
struct GemportCarGetReq {
    uint16_t gemport;
    uint8_t pad[2];
    uint32_t direction;
    uint32_t params[6];
};
static_assert(sizeof(CarValuesReq) == 16 && sizeof(ProtocolCarReq) == 12 &&
              sizeof(FlowCarReq) == 28 && sizeof(GemportCarGetReq) == 32);

// The GEM-port CAR command always sets the upstream profile.
constexpr uint32_t kGemportSetDirection = 0;

}  // namespace

extern "C" {

// Takes no request and checks nothing.
uint32_t ze_adapter_cli_lsw_car_init_wred(void * /*req*/, uint32_t /*req_len*/,
                                          uint32_t *reply_len) {
    return ze::cli::finish(kFamily, __func__, __LINE__, ze_lsw_car_init_wred(), reply_len,
                           kNoReply);
}

uint32_t ze_adapter_cli_lsw_car_set_protocol_paket_car(void *req, uint32_t req_len,
                                                       uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32TripleReq, kNoReply, [](U32TripleReq &r) {
        return ze_lsw_car_set_protocol_paket_car(r.a, r.b, r.c);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_protocol_paket_car(void *req, uint32_t req_len,
                                                       uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ProtocolCarReq, 12, [](ProtocolCarReq &r) {
        return ze_lsw_car_get_protocol_paket_car(r.entry, r.sub, &r.car);
    });
}

uint32_t ze_adapter_cli_lsw_car_set_protocol_paket_action(void *req, uint32_t req_len,
                                                          uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32TripleReq, kNoReply, [](U32TripleReq &r) {
        return ze_lsw_car_set_protocol_paket_action(r.a, r.b, r.c);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_protocol_paket_action(void *req, uint32_t req_len,
                                                          uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32TripleReq, 12, [](U32TripleReq &r) {
        return ze_lsw_car_get_protocol_paket_action(r.a, r.b, &r.c);
    });
}

uint32_t ze_adapter_cli_lsw_car_set_simple_car(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32QuadReq, kNoReply, [](U32QuadReq &r) {
        return ze_lsw_car_set_simple_car(r.a, r.b, r.c, r.d);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_simple_car(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(CarValuesReq, 16, [](CarValuesReq &r) {
        return ze_lsw_car_get_simple_car(r.key, &r.v1, &r.v2, &r.v3);
    });
}

uint32_t ze_adapter_cli_lsw_car_set_efc_car(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32QuadReq, kNoReply, [](U32QuadReq &r) {
        return ze_lsw_car_set_efc_car(r.a, r.b, r.c, r.d);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_efc_car(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(CarValuesReq, 16, [](CarValuesReq &r) {
        return ze_lsw_car_get_efc_car(static_cast<uint16_t>(r.key), &r.v1, &r.v2, &r.v3);
    });
}

uint32_t ze_adapter_cli_lsw_car_set_flow_car(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(FlowCarReq, kNoReply, [](FlowCarReq &r) {
        const ze_lsw_car_param_s &c = r.car;
        return ze_lsw_car_set_flow_car(r.id, c.p1, c.p2, c.p3, c.p4, c.p5, c.p6);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_flow_car(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(FlowCarReq, 28, [](FlowCarReq &r) {
        ze_lsw_car_param_s car = r.car;
        uint32_t res = ze_lsw_car_get_flow_car(r.id, &car);
        r.car = car;
        return res;
    });
}

uint32_t ze_adapter_cli_lsw_car_set_gemport_car(void *req, uint32_t req_len,
                                                uint32_t *reply_len) {
    return ZE_CLI_HANDLE(FlowCarReq, kNoReply, [](FlowCarReq &r) {
        const ze_lsw_car_param_s &c = r.car;
        return ze_lsw_car_set_gemport_car(r.id, kGemportSetDirection, c.p1, c.p2, c.p3, c.p4,
                                          c.p5, c.p6);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_gemport_car(void *req, uint32_t req_len,
                                                uint32_t *reply_len) {
    return ZE_CLI_HANDLE(GemportCarGetReq, 32, [](GemportCarGetReq &r) {
        return ze_lsw_car_get_gemport_car(r.gemport, r.direction, r.params);
    });
}

uint32_t ze_adapter_cli_lsw_car_set_tocpu_reason(void *req, uint32_t req_len,
                                                 uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32QuadReq, kNoReply, [](U32QuadReq &r) {
        return ze_lsw_car_set_tocpu_reason_car(r.a, r.b, r.c, r.d);
    });
}

uint32_t ze_adapter_cli_lsw_car_get_tocpu_reason(void *req, uint32_t req_len,
                                                 uint32_t *reply_len) {
    return ZE_CLI_HANDLE(CarValuesReq, 16, [](CarValuesReq &r) {
        return ze_lsw_car_get_tocpu_reason_car(r.key, &r.v1, &r.v2, &r.v3);
    });
}

}  // extern "C"
