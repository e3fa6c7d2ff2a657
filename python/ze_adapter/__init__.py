"""Client of the switch adapter's interface manager daemon (``zesh serve``).

    from ze_adapter import Client
    with Client("/run/ze_ifm.sock") as onu:
        onu.lsw_port_set_mtu(port=3, mtu=1600)
        print(onu.lsw_port_get_mtu(port=0).reply["mtu"])

Standard library only. The command methods are made at connect time from
the daemon's own description of its command table.
"""

from .client import Client, DaemonError, LineResult, Result
from .commands import Command, Description, Field

__all__ = ["Client", "Command", "DaemonError", "Description", "Field", "LineResult", "Result"]
