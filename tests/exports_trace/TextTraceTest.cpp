#include "CatalogueTraceScene.h"
#include "support/TextLibrary.h"
#include "support/UserLanguage.h"

#include <windows.h>

#include <initializer_list>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr std::size_t LongestPath = 260;    // of a library's file, in characters
constexpr std::size_t LongestMessage = 256; // of a trace

class TextTrace : public CatalogueTraceScene
{
protected:
    TextTrace()
    {
        WriteBytes(bin() + L"\\de\\Texte.dll", TextLibrary().Text(1000, L"abc").file());
        WriteBytes(bin() + L"\\en\\Texte.dll", TextLibrary().Text(1000, L"def").file());
        WriteDevice(L"");
    }

    ~TextTrace() override
    {
        SetEnvironmentVariableW(L"NORV_TEST_TEXTS", nullptr);
        SetEnvironmentVariableW(L"NORV_TEST_LONG", nullptr);
    }

    [[nodiscard]] std::wstring bin() const { return roots.program() + L"\\bin"; }
    [[nodiscard]] std::wstring deviceFile() const { return roots.data() + L"\\data\\LogDevices\\X"; }

    [[nodiscard]] static XmlContent Links(std::wstring_view path, std::wstring_view assembly = L"Texte.dll",
                                          std::wstring_view resourceId = L"1000")
    {
        return XmlContent().Element(
            L"UserInterface",
            XmlContent().Resource(
                {.name = L"Title", .assembly = assembly, .path = path, .resourceId = resourceId}));
    }

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

    // The text of a log device, and of a template. Each call offers the whole buffer.
    [[nodiscard]] std::int32_t Ask(const wchar_t* language = L"de", const wchar_t* device = L"X")
    {
        length = 20;
        return library().PGSP_LogDeviceGetResourceStringBL(device, L"Title", language, buffer, &length, 1);
    }
    [[nodiscard]] std::int32_t AskTemplate(const wchar_t* folder, const wchar_t* name)
    {
        length = 20;
        return library().PGSP_TemplateGetResourceStringBL(folder, name, L"Title", L"de", buffer, &length, 1);
    }

    [[nodiscard]] std::vector<std::string> LinesOfLoad() const { return LinesOf("PGSP_LoadResourceString"); }
    [[nodiscard]] std::vector<std::string> LinesOfDevice() const
    {
        return LinesOf("PGSP_LogDeviceGetResourceStringBL");
    }
    [[nodiscard]] std::vector<std::string> LinesOfTemplate() const
    {
        return LinesOf("PGSP_TemplateGetResourceStringBL");
    }
};

// A line as it is told by LinesOf: "level: message".
std::string Line(std::string_view level, const std::string& message)
{
    return std::string(level) + ": " + message.substr(0, LongestMessage);
}

std::string Info(const std::string& text, const std::wstring& path)
{
    return Line("information", text + ToAnsi(path));
}

std::string Warning(const std::string& text, const std::wstring& path)
{
    return Line("warning", text + ToAnsi(path));
}

std::string EntryOf(const std::wstring& file)
{
    return Line("entry", ">> XmlFile = " + ToAnsi(file));
}

// The line of a library that can't be loaded, with what the system has to say of it.
std::string CanNotLoad(std::string_view level, const std::wstring& path)
{
    HMODULE const loaded = LoadLibraryExW(
        path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE | LOAD_LIBRARY_AS_DATAFILE_EXCLUSIVE);
    const DWORD error = GetLastError();
    EXPECT_EQ(loaded, nullptr);
    return Line(level, "Can not load DLL: DllPath=" + ToAnsi(path) + ", " + std::to_string(error));
}

TEST_F(TextTrace, TellsTheFileTheLibraryAndTheResult)
{
    Load();

    EXPECT_EQ(Ask(L"DE"), PGSP_OK);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()),
                            Info("Using ExpandEnvironmentStrings = ", bin() + L"\\de\\Texte.dll"),
                            "exit: << return lRet = 0"));
}

