#!/usr/bin/env python3
"""The interactive shell as an operator meets it, driven through a
pseudo-terminal: completion, Ctrl-C, Ctrl-D and history across sessions.

usage: zesh_interactive.py ZESH HISTORY_FILE
"""
import os
import pty
import select
import sys
import time

ZESH, HISTORY = sys.argv[1], sys.argv[2]
PROMPT = b"zesh> "
failures = []
checks = 0


class Session:
    def __init__(self):
        env = dict(os.environ, ZESH_HISTORY=HISTORY, TERM="xterm")
        self.pid, self.fd = pty.fork()
        if self.pid == 0:
            os.execve(ZESH, [ZESH], env)
        self.buf = b""
        self.expect(PROMPT, "the first prompt")

    def read_until(self, pattern, timeout=5.0):
        """Everything up to and including `pattern` (or all read so far)."""
        buf, end = self.buf, time.time() + timeout
        while time.time() < end and pattern not in buf:
            ready, _, _ = select.select([self.fd], [], [], 0.1)
            if not ready:
                continue
            try:
                data = os.read(self.fd, 4096)
            except OSError:
                break
            if not data:
                break
            buf += data
        cut = buf.find(pattern) + len(pattern) if pattern in buf else len(buf)
        self.buf = buf[cut:]
        return buf[:cut]

    def expect(self, pattern, what, timeout=5.0):
        global checks
        checks += 1
        out = self.read_until(pattern, timeout)
        if pattern not in out:
            failures.append(f"{what}: wanted {pattern!r}, got {out!r}")
        return out

    def send(self, keys):
        os.write(self.fd, keys)

    def finish(self):
        """Ctrl-D on an empty line leaves with status 0."""
        global checks
        checks += 1
        self.send(b"\x04")
        end = time.time() + 5
        while time.time() < end:
            pid, status = os.waitpid(self.pid, os.WNOHANG)
            if pid:
                if status != 0:
                    failures.append(f"Ctrl-D: exit status {status}")
                return
            self.read_until(b"\0", 0.1)
        failures.append("Ctrl-D on an empty line did not end the shell")
        os.kill(self.pid, 9)
        os.waitpid(self.pid, 0)


if os.path.exists(HISTORY):
    os.unlink(HISTORY)

first = Session()
# Tab completes a command name, then offers the command's fields.
first.send(b"lsw_port_set_mt\t")
first.expect(b"u ", "a command name completes")
first.send(b"3 \t\t")
first.expect(b"mtu=", "the fields of a command are offered")
# Ctrl-C drops the half-typed line: a fresh prompt, nothing run.
first.send(b"\x03")
out = first.expect(b"\n" + PROMPT, "Ctrl-C gives a fresh prompt")
if b"result" in out:
    failures.append(f"Ctrl-C ran the half-typed line: {out!r}")
first.send(b"sim cl\t")
first.expect(b"ear-faults", "sim sub-commands complete")
first.send(b"\x15")  # erase the line
first.send(b"help vl\t")
first.expect(b"an", "help topics complete")
first.send(b"\r")
first.expect(PROMPT, "help ran")
first.send(b"lsw_port_set_mtu 3 1600\r")
first.expect(b"result 0 (ok)", "a command runs")
first.expect(PROMPT, "the prompt after a command")
first.finish()

# The next session recalls the last line from the history file.
second = Session()
second.send(b"\x1b[A\r")
second.expect(b"lsw_port_set_mtu: result 0 (ok)", "history from the last session")
second.expect(PROMPT, "the prompt after the recalled command")
second.finish()

for f in failures:
    print("FAIL:", f)
print(f"{checks - len(failures)} passed, {len(failures)} failed")
sys.exit(1 if failures else 0)
