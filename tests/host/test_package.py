"""What is handed to users, as they have it: clients from the archive alone, and a machine before and after the installer."""

import contextlib
import datetime
import filecmp
import os
import re
import shutil
import signal
import subprocess
import tempfile
import unittest
import zipfile
from pathlib import Path

import norv

PACKAGES = norv.ROOT / "build/package"
VERSION = re.search(r"project\(NorvepaBl64x VERSION ([\d.]+)", (norv.ROOT / "CMakeLists.txt").read_text())[1]
NAME = f"NorvepaBl64x-{VERSION}"
ARCHIVE = PACKAGES / f"{NAME}.zip"
SETUP = PACKAGES / f"{NAME}-setup.exe"
SAMPLES = norv.ROOT / "examples/store"

DRIVE = norv.PREFIX / "drive_c"
INSTALLED = DRIVE / "Program Files/NorvepaBl64x"
DATA_ROOT = DRIVE / "ProgramData/Marvolt/Automation/Corvane OAM"
PROGRAM_ROOT = DRIVE / "Program Files/Common Files/Marvolt/Automation/Corvane OAM"
OWN_KEY = r"HKLM\SOFTWARE\Norvepa"
PROGRAMS_KEY = r"HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\NorvepaBl64x"
SESSION_KEY = r"HKLM\SYSTEM\CurrentControlSet\Control\Session Manager"
RESTART_REQUIRED = 3010 % 256  # an exit status is a byte here

PROMISED = """
README.md
bin/NorvepaBl64x.dll bin/NorvepaBl64x.debug bin/norvctl.exe
include/norvepa.h include/norvepa.hpp
lib/NorvepaBl64x.lib lib/libNorvepaBl64x.dll.a
lib/cmake/NorvepaBl64x/NorvepaBl64xConfig.cmake lib/cmake/NorvepaBl64x/NorvepaBl64xConfigVersion.cmake
lib/pkgconfig/NorvepaBl64x.pc
examples/README.md examples/CMakeLists.txt
examples/store/program-root/bin/de/AuentalTexte.dll examples/store/program-root/bin/en/AuentalTexte.dll
share/NorvepaBl64x/Schemes/Corvane.Device.Driver.Logdevice.xsd
share/completions/norvctl.bash share/completions/norvctl.ps1
share/doc/NorvepaBl64x/README.md share/doc/NorvepaBl64x/CHANGELOG.md share/doc/NorvepaBl64x/CONTRIBUTING.md share/doc/NorvepaBl64x/LICENSE share/doc/NorvepaBl64x/NOTICES
share/doc/NorvepaBl64x/html/index.html
""".split()

CLIENT_OF_MICROSOFT = """
__declspec(dllimport) int LogNameGetValueBL(const wchar_t*, const wchar_t*, wchar_t*, unsigned*);
extern "C" int mainCRTStartup()
{
    wchar_t device[64];
    unsigned length = 64;
    return LogNameGetValueBL(L"Kessel#1", L"LogDevice", device, &length) == 0 && device[0] == L'K' ? 0 : 1;
}
""".replace("__declspec", 'extern "C" __declspec', 1)

# Nothing is compiled: what CMake would know of a compiler is told.
FINDS = """
cmake_minimum_required(VERSION 3.20)
project(Finds NONE)
set(CMAKE_SIZEOF_VOID_P 8)
%s
find_package(NorvepaBl64x 0.1 REQUIRED)
get_target_property(library NorvepaBl64x::NorvepaBl64x IMPORTED_IMPLIB)
message(NOTICE "links ${library}")
"""


def unpacked(folder):
    with zipfile.ZipFile(ARCHIVE) as archive:
        archive.extractall(folder)
    return folder / NAME


def files_below(folder):
    return {str(file.relative_to(folder)): file.read_bytes() for file in folder.rglob("*") if file.is_file()}


