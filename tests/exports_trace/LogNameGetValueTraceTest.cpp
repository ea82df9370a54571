#include "exports_trace/LogNameTraceScene.h"
#include "support/LogNameCalls.h"
#include "support/ShellFolders.h"
#include "support/TraceLines.h"

#include <windows.h>

#include <memory>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

std::string ExportLine(std::string_view message)
{
    return TraceLine("LogNameGetValueBL: ", message);
}

class LogNameGetValueTrace : public testing::Test
{
protected:
    LogNameGetValueTrace()
    {
        WriteBytes(roots.logName(L"Pumpe"), LogNameFile(XmlContent().Text(L"Station", L"Halle 2")));
    }

    // Tracing has to be on when the library is loaded.
    void Load(const std::wstring& level = AllTraceLevels)
    {
        lines = std::make_unique<TraceLines>(level);
        library = std::make_unique<Exports>();
    }

    [[nodiscard]] std::int32_t Read(const wchar_t* logName, const wchar_t* parameter)
    {
        return library->LogNameGetValueBL(logName, parameter, value, &length);
    }

    void TakeDataFolderAway() const
    {
        DeleteMachineKey(LocationsKey);
        SetCommonApplicationData(roots.folder().path());
    }

    StoreRoots roots;
    std::unique_ptr<TraceLines> lines;
    std::unique_ptr<Exports> library;
    wchar_t value[20] = L"before";
    std::uint32_t length = 20;
};

TEST_F(LogNameGetValueTrace, OfASuccessTellsArgumentsValueAndResult)
{
    Load();

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_OK);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = Pumpe, Parameter = Station"),
                            ExportLine("Value = Halle 2, dwValue = 7"), ExportLine("<< return lRet = 0")));
}

TEST_F(LogNameGetValueTrace, TellsTheParameterAsItCame)
{
    WriteBytes(roots.logName(L"Presse"), LogNameFile(XmlContent().Text(L"(default)", L"oben")));
    Load();

    EXPECT_EQ(Read(L"Presse", nullptr), PGSP_OK);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = Presse, Parameter = "),
                            ExportLine("Value = oben, dwValue = 4"), ExportLine("<< return lRet = 0")));
}

TEST_F(LogNameGetValueTrace, IsInTheMachinesCodePage)
{
    const std::wstring name = L"F\u00F6rderband";
    WriteBytes(roots.logName(name), LogNameFile(XmlContent().Text(L"Gr\u00F6\u00DFe", L"\u00DCber")));
    Load();

    EXPECT_EQ(Read(name.c_str(), L"Gr\u00F6\u00DFe"), PGSP_OK);

    EXPECT_THAT(lines->read(), ElementsAre(ExportLine(">> LogName = " + ToAnsi(name) +
                                                      ", Parameter = " + ToAnsi(L"Gr\u00F6\u00DFe")),
                                           ExportLine("Value = " + ToAnsi(L"\u00DCber") + ", dwValue = 4"),
                                           ExportLine("<< return lRet = 0")));
}

TEST_F(LogNameGetValueTrace, TakesPercentSignsOfNamesForText)
{
    WriteBytes(roots.logName(L"100#25s"), LogNameFile(XmlContent().Text(L"%d", L"%n")));
    Load();

    EXPECT_EQ(Read(L"100%s", L"%d"), PGSP_OK);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = 100%s, Parameter = %d"),
                            ExportLine("Value = %n, dwValue = 2"), ExportLine("<< return lRet = 0")));
}

