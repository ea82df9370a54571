"""norvctl's completion in a real bash: what it puts behind the cursor, and what it offers."""

import json
import shlex
import unittest

import norv

# A bash whose programmable completion is asked as readline asks it. It prints what norvctl answers, a word a line,
# and whether bash is to complete file names.
ASK = """
source /dev/stdin <<<"$(norvctl completion bash)"
COMP_LINE=$1
COMP_POINT=${#COMP_LINE}
COMP_WORDBREAKS=$' \\t\\n"\\'@><=;|&(:'
compopt() { echo "compopt $*"; }
_norvctl
printf '%s\\n' "${COMPREPLY[@]}"
complete -p norvctl
"""


def bash(script, *arguments):
    """Runs a script in which norvctl is the one of the build."""
    program = norv.BIN / "norvctl.exe"
    runner = norv.ROOT / "cmake/run-under-wine"
    function = f"norvctl() {{ {shlex.quote(str(runner))} {shlex.quote(str(program))} \"$@\"; }}\n"
    environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "NORV_WINE_PREFIX": str(norv.PREFIX)}
    return norv.run(["bash", "--norc", "-c", function + script, "bash", *arguments], env=environment)


def offered(line):
    """What bash is given to put there at the end of a line; the words in its marks are as bash shows them."""
    lines = bash(ASK, line).stdout.splitlines()
    assert lines.pop() == "complete -F _norvctl norvctl", lines
    return [each for each in lines if each]


class BashCompletion(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.store = cls.enterClassContext(norv.sample_store())

    def test_completes_commands_and_options(self):
        self.assertEqual(offered("norvctl dev"), ["device"])
        self.assertEqual(offered("norvctl device edit "), ["begin", "list", "apply", "discard"])
        self.assertEqual(offered("norvctl device delete x --f"), ["--force"])

    def test_completes_values_of_a_set(self):
        self.assertEqual(offered("norvctl trace on --format "), ["SHORT", "LONG", "TIME", "TEXT"])
        self.assertEqual(offered("norvctl trace on --format=T"), ["TIME", "TEXT"])

    def test_quotes_names_with_blanks_and_signs(self):
        self.assertEqual(offered("norvctl device show Abf"), ["'Abfüllung Linie 1'", "'Abfüllung Linie 2'"])
        self.assertEqual(offered("norvctl device show Press"), ["'Presse#3'"])
        self.assertEqual(offered("norvctl device show Kl"), ["Kläranlage"])

    def test_goes_on_within_marks_that_are_open(self):
        self.assertEqual(offered("norvctl device show 'Waage R"), ["Waage Rampe 2"])
        self.assertEqual(offered('norvctl device show "Waage R'), ["Waage Rampe 2"])
        self.assertEqual(offered(r"norvctl device show Waage\ R"), ["'Waage Rampe 2'"])

    def test_leaves_what_stands_ahead_of_a_colon(self):
        self.assertEqual(offered("norvctl name show 'Halle 2: P"), ["Halle 2: Pumpe"])
        self.assertEqual(offered(r"norvctl name show Halle\ 2:"), ["' Pumpe'"])

    def test_completes_the_rest_of_the_store(self):
        self.assertEqual(offered("norvctl name show Kess"), ["'Kessel#1'"])
        self.assertEqual(offered("norvctl board show AFK1"), ["AFK110"])
        self.assertEqual(offered("norvctl protocol show S"), ["SERIAL"])
        self.assertEqual(offered("norvctl template show TC"), ["TCPIP-ANK300"])
        self.assertEqual(offered("norvctl device create x --from TC"), ["TCPIP-ANK300"])
        self.assertEqual(offered("norvctl watch LogNames Leit"), ["Leitwarte"])

    def test_completes_parameters_of_what_stands_ahead(self):
        self.assertEqual(offered("norvctl device get Kesselhaus baud"), ["baudrate"])
        self.assertEqual(offered("norvctl name get Leitwarte Ber"), ["Bereich"])
        self.assertEqual(offered("norvctl template get MPI-AFK110 baud"), ["baudrate"])
        self.assertEqual(offered("norvctl device ndi get Kesselhaus Order"), ["OrderCode"])

    def test_leaves_files_of_the_machine_to_bash(self):
        self.assertEqual(offered("norvctl trace on --folder /tm"), ["compopt -o default"])

    def test_has_nothing_for_what_is_not_there(self):
        self.assertEqual(offered("norvctl device show Nichts"), [])
        self.assertEqual(offered("norvctl devise "), [])
        self.assertEqual(offered("norvctl device get Nichts b"), [])

    def test_words_that_it_offers_are_the_names(self):
        words = " ".join(offered("norvctl name show "))

        names = bash(f"printf '%s\\n' {words}").stdout.splitlines()

        listed = json.loads(norv.norvctl("--json", "name", "list").stdout)
        self.assertEqual(names, [each["name"] for each in listed])


class BashCompletionWithoutStore(unittest.TestCase):
    def test_is_silent(self):
        with norv.bare_machine():
            end = bash(ASK, "norvctl name show ")

        self.assertEqual((end.stdout, end.stderr), ("\ncomplete -F _norvctl norvctl\n", ""))
