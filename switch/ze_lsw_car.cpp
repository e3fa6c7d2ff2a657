// The single-block rate limiters: EFC CAR, simple CAR, protocol packet
// action and CAR, to-CPU reason CAR and Ethernet port CAR, and the start-up
// state of WRED and the flow CAR profiles.
#include "ze_blocks_car.h"
#include "ze_blocks_port.h"
#include "ze_blocks_qos.h"
#include "ze_dp_block.h"
#include "ze_lsw_car.h"
#include "ze_lsw_qos.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_car.cpp";

using ze::CarProfile;
using ze::EfcCar;
using ze::ProtocolPacket;
using ze::QosWred;
using ze::SimpleCar;
using ze::TocpuCar;
using ze::TocpuReason;
using ze::UniPort;

// Slots of the simple CAR that each kind uses; the first is the one read.
constexpr uint32_t kNoSlot = 0xffffffff;
struct KindSlots {
    uint32_t slot[2];
};
constexpr KindSlots kSimpleCarKinds[] = {
    {{48, 60}},
    {{0, kNoSlot}},
    {{24, 36}},
    {{12, kNoSlot}},
};
constexpr uint32_t kSimpleCarKindCount = sizeof kSimpleCarKinds / sizeof kSimpleCarKinds[0];

// Egress Ethernet CAR goes through the shaper of port + 8.
constexpr uint32_t kEthShaperPortBase = 8;
enum : uint32_t { kEthIngress = 0, kEthEgress = 1 };

// WRED start-up profiles: 16 entries of the first table, 4 of the second.
constexpr uint32_t kWredEntries = 16, kWredSmallEntries = 4;
constexpr uint32_t kWredStartup[] = {6, 2, 0, 0, 0, 0, 100, 100, 100, 100};  // words 1..10

// Offset of sub-entry `sub`'s word in a protocol block, or 0 when the word
// would lie outside the block.
uint32_t protocol_field(uint32_t base, uint32_t sub) {
    if (sub > (ProtocolPacket::kSize - 4 - base) / 4) return 0;
    return base + 4 * sub;
}

// Reads one sub-entry word of a protocol entry, traced under `site`.
uint32_t read_protocol_word(const ze::TraceSite &site, uint32_t entry, uint32_t base, uint32_t sub,
                            uint32_t *value) {
    uint32_t off = protocol_field(base, sub);
    if (!off) return ze::traced(site, ZE_ERR_PARAM);
    ze::Block<ProtocolPacket> b;
    b.set(ProtocolPacket::index, entry);
    return ze::fetch(site, b, [&](const auto &blk) { *value = blk.word(off); });
}

uint32_t write_wred_table(uint32_t cmd, uint32_t entries) {
    ze::Block<QosWred> b;
    for (uint32_t i = 0; i < sizeof kWredStartup / 4; ++i) b.set_word(4 + 4 * i, kWredStartup[i]);
    for (uint32_t e = 0; e < entries; ++e) {
        b.set(QosWred::index, e);
        uint32_t r = ze::dp_send(cmd, b.data(), QosWred::kSize);
        if (r) return r;
    }
    return ZE_OK;
}

// Reads the to-CPU reason block and, when `enable`, writes it back with
// both CAR enables set; gives the CAR index the block then holds.
uint32_t tocpu_car_index(uint32_t reason, bool enable, uint32_t *index) {
    ze::Block<TocpuReason> b;
    b.set(TocpuReason::reason, reason);
    uint32_t r = ze::dp_read(b);
    if (r == 0 && enable) {
        b.set(TocpuReason::car_enable, 1);
        b.set(TocpuReason::car_enable2, 1);
        r = ze::dp_write(b);
    }
    if (r == 0) *index = b.get(TocpuReason::car_index);
    return r;
}

}  // namespace

extern "C" {

// One write, without reading the block first.
uint32_t ze_lsw_car_set_efc_car(uint32_t index, uint32_t v1, uint32_t v2, uint32_t v3) {
    ze::Block<EfcCar> b;
    b.set(EfcCar::index, index);
    ze::put_triple(b, v1, v2, v3);
    return ze::traced(ZE_SITE, ze::dp_write(b));
}

uint32_t ze_lsw_car_get_efc_car(uint32_t index, uint8_t *v1, uint32_t *v2, uint32_t *v3) {
    if (!v1 || !v2 || !v3) return ZE_ERR_NULL_PTR;
    ze::Block<EfcCar> b;
    b.set(EfcCar::index, index);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { ze::get_triple(blk, v1, v2, v3); });
}

uint32_t ze_lsw_car_set_simple_car(uint32_t kind, uint32_t v1, uint32_t v2, uint32_t v3) {
    ze::Block<SimpleCar> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) {
        if (kind >= kSimpleCarKindCount) return;
        for (uint32_t off : kSimpleCarKinds[kind].slot) {
            if (off == kNoSlot) continue;
            blk.set_word(off, v1);
            blk.set_word(off + 4, v2);
            blk.set_word(off + 8, v3);
        }
    });
}

