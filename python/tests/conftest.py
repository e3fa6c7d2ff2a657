"""A daemon of the build tree for each test: $ZESH, or the dev build's zesh."""

import os
import pathlib
import socket
import subprocess
import sys
import time

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "python"))

from ze_adapter import Client  # noqa: E402


def _wait_for(path):
    deadline = time.monotonic() + 5
    while time.monotonic() < deadline:
        try:
            with socket.socket(socket.AF_UNIX) as s:
                s.connect(str(path))
                return
        except OSError:
            time.sleep(0.01)
    raise TimeoutError("no daemon on %s" % path)


@pytest.fixture
def daemon(tmp_path):
    """The socket path of a fresh daemon on the simulator."""
    zesh = os.environ.get("ZESH", str(ROOT / "build/dev/tools/zesh/zesh"))
    path = tmp_path / "ifm.sock"
    with open(tmp_path / "log", "w") as log:
        proc = subprocess.Popen([zesh, "serve", "--socket", str(path), "--foreground"], stderr=log)
    try:
        _wait_for(path)
        yield str(path)
    finally:
        proc.terminate()
        assert proc.wait(timeout=10) == 0, (tmp_path / "log").read_text()


@pytest.fixture
def onu(daemon):
    with Client(daemon) as client:
        yield client
