#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

class GetConstraint : public DeviceScene
{
protected:
    [[nodiscard]] static std::wstring OrEmpty(const wchar_t* logDevice, const wchar_t* parameter,
                                              const wchar_t* word)
    {
        DeviceCatalogue catalogue(logDevice);
        return ConstraintOrEmpty(catalogue, parameter, word);
    }

    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }
};

TEST_F(GetConstraint, ComesFromTheBoard)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}});

    EXPECT_EQ(Constraint(L"Stufe", L"type"), L"int");
    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"1");
}

TEST_F(GetConstraint, ComesFromTheProtocolWithoutABoard)
{
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}));

    EXPECT_EQ(Constraint(L"Stufe", L"type"), L"int");
}

TEST_F(GetConstraint, IsTheBoardsWordByWord)
{
    WriteStufe({{L"type", L"int"}, {L"max", L"8"}});
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"min", L"1"}, {L"max", L"9"}}));

    EXPECT_EQ(Constraint(L"Stufe", L"max"), L"8");
    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"1");
}

// A word is remembered by its text, and this one has none.
TEST_F(GetConstraint, IsTheBoardsEmptyWordOnceAndThenTheProtocols)
{
    WriteBytes(
        roots.board(L"AFK110"),
        "<Device><Constraints><ParamSection Param=\"Stufe\"><max/></ParamSection></Constraints></Device>");
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"max", L"9"}}));

    EXPECT_EQ(Constraint(L"Stufe", L"max"), L"");
    EXPECT_EQ(Constraint(L"Stufe", L"max"), L"9");
}

TEST_F(GetConstraint, TakesParameterAndWordInAnyCase)
{
    WriteStufe({{L"min", L"1"}});

    EXPECT_EQ(Constraint(L"STUFE", L"MIN"), L"1");
}

TEST_F(GetConstraint, IsNotFoundWhenNeitherFileHasTheWord)
{
    WriteStufe({{L"type", L"int"}});
    store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));

    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"(result 8513)");
    EXPECT_EQ(Constraint(L"unknown", L"type"), L"(result 8513)");
}

TEST_F(GetConstraint, IsNotFoundWithoutCatalogueFilesRatherThanNotLoaded)
{
    EXPECT_EQ(Constraint(L"Stufe", L"type"), L"(result 8513)");
}

TEST_F(GetConstraint, OfAStarredBoardComesFromTheSameBoard)
{
    WriteStufe({{L"min", L"1"}});
    store.WriteDevice(L"Starred", {}, L"*AFK110");

    EXPECT_EQ(Constraint(L"Stufe", L"min", L"Starred"), L"1");
}

TEST_F(GetConstraint, DropsOneStarOnlyAndNoPrefix)
{
    WriteStufe({{L"min", L"1"}});
    store.WriteDevice(L"Twice", {}, L"**AFK110");
    store.WriteDevice(L"Prefixed", {}, L"Automation-OnlineAccess-BT-AFK110");

    EXPECT_EQ(Constraint(L"Stufe", L"min", L"Twice"), L"(result 8513)");
    EXPECT_EQ(Constraint(L"Stufe", L"min", L"Prefixed"), L"(result 8513)");
}

TEST_F(GetConstraint, DropsNoStarOfAProtocol)
{
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"min", L"1"}}));
    store.WriteDevice(L"Starred", {}, OurBoard, L"*MPI");

    EXPECT_EQ(Constraint(L"Stufe", L"min", L"Starred"), L"(result 8513)");
}

TEST_F(GetConstraint, OfADeviceThatIsMissingIsNotFound)
{
    WriteStufe({{L"min", L"1"}});

    EXPECT_EQ(Constraint(L"Stufe", L"min", L"gone"), L"(result 8513)");
}

TEST_F(GetConstraint, OfADeviceThatIsMissingComesFromTheBoardWithoutAnId)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"min", L"1"}}), L"");
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"max", L"9"}}), L"");

    EXPECT_EQ(Constraint(L"Stufe", L"min", L"gone"), L"1");
    EXPECT_EQ(Constraint(L"Stufe", L"max", L"gone"), L"9");
}

TEST_F(GetConstraint, IsReadOnceOfAFile)
{
    WriteStufe({{L"min", L"1"}});
    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"1");
    EXPECT_EQ(Constraint(L"Stufe", L"max"), L"(result 8513)");

    WriteStufe({{L"min", L"2"}, {L"max", L"9"}});

    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"1");
    EXPECT_EQ(Constraint(L"Stufe", L"max"), L"(result 8513)");
}

TEST_F(GetConstraint, ReadsTheDeviceEachTime)
{
    WriteStufe({{L"min", L"1"}});
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"min", L"2"}}), L"AFK220");
    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"1");

    store.WriteDevice(L"Presse", {}, L"AFK220");

    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"2");
}

TEST_F(GetConstraint, FindsDevicesWithCodedNames)
{
    WriteStufe({{L"min", L"1"}});
    store.WriteDevice(L"Presse(nmbr)3#3a 50#25 #2a#3f#3c#3e#7c#2f", {});
    store.WriteDevice(L"F\u00F6rderb\u00E4nder", {});

    EXPECT_EQ(Constraint(L"Stufe", L"min", L"Presse#3: 50% *?<>|/"), L"1");
    EXPECT_EQ(Constraint(L"Stufe", L"min", L"F\u00F6rderb\u00E4nder"), L"1");
}

TEST_F(GetConstraint, RefusesMissingArguments)
{
    WriteStufe({{L"min", L"1"}});
    std::wstring value = L"before";

    EXPECT_EQ(LogDeviceGetConstraint(nullptr, L"Stufe", L"min", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetConstraint(L"", L"Stufe", L"min", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", nullptr, L"min", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", L"", L"min", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", L"Stufe", nullptr, &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", L"Stufe", L"", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", L"Stufe", L"min", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(value, L"before");
}

TEST_F(GetConstraint, NeedsTheDataFolderAheadOfTheProgramFolder)
{
    WriteStufe({{L"min", L"1"}});
    store.TakeDataFolderAway();
    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"(result 8517)");

    store.TakeProgramFolderAway();

    EXPECT_EQ(Constraint(L"Stufe", L"min"), L"(result 8517)");
}

TEST_F(GetConstraint, SucceedsWithoutTheProgramFolderAndLeavesTheOutputAlone)
{
    store.TakeProgramFolderAway();
    std::wstring value = L"before";

    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", L"Stufe", L"min", &value), PGSP_OK);

    EXPECT_EQ(value, L"before");
}

TEST_F(GetConstraint, OrEmptyIsEmptyForWhateverFails)
{
    WriteStufe({{L"min", L"1"}});

    EXPECT_EQ(OrEmpty(L"Presse", L"Stufe", L"min"), L"1");
    EXPECT_EQ(OrEmpty(L"Presse", L"Stufe", L"max"), L"");
    EXPECT_EQ(OrEmpty(L"Presse", L"", L"min"), L"");
    EXPECT_EQ(OrEmpty(L"gone", L"Stufe", L"min"), L"");
    store.TakeProgramFolderAway();
    EXPECT_EQ(OrEmpty(L"Presse", L"Stufe", L"min"), L"");
}

} // namespace
} // namespace norvepa::test
