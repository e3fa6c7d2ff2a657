// Flow CAR: a profile per sfid, profiles shared by the flows of a GEM port
// (recorded in g_st_fcar_status), and reading back the profile a flow is
// bound to. Binding a flow also turns on the CAR of its classifier entry.
#include "ze_blocks_car.h"
#include "ze_blocks_sfc.h"
#include "ze_dp_block.h"
#include "ze_lsw_car.h"
#include "ze_lsw_car_shadow.h"
#include "ze_lsw_flow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_car.cpp";

using ze::CarProfile;
using ze::FlowCarBind;
using ze::SfcAttr;

// The six parameters as profile words, parameter 5 cut to a byte.
struct CarWords {
    uint32_t w[CarProfile::kParamCount];
};
CarWords car_words(uint32_t p1, uint32_t p2, uint32_t p3, int32_t p4, uint8_t p5, uint32_t p6) {
    return {{p1, p2, p3, static_cast<uint32_t>(p4), p5, p6}};
}

void put_params(ze::Block<CarProfile> &b, const CarWords &c) {
    for (uint32_t i = 0; i < CarProfile::kParamCount; ++i)
        b.set_word(CarProfile::kParam0 + 4 * i, c.w[i]);
}
uint32_t param(const ze::Block<CarProfile> &b, uint32_t i) {
    return b.word(CarProfile::kParam0 + 4 * i);
}

// 0 when the sfid's profile is free (all six words 0). A taken profile or a
// failed read makes the caller give up.
uint32_t fcar_index_check(uint32_t sfid) {
    ze::Block<CarProfile> b;
    b.set(CarProfile::index, sfid);
    uint32_t r = ze::dp_read(b);
    for (uint32_t i = 0; r == 0 && i < CarProfile::kParamCount; ++i)
        if (param(b, i)) r = ZE_ERR_FAIL;
    return ze::traced(ZE_SITE_AS("ze_lsw_car_get_fcar_index"), r);
}

// Turns on the entry and its CAR in the flow's classifier entry.
uint32_t enable_sfc_car(uint32_t sfid) {
    ze::Block<SfcAttr> b;
    b.set(SfcAttr::sfid, sfid);
    uint32_t r = ze::dp_read(b);
    if (r == 0) {
        b.set(SfcAttr::enable, 1);
        b.set(SfcAttr::car_enable, 1);
        r = ze::dp_write(b);
    }
    return r;
}

ze::Block<FlowCarBind> binding(uint32_t sfid, uint32_t profile) {
    ze::Block<FlowCarBind> b;
    b.set(FlowCarBind::sfid, sfid);
    b.set(FlowCarBind::enable, 1);
    b.set(FlowCarBind::profile, profile);
    return b;
}

// Reads the binding of the sfid, then the profile it names, into `prof`.
uint32_t read_bound_profile(uint32_t sfid, ze::Block<CarProfile> &prof) {
    ze::Block<FlowCarBind> bind;
    bind.set(FlowCarBind::sfid, sfid);
    uint32_t r = ze::dp_read(bind);
    if (r) return r;
    prof.set(CarProfile::index, bind.get(FlowCarBind::profile));
    return ze::dp_read(prof);
}

bool same_request(const ze_fcar_status_s &e, const CarWords &c, uint32_t gemport, uint32_t dir) {
    return e.in_use == 1 && __builtin_memcmp(e.params, c.w, sizeof c.w) == 0 &&
           e.direction == dir && e.gemport == static_cast<uint16_t>(gemport);
}

// The profile for a GEM-port request: the one an identical request got, or
// else the lowest one not handed out; 16 when all are.
uint32_t fcar_table_index(const CarWords &c, uint32_t gemport, uint32_t dir, uint32_t *index) {
    uint32_t free_index = ZE_LSW_CAR_PROFILE_COUNT;
    for (uint32_t i = 0; i < ZE_LSW_CAR_PROFILE_COUNT; ++i) {
        const ze_fcar_status_s &e = g_st_fcar_status[i];
        if (same_request(e, c, gemport, dir)) {
            free_index = i;
            break;
        }
        if (e.in_use != 1 && free_index == ZE_LSW_CAR_PROFILE_COUNT) free_index = i;
    }
    uint32_t r = ZE_ERR_FULL;
    if (free_index < ZE_LSW_CAR_PROFILE_COUNT) {
        *index = free_index;
        r = ZE_OK;
    }
    return ze::traced(ZE_SITE_AS("ze_lsw_car_inner_get_fcar_table_index"), r);
}

