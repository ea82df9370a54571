#include "TemplateScene.h"

#include <algorithm>
#include <array>

namespace norvepa::test
{
namespace
{

constexpr std::size_t PlaceCount = 7;

// What becomes of values that don't fit, from place to place.
class DefDeviceGetValueFit : public TemplateScene
{
protected:
    // A template, "X", with a parameter "Page" in every place: the root, the five sections and, as the
    // assembly, a link. A place without a value is left out.
    void Write(const std::array<std::wstring, PlaceCount>& values) const
    {
        constexpr std::array names{L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings",
                                   L"Ndi"};
        XmlContent content;
        for (std::size_t at = 0; at < names.size(); ++at)
        {
            const std::wstring& value = values[at + 1];
            content.Element(names[at], value.empty() ? XmlContent() : XmlContent().Text(L"Page", value));
        }
        const Link link{.name = L"Page", .assembly = values.back(), .path = L"", .function = L"f"};
        content.Element(L"UserInterface64",
                        values.back().empty() ? XmlContent() : XmlContent().ParameterAssemblyLink(link));
        WriteBytes(roots.deviceTemplate(L"X"), XmlFile(L"LogDevice", {{L"Page", values.front()}}, content));
    }

    // What a caller with so much room gets.
    [[nodiscard]] std::int32_t Ask(OutputBuffer& value) const
    {
        return library.PGSP_DefDeviceGetValueBL(L"X", L"Page", value.data(), &value.length, 0);
    }

    const std::wstring tooLong = L"too long a text";
};

TEST_F(DefDeviceGetValueFit, PassesOverEveryPlaceWhoseValueDoesNotFit)
{
    const std::array<std::wstring, PlaceCount> fitting{L"r", L"h", L"l", L"n", L"b", L"i", L"x"};
    for (std::size_t fits = 0; fits < PlaceCount; ++fits)
    {
        std::array<std::wstring, PlaceCount> values = fitting;
        std::fill_n(values.begin(), fits, tooLong);
        Write(values);
        OutputBuffer value(6);

        EXPECT_EQ(Ask(value), PGSP_OK) << fits;

        const std::wstring expected = fits + 1 == PlaceCount ? L"x,f" : fitting[fits];
        EXPECT_EQ(value.text(), expected);
        EXPECT_EQ(value.length, expected.size());
    }
}

TEST_F(DefDeviceGetValueFit, OffersEachPlaceTheCallersCapacityAndNotTheLengthOfAnother)
{
    Write({L"a very long text", L"too long", L"too long", L"", L"", L"short", L""});
    OutputBuffer value(6);

    EXPECT_EQ(Ask(value), PGSP_OK);

    EXPECT_EQ(value.text(), L"short");
    EXPECT_EQ(value.length, 5U);
}

TEST_F(DefDeviceGetValueFit, TellsTheLengthOfTheLinkWhenNoneFits)
{
    Write({tooLong, tooLong, tooLong, tooLong, tooLong, tooLong, L"Seiten.dll"});
    OutputBuffer value(12);

    EXPECT_EQ(Ask(value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 12U);

    OutputBuffer oneMore(13);
    EXPECT_EQ(Ask(oneMore), PGSP_OK);
    EXPECT_EQ(oneMore.text(), L"Seiten.dll,f");
    EXPECT_EQ(oneMore.length, 12U);
}

TEST_F(DefDeviceGetValueFit, IsNotFoundWhenNoneFitsAndThereIsNoLink)
{
    Write({tooLong, tooLong, tooLong, tooLong, tooLong, tooLong, L""});
    OutputBuffer exact(15);

    EXPECT_EQ(Ask(exact), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 15U);

    OutputBuffer oneMore(16);
    EXPECT_EQ(Ask(oneMore), PGSP_OK);
    EXPECT_EQ(oneMore.text(), tooLong);
    EXPECT_EQ(oneMore.length, 15U);
}

TEST_F(DefDeviceGetValueFit, OfLengthZeroIsTooShortForTheLinkAlone)
{
    OutputBuffer value(0);

    Write({L"r", L"h", L"l", L"n", L"b", L"i", L""});
    EXPECT_EQ(Ask(value), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(value.length, 0U);

    Write({L"r", L"h", L"l", L"n", L"b", L"i", L"x"});
    EXPECT_EQ(Ask(value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(value.length, 3U);

    EXPECT_TRUE(value.isUntouched());
}

} // namespace
} // namespace norvepa::test
