// IGMP snooping and proxy control: each function makes one named call to
// the kernel's IGMP module and returns its code as is.
#include "ze_igmp_api.h"

#include "ze_ubasic.h"

namespace {

constexpr uint32_t kValueSize = 4;

// Group VLAN payload: the second argument, then the group VLAN, then two
// address words.
struct GroupVlanPayload {
    uint16_t vlan;
    uint16_t group_vlan;
    uint32_t addr1;
    uint32_t addr2;
};
static_assert(sizeof(GroupVlanPayload) == 12);

struct IfPayload {
    uint8_t value0;
    uint8_t value1;
    uint8_t zero[2];
    char name[ZE_IGMP_IFNAME_LEN];
};
static_assert(sizeof(IfPayload) == 20);

uint32_t call(const char *kfunc, void *payload, uint32_t len) {
    uint32_t outlen = 0;
    return ze_os_hlp_sendioctl(kfunc, payload, len, &outlen);
}

uint32_t call_bare(const char *kfunc) { return ze_os_hlp_sendioctl(kfunc, nullptr, 0, nullptr); }

uint32_t call_value(const char *kfunc, uint32_t value) { return call(kfunc, &value, kValueSize); }

// The name is cut to the field; a name that fills it has no terminator.
uint32_t call_if(const char *kfunc, const char *name, IfPayload &p) {
    ze_os_strncpy(p.name, name, ZE_IGMP_IFNAME_LEN);
    return call(kfunc, &p, sizeof p);
}

}  // namespace

// One module value: the get hands the kernel the caller's variable, the set
// a copy of the value.
#define ZE_IGMP_VALUE(name)                                                            \
    uint32_t ze_igmp_get_##name(uint32_t *value) {                                     \
        return call("ze_kernel_igmp_get_" #name, value, kValueSize);                  \
    }                                                                                  \
    uint32_t ze_igmp_set_##name(uint32_t value) {                                      \
        return call_value("ze_kernel_igmp_set_" #name, value);                        \
    }

// A call that the kernel answers by printing.
#define ZE_IGMP_PRINT(fn) \
    uint32_t ze_igmp_##fn(void) { return call_bare("ze_kernel_igmp_" #fn); }

extern "C" {

uint32_t ze_igmp_dump(uint32_t what) { return call_value("ze_kernel_igmp_dump", what); }

ZE_IGMP_PRINT(clr_statinfo)
ZE_IGMP_PRINT(get_statinfo)
ZE_IGMP_PRINT(get_ifinfo)
ZE_IGMP_PRINT(get_ageinfo)
ZE_IGMP_PRINT(get_grpinfo)
ZE_IGMP_PRINT(get_usrinfo)

ZE_IGMP_VALUE(genqueryip)
ZE_IGMP_VALUE(autolrnvlan)
ZE_IGMP_VALUE(genquerymode)
ZE_IGMP_VALUE(usrvlanact)
ZE_IGMP_VALUE(agetimeinter)
ZE_IGMP_VALUE(agetimes)
ZE_IGMP_VALUE(defusrvlan)
ZE_IGMP_VALUE(defgrpvlan)
ZE_IGMP_VALUE(snoopingmode)
ZE_IGMP_VALUE(proxymode)

uint32_t ze_igmp_del_gourpvlan_ip(uint16_t group_vlan) {
    GroupVlanPayload p{};
    p.group_vlan = group_vlan;
    return call("ze_kernel_igmp_del_groupvlan_ip", &p, sizeof p);
}

uint32_t ze_igmp_add_gourpvlan_ip(uint16_t group_vlan, uint16_t vlan, uint32_t addr1,
                                  uint32_t addr2) {
    GroupVlanPayload p{vlan, group_vlan, addr1, addr2};
    return call("ze_kernel_igmp_add_groupvlan_ip", &p, sizeof p);
}

uint32_t ze_igmp_get_ifname(const char *name, uint8_t *value0, uint8_t *value1) {
    IfPayload p{};
    uint32_t r = call_if("ze_kernel_igmp_get_ifname", name, p);
    *value0 = p.value0;
    *value1 = p.value1;
    return r;
}

uint32_t ze_igmp_del_ifname(const char *name) {
    IfPayload p{};
    return call_if("ze_kernel_igmp_del_ifname", name, p);
}

uint32_t ze_igmp_add_ifname(const char *name, uint8_t value1) {
    IfPayload p{};
    p.value1 = value1;
    return call_if("ze_kernel_igmp_add_ifname", name, p);
}

}  // extern "C"
