// QoS: ingress priority, queue map, queue buffers, queue and egress shaping,
// egress scheduling and WRED profiles, each a read-modify-write of one
// driver block.
#include "ze_lsw_qos.h"

#include "ze_blocks_qos.h"
#include "ze_dp_block.h"
#include "ze_lsw_flow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_qos.cpp";

using ze::QosEgrSchedule;
using ze::QosEgrShaping;
using ze::QosInPri;
using ze::QosQueueBuffer;
using ze::QosQueueMap;
using ze::QosQueueShaping;
using ze::QosWred;

// The shaper port that needs the special flag.
constexpr uint32_t kSpecialShaperPort = 13;

// Every setter but WRED writes its key fields into the block twice: before
// the read, and again after it, whatever the driver answered in them.
template <class L, class Key, class Edit>
uint32_t keyed_update(const ze::TraceSite &site, Key &&put_key, Edit &&edit) {
    ze::Block<L> b;
    put_key(b);
    return ze::update(site, b, [&](ze::Block<L> &blk) {
        put_key(blk);
        edit(blk);
    });
}

void put_queue_map_key(ze::Block<QosQueueMap> &b, uint32_t port, uint32_t priority) {
    b.set(QosQueueMap::port, port);
    b.set(QosQueueMap::group, 0);
    b.set(QosQueueMap::priority, priority);
}

// A WRED block carrying only the profile's name (words 0 and 2).
ze::Block<QosWred> wred_key(const ze_lsw_qos_wred_s &p) {
    ze::Block<QosWred> b;
    b.set(QosWred::index, p.word[0]);
    b.set(QosWred::word2, p.word[2]);
    return b;
}

}  // namespace

extern "C" {

uint32_t ze_lsw_qos_get_queuecount(uint8_t *count) {
    if (!count) return ZE_ERR_NULL_PTR;
    *count = ZE_LSW_QOS_QUEUE_COUNT;
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_qos_get_in_pri(uint32_t flow, uint32_t *priority) {
    if (!priority) return ZE_ERR_NULL_PTR;
    ze::Block<QosInPri> b;
    b.set(QosInPri::flow, flow);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *priority = blk.get(QosInPri::priority); });
}

// The write's answer is not looked at: once the read succeeded the call
// reports success.
uint32_t ze_lsw_qos_set_in_pri(uint32_t flow, uint32_t priority) {
    ze::Block<QosInPri> b;
    b.set(QosInPri::flow, flow);
    uint32_t r = ze::dp_read(b);
    if (r == 0) {
        b.set(QosInPri::flow, flow);
        b.set(QosInPri::enable, 1);
        b.set(QosInPri::priority, priority);
        ze::dp_write(b);
    }
    return ze::traced(ZE_SITE, r);
}

// Walks the flows the library installed (its SFC shadow). A failure of any
// step is folded like a driver code, so it comes back as 0xffffffff.
uint32_t ze_lsw_qos_set_gemport_pri(uint32_t gemport, uint32_t /*unused*/, uint32_t priority) {
    for (uint32_t flow = 0; flow < ZE_SFC_ENTRY_COUNT; ++flow) {
        uint8_t status = 0;
        ze_sfc_shadow_s entry;
        uint32_t r = ze_lsw_sfc_get_status(flow, &status);
        if (r == 0) r = ze_lsw_sfc_get_gemmapping(flow, &entry);
        if (r == 0 && status == 1 && entry.gemport == gemport)
            r = ze_lsw_qos_set_in_pri(flow, priority);
        if (r) return ze::traced(ZE_SITE, ze::map_err(r));
    }
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_qos_get_gemport_pri(void) { return ze::traced(ZE_SITE, ZE_OK); }

uint32_t ze_lsw_qos_get_queue_shaping(uint32_t queue, uint32_t *p1, uint32_t *p2, uint32_t *p3) {
    if (!p1 || !p2 || !p3) return ZE_ERR_NULL_PTR;
    ze::Block<QosQueueShaping> b;
    b.set(QosQueueShaping::queue, queue);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        *p1 = blk.get(QosQueueShaping::p1);
        *p2 = blk.get(QosQueueShaping::p2);
        *p3 = blk.get(QosQueueShaping::p3);
    });
}

uint32_t ze_lsw_qos_set_queue_shaping(uint32_t queue, uint32_t p1, uint32_t p2, uint32_t p3) {
    auto key = [&](auto &blk) { blk.set(QosQueueShaping::queue, queue); };
    return keyed_update<QosQueueShaping>(ZE_SITE, key, [&](auto &blk) {
        blk.set(QosQueueShaping::p1, p1);
        blk.set(QosQueueShaping::p2, p2);
        blk.set(QosQueueShaping::p3, p3);
    });
}

uint32_t ze_lsw_qos_get_egr_shaping(uint32_t port, uint32_t *rate) {
    if (!rate) return ZE_ERR_NULL_PTR;
    ze::Block<QosEgrShaping> b;
    b.set(QosEgrShaping::port, port);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *rate = blk.get(QosEgrShaping::rate); });
}

