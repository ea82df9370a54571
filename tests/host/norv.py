"""What the tests that need the host share: where the build lies, programs under Wine, and a store to try them on.

    with norv.sample_store() as store:
        end = norv.run_under_wine("norvctl", "name", "list")

The tests have a Wine prefix of their own: a machine of which nobody else changes the registry.
"""

import contextlib
import fcntl
import os
import shutil
import signal
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/release"
BIN = BUILD / "bin"
RESOURCES = BUILD / "resources"  # the sample store's texts

PREFIX = ROOT / "build/host-tests/wine-prefix"  # made at the first use
LOCATIONS_KEY = r"HKLM\SOFTWARE\Marvolt\Shared Tools\NorvDOS64"
PATIENCE = 120  # seconds; the first program makes the prefix


def windows_path(path):
    return "Z:" + str(Path(path).resolve()).replace("/", "\\")


def run(command, **options):
    """Runs a program of the host to its end, and all that it has started when that takes too long.

    What it has printed is UTF-8, or the test fails; ends of lines come as \\n.
    """
    process = subprocess.Popen(
        [str(word) for word in command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        encoding="utf-8",
        start_new_session=True,
        **options,
    )
    with process:
        try:
            output, error = process.communicate(timeout=PATIENCE)
        except BaseException:
            os.killpg(process.pid, signal.SIGKILL)
            raise
    return subprocess.CompletedProcess(process.args, process.returncode, output, error)


def run_under_wine(program, *arguments, **options):
    """Runs a program of the build, by its name, or any other of Windows, by its path."""
    built = BIN / f"{program}.exe"
    environment = {**os.environ, **options.pop("env", {}), "NORV_WINE_PREFIX": str(PREFIX)}
    command = [ROOT / "cmake/run-under-wine", built if built.is_file() else program, *arguments]
    return run(command, env=environment, **options)


def norvctl(*arguments):
    return run_under_wine("norvctl", *arguments)


@contextlib.contextmanager
def bare_machine():
    """The prefix for oneself, whose registry names no store. Another process that asks for it waits."""
    PREFIX.parent.mkdir(parents=True, exist_ok=True)
    with open(PREFIX.parent / "machine.lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        run_under_wine("reg", "delete", LOCATIONS_KEY, "/f", "/reg:64")  # fails where there is none
        yield


@contextlib.contextmanager
def sample_store():
    """A bare machine with a fresh copy of the sample store, texts included, in a temporary folder."""
    with bare_machine(), tempfile.TemporaryDirectory(prefix="norv-store-") as folder:
        store = SampleStore(Path(folder))
        name_location("Corvane_Oam_Data", store.data_root)
        name_location("Corvane_Oam", store.program_root)
        yield store


class SampleStore:
    def __init__(self, folder):
        self.data_root = folder / "data-root"
        self.program_root = folder / "program-root"
        shutil.copytree(ROOT / "examples/store/data-root", self.data_root)
        shutil.copytree(ROOT / "examples/store/program-root", self.program_root)
        shutil.copytree(RESOURCES, self.program_root / "bin")

    def log_name(self, file_name):
        """The file of a log name; `file_name` is the name as the file has it, without extension."""
        return self.data_root / f"data/LogNames/{file_name}.xml"

    def log_device(self, file_name):
        return self.data_root / f"data/LogDevices/{file_name}.xml"


def name_location(name, path):
    end = run_under_wine("reg", "add", LOCATIONS_KEY, "/v", name, "/d", windows_path(path), "/f", "/reg:64")
    if end.returncode != 0:
        raise RuntimeError(f"the registry doesn't take {name}: {end.stdout}{end.stderr}")
