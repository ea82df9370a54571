#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

class DefDeviceGetValueRaw : public TemplateScene
{
protected:
    DefDeviceGetValueRaw()
    {
        const XmlContent below = XmlContent().Int(L"a", L"below").Text(L"(default)", L"the default below");
        WriteTemplate(
            L"X",
            XmlContent()
                .Element(L"DeviceHeader", XmlContent()
                                              .Text(L"a", L"header")
                                              .Text(L"CP_TYPE", L"of the section")
                                              .Text(L"(default)", L"the default"))
                .Element(L"Bindings", XmlContent().Text(L"a", L" \u00DCber <1> ").Element(L"Sub", below))
                .Element(L"UserInterface64",
                         XmlContent().ParameterAssemblyLink(
                             {.name = L"Page", .assembly = L"a", .path = L"b", .function = L"c"})));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* path, const wchar_t* parameter, OutputBuffer& value) const
    {
        return library.PGSP_DefDeviceGetValueRawBL(L"X", path, parameter, value.data(), &value.length);
    }
};

TEST_F(DefDeviceGetValueRaw, IsOfTheSectionThatThePathNames)
{
    EXPECT_EQ(DeviceValueRaw(L"X", L"DeviceHeader", L"a"), L"header");
    EXPECT_EQ(DeviceValueRaw(L"X", L"bindings", L"A"), L" \u00DCber <1> ");
    EXPECT_EQ(DeviceValueRaw(L"X", L"DeviceHeader", L"(default)"), L"the default");
}

TEST_F(DefDeviceGetValueRaw, IsOfTheElementBelowTheSection)
{
    EXPECT_EQ(DeviceValueRaw(L"X", L"Bindings\\Sub", L"a"), L"below");
    EXPECT_EQ(DeviceValueRaw(L"X", L"\\Bindings\\\\Sub\\", L"a"), L"below");
    EXPECT_EQ(DeviceValueRaw(L"X", L"Bindings\\gone", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(DeviceValueRaw(L"X", L"DeviceHeader\\Sub", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(DefDeviceGetValueRaw, WithAPathIsNeverTheRootsAttributeNorALink)
{
    EXPECT_EQ(DeviceValueRaw(L"X", L"DeviceHeader", L"CP_TYPE"), L"of the section");
    EXPECT_EQ(DeviceValueRaw(L"X", L"Bindings", L"CP_TYPE"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(DeviceValueRaw(L"X", L"UserInterface64", L"Page"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(DefDeviceGetValueRaw, WithoutAPathIsTheRootsAttributeAndNothingElse)
{
    for (const wchar_t* const path : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_EQ(DeviceValueRaw(L"X", path, L"CP_TYPE"), L"MPI");
        EXPECT_EQ(DeviceValueRaw(L"X", path, L"deviceid"), L"AFK110");
        EXPECT_EQ(DeviceValueRaw(L"X", path, L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
        EXPECT_EQ(DeviceValueRaw(L"X", path, L"Page"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    }
}

// Unlike everywhere else there is no default to stand in.
TEST_F(DefDeviceGetValueRaw, NeedsAParameter)
{
    OutputBuffer value(20);
    for (const wchar_t* const path : {static_cast<const wchar_t*>(nullptr), L"", L"DeviceHeader"})
    {
        EXPECT_EQ(Ask(path, nullptr, value), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Ask(path, L"", value), PGSP_ERR_INVALID_PARAMETERS);
    }
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

TEST_F(DefDeviceGetValueRaw, TellsAPathThatLeadsNowhere)
{
    EXPECT_EQ(DeviceValueRaw(L"X", L"gone", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(DeviceValueRaw(L"X", L"\\", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(DeviceValueRaw(L"X", L"DeviceHeader", L"gone"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(DefDeviceGetValueRaw, FillsABufferOfOneCharacterMore)
{
    struct Case
    {
        const wchar_t* path;
        const wchar_t* parameter;
        std::wstring value;
    };
    const Case cases[] = {{nullptr, L"DeviceID", L"AFK110"}, {L"DeviceHeader", L"a", L"header"}};
    for (const auto& [path, parameter, expected] : cases)
    {
        for (const std::uint32_t capacity : {0U, 1U, 6U})
        {
            OutputBuffer value(capacity);

            EXPECT_EQ(Ask(path, parameter, value), PGSP_ERR_BUFFER_TOO_SHORT);

            EXPECT_TRUE(value.isUntouched());
            EXPECT_EQ(value.length, 6U);
        }
        OutputBuffer value(7);

        EXPECT_EQ(Ask(path, parameter, value), PGSP_OK);

        EXPECT_EQ(value.text(), expected);
        EXPECT_EQ(value.length, 6U);
    }
}

} // namespace
} // namespace norvepa::test