class Archive(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="norv-package-")))
        cls.package = unpacked(cls.folder)
        cls.store = cls.package / "examples/store"

    def build_by_cmake(self):
        build = self.folder / "build"
        end = norv.run(
            ["cmake", "-S", self.package / "examples", "-B", build, "-G", "Ninja"]
            + [f"-DNorvepaBl64x_DIR={self.package}/lib/cmake/NorvepaBl64x"]
            + [f"-DCMAKE_TOOLCHAIN_FILE={norv.ROOT}/cmake/mingw-w64.cmake"]
        )
        self.assertEqual(end.returncode, 0, end.stderr)
        end = norv.run(["cmake", "--build", build])
        self.assertEqual(end.returncode, 0, end.stdout)
        return build

    def build_by_pkg_config(self, client, compiler, *arguments):
        paths = {**os.environ, "PKG_CONFIG_LIBDIR": str(self.package / "lib/pkgconfig")}
        flags = norv.run(["pkg-config", "--cflags", "--libs", "NorvepaBl64x"], env=paths).stdout.split()
        sources = sorted((self.package / "examples" / client).glob("*.c*"))
        program = self.folder / f"{client}.exe"
        command = [f"x86_64-w64-mingw32-{compiler}-posix", "-municode", "-static", "-o", program]
        end = norv.run([*command, *sources, *flags, *arguments])
        self.assertEqual((end.returncode, end.stderr), (0, ""))
        return program

    def run_on_sample_store(self, program, *arguments):
        norv.name_location("Corvane_Oam_Data", self.store / "data-root")
        norv.name_location("Corvane_Oam", self.store / "program-root")
        end = norv.run_under_wine(program, *arguments, env={"WINEPATH": norv.windows_path(self.package / "bin")})
        self.assertEqual((end.returncode, end.stderr), (0, ""))
        return end.stdout

    def find(self, compiler):
        project = Path(tempfile.mkdtemp(dir=self.folder))
        (project / "CMakeLists.txt").write_text(FINDS % compiler)
        return norv.run(["cmake", "-S", project, "-B", project / "build", f"-DCMAKE_PREFIX_PATH={self.package}"]).stderr

    def test_holds_what_is_promised_and_as_it_was_built(self):
        files = files_below(self.package)

        self.assertEqual([each for each in PROMISED if not files.get(each)], [])
        self.assertEqual(files["bin/NorvepaBl64x.dll"], (norv.BIN / "NorvepaBl64x.dll").read_bytes())
        self.assertEqual(files["bin/norvctl.exe"], (norv.BIN / "norvctl.exe").read_bytes())

    def test_holds_the_sample_store_and_the_examples_whole(self):
        for folder in ("store/data-root", "store/program-root/meta", "c", "cpp", "driver", "go"):
            source = files_below(norv.ROOT / "examples" / folder)
            with self.subTest(folder):
                self.assertEqual(files_below(self.package / "examples" / folder), source)

    def test_is_packed_the_same_again(self):
        again = self.folder / "again.zip"
        for entry in zipfile.ZipFile(ARCHIVE).infolist():
            packed = datetime.datetime(*entry.date_time, tzinfo=datetime.timezone.utc).timestamp()
            os.utime(self.folder / entry.filename, (packed, packed))

        end = norv.run([norv.ROOT / "tools/package/archive", self.package, again])

        self.assertEqual((end.returncode, end.stderr), (0, ""))
        self.assertTrue(filecmp.cmp(again, ARCHIVE, shallow=False))

    def test_marks_names_as_utf_8_where_they_need_it(self):
        utf_8 = 0x800
        for entry in zipfile.ZipFile(ARCHIVE).infolist():
            with self.subTest(entry.filename):
                self.assertEqual(bool(entry.flag_bits & utf_8), not entry.filename.isascii())

    def test_has_examples_that_are_built_by_cmake_and_run_on_its_sample_store(self):
        build = self.build_by_cmake()

        with norv.bare_machine():
            got = self.run_on_sample_store(build / "client_c.exe", "get", "Kesselhaus", "baudrate")
            overview = self.run_on_sample_store(build / "client_cpp.exe", "overview")
            records = self.run_on_sample_store(build / "client_driver.exe", "Waage Rampe 2")
            text = self.run_on_sample_store(self.package / "bin/norvctl.exe", "board", "text", "AFK220", "DescText")

        self.assertEqual(got, "1500000\n")
        self.assertIn("Kesselhaus", overview)
        self.assertIn("Fahrzeugwaage 60 t", records)
        self.assertIn("220", text)

    def test_has_examples_that_are_built_by_pkg_config_and_run(self):
        c = self.build_by_pkg_config("c", "gcc", "-std=c99", "-lole32")
        cpp = self.build_by_pkg_config("cpp", "g++", "-std=c++20")
        driver = self.build_by_pkg_config("driver", "gcc", "-std=c99")

        with norv.bare_machine():
            self.assertEqual(self.run_on_sample_store(c, "get", "Kesselhaus", "baudrate"), "1500000\n")
            self.assertIn("Kesselhaus", self.run_on_sample_store(cpp, "overview"))
            self.assertIn("Fahrzeugwaage 60 t", self.run_on_sample_store(driver, "Waage Rampe 2"))

    def test_has_a_library_that_is_linked_as_microsofts_linker_does(self):
        source, object_file, program = (self.folder / f"microsoft.{end}" for end in ("cpp", "obj", "exe"))
        source.write_text(CLIENT_OF_MICROSOFT)
        compiler = ["clang++", "--target=x86_64-pc-windows-msvc", "-ffreestanding", "-c", source, "-o", object_file]
        linker = ["lld-link", "/machine:x64", "/subsystem:console", "/nodefaultlib", f"/out:{program}"]

        for command in (compiler, [*linker, object_file, self.package / "lib/NorvepaBl64x.lib"]):
            end = norv.run(command)
            self.assertEqual((end.returncode, end.stdout + end.stderr), (0, ""))

        imported = norv.run(["x86_64-w64-mingw32-objdump", "-p", program]).stdout
        self.assertEqual(re.findall(r"DLL Name: (.*)", imported), ["NorvepaBl64x.dll"])
        with norv.bare_machine():
            self.assertEqual(self.run_on_sample_store(program), "")

    def test_has_every_export_in_both_import_libraries(self):
        exports = (norv.ROOT / "src/NorvepaBl64x.def").read_text().split("EXPORTS")[1].split()
        for library in ("NorvepaBl64x.lib", "libNorvepaBl64x.dll.a"):
            symbols = norv.run(["x86_64-w64-mingw32-nm", self.package / "lib" / library]).stdout
            with self.subTest(library):
                self.assertEqual(set(re.findall(r"__imp_(\w+)", symbols)), set(exports))

    def test_gives_each_compiler_the_library_that_it_links(self):
        gnu = self.find("set(WIN32 1)")
        microsoft = self.find("set(WIN32 1)\nset(MSVC 1)")
        clang = self.find('set(WIN32 1)\nset(CMAKE_CXX_SIMULATE_ID "MSVC")')

        self.assertIn(f"links {self.package}/lib/libNorvepaBl64x.dll.a\n", gnu)
        self.assertIn(f"links {self.package}/lib/NorvepaBl64x.lib\n", microsoft)
        self.assertIn(f"links {self.package}/lib/NorvepaBl64x.lib\n", clang)

    def test_is_not_found_for_another_system(self):
        self.assertIn("NorvepaBl64x is for 64-bit programs of Windows.", self.find("set(WIN32 0)"))
        self.assertIn("(64bit)", self.find("set(WIN32 1)\nset(CMAKE_SIZEOF_VOID_P 4)"))


