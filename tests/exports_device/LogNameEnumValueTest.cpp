#include "GetScene.h"

#include <utility>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class LogNameEnumValue : public GetScene
{
protected:
    LogNameEnumValue() { Write(XmlContent().Text(L"Ort", L"Halle")); }

    void Write(const XmlContent& parameters) const
    {
        WriteBytes(roots.logName(L"Pumpe"), LogNameFile(parameters));
    }

    [[nodiscard]] std::int32_t Enum(const wchar_t* logName, std::uint32_t index, OutputBuffer& name,
                                    OutputBuffer& value) const
    {
        return library.LogNameGetEnumValueBL(logName, index, name.data(), &name.length, value.data(),
                                             &value.length);
    }

    [[nodiscard]] Pairs All(const wchar_t* logName = L"Pumpe") const
    {
        return AllPairs([&](std::uint32_t index, OutputBuffer& name, OutputBuffer& value) {
            return Enum(logName, index, name, value);
        });
    }
};

TEST_F(LogNameEnumValue, GivesEveryParameterAndLeavesNothingOut)
{
    Write(XmlContent()
              .Text(L"LogDevice", L"Kessel;2")
              .Text(L"hidden", L"true")
              .Text(L"LOCKED_BY_THREAD_POINTER", L"17")
              .Text(L"Leer", L"")
              .Text(L"St\u00F6rung", L"\u00DCberdruck"));

    EXPECT_THAT(All(), ElementsAre(std::pair(L"LogDevice", L"Kessel;2"), std::pair(L"hidden", L"true"),
                                   std::pair(L"LOCKED_BY_THREAD_POINTER", L"17"), std::pair(L"Leer", L""),
                                   std::pair(L"St\u00F6rung", L"\u00DCberdruck")));
}

TEST_F(LogNameEnumValue, GivesTheRootsAttributesLast)
{
    WriteBytes(roots.logName(L"Pumpe"), XmlFile(L"LogName", {{L"CP_TYPE", L"MPI"}},
                                                Section(L"Parameters", L"CP_TYPE", L"the parameter")));

    EXPECT_THAT(All(), ElementsAre(std::pair(L"CP_TYPE", L"the parameter"), std::pair(L"CP_TYPE", L"MPI")));
}

TEST_F(LogNameEnumValue, EndsAtOnceWithoutParameters)
{
    Write({});

    EXPECT_THAT(All(), IsEmpty());
}

TEST_F(LogNameEnumValue, SeesAChangeOnceTheFileHasBeenWalkedToTheEnd)
{
    EXPECT_EQ(All().size(), 1U);
    ASSERT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Ort", L"Hof"), PGSP_OK);

    EXPECT_THAT(All(), ElementsAre(std::pair(L"Ort", L"Hof")));
}

TEST_F(LogNameEnumValue, LeavesEverythingAsItWasPastTheEndAndWithoutTheFile)
{
    OutputBuffer name(20);
    OutputBuffer value(20);

    EXPECT_EQ(Enum(L"Pumpe", 1, name, value), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Enum(L"gone", 0, name, value), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(name.length, 20U);
    EXPECT_EQ(value.length, 20U);
}

TEST_F(LogNameEnumValue, NeedsOneCharacterMoreThanNameAndValueAndCopiesTheNameFirst)
{
    OutputBuffer name(4);
    OutputBuffer value(6);
    EXPECT_EQ(Enum(L"Pumpe", 0, name, value), PGSP_OK);
    EXPECT_EQ(name.text(), L"Ort");
    EXPECT_EQ(value.text(), L"Halle");

    OutputBuffer shortName(3);
    OutputBuffer untouched(5);
    EXPECT_EQ(Enum(L"Pumpe", 0, shortName, untouched), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_TRUE(shortName.isUntouched());
    EXPECT_EQ(shortName.length, 3U);
    EXPECT_TRUE(untouched.isUntouched());
    EXPECT_EQ(untouched.length, 5U);

    OutputBuffer copied(4);
    OutputBuffer shortValue(5);
    EXPECT_EQ(Enum(L"Pumpe", 0, copied, shortValue), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(copied.text(), L"Ort");
    EXPECT_TRUE(shortValue.isUntouched());
    EXPECT_EQ(shortValue.length, 5U);
}

TEST_F(LogNameEnumValue, RefusesBadArgumentsAheadOfLookingForTheFolder)
{
    store.TakeDataFolderAway();
    OutputBuffer name(20);
    OutputBuffer value(20);
    const auto call = [&](wchar_t* parameter, std::uint32_t* parLen, wchar_t* text, std::uint32_t* valLen) {
        return library.LogNameGetEnumValueBL(L"Pumpe", 0, parameter, parLen, text, valLen);
    };

    EXPECT_EQ(Enum(nullptr, 0, name, value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Enum(L"", 0, name, value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(nullptr, &name.length, value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(name.data(), nullptr, value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(name.data(), &name.length, nullptr, &value.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(name.data(), &name.length, value.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Enum(L"Pumpe", 0, name, value), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(value.isUntouched());
}

// The store refuses it, and so behind the folder.
TEST_F(LogNameEnumValue, RefusesBuffersOfNoCharacters)
{
    OutputBuffer none(0);
    OutputBuffer some(20);
    EXPECT_EQ(Enum(L"Pumpe", 0, none, some), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Enum(L"Pumpe", 0, some, none), PGSP_ERR_INVALID_PARAMETERS);

    store.TakeDataFolderAway();
    EXPECT_EQ(Enum(L"Pumpe", 0, none, some), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
