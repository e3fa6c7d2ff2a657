"""Daemons of the build tree for the tests: $ZESH, or the dev build's zesh."""

import contextlib
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

ZESH = os.environ.get("ZESH", str(ROOT / "build/dev/tools/zesh/zesh"))


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


@contextlib.contextmanager
def running_daemon(directory, *options):
    """The socket path of a fresh daemon on the simulator, in `directory`;
    it must stop cleanly."""
    directory.mkdir(parents=True, exist_ok=True)
    path = directory / "ifm.sock"
    with open(directory / "log", "w") as log:
        proc = subprocess.Popen([ZESH, "serve", "--socket", str(path), "--foreground", *options], stderr=log)
    try:
        _wait_for(path)
        yield str(path)
    finally:
        proc.terminate()
        assert proc.wait(timeout=10) == 0, (directory / "log").read_text()


@pytest.fixture
def daemon(tmp_path):
    with running_daemon(tmp_path) as path:
        yield path


@pytest.fixture
def onu(daemon):
    with Client(daemon) as client:
        yield client
