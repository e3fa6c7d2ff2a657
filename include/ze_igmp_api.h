/* IGMP snooping and proxy control: pass-throughs to the kernel's IGMP
 * module. Every function returns the kernel call's code unchanged, checks
 * nothing and writes no trace record. A get lets the kernel write the value
 * straight into the caller's variable. */
#ifndef ZE_IGMP_API_H
#define ZE_IGMP_API_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Length of the interface name field; longer names are cut to it and a
 * name of this length or more travels without a terminator. */
#define ZE_IGMP_IFNAME_LEN 16u

/* Printed by the kernel module. */
ZE_API uint32_t ze_igmp_dump(uint32_t what);
ZE_API uint32_t ze_igmp_clr_statinfo(void);
ZE_API uint32_t ze_igmp_get_statinfo(void);
ZE_API uint32_t ze_igmp_get_ifinfo(void);
ZE_API uint32_t ze_igmp_get_ageinfo(void);
ZE_API uint32_t ze_igmp_get_grpinfo(void);
ZE_API uint32_t ze_igmp_get_usrinfo(void);

/* Values of the module. */
ZE_API uint32_t ze_igmp_get_genqueryip(uint32_t *value);
ZE_API uint32_t ze_igmp_set_genqueryip(uint32_t value);
ZE_API uint32_t ze_igmp_get_autolrnvlan(uint32_t *value);
ZE_API uint32_t ze_igmp_set_autolrnvlan(uint32_t value);
ZE_API uint32_t ze_igmp_get_genquerymode(uint32_t *value);
ZE_API uint32_t ze_igmp_set_genquerymode(uint32_t value);
ZE_API uint32_t ze_igmp_get_usrvlanact(uint32_t *value);
ZE_API uint32_t ze_igmp_set_usrvlanact(uint32_t value);
ZE_API uint32_t ze_igmp_get_agetimeinter(uint32_t *value);
ZE_API uint32_t ze_igmp_set_agetimeinter(uint32_t value);
ZE_API uint32_t ze_igmp_get_agetimes(uint32_t *value);
ZE_API uint32_t ze_igmp_set_agetimes(uint32_t value);
ZE_API uint32_t ze_igmp_get_defusrvlan(uint32_t *value);
ZE_API uint32_t ze_igmp_set_defusrvlan(uint32_t value);
ZE_API uint32_t ze_igmp_get_defgrpvlan(uint32_t *value);
ZE_API uint32_t ze_igmp_set_defgrpvlan(uint32_t value);
ZE_API uint32_t ze_igmp_get_snoopingmode(uint32_t *value);
ZE_API uint32_t ze_igmp_set_snoopingmode(uint32_t value);
ZE_API uint32_t ze_igmp_get_proxymode(uint32_t *value);
ZE_API uint32_t ze_igmp_set_proxymode(uint32_t value);

/* Group VLAN address entries, keyed by the group VLAN. The exported names
 * keep the "gourpvlan" spelling of this interface. */
ZE_API uint32_t ze_igmp_add_gourpvlan_ip(uint16_t group_vlan, uint16_t vlan, uint32_t addr1,
                                         uint32_t addr2);
ZE_API uint32_t ze_igmp_del_gourpvlan_ip(uint16_t group_vlan);

/* Interfaces of the module, by name. The get writes both values whatever
 * the kernel call returned. */
ZE_API uint32_t ze_igmp_get_ifname(const char *name, uint8_t *value0, uint8_t *value1);
ZE_API uint32_t ze_igmp_del_ifname(const char *name);
ZE_API uint32_t ze_igmp_add_ifname(const char *name, uint8_t value1);

ZE_END_DECLS

#endif
