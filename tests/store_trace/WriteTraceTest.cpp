#include "DebuggerTrace.h"
#include "store/BrokenEngine.h"
#include "store/EveryWrite.h"
#include "store/WriteScene.h"
#include "support/FreshThread.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// What the writes tell, and at which level.
class WriteTrace : public WriteScene
{
private:
    RedirectedRegistry m_registry;
};

TEST_F(WriteTrace, OfANewParameterTellsItAtTheInformationLevel)
{
    GivenFile(DeviceWith({}));
    const std::string create = TraceLine("NorvXMLSetValue: ", "Parameter was not found .. Create it!");
    const std::string created = TraceLine("NorvXMLSetValue: ", "<< PGSP_OK");

    EXPECT_THAT(LinesOf([&] { return Set(L"LocalSettings", L"a", L"1", L"int"); }),
                ElementsAre(create, created));
    EXPECT_THAT(LinesOf([&] { return Set(L"LocalSettings", L"b", L"1", L"int"); }, L"0x40"),
                ElementsAre(create, created));
    EXPECT_THAT(LinesOf([&] { return Set(L"LocalSettings", L"c", L"1", L"int"); }, L"0xFFFFFFBF"), IsEmpty());
}

TEST_F(WriteTrace, OfAParameterThatIsThereIsSilent)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));

    EXPECT_THAT(LinesOf([&] { return Set(L"LocalSettings", L"a", L"2", L"int"); }), IsEmpty());
    EXPECT_THAT(LinesOf([&] { return Set(L"LocalSettings", L"a", L"2", L"int"); }), IsEmpty());
}

TEST_F(WriteTrace, OfAMissingSectionTellsTheErrorAtTheInformationLevel)
{
    GivenFile(DeviceWith({}));
    const auto set = [&] { return Set(L"Bindings", L"a", L"1", L"int"); };
    const auto lines =
        ElementsAre(TraceLine("NorvXMLSetValue: ", "Parameter was not found .. Create it!"),
                    TraceLine("NorvXMLSetValue: ", "<< return Error: PGSP_ERR_CANT_SET_VALUE"));

    EXPECT_THAT(LinesOf(set), lines);
    EXPECT_THAT(LinesOf(set, L"0x40"), lines);
}

TEST_F(WriteTrace, OfAHeaderValueOrSubdeviceThatIsNotThereTellsTheError)
{
    GivenFile(DeviceWith({}));

    EXPECT_THAT(
        LinesOf([&] { return SetHeader(L"a", L"1"); }, L"0x40"),
        ElementsAre(TraceLine("NorvXMLSetHeaderValue: ", "<< return Error: PGSP_ERR_CANT_SET_VALUE")));
    EXPECT_THAT(
        LinesOf([&] { return SetSubdev(L"A", L"a", L"1", L"int"); }, L"0x40"),
        ElementsAre(TraceLine("NorvXMLSetSubdevValue: ", "<< return Error: PGSP_ERR_CANT_SET_VALUE")));
}

TEST_F(WriteTrace, OfASecondAttemptTellsAMissingEngineOnce)
{
    OnFreshThread([&] {
        const BrokenEngine engine({CO_E_NOTINITIALIZED});
        EXPECT_THAT(LinesOf([&] { return SetHeader(L"a", L"1"); }),
                    ElementsAre(TraceLine("NorvXMLSetHeaderValue: ", "ERROR : CreateInstance")));
    });
}

TEST_F(WriteTrace, OfADeletionBesideTellsTheLeftoversAlone)
{
    WriteBytes(folder() / L"a#25.xml", DeviceWith(XmlContent().Int(L"a", L"1")));
    const std::string twiceEscaped = ToUtf8(folder() / L"a(nmbr)25(temp).xml");

    EXPECT_THAT(
        LinesOf([&] { return NorvXMLDelValue((folder() / L"a%").c_str(), L"LocalSettings", L"a"); }),
        ElementsAre(TraceLine("NorvXMLDeleteFile: ", ">> filePath = " + ToUtf8(folder() / L"a#25(temp).xml")),
                    TraceLine("NorvXMLDeleteFile: ", ">> _wremove = " + twiceEscaped),
                    TraceLine("NorvXMLDeleteFile: ", "PGSP_ERR_CANT_DELETE_FILE")));
}