uint32_t ze_lsw_car_get_simple_car(uint32_t kind, uint8_t *v1, uint32_t *v2, uint32_t *v3) {
    if (!v1 || !v2 || !v3) return ZE_ERR_NULL_PTR;
    ze::Block<SimpleCar> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        if (kind >= kSimpleCarKindCount) return;
        uint32_t off = kSimpleCarKinds[kind].slot[0];
        *v1 = static_cast<uint8_t>(blk.word(off));
        *v2 = blk.word(off + 4);
        *v3 = blk.word(off + 8);
    });
}

uint32_t ze_lsw_car_set_protocol_paket_action(uint32_t entry, uint32_t sub, uint32_t action) {
    uint32_t off = protocol_field(ProtocolPacket::kAction0, sub);
    if (!off) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ze::Block<ProtocolPacket> b;
    b.set(ProtocolPacket::index, entry);
    return ze::update(ZE_SITE, b, [&](auto &blk) { blk.set_word(off, action); });
}

uint32_t ze_lsw_car_get_protocol_paket_action(uint32_t entry, uint32_t sub, uint32_t *action) {
    if (!action) return ZE_ERR_NULL_PTR;
    return read_protocol_word(ZE_SITE, entry, ProtocolPacket::kAction0, sub, action);
}

// The block is read as entry 0 (the index is put in only for the write), so
// entry 0's other fields are carried into the entry. Kept as the driver's
// users know it.
uint32_t ze_lsw_car_set_protocol_paket_car(uint32_t entry, uint32_t sub, uint32_t car) {
    uint32_t off = protocol_field(ProtocolPacket::kCar0, sub);
    if (!off) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ze::Block<ProtocolPacket> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) {
        blk.set_word(off, car);
        blk.set(ProtocolPacket::index, entry);
    });
}

uint32_t ze_lsw_car_get_protocol_paket_car(uint32_t entry, uint32_t sub, uint8_t *car) {
    if (!car) return ZE_ERR_NULL_PTR;
    uint32_t value = 0;
    uint32_t r = read_protocol_word(ZE_SITE, entry, ProtocolPacket::kCar0, sub, &value);
    if (r == 0) *car = static_cast<uint8_t>(value);
    return r;
}

uint32_t ze_lsw_car_set_tocpu_reason_car(uint32_t reason, uint32_t v1, uint32_t v2, uint32_t v3) {
    uint32_t index = 0;
    uint32_t r = tocpu_car_index(reason, true, &index);
    if (r == 0) {
        ze::Block<TocpuCar> b;
        b.set(TocpuCar::index, index);
        r = ze::dp_read(b);
        if (r == 0) {
            ze::put_triple(b, v1, v2, v3);
            r = ze::dp_write(b);
        }
    }
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_car_get_tocpu_reason_car(uint32_t reason, uint8_t *v1, uint32_t *v2,
                                         uint32_t *v3) {
    if (!v1 || !v2 || !v3) return ZE_ERR_NULL_PTR;
    uint32_t index = 0;
    uint32_t r = tocpu_car_index(reason, false, &index);
    if (r) return ze::traced(ZE_SITE, r);
    ze::Block<TocpuCar> b;
    b.set(TocpuCar::index, index);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { ze::get_triple(blk, v1, v2, v3); });
}

uint32_t ze_lsw_car_set_eth_car(uint32_t port, uint32_t direction, const uint32_t *params) {
    if (!params) return ZE_ERR_NULL_PTR;
    if (direction == kEthIngress) {
        ze::Block<UniPort> b;
        b.set(UniPort::port, port);
        return ze::update(ZE_SITE, b, [&](auto &blk) {
            blk.set(UniPort::port, port);
            blk.set(UniPort::car_enable, 1);
            blk.set(UniPort::car_param3, params[3]);
            blk.set(UniPort::car_param1, params[1]);
        });
    }
    uint32_t r = ZE_OK;
    if (direction == kEthEgress)
        r = ze::map_err(ze_lsw_qos_set_egr_shaping(port + kEthShaperPortBase, params[1]));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_car_init_wred(void) {
    uint32_t r = write_wred_table(QosWred::kSet, kWredEntries);
    if (r == 0) r = write_wred_table(QosWred::kSetSmall, kWredSmallEntries);
    if (r) return ze::traced(ZE_SITE, r);
    ze::Block<CarProfile> b;
    for (uint32_t i = 0; i < CarProfile::kCount; ++i) {
        b.clear();
        b.set(CarProfile::index, i);
        if (ze::dp_write(b)) return ze::traced(ZE_SITE, ZE_ERR_FAIL);
    }
    return ze::traced(ZE_SITE, ZE_OK);
}

}  // extern "C"
