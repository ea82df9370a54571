#include "service/norvepaPgspBl64/NameForms.h"

#include "frame/Text.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "support/PrefixedName.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

constexpr std::size_t NameCount = 10;
using Names = std::array<std::wstring_view, NameCount>;

constexpr Names Given{
    L"Xy",         L"*Xy",        L"**Xy",     L"{Prefix}Xy", L"*{Prefix}Xy", L"Old-{Prefix}Xy",
    L"{PREFIX}Xy", L"{prefix}Xy", L"50% #Xy:", L"*\u00C4b%",
};

// What is made of each of them.
constexpr Names TestFirst{
    L"{Prefix}Xy",     L"{Prefix}Xy",         L"{Prefix}*Xy",        L"{Prefix}Xy",       L"*{Prefix}Xy",
    L"Old-{Prefix}Xy", L"{Prefix}{PREFIX}Xy", L"{Prefix}{prefix}Xy", L"{Prefix}50% #Xy:", L"{Prefix}\u00C4b%",
};
constexpr Names StripFirst{
    L"{Prefix}Xy",     L"{Prefix}Xy",         L"{Prefix}*Xy",        L"{Prefix}Xy",       L"{Prefix}Xy",
    L"Old-{Prefix}Xy", L"{Prefix}{PREFIX}Xy", L"{Prefix}{prefix}Xy", L"{Prefix}50% #Xy:", L"{Prefix}\u00C4b%",
};
constexpr Names TestFirstLowered{
    L"{Prefix}xy",     L"{Prefix}xy", L"{Prefix}*xy", L"{prefix}xy",       L"*{prefix}xy",
    L"old-{prefix}xy", L"{prefix}xy", L"{prefix}xy",  L"{Prefix}50% #xy:", L"{Prefix}\u00E4b%",
};
constexpr Names StripFirstLowered{
    L"{Prefix}xy",     L"{Prefix}xy", L"{Prefix}*xy", L"{prefix}xy",       L"{prefix}xy",
    L"old-{prefix}xy", L"{prefix}xy", L"{prefix}xy",  L"{Prefix}50% #xy:", L"{Prefix}\u00E4b%",
};
constexpr Names Plain{
    L"{Prefix}Xy",       L"{Prefix}*Xy",       L"{Prefix}**Xy",       L"{Prefix}Xy",
    L"*{Prefix}Xy",      L"Old-{Prefix}Xy",    L"{Prefix}{PREFIX}Xy", L"{Prefix}{prefix}Xy",
    L"{Prefix}50% #Xy:", L"{Prefix}*\u00C4b%",
};
constexpr Names Lowered{
    L"{Prefix}xy",     L"{Prefix}*xy", L"{Prefix}**xy", L"{prefix}xy",       L"*{prefix}xy",
    L"old-{prefix}xy", L"{prefix}xy",  L"{prefix}xy",   L"{Prefix}50% #xy:", L"{Prefix}*\u00E4b%",
};
constexpr Names Escaping{
    L"{Prefix}Xy",
    L"{Prefix}#2aXy",
    L"{Prefix}#2a#2aXy",
    L"{Prefix}Xy",
    L"*{Prefix}Xy",
    L"Old-{Prefix}Xy",
    L"{Prefix}{PREFIX}Xy",
    L"{Prefix}{prefix}Xy",
    L"{Prefix}50#25 (nmbr)Xy#3a",
    L"{Prefix}#2a\u00C4b#25",
};
// In small letters only where the prefix was there: what is escaped is the caller's own text.
constexpr Names EscapingLowered{
    L"{Prefix}Xy",
    L"{Prefix}#2aXy",
    L"{Prefix}#2a#2aXy",
    L"{prefix}xy",
    L"*{prefix}xy",
    L"old-{prefix}xy",
    L"{prefix}xy",
    L"{prefix}xy",
    L"{Prefix}50#25 (nmbr)Xy#3a",
    L"{Prefix}#2a\u00C4b#25",
};
constexpr const Names& AsTheyCome = Given;

