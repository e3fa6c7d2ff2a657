"""The daemon's command table, as its describe answer gives it, and request
and reply fields packed and unpacked from it."""

import ipaddress
import struct

from . import wire

# Registered names are the handlers' own: this prefix and the command.
PREFIX = "ze_adapter_cli_"

_INTS = {
    wire.FIELD_U8: "B",
    wire.FIELD_U16: "H",
    wire.FIELD_U32: "I",
    wire.FIELD_U64: "Q",
    wire.FIELD_I32: "i",
    wire.FIELD_IPV4: "I",
}
_TYPE_NAMES = {
    wire.FIELD_U8: "u8",
    wire.FIELD_U16: "u16",
    wire.FIELD_U32: "u32",
    wire.FIELD_I32: "i32",
    wire.FIELD_MAC: "mac",
    wire.FIELD_IPV4: "ipv4",
    wire.FIELD_BYTES: "bytes",
    wire.FIELD_U64: "u64",
    wire.FIELD_TEXT: "text",
}
_DIR_NAMES = {wire.DIR_IN: "in", wire.DIR_OUT: "out", wire.DIR_INOUT: "in/out"}


class Field:
    """One field of a request structure."""

    def __init__(self, name, type, direction, offset, size, optional=False, fallback=""):
        self.name, self.type, self.direction, self.offset, self.size = name, type, direction, offset, size
        self.optional = optional  # an input that may be left out; it then takes `fallback`
        self.fallback = fallback  # as the shell writes it

    @property
    def is_input(self):
        return self.direction != wire.DIR_OUT

    @property
    def is_output(self):
        return self.direction != wire.DIR_IN

    def describe(self):
        default = ", default %s" % self.fallback if self.optional else ""
        return "%s: %s at %d (%s%s)" % (
            self.name,
            _TYPE_NAMES[self.type],
            self.offset,
            _DIR_NAMES[self.direction],
            default,
        )

    def default(self):
        """The value an optional input takes when left out."""
        if self.type in (wire.FIELD_MAC, wire.FIELD_BYTES, wire.FIELD_TEXT) or "." in self.fallback:
            return self.fallback
        return int(self.fallback, 0)

    def pack_into(self, buf, order, value):
        """Writes `value` into the request, refusing what does not fit."""
        if self.type == wire.FIELD_MAC:
            raw = bytes.fromhex(value.replace(":", "").replace("-", "")) if isinstance(value, str) else bytes(value)
            if len(raw) != 6:
                raise ValueError("%s: a MAC address is 6 bytes, not %r" % (self.name, value))
        elif self.type == wire.FIELD_TEXT:
            raw = value.encode() + b"\0"
            if len(raw) > self.size:
                raise ValueError("%s: at most %d characters" % (self.name, self.size - 1))
        elif self.type == wire.FIELD_BYTES:
            raw = bytes.fromhex(value) if isinstance(value, str) else bytes(value)
            if len(raw) > self.size:
                raise ValueError("%s: at most %d bytes" % (self.name, self.size))
        else:
            if self.type == wire.FIELD_IPV4 and isinstance(value, str):
                value = int(ipaddress.IPv4Address(value))
            fmt = order + _INTS[self.type]
            try:
                raw = struct.pack(fmt, value)
            except struct.error:
                raise ValueError("%s: %r does not fit a %s" % (self.name, value, _TYPE_NAMES[self.type])) from None
        buf[self.offset : self.offset + len(raw)] = raw

    def unpack(self, data, order):
        raw = data[self.offset : self.offset + self.size]
        if self.type == wire.FIELD_MAC:
            return ":".join("%02x" % b for b in raw)
        if self.type == wire.FIELD_BYTES:
            return bytes(raw)
        if self.type == wire.FIELD_TEXT:
            return bytes(raw).split(b"\0", 1)[0].decode("utf-8", "replace")
        (value,) = struct.unpack(order + _INTS[self.type], raw)
        return str(ipaddress.IPv4Address(value)) if self.type == wire.FIELD_IPV4 else value


class Command:
    """A registered command: its request structure and reply."""

    def __init__(self, name, family, summary, request, reply, checked, fields):
        self.name, self.family, self.summary = name, family, summary
        self.request = request  # request length in bytes
        self.reply = reply  # reply length the handler writes, or None
        self.checked = checked  # False: the handler does not check the length
        self.fields = fields

    def inputs(self):
        return [f for f in self.fields if f.is_input]

    def pack(self, order, values):
        """The request bytes for keyword values; an optional input left out
        takes its default, any other must be given."""
        by_name = {f.name: f for f in self.fields}
        missing = [f.name for f in self.inputs() if f.name not in values and not f.optional]
        if missing:
            raise TypeError("%s: missing %s" % (self.name, " ".join(missing)))
        values = dict({f.name: f.default() for f in self.inputs() if f.optional}, **values)
        buf = bytearray(self.request)
        for name, value in values.items():
            field = by_name.get(name)
            if field is None or not field.is_input:
                kind = "a reply field" if field else "no field"
                raise TypeError(
                    "%s: %r is %s; its request fields: %s"
                    % (self.name, name, kind, ", ".join(f.name for f in self.inputs()) or "none")
                )
            field.pack_into(buf, order, value)
        return bytes(buf)

    def unpack_reply(self, data, order):
        """The reply fields that lie within the reply bytes."""
        return {f.name: f.unpack(data, order) for f in self.fields if f.is_output and f.offset + f.size <= len(data)}

    def doc(self):
        reply = "no reply" if self.reply is None else "reply %d bytes" % self.reply
        checked = "" if self.checked else ", length not checked"
        lines = [PREFIX + "%s: %s" % (self.name, self.summary)]
        lines += ["request %d bytes%s, %s" % (self.request, checked, reply)]
        lines += ["  " + f.describe() for f in self.fields]
        return "\n".join(lines)


class _Reader:
    def __init__(self, data):
        self.data, self.at = data, 0

    def take(self, fmt):
        values = struct.unpack_from(">" + fmt, self.data, self.at)
        self.at += struct.calcsize(">" + fmt)
        return values if len(values) > 1 else values[0]

    def text(self):
        n = self.take("B")
        self.at += n
        return self.data[self.at - n : self.at].decode()


class Description:
    """The daemon's describe answer: byte order, backend, commands, result
    code meanings."""

    def __init__(self, data):
        r = _Reader(data)
        order, backend, count, self.request_buffer_size = r.take("BBHI")
        self.byte_order = "<" if order == wire.ORDER_LITTLE else ">"
        self.simulator = backend == wire.BACKEND_SIMULATOR
        self.commands = {}
        for _ in range(count):
            name, family, summary = r.text(), r.text(), r.text()
            request, reply, checked, nfields = r.take("IIBB")
            fields = []
            for _ in range(nfields):
                fname = r.text()
                layout = r.take("BBHHB")
                fields.append(Field(fname, *layout[:4], optional=bool(layout[4]), fallback=r.text()))
            self.commands[name] = Command(
                name, family, summary, request, None if reply == wire.NO_REPLY else reply, bool(checked), fields
            )
        self.results = {}  # code -> (symbolic name, meaning)
        for _ in range(r.take("H")):
            code = r.take("I")
            self.results[code] = (r.text(), r.text())
