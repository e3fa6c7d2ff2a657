#include "api_table.h"

#include "api/areas.h"

namespace zesh::api {

std::span<const Area> areas() {
    static const Area kAreas[] = {
        {"pon", "chip attributes, GPON MAC and EPON MAC", pon_rows()},
        {"port", "switch ports, tag actions, defaults, network initialisation, PHY", port_rows()},
        {"mac", "address table", mac_rows()},
        {"vlan", "VLAN membership, tag modes, filter, broadcast egress", vlan_rows()},
        {"flow", "services, mappings, simple and extended classifiers, listings", flow_rows()},
        {"car", "rate limiting and WRED start-up", car_rows()},
        {"qos", "queues, shaping, scheduling, WRED profiles", qos_rows()},
        {"sec", "IP filter rules and source-MAC lists", sec_rows()},
        {"pm", "statistics", pm_rows()},
        {"board", "board memory and IGMP snooping (named kernel calls)", board_rows()},
        {"channel", "the datapath command channel, port checks and bitmaps", channel_rows()},
    };
    return kAreas;
}

const Row *find(std::string_view name) {
    for (const Area &a : areas())
        for (const Row &r : a.rows)
            if (name == r.name) return &r;
    return nullptr;
}

}  // namespace zesh::api
