"""norvctl as people have it: at a terminal, into whose window its lines fit."""

import fcntl
import os
import pty
import re
import struct
import subprocess
import termios
import unittest

import norv

COLUMNS = 60
ROWS = 40
CONTROLS = re.compile(r"\x1b(\[[0-9;?]*[A-Za-z]|\][^\x07]*\x07|[()].|[=>78])|\r")
PLACE = re.compile(r"\x1b\[\d+;\d+H")  # where a console puts the next character


def in_window(*arguments):
    """Runs norvctl at a terminal of COLUMNS columns; its lines, as they are shown."""
    terminal, console = pty.openpty()
    fcntl.ioctl(console, termios.TIOCSWINSZ, struct.pack("HHHH", ROWS, COLUMNS, 0, 0))
    environment = {**os.environ, "NORV_WINE_PREFIX": str(norv.PREFIX), "TERM": "xterm"}
    command = [norv.ROOT / "cmake/run-under-wine", norv.BIN / "norvctl.exe", *arguments]
    process = subprocess.Popen(
        [str(word) for word in command],
        stdin=console,
        stdout=console,
        stderr=console,
        env=environment,
        start_new_session=True,
    )
    os.close(console)
    written = read_all(terminal)
    os.close(terminal)
    return process.wait(norv.PATIENCE), lines_of(written.decode("utf-8"))


def read_all(terminal):
    written = b""
    while True:
        try:
            piece = os.read(terminal, 65536)
        except OSError:  # whoever wrote to it has ended
            return written
        if not piece:
            return written
        written += piece


def lines_of(written):
    text = CONTROLS.sub("", PLACE.sub("\n", written))
    return [line.rstrip() for line in text.split("\n") if line.strip()]


class ConsoleWindow(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.enterClassContext(norv.sample_store())

    def test_heads_the_columns_of_a_list_and_fits_them_into_the_window(self):
        status, lines = in_window("device", "list")

        self.assertEqual(status, 0)
        self.assertRegex(lines[0], r"^DEVICE +PROTOCOL +BOARD +UNIT$")
        self.assertEqual([line for line in lines if len(line) > COLUMNS], [])
        self.assertIn("Abfüllung Linie 1", "\n".join(lines))

    def test_cuts_values_that_are_too_long(self):
        status, lines = in_window("device", "show", "Kesselhaus", "--limits")

        self.assertEqual(status, 0)
        self.assertRegex(lines[0], r"^PARAMETER +VALUE +DEFAULT +ALLOWED$")
        self.assertEqual([line for line in lines if len(line) > COLUMNS], [])
        self.assertTrue(any(line.endswith("…") for line in lines))
