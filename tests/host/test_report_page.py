"""The report as a browser shows it."""

import html
import json
import tempfile
import unittest
from pathlib import Path

import norv

DEVICES = 1000
HOSTILE = "<script>window.alerted=1</script>"


def required(end):
    if end.returncode != 0:
        raise RuntimeError(end.stderr)
    return end.stdout


def in_browser(page, words):
    looker = norv.ROOT / "tests/host/report_in_browser.py"
    return json.loads(required(norv.run(["/usr/bin/python3", looker, page, words])))


class ReportPage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        store = cls.enterClassContext(norv.sample_store())
        folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="norv-report-")))
        press = store.log_device("Presse(nmbr)3")
        press.write_text(press.read_text("utf-8").replace("Presse 1 und 2 abgebaut", html.escape(HOSTILE)), "utf-8")
        required(norv.norvctl("device", "copy", "Presse#3", HOSTILE))
        devices = store.log_device("Kesselhaus").parent
        bytes_of_one = store.log_device("Kesselhaus").read_bytes()
        for number in range(DEVICES - len(list(devices.iterdir()))):
            (devices / f"Strang {number:04}.xml").write_bytes(bytes_of_one)
        page = folder / "store.html"
        required(norv.norvctl("report", norv.windows_path(page)))
        cls.seen = in_browser(page, "presse Schnitzelpresse")

    def test_of_a_thousand_devices_is_open_within_three_seconds(self):
        self.assertGreater(self.seen["objects"], DEVICES)
        self.assertLess(self.seen["seconds"], 3)

    def test_has_nothing_to_complain_of(self):
        self.assertEqual(self.seen["told"], [])

    def test_loads_nothing(self):
        self.assertEqual(self.seen["loaded"], [])

    def test_runs_nothing_of_what_the_store_holds(self):
        self.assertFalse(self.seen["alerted"])

    def test_is_searched_for_objects_that_have_all_words_and_marks_where(self):
        search = self.seen["search"]
        self.assertEqual(search["told"], "2 found")
        self.assertEqual(sorted(search["shown"]), sorted([HOSTILE, "Presse#3"]))
        self.assertIn("Description", search["marked"])

    def test_leads_from_a_finding_to_its_place_out_of_a_search(self):
        finding = self.seen["finding"]
        self.assertEqual(finding["link"], finding["target"])
        self.assertTrue(finding["seen"])

    def test_has_another_ground_in_the_dark(self):
        self.assertNotEqual(self.seen["light"], self.seen["dark"])

    def test_unfolds_all_of_it_on_paper_and_folds_it_again(self):
        self.assertEqual(self.seen["on paper"], self.seen["objects"])
        self.assertLess(self.seen["behind paper"], 10)

    def test_fits_the_window(self):
        self.assertFalse(self.seen["too_wide"])


if __name__ == "__main__":
    unittest.main()
