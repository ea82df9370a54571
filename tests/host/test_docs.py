"""The site of the guide and the reference: whole, true as far as that can be tried, and pleasant to use."""

import importlib.machinery
import importlib.util
import json
import re
import shlex
import tempfile
import unittest
from pathlib import Path

import norv

DOCS = norv.ROOT / "docs"
GUIDE = sorted((DOCS / "guide").glob("*.md"))
SITE = norv.ROOT / "build/docs/html"
HEADER = norv.ROOT / "include/norvepa.h"
SAMPLES = norv.ROOT / "examples/store"
SOURCES = [HEADER, norv.ROOT / "CMakeLists.txt"]
SOURCES += [file for file in DOCS.rglob("*") if file.is_file() and file.suffix != ".pyc"]
COMPILER = "x86_64-w64-mingw32-gcc-posix"
TRACE_KEY = r"HKLM\Software\MARVOLT\DRAVIK\TrcParams"

FENCE = re.compile(r"^```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
CALL = re.compile(r"^\$ norvctl (.*)\n((?:(?!\$ ).*\n)*)", re.MULTILINE)
ROW = re.compile(r"^\| `(\w+)` \|(.*)\|$", re.MULTILINE)


def build_when_old():
    start = SITE / "index.html"
    if start.is_file() and start.stat().st_mtime > max(file.stat().st_mtime for file in SOURCES):
        return
    end = norv.run([DOCS / "build-docs"])
    if end.returncode != 0:
        raise RuntimeError(f"the site can't be built:\n{end.stdout}{end.stderr}")


def tool(name):
    loader = importlib.machinery.SourceFileLoader(name.replace("-", "_"), str(DOCS / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


def exports():
    return (norv.ROOT / "src/NorvepaBl64x.def").read_text().split("EXPORTS")[1].split()


def declared_arguments():
    declarations = re.findall(r"^(?:int32_t|void) (\w+)\(([^()]*)\);", HEADER.read_text(), re.MULTILINE)
    return {name: re.findall(r"(\w+)\s*(?:,|$)", listed.replace("void", "")) for name, listed in declarations}


def result_codes():
    return dict(re.findall(r"(PGSP_\w+) = (\d+)", HEADER.read_text()))


def exports_in_tables():
    """What the tables say of each export: purpose, result codes, what it notifies, what it reads."""
    rows = ROW.findall((DOCS / "exports.md").read_text())
    return {name: [cell.strip() for cell in rest.split("|")] for name, rest in rows}


def documented_functions():
    """The part of the site about each function."""
    text = "".join(file.read_text() for file in sorted(SITE.glob("group__*.html")))
    parts = re.split(r'<h2 class="memtitle">.*?</span>(\w+)\(\)</h2>', text)
    return dict(zip(parts[1::2], parts[2::2]))


def fenced(language):
    """(page, block) of each block of a language in the guide."""
    return [(page, block) for page in GUIDE for kind, block in FENCE.findall(page.read_text()) if kind == language]


class Site(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        build_when_old()
        cls.functions = documented_functions()

    def test_has_a_part_for_each_export(self):
        self.assertEqual(sorted(self.functions), sorted(exports()))

    def test_tells_each_argument_with_its_direction(self):
        for name, arguments in declared_arguments().items():
            told = re.findall(
                r'class="paramdir">\[(in|out|in,out)\]</td><td class="paramname">(\w+)</td><td>\s*\S',
                self.functions[name],
            )
            with self.subTest(name):
                self.assertEqual([argument for _, argument in told], arguments)

    def test_tells_each_result_code(self):
        for name, (_, codes, _, _) in exports_in_tables().items():
            told = set(re.findall(r">(PGSP_[A-Z_]+)</a>", self.functions[name]))
            with self.subTest(name):
                self.assertEqual(set(re.findall(r"PGSP_[A-Z_]+", codes)) - told, set())

    def test_tells_what_is_announced(self):
        for name, (_, _, notifies, _) in exports_in_tables().items():
            announced = re.search(r"<dt>Announced</dt><dd>(.*?)</dd>", self.functions[name], re.DOTALL)[1]
            with self.subTest(name):
                self.assertEqual("Notifies nobody." in announced, notifies == "none")

    def test_tells_who_releases_what(self):
        for name, arguments in declared_arguments().items():
            with self.subTest(name):
                self.assertEqual("<dt>Ownership</dt>" in self.functions[name], bool(arguments))
        self.assertIn("GlobalFree", self.functions["norvDriverReadLogDevice"])

    def test_finds_every_function_and_result_code(self):
        index = (SITE / "search-index.js").read_text()
        names = [json.loads(line.rstrip(","))[0] for line in index.splitlines()[1:-1]]

        self.assertEqual(set(exports()) - set(names), set())
        self.assertEqual(set(result_codes()) - set(names), set())

    def test_says_which_version_it_is_of(self):
        version = re.search(r"project\(NorvepaBl64x VERSION ([\d.]+)", (norv.ROOT / "CMakeLists.txt").read_text())[1]

        self.assertIn(f"<span> {version}</span>", (SITE / "index.html").read_text())

    def test_is_the_same_when_it_is_built_again(self):
        before = {file.name: file.read_bytes() for file in SITE.iterdir()}

        end = norv.run([DOCS / "build-docs"])

        self.assertEqual((end.returncode, end.stderr), (0, ""))
        self.assertEqual({file.name: file.read_bytes() for file in SITE.iterdir()}, before)

    def test_is_shown_and_searched_without_a_complaint(self):
        looker = norv.ROOT / "tests/host/site_in_browser.py"

        end = norv.run(["/usr/bin/python3", looker, SITE / "index.html", "name valuelist"])

        self.assertEqual((end.returncode, end.stderr), (0, ""))
        seen = json.loads(end.stdout)
        self.assertEqual(seen["told"], [])
        self.assertEqual(seen["title"], "NorvepaBl64x - NorvepaBl64x")
        self.assertEqual(seen["shown"], "Start")
        self.assertEqual(seen["too_wide"], [])
        self.assertNotEqual(seen["light"], seen["dark"])
        self.assertIn("LogNameGetValueListBL", seen["found"])
        self.assertRegex(seen["led_to"], r"^group__log__names\.html#\w+$")


class Guide(unittest.TestCase):
    def test_tells_cause_and_cure_of_every_result(self):
        text = (DOCS / "guide/result-codes.md").read_text()
        rows = re.findall(r"^\| (-?\d+) \| (.+?) \| (.*) \| (.*)\|$", text, re.MULTILINE)
        told = {word.strip("`"): (code, cause.strip(), cure.strip()) for code, word, cause, cure in rows}

        for word, code in result_codes().items():
            with self.subTest(word):
                self.assertEqual(told[word][0], code)
                self.assertTrue(told[word][1])
                self.assertEqual(bool(told[word][2]), word != "PGSP_OK")

    def test_tells_of_no_result_that_no_function_answers_otherwise(self):
        answered = set(re.findall(r"PGSP_[A-Z_]+", " ".join(row[1] for row in exports_in_tables().values())))
        text = (DOCS / "guide/result-codes.md").read_text()

        for word in result_codes():
            row = re.search(rf"^.*`{word}`.*$", text, re.MULTILINE)[0]
            with self.subTest(word):
                self.assertEqual("no function answers it" in row, word not in answered)

    def test_has_examples_in_c_that_compile(self):
        examples = fenced("c")
        self.assertGreater(len(examples), 3)
        for page, block in examples:
            with self.subTest(page.name), tempfile.TemporaryDirectory() as folder:
                file = Path(folder) / "example.c"
                file.write_text(block)
                flags = ["-std=c11", "-Wall", "-Wextra", "-Wno-cast-function-type", "-Werror", f"-I{HEADER.parent}"]
                end = norv.run([COMPILER, *flags, "-fsyntax-only", file])
                self.assertEqual((end.returncode, end.stderr), (0, ""))

    def test_has_excerpts_of_documents_that_stand_there(self):
        for page, block in fenced("xml"):
            named, *lines = [line.strip() for line in block.splitlines()]
            document = SAMPLES / re.fullmatch(r"<!-- (.*) -->", named)[1]
            rest = iter([line.strip() for line in document.read_text().splitlines()])
            for line in lines:
                with self.subTest(page.name, document=document.name, line=line):
                    self.assertTrue(line == "..." or line in rest)

    def test_shows_what_norvctl_prints(self):
        with norv.sample_store():
            for page, block in fenced("console"):
                for command, shown in CALL.findall(block):
                    end = norv.norvctl(*shlex.split(command))
                    with self.subTest(page.name, command=command):
                        self.assertEqual(end.stdout + end.stderr, shown)

    def test_shows_the_bytes_that_a_driver_gets(self):
        text = (DOCS / "guide/driver-records.md").read_text()
        shown = re.findall(r"^(?:[0-9a-f]{2} *){10,}$", text, re.MULTILINE)
        with norv.sample_store():
            dump = norv.norvctl("device", "driver-read", "Waage Rampe 2", "--hex").stdout

        got = " ".join(line[10:58] for line in dump.splitlines()).split()
        told = " ".join(shown).split()
        self.assertEqual(len(told), 40)
        self.assertEqual(got[:40], told)

    def test_shows_lines_of_a_trace_as_they_are(self):
        text = (DOCS / "guide/tracing.md").read_text()
        shown = [line for line in text.splitlines() if re.match(r"[LST] NvEPBL64 |LogNameGetValueBL: ", line)]
        with norv.sample_store() as store:
            traced = [line for form in ("SHORT", "LONG", "TIME", "TEXT") for line in self.trace(store, form)]
            norv.run_under_wine("reg", "delete", TRACE_KEY, "/f", "/reg:64")

        self.assertEqual(len(shown), 6)
        for line in shown:
            with self.subTest(line):
                self.assertIn(self.without_numbers(line), [self.without_numbers(each) for each in traced])

    def trace(self, store, form):
        folder = store.data_root / form
        norv.norvctl("trace", "on", "--folder", norv.windows_path(folder), "--file", "Demo", "--format", form)
        norv.norvctl("name", "get", "Kessel#1", "LogDevice")
        norv.norvctl("trace", "off")
        return (folder / "Demo1.TRC").read_text(encoding="cp1252").splitlines()

    def without_numbers(self, line):
        """Process, thread, time and place differ from call to call; where they stand and how wide they are, doesn't."""
        place = re.compile(r"P\d{9}T\d{9}|\d\d:\d\d:\d\d,\d{3} \w+\.cpp,\d{5}|\d{5}\.\d{6}")
        return place.sub(lambda found: re.sub(r"\d", "0", found[0]), line).rstrip()


class HeaderFilter(unittest.TestCase):
    FILE = (
        "/*\n * The library.\n *\n * What holds:\n *\n *   Text  is UTF-16.\n */\n"
        "enum Result\n{\n    PGSP_OK = 0, /* good */\n};\n\n"
    )

    @classmethod
    def setUpClass(cls):
        cls.filter = tool("header-filter")

    def filtered(self, functions):
        return self.filter.filtered(self.FILE + "/* The module ------------ */\n\n" + functions)

    def test_takes_what_a_comment_leaves_to_another_from_there(self):
        text = self.filtered(
            "/*\n * Reads.\n *\n *   LogDevice  in  the log device\n *\n * PGSP_OK  read\n */\n"
            "int32_t ReadBL(const wchar_t* LogDevice);\n\n"
            "/*\n * Writes. Arguments and results as ReadBL.\n */\nint32_t WriteBL(const wchar_t* LogName);\n"
        )

        written = text.partition("@brief Writes.")[2]
        self.assertIn("@param[in] LogName the log name", written)
        self.assertIn("<td>0</td><td>#PGSP_OK</td><td>read</td>", written)

    def test_stops_at_an_argument_that_nobody_tells_of(self):
        with self.assertRaisesRegex(SystemExit, "WriteBL doesn't tell what What is"):
            self.filtered("/*\n * Writes.\n */\nint32_t WriteBL(const wchar_t* What);\n")

    def test_stops_at_a_heading_that_it_has_no_group_for(self):
        with self.assertRaisesRegex(SystemExit, "no group is known"):
            self.filter.filtered(self.FILE + "/* Something new ------------ */\n")

    def test_shows_signs_as_they_stand(self):
        text = self.filtered('/*\n * Takes "<a\\b>" and < or 50% of #1.\n */\nint32_t TakeBL(void);\n')

        self.assertIn(r"<code>&lt;a\\b&gt;</code> and &lt; or 50\% of \#1.", text)


class PageFilter(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.filter = tool("page-filter")

    def filtered(self, text):
        return self.filter.filtered(DOCS / "guide/store.md", "# A page\n" + text)

    def test_names_a_page_as_its_file(self):
        self.assertEqual(self.filtered(""), "# A page {#store}\n")

    def test_leads_from_page_to_page(self):
        self.assertIn("[on](@ref driver_records)", self.filtered("[on](driver-records.md)"))
        self.assertIn("[on](@ref exports)", self.filtered("[on](../exports.md)"))
        self.assertIn("[on](@ref every_call)", self.filtered("[on](../../include/norvepa.h)"))

    def test_leaves_a_file_that_the_site_lacks_as_text(self):
        self.assertIn("the code\n", self.filtered("[the code](../../src/NorvepaBl64x.def)\n"))

    def test_links_functions_and_result_codes_where_they_are_named(self):
        text = self.filtered("`LogNameCreateBL`, `PGSP_OK` and `main`\n")

        self.assertIn("[LogNameCreateBL](@ref LogNameCreateBL), [PGSP_OK](@ref PGSP_OK) and `main`\n", text)

    def test_leaves_examples_as_they_are(self):
        example = "```c\nf(); /* [on](store.md) */\n```\n"

        self.assertIn(example, self.filtered(example))


class CheckLinks(unittest.TestCase):
    PAGES = {
        "start.html": '<a href="other.html#there">on</a><a href="https://example.org/">out</a>',
        "other.html": '<p id="there">',
    }

    @classmethod
    def setUpClass(cls):
        cls.check = tool("check-links")

    def faults(self, pages):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in pages.items():
                (Path(folder) / name).write_text(text)
            return list(self.check.Site(folder).faults())

    def test_has_nothing_to_say_of_links_that_lead_somewhere(self):
        self.assertEqual(self.faults(self.PAGES), [])

    def test_tells_of_a_missing_file(self):
        self.assertEqual(self.faults({"start.html": '<img src="a.png">'}), ["start.html: no such file: a.png"])

    def test_tells_of_a_missing_place(self):
        pages = {**self.PAGES, "other.html": '<p id="elsewhere">'}

        self.assertEqual(self.faults(pages), ["start.html: no such place in that page: other.html#there"])

    def test_tells_of_what_is_loaded_from_elsewhere(self):
        pages = {
            "start.html": '<script src="//example.org/a.js"></script>',
            "a.css": "@import 'https://example.org/b.css';",
        }

        self.assertEqual(
            self.faults(pages),
            [
                "start.html: loads from elsewhere: //example.org/a.js",
                "a.css: loads from elsewhere: @import 'https://example.org/b.css",
            ],
        )


if __name__ == "__main__":
    unittest.main()
