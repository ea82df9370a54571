"""The reference of norvctl: docs/norvctl.md is what norvctl prints, and its page for man is a sound one."""

import subprocess
import unittest

import norv

DOCUMENT = norv.ROOT / "docs/norvctl.md"


class NorvctlReference(unittest.TestCase):
    def test_is_the_document(self):
        end = norv.norvctl("reference")

        self.assertEqual((end.returncode, end.stderr), (0, ""))
        self.assertTrue(
            DOCUMENT.read_text(encoding="utf-8") == end.stdout,
            "docs/norvctl.md isn't what norvctl prints: ./norv ctl reference > docs/norvctl.md",
        )

    def test_is_a_page_that_mandoc_has_nothing_to_say_of(self):
        page = norv.norvctl("reference", "--format", "man").stdout

        lint = subprocess.run(["mandoc", "-Tlint", "-Wwarning"], input=page, capture_output=True, text=True)

        complaints = [line for line in lint.stdout.splitlines() if "missing date" not in line]
        self.assertEqual((complaints, lint.stderr), ([], ""))