// Rate 0 means "no shaping": the shaper is first written enabled at the
// default rate, then written again disabled, so it keeps that rate.
uint32_t ze_lsw_qos_set_egr_shaping(uint32_t port, uint32_t rate) {
    ze::Block<QosEgrShaping> b;
    b.set(QosEgrShaping::port, port);
    uint32_t r = ze::dp_read(b);
    if (r == 0) {
        b.set(QosEgrShaping::port, port);
        b.set(QosEgrShaping::special, port == kSpecialShaperPort ? 1 : 0);
        b.set(QosEgrShaping::enable, 1);
        b.set(QosEgrShaping::rate, rate ? rate : ZE_LSW_QOS_EGR_DEFAULT_RATE);
        r = ze::dp_write(b);
    }
    if (r == 0 && rate == 0) {
        b.set(QosEgrShaping::enable, 0);
        r = ze::dp_write(b);
    }
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_qos_set_egr_schattr(uint32_t port, uint32_t queue, uint32_t s1, uint32_t s2) {
    if (port > ZE_LSW_QOS_SCH_PORT_MAX || queue >= ZE_LSW_QOS_QUEUE_COUNT)
        return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    auto key = [&](auto &blk) { blk.set(QosEgrSchedule::port, port); };
    return keyed_update<QosEgrSchedule>(ZE_SITE, key, [&](auto &blk) {
        uint32_t e = QosEgrSchedule::entry(queue);
        blk.set_word(e + QosEgrSchedule::kValid, 1);
        blk.set_word(e + QosEgrSchedule::kQueueId, port * ZE_LSW_QOS_QUEUE_COUNT + queue);
        blk.set_word(e + QosEgrSchedule::kParam1, s1);
        blk.set_word(e + QosEgrSchedule::kParam2, s2);
    });
}

uint32_t ze_lsw_qos_get_egr_schattr(uint32_t port, uint32_t queue, uint32_t * /*unused*/,
                                    uint8_t *s2) {
    if (!s2) return ZE_ERR_NULL_PTR;
    if (queue >= ZE_LSW_QOS_QUEUE_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ze::Block<QosEgrSchedule> b;
    b.set(QosEgrSchedule::port, port);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        *s2 = static_cast<uint8_t>(
            blk.word(QosEgrSchedule::entry(queue) + QosEgrSchedule::kParam2));
    });
}

uint32_t ze_lsw_qos_set_queue_buffer(uint32_t queue, uint32_t b1, uint32_t b2) {
    auto key = [&](auto &blk) { blk.set(QosQueueBuffer::queue, queue); };
    return keyed_update<QosQueueBuffer>(ZE_SITE, key, [&](auto &blk) {
        blk.set(QosQueueBuffer::b1, b1);
        blk.set(QosQueueBuffer::b2, b2);
    });
}

uint32_t ze_lsw_qos_get_queue_buffer(uint32_t queue, uint32_t *b1, uint32_t *b2) {
    if (!b2) return ZE_ERR_NULL_PTR;
    ze::Block<QosQueueBuffer> b;
    b.set(QosQueueBuffer::queue, queue);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        if (b1) *b1 = blk.get(QosQueueBuffer::b1);
        *b2 = blk.get(QosQueueBuffer::b2);
    });
}

uint32_t ze_lsw_qos_set_queue_map(uint32_t port, uint32_t priority, uint32_t queue) {
    auto key = [&](auto &blk) { put_queue_map_key(blk, port, priority); };
    return keyed_update<QosQueueMap>(ZE_SITE, key, [&](auto &blk) { blk.set(QosQueueMap::queue, queue); });
}

uint32_t ze_lsw_qos_get_queue_map(uint32_t port, uint32_t priority, uint8_t *queue) {
    if (!queue) return ZE_ERR_NULL_PTR;
    ze::Block<QosQueueMap> b;
    put_queue_map_key(b, port, priority);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        *queue = static_cast<uint8_t>(blk.get(QosQueueMap::queue));
    });
}

uint32_t ze_lsw_qos_get_wred(ze_lsw_qos_wred_s *profile) {
    if (!profile) return ZE_ERR_NULL_PTR;
    ze::Block<QosWred> b = wred_key(*profile);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        __builtin_memcpy(profile->word, blk.data(), QosWred::kSize);
    });
}

// The profile is read first, as the driver expects, but what is written is
// the caller's record whatever that read answered.
uint32_t ze_lsw_qos_set_wred(ze_lsw_qos_wred_s profile) {
    static_assert(sizeof profile == QosWred::kSize);
    ze::Block<QosWred> b = wred_key(profile);
    ze::dp_read(b);
    __builtin_memcpy(b.data(), profile.word, QosWred::kSize);
    return ze::traced(ZE_SITE, ze::dp_write(b));
}

}  // extern "C"
