#include "TextTraceScene.h"
#include "support/CurrentFolder.h"
#include "support/TextLibrary.h"
#include "support/UserLanguage.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

const std::string Answer = "exit: << return lRet = 0";

class TextLibraryTrace : public TextTraceScene
{
protected:
    ~TextLibraryTrace() override { SetEnvironmentVariableW(L"NORV_TEST_TEXTS", nullptr); }

    // The German library below a root.
    [[nodiscard]] static std::wstring Library(const std::wstring& root) { return root + L"\\de\\Texte.dll"; }

    // The log device "X" with a link through this path.
    void WriteDevice(const std::wstring& path) const
    {
        WriteBytes(roots.logDevice(L"X"), LogDeviceFile(Links(path)));
    }

    // The same with a library whose path has so many characters in a language's folder; the library's path
    // behind the language. It is the name that is long: a trace shows no more of a path than its beginning.
    std::wstring WriteDeviceWithLibraryOf(std::size_t pathLength) const
    {
        const std::wstring name(pathLength - std::wstring(L"x\\en\\").size(), L'n');
        WriteBytes(roots.logDevice(L"X"), LogDeviceFile(Links(L"x", name)));
        return L"\\" + name;
    }
};

// The line of a library that can't be loaded, with what the system has to say of it.
std::string CanNotLoad(std::string_view level, const std::wstring& path)
{
    HMODULE const loaded = LoadLibraryExW(
        path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE | LOAD_LIBRARY_AS_DATAFILE_EXCLUSIVE);
    const DWORD error = GetLastError();
    EXPECT_EQ(loaded, nullptr);
    return Line(level, "Can not load DLL: DllPath=" + ToAnsi(path) + ", " + std::to_string(error));
}

TEST_F(TextLibraryTrace, OfTheCommonPathLooksForNoVariables)
{
    WriteDevice(L"%commonpath%\\%NORV_TEST_TEXTS%");
    Load();

    EXPECT_EQ(Ask(), PGSP_OK);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using ExpandEnvironmentStrings = ", Library(bin())),
                            Answer));
}

TEST_F(TextLibraryTrace, OfVariablesTellsThemAndWhereTheyLead)
{
    const std::wstring elsewhere = roots.folder() / L"else";
    WriteBytes(Library(elsewhere), TextLibrary().Text(1000, L"ghi").file());
    SetEnvironmentVariableW(L"NORV_TEST_TEXTS", elsewhere.c_str());
    WriteDevice(L"%NORV_TEST_TEXTS%");
    Load();

    EXPECT_EQ(Ask(), PGSP_OK);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()),
                            Info("Search for ExpandEnvironmentStrings = ", L"%NORV_TEST_TEXTS%"),
                            Info("Using ExpandEnvironmentStrings = ", Library(elsewhere)), Answer));
}

TEST_F(TextLibraryTrace, OfVariablesThatLeadToNothingTellsAPathWithoutARoot)
{
    const CurrentFolder current;
    SetEnvironmentVariableW(L"NORV_TEST_TEXTS", L"");
    WriteDevice(L"%NORV_TEST_TEXTS%");
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()),
                            Info("Search for ExpandEnvironmentStrings = ", L"%NORV_TEST_TEXTS%"),
                            Info("Using ExpandEnvironmentStrings = ", L"de\\Texte.dll"),
                            CanNotLoad("exit", L"de\\Texte.dll"), CanNotLoad("warning", L"en\\Texte.dll")));
}

TEST_F(TextLibraryTrace, OfVariablesThatLeadTooFarTellsTheUsualPlace)
{
    SetEnvironmentVariableW(L"NORV_TEST_TEXTS", std::wstring(LongestPath, L'x').c_str());
    WriteDevice(L"%NORV_TEST_TEXTS%");
    Load();

    EXPECT_EQ(Ask(), PGSP_OK);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()),
                            Info("Search for ExpandEnvironmentStrings = ", L"%NORV_TEST_TEXTS%"),
                            Info("Using std-path = ", Library(bin())), Answer));
}

TEST_F(TextLibraryTrace, OfAPathWithoutVariablesTellsIt)
{
    const std::wstring elsewhere = roots.folder() / L"else";
    WriteBytes(Library(elsewhere), TextLibrary().Text(1000, L"ghi").file());
    WriteDevice(elsewhere);
    Load();

    EXPECT_EQ(Ask(), PGSP_OK);

    EXPECT_THAT(LinesOfLoad(), ElementsAre(EntryOf(deviceFile()),
                                           Info("Using AssemblyPath = ", Library(elsewhere)), Answer));
}

