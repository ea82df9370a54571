"""norvctl as scripts have it, whose output goes into pipes and files: UTF-8 in and out, and an exit status."""

import json
import unittest

import norv


class NorvctlConsole(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.store = cls.enterClassContext(norv.sample_store())

    def test_prints_umlauts_in_utf_8(self):
        end = norv.norvctl("name", "get", "Leitwarte", "(default)")

        self.assertEqual((end.returncode, end.stdout, end.stderr), (0, "Übersicht Auental\n", ""))

    def test_lists_every_device_by_its_name(self):
        end = norv.norvctl("device", "list", "--type", "mpi")

        names = [line.split("  ")[0] for line in end.stdout.splitlines()]
        self.assertEqual(names, ["Abfüllung Linie 1", "Abfüllung Linie 2", "Presse#3"])

    def test_answers_with_json_in_utf_8(self):
        end = norv.norvctl("--json", "name", "get", "Größe µΩ", "LogDevice")

        self.assertEqual(end.returncode, 0)
        self.assertEqual(json.loads(end.stdout)["name"], "Größe µΩ")

    def test_takes_names_of_any_script_from_the_command_line(self):
        name = "Prüfung ß € Δ 漢"

        end = norv.norvctl("name", "create", name)

        self.assertEqual((end.returncode, end.stderr), (0, ""))
        self.assertTrue(self.store.log_name(name).is_file())

    def test_ends_with_1_and_tells_on_standard_error_what_is_refused(self):
        end = norv.norvctl("name", "get", "Käse", "LogDevice")

        self.assertEqual((end.returncode, end.stdout), (1, ""))
        self.assertRegex(end.stderr, r"^norvctl: Käse.*\(\d+ PGSP_\w+\)")

    def test_ends_with_2_for_a_command_line_that_is_none(self):
        end = norv.norvctl("name", "nix")

        self.assertEqual((end.returncode, end.stdout), (2, ""))
        self.assertIn("\nRun norvctl name --help\n", end.stderr)


class NorvctlWithoutStore(unittest.TestCase):
    def test_ends_with_1_and_says_so(self):
        with norv.bare_machine():
            end = norv.norvctl("name", "list")

        self.assertEqual((end.returncode, end.stdout), (1, ""))
        self.assertIn("norvctl: ", end.stderr)
