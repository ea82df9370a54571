#include "frame/ExportFrame.h"

#include <gmock/gmock.h>
#include <new>
#include <stdexcept>

namespace norvepa
{
namespace
{

constexpr char Tag[] = "AnExportBL: ";

TEST(RunExport, AnswersWhatItsBodyAnswers)
{
    EXPECT_EQ(RunExport(Tag, [](const ExportFrame&) { return PGSP_OK; }), 0);
    EXPECT_EQ(RunExport(Tag, [](const ExportFrame&) { return PGSP_ERR_SAME_VALUE; }), 8515);
}

TEST(RunExport, GivesItsBodyTheTagAndTheComponentOfExports)
{
    EXPECT_EQ(RunExport(Tag,
                        [](const ExportFrame& frame) {
                            EXPECT_STREQ(frame.tag, "AnExportBL: ");
                            EXPECT_STREQ(frame.component, " BL");
                            return PGSP_OK;
                        }),
              PGSP_OK);
}

TEST(RunExport, AnswersTheSystemsNumberWhenMemoryRanOut)
{
    EXPECT_EQ(RunExport(Tag, [](const ExportFrame&) -> Result { throw std::bad_alloc(); }), 14);
    EXPECT_EQ(RunExport(Tag, [](const ExportFrame&) -> Result { throw std::bad_array_new_length(); }), 14);
}

TEST(RunExport, AnswersInvalidParametersForAnyOtherException)
{
    EXPECT_EQ(RunExport(Tag, [](const ExportFrame&) -> Result { throw std::length_error("too long"); }), 87);
    EXPECT_EQ(RunExport(Tag, [](const ExportFrame&) -> Result { throw L"a foreign thing"; }), 87);
}

TEST(AnswerOf, PassesOnWhatAnExportAnswers)
{
    EXPECT_EQ(AnswerOf(0), PGSP_OK);
    EXPECT_EQ(AnswerOf(8513), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST(AnswerOf, LetsTheCallerRunOutOfMemoryToo)
{
    EXPECT_THROW(static_cast<void>(AnswerOf(14)), std::bad_alloc);
}

TEST(ResultOf, PassesOnWhatTheBodyAnswers)
{
    EXPECT_EQ(ResultOf([] { return PGSP_ERR_PARAM_NOT_FOUND; }), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST(ResultOf, TakesMemoryThatRanOutForAResult)
{
    EXPECT_EQ(ResultOf([]() -> Result { throw std::bad_alloc(); }), OutOfMemory);
}

TEST(ResultOf, LetsEveryOtherExceptionThrough)
{
    EXPECT_THROW(static_cast<void>(ResultOf([]() -> Result { throw std::length_error(""); })),
                 std::length_error);
}

TEST(ExportFrame, LeavesByItsExitsWithTheirCodes)
{
    const ExportFrame frame{Tag};

    EXPECT_EQ(frame.Return(PGSP_OK), 0);
    EXPECT_EQ(frame.Return(PGSP_ERR_PARAM_NOT_FOUND), 8513);
    EXPECT_EQ(frame.InvalidParameters(), 87);
    EXPECT_EQ(frame.FolderNotFound("Can not get ProgramData Path"), 8517);
}

} // namespace
} // namespace norvepa
