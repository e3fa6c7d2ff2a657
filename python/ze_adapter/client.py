"""A connection to the daemon, with one method per registered command."""

import inspect
import os
import socket

from . import wire
from .api import describe_functions
from .commands import PREFIX, Description


class DaemonError(Exception):
    """The daemon refused a request (a wire status other than ok)."""

    def __init__(self, status, message):
        super().__init__("status %d: %s" % (status, message))
        self.status, self.message = status, message


class _Coded:
    """A result code, the code's symbolic name and meaning (None for a code
    the library does not name) and everything the request printed."""

    _shown = ""  # the member that the representation shows beside the code

    def __init__(self, answer, description):
        self.code = answer.result
        self.name, self.meaning = description.results.get(answer.result, (None, None))
        self.printed = answer.text
        self.truncated = answer.truncated

    @property
    def ok(self):
        return self.code == 0

    def __repr__(self):
        return "%s(code=%#x %s, %s=%r, printed=%r)" % (
            type(self).__name__,
            self.code,
            self.name,
            self._shown,
            getattr(self, self._shown),
            self.printed,
        )


class Result(_Coded):
    """What a command answered: the result code, the reply fields (those
    within the reply length), the reply bytes and what it printed."""

    _shown = "reply"

    def __init__(self, command, answer, description):
        super().__init__(answer, description)
        self.reply_len = None if answer.reply_len == wire.NO_REPLY else answer.reply_len
        self.reply_bytes = answer.data
        self.reply = command.unpack_reply(answer.data, description.byte_order) if command else {}


class LineResult:
    """A shell line's output; `ok` is False when one of its commands could
    not run (unknown name, bad argument)."""

    def __init__(self, answer):
        self.ok = answer.result == 0
        self.printed = answer.text
        self.truncated = answer.truncated

    def __repr__(self):
        return "LineResult(ok=%r, printed=%r)" % (self.ok, self.printed)


class ApiResult(_Coded):
    """What an exported function returned: the result code, its outputs by
    parameter name (numbers, addresses as text, structures as dicts, arrays
    as lists, byte strings as bytes), each parameter's bytes after the call
    and what it printed."""

    _shown = "outputs"

    def __init__(self, function, answer, description):
        super().__init__(answer, description)
        self.args = wire.api_args(answer.data, len(function.params))
        self.outputs = function.outputs(description.byte_order, self.args)


class Api:
    """One method per exported API function of the daemon's library, whose
    keyword arguments are the function's input parameters."""

    def __init__(self, client, functions):
        self._client = client
        self.functions = functions
        for function in functions.values():
            setattr(self, function.name, self._method(function))

    def _method(self, function):
        def run(**values):
            return self.call(function.name, function.pack(self._client.description.byte_order, values))

        run.__name__ = function.name
        run.__doc__ = function.doc
        run.__signature__ = inspect.Signature(
            [
                inspect.Parameter(
                    p.name, inspect.Parameter.KEYWORD_ONLY, default=inspect.Parameter.empty if p.required else None
                )
                for p in function.inputs()
            ]
        )
        return run

    def call(self, name, args):
        """Calls a function with each parameter's raw bytes (its exact size,
        in the daemon's byte order)."""
        answer = self._client._request(wire.KIND_API, wire.api_body(name, args))
        return ApiResult(self.functions[name], answer, self._client.description)


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
        self.api = Api(self, describe_functions(self._request(wire.KIND_DESCRIBE_API, b"").data))

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
