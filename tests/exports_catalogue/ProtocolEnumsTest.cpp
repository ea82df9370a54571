#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolEnums : public CatalogueScene
{
protected:
    ProtocolEnums() { WriteProtocol(L"X", BusProtocol()); }
};

TEST_F(ProtocolEnums, GiveTheTextsOfTheBusProfiles)
{
    EXPECT_EQ(Busprofile(L"X", 0), L"0/DP");
    EXPECT_EQ(Busprofile(L"X", 1), L"3/\u00DCber");
    EXPECT_EQ(Busprofile(L"X", 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(Busprofile(L"X", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(ProtocolEnums, GiveNoBusProfilesOfAProtocolWithoutThem)
{
    WriteProtocol(L"Y", XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"busparam", {})));

    EXPECT_EQ(Busprofile(L"Y", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolEnums, GiveABusProfileIntoOneCharacterMore)
{
    for (const std::uint32_t capacity : {0U, 4U})
    {
        OutputBuffer profile(capacity);

        EXPECT_EQ(library.PGSP_ProtocolGetEnumBusprofilesBL(L"X", 0, profile.data(), &profile.length),
                  PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(profile.isUntouched());
        EXPECT_EQ(profile.length, 4U);
    }
    OutputBuffer profile(5);

    EXPECT_EQ(library.PGSP_ProtocolGetEnumBusprofilesBL(L"X", 0, profile.data(), &profile.length), PGSP_OK);

    EXPECT_EQ(profile.text(), L"0/DP");
}

TEST_F(ProtocolEnums, GiveTheBaudRatesOfTheProtocolWithoutAProfile)
{
    for (const wchar_t* const profile : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_EQ(Baudrate(L"X", profile, 0), L"187500");
        EXPECT_EQ(Baudrate(L"X", profile, 1), L"1500000");
        EXPECT_EQ(Baudrate(L"X", profile, 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
        EXPECT_EQ(Baudrate(L"X", profile, 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    }
}

TEST_F(ProtocolEnums, GiveTheBaudRatesOfAProfileByItsNumber)
{
    EXPECT_EQ(Baudrate(L"X", L"3", 0), L"9600");
    EXPECT_EQ(Baudrate(L"X", L"3", 1), L"19200");
    EXPECT_EQ(Baudrate(L"X", L"3", 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(ProtocolEnums, KnowNoProfileByItsWordForBaudRates)
{
    EXPECT_EQ(Baudrate(L"X", L"User", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Baudrate(L"X", L"user", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolEnums, GiveNoBaudRatesWhereThereIsNoList)
{
    WriteProtocol(L"Y", {});

    EXPECT_EQ(Baudrate(L"X", L"0", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Baudrate(L"X", L"gone", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Baudrate(L"Y", nullptr, 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ProtocolEnums, GiveABaudRateIntoOneCharacterMore)
{
    for (const wchar_t* const profile : {static_cast<const wchar_t*>(nullptr), L"3"})
    {
        OutputBuffer all(300);
        ASSERT_EQ(library.PGSP_ProtocolGetEnumBaudrateBL(L"X", profile, 0, all.data(), &all.length), PGSP_OK);
        for (const std::uint32_t capacity : {0U, all.length})
        {
            OutputBuffer rate(capacity);

            EXPECT_EQ(library.PGSP_ProtocolGetEnumBaudrateBL(L"X", profile, 0, rate.data(), &rate.length),
                      PGSP_ERR_BUFFER_TOO_SHORT);

            EXPECT_TRUE(rate.isUntouched());
            EXPECT_EQ(rate.length, all.length);
        }
        OutputBuffer oneMore(all.length + 1);

        EXPECT_EQ(library.PGSP_ProtocolGetEnumBaudrateBL(L"X", profile, 0, oneMore.data(), &oneMore.length),
                  PGSP_OK);

        EXPECT_EQ(oneMore.text(), all.text());
    }
}

} // namespace
} // namespace norvepa::test
