"""A connection to the daemon, with one method per registered command."""

import inspect
import os
import socket

from . import wire
from .commands import PREFIX, Description


class DaemonError(Exception):
    """The daemon refused a request (a wire status other than ok)."""

    def __init__(self, status, message):
        super().__init__("status %d: %s" % (status, message))
        self.status, self.message = status, message


class Result:
    """What a command answered: its result code, the code's symbolic name
    and meaning (None for a code the library does not name), the reply
    fields (those within the reply length), the reply bytes and everything
    it printed."""

    def __init__(self, command, answer, description):
        self.code = answer.result
        self.name, self.meaning = description.results.get(answer.result, (None, None))
        self.reply_len = None if answer.reply_len == wire.NO_REPLY else answer.reply_len
        self.reply_bytes = answer.data
        self.reply = command.unpack_reply(answer.data, description.byte_order) if command else {}
        self.printed = answer.text
        self.truncated = answer.truncated

    @property
    def ok(self):
        return self.code == 0

    def __repr__(self):
        return "Result(code=%#x %s, reply=%r, printed=%r)" % (self.code, self.name, self.reply, self.printed)


class LineResult:
    """A shell line's output; `ok` is False when one of its commands could
    not run (unknown name, bad argument)."""

    def __init__(self, answer):
        self.ok = answer.result == 0
        self.printed = answer.text
        self.truncated = answer.truncated

    def __repr__(self):
        return "LineResult(ok=%r, printed=%r)" % (self.ok, self.printed)


class Client:
    """A connection to a ``zesh serve`` daemon. `path`: the socket; without
    it $ZE_IFM_SOCKET, else /run/ze_ifm.sock. One caller at a time."""

    def __init__(self, path=None, timeout=None):
        self.path = path or os.environ.get(wire.SOCKET_ENV) or wire.SOCKET_DEFAULT
        self._sock = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._sock.settimeout(timeout)
        self._sock.connect(self.path)
        self._tag = 0
        self.description = Description(self._request(wire.KIND_DESCRIBE, b"").data)
        self.commands = self.description.commands
        for command in self.commands.values():
            setattr(self, command.name, self._method(command))

    def _method(self, command):
        def run(**fields):
            return self.call(command.name, command.pack(self.description.byte_order, fields))

        run.__name__ = command.name
        run.__doc__ = command.doc()
        run.__signature__ = inspect.Signature(
            [
                inspect.Parameter(
                    f.name, inspect.Parameter.KEYWORD_ONLY, default=f.default() if f.optional else inspect.Parameter.empty
                )
                for f in command.inputs()
            ]
        )
        return run

    def _request(self, kind, body):
        self._tag = (self._tag + 1) & 0xFFFFFFFF
        self._sock.sendall(wire.frame(kind, body, self._tag))
        answer = wire.read_answer(self._sock)
        if answer.kind == wire.ANSWER_BIT and answer.status != wire.STATUS_OK:
            raise DaemonError(answer.status, answer.text)
        if answer.kind != kind | wire.ANSWER_BIT or answer.tag != self._tag:
            raise wire.ProtocolError("answer to another request")
        if answer.status != wire.STATUS_OK:
            raise DaemonError(answer.status, answer.text)
        return answer

    def call(self, name, request=b""):
        """Runs a command with raw request bytes (in the daemon's byte order)."""
        if len(request) > wire.REQUEST_MAX:
            raise ValueError("a request is at most %d bytes" % wire.REQUEST_MAX)
        answer = self._request(wire.KIND_CALL, wire.call_body(name, request))
        command = self.commands.get(name.removeprefix(PREFIX))
        return Result(command, answer, self.description)

    def line(self, text):
        """Runs a shell line: commands and built-ins such as ``sim reset``."""
        return LineResult(self._request(wire.KIND_LINE, text.encode()))

    def close(self):
        self._sock.close()

    def __enter__(self):
        return self

    def __exit__(self, *exc):
        self.close()
