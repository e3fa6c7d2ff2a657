"""The package's protocol constants are the C headers' own."""

import pathlib
import re

from ze_adapter import wire

INCLUDE = pathlib.Path(__file__).resolve().parents[2] / "client" / "include"


def defines(header):
    """NAME -> value of every constant `#define ZE_IFM_NAME value` in a header."""
    found = {}
    for name, value in re.findall(r"^#define ZE_IFM_(\w+) +(\S+)", (INCLUDE / header).read_text(), re.M):
        if value.startswith('"'):
            found[name] = value.strip('"')
        elif re.fullmatch(r"(0x[0-9a-fA-F]+|\d+)u?", value):
            found[name] = int(value.rstrip("u"), 0)
    return found


def test_every_wire_constant_matches_the_header():
    constants = defines("ze_ifm_wire.h")
    assert len(constants) > 30
    for name, value in constants.items():
        assert getattr(wire, name, None) == value, name


def test_socket_defaults_match_the_client_header():
    constants = defines("ze_ifm_client.h")
    assert (wire.SOCKET_ENV, wire.SOCKET_DEFAULT) == (constants["SOCKET_ENV"], constants["SOCKET_DEFAULT"])
