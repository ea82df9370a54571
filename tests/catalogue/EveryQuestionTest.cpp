#include "catalogue/EveryQuestion.h"

#include "catalogue/CatalogueScene.h"
#include "support/FreshThread.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

// What all queries have in common.
class EveryQuestionTest : public CatalogueScene, public testing::WithParamInterface<Question>
{
protected:
    [[nodiscard]] static Result Ask(const std::wstring& path, const wchar_t* answer = L"yes")
    {
        return GetParam().ask(path.c_str(), answer);
    }
};

INSTANTIATE_TEST_SUITE_P(, EveryQuestionTest, testing::ValuesIn(EveryQuestion()), NameOf);

TEST_P(EveryQuestionTest, IsAnsweredByTheFileThatHoldsIt)
{
    EXPECT_EQ(Ask(File(FileAnswering(L"yes"))), PGSP_OK);
}

TEST_P(EveryQuestionTest, HasACodeForAFileThatDoesNotHoldIt)
{
    EXPECT_EQ(Ask(File(SilentFile())), GetParam().absent);
}

TEST_P(EveryQuestionTest, RefusesAPathThatIsNullOrEmpty)
{
    EXPECT_EQ(GetParam().ask(nullptr, L"yes"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetParam().ask(L"", L"yes"), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_P(EveryQuestionTest, HasACodeForAFileThatIsNotThere)
{
    EXPECT_EQ(Ask(folder() / L"missing"), GetParam().missing);
    EXPECT_EQ(Ask(folder() / L"missing folder\\file"), GetParam().missing);
}

TEST_P(EveryQuestionTest, FindsAFileThatCameLater)
{
    const std::wstring path = folder() / L"file";
    ASSERT_EQ(Ask(path), GetParam().missing);

    EXPECT_EQ(Ask(File(FileAnswering(L"yes"))), PGSP_OK);
}

TEST_P(EveryQuestionTest, LeavesTheFileAsItIsAndFree)
{
    const std::string document = FileAnswering(L"yes");
    const std::wstring path = File(document);
    ASSERT_EQ(Ask(path), PGSP_OK);

    const HANDLE alone = CreateFileW((path + L".xml").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                     OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE);
    CloseHandle(alone);

    EXPECT_EQ(ReadBytes(path + L".xml"), document);
    EXPECT_EQ(FileNames(folder().path()), std::vector<std::wstring>{L"file.xml"});
}

TEST_P(EveryQuestionTest, ComparesNamesWithoutRegardToCase)
{
    std::string document = FileAnswering(L"yes");
    for (const std::string_view name : {"\"p\"", "\"v\"", "\"sp\"", "\"sv\"", "\"dp\"", ">n<"})
    {
        for (std::size_t at = document.find(name); at != std::string::npos; at = document.find(name, at + 1))
        {
            CharUpperBuffA(document.data() + at, static_cast<DWORD>(name.size()));
        }
    }
    ASSERT_NE(document, FileAnswering(L"yes"));

    EXPECT_EQ(Ask(File(document)), PGSP_OK);
}

// On threads without COM.
class EveryQuestionWithoutCom : public EveryQuestionTest
{
};

INSTANTIATE_TEST_SUITE_P(, EveryQuestionWithoutCom, testing::ValuesIn(EveryQuestion()), NameOf);

TEST_P(EveryQuestionWithoutCom, IsAnsweredUnlessItNeedsADocument)
{
    const bool needsCom = GetParam().sight == Sight::NowAsDocument;
    const std::wstring path = File(FileAnswering(L"yes"));

    OnFreshThread([&] {
        EXPECT_EQ(Ask(path), needsCom ? PGSP_ERR_CANT_CREATE_XML_ENGINE : PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

} // namespace
} // namespace norvepa::test
