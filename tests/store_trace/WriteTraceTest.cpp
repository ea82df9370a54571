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
protected:
    // The lines that a write leaves, at one level or at all of them.
    template <typename Operation>
    [[nodiscard]] static std::vector<std::string> LinesOf(const Operation& operation,
                                                          const std::wstring& level = AllTraceLevels)
    {
        const DebuggerTrace trace(level);
        static_cast<void>(operation());
        return trace.lines();
    }

    // A line's text, whosever it is.
    [[nodiscard]] static std::string TextOf(const std::string& line)
    {
        return line.substr(std::min(line.size(), line.find(": ") + 3));
    }

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

class EveryWriteTrace : public WriteTrace, public testing::WithParamInterface<Write>
{
protected:
    // The texts of a write's lines.
    [[nodiscard]] std::vector<std::string> Texts(const std::wstring& level = AllTraceLevels) const
    {
        std::vector<std::string> texts = LinesOf([this] { return GetParam().call(path().c_str()); }, level);
        for (std::string& text : texts)
        {
            text = TextOf(text);
        }
        return texts;
    }
};

INSTANTIATE_TEST_SUITE_P(, EveryWriteTrace, testing::ValuesIn(EveryWrite()), NameOf);

TEST_P(EveryWriteTrace, TellsAFileThatCannotBeLoadedAtTheEntryLevel)
{
    GivenFile("<a></b>");
    const std::string text = "<< Return PGSP_ERR_CANT_LOAD_XML_FILE (" + ToUtf8(file()) + ") ";

    EXPECT_THAT(Texts(), ElementsAre(text));
    EXPECT_THAT(Texts(L"0x8"), ElementsAre(text));
}

TEST_P(EveryWriteTrace, LeavesAMissingFileToTheSizeGuard)
{
    EXPECT_THAT(Texts(), ElementsAre("Error: FILE_NOT_FOUND : " + ToUtf8(file()) + " "));
}

TEST_P(EveryWriteTrace, TellsAMissingEngineAtTheInformationLevel)
{
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});

    EXPECT_THAT(Texts(), ElementsAre("ERROR : CreateInstance "));
    EXPECT_THAT(Texts(L"0x40"), ElementsAre("ERROR : CreateInstance "));
}

} // namespace
} // namespace norvepa::test