TEST_F(WriteTrace, OfALinkThatIsSetIsSilent)
{
    GivenFile(LogDeviceFile({}));
    const auto set = [this](const wchar_t* assembly) {
        return [this, assembly] {
            return NorvXMLSetNdi(path().c_str(), L"DescText", assembly, nullptr, nullptr, L"7", 0);
        };
    };

    EXPECT_THAT(LinesOf(set(L"A.dll")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"A.dll")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"B.dll")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"<")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"\x01")), IsEmpty());
}

TEST_F(WriteTrace, OfALinkThatIsRemovedTellsTheLeftoversAlone)
{
    WriteBytes(folder() / L"a#25.xml",
               LogDeviceFile(XmlContent().Element(L"UserInterface64",
                                                  XmlContent().ParameterAssemblyLink({.name = L"Seite"}))));
    const auto remove = [this](const wchar_t* parameter) {
        return [this, parameter] { return NorvXMLDelNdi((folder() / L"a%").c_str(), parameter, 0); };
    };

    EXPECT_THAT(
        LinesOf(remove(L"Seite")),
        ElementsAre(TraceLine("NorvXMLDeleteFile: ", ">> filePath = " + ToUtf8(folder() / L"a%(temp)")),
                    TraceLine("NorvXMLDeleteFile: ", ">> _wremove = " + ToUtf8(folder() / L"a#25(temp).xml")),
                    TraceLine("NorvXMLDeleteFile: ", "PGSP_ERR_CANT_DELETE_FILE")));
    EXPECT_THAT(LinesOf(remove(L"Andere")), IsEmpty());
}

TEST_F(WriteTrace, OfParameterDataIsSilent)
{
    GivenFile(LogDeviceFile({}));
    const auto set = [this](const wchar_t* value) {
        return [this, value] { return NorvXMLSetParameterData(path().c_str(), L"a", value, L"int"); };
    };
    const auto remove = [this] { return NorvXMLDelParameterData(path().c_str(), L"a"); };

    EXPECT_THAT(LinesOf(set(L"1")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"1")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"2")), IsEmpty());
    EXPECT_THAT(LinesOf(set(L"\x01")), IsEmpty());
    EXPECT_THAT(LinesOf(remove), IsEmpty());
    EXPECT_THAT(LinesOf(remove), IsEmpty());
}

// What the writes have in common, each under its own tag.
class EveryWriteTrace : public WriteTrace, public testing::WithParamInterface<Write>
{
protected:
    [[nodiscard]] std::vector<std::string> Lines(const std::wstring& level = AllTraceLevels) const
    {
        return LinesOf([this] { return GetParam().call(path().c_str()); }, level);
    }
};

using TellingWriteTrace = EveryWriteTrace;
using SilentWriteTrace = EveryWriteTrace;

INSTANTIATE_TEST_SUITE_P(, EveryWriteTrace, testing::ValuesIn(EveryWrite()), NameOf);
INSTANTIATE_TEST_SUITE_P(, TellingWriteTrace, testing::ValuesIn(TellingWrites()), NameOf);
INSTANTIATE_TEST_SUITE_P(, SilentWriteTrace, testing::ValuesIn(SilentWrites()), NameOf);

TEST_P(EveryWriteTrace, LeavesAMissingFileToTheSizeGuard)
{
    EXPECT_THAT(Lines(),
                ElementsAre(TraceLine("CheckFileSize: ", "Error: FILE_NOT_FOUND : " + ToUtf8(file()))));
}

TEST_P(TellingWriteTrace, TellsAFileThatCannotBeLoadedAtTheEntryLevel)
{
    GivenFile("<a></b>");
    const std::string line =
        TraceLine(GetParam().tag, "<< Return PGSP_ERR_CANT_LOAD_XML_FILE (" + ToUtf8(file()) + ")");

    EXPECT_THAT(Lines(), ElementsAre(line));
    EXPECT_THAT(Lines(L"0x8"), ElementsAre(line));
}

TEST_P(TellingWriteTrace, TellsAMissingEngineAtTheInformationLevel)
{
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});
    const std::string line = TraceLine(GetParam().tag, "ERROR : CreateInstance");

    EXPECT_THAT(Lines(), ElementsAre(line));
    EXPECT_THAT(Lines(L"0x40"), ElementsAre(line));
}

TEST_P(SilentWriteTrace, TellsNothingOfAFileThatCannotBeLoaded)
{
    GivenFile("<a></b>");

    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_P(SilentWriteTrace, TellsNothingOfAMissingEngine)
{
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});

    EXPECT_THAT(Lines(), IsEmpty());
}

} // namespace
} // namespace norvepa::test