struct Export
{
    const char* name;
    const NameForms& forms;
    const Names& board;
    const Names& protocol;
    const Names& logDeviceTemplate;
};

void PrintTo(const Export& each, std::ostream* out)
{
    *out << each.name;
}

const Export Table[] = {
    {"Exist", TemplateExistForms, StripFirstLowered, Lowered, EscapingLowered},
    {"KeyExists", TemplateKeyExistsForms, TestFirstLowered, Lowered, EscapingLowered},
    {"GetEnumValueRaw", TemplateGetEnumValueRawForms, TestFirst, Plain, Plain},
    {"GetConstraint", TemplateGetConstraintForms, TestFirst, Plain, AsTheyCome},
    {"SetValue", TemplateSetValueForms, TestFirst, Plain, Plain},
    {"GetResourceString", TemplateGetResourceStringForms, StripFirst, Plain, Escaping},
};

std::string NameOf(const testing::TestParamInfo<Export>& info)
{
    return info.param.name;
}

class NameFormsOf : public testing::TestWithParam<Export>
{
protected:
    [[nodiscard]] static std::wstring Made(std::wstring_view folder, const std::wstring& name)
    {
        std::wstring made = L"before";
        EXPECT_EQ(MakeNameIn(GetParam().forms, folder, name.c_str(), made), PGSP_OK);
        return made;
    }

    // Every name in a folder, by each spelling of its word.
    static void ExpectMade(const std::vector<std::wstring_view>& spellings, std::wstring_view prefix,
                           const Names& expected)
    {
        for (const std::wstring_view folder : spellings)
        {
            for (std::size_t at = 0; at < NameCount; ++at)
            {
                const std::wstring given = PrefixedName(Given[at], prefix);
                EXPECT_EQ(Made(folder, given), PrefixedName(expected[at], prefix))
                    << ToUtf8(folder) << ", " << ToUtf8(given);
            }
        }
    }
};

TEST_P(NameFormsOf, BoardsAreThese)
{
    ExpectMade({L"Boards", L"BOARDS", L"boards", L"bOARDS"}, BoardPrefix, GetParam().board);
}

TEST_P(NameFormsOf, ProtocolsAreThese)
{
    ExpectMade({L"Protocols", L"PROTOCOLS", L"protocols"}, ProtocolPrefix, GetParam().protocol);
}

TEST_P(NameFormsOf, TemplatesAreThese)
{
    ExpectMade({L"DefaultLogDevices", L"DEFAULTLOGDEVICES", L"defaultlogdevices"}, TemplatePrefix,
               GetParam().logDeviceTemplate);
}

TEST_P(NameFormsOf, AFolderOfTheCallersOwnAreTheNamesAsTheyCome)
{
    for (const std::wstring_view prefix : {BoardPrefix, ProtocolPrefix, TemplatePrefix})
    {
        ExpectMade({L"Own", L"Board", L"Boards ", L"BoardsToo", L"Boards\\Old", L"LogDevices", L""}, prefix,
                   AsTheyCome);
    }
    EXPECT_EQ(Made(L"Own", L""), L"");
}

TEST_P(NameFormsOf, OneFolderDoNotKnowThePrefixOfAnother)
{
    const std::wstring board = std::wstring(BoardPrefix) + L"x";
    const std::wstring protocol = std::wstring(ProtocolPrefix) + L"x";

    EXPECT_TRUE(EqualNoCase(Made(L"Boards", protocol), std::wstring(BoardPrefix) + protocol));
    EXPECT_TRUE(EqualNoCase(Made(L"Protocols", board), std::wstring(ProtocolPrefix) + board));
}

TEST_P(NameFormsOf, NoNameAtAllAreThePrefixAlone)
{
    EXPECT_EQ(Made(L"Boards", L""), BoardPrefix);
    EXPECT_EQ(Made(L"Boards", L"*"), BoardPrefix);
    EXPECT_EQ(Made(L"Protocols", L""), ProtocolPrefix);
}

INSTANTIATE_TEST_SUITE_P(EveryExport, NameFormsOf, testing::ValuesIn(Table), NameOf);

} // namespace
} // namespace norvepa::test
