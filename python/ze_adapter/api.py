"""The exported API functions, as the daemon's describe-API answer gives
them, and their parameters packed and unpacked: every parameter travels as
the bytes of its C type (a pointer parameter as what it points at)."""

from . import wire
from .commands import Field, Reader

_OUTPUTS = (wire.ROLE_OUT, wire.ROLE_INOUT, wire.ROLE_BYTES, wire.ROLE_OUT_BYTES)
_STRINGS = (wire.ROLE_BYTES, wire.ROLE_ADDRESS)


class Param:
    """One parameter: `count` elements of `size` bytes, each a value of
    `type` or a structure of `fields`."""

    def __init__(self, name, role, type, size, count, partner, fields):
        self.name, self.role, self.type, self.size, self.count = name, role, type, size, count
        self.partner = partner  # index of a byte string's length, or of a buffer's size, or None
        self.fields = fields

    @property
    def nbytes(self):
        return self.size * self.count

    @property
    def is_input(self):
        return self.role not in (wire.ROLE_OUT, wire.ROLE_OUT_BYTES, wire.ROLE_LENGTH)

    @property
    def is_output(self):
        return self.role in _OUTPUTS

    @property
    def required(self):
        """Structures left out are zeros; every other input must be given."""
        return self.is_input and not self.fields

    def _element(self):
        return Field(self.name, self.type, wire.DIR_INOUT, 0, self.size)

    def _pack_element(self, buf, at, order, value):
        if not self.fields:
            self._element().pack_into(memoryview(buf)[at : at + self.size], order, value)
            return
        if isinstance(value, (bytes, bytearray)) and len(value) == self.size:
            buf[at : at + self.size] = value
            return
        by_name = {f.name: f for f in self.fields}
        for name, v in value.items():
            if name not in by_name:
                raise TypeError("%s has no field %r; its fields: %s" % (self.name, name, ", ".join(by_name)))
            by_name[name].pack_into(memoryview(buf)[at : at + self.size], order, v)

    def pack(self, order, value):
        """The parameter's bytes for a value: a number (or an address or MAC
        as text), a dict of a structure's fields, a list of elements, or
        bytes for a byte string."""
        buf = bytearray(self.nbytes)
        if value is None:
            return buf
        if self.role in _STRINGS:
            raw = bytes.fromhex(value) if isinstance(value, str) else bytes(value)
            if len(raw) > self.nbytes:
                raise ValueError("%s: at most %d bytes" % (self.name, self.nbytes))
            buf[: len(raw)] = raw
            return buf
        if self.count == 1:
            self._pack_element(buf, 0, order, value)
            return buf
        if isinstance(value, (bytes, bytearray)) and len(value) == self.nbytes:
            return bytearray(value)
        if len(value) > self.count or (not self.fields and len(value) != self.count):
            raise ValueError("%s: %d elements" % (self.name, self.count))
        for i, element in enumerate(value):
            self._pack_element(buf, i * self.size, order, element)
        return buf

    def unpack(self, order, raw, length=None):
        """The value a parameter holds after the call."""
        if self.role in (wire.ROLE_BYTES, wire.ROLE_OUT_BYTES):
            return bytes(raw[: min(length, len(raw))])
        elements = []
        for i in range(self.count):
            part = raw[i * self.size : (i + 1) * self.size]
            if self.fields:
                elements.append({f.name: f.unpack(part, order) for f in self.fields})
            else:
                elements.append(self._element().unpack(part, order))
        return elements[0] if self.count == 1 else elements


class Function:
    """An exported API function: its parameters in C order."""

    def __init__(self, name, area, summary, flags, doc, params):
        self.name, self.area, self.summary, self.flags, self.doc, self.params = name, area, summary, flags, doc, params

    def inputs(self):
        return [p for p in self.params if p.is_input]

    def pack(self, order, values):
        """Each parameter's bytes for keyword values; a byte string's length
        parameter is its length."""
        names = [p.name for p in self.inputs()]
        unknown = [n for n in values if n not in names]
        if unknown:
            raise TypeError("%s: no input %s; its inputs: %s" % (self.name, ", ".join(unknown), ", ".join(names) or "none"))
        missing = [p.name for p in self.inputs() if p.required and p.name not in values]
        if missing:
            raise TypeError("%s: missing %s" % (self.name, " ".join(missing)))
        args = [p.pack(order, values.get(p.name)) for p in self.params]
        for p in self.params:
            if p.role == wire.ROLE_BYTES and p.partner is not None:
                raw = values[p.name]
                length = len(bytes.fromhex(raw) if isinstance(raw, str) else bytes(raw))
                args[p.partner] = self.params[p.partner].pack(order, length)
        return [bytes(a) for a in args]

    def outputs(self, order, args):
        """The outputs after the call, by parameter name; a byte string or
        output buffer cut to its length."""
        out = {}
        for p, raw in zip(self.params, args):
            if not p.is_output:
                continue
            length = None
            if p.partner is not None:
                partner = self.params[p.partner]
                length = partner.unpack(order, args[p.partner])
            out[p.name] = p.unpack(order, raw, length)
        return out


def describe_functions(data):
    """name -> Function, from the describe-API answer's data."""
    r = Reader(data)
    functions = {}
    for _ in range(r.take("H")):
        name, area, summary = r.text(), r.text(), r.text()
        flags = r.take("I")
        doc = r.text("H")
        params = []
        for _ in range(r.take("B")):
            pname = r.text()
            role, type_, size, count, partner, nfields = r.take("BBIHBB")
            fields = []
            for _ in range(nfields):
                fname = r.text()
                ftype, offset, fsize = r.take("BHH")
                fields.append(Field(fname, ftype, wire.DIR_INOUT, offset, fsize))
            params.append(Param(pname, role, type_, size, count, None if partner == 0xFF else partner, fields))
        functions[name] = Function(name, area, summary, flags, doc, params)
    return functions