TEST_F(TextLibraryTrace, OfAMissingLanguageTellsTheFirstLibraryAlone)
{
    const std::wstring french = bin() + L"\\fr\\Texte.dll";
    Load();

    EXPECT_EQ(Ask(L"FR"), PGSP_OK);

    EXPECT_STREQ(buffer, L"def");
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using ExpandEnvironmentStrings = ", french),
                            CanNotLoad("exit", french), Answer));
}

TEST_F(TextLibraryTrace, OfNoLibraryTellsBoth)
{
    const std::wstring gone = roots.folder() / L"gone";
    WriteDevice(gone);
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 8101"));
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using AssemblyPath = ", gone + L"\\de\\Texte.dll"),
                            CanNotLoad("exit", gone + L"\\de\\Texte.dll"),
                            CanNotLoad("warning", gone + L"\\en\\Texte.dll")));
}

TEST_F(TextLibraryTrace, OfANameWithABackslashTellsItAndTwoFailures)
{
    WriteBytes(roots.logDevice(L"X"), LogDeviceFile(Links(L"", L"..\\de\\Texte.dll")));
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 8101"));
    EXPECT_THAT(
        LinesOfLoad(),
        ElementsAre(EntryOf(deviceFile()),
                    "warning: Backslash in AssemblyName is not allowed: AssemblyName=..\\de\\Texte.dll",
                    Info("Using ExpandEnvironmentStrings = ", bin() + L"\\de\\"),
                    CanNotLoad("exit", bin() + L"\\de\\"), CanNotLoad("warning", bin() + L"\\en\\")));
}

TEST_F(TextLibraryTrace, OfAPathTooLongTellsItOnceAndIsEmptyFromThenOn)
{
    const std::wstring name = WriteDeviceWithLibraryOf(LongestPath + 1);
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using AssemblyPath = ", L"x\\de" + name),
                            Warning("Path too long: DllPath=", L"x\\de" + name), CanNotLoad("exit", L""),
                            Warning("Backup path too long: DllPath=", L""), CanNotLoad("warning", L"")));
}

TEST_F(TextLibraryTrace, OfAPathOfTheGreatestLengthIsThatOfAnyOther)
{
    const std::wstring name = WriteDeviceWithLibraryOf(LongestPath);
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using AssemblyPath = ", L"x\\de" + name),
                            CanNotLoad("exit", L"x\\de" + name), CanNotLoad("warning", L"x\\en" + name)));
}

TEST_F(TextLibraryTrace, OfAnEnglishPathTooLongNamesTheFirstPath)
{
    const std::wstring name = WriteDeviceWithLibraryOf(LongestPath + 1);
    Load();
    const UserLanguage unknown(L"", library().module()); // so that the first path lacks a folder

    EXPECT_EQ(Ask(nullptr), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfLoad(), ElementsAre(EntryOf(deviceFile()), Info("Using AssemblyPath = ", L"x" + name),
                                           CanNotLoad("exit", L"x" + name),
                                           Warning("Backup path too long: DllPath=", L"x" + name),
                                           CanNotLoad("warning", L"")));
}

TEST_F(TextLibraryTrace, OfAMissingTextTellsItsNumber)
{
    const auto ask = [&](const wchar_t* parameter) {
        length = 20;
        return library().PGSP_LogDeviceGetResourceStringBL(L"X", parameter, L"de", buffer, &length, 1);
    };
    Load();

    EXPECT_EQ(ask(L"Title\\3"), PGSP_ERR_CANT_LOAD_RESOURCE);
    EXPECT_EQ(ask(L"Title\\-1001"), PGSP_ERR_CANT_LOAD_RESOURCE);

    const std::string entry = EntryOf(deviceFile());
    const std::string library = Info("Using ExpandEnvironmentStrings = ", bin() + L"\\de\\Texte.dll");
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(entry, library, "warning: Can not load Resource resourceNumber = 1003", entry,
                            library, "warning: Can not load Resource resourceNumber = -1"));
    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 8522",
                                             "entry: >> LogDevice = X", "exit: << return lRet = 8522"));
}

} // namespace
} // namespace norvepa::test