void save_fcar(uint32_t index, const CarWords &c, uint32_t gemport, uint32_t dir) {
    ze_fcar_status_s &e = g_st_fcar_status[index];
    e.in_use = 1;
    e.gemport = static_cast<uint16_t>(gemport);
    e.direction = dir;
    __builtin_memcpy(e.params, c.w, sizeof c.w);
    ze::traced(ZE_SITE_AS("ze_lsw_car_inner_save_fcar"), ZE_OK);
}

// Binds the flows of the GEM port to the profile. Each search starts at the
// sfid just bound and includes it, so the first flow is found every round:
// it is bound `count` times and the others not at all. Users rely on this.
uint32_t bind_gemport_flows(uint32_t gemport, uint32_t dir, uint32_t count, uint32_t index) {
    uint32_t start = 0;
    for (uint32_t n = 0; n < count; ++n) {
        uint16_t sfid = 0;
        uint32_t r = ze::map_err(ze_lsw_flow_get_sfid_by_gemport(gemport, dir, start, &sfid));
        if (r) return r;
        ze::Block<FlowCarBind> bind = binding(sfid, index);
        r = ze::dp_write(bind);
        if (r == 0) r = enable_sfc_car(sfid);
        if (r) return r;
        start = sfid;
    }
    return ZE_OK;
}

}  // namespace

extern "C" {

ze_fcar_status_s g_st_fcar_status[ZE_LSW_CAR_PROFILE_COUNT];

// A profile can be set once per sfid: it has to be cleared by other means
// before it can change. Steps done before a failure stay done.
uint32_t ze_lsw_car_set_flow_car(uint32_t sfid, uint32_t p1, uint32_t p2, uint32_t p3, int32_t p4,
                                 uint8_t p5, uint32_t p6) {
    if (fcar_index_check(sfid)) return ze::traced(ZE_SITE, ZE_ERR_FAIL);
    ze::Block<CarProfile> prof;
    prof.set(CarProfile::index, sfid);
    uint32_t r = ze::dp_read(prof);
    if (r == 0) {
        put_params(prof, car_words(p1, p2, p3, p4, p5, p6));
        r = ze::dp_write(prof);
    }
    if (r == 0) {
        ze::Block<FlowCarBind> bind;
        bind.set(FlowCarBind::sfid, sfid);
        r = ze::dp_read(bind);
        if (r == 0) {
            bind.set(FlowCarBind::enable, 1);
            bind.set(FlowCarBind::profile, sfid);
            r = ze::dp_write(bind);
        }
    }
    if (r == 0) r = enable_sfc_car(sfid);
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_car_get_flow_car(uint32_t sfid, ze_lsw_car_param_s *car) {
    if (!car) return ZE_ERR_NULL_PTR;
    ze::Block<CarProfile> prof;
    uint32_t r = read_bound_profile(sfid, prof);
    if (r == 0) {
        car->p1 = param(prof, 0);
        car->p2 = param(prof, 1);
        car->p3 = param(prof, 2);
        car->p4 = static_cast<int32_t>(param(prof, 3));
        car->p5 = static_cast<uint8_t>(param(prof, 4));
        car->p6 = param(prof, 5);
    }
    return ze::traced(ZE_SITE, r);
}

// The profile record stays saved whatever fails afterwards.
uint32_t ze_lsw_car_set_gemport_car(uint32_t gemport, uint32_t direction, uint32_t p1, uint32_t p2,
                                    uint32_t p3, int32_t p4, uint8_t p5, uint32_t p6) {
    const CarWords c = car_words(p1, p2, p3, p4, p5, p6);
    uint32_t index = 0;
    if (fcar_table_index(c, gemport, direction, &index)) return ze::traced(ZE_SITE, ZE_ERR_FAIL);
    ze::Block<CarProfile> prof;
    prof.set(CarProfile::index, index);
    put_params(prof, c);
    uint32_t r = ze::dp_write(prof);
    if (r) return ze::traced(ZE_SITE, r);
    save_fcar(index, c, gemport, direction);
    uint16_t count = 0;
    r = ze::map_err(ze_lsw_flow_get_sfc_item_count(gemport, direction, &count));
    if (r == 0 && count) r = bind_gemport_flows(gemport, direction, count, index);
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_car_get_gemport_car(uint32_t gemport, uint32_t direction, uint32_t params[6]) {
    if (!params) return ZE_ERR_NULL_PTR;
    uint16_t sfid = 0;
    uint32_t r = ze::map_err(ze_lsw_flow_get_sfid_by_gemport(gemport, direction, 0, &sfid));
    ze::Block<CarProfile> prof;
    if (r == 0) r = read_bound_profile(sfid, prof);
    if (r == 0)
        for (uint32_t i = 0; i < CarProfile::kParamCount; ++i) params[i] = param(prof, i);
    return ze::traced(ZE_SITE, r);
}

}  // extern "C"
