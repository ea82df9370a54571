#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

// Which file each of the exports that read a template as a log device meets by a name. They have one form.
class DefDeviceNames : public TemplateScene
{
protected:
    // What tells a file from others, in each place that is read.
    [[nodiscard]] static XmlContent Telling(const std::wstring& which)
    {
        const Link link{.name = L"Page", .assembly = which, .path = L"", .function = L"f"};
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Text(L"Which", which))
            .Element(L"UserInterface64", XmlContent().ParameterAssemblyLink(link));
    }
    void Write(const std::wstring& fileName, const std::wstring& which) const
    {
        WriteBytes(PathOf(L"DefaultLogDevices", fileName), LogDeviceFile(Telling(which), which));
    }

    // By the enumeration, the root's attribute and the section, each by both exports that read one.
    [[nodiscard]] Strings MetByValues(const std::wstring& name) const
    {
        return {DevicePair(name, 0).substr(std::size("Which")), DeviceValue(name, L"DeviceID"),
                DeviceValue(name, L"Which"), DeviceValueRaw(name, nullptr, L"DeviceID"),
                DeviceValueRaw(name, L"LocalSettings", L"Which")};
    }
    [[nodiscard]] std::wstring MetByLink(const std::wstring& name) const
    {
        return DeviceValue(name, L"Page");
    }
};

TEST_F(DefDeviceNames, MayBeBareOrWithThePrefix)
{
    Write(TemplatePrefix + L"X", L"that one");
    Write(L"X", L"the bare one");

    for (const std::wstring& name : {std::wstring(L"X"), TemplatePrefix + L"X", std::wstring(L"X.xml")})
    {
        EXPECT_THAT(MetByValues(name), testing::Each(L"that one"));
    }
    EXPECT_EQ(MetByLink(L"X"), L"that one,f");
    EXPECT_EQ(MetByLink(TemplatePrefix + L"X"), L"that one,f");
}

TEST_F(DefDeviceNames, ThatHoldThePrefixAnywhereGetNoOther)
{
    Write(L"Old-" + TemplatePrefix + L"X", L"the old one");

    EXPECT_THAT(MetByValues(L"Old-" + TemplatePrefix + L"X"), testing::Each(L"the old one"));
    EXPECT_EQ(MetByLink(L"Old-" + TemplatePrefix + L"X"), L"the old one,f");
}

TEST_F(DefDeviceNames, HoldThePrefixInExactCaseOrNotAtAll)
{
    const std::wstring lower = L"automation-onlineaccess-ldt-X";
    Write(TemplatePrefix + L"X", L"the one with one");
    Write(TemplatePrefix + lower, L"the one with two");

    EXPECT_THAT(MetByValues(lower), testing::Each(L"the one with two"));
    EXPECT_EQ(MetByLink(lower), L"the one with two,f");
}

TEST_F(DefDeviceNames, KeepAStar)
{
    Write(TemplatePrefix + L"X", L"the one without");
    Write(TemplatePrefix + L"#2aX", L"the one with a star");

    EXPECT_THAT(MetByValues(L"*X"), testing::Each(L"the one with a star"));
}

TEST_F(DefDeviceNames, AreEscapedToFileNamesButForLinks)
{
    Write(TemplatePrefix + L"50#25 \u00DCber(nmbr)1", L"the coded one");
    EXPECT_THAT(MetByValues(L"50% \u00DCber#1"), testing::Each(L"the coded one"));
    EXPECT_EQ(MetByLink(L"50% \u00DCber#1"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    Write(TemplatePrefix + L"50% \u00DCber#1", L"the plain one");
    EXPECT_EQ(MetByLink(L"50% \u00DCber#1"), L"the plain one,f");
}

TEST_F(DefDeviceNames, OfTemplatesThatAreMissingAreToldSo)
{
    EXPECT_EQ(DevicePair(L"gone", 0), Failed(PGSP_ERR_FILE_NOT_FOUND));
    EXPECT_EQ(DeviceValue(L"gone", L"DeviceID"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(DeviceValueRaw(L"gone", nullptr, L"DeviceID"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(DeviceValueRaw(L"gone", L"LocalSettings", L"Which"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

// A link, the last place of all, has no limit of its own.
TEST_F(DefDeviceNames, OfAPathThatIsTooLongAreToldSoWhereTheyAreEscaped)
{
    const std::wstring name(260, L'n');

    EXPECT_EQ(DevicePair(name, 0), Failed(PGSP_ERR_FILE_NOT_FOUND));
    EXPECT_EQ(DeviceValue(name, L"DeviceID"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(DeviceValueRaw(name, nullptr, L"DeviceID"), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(DeviceValueRaw(name, L"LocalSettings", L"Which"), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
}

} // namespace
} // namespace norvepa::test
