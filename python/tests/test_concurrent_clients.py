"""Eight clients at once on one daemon, `zesh --connect` shells and Python
clients, each reading (getters, listings, statistics) or configuring
resources of its own (its own port, its own VLANs, its own MAC entries):
each gets exactly the output its script gives when it runs alone."""

import subprocess
import threading

from conftest import ZESH, running_daemon
from ze_adapter import Client

ROUNDS = 15

# Shell scripts, with the options they run under.
SHELLS = {
    "reader": ([], "chip_get_version; chip_get_vendor; lsw_port_get_mtu 0; lsw_pm_get_l2_statistic; help chip\n"),
    "port1": (
        [],
        "lsw_port_set_pause 1 1; lsw_port_get_pause 1; lsw_port_set_loopback 1 1; lsw_port_get_loopback 1; "
        "lsw_port_set_pause 1 0; lsw_port_get_pause 1; lsw_port_set_loopback 1 0\n",
    ),
    "vlans_of_port2": (
        [],
        "lsw_vlan_add_port port=2 vlan=100; lsw_vlan_set_tag port=2 vlan=100 mode=1; lsw_vlan_get_tag port=2 vlan=100; "
        "lsw_vlan_add_vlanbcegr port=2 vlan=101; lsw_vlan_get_vlanbcegr 101; lsw_vlan_display_vlanbcegrs 101; "
        "lsw_vlan_del_vlanbcegr port=2 vlan=101; lsw_vlan_del_port port=2 vlan=100; lsw_vlan_get_port 100\n",
    ),
    "json_reader": (
        ["--json"],
        "api ze_lsw_port_get_defvlan 4; lsw_qos_get_queue_map 3 5; lsw_pm_get_uni_eth_statistic 0; sim blocks\n",
    ),
}


def port3(onu):
    results = [onu.lsw_port_set_pri(port=3, priority=5), onu.lsw_port_get_pri(port=3)]
    results += [onu.api.ze_lsw_port_set_defvlan(port=3, vlan=300), onu.api.ze_lsw_port_get_defvlan(port=3)]
    return results + [onu.api.ze_lsw_port_set_defvlan(port=3, vlan=1), onu.lsw_port_set_pri(port=3, priority=0)]


def vlans_of_port4(onu):
    return [
        onu.api.ze_lsw_vlan_add_port(vlan=200, port=4),
        onu.lsw_vlan_get_port(vlan=200),
        onu.api.ze_lsw_vlan_bc_add_port(vlan=201, port=4),
        onu.api.ze_lsw_vlan_bc_get_port(vlan=201),
        onu.api.ze_lsw_vlan_bc_del_port(vlan=201, port=4),
        onu.api.ze_lsw_vlan_del_port(vlan=200, port=4),
    ]


def macs_of_vlan400(onu):
    mac = "00:00:00:00:04:01"
    return [
        onu.lsw_mac_add(valid=1, vlan=400, mac=mac, port=0),
        onu.lsw_mac_get(vlan=400, mac=mac),
        onu.lsw_mac_del(vlan=400, mac=mac),
        onu.lsw_mac_get(vlan=400, mac=mac),
    ]


def reader(onu):
    return [onu.chip_get_upmode(), onu.lsw_pm_get_l3_statistic(), onu.api.ze_lsw_port_get_mtu(port=2), onu.line("help vlan")]


PYTHONS = {"port3": port3, "vlans_of_port4": vlans_of_port4, "macs_of_vlan400": macs_of_vlan400, "py_reader": reader}


def run_shell(path, name):
    options, script = SHELLS[name]
    done = subprocess.run([ZESH, "--connect", path, *options], input=script * ROUNDS, capture_output=True, text=True)
    return "status %d\n%s%s" % (done.returncode, done.stdout, done.stderr)


def run_python(path, name):
    with Client(path) as onu:
        return "".join(repr(r) + "\n" for _ in range(ROUNDS) for r in PYTHONS[name](onu))


def run(path, name):
    return (run_shell if name in SHELLS else run_python)(path, name)


def test_eight_clients_each_get_what_they_get_alone(tmp_path):
    names = list(SHELLS) + list(PYTHONS)
    assert len(names) == 8
    alone = {}
    for name in names:
        with running_daemon(tmp_path / name) as path:
            alone[name] = run(path, name)

    together, start = {}, threading.Barrier(len(names))

    def client(path, name):
        start.wait()
        together[name] = run(path, name)

    with running_daemon(tmp_path / "together") as path:
        threads = [threading.Thread(target=client, args=(path, name)) for name in names]
        for t in threads:
            t.start()
        for t in threads:
            t.join()
    for name in names:
        assert together[name] == alone[name], name
    assert all(out.startswith("status 0\n") for name, out in alone.items() if name in SHELLS)
