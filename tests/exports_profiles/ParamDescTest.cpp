#include "exports_device/SetScene.h"
#include "support/Answers.h"
#include "support/ProfileFiles.h"

namespace norvepa::test
{
namespace
{

XmlContent Description(std::wstring_view text)
{
    return XmlContent().Element(L"ParamDesc", text);
}

// The descriptions that a protocol has for the values of its parameters.
class ParamDesc : public SetScene
{
protected:
    ParamDesc()
    {
        const XmlContent rates =
            SubParameter(L"baudrate", {{L"9600", Description(L"of the rate in the profile")}});
        store.WriteProtocol(
            Catalogue()
                .Parameter(L"baudrate", {{L"ParamDesc", L"of the rate"}},
                           Profiles({{L"9600/9,6", Description(L"9,6 kbit/s \u2264 <&>")},
                                     {L"19200", Description(L"")},
                                     {L"45450"}}))
                .Parameter(L"busparam", {},
                           Profiles({{L"1/Standard", Description(L"of the profile").Raw(rates.utf8())}})));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* parameterAndValue, wchar_t* text, std::uint32_t* length,
                                   const wchar_t* protocol = L"MPI") const
    {
        return library.PGSP_GetParamDescBL(protocol, parameterAndValue, text, length);
    }

    [[nodiscard]] std::wstring Text(const wchar_t* parameterAndValue, const wchar_t* protocol = L"MPI") const
    {
        return TextOf([&](wchar_t* text, std::uint32_t* length) {
            return Ask(parameterAndValue, text, length, protocol);
        });
    }
};

TEST_F(ParamDesc, IsThatOfTheValueBehindTheBackslash)
{
    EXPECT_EQ(Text(L"baudrate\\9600"), L"9,6 kbit/s \u2264 <&>");
    EXPECT_EQ(Text(L"BAUDRATE\\9600"), L"9,6 kbit/s \u2264 <&>");
    EXPECT_EQ(Text(L"busparam\\1"), L"of the profile");
}

TEST_F(ParamDesc, MayBeEmpty)
{
    EXPECT_EQ(Text(L"baudrate\\19200"), L"");
}

TEST_F(ParamDesc, IsNotFoundForAValueWithoutOneOrThatIsNotThere)
{
    EXPECT_EQ(Text(L"baudrate\\45450"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"baudrate\\93750"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"baudrate\\9600/9,6"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"mode\\9600"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

// Without a backslash the text is a value of no parameter, which the parameters themselves are.
TEST_F(ParamDesc, IsThatOfTheParameterWithoutABackslash)
{
    EXPECT_EQ(Text(L"baudrate"), L"of the rate");
    EXPECT_EQ(Text(L"\\baudrate"), L"of the rate");
    EXPECT_EQ(Text(L"baudrate\\"), L"of the rate");
    EXPECT_EQ(Text(L"mode"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ParamDesc, IsThatOfAPathWithFurtherBackslashes)
{
    EXPECT_EQ(Text(L"busparam\\1\\baudrate\\9600"), L"of the rate in the profile");
    EXPECT_EQ(Text(L"busparam\\1\\baudrate"), L"of the rate in the profile");
    EXPECT_EQ(Text(L"busparam\\1\\cable"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"busparam\\2\\baudrate"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ParamDesc, IsOfAProtocolNamedWithOrWithoutThePrefix)
{
    EXPECT_EQ(Text(L"busparam\\1", L"Automation-OnlineAccess-PT-MPI"), L"of the profile");
    EXPECT_EQ(Text(L"busparam\\1", L"mpi"), L"of the profile");
    EXPECT_EQ(Text(L"busparam\\1", L"automation-onlineaccess-pt-MPI"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ParamDesc, IsNotFoundWithoutTheProtocol)
{
    EXPECT_EQ(Text(L"busparam\\1", L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(ParamDesc, IsNotLookedForWithoutTheProgramFolder)
{
    store.TakeProgramFolderAway();

    EXPECT_EQ(Text(L"busparam\\1"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
}

TEST_F(ParamDesc, NeedsABufferOfOneCharacterMore)
{
    OutputBuffer exact(14);
    OutputBuffer oneMore(15);

    EXPECT_EQ(Ask(L"busparam\\1", exact.data(), &exact.length), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"busparam\\1", oneMore.data(), &oneMore.length), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 14U);
    EXPECT_EQ(oneMore.text(), L"of the profile");
    EXPECT_EQ(oneMore.length, 14U);
}

TEST_F(ParamDesc, TellsItsLengthWithoutABufferThatHasRoom)
{
    for (const std::uint32_t capacity : {0U, 1U, 14U})
    {
        std::uint32_t length = capacity;

        EXPECT_EQ(Ask(L"busparam\\1", nullptr, &length), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_EQ(length, 14U);
    }
}

TEST_F(ParamDesc, HasNowhereToGoForRoomInNoBuffer)
{
    for (const std::uint32_t capacity : {15U, 300U})
    {
        std::uint32_t length = capacity;

        EXPECT_EQ(Ask(L"busparam\\1", nullptr, &length), PGSP_OK);

        EXPECT_EQ(length, capacity);
    }
}

TEST_F(ParamDesc, IsLookedForAheadOfTheBuffer)
{
    std::uint32_t length = 300;

    EXPECT_EQ(Ask(L"busparam\\2", nullptr, &length), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(length, 300U);
}

TEST_F(ParamDesc, IsRefusedForNamesThatAreNullOrEmptyAndWithoutALength)
{
    OutputBuffer text(300);
    const auto expectRefused = [&] {
        for (const wchar_t* const missing : {static_cast<const wchar_t*>(nullptr), L""})
        {
            EXPECT_EQ(Ask(missing, text.data(), &text.length), PGSP_ERR_INVALID_PARAMETERS);
            EXPECT_EQ(Ask(L"busparam\\1", text.data(), &text.length, missing), PGSP_ERR_INVALID_PARAMETERS);
        }
        EXPECT_EQ(Ask(L"busparam\\1", text.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    };

    expectRefused();
    store.TakeProgramFolderAway();
    expectRefused();

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 300U);
}

} // namespace
} // namespace norvepa::test