TEST_F(LogNameGetValueTrace, OfABadArgumentStillBeginsWithTheArguments)
{
    Load();

    EXPECT_EQ(Read(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Read(L"", L"Station"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library->LogNameGetValueBL(L"Pumpe", L"Station", nullptr, &length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library->LogNameGetValueBL(L"Pumpe", L"Station", value, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    const std::string refusal = ExportLine("<< return PGSP_ERR_INVALID_PARAMETERS");
    const std::string entry = ExportLine(">> LogName = Pumpe, Parameter = Station");
    EXPECT_THAT(lines->read(), ElementsAre(ExportLine(">> LogName = , Parameter = "), refusal,
                                           ExportLine(">> LogName = , Parameter = Station"), refusal, entry,
                                           refusal, entry, refusal));
}

TEST_F(LogNameGetValueTrace, OfABadArgumentKnowsNoFolder)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Read(L"", L"Station"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(lines->read(), ElementsAre(ExportLine(">> LogName = , Parameter = Station"),
                                           ExportLine("<< return PGSP_ERR_INVALID_PARAMETERS")));
}

TEST_F(LogNameGetValueTrace, OfAMissingFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = Pumpe, Parameter = Station"),
                            ExportLine("Can not get ProgramData Path"), ExportLine("<< return lRet = 8517")));
}

TEST_F(LogNameGetValueTrace, OfAMissingFileTellsTheSystemsCodeAndThenItsOwn)
{
    Load();

    EXPECT_EQ(Read(L"gone", L"Station"), PGSP_ERR_FILE_NOT_FOUND);

    const auto code = std::to_string(static_cast<int>(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND)));
    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = gone, Parameter = Station"),
                            TraceLine("NorvXMLGetValue: ", "<< return lRet = " + code),
                            ExportLine("Value = before, dwValue = 20"), ExportLine("<< return lRet = 8503")));
}

TEST_F(LogNameGetValueTrace, OfAMissingParameterTellsTheBufferAsItIs)
{
    Load();

    EXPECT_EQ(Read(L"Pumpe", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = Pumpe, Parameter = gone"),
                            ExportLine("Value = before, dwValue = 20"), ExportLine("<< return lRet = 8513")));
}

TEST_F(LogNameGetValueTrace, OfAShortBufferTellsTheLengthNeeded)
{
    Load();
    length = 7;

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = Pumpe, Parameter = Station"),
                            ExportLine("Value = before, dwValue = 7"), ExportLine("<< return lRet = 234")));
}

TEST_F(LogNameGetValueTrace, ReadsNoFurtherThanTheBufferGoes)
{
    Load();
    length = 3;

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(lines->read(),
                ElementsAre(ExportLine(">> LogName = Pumpe, Parameter = Station"),
                            ExportLine("Value = bef, dwValue = 7"), ExportLine("<< return lRet = 234")));
}

TEST_F(LogNameGetValueTrace, OfALongPathTellsTheLengthAsItWas)
{
    Load();
    const std::wstring name(200, L'n');

    EXPECT_EQ(Read((name + name).c_str(), L"Station"), PGSP_ERR_BUFFER_TOO_SHORT);

    const std::vector<std::string> traced = lines->read();
    ASSERT_EQ(traced.size(), 3U);
    EXPECT_EQ(traced[1], ExportLine("Value = before, dwValue = 20"));
    EXPECT_EQ(traced[2], ExportLine("<< return lRet = 234"));
}

TEST_F(LogNameGetValueTrace, UsesALevelForEachOfItsThreeKinds)
{
    Load(L"0x88");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_OK);

    EXPECT_THAT(lines->read(), ElementsAre(ExportLine(">> LogName = Pumpe, Parameter = Station"),
                                           ExportLine("<< return lRet = 0")));
}

TEST_F(LogNameGetValueTrace, UsesTheInformationLevelForTheValue)
{
    Load(L"64");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_OK);

    EXPECT_THAT(lines->read(), ElementsAre(ExportLine("Value = Halle 2, dwValue = 7")));
}

TEST_F(LogNameGetValueTrace, IsSilentUnlessSwitchedOn)
{
    Load(L"0");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_OK);

    EXPECT_THAT(lines->read(), IsEmpty());
}

} // namespace
} // namespace norvepa::test
