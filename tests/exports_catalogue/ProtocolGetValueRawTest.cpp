#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolGetValueRaw : public CatalogueScene
{
protected:
    ProtocolGetValueRaw() { WriteProtocol(L"X", BusProtocol()); }

    [[nodiscard]] std::int32_t Ask(const wchar_t* path, const wchar_t* attribute, OutputBuffer& value) const
    {
        return library.PGSP_ProtocolGetValueRawBL(L"X", path, attribute, value.data(), &value.length);
    }

    const wchar_t* const profile = L"Constraints\\busparam\\3";
    const wchar_t* const subProfile = L"Constraints\\busparam\\3\\baudrate\\9600";
};

TEST_F(ProtocolGetValueRaw, IsTheRootsAttributeWithoutAPath)
{
    EXPECT_EQ(ProtocolValueRaw(L"X", nullptr, L"CP_TYPE"), L"MPI");
    EXPECT_EQ(ProtocolValueRaw(L"X", L"", L"cp_type"), L"MPI");
    EXPECT_EQ(ProtocolValueRaw(L"X", nullptr, L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValueRaw(L"X", nullptr, nullptr), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolGetValueRaw, IsWhatThePathLeadsTo)
{
    EXPECT_EQ(ProtocolValueRaw(L"X", profile, L"slot"), L"103");
    EXPECT_EQ(ProtocolValueRaw(L"X", subProfile, L"slot"), L"9");
    EXPECT_EQ(ProtocolValueRaw(L"X", L"constraints\\BUSPARAM\\3", L"SLOT"), L"103");
}

TEST_F(ProtocolGetValueRaw, WithAPathIsNeverTheRootsAttribute)
{
    EXPECT_EQ(ProtocolValueRaw(L"X", profile, L"CP_TYPE"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolGetValueRaw, IsTheDefaultWithoutAnAttribute)
{
    for (const wchar_t* const attribute : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_EQ(ProtocolValueRaw(L"X", profile, attribute), L"of the profile");
        EXPECT_EQ(ProtocolValueRaw(L"X", subProfile, attribute), L"of the baud rate");
    }
}

TEST_F(ProtocolGetValueRaw, KnowsNoProfileByItsWord)
{
    EXPECT_EQ(ProtocolValueRaw(L"X", L"Constraints\\busparam\\User", L"slot"),
              Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolGetValueRaw, TellsAPathThatLeadsNowhere)
{
    EXPECT_EQ(ProtocolValueRaw(L"X", L"Constraints\\busparam", L"type"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValueRaw(L"X", L"busparam\\3", L"slot"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(ProtocolValueRaw(L"X", L"\\", L"slot"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolGetValueRaw, FillsABufferOfOneCharacterMore)
{
    for (const wchar_t* const path : {static_cast<const wchar_t*>(nullptr), profile})
    {
        const wchar_t* const attribute = path == nullptr ? L"CP_TYPE" : L"slot";
        for (const std::uint32_t capacity : {0U, 3U})
        {
            OutputBuffer value(capacity);

            EXPECT_EQ(Ask(path, attribute, value), PGSP_ERR_BUFFER_TOO_SHORT);

            EXPECT_TRUE(value.isUntouched());
            EXPECT_EQ(value.length, 3U);
        }
        OutputBuffer value(4);

        EXPECT_EQ(Ask(path, attribute, value), PGSP_OK);

        EXPECT_EQ(value.text().size(), 3U);
        EXPECT_EQ(value.length, 3U);
    }
}

} // namespace
} // namespace norvepa::test
