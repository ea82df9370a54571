#include "FileTransferScene.h"

namespace norvepa::test
{
namespace
{

class FileTransferArguments : public FileTransferScene
{
protected:
    FileTransferArguments() { Write("abcdef"); }

    // What a call answers that has to leave its outputs alone, at every index.
    void ExpectRefused(const wchar_t* name, std::int32_t result) const
    {
        for (const std::uint32_t index : {0U, 1U, UINT32_MAX})
        {
            PieceBuffer piece(4);

            EXPECT_EQ(library.LogDeviceGetXmlBL(7, LogDeviceKind, name, index, piece.data(), &piece.length),
                      result);

            EXPECT_TRUE(piece.isUntouched());
        }
    }
};

TEST_F(FileTransferArguments, AreRefusedWithoutAName)
{
    ExpectRefused(nullptr, PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(FileTransferArguments, AreRefusedWithoutABuffer)
{
    std::uint32_t length = 4;

    EXPECT_EQ(library.LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", 0, nullptr, &length),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(length, 4U);
}

TEST_F(FileTransferArguments, AreRefusedWithoutABufferAlsoForNoBytes)
{
    std::uint32_t length = 0;

    EXPECT_EQ(library.LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", 0, nullptr, &length),
              PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(FileTransferArguments, AreRefusedWithoutALength)
{
    PieceBuffer piece(4);

    EXPECT_EQ(library.LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", 0, piece.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(piece.isUntouched());
}

TEST_F(FileTransferArguments, AreRefusedWhenNothingIsLeftOfTheName)
{
    Write("of no name", L"");

    ExpectRefused(L"", PGSP_ERR_INVALID_PARAMETERS);
    ExpectRefused(L"*", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(FileTransferArguments, AreRefusedForANameThatIsTooLong)
{
    ExpectRefused(std::wstring(260, L'n').c_str(), PGSP_ERR_BUFFER_TOO_SHORT);
    ExpectRefused(std::wstring(5000, L'n').c_str(), PGSP_ERR_BUFFER_TOO_SHORT);
    ExpectRefused((L"sub\\" + std::wstring(256, L'n')).c_str(), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(FileTransferArguments, AreRefusedForANameThatIsTooLongInItsEscapedForm)
{
    ExpectRefused((std::wstring(254, L'n') + L"#").c_str(), PGSP_ERR_BUFFER_TOO_SHORT); // which takes six
    ExpectRefused(std::wstring(87, L':').c_str(), PGSP_ERR_BUFFER_TOO_SHORT);           // three each
}

TEST_F(FileTransferArguments, AreTakenForTheLongestName)
{
    ExpectRefused(std::wstring(259, L'n').c_str(), PGSP_ERR_NO_MORE_ITEMS); // no such file
    ExpectRefused((L"*" + std::wstring(259, L'n')).c_str(), PGSP_ERR_NO_MORE_ITEMS);
    ExpectRefused((std::wstring(253, L'n') + L"#").c_str(), PGSP_ERR_NO_MORE_ITEMS);
}

TEST_F(FileTransferArguments, ThatAreRefusedLeaveATransferAlone)
{
    ASSERT_EQ(client.Ask(L"Presse", 0, 4), More("abcd"));

    ExpectRefused(nullptr, PGSP_ERR_INVALID_PARAMETERS);
    ExpectRefused(L"*", PGSP_ERR_INVALID_PARAMETERS);
    ExpectRefused(std::wstring(260, L'n').c_str(), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", 0, nullptr, nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(client.Ask(L"Presse", 1, 4), Last(Terminated("ef")));
}

} // namespace
} // namespace norvepa::test