def registry(key):
    """The values of a key of the machine, by their names; none when there is no such key."""
    shown = norv.run_under_wine("reg", "query", key, "/reg:64").stdout
    return dict(re.findall(r"^    (.+?)    REG_\w+    (.*)$", shown, re.MULTILINE))


def search_path():
    """Its value is spelled in more ways than one."""
    values = registry(SESSION_KEY + r"\Environment")
    return next(value for name, value in values.items() if name.upper() == "PATH").split(";")


def install(*options):
    return norv.run_under_wine(SETUP, "/S", *options).returncode


def remove(*options):
    """A copy removes all: the uninstaller itself would go on in another process, of whose end nobody hears."""
    with tempfile.TemporaryDirectory() as folder:
        shutil.copy(INSTALLED / "uninstall.exe", folder)
        call = Path(folder) / "call.bat"  # the folder ends the line and bears no quotes
        words = " ".join(["/S", *options, r"_?=C:\Program Files\NorvepaBl64x"])
        call.write_text(f'@start "" /wait "{norv.windows_path(folder)}\\uninstall.exe" {words}\r\n@exit %errorlevel%\r\n')
        return norv.run_under_wine("cmd", "/c", norv.windows_path(call)).returncode


def installed_norvctl(*arguments):
    return norv.run_under_wine(INSTALLED / "bin/norvctl.exe", *arguments)


def clear_machine():
    for folder in (INSTALLED, DATA_ROOT.parents[1], PROGRAM_ROOT.parents[1]):
        shutil.rmtree(folder, ignore_errors=True)
    with tempfile.NamedTemporaryFile("w", suffix=".reg") as changes:  # all of them by one program
        keys = [key.replace("HKLM", "HKEY_LOCAL_MACHINE") for key in (OWN_KEY, PROGRAMS_KEY, norv.LOCATIONS_KEY)]
        changes.write("REGEDIT4\n\n" + "".join(f"[-{key}]\n\n" for key in keys))
        changes.flush()
        norv.run_under_wine("reg", "import", norv.windows_path(changes.name), "/reg:64")


