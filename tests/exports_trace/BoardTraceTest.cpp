#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class BoardTrace : public CatalogueTraceScene
{
protected:
    [[nodiscard]] std::int32_t EnumValue(const wchar_t* board)
    {
        return library().PGSP_BoardGetEnumValueBL(board, 0, buffer, &length, value, &valueLength);
    }

    [[nodiscard]] std::int32_t Values(const wchar_t* name)
    {
        return library().PGSP_BoardGetValueListBL(L"X", name, static_cast<std::uint32_t>(wcslen(name)) + 1,
                                                  buffer, &length);
    }

    [[nodiscard]] std::int32_t Collection(const wchar_t* key)
    {
        return library().PGSP_BoardGetValueCollectionBL(key, L"X", buffer, &length);
    }

    wchar_t value[20] = L"before";
    std::uint32_t valueLength = 20;
};

TEST_F(BoardTrace, OfAnEnumerationTellsThePairAndTheResult)
{
    Load();

    EXPECT_EQ(EnumValue(L"*X"), PGSP_OK);
    length = valueLength = 20;
    EXPECT_EQ(EnumValue(L"X\\s"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetEnumValueBL"),
                ElementsAre("entry: >> Board = *X, index = 0",
                            "information: Parameter = a, parLen = 1, Value = abc, valLen = 3",
                            "exit: << return lRet = 0", "entry: >> Board = X\\s, index = 0",
                            "information: Parameter = default, parLen = 7, Value = 1, valLen = 1",
                            "exit: << return lRet = 0"));
}

TEST_F(BoardTrace, OfAnEnumerationThatFailsTellsTheBuffersNoFurtherThanTheyGo)
{
    Load();
    length = 3;
    valueLength = 4;

    EXPECT_EQ(EnumValue(L"X\\gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(EnumValue(L"X\\s"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_BoardGetEnumValueBL"),
                ElementsAre("entry: >> Board = X\\gone, index = 0",
                            "information: Parameter = bef, parLen = 3, Value = befo, valLen = 4",
                            "exit: << return lRet = 8513", "entry: >> Board = X\\s, index = 0",
                            "information: Parameter = bef, parLen = 7, Value = befo, valLen = 4",
                            "exit: << return lRet = 234"));
}

TEST_F(BoardTrace, OfAnEnumerationWithoutOutputsTellsNothingOfThem)
{
    Load();

    EXPECT_EQ(library().PGSP_BoardGetEnumValueBL(L"X\\s", 7, nullptr, nullptr, nullptr, nullptr), -1);

    EXPECT_THAT(LinesOf("PGSP_BoardGetEnumValueBL"),
                ElementsAre("entry: >> Board = X\\s, index = 7",
                            "information: Parameter = , parLen = 0, Value = , valLen = 0",
                            "exit: << return lRet = -1"));
}

TEST_F(BoardTrace, OfAValueTellsItAndTheResult)
{
    Load();

    EXPECT_EQ(library().PGSP_BoardGetValueBL(L"*X", L"a", buffer, &length), PGSP_OK);
    length = 20;
    EXPECT_EQ(library().PGSP_BoardGetValueBL(L"X", nullptr, buffer, &length), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueBL"),
                ElementsAre("entry: >> DeviceID = *X, Parameter = a", "information: Value = abc, dwValue = 3",
                            "exit: << return lRet = 0", "entry: >> DeviceID = X, Parameter = ",
                            "information: Value = def, dwValue = 3", "exit: << return lRet = 0"));
}

TEST_F(BoardTrace, OfAValueThatIsNotThereTellsTheBufferNoFurtherThanItGoes)
{
    Load();
    length = 3;

    EXPECT_EQ(library().PGSP_BoardGetValueBL(L"X", L"gone", buffer, &length), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueBL"),
                ElementsAre("entry: >> DeviceID = X, Parameter = gone",
                            "information: Value = bef, dwValue = 3", "exit: << return lRet = 8513"));
}

TEST_F(BoardTrace, OfAValueByPathTellsTheWay)
{
    Load();

    EXPECT_EQ(library().PGSP_BoardGetValueRawBL(L"X", L"Install", L"a", buffer, &length), PGSP_OK);
    length = 3;
    EXPECT_EQ(library().PGSP_BoardGetValueRawBL(L"X", L"Install", nullptr, buffer, &length), 234);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueRawBL"),
                ElementsAre("entry: >> DeviceID = X, Parameter = a", "information: NorvXMLGetValueRaw",
                            "information: Value = abc, dwValue = 3", "exit: << return lRet = 0",
                            "entry: >> DeviceID = X, Parameter = ", "information: NorvXMLGetValueRaw",
                            "information: Value = abc, dwValue = 3", "exit: << return lRet = 234"));
}

