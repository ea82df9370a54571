#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

using SetValueTypeTest = WriteScene;

struct TypeCase
{
    const wchar_t* type;
    const wchar_t* value;
    std::wstring_view element;
    std::wstring_view stored;
};

class SetValueTypes : public WriteScene, public testing::WithParamInterface<TypeCase>
{
};

TEST_P(SetValueTypes, SayTheElementOfANewEntry)
{
    const auto& [type, value, element, stored] = GetParam();
    GivenFile(DeviceWith({}));

    EXPECT_EQ(Set(L"LocalSettings", L"a", value, type), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(EntryIn(element, L"a", stored))));
}

TEST_P(SetValueTypes, SayTheElementThatIsFound)
{
    const auto& [type, value, element, stored] = GetParam();
    GivenFile(DeviceWith(EntryIn(element, L"a", L"before")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", value, type), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(EntryIn(element, L"a", stored))));
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetValueTypes,
                         testing::Values(TypeCase{L"int", L"-12", L"ParameterInt", L"-12"},
                                         TypeCase{L"INT", L"12", L"ParameterInt", L"12"},
                                         TypeCase{L"bool", L"TRUE", L"ParameterBool", L"true"},
                                         TypeCase{L"Bool", L"False", L"ParameterBool", L"false"},
                                         TypeCase{L"string", L"text", L"Parameter", L"text"},
                                         TypeCase{L"String", L"text", L"Parameter", L"text"},
                                         TypeCase{L"", L"text", L"Parameter", L"text"},
                                         TypeCase{nullptr, L"text", L"Parameter", L"text"},
                                         TypeCase{L"ParameterInt", L"no <number>", L"ParameterInt",
                                                  L"no <number>"},
                                         TypeCase{L"ParameterBool", L"YES", L"ParameterBool", L"YES"},
                                         TypeCase{L"Parameter", L"<>", L"Parameter", L"<>"},
                                         TypeCase{L"Messwert_\u00E4", L"1", L"Messwert_\u00E4", L"1"}));

TEST_F(SetValueTypeTest, AMalformedValueIsRefused)
{
    GivenFile(DeviceWith({}));
    const std::string before = Bytes();

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"12a", L"int"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"yes", L"bool"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"LocalSettings", L"a", nullptr, L"bool"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"a<b", L"string"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"a>b", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"LocalSettings", L"my param", L"1", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetValueTypeTest, ANameIsOnlyTestedForStrings)
{
    GivenFile(DeviceWith({}));

    EXPECT_EQ(Set(L"LocalSettings", L"my param", L"1", L"int"), PGSP_OK);
    EXPECT_EQ(Set(L"LocalSettings", L"<my & \"param\">", L"1", L"other"), PGSP_OK);

    EXPECT_EQ(
        Saved(),
        MeaningOf(DeviceWith(
            XmlContent().Int(L"my param", L"1").Raw(EntryIn(L"other", L"<my & \"param\">", L"1").utf8()))));
}

class SetValueWrongElements : public WriteScene, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(SetValueWrongElements, LeaveTheFileAlone)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));
    const std::string before = Bytes();

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", GetParam()), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetValueWrongElements,
                         testing::Values(L" ", L"two words", L"1st", L"-a", L"a<b", L"a/", L"\"", L"a&b",
                                         L":", L"a:", L"xmlns:a", L"xml:a", L"\u00D7", L"a\u00A0", L"a\uFFFE",
                                         L"a\x01"));

// What the engines read back decides: all that stands behind the entry has to be found too.
class SetValueOddElements : public WriteScene, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(SetValueOddElements, LeaveTheFileWhole)
{
    GivenFile(LogDeviceFile(XmlContent()
                                .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))
                                .Element(L"Bindings", XmlContent().Int(L"behind", L"3"))));

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", GetParam()), PGSP_OK);

    std::wstring value;
    EXPECT_EQ(NorvXMLGetValue(path().c_str(), L"Bindings", L"behind", &value), PGSP_OK);
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", GetParam()), PGSP_ERR_SAME_VALUE);
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetValueOddElements,
                         testing::Values(L"_", L"a.b-c_9", L"Name", L"Value", L"xml", L"xmlns",
                                         L"LocalSettings", L"o:q", L"\u03A9", L"\u4E2D\u6587", L"a\u00B7"));

} // namespace
} // namespace norvepa::test