TEST_F(TextTrace, TellsATextThatDoesNotFit)
{
    Load();
    length = 3;

    EXPECT_EQ(library().PGSP_LogDeviceGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(LinesOfDevice().back(), "exit: << return lRet = 234");
    EXPECT_EQ(LinesOfLoad().back(), "exit: << return lRet = 234");
}

TEST_F(TextTrace, TellsWhatIsAskedInTheWordsOfEachExport)
{
    WriteBytes(roots.logName(L"X"), XmlFile(L"LogName", {}, Links(L"")));
    WriteBytes(roots.board(L"Y"), BoardFile(Links(L"")));
    Load();

    EXPECT_EQ(library().PGSP_LogNameGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1), PGSP_OK);
    length = 20;
    EXPECT_EQ(library().PGSP_BoardGetResourceStringBL(L"*Y", L"Title", L"de", buffer, &length, 1), PGSP_OK);
    EXPECT_EQ(AskTemplate(L"boards", L"*Y"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogNameGetResourceStringBL"),
                ElementsAre("entry: >> LogName = X", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("PGSP_BoardGetResourceStringBL"),
                ElementsAre("entry: >> Board = *Y", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOfTemplate(),
                ElementsAre("entry: >> FolderName = boards, TemplateName = *Y", "exit: << return lRet = 0"));
    const std::vector<std::string> lines = LinesOfLoad();
    EXPECT_THAT(lines, testing::IsSupersetOf(
                           {EntryOf(roots.data() + L"\\data\\LogNames\\X"),
                            EntryOf(roots.program() + L"\\meta\\Boards\\Automation-OnlineAccess-BT-Y"),
                            EntryOf(roots.program() + L"\\meta\\boards\\Automation-OnlineAccess-BT-Y")}));
}

TEST_F(TextTrace, OfAMissingFolderNamesIt)
{
    TakeDataFolderAway();
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_LogNameGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1), 8517);
    EXPECT_EQ(library().PGSP_BoardGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1), 8517);
    EXPECT_EQ(AskTemplate(L"Boards", L"X"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", NoFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_LogNameGetResourceStringBL"),
                ElementsAre("entry: >> LogName = X", NoFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_BoardGetResourceStringBL"),
                ElementsAre("entry: >> Board = X", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOfTemplate(), ElementsAre("entry: >> FolderName = Boards, TemplateName = X",
                                               NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOfLoad(), testing::IsEmpty());
}

TEST_F(TextTrace, OfTextsWithoutTheProgramFolderNamesItInOtherWords)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", FolderNotFound));
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), "information: Can not get ProgramFile Path"));
}

TEST_F(TextTrace, OfALinkThatIsNotThereEndsInTheExport)
{
    WriteBytes(roots.logDevice(L"Y"), LogDeviceFile({}));
    Load();

    EXPECT_EQ(Ask(L"de", L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Ask(L"de", L"Y"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = gone", "exit: << return lRet = 8508",
                                             "entry: >> LogDevice = Y", "exit: << return lRet = 8513"));
    EXPECT_THAT(LinesOfLoad(), ElementsAre(EntryOf(roots.data() + L"\\data\\LogDevices\\gone"),
                                           EntryOf(roots.data() + L"\\data\\LogDevices\\Y")));
}

TEST_F(TextTrace, OfALibraryByPathTellsTheWay)
{
    const std::wstring elsewhere = roots.folder() / L"else";
    WriteBytes(elsewhere + L"\\de\\Texte.dll", TextLibrary().Text(1000, L"ghi").file());
    SetEnvironmentVariableW(L"NORV_TEST_TEXTS", elsewhere.c_str());
    SetEnvironmentVariableW(L"NORV_TEST_LONG", std::wstring(LongestPath, L'x').c_str());
    const std::string inBin = ToAnsi(bin() + L"\\de\\Texte.dll");
    const std::string there = ToAnsi(elsewhere + L"\\de\\Texte.dll");
    Load();

    WriteDevice(L"%commonpath%\\%NORV_TEST_TEXTS%");
    EXPECT_EQ(Ask(), PGSP_OK);
    WriteDevice(L"%NORV_TEST_TEXTS%");
    EXPECT_EQ(Ask(), PGSP_OK);
    WriteDevice(L"%NORV_TEST_LONG%");
    EXPECT_EQ(Ask(), PGSP_OK);
    WriteDevice(elsewhere);
    EXPECT_EQ(Ask(), PGSP_OK);

    const std::string entry = EntryOf(deviceFile());
    const std::string exit = "exit: << return lRet = 0";
    EXPECT_THAT(
        LinesOfLoad(),
        ElementsAreArray(
            {entry, "information: Using ExpandEnvironmentStrings = " + inBin, exit, //
             entry, std::string("information: Search for ExpandEnvironmentStrings = %NORV_TEST_TEXTS%"),
             "information: Using ExpandEnvironmentStrings = " + there, exit, //
             entry, std::string("information: Search for ExpandEnvironmentStrings = %NORV_TEST_LONG%"),
             "information: Using std-path = " + inBin, exit, //
             entry, "information: Using AssemblyPath = " + there, exit}));
}

TEST_F(TextTrace, OfAMissingLanguageTellsTheFirstLibraryAlone)
{
    const std::wstring french = bin() + L"\\fr\\Texte.dll";
    Load();

    EXPECT_EQ(Ask(L"FR"), PGSP_OK);

    EXPECT_STREQ(buffer, L"def");
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using ExpandEnvironmentStrings = ", french),
                            CanNotLoad("exit", french), "exit: << return lRet = 0"));
}

