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
KIND_DESCRIBE_API = 5
ANSWER_BIT = 0x8000

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
STATUS_BAD_ARGUMENTS = 9

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

ROLE_VALUE = 0
ROLE_IN = 1
ROLE_OUT = 2
ROLE_INOUT = 3
ROLE_BYTES = 4
ROLE_LENGTH = 5
ROLE_OUT_BYTES = 6
ROLE_ADDRESS = 7
API_NO_DRIVER = 0x1
API_KERNEL_CALL = 0x2
API_DP_LIBRARY = 0x4
API_WRITES_BOARD = 0x8
API_RAW_ANSWER = 0x10

SOCKET_ENV = "ZE_IFM_SOCKET"
SOCKET_DEFAULT = "/run/ze_ifm.sock"

HEADER = struct.Struct(">IHHII")
ANSWER = struct.Struct(">IIIII")
CALL = struct.Struct(">IHH")
API = struct.Struct(">HH")
SIZE = struct.Struct(">I")


class ProtocolError(Exception):
    """The daemon's bytes do not follow the wire format."""


def frame(kind, body, tag, flags=0):
    """One request frame."""
    return HEADER.pack(HEADER_SIZE - 4 + len(body), VERSION, kind, tag, flags) + body


def call_body(name, request):
    name = name.encode()
    return CALL.pack(len(request), len(name), 0) + name + bytes(request)


def api_body(name, args):
    """An API call: the function's name, then each parameter's bytes."""
    name = name.encode()
    return API.pack(len(name), len(args)) + name + b"".join(SIZE.pack(len(a)) + bytes(a) for a in args)


def api_args(data, count):
    """The `count` parameters an API answer carries, as a list of bytes."""
    args, at = [], 0
    for _ in range(count):
        if at + 4 > len(data) or at + 4 + SIZE.unpack_from(data, at)[0] > len(data):
            raise ProtocolError("API answer shorter than its parameters")
        (size,) = SIZE.unpack_from(data, at)
        args.append(data[at + 4 : at + 4 + size])
        at += 4 + size
    if at != len(data):
        raise ProtocolError("API answer longer than its parameters")
    return args


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
