#include "frame/ExportFrame.h"
#include "support/StoreRoots.h"
#include "support/TraceLines.h"
#include "trace/Norvotrc.h"

#include <cstdio>
#include <gmock/gmock.h>
#include <new>
#include <optional>
#include <stdexcept>

namespace norvepa
{
namespace
{

using test::AllTraceLevels;
using test::TraceLine;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char Tag[] = "AnExportBL: ";

class ExportFrameTrace : public testing::Test
{
protected:
    ~ExportFrameTrace() override
    {
        test::DeleteMachineKey(test::TraceKey);
        TraceInit(nullptr, "norvepaBl64x");
    }

    void Trace(const std::wstring& level, const std::wstring& format = L"TEXT")
    {
        m_lines.emplace(level, format);
        TraceInit(nullptr, "norvepaBl64x");
    }

    [[nodiscard]] std::vector<std::string> Lines() const { return m_lines->read(); }

    // How the format "LONG" tells a line of this file.
    [[nodiscard]] static std::string PlaceAt(unsigned line)
    {
        char place[32] = "";
        std::snprintf(place, sizeof place, " ExportFrameT,%05u ", line);
        return place;
    }

    const ExportFrame frame{Tag};

private:
    test::RedirectedRegistry m_registry;
    std::optional<test::TraceLines> m_lines;
};

TEST_F(ExportFrameTrace, TellsTheResultOfAPlainReturn)
{
    Trace(AllTraceLevels);

    static_cast<void>(frame.Return(PGSP_OK));
    static_cast<void>(frame.Return(PGSP_ERR_PARAM_NOT_FOUND));

    EXPECT_THAT(Lines(),
                ElementsAre(TraceLine(Tag, "<< return lRet = 0"), TraceLine(Tag, "<< return lRet = 8513")));
}

TEST_F(ExportFrameTrace, TellsInvalidParametersByTheirWord)
{
    Trace(AllTraceLevels);

    static_cast<void>(frame.InvalidParameters());

    EXPECT_THAT(Lines(), ElementsAre(TraceLine(Tag, "<< return PGSP_ERR_INVALID_PARAMETERS")));
}

TEST_F(ExportFrameTrace, TellsTheFolderAheadOfTheReturn)
{
    Trace(AllTraceLevels);

    static_cast<void>(frame.FolderNotFound("Can not get 100% of it"));

    EXPECT_THAT(Lines(), ElementsAre(TraceLine(Tag, "Can not get 100% of it"),
                                     TraceLine(Tag, "<< return lRet = 8517")));
}

TEST_F(ExportFrameTrace, TellsReturnsAtTheExitLevelAndNoOther)
{
    Trace(L"0x80");
    static_cast<void>(frame.Return(PGSP_OK));
    static_cast<void>(frame.InvalidParameters());
    static_cast<void>(frame.FolderNotFound("Can not get ProgramData Path"));

    EXPECT_THAT(Lines(), ElementsAre(TraceLine(Tag, "<< return lRet = 0"),
                                     TraceLine(Tag, "<< return PGSP_ERR_INVALID_PARAMETERS"),
                                     TraceLine(Tag, "<< return lRet = 8517")));
}

TEST_F(ExportFrameTrace, TellsTheFolderAtTheInformationLevel)
{
    Trace(L"0x40");

    static_cast<void>(frame.FolderNotFound("Can not get ProgramData Path"));

    EXPECT_THAT(Lines(), ElementsAre(TraceLine(Tag, "Can not get ProgramData Path")));
}

TEST_F(ExportFrameTrace, NamesTheComponentAndTheLevelInTheLongerFormats)
{
    Trace(AllTraceLevels, L"SHORT");

    static_cast<void>(frame.InvalidParameters());

    EXPECT_THAT(Lines(),
                ElementsAre("S NvEPBL64 FE  BL  0  0000 AnExportBL:  << return PGSP_ERR_INVALID_PARAMETERS"));
}

TEST_F(ExportFrameTrace, NamesThePlaceWhereEachExitWasTaken)
{
    Trace(L"0x80", L"LONG");
    const unsigned lineAhead = __LINE__;
    static_cast<void>(frame.Return(PGSP_OK));
    static_cast<void>(frame.Ok());
    static_cast<void>(frame.InvalidParameters());
    static_cast<void>(frame.BufferTooShort());
    static_cast<void>(frame.FolderNotFound("Can not get ProgramData Path"));

    EXPECT_THAT(Lines(), ElementsAre(HasSubstr(PlaceAt(lineAhead + 1)), HasSubstr(PlaceAt(lineAhead + 2)),
                                     HasSubstr(PlaceAt(lineAhead + 3)), HasSubstr(PlaceAt(lineAhead + 4)),
                                     HasSubstr(PlaceAt(lineAhead + 5))));
}

TEST_F(ExportFrameTrace, NamesThePlaceOfTheExportForWhatEscapesFromIt)
{
    Trace(L"0x10", L"LONG");
    const unsigned lineAhead = __LINE__;
    static_cast<void>(RunExport(Tag, [](const ExportFrame&) -> Result { throw std::bad_alloc(); }));

    EXPECT_THAT(Lines(), ElementsAre(HasSubstr(PlaceAt(lineAhead + 1))));
}

TEST_F(ExportFrameTrace, WarnsOfWhatEscapesFromABody)
{
    Trace(L"0x10");

    static_cast<void>(RunExport(Tag, [](const ExportFrame&) -> Result { throw std::bad_alloc(); }));
    static_cast<void>(
        RunExport(Tag, [](const ExportFrame&) -> Result { throw std::length_error("too long"); }));
    static_cast<void>(RunExport(Tag, [](const ExportFrame&) -> Result { throw 42; }));

    EXPECT_THAT(Lines(),
                ElementsAre(StartsWith("AnExportBL:  Error: "),
                            testing::AllOf(StartsWith("AnExportBL:  Error: "), HasSubstr("too long")),
                            StartsWith("AnExportBL:  Error: ")));
}

TEST_F(ExportFrameTrace, WarnsAtNoOtherLevel)
{
    Trace(L"0xFFFFFFEF");

    static_cast<void>(RunExport(Tag, [](const ExportFrame&) -> Result { throw std::bad_alloc(); }));
    static_cast<void>(
        RunExport(Tag, [](const ExportFrame&) -> Result { throw std::length_error("too long"); }));
    static_cast<void>(RunExport(Tag, [](const ExportFrame&) -> Result { throw 42; }));

    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(ExportFrameTrace, IsSilentWhereABodyOnlyAnswers)
{
    Trace(AllTraceLevels);

    static_cast<void>(RunExport(Tag, [](const ExportFrame&) { return PGSP_OK; }));

    EXPECT_THAT(Lines(), IsEmpty());
}

} // namespace
} // namespace norvepa
