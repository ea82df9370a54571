#include "Uses.h"
#include "support/Answers.h"
#include "support/DeviceStore.h"
#include "support/Eventually.h"
#include "support/LastingThread.h"
#include "support/NamedEvent.h"
#include "support/ProcessResources.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

class Deinit : public testing::TestWithParam<Use>
{
protected:
    Deinit()
    {
        roots.FillWithSampleStore();
        WriteBoardOf(L"old");
    }
    ~Deinit() override { library.NorvepaBl64x_deinit(); } // a folder that is watched can't be removed

    // The board X, which has this word in a value and in a rule.
    void WriteBoardOf(std::wstring_view state) const
    {
        const XmlContent rule = XmlContent().ParamSection(L"p", XmlContent().Element(L"type", state));
        WriteBytes(roots.board(L"X"), BoardFile(XmlContent()
                                                    .Element(L"Install", XmlContent().Text(L"a", state))
                                                    .Element(L"Constraints", rule)));
    }

    // The first pair of the board's tree.
    [[nodiscard]] std::wstring AskTheTree() const
    {
        return PairOf(
            [&](wchar_t* name, std::uint32_t* nameLength, wchar_t* value, std::uint32_t* valueLength) {
                return library.PGSP_BoardGetEnumValueBL(L"X", 0, name, nameLength, value, valueLength);
            });
    }

    // A word of the memo.
    [[nodiscard]] std::wstring AskTheMemo() const
    {
        return TextOf([&](wchar_t* text, std::uint32_t* length) {
            return library.PGSP_TemplateGetConstraintBL(L"Boards", L"X", L"p", L"type", text, length);
        });
    }

    // How many log names there are.
    [[nodiscard]] std::size_t CountLogNames() const
    {
        std::uint32_t index = 0;
        const auto isThere = [&] {
            OutputBuffer name(300);
            return library.LogNameGetEnumBL(index, name.data(), &name.length) == PGSP_OK;
        };
        while (isThere())
        {
            ++index;
        }
        return index;
    }

    StoreRoots roots;
    const Exports library;
};

TEST_P(Deinit, MayFollowAnyUseManyTimes)
{
    for (int round = 0; round < 10; ++round)
    {
        GetParam().call(library);

        library.NorvepaBl64x_deinit();
        library.NorvepaBl64x_deinit();
    }

    GetParam().call(library);
}

INSTANTIATE_TEST_SUITE_P(EachUse, Deinit, testing::ValuesIn(Uses()),
                         [](const auto& use) { return use.param.name; });

using DeinitTest = Deinit;

TEST_F(DeinitTest, DoesNothingWhenThereIsNothingToDrop)
{
    library.NorvepaBl64x_deinit();
    const ProcessResources before = CountProcessResources();

    for (int i = 0; i < 1000; ++i)
    {
        library.NorvepaBl64x_deinit();
    }

    EXPECT_EQ(CountProcessResources(), before);
}

TEST_F(DeinitTest, GivesBackTheDocumentsAndTheWatch)
{
    static_cast<void>(CountLogNames());
    static_cast<void>(AskTheTree());
    library.NorvepaBl64x_deinit();
    const ProcessResources before = CountProcessResources();
    static_cast<void>(AskTheTree());
    static_cast<void>(CountLogNames());
    EXPECT_NE(CountProcessResources(), before);

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(CountProcessResources(), before);
}

TEST_F(DeinitTest, MakesTheNextQuestionParseTheFileAgainWithTheSameAnswer)
{
    ASSERT_EQ(AskTheTree(), L"a=old");

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(AskTheTree(), L"a=old");
}

TEST_F(DeinitTest, MakesTheNextQuestionSeeTheFileAsItIsThen)
{
    ASSERT_EQ(AskTheTree(), L"a=old");
    WriteBoardOf(L"new");
    ASSERT_EQ(AskTheTree(), L"a=old");

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(AskTheTree(), L"a=new");
}

TEST_F(DeinitTest, LetsGoOfAFileThatIsNoLongerThere)
{
    ASSERT_EQ(AskTheTree(), L"a=old");
    std::filesystem::remove(roots.board(L"X"));
    ASSERT_EQ(AskTheTree(), L"a=old");

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(AskTheTree(), Failed(PGSP_ERR_FILE_NOT_FOUND));
}

TEST_F(DeinitTest, LeavesWhatTheMemoHolds)
{
    ASSERT_EQ(AskTheMemo(), L"old");
    WriteBoardOf(L"new");

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(AskTheMemo(), L"old");
}

TEST_F(DeinitTest, LeavesATransferToItsReader)
{
    constexpr std::uint32_t pieceBytes = 100;
    const auto read = [&](std::uint32_t index) {
        std::string piece(pieceBytes, '\0');
        std::uint32_t length = pieceBytes;
        const std::int32_t result = library.LogDeviceGetXmlBL(
            7, 2, L"Kesselhaus", index, reinterpret_cast<std::uint8_t*>(piece.data()), &length);
        EXPECT_EQ(result, PGSP_ERR_BUFFER_TOO_SHORT);
        return piece;
    };
    static_cast<void>(read(0));
    const std::string second = read(1);
    std::filesystem::remove(roots.logDevice(L"Kesselhaus")); // so that it can only come from memory

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(read(1), second);
}

TEST_F(DeinitTest, LeavesTheRegistrations)
{
    const NamedEvent event;
    ASSERT_EQ(library.RegisterNotification(L"LogNames", L"Leitwarte", event.c_str()), PGSP_OK);

    library.NorvepaBl64x_deinit();

    ASSERT_EQ(library.LogNameSetValueBL(L"Leitwarte", L"Station", L"anders"), PGSP_OK);
    EXPECT_TRUE(event.Await());
    EXPECT_EQ(library.UnRegisterNotification(L"LogNames", L"Leitwarte", event.c_str()), PGSP_OK);
}

TEST_F(DeinitTest, MakesTheNextEnumerationWatchTheFoldersAnew)
{
    const std::size_t before = CountLogNames();
    ASSERT_GT(before, 0U);

    library.NorvepaBl64x_deinit();

    ASSERT_EQ(CountLogNames(), before);
    WriteBytes(roots.logName(L"Presse"), LogNameFile({}));
    EXPECT_TRUE(Eventually([&] { return CountLogNames() == before + 1; }));
}

TEST_F(DeinitTest, MayComeFromAnotherThreadThanTheQuestions)
{
    LastingThread other;
    ASSERT_EQ(AskTheTree(), L"a=old");
    WriteBoardOf(L"new");

    other.Run([&] { library.NorvepaBl64x_deinit(); });

    EXPECT_EQ(AskTheTree(), L"a=new");
}

} // namespace
} // namespace norvepa::test
