"""The example in Go: that the exports can be called from a language that knows nothing of C++ but its calls."""

import os
import subprocess
import unittest

import norv

SOURCES = norv.ROOT / "examples/go"
ENVIRONMENT = {
    **os.environ,
    "GOOS": "windows",
    "GOARCH": "amd64",
    "CGO_ENABLED": "0",
    "GOCACHE": str(norv.ROOT / "build/go-cache"),
    "GOENV": "off",
    "GOFLAGS": "-mod=mod",
    "GOPROXY": "off",  # it needs nothing that isn't there
}


def go(*arguments):
    return norv.run(["go", *arguments], cwd=SOURCES, env=ENVIRONMENT)


class GoClient(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        built = go("build", "-trimpath", "-buildvcs=false", "-o", norv.BIN / "client_go.exe", ".")
        if built.returncode != 0:
            raise RuntimeError(built.stderr)

    def setUp(self):
        self.store = self.enterContext(norv.sample_store())

    def test_lists_the_log_devices_with_their_values(self):
        end = norv.run_under_wine("client_go", "list")

        self.assertEqual((end.returncode, end.stderr), (0, ""))
        lines = end.stdout.splitlines()
        self.assertEqual(len(lines), 12)
        self.assertIn("Förderbänder             L2        12000000", lines)
        self.assertIn("Labor                    TCPIP            -", lines)

    def test_sets_a_value(self):
        end = norv.run_under_wine("client_go", "set", "Förderbänder", "station_name", "Rübenförderer Ω")

        self.assertEqual((end.returncode, end.stdout, end.stderr), (0, "", ""))
        value = norv.norvctl("device", "get", "Förderbänder", "station_name").stdout
        self.assertEqual(value, "Rübenförderer Ω\n")

    def test_tells_the_code_of_a_failure(self):
        refused = norv.run_under_wine("client_go", "set", "Kesselhaus", "watchdog", "15")
        missing = norv.run_under_wine("client_go", "set", "Käse", "watchdog", "300")

        self.assertEqual((refused.returncode, refused.stdout), (1, ""))
        self.assertEqual(
            refused.stderr, "client_go: Kesselhaus, watchdog: LogDeviceSetValueBL: 8058 PGSP_NOT_IN_STEP\n"
        )
        self.assertEqual(missing.returncode, 1)
        self.assertEqual(
            missing.stderr, "client_go: Käse, watchdog: LogDeviceSetValueBL: 8503 PGSP_ERR_FILE_NOT_FOUND\n"
        )

    def test_tells_how_it_is_used(self):
        end = norv.run_under_wine("client_go")

        self.assertEqual((end.returncode, end.stdout), (2, ""))
        self.assertIn("usage: client_go list", end.stderr)


class GoClientSource(unittest.TestCase):
    def test_has_the_form_that_go_gives_it(self):
        end = subprocess.run(["gofmt", "-l", SOURCES], capture_output=True, text=True, check=True)

        self.assertEqual(end.stdout, "")

    def test_has_nothing_that_go_doubts(self):
        self.assertEqual(go("vet", ".").stderr, "")
