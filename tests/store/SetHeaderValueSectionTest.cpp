#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// Which sections are searched, and in which order.
using SetHeaderValueSectionTest = WriteScene;

std::string DeviceOf(std::wstring_view section, const XmlContent& content)
{
    return LogDeviceFile(XmlContent().Element(section, content));
}

class SetHeaderValueSections : public WriteScene, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(SetHeaderValueSections, AreSearched)
{
    GivenFile(DeviceOf(GetParam(), XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceOf(GetParam(), XmlContent().Text(L"a", L"2"))));
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetHeaderValueSections,
                         testing::Values(L"BoardAttributes", L"Install", L"DeviceHeader", L"LocalSettings",
                                         L"NetworkSettings", L"Bindings", L"Ndi", L"MyBoardAttributes",
                                         L"Install64", L"OldDeviceHeader2", L"NdiLike", L"xInstallx"));

class SetHeaderValueOtherSections : public WriteScene, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(SetHeaderValueOtherSections, AreNot)
{
    GivenFile(DeviceOf(GetParam(), XmlContent().Text(L"a", L"1")));
    const std::string before = Bytes();

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetHeaderValueOtherSections,
                         testing::Values(L"UserInterface", L"UserInterface64", L"SpareSection", L"Parameters",
                                         L"PGSP_Section", L"Constraints", L"localSettings", L"NDI",
                                         L"Binding", L"Header"));

TEST_F(SetHeaderValueSectionTest, TheFirstInTheDocumentIsSetNotTheFirstOfTheWords)
{
    const auto device = [](std::wstring_view ndi) {
        return LogDeviceFile(XmlContent()
                                 .Element(L"SpareSection", XmlContent().Text(L"a", L"0"))
                                 .Element(L"Ndi", XmlContent().Text(L"a", ndi))
                                 .Element(L"DeviceHeader", XmlContent().Text(L"a", L"9")));
    };
    GivenFile(device(L"1"));

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"2")));
}

TEST_F(SetHeaderValueSectionTest, AllSectionsAreSearched)
{
    const auto device = [](std::wstring_view value) {
        return LogDeviceFile(XmlContent()
                                 .Element(L"Ndi", XmlContent().Text(L"b", L"1"))
                                 .EmptyTag(L"DeviceHeader")
                                 .Element(L"Ndi", XmlContent().Text(L"a", value)));
    };
    GivenFile(device(L"1"));

    EXPECT_EQ(SetHeader(L"a", L"1"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"2")));
}

TEST_F(SetHeaderValueSectionTest, TheRootIsNoSection)
{
    GivenFile("<Bindings>" + XmlContent().Int(L"a", L"1").utf8() + "</Bindings>");

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_ERR_CANT_SET_VALUE);
}

// The word is in the section's name, and no read knows a section by its prefix.
TEST_F(SetHeaderValueSectionTest, ASectionWithAPrefixIsSearchedAndCountsAsEmpty)
{
    const auto device = [](const std::string& value) {
        return "<LogDevice xmlns:d='urn:d'><d:Ndi><Parameter><Name>a</Name><Value>" + value +
               "</Value></Parameter></d:Ndi></LogDevice>";
    };
    GivenFile(device("1"));
    EXPECT_EQ(SetHeader(L"a", L""), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(Bytes(), device("1"));

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device("2")));
}

TEST_F(SetHeaderValueSectionTest, TheSectionIsReadByItsWholeName)
{
    GivenFile(LogDeviceFile(XmlContent()
                                .Element(L"Ndi64", XmlContent().Text(L"a", L"1"))
                                .Element(L"Ndi", XmlContent().Text(L"a", L"2"))));

    EXPECT_EQ(SetHeader(L"a", L"1"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_OK);
}

TEST_F(SetHeaderValueSectionTest, ASubdevicesEntriesAreTooDeep)
{
    GivenFile(DeviceOf(L"Bindings", XmlContent().Subdevice(L"A", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_ERR_CANT_SET_VALUE);
}

} // namespace
} // namespace norvepa::test
