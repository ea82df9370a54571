#include "store/NdiScene.h"
#include "store/NotXml.h"

#include <functional>
#include <ostream>
#include <vector>

namespace norvepa::test
{
namespace
{

// A link with a page of each word, so that a set of either meets one that is there.
class SetNdiRules : public NdiScene
{
protected:
    SetNdiRules()
    {
        GivenFile(DeviceWithLinks(XmlContent()
                                      .ParameterAssemblyLink({.name = L"Seite", .function = L"F"})
                                      .Resource({.name = L"Seite", .resourceId = L"1"})));
        m_before = Bytes();
    }

    void ExpectUntouched() const { EXPECT_EQ(Bytes(), m_before); }

private:
    std::string m_before;
};

class SetNdiNameCharacters : public SetNdiRules, public testing::WithParamInterface<wchar_t>
{
};

TEST_P(SetNdiNameCharacters, AreRefused)
{
    const std::wstring alone(1, GetParam());
    const std::wstring within = L"Seite" + alone + L"zwei";
    const std::wstring behind = L"Seite" + alone;

    for (const std::wstring& name : {alone, within, behind})
    {
        EXPECT_EQ(SetLink({.parameter = name.c_str(), .assembly = L"A"}), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetLink({.parameter = name.c_str(), .function = L"G"}), PGSP_ERR_INVALID_PARAMETERS);
    }

    ExpectUntouched();
}

INSTANTIATE_TEST_SUITE_P(All24, SetNdiNameCharacters,
                         testing::Values(L' ', L'[', L']', L'^', L'!', L'"', wchar_t{0xA7}, L'$', L'%', L'&',
                                         L'(', L')', L'=', L'?', wchar_t{0xB4}, L'\'', L'#', L'+', L'>', L'<',
                                         L'*', L'|', L';', L','));

TEST_F(SetNdiRules, AllOtherCharactersPassInNames)
{
    constexpr const wchar_t* name = L"-./0123456789:@ABCXYZ\\_`abcxyz{}~\u00A1\u00B0\u00C4\u00DF\u20AC";

    EXPECT_EQ(SetLink({.parameter = name, .assembly = L"A"}), PGSP_OK);

    EXPECT_EQ(GetAssemblyLink(path(), name).assembly, L"A");
}

// One of the four texts, as it is given.
struct TextCase
{
    const char* name;
    const wchar_t* GivenLink::*text;
};

void PrintTo(const TextCase& each, std::ostream* out)
{
    *out << each.name;
}

class SetNdiTexts : public SetNdiRules, public testing::WithParamInterface<TextCase>
{
protected:
    // A set of this text beside others that would pass, in a link that is there or in a new one.
    [[nodiscard]] Result SetTo(const wchar_t* text, const wchar_t* parameter = L"Seite") const
    {
        GivenLink link{.parameter = parameter, .assembly = L"A", .path = L"p", .function = L"F"};
        link.*GetParam().text = text;
        return SetLink(link);
    }
};

INSTANTIATE_TEST_SUITE_P(, SetNdiTexts,
                         testing::Values(TextCase{"Assembly", &GivenLink::assembly},
                                         TextCase{"Path", &GivenLink::path},
                                         TextCase{"Function", &GivenLink::function},
                                         TextCase{"ResourceId", &GivenLink::resourceId}),
                         [](const auto& each) { return each.param.name; });

TEST_P(SetNdiTexts, HoldNoAngleBrackets)
{
    for (const wchar_t* text : {L"<", L">", L"a<b", L"a>b", L"ab<", L">ab"})
    {
        EXPECT_EQ(SetTo(text), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetTo(text, L"PropSheet"), PGSP_ERR_INVALID_PARAMETERS);
    }

    ExpectUntouched();
}

TEST_P(SetNdiTexts, MayHoldWhatNamesMayNot)
{
    constexpr const wchar_t* text = L"[]^ !\"\u00A7$%&()=?\u00B4'#+*|;,";

    EXPECT_EQ(SetTo(text), PGSP_OK);

    EXPECT_EQ(SetTo(text), PGSP_ERR_SAME_VALUE);
}

TEST_P(SetNdiTexts, CannotHoldWhatXmlCannot)
{
    for (const std::wstring& text : TextsThatXmlCannotHold)
    {
        EXPECT_EQ(SetTo(text.c_str()), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetTo(text.c_str(), L"PropSheet"), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetTo(text.c_str(), L"DescText"), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetTo(text.c_str(), L"AnotherName"), PGSP_ERR_CANT_SET_VALUE);
    }

    ExpectUntouched();
}

TEST_F(SetNdiRules, ANameCannotHoldWhatXmlCannot)
{
    for (const std::wstring& name : TextsThatXmlCannotHold)
    {
        EXPECT_EQ(SetLink({.parameter = name.c_str(), .assembly = L"A"}), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetLink({.parameter = name.c_str(), .assembly = L"A"}, In32), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetLink({.parameter = name.c_str(), .function = L"G"}), PGSP_ERR_CANT_SET_VALUE);
    }

    ExpectUntouched();
}

TEST_F(SetNdiRules, NoSectionIsMadeForWhatXmlCannotHold)
{
    EXPECT_EQ(SetLink({.assembly = L"\x01"}, In32), PGSP_ERR_CANT_SET_VALUE);

    ExpectUntouched();
}

TEST_F(SetNdiRules, WhatLooksLikeMarkupComesBackAsItWas)
{
    constexpr const wchar_t* text = L"&amp;&#1;&undefined;]]\"'%s%n";

    EXPECT_EQ(SetLink({.parameter = L"DescText", .assembly = text, .path = text, .resourceId = text}),
              PGSP_OK);

    EXPECT_EQ(GetAssemblyLink(path(), L"DescText"), (ResourceAnswer{PGSP_OK, text, text, text, L""}));
}

TEST_F(SetNdiRules, ANullNameIsRefused)
{
    EXPECT_EQ(SetLink({.parameter = nullptr, .assembly = L"A"}), PGSP_ERR_INVALID_PARAMETERS);

    ExpectUntouched();
}

TEST_F(SetNdiRules, ComeBehindThePathAndAheadOfTheFile)
{
    const std::wstring tooLong(300, L'x');
    const std::wstring missing = folder() / L"missing";
    const auto set = [](const std::wstring& file, const wchar_t* parameter) {
        return NorvXMLSetNdi(file.c_str(), parameter, L"A", nullptr, nullptr, nullptr, In64);
    };

    EXPECT_EQ(set(tooLong, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(set(tooLong, L"a b"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(set(missing, L"a b"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(set(missing, L"a"), PGSP_ERR_FILE_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
