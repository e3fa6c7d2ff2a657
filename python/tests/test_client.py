"""The Python client against a daemon on the simulator."""

import inspect
import struct

import pytest

from ze_adapter import Client, DaemonError
from ze_adapter import wire


def test_one_method_per_command_with_its_request_fields(onu):
    assert len(onu.commands) == 164
    for name, command in onu.commands.items():
        method = getattr(onu, name)
        params = list(inspect.signature(method).parameters)
        assert params == [f.name for f in command.fields if f.is_input], name
        assert method.__doc__.startswith("ze_adapter_cli_%s: %s" % (name, command.summary))
    flow_diagnose = onu.commands["flow_diagnose"]
    assert (flow_diagnose.request, flow_diagnose.reply, flow_diagnose.checked) == (4, None, False)
    assert onu.description.simulator


def test_fields_in_and_out(onu):
    set_mtu = onu.lsw_port_set_mtu(port=3, mtu=1600)
    assert (set_mtu.code, set_mtu.name, set_mtu.meaning, set_mtu.reply_len, set_mtu.reply) == (0, "ZE_OK", "ok", None, {})
    assert onu.lsw_port_get_mtu(port=0).reply == {"mtu": 1600}

    assert onu.lsw_mac_add(valid=1, vlan=10, mac="00:11:22:33:44:55", port=2).ok
    found = onu.lsw_mac_get(vlan=10, mac=bytes.fromhex("001122334455"))
    assert found.reply == {"age_en": 0, "untag": 0, "port": 2}

    assert onu.lsw_sec_add_ip_filtertable(porttype=0, field=0, ipversion=0, mask=32, ip="10.1.2.3").ok
    rule = onu.lsw_sec_get_ip_filtertable(index=0).reply
    assert (rule["mask"], rule["ip"], rule["ip_high"]) == (32, "10.1.2.3", bytes(12))


def test_a_failing_command_is_a_result_with_its_meaning(onu):
    refused = onu.lsw_port_get_mtu(port=9)
    assert (refused.code, refused.name, refused.reply_len, refused.reply) == (0xFFFFFFFF, "ZE_ERR_FAIL", None, {})
    wrong_length = onu.call("chip_get_upmode", bytes(5))
    assert wrong_length.code == 18
    assert "[ERROR INPUT NULL PTR" in wrong_length.printed


@pytest.mark.parametrize(
    "call, error",
    [
        (lambda onu: onu.lsw_vlan_add_port(port=1, vlan=-1), ValueError),
        (lambda onu: onu.flow_add_mapping(key_mask=2, vlan=70000, dir=0), ValueError),
        (lambda onu: onu.lsw_mac_add(valid=1, vlan=1, mac="00:11:22", port=1), ValueError),
        (lambda onu: onu.lsw_sec_add_ip_filtertable(porttype=0, field=0, ipversion=0, mask=0, ip="300.1.1.1"), ValueError),
        (lambda onu: onu.lsw_port_set_mtu(port=3), TypeError),
        (lambda onu: onu.lsw_port_set_mtu(port=3, mtu=1, speed=1), TypeError),
        (lambda onu: onu.flow_add_mapping(key_mask=2, vlan=1, dir=0, sfid=1), TypeError),
        (lambda onu: onu.call("chip_get_version", bytes(wire.REQUEST_MAX + 1)), ValueError),
    ],
)
def test_values_that_do_not_fit_are_refused_before_sending(onu, call, error):
    with pytest.raises(error):
        call(onu)
    assert onu.chip_get_version().ok


def test_raw_calls_lines_and_refusals(onu):
    version = onu.call("ze_adapter_cli_chip_get_version", bytes(4))
    word = struct.pack(onu.description.byte_order + "I", 0x00010002)  # the daemon processor's order
    assert (version.reply_bytes, version.reply) == (word, {"version": 0x00010002})
    with pytest.raises(DaemonError) as refused:
        onu.call("no_such_command")
    assert refused.value.status == wire.STATUS_UNKNOWN_COMMAND
    assert onu.line("chip_set_upmode 0; sim log 2").printed.startswith("chip_set_upmode: result 0 (ok)\nioctl")
    assert not onu.line("no_such_command").ok
    assert onu.flow_diagnose(selector=1).printed.endswith("sfid    tcont   gemport \r\n")


def test_the_socket_comes_from_the_environment(daemon, monkeypatch):
    monkeypatch.setenv("ZE_IFM_SOCKET", daemon)
    with Client() as onu:
        assert onu.path == daemon
        assert onu.chip_get_vendor().reply == {"vendor": 0x5A45}