@contextlib.contextmanager
def running(*command):
    """A program of Windows that says a line and goes on until it is stopped."""
    environment = {**os.environ, "NORV_WINE_PREFIX": str(norv.PREFIX)}
    process = subprocess.Popen(
        [norv.ROOT / "cmake/run-under-wine", *command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        env=environment,
        start_new_session=True,
    )
    with process:
        process.stdout.readline()
        try:
            yield
        finally:
            os.killpg(process.pid, signal.SIGKILL)


class Installer(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.enterClassContext(norv.bare_machine())
        cls.addClassCleanup(clear_machine)

    def setUp(self):
        clear_machine()

    def test_makes_a_store_and_a_tool_that_works_on_it(self):
        self.assertEqual(install(), 0)

        roots = registry(norv.LOCATIONS_KEY)
        self.assertEqual(roots["Corvane_Oam_Data"], r"C:\ProgramData\Marvolt\Automation\Corvane OAM")
        self.assertEqual(roots["Corvane_Oam"], r"C:\Program Files\Common Files\Marvolt\Automation\Corvane OAM")
        for folder in ("LogDevices", "LogNames", "ParameterData"):
            self.assertTrue((DATA_ROOT / "data" / folder).is_dir())
        self.assertEqual(files_below(PROGRAM_ROOT / "Schemes"), files_below(SAMPLES / "program-root/Schemes"))
        for call in (["create", "Presse"], ["set", "Presse", "Ort", "Halle"], ["unset", "Presse", "Ort"]):
            self.assertEqual(installed_norvctl("name", *call).returncode, 0)  # the last one needs the schemas
        self.assertRegex(installed_norvctl("name", "list").stdout, r"^Presse .*\n$")

    def test_lays_out_what_the_archive_holds_without_the_symbols(self):
        install()

        with tempfile.TemporaryDirectory() as folder:
            expected = files_below(unpacked(Path(folder)))
        del expected["bin/NorvepaBl64x.debug"]
        installed = files_below(INSTALLED)
        self.assertEqual(set(installed) - set(expected), {"install.log", "uninstall.exe"})
        self.assertEqual({name for name in expected if installed.get(name) != expected[name]}, set())

    def test_is_listed_among_the_programs(self):
        install()

        told = registry(PROGRAMS_KEY)
        self.assertEqual(told["DisplayName"], "NorvepaBl64x")
        self.assertEqual(told["DisplayVersion"], VERSION)
        self.assertEqual(told["Publisher"], "Norvepa")
        self.assertEqual(told["QuietUninstallString"], r'"C:\Program Files\NorvepaBl64x\uninstall.exe" /S')

    def test_lets_users_change_a_data_root_that_it_makes_and_no_other(self):
        install()
        made = DATA_ROOT.stat().st_mode
        remove()
        os.chmod(DATA_ROOT, 0o750)

        install()

        self.assertTrue(made & 0o020)  # as Wine keeps the entry for whoever has signed in
        self.assertEqual(DATA_ROOT.stat().st_mode & 0o777, 0o750)

    def test_puts_norvctl_on_the_search_path_only_when_asked_and_takes_it_off(self):
        before = search_path()
        install()
        self.assertEqual(search_path(), before)

        install("/PATH=1")
        self.assertEqual(search_path(), [*before, r"C:\Program Files\NorvepaBl64x\bin"])
        install()
        self.assertEqual(search_path(), [*before, r"C:\Program Files\NorvepaBl64x\bin"])
        remove()
        self.assertEqual(search_path(), before)

    def test_leaves_a_store_and_roots_that_are_there_as_they_are(self):
        with tempfile.TemporaryDirectory() as folder:
            store = norv.SampleStore(Path(folder))
            (store.program_root / "Schemes/Boards.Schema.xsd").write_text("ours\n")
            norv.name_location("Corvane_Oam_Data", store.data_root)
            norv.name_location("Corvane_Oam", store.program_root)
            files, roots = files_below(Path(folder)), registry(norv.LOCATIONS_KEY)

            self.assertEqual(install("/SAMPLE=1"), 0)
            self.assertEqual((files_below(Path(folder)), registry(norv.LOCATIONS_KEY)), (files, roots))
            self.assertEqual(remove("/PURGE"), 0)
            self.assertEqual((files_below(Path(folder)), registry(norv.LOCATIONS_KEY)), (files, roots))

    def test_lays_out_the_sample_plant_when_asked(self):
        install("/SAMPLE=1")

        self.assertEqual(files_below(DATA_ROOT), files_below(SAMPLES / "data-root"))
        self.assertEqual(files_below(PROGRAM_ROOT / "meta"), files_below(SAMPLES / "program-root/meta"))
        text = installed_norvctl("name", "text", "Leitwarte", "DescText", "--language", "en")
        self.assertEqual(text.stdout, "Control room\n")

    def test_keeps_a_changed_store_when_it_is_installed_again(self):
        install("/SAMPLE=1")
        installed_norvctl("device", "set", "Kesselhaus", "watchdog", "300")
        installed_norvctl("template", "set", "MPI-AFK110", "baudrate", "19200")
        installed_norvctl("name", "delete", "Lagerhaus")
        stores = files_below(DATA_ROOT), files_below(PROGRAM_ROOT)

        self.assertEqual(install("/SAMPLE=1"), 0)

        self.assertEqual((files_below(DATA_ROOT), files_below(PROGRAM_ROOT)), stores)
        self.assertIn("isn't laid out, for there is a store", (INSTALLED / "install.log").read_text("utf-16"))

    def test_renews_files_of_its_own_that_nobody_has_changed(self):
        install()
        schema = PROGRAM_ROOT / "Schemes/Boards.Schema.xsd"
        times = schema.stat()
        schema.write_text("of an older version\n")
        os.utime(schema, ns=(times.st_atime_ns, times.st_mtime_ns))

        install()

        self.assertEqual(schema.read_bytes(), (SAMPLES / "program-root/Schemes/Boards.Schema.xsd").read_bytes())

    def test_leaves_nothing_of_another_version(self):
        install()
        gone = INSTALLED / "share/completions/norvctl.bash"
        gone.write_text("of an older version\n")
        kept = INSTALLED / "Notizen.txt"
        kept.write_text("of the user's\n")

        self.assertEqual(install(), 0)

        self.assertNotEqual(gone.read_text(), "of an older version\n")
        self.assertTrue(kept.is_file())

    def test_removes_the_program_and_keeps_what_users_have_made(self):
        install("/SAMPLE=1")
        installed_norvctl("template", "set", "MPI-AFK110", "baudrate", "19200")
        data = files_below(DATA_ROOT)

        self.assertEqual(remove(), 0)

        self.assertFalse(INSTALLED.exists())
        self.assertEqual(files_below(DATA_ROOT), data)
        left = [Path(name).name for name in files_below(PROGRAM_ROOT)]
        self.assertEqual(left, ["Automation-OnlineAccess-LDT-MPI-AFK110.xml"])
        self.assertEqual([registry(key) for key in (OWN_KEY, PROGRAMS_KEY, norv.LOCATIONS_KEY)], [{}, {}, {}])

    def test_removes_the_store_too_when_asked(self):
        install("/SAMPLE=1")

        self.assertEqual(remove("/PURGE"), 0)

        self.assertFalse(DATA_ROOT.parents[1].exists())
        self.assertFalse(PROGRAM_ROOT.parents[1].exists())

    def test_keeps_a_root_that_was_renamed_behind_it(self):
        install()
        with tempfile.TemporaryDirectory() as folder:
            norv.name_location("Corvane_Oam_Data", folder)

            remove("/PURGE")

            self.assertEqual(registry(norv.LOCATIONS_KEY), {"Corvane_Oam_Data": norv.windows_path(folder)})
            self.assertTrue(Path(folder).is_dir())
            self.assertTrue(DATA_ROOT.is_dir())

    def test_tells_that_a_running_program_holds_the_library(self):
        pending = "PendingFileRenameOperations"
        self.addCleanup(norv.run_under_wine, "reg", "delete", SESSION_KEY, "/v", pending, "/f", "/reg:64")
        install()
        with running(INSTALLED / "bin/norvctl.exe", "watch", "LogNames", "--timeout", "100"):
            self.assertEqual(install(), RESTART_REQUIRED)
            self.assertEqual(installed_norvctl("name", "list").returncode, 0)
            self.assertEqual(remove(), RESTART_REQUIRED)

            self.assertFalse((INSTALLED / "bin/NorvepaBl64x.dll").exists())
        left = files_below(INSTALLED)
        self.assertIn("bin/NorvepaBl64x.dll.1.old", left)
        removed_at_restart = registry(SESSION_KEY)[pending]
        for file in left:
            self.assertIn(Path(file).name, removed_at_restart)
