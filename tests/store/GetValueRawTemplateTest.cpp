#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

class GetValueRawTemplate : public ReadScene
{
protected:
    [[nodiscard]] std::wstring Template(const XmlContent& content) const
    {
        return File(LogDeviceFile(content), L"meta\\DefaultLogDevices\\Automation-OnlineAccess-LDT-MPI");
    }
};

TEST_F(GetValueRawTemplate, ReadsFromTheSubSection)
{
    const std::wstring file = Template(XmlContent().Element(
        L"Bindings",
        XmlContent().Text(L"a", L"outside").Element(L"Sub", XmlContent().Text(L"b", L"0").Int(L"a", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"bindings\\SUB", L"A"), Found(L"1"));
}

TEST_F(GetValueRawTemplate, ReadsFromTheSectionWithoutSubSection)
{
    const std::wstring file = Template(XmlContent().Element(L"Bindings", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(GetValueRaw(file, L"Bindings", L"a"), Found(L"1"));
}

TEST_F(GetValueRawTemplate, TheSubSectionMayStandDeeper)
{
    const std::wstring file = Template(XmlContent().Element(
        L"Bindings",
        XmlContent().Element(L"Between", XmlContent().Element(L"Sub", XmlContent().Text(L"a", L"1")))));

    EXPECT_EQ(GetValueRaw(file, L"Bindings\\Sub", L"a"), Found(L"1"));
}

TEST_F(GetValueRawTemplate, WhatIsOutsideOfTheSubSectionIsNotFound)
{
    const std::wstring file =
        Template(XmlContent()
                     .Element(L"Bindings", XmlContent()
                                               .Element(L"Sub", XmlContent().Text(L"a", L"1"))
                                               .Text(L"b", L"behind the sub-section"))
                     .Element(L"Sub", XmlContent().Text(L"c", L"outside of the section")));

    EXPECT_EQ(GetValueRaw(file, L"Bindings\\Sub", L"b"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"Bindings\\Sub", L"c"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"Bindings\\Other", L"a"), NotFound());
}

TEST_F(GetValueRawTemplate, OfEachSectionTheFirstSubSectionIsSearched)
{
    const std::wstring file =
        Template(XmlContent()
                     .Element(L"S", XmlContent()
                                        .Element(L"Sub", XmlContent().Text(L"a", L"1"))
                                        .Element(L"Sub", XmlContent().Text(L"b", L"2")))
                     .Element(L"S", XmlContent().Element(L"Sub", XmlContent().Text(L"c", L"3"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\Sub", L"a"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"S\\Sub", L"b"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"S\\Sub", L"c"), Found(L"3"));
}

TEST_F(GetValueRawTemplate, AnEmptyTagAheadOfTheSubSectionHidesIt)
{
    const std::wstring file = Template(XmlContent().Element(
        L"S", XmlContent().EmptyTag(L"odd").Element(L"Sub", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\Sub", L"a"), NotFound());
}

TEST_F(GetValueRawTemplate, FurtherPartsOfThePathAreIgnored)
{
    const std::wstring file =
        Template(XmlContent().Element(L"S", XmlContent().Element(L"Sub", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\Sub\\third", L"a"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"S\\Sub\\3\\4\\5\\6\\7\\8\\9\\10\\11\\12", L"a"), Found(L"1"));
}

TEST_F(GetValueRawTemplate, RunsOfBackslashesAreOne)
{
    const std::wstring file =
        Template(XmlContent().Element(L"S", XmlContent().Element(L"Sub", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\\\\\Sub", L"a"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"\\S\\Sub\\", L"a"), Found(L"1"));
}

} // namespace
} // namespace norvepa::test
