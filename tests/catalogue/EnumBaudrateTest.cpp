#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class EnumBaudrate : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Rate(const std::wstring& file, std::uint32_t index)
    {
        return TextOf([&](auto* out) { return NorvXMLEnumBaudrate(file.c_str(), index, out); });
    }

    [[nodiscard]] static TextAnswer ProfileRate(const std::wstring& file, const wchar_t* profile,
                                                std::uint32_t index)
    {
        return TextOf(
            [&](auto* out) { return NorvXMLEnumProfileBaudrate(file.c_str(), profile, index, out); });
    }

    // A section "baudrate" with these items.
    [[nodiscard]] static XmlContent Rates(Texts rates)
    {
        XmlContent items;
        for (const std::wstring_view rate : rates)
        {
            items.ParamSection(rate, XmlContent());
        }
        return XmlContent().ParamSection(L"baudrate", Values(items));
    }
};

TEST_F(EnumBaudrate, NamesTheSectionsOfTheCollectionInTheirOrder)
{
    const std::wstring file = File(WithConstraints(Rates({L"9600", L"187500", L"19200"})));

    EXPECT_EQ(Rate(file, 0), Found(L"9600"));
    EXPECT_EQ(Rate(file, 1), Found(L"187500"));
    EXPECT_EQ(Rate(file, 2), Found(L"19200"));
    EXPECT_EQ(Rate(file, 3), NoText(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(Rate(file, 0xFFFFFFFF), NoText(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(EnumBaudrate, IsNotFoundWithoutAListOfSections)
{
    const auto sectionOf = [](const XmlContent& content) {
        return WithConstraints(XmlContent().ParamSection(L"baudrate", content));
    };

    EXPECT_EQ(Rate(File(WithConstraints(XmlContent()), L"no section"), 0), NoText());
    EXPECT_EQ(Rate(File(ProtocolFile(XmlContent()), L"no constraints"), 0), NoText());
    EXPECT_EQ(Rate(File(sectionOf(XmlContent().Element(L"type", L"int")), L"no collection"), 0), NoText());
    EXPECT_EQ(Rate(File(sectionOf(Values(XmlContent())), L"no children"), 0), NoText());
    EXPECT_EQ(Rate(File(sectionOf(XmlContent().ValueCollection({L"9600"})), L"no sections"), 0), NoText());
}

TEST_F(EnumBaudrate, AnItemWithoutParamEndsTheListAtItsNumberOnly)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"baudrate", Values(XmlContent()
                                                          .ParamSection(L"9600", XmlContent())
                                                          .Element(L"ParamSection", XmlContent())
                                                          .ParamSection(L"19200", XmlContent())))));

    EXPECT_EQ(Rate(file, 0), Found(L"9600"));
    EXPECT_EQ(Rate(file, 1), NoText(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(Rate(file, 2), Found(L"19200"));
}

TEST_F(EnumBaudrate, ItemsThatAreNoSectionsDoNotCount)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"baudrate",
        Values(XmlContent().Element(L"Value", L"no rate").ParamSection(L"9600", XmlContent())))));

    EXPECT_EQ(Rate(file, 0), Found(L"9600"));
    EXPECT_EQ(Rate(file, 1), NoText(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(EnumBaudrate, OfAProfileIsTheListBelowThatProfile)
{
    const XmlContent profiles = XmlContent()
                                    .ParamSection(L"DP", Rates({L"12000000"}))
                                    .ParamSection(L"Standard", Rates({L"9600", L"19200"}));
    const std::wstring file =
        File(WithConstraints(Rates({L"1", L"2"}).ParamSection(L"busparam", Values(profiles))));

    EXPECT_EQ(ProfileRate(file, L"Standard", 0), Found(L"9600"));
    EXPECT_EQ(ProfileRate(file, L"standard", 1), Found(L"19200"));
    EXPECT_EQ(ProfileRate(file, L"Standard", 2), NoText(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(ProfileRate(file, L"DP", 0), Found(L"12000000"));
    EXPECT_EQ(ProfileRate(file, L"FMS", 0), NoText());
    EXPECT_EQ(ProfileRate(file, L"", 0), Found(L"12000000")) << "the nearest below the parameter";
    EXPECT_EQ(Rate(file, 1), Found(L"2"));
}

} // namespace
} // namespace norvepa::test
