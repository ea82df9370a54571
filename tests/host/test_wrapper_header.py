"""What norvepa.hpp has the compiler refuse: a result that is dropped, and a success that is taken for the answer."""

import re
import tempfile
import unittest
from pathlib import Path

import norv

COMPILER = "x86_64-w64-mingw32-g++-posix"
FLAGS = ["-std=c++20", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror", "-fsyntax-only"]

CHECKED = """
#include "norvepa.hpp"

int main()
{
    const norvepa::LogDevice device(L"Kesselhaus");
    norvepa::EditCopy copy = norvepa::EditCopy::Of(device).value();
    copy.Set(L"watchdog", L"300").value();
    if (!copy.Apply())
    {
        return 1;
    }
    static_cast<void>(device.Unset(L"Vermerk")); // whether or not it was there
    return device.Exists().value() ? 0 : 1;
}
"""

DROPPED = [
    'device.Set(L"watchdog", L"300");',
    'device.Get(L"watchdog");',
    "device.Exists();",
    "device.Values();",
    "norvepa::EditCopy::Of(device);",
    "norvepa::EditCopy::Of(device).value().Apply();",
    "norvepa::EditCopy::Of(device).value().Discard();",
    "norvepa::Watch::Of(norvepa::Folder::LogDevices);",
    "norvepa::LogDevices().All();",
]


def compile_text(text):
    """What the compiler says of it; nothing when it is content. All of the texts need the same headers."""
    with tempfile.TemporaryDirectory() as folder:
        source = Path(folder) / "client.cpp"
        source.write_text(text)
        return norv.run([COMPILER, *FLAGS, "-I", norv.ROOT / "include", source]).stderr


def in_main(statements):
    return (
        '#include "norvepa.hpp"\n'
        "int main()\n{\n"
        'const norvepa::LogDevice device(L"Kesselhaus");\n' + "\n".join(statements) + "\n}\n"
    )


class WrapperHeader(unittest.TestCase):
    def test_compiles_without_a_warning_where_results_are_looked_at(self):
        self.assertEqual(compile_text(CHECKED), "")

    def test_tells_of_each_result_that_is_dropped(self):
        said = compile_text(in_main(DROPPED))

        first = in_main(["HERE"]).splitlines().index("HERE") + 1
        lines = {int(line) for line in re.findall(r"client\.cpp:(\d+):\d+: error: ignoring return", said)}
        self.assertEqual(lines, set(range(first, first + len(DROPPED))))

    def test_refuses_to_take_a_success_for_the_answer(self):
        said = compile_text(in_main(["return device.Exists() ? 0 : 1;"]))

        self.assertRegex(said, r"error: could not convert .*Result<bool>")

    def test_needs_no_other_header_and_bears_the_macros_of_the_system(self):
        said = compile_text('#include <windows.h>\n#include "norvepa.hpp"\nint main() {}\n')

        self.assertEqual(said, "")
