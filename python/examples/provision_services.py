"""Provisions an ONU's internet, voice and IPTV services through the daemon,
lists the classifier tables and removes everything again.

    PYTHONPATH=python python3 python/examples/provision_services.py /run/ze_ifm.sock
"""

import sys

from ze_adapter import Client

# Upstream mappings: internet on VLAN 100, voice on VLAN 200 priority 5;
# IPTV on VLAN 300 downstream. Each sfid gets a GEM port on its own T-CONT.
MAPPINGS = [
    dict(key_mask=2, vlan=100, dir=0),
    dict(key_mask=6, vlan=200, pri=5, dir=0),
    dict(key_mask=2, vlan=300, dir=1),
]
SERVICES = {
    "internet": dict(key_mask=0x81, igr_port=0, key7=0x0800, act_mask=0x8000, cvlan=100, fwd_act=0),
    "voice": dict(key_mask=0x8, dip="10.10.0.5", dip_mask="255.255.255.255", act_mask=0x4, spri=5, fwd_act=2),
    "iptv": dict(
        key_mask=0x9, igr_port=5, dip="239.1.1.0", dip_mask="255.255.255.0", act_mask=0x1000, svlan=300, fwd_act=1
    ),
}


def provision(onu):
    """Installs everything; returns the sfid of each mapping and the fid of
    each service."""
    sfids = []
    for tcont, mapping in enumerate(MAPPINGS, start=1):
        added = onu.flow_add_mapping(**mapping)
        assert added.ok, added
        sfid = added.reply["sfid"]
        assert onu.gmac_set_gemport(index=sfid, tcont=tcont, gemport=1000 + tcont).ok
        sfids.append(sfid)
    fids = {}
    for name, rule in SERVICES.items():
        added = onu.flow_add_service(**rule)
        assert added.ok, added
        fids[name] = added.reply["fid"]
    return sfids, fids


def main(path=None):
    with Client(path) as onu:
        sfids, fids = provision(onu)
        print("sfids", sfids, "fids", fids)
        print(onu.flow_diagnose(selector=0).printed, end="")
        print(onu.flow_diagnose(selector=1).printed, end="")
        assert onu.flow_del_all().ok


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else None)
