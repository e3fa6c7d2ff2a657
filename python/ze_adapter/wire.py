"""The interface manager's wire format: the constants of ze_ifm_wire.h (and
the socket defaults of ze_ifm_client.h) under the same names without their
ZE_IFM_ prefix, and frames in and out. Header fields are big-endian."""

import struct

VERSION = 1
HEADER_SIZE = 16
ANSWER_SIZE = 20
FRAME_MAX = 65536
ANSWER_MAX = 2097152
REQUEST_MAX = 4096
NAME_MAX = 127
TEXT_MAX = 1048576

KIND_CALL = 1
KIND_DESCRIBE = 2
KIND_LINE = 3
KIND_API = 4
ANSWER_BIT = 0x8000

FLAG_JSON = 0x1
ANSWER_TRUNCATED = 0x1

STATUS_OK = 0
STATUS_MALFORMED = 1
STATUS_TOO_LARGE = 2
STATUS_UNKNOWN_KIND = 3
STATUS_UNKNOWN_COMMAND = 4
STATUS_WRONG_VERSION = 5
STATUS_NOT_PERMITTED = 6
STATUS_UNSUPPORTED_FLAGS = 7
STATUS_BUSY = 8

NO_REPLY = 0xFFFFFFFF

ORDER_LITTLE = 0
ORDER_BIG = 1
BACKEND_SIMULATOR = 0
BACKEND_DEVICE = 1

FIELD_U8 = 0
FIELD_U16 = 1
FIELD_U32 = 2
FIELD_I32 = 3
FIELD_MAC = 4
FIELD_IPV4 = 5
FIELD_BYTES = 6
FIELD_U64 = 7
FIELD_TEXT = 8
DIR_IN = 0
DIR_OUT = 1
DIR_INOUT = 2

SOCKET_ENV = "ZE_IFM_SOCKET"
SOCKET_DEFAULT = "/run/ze_ifm.sock"

HEADER = struct.Struct(">IHHII")
ANSWER = struct.Struct(">IIIII")
CALL = struct.Struct(">IHH")


class ProtocolError(Exception):
    """The daemon's bytes do not follow the wire format."""


def frame(kind, body, tag, flags=0):
    """One request frame."""
    return HEADER.pack(HEADER_SIZE - 4 + len(body), VERSION, kind, tag, flags) + body


def call_body(name, request):
    name = name.encode()
    return CALL.pack(len(request), len(name), 0) + name + bytes(request)


class Answer:
    """A decoded answer frame."""

    def __init__(self, kind, tag, flags, status, result, reply_len, data, text):
        self.kind, self.tag, self.flags = kind, tag, flags
        self.status, self.result, self.reply_len = status, result, reply_len
        self.data, self.text = data, text

    @property
    def truncated(self):
        return bool(self.flags & ANSWER_TRUNCATED)


def _read_exactly(sock, n):
    chunks = []
    while n:
        chunk = sock.recv(min(n, 1 << 16))
        if not chunk:
            raise ConnectionError("the daemon closed the connection")
        chunks.append(chunk)
        n -= len(chunk)
    return b"".join(chunks)


def read_answer(sock):
    """The next answer on the socket; every size is checked before use."""
    (length,) = struct.unpack(">I", _read_exactly(sock, 4))
    if not HEADER_SIZE - 4 + ANSWER_SIZE <= length <= ANSWER_MAX - 4:
        raise ProtocolError("answer of %d bytes" % (length + 4))
    rest = _read_exactly(sock, length)
    _, version, kind, tag, flags = HEADER.unpack(struct.pack(">I", length) + rest[: HEADER_SIZE - 4])
    status, result, reply_len, data_len, text_len = ANSWER.unpack_from(rest, HEADER_SIZE - 4)
    start = HEADER_SIZE - 4 + ANSWER_SIZE
    if version != VERSION or data_len + text_len != length - start:
        raise ProtocolError("answer lengths do not add up")
    data = rest[start : start + data_len]
    text = rest[start + data_len :].decode("utf-8", "replace")
    return Answer(kind, tag, flags, status, result, reply_len, data, text)
