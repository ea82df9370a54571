#include "catalogue/CatalogueScene.h"
#include "meta/cMetaFiles.h"

namespace norvepa::test
{
namespace
{

class EnumValueCollectionRaw : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Item(const std::wstring& file, const wchar_t* key, std::uint32_t index)
    {
        return TextOf(
            [&](auto* out) { return NorvXMLEnumValueCollectionRaw(file.c_str(), key, index, out); });
    }
};

TEST_F(EnumValueCollectionRaw, DeliversTheTextsInTheFilesOrder)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"p", XmlContent().ValueCollection({L"z", L"a;b", L"", L"a;b"}))));

    EXPECT_EQ(Item(file, L"Constraints\\p", 0), Found(L"z"));
    EXPECT_EQ(Item(file, L"constraints\\P", 1), Found(L"a;b"));
    EXPECT_EQ(Item(file, L"Constraints\\p", 2), Found(L""));
    EXPECT_EQ(Item(file, L"Constraints\\p", 3), Found(L"a;b"));
    EXPECT_EQ(Item(file, L"Constraints\\p", 4), NoText(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(Item(file, L"Constraints\\p", 0xFFFFFFFF), NoText(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(EnumValueCollectionRaw, HasNoMoreItemsAlsoWhenThatIsTheFirstQuestion)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().ValueCollection({L"1"}))));

    EXPECT_EQ(Item(file, L"Constraints\\p", 1), NoText(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(EnumValueCollectionRaw, TakesAKeyOfOneWord)
{
    const std::wstring file =
        File(BoardFile(XmlContent().Element(L"NotSupported", XmlContent().ValueCollection({L"baudrate"}))));

    EXPECT_EQ(Item(file, L"NotSupported", 0), Found(L"baudrate"));
    EXPECT_EQ(Item(file, L"ValueCollection", 0), Found(L"baudrate"));
    EXPECT_EQ(Item(file, L"BaseSupported", 0), NoText());
}

TEST_F(EnumValueCollectionRaw, IsNotFoundWithoutAWayOrATextAtItsEnd)
{
    const std::wstring file = File(
        WithConstraints(XmlContent()
                            .ParamSection(L"sections", Values(XmlContent().ParamSection(L"v", XmlContent())))
                            .ParamSection(L"none", XmlContent())));

    for (const wchar_t* key : {L"Constraints\\sections", L"Constraints\\none", L"Constraints\\other",
                               L"Constraints\\1\\2\\3\\4\\5", L"Unknown", L"", L"\\"})
    {
        EXPECT_EQ(Item(file, key, 0), NoText()) << ToUtf8(key);
        EXPECT_EQ(Item(file, key, 1), NoText()) << ToUtf8(key);
    }
    EXPECT_EQ(Item(file, (L"Constraints\\" + std::wstring(300, L'x')).c_str(), 0), NoText());
}

TEST_F(EnumValueCollectionRaw, RemembersNothingOfACollectionThatIsNotThere)
{
    const std::wstring file = File(WithConstraints(XmlContent()));
    ASSERT_EQ(Item(file, L"Constraints\\p", 0), NoText());
    static_cast<void>(
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().ValueCollection({L"1"})))));
    MetaDropDocument(file);

    EXPECT_EQ(Item(file, L"Constraints\\p", 0), Found(L"1"));
}

TEST_F(EnumValueCollectionRaw, KeepsTheAnswersOfSeveralKeysApart)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"p", XmlContent().ValueCollection({L"of p"}))
                                 .ParamSection(L"q", XmlContent().ValueCollection({L"of q"}))
                                 .ParamSection(L"r", XmlContent().ValueCollection({L"of r"}))));

    for (int round = 0; round < 2; ++round)
    {
        EXPECT_EQ(Item(file, L"Constraints\\p", 0), Found(L"of p"));
        EXPECT_EQ(Item(file, L"Constraints\\q", 0), Found(L"of q"));
        EXPECT_EQ(Item(file, L"Constraints\\r", 0), Found(L"of r"));
    }
}

} // namespace
} // namespace norvepa::test
