// Network initialisation: the switch's default bridging state loaded in one
// call through the datapath API library. Every port enabled in VLAN 1 with
// TPID 0x8100 and priority 0, VLAN filtering on, no learning on the CPU
// port, and VLAN 1 broadcast reaching every port.
#include "ze_blocks_global.h"
#include "ze_blocks_l2.h"
#include "ze_blocks_port.h"
#include "ze_dp.h"
#include "ze_dp_block.h"
#include "ze_lsw_port.h"

namespace {

// Messages name the port module, of which this is a part.
constexpr char kSourceFile[] = "ze_lsw_port.cpp";

struct Assign {
    uint32_t offset;
    uint32_t value;
};

// The eight VLAN filter attribute words; no command of the library's own.
constexpr uint32_t kVlanFilterWords = 8;

using ze::CpuPort;
using ze::NniPort;
using ze::UniPort;

// Tag action (group, index) of a block whose table starts at `base`.
constexpr uint32_t tag(uint32_t base, uint32_t group, uint32_t index) { return base + 12 * group + 4 * index; }

constexpr uint32_t kTpid = 0x8100;
constexpr uint32_t kVlan = 1;
constexpr uint32_t kUniWord8 = 8, kPort0Word8 = 2;
constexpr uint32_t kUniByte24 = 24;
constexpr uint8_t kUniByte24Cleared = 0x04 | 0x20;  // cleared on ports 1..4 only

constexpr Assign kGlobal[] = {{ze::GlobalAttr::access_mode.offset, 0}};
constexpr uint32_t kCpuTpid = 24, kCpuWord32 = 32, kUniTpid = 84, kUniWord92 = 92;
constexpr Assign kCpuPort[] = {{kCpuTpid, kTpid},
                               {CpuPort::defaults[ze::kDefVlan].offset, kVlan},
                               {kCpuWord32, 0},
                               {CpuPort::defaults[ze::kDefPri].offset, 0}};
// Tag action codes of group 0 index 2 and group 1 index 0.
constexpr uint32_t kTagAct02 = 1, kTagAct10 = 8;
constexpr Assign kUniPort[] = {{UniPort::status.offset, 1},
                               {UniPort::workmode.offset, 0},
                               {tag(UniPort::kTagBase, 0, 2), kTagAct02},
                               {tag(UniPort::kTagBase, 1, 0), kTagAct10},
                               {kUniTpid, kTpid},
                               {UniPort::defaults[ze::kDefVlan].offset, kVlan},
                               {kUniWord92, 0},
                               {UniPort::defaults[ze::kDefPri].offset, 0}};
constexpr Assign kNniPort[] = {{tag(NniPort::kTagBase, 0, 2), kTagAct02},
                               {tag(NniPort::kTagBase, 1, 0), kTagAct10}};
constexpr Assign kL2[] = {{192, 13}, {200, 9}, {208, 9}, {ze::L2Attr::learn(ZE_PORT_CPU), 0}};

// VLAN 1 membership passes and broadcast egress adds, in driver order; the
// CPU port joins with every pass and follows every broadcast add.
constexpr uint32_t kMemberPorts[] = {0, ZE_PORT_PON, 1, 2, 3, 4};
constexpr uint32_t kBroadcastPorts[] = {1, 2, 3, 4, 0, ZE_PORT_PON};

template <class L, size_t N>
void assign(ze::Block<L> &b, const Assign (&values)[N]) {
    for (const Assign &a : values) b.set_word(a.offset, a.value);
}

// Get, change, set; the results are not examined.
template <class L, size_t N>
void load(int32_t (*get)(void *), int32_t (*set)(void *), ze::Block<L> &b, const Assign (&values)[N]) {
    get(b.data());
    assign(b, values);
    set(b.data());
}

void report(int line, int32_t r) {
    if (r) ze_os_printf("\r\n %s %d:[%d]", kSourceFile, line, static_cast<int>(r));
}

// The only block not zeroed first: the get fills it, and every word is set
// before it is written back, so no byte of it is read undefined here.
void enable_vlan_filtering() {
    uint32_t words[kVlanFilterWords];
    report(__LINE__, ze_dp_vlan_filter_attr_get(words));
    for (uint32_t &w : words) w = 1;
    report(__LINE__, ze_dp_vlan_filter_attr_set(words));
}

void filter_every_port() {
    ze::Block<ze::FilterMode> b;
    ze_dp_security_attr_get(b.data());
    for (uint32_t p = 0; p <= ZE_PORT_CPU; ++p) {
        b.set_word(ze::FilterMode::vlan_filter(p), 1);
        b.set_word(ze::FilterMode::vlan_filter2(p), 1);
    }
    ze_dp_security_attr_set(b.data());
}

// Port 0 sets its word 8; ports 1..4 clear two bits of byte 24 instead.
void set_uni_port(ze::Block<UniPort> &b, uint32_t port) {
    b.clear();
    b.set(UniPort::port, port);
    ze_dp_uni_eth_port_attr_get(b.data());
    if (port == 0)
        b.set_word(kUniWord8, kPort0Word8);
    else
        b.data()[kUniByte24] &= static_cast<uint8_t>(~kUniByte24Cleared);
    assign(b, kUniPort);
    ze_dp_uni_eth_port_attr_set(b.data());
}

void join_vlan(ze::Block<ze::VlanMember> &b, uint32_t port) {
    b.set(ze::VlanMember::vlan, kVlan);
    ze_dp_vlan_filter_table_item_get(b.data());
    b.set_word(ze::VlanMember::member(port), 1);
    b.set_word(ze::VlanMember::member(ZE_PORT_CPU), 1);
    ze_dp_vlan_filter_table_item_set(b.data());
}

void add_broadcast(uint32_t port) {
    ze::Block<ze::BcEgress> b;
    b.set(ze::BcEgress::vlan, kVlan);
    b.set(ze::BcEgress::fid, 0);
    b.set(ze::BcEgress::port, port);
    b.set(ze::BcEgress::enable, 1);
    ze_dp_l2_vlan_bc_add(b.data());
}

}  // namespace

extern "C" {

uint32_t ze_lsw_port_init_network(void) {
    ze::Block<ze::GlobalAttr> global;
    ze::Block<CpuPort> cpu;
    ze::Block<UniPort> uni;
    ze::Block<ze::VlanMember> member;
    ze::Block<ze::L2Attr> l2;
    ze::Block<NniPort> nni;
    ze_dp_dev_open();

    enable_vlan_filtering();
    load(ze_dp_glb_attr_get, ze_dp_glb_attr_set, global, kGlobal);
    filter_every_port();
    load(ze_dp_uni_cpu_port_attr_get, ze_dp_uni_cpu_port_attr_set, cpu, kCpuPort);
    for (uint32_t port = 0; port < ZE_PORT_ETH_COUNT; ++port) set_uni_port(uni, port);
    nni.set(NniPort::port, 0);
    load(ze_dp_nni_eth_port_attr_get, ze_dp_nni_eth_port_attr_set, nni, kNniPort);
    for (uint32_t port : kMemberPorts) join_vlan(member, port);
    load(ze_dp_l2_attr_get, ze_dp_l2_attr_set, l2, kL2);
    for (uint32_t port : kBroadcastPorts) {
        add_broadcast(port);
        add_broadcast(ZE_PORT_CPU);
    }

    ze_dp_dev_close();
    return ZE_OK;
}

}  // extern "C"
