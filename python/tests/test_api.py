"""Exported functions through the daemon: Client.api."""

import inspect
import os
import struct

import pytest

from conftest import running_daemon
from ze_adapter import Client, DaemonError
from ze_adapter import wire


def test_one_method_per_function_with_its_inputs(onu):
    functions = onu.api.functions
    assert len(functions) == 257
    for name, function in functions.items():
        method = getattr(onu.api, name)
        assert list(inspect.signature(method).parameters) == [p.name for p in function.inputs()], name
        assert method.__doc__.startswith("uint32_t %s(" % name)
    read = functions["ze_board_read_phymem"]
    assert [(p.name, p.is_input, p.is_output) for p in read.params] == [
        ("addr", True, False),
        ("len", True, False),
        ("buf", False, True),
    ]
    assert read.flags & wire.API_KERNEL_CALL and functions["ze_board_write_phymem"].flags & wire.API_WRITES_BOARD


def test_outputs_come_back_by_parameter(onu):
    assert onu.api.ze_lsw_port_init_network().ok
    assert onu.api.ze_lsw_port_get_defvlan(port=5).outputs == {"vlan": 1}
    added = onu.api.ze_lsw_flow_add_mapping(mapping={"key_mask": 2, "vlan": 100}, dir=0)
    assert (added.outputs["sfid"], added.outputs["mapping"]["vlan"]) == (0, 100)
    assert onu.api.ze_lsw_sfc_get_gemmapping(sfid=0).outputs["entry"]["status"] == 1
    # Blocks are words in the daemon processor's order.
    order = onu.description.byte_order
    block = onu.api.ze_hlp_sdk_dp_cmdtype(cmd=0x100, block="00000000")
    assert (block.outputs["block"], block.outputs["outlen"]) == (struct.pack(order + "I", 1518), 4)
    assert onu.api.ze_board_read_phymem(addr=0x1000, len=6).outputs == {"buf": bytes(6)}
    items = onu.api.ze_lsw_efc_get_attr(rule={"key_mask": 8, "dip": "10.10.0.5", "dip_mask": "255.255.255.255"})
    assert items.outputs["items"][0]["k0"] == 0x0A0A0005 and len(items.outputs["items"]) == 25
    assert onu.api.ze_lsw_efc_count_itemnum(items=[{"g0": 3}]).outputs == {"count": 1}
    assert onu.api.ze_lsw_port_check(port=9).name == "ZE_ERR_PARAM"
    assert "sfid    tcont   gemport" in onu.api.ze_lsw_flow_sfc_diagnose(a1=0, a2=0, a3=0, a4=0).printed


@pytest.mark.parametrize(
    "call, error",
    [
        (lambda api: api.ze_lsw_port_get_defvlan(), TypeError),
        (lambda api: api.ze_lsw_flow_add_mapping(mapping={"sfid": 1}, dir=0), TypeError),
        (lambda api: api.ze_lsw_port_get_defvlan(port=1 << 32), ValueError),
        (lambda api: api.ze_hlp_sdk_dp_cmdtype(cmd=0x100, block=bytes(16385)), ValueError),
    ],
)
def test_arguments_that_do_not_fit_are_refused_before_sending(onu, call, error):
    with pytest.raises(error):
        call(onu.api)
    assert onu.api.ze_chip_get_version().ok


def test_the_daemon_refuses_what_does_not_fit_and_unallowed_board_writes(onu):
    read = onu.api.functions["ze_board_read_phymem"]
    too_long = read.pack("<", {"addr": 0, "len": 16385})
    with pytest.raises(DaemonError) as refused:
        onu.api.call("ze_board_read_phymem", too_long)
    assert refused.value.status == wire.STATUS_BAD_ARGUMENTS
    with pytest.raises(DaemonError) as refused:
        onu.api.ze_board_write_phymem(addr=0x1000, value=5)
    assert refused.value.status == wire.STATUS_NOT_PERMITTED


def test_board_writes_of_an_allowed_user(tmp_path):
    with running_daemon(tmp_path, "--allow-board-write", str(os.getuid())) as path, Client(path) as onu:
        assert onu.api.ze_board_write_phymem(addr=0x1000, value=0xDEADBEEF).ok
        word = struct.pack(onu.description.byte_order + "I", 0xDEADBEEF)
        assert onu.api.ze_board_read_phymem(addr=0x1000, len=4).outputs["buf"] == word