TEST_F(TextTrace, OfNoLibraryTellsBoth)
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

TEST_F(TextTrace, OfANameWithABackslashTellsItAndTwoFailures)
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

TEST_F(TextTrace, OfAPathTooLongTellsItOnceAndIsEmptyFromThenOn)
{
    const std::wstring name = WriteDeviceWithLibraryOf(LongestPath + 1);
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using AssemblyPath = ", L"x\\de" + name),
                            Warning("Path too long: DllPath=", L"x\\de" + name), CanNotLoad("exit", L""),
                            Warning("Backup path too long: DllPath=", L""), CanNotLoad("warning", L"")));
}

TEST_F(TextTrace, OfAPathOfTheGreatestLengthIsThatOfAnyOther)
{
    const std::wstring name = WriteDeviceWithLibraryOf(LongestPath);
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_CANT_LOAD_DLL);

    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), Info("Using AssemblyPath = ", L"x\\de" + name),
                            CanNotLoad("exit", L"x\\de" + name), CanNotLoad("warning", L"x\\en" + name)));
}

TEST_F(TextTrace, OfAnEnglishPathTooLongNamesTheFirstPath)
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

TEST_F(TextTrace, OfAMissingTextTellsItsNumber)
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

TEST_F(TextTrace, OfAMissingOutputEndsInTheExport)
{
    Load();

    EXPECT_EQ(library().PGSP_LogDeviceGetResourceStringBL(L"X", L"Title", L"de", buffer, nullptr, 1),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 87"));
    EXPECT_EQ(LinesOfLoad().size(), 2U);
}

TEST_F(TextTrace, OfATemplateWithoutAFolderOrANameIsARefusal)
{
    Load();

    EXPECT_EQ(AskTemplate(nullptr, L"X"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(AskTemplate(L"Boards", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOfTemplate(), ElementsAre("entry: >> FolderName = , TemplateName = X", Refusal,
                                               "entry: >> FolderName = Boards, TemplateName = ", Refusal));
}

TEST_F(TextTrace, OfATemplateWhoseNameCanNotBeEscapedHasNoExit)
{
    const std::wstring name(LongestPath, L'n');
    Load();

    EXPECT_EQ(AskTemplate(L"DefaultLogDevices", name.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(
        LinesOfTemplate(),
        ElementsAre(Line("entry", ">> FolderName = DefaultLogDevices, TemplateName = " + ToAnsi(name))));
    EXPECT_THAT(LinesOfLoad(), testing::IsEmpty());
}

TEST_F(TextTrace, OfATemplateWhosePathIsTooLongHasOne)
{
    const std::wstring name(LongestPath - 1, L'n');
    Load();

    EXPECT_EQ(AskTemplate(L"DefaultLogDevices", name.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(LinesOfTemplate().size(), 2U);
    EXPECT_EQ(LinesOfTemplate().back(), "exit: << return lRet = 234");
    EXPECT_EQ(LinesOfLoad().size(), 1U);
}

} // namespace
} // namespace norvepa::test
