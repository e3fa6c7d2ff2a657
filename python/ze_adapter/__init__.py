"""Client of the switch adapter's interface manager daemon (``zesh serve``).

    from ze_adapter import Client
    with Client("/run/ze_ifm.sock") as onu:
        onu.lsw_port_set_mtu(port=3, mtu=1600)
        print(onu.lsw_port_get_mtu(port=0).reply["mtu"])
        onu.api.ze_lsw_port_init_network()

Standard library only. The command methods, and the methods of `api` (one
per exported function), are made at connect time from the daemon's own
description of its command and API tables.
"""

from .api import Function, Param
from .client import ApiResult, Client, DaemonError, LineResult, Result
from .commands import Command, Description, Field

__all__ = [
    "ApiResult",
    "Client",
    "Command",
    "DaemonError",
    "Description",
    "Field",
    "Function",
    "LineResult",
    "Param",
    "Result",
]
