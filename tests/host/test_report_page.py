"""The report as a browser shows it."""

import json
import tempfile
import unittest
from pathlib import Path

import norv

DEVICES = 1000
HOSTILE = "<script>window.alerted=1</script>"


def in_browser(page, words):
    end = norv.run(["/usr/bin/python3", norv.ROOT / "tests/host/report_in_browser.py", page, words])
    if end.returncode != 0:
        raise RuntimeError(end.stderr)
    return json.loads(end.stdout)


class ReportPage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        store = cls.enterClassContext(norv.sample_store())
        folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="norv-report-")))
        for words in (("copy", "Presse#3", HOSTILE), ("set", HOSTILE, "Remark", HOSTILE)):
            end = norv.norvctl("device", *words)
            if end.returncode != 0:
                raise RuntimeError(end.stderr)
        devices = store.log_device("Kesselhaus").parent
        bytes_of_one = store.log_device("Kesselhaus").read_bytes()
        for number in range(DEVICES - len(list(devices.iterdir()))):
            (devices / f"Strang {number:04}.xml").write_bytes(bytes_of_one)
        page = folder / "store.html"
        end = norv.norvctl("report", norv.windows_path(page))
        if end.returncode != 0:
            raise RuntimeError(end.stderr)
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
