#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

XmlContent Values(Texts values)
{
    return XmlContent().ValueCollection(values);
}

class CheckConstraintList : public DeviceScene
{
protected:
    [[nodiscard]] static Result Listed(const wchar_t* parameter, const wchar_t* value)
    {
        return LogDeviceCheckConstraintList(L"Presse", parameter, value);
    }
};

TEST_F(CheckConstraintList, RefusesMissingArguments)
{
    EXPECT_EQ(LogDeviceCheckConstraintList(nullptr, L"baudrate", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceCheckConstraintList(L"", L"baudrate", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Listed(nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Listed(L"", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Listed(L"baudrate", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Listed(L"baudrate", L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(CheckConstraintList, NeedsTheDataFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(Listed(L"baudrate", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Listed(L"Stufe", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(CheckConstraintList, SucceedsWithoutTheProgramFolder)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600"})));
    store.TakeProgramFolderAway();

    EXPECT_EQ(Listed(L"baudrate", L"1"), PGSP_OK);
}

TEST_F(CheckConstraintList, PassesWhatNoFileDefines)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"min", L"1"}}, Values({L"9600"})));
    store.WriteProtocol(Catalogue().Parameter(L"l4_timeout", {{L"min", L"1"}}, Values({L"500"})));

    EXPECT_EQ(Listed(L"baudrate", L"1"), PGSP_OK);
    EXPECT_EQ(Listed(L"l4_timeout", L"1"), PGSP_OK);
}

TEST_F(CheckConstraintList, PassesOtherParametersWithAListOfTheirOwn)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}, Values({L"9600"})));

    EXPECT_EQ(Listed(L"Stufe", L"1"), PGSP_OK);
}

TEST_F(CheckConstraintList, FindsABaudrateOfTheBoard)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600", L"19200"})));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"19200"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"4800"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, TakesTheParameterInAnyCase)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600"}))
                         .Parameter(L"l4_timeout", {{L"type", L"int"}}, Values({L"500"})));

    EXPECT_EQ(Listed(L"BaudRate", L"9600"), PGSP_OK);
    EXPECT_EQ(Listed(L"BaudRate", L"500"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"L4_Timeout", L"500"), PGSP_OK);
    EXPECT_EQ(Listed(L"L4_Timeout", L"9600"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, ComparesTextsWithoutRegardToCase)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"Auto"})));

    EXPECT_EQ(Listed(L"baudrate", L"AUTO"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"auto"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"aut"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, ComparesTextsAndNotNumbers)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600"})));

    EXPECT_EQ(Listed(L"baudrate", L"09600"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"baudrate", L"9600 "), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, ComparesWhatIsAheadOfTheFirstSlash)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}},
                                           Values({L"9600/9.6 kBaud/slow", L"//19200/fast", L"/", L""})));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"19200"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"9.6 kBaud"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"baudrate", L"9600/9.6 kBaud/slow"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"baudrate", L"9600/"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"baudrate", L"fast"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"baudrate", L"/"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, RefusesEveryBaudrateOfABoardThatDefinesItWithoutAList)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}));
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600"})));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, RefusesEveryBaudrateThatOnlyTheProtocolDefinesAndLists)
{
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600"})));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_NOT_IN_LIST);

    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}));
    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_NOT_IN_LIST);
}

// The two forms of a list: which is read goes by the file that defines the parameter.
TEST_F(CheckConstraintList, ReadsTheBoardsSectionsForABaudrateThatOnlyTheProtocolDefines)
{
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"4800"})));
    store.WriteBoard(Catalogue().Parameter(
        L"baudrate", {}, SectionCollection({L"9600/slow", L"19200"}).Raw(Values({L"38400"}).utf8())));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"19200"), PGSP_OK);
    EXPECT_EQ(Listed(L"baudrate", L"38400"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"baudrate", L"4800"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, ReadsTheBoardsValuesForABaudrateThatTheBoardDefines)
{
    store.WriteBoard(
        Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, SectionCollection({L"9600", L"19200"})));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, FindsATimeoutOfTheBoardAheadOfTheProtocols)
{
    store.WriteBoard(Catalogue().Parameter(L"l4_timeout", {{L"type", L"int"}}, Values({L"500/ms", L"1000"})));
    store.WriteProtocol(Catalogue().Parameter(L"l4_timeout", {{L"type", L"int"}}, Values({L"2000"})));

    EXPECT_EQ(Listed(L"l4_timeout", L"500"), PGSP_OK);
    EXPECT_EQ(Listed(L"l4_timeout", L"1000"), PGSP_OK);
    EXPECT_EQ(Listed(L"l4_timeout", L"2000"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Listed(L"l4_timeout", L"ms"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, FindsATimeoutThatOnlyTheProtocolDefinesInTheProtocol)
{
    store.WriteBoard(Catalogue().Parameter(L"l4_timeout", {{L"min", L"1"}}, Values({L"500"})));
    store.WriteProtocol(Catalogue().Parameter(L"l4_timeout", {{L"type", L"int"}}, Values({L"2000"})));

    EXPECT_EQ(Listed(L"l4_timeout", L"2000"), PGSP_OK);
    EXPECT_EQ(Listed(L"l4_timeout", L"500"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, RefusesEveryTimeoutOfADefinitionWithoutAList)
{
    store.WriteProtocol(Catalogue().Parameter(L"l4_timeout", {{L"type", L"int"}}));

    EXPECT_EQ(Listed(L"l4_timeout", L"500"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, OfACheckedValueReplacesItsBounds)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"baudrate", {{L"type", L"int"}, {L"min", L"10000"}, {L"max", L"1"}},
                                    Values({L"9600"}))
                         .Parameter(L"l4_timeout", {{L"type", L"int"}, {L"min", L"10000"}, {L"max", L"1"}},
                                    Values({L"500"})));

    EXPECT_EQ(Check(L"baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Check(L"baudrate", L"10000"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(Check(L"l4_timeout", L"500"), PGSP_OK);
    EXPECT_EQ(Check(L"l4_timeout", L"10000"), PGSP_NOT_IN_LIST);
}

TEST_F(CheckConstraintList, IsReadOnceOfABoard)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"9600"})));
    EXPECT_EQ(Listed(L"baudrate", L"19200"), PGSP_NOT_IN_LIST);

    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, Values({L"19200"})));

    EXPECT_EQ(Listed(L"baudrate", L"9600"), PGSP_OK);
}

} // namespace
} // namespace norvepa::test
