#include "store/CommitScene.h"

#include <stdexcept>

namespace norvepa::test
{
namespace
{

class CommitDeletionTest : public CommitScene
{
protected:
    CommitDeletionTest() { WriteBytes(real(), "real"); }

    template <typename Deletion>
    [[nodiscard]] Result Run(const Deletion& deletion, const wchar_t* fileName = L"Name") const
    {
        return CommitDeletion(folder(), fileName, LogNameSchema, deletion);
    }

    void ExpectUncommitted() const
    {
        EXPECT_EQ(ReadBytes(real()), "real");
        EXPECT_FALSE(Exists(temporary()));
    }
};

TEST_F(CommitDeletionTest, WhatTheDeletionLeavesTakesThePlace)
{
    const Result result = Run([this](const wchar_t*) {
        WriteBytes(temporary(), ValidLogName());
        return PGSP_OK;
    });

    EXPECT_EQ(result, PGSP_OK);
    EXPECT_EQ(ReadBytes(real()), ValidLogName());
    EXPECT_FALSE(Exists(temporary()));
}

TEST_F(CommitDeletionTest, TheDeletionIsGivenTheFilesPathAsTheStoreTakesIt)
{
    std::wstring given;

    const Result result = Run(
        [&](const wchar_t* filePath) {
            given = filePath;
            return PGSP_ERR_PARAM_NOT_FOUND;
        },
        L"50% #1");

    EXPECT_EQ(result, PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(given, folder() + L"\\50% #1");
}

TEST_F(CommitDeletionTest, ADeletionThatFailsIsNotCommitted)
{
    const Result result = Run([this](const wchar_t*) {
        WriteBytes(temporary(), ValidLogName());
        return PGSP_ERR_PARAM_NOT_FOUND;
    });

    EXPECT_EQ(result, PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(ReadBytes(real()), "real");
}

TEST_F(CommitDeletionTest, WhatIsNotValidIsNotCommitted)
{
    const Result result = Run([this](const wchar_t*) {
        WriteBytes(temporary(), InvalidLogName());
        return PGSP_OK;
    });

    EXPECT_EQ(result, PGSP_ERR_INVALID_FILE);
    ExpectUncommitted();
}

TEST_F(CommitDeletionTest, NothingStaysWhenAnExceptionLeavesTheDeletion)
{
    const auto fail = [this] {
        static_cast<void>(Run([this](const wchar_t*) -> Result {
            WriteBytes(temporary(), ValidLogName());
            throw std::runtime_error("half-way");
        }));
    };

    EXPECT_THROW(fail(), std::runtime_error);

    ExpectUncommitted();
}

TEST_F(CommitDeletionTest, APathThatIsTooLongIsNotHandedOn)
{
    bool called = false;
    const std::wstring name(260, L'x');

    const Result result = Run(
        [&](const wchar_t*) {
            called = true;
            return PGSP_OK;
        },
        name.c_str());

    EXPECT_EQ(result, PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_FALSE(called);
}

TEST_F(CommitDeletionTest, OfALinkRemovesItForGood)
{
    const auto device = [](const XmlContent& links) {
        return LogDeviceFile(XmlContent()
                                 .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
                                 .Element(L"UserInterface", links));
    };
    const std::wstring file = folder() + L"\\Presse(nmbr)3.xml";
    WriteBytes(file, device(XmlContent().ParameterAssemblyLink({.name = L"Seite", .function = L"F"})));

    const Result result = CommitDeletion(folder(), L"Presse#3", LogDeviceSchema, [](const wchar_t* filePath) {
        return NorvXMLDelNdi(filePath, L"Seite", 1);
    });

    EXPECT_EQ(result, PGSP_OK);
    EXPECT_EQ(MeaningOfFile(file), MeaningOf(device({})));
    EXPECT_THAT(FileNames(folder()), testing::ElementsAre(L"Name.xml", L"Presse(nmbr)3.xml"));
}

} // namespace
} // namespace norvepa::test