TEST_F(BoardTrace, OfAValueWithoutAPathTellsNoWay)
{
    Load();

    EXPECT_EQ(library().PGSP_BoardGetValueRawBL(L"X", L"", L"a", buffer, &length), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueRawBL"),
                ElementsAre("entry: >> DeviceID = X, Parameter = a", "information: Value = abc, dwValue = 3",
                            "exit: << return lRet = 0"));
}

TEST_F(BoardTrace, OfAListOfValuesIsItsResult)
{
    Load();

    EXPECT_EQ(Values(L"a"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueListBL"),
                ElementsAre("entry: >> DeviceID = X", "exit: << return PGSP_OK"));
}

TEST_F(BoardTrace, OfAListWithAnUnknownNameHasNoExit)
{
    Load();

    EXPECT_EQ(Values(L"gone"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueListBL"), ElementsAre("entry: >> DeviceID = X"));
}

TEST_F(BoardTrace, OfAListOfValuesTellsTheEdgesApart)
{
    Load();
    length = 4;
    EXPECT_EQ(Values(L"a"), PGSP_OK);
    length = 3;
    EXPECT_EQ(Values(L"a"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueListBL"),
                ElementsAre("entry: >> DeviceID = X", "exit: << return lRet = 0", "entry: >> DeviceID = X",
                            "information: Not all values are returned",
                            "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(BoardTrace, OfACollectionTellsItsKeyAndTheEdgesApart)
{
    Load();
    EXPECT_EQ(Collection(L"NotSupported"), PGSP_OK);
    length = 8;
    EXPECT_EQ(Collection(L"NotSupported"), PGSP_ERR_NO_MORE_ITEMS);
    length = 7;
    EXPECT_EQ(Collection(L"NotSupported"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueCollectionBL"),
                ElementsAre("entry: >> NotSupported: DeviceID = X", "exit: << return PGSP_OK",
                            "entry: >> NotSupported: DeviceID = X", "exit: << return lRet = 259",
                            "entry: >> NotSupported: DeviceID = X",
                            "information: Not all values are returned",
                            "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(BoardTrace, OfACollectionThatIsNotThereIsThatOfAnyOther)
{
    Load();

    EXPECT_EQ(Collection(nullptr), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueCollectionBL"),
                ElementsAre("entry: >> : DeviceID = X", "exit: << return PGSP_OK"));
}

TEST_F(BoardTrace, OfNotSupportedIsTheCollectionsAlone)
{
    Load();

    EXPECT_EQ(library().PGSP_BoardGetNotSupportedBL(L"*X", buffer, &length), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetNotSupportedBL"), IsEmpty());
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueCollectionBL"),
                ElementsAre("entry: >> NotSupported: DeviceID = *X", "exit: << return PGSP_OK"));
}

TEST_F(BoardTrace, OfBadArgumentsStillBeginsWithTheEntry)
{
    Load();

    EXPECT_EQ(EnumValue(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_BoardGetValueBL(L"", L"a", buffer, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_BoardGetValueRawBL(L"", L"b", L"a", buffer, &length), 87);
    EXPECT_EQ(library().PGSP_BoardGetValueListBL(nullptr, L"a", 2, buffer, &length), 87);
    EXPECT_EQ(library().PGSP_BoardGetValueCollectionBL(L"key", L"", buffer, &length), 87);

    EXPECT_THAT(LinesOf("PGSP_BoardGetEnumValueBL"), ElementsAre("entry: >> Board = , index = 0", Refusal));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueBL"),
                ElementsAre("entry: >> DeviceID = , Parameter = a", Refusal));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueRawBL"),
                ElementsAre("entry: >> DeviceID = , Parameter = a", Refusal));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueListBL"), ElementsAre("entry: >> DeviceID = ", Refusal));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueCollectionBL"),
                ElementsAre("entry: >> key: DeviceID = ", Refusal));
}

TEST_F(BoardTrace, OfAMissingProgramFolderNamesIt)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(EnumValue(L"X"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_BoardGetValueBL(L"X", L"a", buffer, &length), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_BoardGetValueRawBL(L"X", L"b", L"a", buffer, &length), 8517);
    EXPECT_EQ(Values(L"a"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Collection(L"key"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_BoardGetEnumValueBL"),
                ElementsAre("entry: >> Board = X, index = 0", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueBL"),
                ElementsAre("entry: >> DeviceID = X, Parameter = a", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueRawBL"),
                ElementsAre("entry: >> DeviceID = X, Parameter = a", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueListBL"),
                ElementsAre("entry: >> DeviceID = X", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueCollectionBL"),
                ElementsAre("entry: >> key: DeviceID = X", NoProgramFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
