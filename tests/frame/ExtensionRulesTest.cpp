#include "frame/StoreLocations.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>

namespace norvepa
{
namespace
{

struct ExtensionCase
{
    const char* where;
    const wchar_t* path;
    const wchar_t* byAnywhereRule;
    const wchar_t* byEndRule;

    friend void PrintTo(const ExtensionCase& each, std::ostream* out) { *out << each.where; }
};

class ExtensionRules : public testing::TestWithParam<ExtensionCase>
{
};

TEST_P(ExtensionRules, GiveEachPathItsFile)
{
    std::wstring byAnywhereRule = GetParam().path;
    std::wstring byEndRule = GetParam().path;

    ExtendByAnywhereRule(byAnywhereRule);
    ExtendByEndRule(byEndRule);

    EXPECT_EQ(byAnywhereRule, GetParam().byAnywhereRule);
    EXPECT_EQ(byEndRule, GetParam().byEndRule);
}

INSTANTIATE_TEST_SUITE_P(
    SameFile, ExtensionRules,
    testing::Values(ExtensionCase{"NoExtension", L"C:\\d\\a", L"C:\\d\\a.xml", L"C:\\d\\a.xml"},
                    ExtensionCase{"ItsExtension", L"C:\\d\\a.xml", L"C:\\d\\a.xml", L"C:\\d\\a.xml"},
                    ExtensionCase{"HalfAnExtension", L"a.xm", L"a.xm.xml", L"a.xm.xml"},
                    ExtensionCase{"NoDot", L"axml", L"axml.xml", L"axml.xml"},
                    ExtensionCase{"NothingButTheExtension", L".xml", L".xml", L".xml"},
                    ExtensionCase{"Nothing", L"", L".xml", L".xml"}));

INSTANTIATE_TEST_SUITE_P(ExactCase, ExtensionRules,
                         testing::Values(ExtensionCase{"UpperCase", L"a.XML", L"a.XML.xml", L"a.XML.xml"},
                                         ExtensionCase{"MixedCaseAheadOfTheEnd", L"a.Xml.b", L"a.Xml.b.xml",
                                                       L"a.Xml.b.xml"}));

INSTANTIATE_TEST_SUITE_P(
    DifferentFiles, ExtensionRules,
    testing::Values(ExtensionCase{"InTheFolder", L"C:\\d.xml\\a", L"C:\\d.xml\\a", L"C:\\d.xml\\a.xml"},
                    ExtensionCase{"AheadOfTheEnd", L"C:\\d\\a.xml.old", L"C:\\d\\a.xml.old",
                                  L"C:\\d\\a.xml.old.xml"},
                    ExtensionCase{"InTheFolderAndAtTheEnd", L"C:\\d.xml\\a.xml", L"C:\\d.xml\\a.xml",
                                  L"C:\\d.xml\\a.xml.xml"},
                    ExtensionCase{"Twice", L"a.xml.xml", L"a.xml.xml", L"a.xml.xml.xml"},
                    ExtensionCase{"OneLetterTooMany", L"a.xmlx", L"a.xmlx", L"a.xmlx.xml"}));

} // namespace
} // namespace norvepa
