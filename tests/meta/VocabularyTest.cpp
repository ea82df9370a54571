#include "meta/Vocabulary.h"

#include <gmock/gmock.h>
#include <limits>
#include <string>
#include <vector>

namespace norvepa
{
namespace
{

template <typename Tag>
struct Row
{
    std::int32_t number;
    Tag tag;
    std::wstring word;
};

using ElementRow = Row<EpaBlElementTag>;
using AttributeRow = Row<EpaBlAttributeTag>;

std::vector<ElementRow> ElementRows()
{
    using enum EpaBlElementTag;
    return {
        {1, Assembly, L"Assembly"},
        {2, BasicParams, L"BasicParams"},
        {3, Bindings, L"Bindings"},
        {4, BoardAttributes, L"BoardAttributes"},
        {5, Busparameter, L"Busparameter"},
        {6, Clients, L"Clients"},
        {7, Constraints, L"Constraints"},
        {8, Default, L"default"},
        {9, Device, L"Device"},
        {10, DeviceHeader, L"DeviceHeader"},
        {11, DisplayStep, L"DisplayStep"},
        {12, DisplayMultiplier, L"DisplayMultiplier"},
        {13, Function, L"Function"},
        {14, Install, L"Install"},
        {15, Load, L"Load"},
        {16, LocalSettings, L"LocalSettings"},
        {17, LogDevice, L"LogDevice"},
        {18, LogName, L"LogName"},
        {19, Map, L"map"},
        {20, Max, L"max"},
        {21, Min, L"min"},
        {22, Name, L"Name"},
        {23, NameSpace, L"NameSpace"},
        {24, NetworkSettings, L"NetworkSettings"},
        {25, NotSupported, L"NotSupported"},
        {26, BaseSupported, L"BaseSupported"},
        {27, Ndi, L"Ndi"},
        {28, Option, L"option"},
        {29, ParamDesc, L"ParamDesc"},
        {30, Parameter, L"Parameter"},
        {31, Parameters, L"Parameters"},
        {32, ParameterAssemblyLink, L"ParameterAssemblyLink"},
        {33, ParameterBool, L"ParameterBool"},
        {34, ParameterInt, L"ParameterInt"},
        {35, ParamSection, L"ParamSection"},
        {36, Path, L"Path"},
        {37, Profile, L"Profile"},
        {38, RelevantSection, L"RelevantSection"},
        {39, Resource, L"Resource"},
        {40, ResourceId, L"ResourceId"},
        {41, Section, L"section"},
        {42, MarvoltNTLinkage, L"MarvoltNTLinkage"},
        {43, SpareSection, L"SpareSection"},
        {44, Step, L"step"},
        {45, Subdevice, L"Subdevice"},
        {46, Subdevices, L"Subdevices"},
        {47, Type, L"type"},
        {48, UserInterface, L"UserInterface"},
        {49, UserInterface64, L"UserInterface64"},
        {50, Value, L"Value"},
        {51, ValueCollection, L"ValueCollection"},
    };
}

std::vector<AttributeRow> AttributeRows()
{
    using enum EpaBlAttributeTag;
    return {
        {1, Alias, L"Alias"},
        {2, CpType, L"CP_TYPE"},
        {3, DeviceId, L"DeviceId"},
        {4, Extension, L"Extension"},
        {5, MajorVersion, L"MajorVersion"},
        {6, MinorVersion, L"MinorVersion"},
        {7, Name, L"Name"},
        {8, Param, L"Param"},
        {9, SubdevName, L"SubdevName"},
    };
}

std::wstring WithCaseTurned(std::wstring word)
{
    for (wchar_t& letter : word)
    {
        const bool isLetter = (letter >= L'a' && letter <= L'z') || (letter >= L'A' && letter <= L'Z');
        letter = isLetter ? static_cast<wchar_t>(letter ^ 0x20) : letter;
    }
    return word;
}

TEST(Vocabulary, OfElementsHasThese51WordsWithTheseNumbers)
{
    ASSERT_EQ(ElementRows().size(), 51u);
    for (const ElementRow& row : ElementRows())
    {
        EXPECT_EQ(static_cast<std::int32_t>(row.tag), row.number);
        EXPECT_EQ(ElementTagFromName(row.word), row.tag) << row.number;
        EXPECT_EQ(ElementTagName(row.tag), row.word) << row.number;
    }
}

TEST(Vocabulary, OfAttributesHasThese9WordsWithTheseNumbers)
{
    ASSERT_EQ(AttributeRows().size(), 9u);
    for (const AttributeRow& row : AttributeRows())
    {
        EXPECT_EQ(static_cast<std::int32_t>(row.tag), row.number);
        EXPECT_EQ(AttributeTagFromName(row.word), row.tag) << row.number;
        EXPECT_EQ(AttributeTagName(row.tag), row.word) << row.number;
    }
}

TEST(Vocabulary, KnowsItsWordsInAnyCase)
{
    for (const ElementRow& row : ElementRows())
    {
        EXPECT_EQ(ElementTagFromName(WithCaseTurned(row.word)), row.tag) << row.number;
    }
    for (const AttributeRow& row : AttributeRows())
    {
        EXPECT_EQ(AttributeTagFromName(WithCaseTurned(row.word)), row.tag) << row.number;
    }
}

TEST(Vocabulary, AnswersInItsOwnSpelling)
{
    EXPECT_STREQ(ElementTagName(ElementTagFromName(L"PARAMSECTION")), L"ParamSection");
    EXPECT_STREQ(ElementTagName(ElementTagFromName(L"Valuecollection")), L"ValueCollection");
    EXPECT_STREQ(AttributeTagName(AttributeTagFromName(L"cp_type")), L"CP_TYPE");
}

TEST(Vocabulary, GivesAnElementWordThatItDoesNotKnowTheNumber0)
{
    for (const wchar_t* word : {L"", L"Values", L"Valu", L"NotSet", L"base", L"Param", L" Value", L"Value "})
    {
        EXPECT_EQ(ElementTagFromName(word), EpaBlElementTag::None) << "'" << word << "'";
    }
}

TEST(Vocabulary, GivesAnAttributeWordThatItDoesNotKnowTheNumber0)
{
    for (const wchar_t* word : {L"", L"Names", L"Nam", L"xmlns", L"version", L"Value", L" Name", L"Name "})
    {
        EXPECT_EQ(AttributeTagFromName(word), EpaBlAttributeTag::None) << "'" << word << "'";
    }
}

TEST(Vocabulary, CallsAnElementNumberWithoutAWordNotSet)
{
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t number : {0, 52, -1, least, most})
    {
        EXPECT_STREQ(ElementTagName(EpaBlElementTag{number}), L"NotSet") << number;
    }
}

TEST(Vocabulary, CallsTheAttributeNumber0EmptyAndAnyOtherWithoutAWordNothing)
{
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    constexpr auto most = std::numeric_limits<std::int32_t>::max();

    EXPECT_STREQ(AttributeTagName(EpaBlAttributeTag::None), L"");
    for (const std::int32_t number : {10, -1, least, most})
    {
        EXPECT_EQ(AttributeTagName(EpaBlAttributeTag{number}), nullptr) << number;
    }
}

TEST(EqualWords, LooksAtTheFirst4096CharactersWithoutRegardToCase)
{
    const std::wstring same(4096, L'a');
    const std::wstring sameInCapitals(4096, L'A');

    EXPECT_TRUE(EqualWords(same + L"x", sameInCapitals + L"y"));
    EXPECT_TRUE(EqualWords(same, sameInCapitals + L"y"));
    EXPECT_FALSE(EqualWords(same.substr(1) + L"x", sameInCapitals.substr(1) + L"y"));
    EXPECT_FALSE(EqualWords(same.substr(1), sameInCapitals));
}

} // namespace
} // namespace norvepa
