#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

class TemplateGetEnumValueRaw : public TemplateScene
{
protected:
    static XmlContent Listing(Texts items)
    {
        return XmlContent()
            .Element(L"NotSupported", XmlContent().ValueCollection(items))
            .Element(L"Constraints", XmlContent().ParamSection(L"p", XmlContent().ValueCollection(items)));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* folder, const wchar_t* name, const wchar_t* key,
                                   OutputBuffer& value) const
    {
        return library.PGSP_TemplateGetEnumValueRawBL(folder, name, key, 0, value.data(), &value.length);
    }
};

TEST_F(TemplateGetEnumValueRaw, GoesThroughAListInTheFilesOrder)
{
    WriteBoard(L"X", Listing({L"of the board", L"", L" \u00DCber; <1>"}));
    WriteProtocol(L"X", Listing({L"of the protocol"}));
    WriteTemplate(L"X", Listing({L"of the template"}));
    WriteIn(L"Own", L"X", Listing({L"of one's own"}));

    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 0), L"of the board");
    EXPECT_EQ(Item(L"Boards", L"X", L"constraints\\P", 1), L"");
    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 2), L" \u00DCber; <1>");
    EXPECT_EQ(Item(L"Boards", L"X", L"NotSupported", 0), L"of the board");
    EXPECT_EQ(Item(L"Protocols", L"X", L"Constraints\\p", 0), L"of the protocol");
    EXPECT_EQ(Item(L"DefaultLogDevices", L"X", L"Constraints\\p", 0), L"of the template");
    EXPECT_EQ(Item(L"Own", L"X", L"Constraints\\p", 0), L"of one's own");
}

TEST_F(TemplateGetEnumValueRaw, EndsBehindTheLastItem)
{
    WriteBoard(L"X", Listing({L"1", L"2"}));

    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 2), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 1), L"2");
}

TEST_F(TemplateGetEnumValueRaw, TellsAFileOrAListThatIsMissing)
{
    WriteBoard(L"X", Listing({L"1"}));

    EXPECT_EQ(Item(L"Boards", L"gone", L"Constraints\\p", 0), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Item(L"gone", L"X", L"Constraints\\p", 0), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\q", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Item(L"Boards", L"X", L"", 0), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(TemplateGetEnumValueRaw, TellsAPathThatIsTooLong)
{
    const std::wstring tooLong(260, L'n');

    for (const wchar_t* const folder : {L"Boards", L"Protocols", L"DefaultLogDevices", L"Own"})
    {
        EXPECT_EQ(Item(folder, tooLong, L"Constraints\\p", 0), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    }
}

TEST_F(TemplateGetEnumValueRaw, StaysAsItWasFirstRead)
{
    WriteBoard(L"X", Listing({L"old"}));
    ASSERT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 0), L"old");

    WriteBoard(L"X", Listing({L"new"}));

    EXPECT_EQ(Item(L"Boards", L"X", L"Constraints\\p", 0), L"old");
    EXPECT_EQ(Item(L"Boards", L"X", L"NotSupported", 0), L"old");
}

TEST_F(TemplateGetEnumValueRaw, FillsABufferOfOneCharacterMore)
{
    WriteBoard(L"X", Listing({L"abc"}));
    for (const std::uint32_t capacity : {0U, 3U})
    {
        OutputBuffer value(capacity);

        EXPECT_EQ(Ask(L"Boards", L"X", L"NotSupported", value), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 3U);
    }
    OutputBuffer value(4);

    EXPECT_EQ(Ask(L"Boards", L"X", L"NotSupported", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"abc");
    EXPECT_EQ(value.length, 3U);
}

TEST_F(TemplateGetEnumValueRaw, NeedsAKeyOnlyBehindTheFolder)
{
    WriteBoard(L"X", Listing({L"1"}));
    OutputBuffer value(20);
    EXPECT_EQ(Ask(L"Boards", L"X", nullptr, value), PGSP_ERR_INVALID_PARAMETERS);

    TakeProgramFolderAway();
    EXPECT_EQ(Ask(L"Boards", L"X", nullptr, value), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

} // namespace
} // namespace norvepa::test
