"""Ctrl-C, as it comes from a console, while norvctl is at work."""

import json
import os
import signal
import subprocess
import time
import unittest

import norv

NEW_VALUES = 1500  # the import of them takes seconds


class Interruption(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.store = cls.enterClassContext(norv.sample_store())

    def start(self, *arguments):
        process = subprocess.Popen(
            [norv.ROOT / "cmake/run-under-wine", norv.BIN / "norvctl.exe", *arguments],
            env={**os.environ, "NORV_WINE_PREFIX": str(norv.PREFIX)},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            encoding="utf-8",
            start_new_session=True,
        )
        self.addCleanup(end, process)
        return process

    def test_ends_a_watch_of_the_store_with_0(self):
        process = self.start("watch")
        self.assertIn("watching the store", process.stdout.readline())

        interrupt(process)

        output, error = process.communicate(timeout=norv.PATIENCE)
        self.assertEqual((process.returncode, output, error), (0, "", ""))

    def test_leaves_nothing_of_an_import(self):
        device = self.store.log_device("Kesselhaus")
        before = device.read_bytes()
        document = json.loads(norv.norvctl("device", "export", "Kesselhaus").stdout)
        document["sections"]["SpareSection"].update({f"new{i}": str(i) for i in range(NEW_VALUES)})
        kept = self.store.data_root / "kesselhaus.json"
        kept.write_text(json.dumps(document), encoding="utf-8")
        process = self.start("device", "import", "Kesselhaus", norv.windows_path(kept))
        wait_for(lambda: temporary_devices(device.parent))

        interrupt(process)

        _, error = process.communicate(timeout=norv.PATIENCE)
        self.assertEqual((process.returncode, error), (1, "norvctl: interrupted: nothing has been changed\n"))
        self.assertEqual(device.read_bytes(), before)
        self.assertEqual(temporary_devices(device.parent), [])


def interrupt(process):
    """The signal of a console goes to the programs of its session; here only the tool heeds it."""
    for line in subprocess.check_output(["ps", "-s", str(process.pid), "-o", "pid=,args="], text=True).splitlines():
        number, words = line.split(maxsplit=1)
        if "norvctl.exe" in words and "run-under-wine" not in words:
            os.kill(int(number), signal.SIGINT)


def end(process):
    if process.poll() is None:
        os.killpg(process.pid, signal.SIGKILL)
    process.communicate()


def temporary_devices(folder):
    return [file.name for file in folder.iterdir() if "TEMP_LOG_DEVICE" in file.name]


def wait_for(condition):
    limit = time.monotonic() + norv.PATIENCE
    while not condition():
        if time.monotonic() > limit:
            raise TimeoutError("what is waited for doesn't come")
        time.sleep(0.01)
