#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class DefDeviceGetEnumValue : public TemplateScene
{
protected:
    [[nodiscard]] Strings All(const std::wstring& name) const
    {
        Strings pairs;
        std::wstring pair = DevicePair(name, 0);
        while (pair != Failed(PGSP_ERR_NO_MORE_ITEMS))
        {
            pairs.push_back(pair);
            pair = DevicePair(name, static_cast<std::uint32_t>(pairs.size()));
        }
        return pairs;
    }

    // A template of one pair, name=value.
    void WriteOnePair() const
    {
        WriteBytes(roots.deviceTemplate(L"X"),
                   XmlFile(L"LogDevice", {},
                           XmlContent().Element(L"LocalSettings", XmlContent().Text(L"name", L"value"))));
    }

    [[nodiscard]] std::int32_t Ask(OutputBuffer& name, OutputBuffer& value) const
    {
        return library.PGSP_DefDeviceGetEnumValueBL(L"X", 0, name.data(), &name.length, value.data(),
                                                    &value.length);
    }
};

TEST_F(DefDeviceGetEnumValue, GoesThroughTheSectionsAndTheRootsAttributes)
{
    WriteTemplate(L"X", XmlContent()
                            .Element(L"NetworkSettings", XmlContent().Int(L"c", L"3"))
                            .Element(L"LocalSettings", XmlContent().Int(L"b", L"2").Text(L"e", L" \u00DC;="))
                            .Element(L"DeviceHeader", XmlContent().Bool(L"a", L"true"))
                            .Element(L"UserInterface64", XmlContent().Text(L"d", L"4")));

    EXPECT_THAT(All(L"X"),
                ElementsAre(L"a=true", L"e= \u00DC;=", L"b=2", L"c=3", L"CP_TYPE=MPI", L"DeviceId=AFK110"));
}

TEST_F(DefDeviceGetEnumValue, EndsBehindTheLastPair)
{
    WriteOnePair();

    EXPECT_EQ(DevicePair(L"X", 0), L"name=value");
    EXPECT_EQ(DevicePair(L"X", 1), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(DevicePair(L"X", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(DefDeviceGetEnumValue, SeesTheFileAnewBehindItsEnd)
{
    WriteOnePair();
    ASSERT_EQ(DevicePair(L"X", 0), L"name=value");
    WriteTemplate(L"X", XmlContent().Element(L"LocalSettings", XmlContent().Text(L"name", L"new")));
    ASSERT_EQ(DevicePair(L"X", 0), L"name=value");

    ASSERT_EQ(DevicePair(L"X", 1), Failed(PGSP_ERR_NO_MORE_ITEMS));

    EXPECT_EQ(DevicePair(L"X", 0), L"name=new");
}

TEST_F(DefDeviceGetEnumValue, FillsBuffersOfOneCharacterMore)
{
    WriteOnePair();
    OutputBuffer name(5);
    OutputBuffer value(6);

    EXPECT_EQ(Ask(name, value), PGSP_OK);

    EXPECT_EQ(name.text(), L"name");
    EXPECT_EQ(name.length, 4U);
    EXPECT_EQ(value.text(), L"value");
    EXPECT_EQ(value.length, 5U);
}

TEST_F(DefDeviceGetEnumValue, LeavesTheValueAloneWhenTheNameDoesNotFit)
{
    WriteOnePair();
    OutputBuffer name(4);
    OutputBuffer value(20);

    EXPECT_EQ(Ask(name, value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 4U);
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

TEST_F(DefDeviceGetEnumValue, HasCopiedTheNameWhenTheValueDoesNotFit)
{
    WriteOnePair();
    OutputBuffer name(20);
    OutputBuffer value(5);

    EXPECT_EQ(Ask(name, value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(name.text(), L"name");
    EXPECT_EQ(name.length, 4U);
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 5U);
}

TEST_F(DefDeviceGetEnumValue, RefusesALengthOfZero)
{
    WriteOnePair();
    OutputBuffer none(0);
    OutputBuffer some(20);

    EXPECT_EQ(Ask(none, some), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(some, none), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(none.isUntouched());
    EXPECT_TRUE(some.isUntouched());
    EXPECT_EQ(some.length, 20U);
}

TEST_F(DefDeviceGetEnumValue, RefusesMissingOutputsOnlyBehindTheRoot)
{
    WriteOnePair();
    OutputBuffer name(20);
    OutputBuffer value(20);
    const auto ask = [&](wchar_t* nameBuffer, std::uint32_t* nameLength, wchar_t* valueBuffer,
                         std::uint32_t* valueLength) {
        return library.PGSP_DefDeviceGetEnumValueBL(L"X", 0, nameBuffer, nameLength, valueBuffer,
                                                    valueLength);
    };
    EXPECT_EQ(ask(nullptr, &name.length, value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(ask(name.data(), nullptr, value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(ask(name.data(), &name.length, nullptr, &value.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(ask(name.data(), &name.length, value.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);

    TakeProgramFolderAway();
    EXPECT_EQ(ask(nullptr, nullptr, nullptr, nullptr), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(value.isUntouched());
}

} // namespace
} // namespace norvepa::test
