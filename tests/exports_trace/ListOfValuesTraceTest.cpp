#include "CatalogueTraceScene.h"
#include "support/DeviceStore.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

const std::string TooShort = "exit: << return PGSP_ERR_BUFFER_TOO_SHORT";
const std::string Board = "Automation-OnlineAccess-BT-X";
const std::string Protocol = "Automation-OnlineAccess-PT-L2";

// The values that a log device "Presse" may offer, by a board "X" and a protocol "L2".
class ListOfValuesTrace : public CatalogueTraceScene
{
protected:
    ListOfValuesTrace()
    {
        WriteBytes(roots.board(L"X"),
                   BoardFile(XmlContent().Element(
                       L"Constraints",
                       XmlContent().ParamSection(L"board", Values()).ParamSection(L"both", Values()))));
        WriteBytes(roots.protocol(L"L2"),
                   ProtocolFile(XmlContent().Element(
                       L"Constraints",
                       XmlContent().ParamSection(L"protocol", Values()).ParamSection(L"both", Values()))));
        WriteDevice(XmlContent().Text(L"busparam", L"1"));
    }

    static XmlContent Values() { return XmlContent().ValueCollection({L"abc", L"def"}); }

    void WriteDevice(const XmlContent& settings) const
    {
        store.WriteDevice(L"Presse", XmlContent().Element(L"LocalSettings", settings), L"*X", L"L2");
    }

    // With so many characters offered.
    [[nodiscard]] std::int32_t MostSpecialized(const wchar_t* parameter, std::uint32_t capacity = 20,
                                               const wchar_t* device = L"Presse")
    {
        length = capacity;
        return library().PGSP_LogDeviceGetMostSpecializedEnumListBL(device, parameter, buffer, &length);
    }

    [[nodiscard]] std::int32_t Average(const wchar_t* parameter, std::uint32_t capacity = 20,
                                       const wchar_t* device = L"Presse")
    {
        length = capacity;
        return library().PGSP_LogDeviceGetAverageEnumListBL(device, parameter, buffer, &length);
    }

    [[nodiscard]] std::vector<std::string> LinesOfMostSpecialized() const
    {
        return LinesOf("PGSP_LogDeviceGetMostSpecializedEnumListBL");
    }

    [[nodiscard]] std::vector<std::string> LinesOfAverage() const
    {
        return LinesOf("PGSP_LogDeviceGetAverageEnumListBL");
    }

    static std::string Entry(const std::string& parameter)
    {
        return "entry: >> LogDevice = Presse, Parameter = " + parameter;
    }

    const DeviceStore store{roots};
};

TEST_F(ListOfValuesTrace, OfTheMostSpecializedOneTellsWhereItWasRead)
{
    Load();

    EXPECT_EQ(MostSpecialized(L"board"), PGSP_OK);
    EXPECT_EQ(MostSpecialized(L"protocol"), PGSP_OK);

    EXPECT_THAT(LinesOfMostSpecialized(),
                ElementsAre(Entry("board"), "information: Read values from Board file " + Board,
                            "exit: << return lRet = 0", Entry("protocol"),
                            "information: Read values from Protocol file " + Protocol,
                            "exit: << return lRet = 0"));
}

TEST_F(ListOfValuesTrace, OfTheMostSpecializedOneThatDoesNotFitTellsWhoseValuesAreMissing)
{
    Load();

    EXPECT_EQ(MostSpecialized(L"board", 7), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(MostSpecialized(L"protocol", 3), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOfMostSpecialized(),
                ElementsAre(Entry("board"), "information: Not all values returned from " + Board, TooShort,
                            Entry("protocol"), "information: Not all values returned from " + Protocol,
                            TooShort));
}

TEST_F(ListOfValuesTrace, OfTheAverageOneIsItsResultWhenBothHaveValues)
{
    Load();

    EXPECT_EQ(Average(L"both"), PGSP_OK);

    EXPECT_THAT(LinesOfAverage(), ElementsAre(Entry("both"), "exit: << return PGSP_OK"));
}

TEST_F(ListOfValuesTrace, OfTheAverageOneTellsWhoHasNoValues)
{
    Load();

    EXPECT_EQ(Average(L"board"), PGSP_OK);
    EXPECT_EQ(Average(L"protocol"), PGSP_OK);
    EXPECT_EQ(Average(L"gone"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOfAverage(),
                ElementsAre(Entry("board"), "information: No values found in " + Protocol,
                            "exit: << return PGSP_OK", Entry("protocol"),
                            "information: No values found in " + Board, "exit: << return PGSP_OK",
                            Entry("gone"), "exit: << return. No Values found in  and " + Board));
}

TEST_F(ListOfValuesTrace, OfTheAverageOneTellsTheEdgesApart)
{
    Load();

    EXPECT_EQ(Average(L"both", 8), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Average(L"both", 7), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOfAverage(),
                ElementsAre(Entry("both"), TooShort, Entry("both"),
                            "information: Not all values are returned from " + Board, TooShort));
}

TEST_F(ListOfValuesTrace, OfADeviceThatIsNotThereTellsTheWordThatIsMissing)
{
    Load();

    EXPECT_EQ(MostSpecialized(L"both", 20, L"gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Average(L"both", 20, L"gone"), PGSP_ERR_PARAM_NOT_FOUND);

    const std::string entry = "entry: >> LogDevice = gone, Parameter = both";
    EXPECT_THAT(LinesOfMostSpecialized(), ElementsAre(entry, "exit: << return. Argument DeviceID not found"));
    EXPECT_THAT(LinesOfAverage(),
                ElementsAre(entry, "exit: << return. Argument DeviceID or CP_TYPE not found"));
}

TEST_F(ListOfValuesTrace, OfADeviceWithoutAProtocolTellsThatThatIsMissing)
{
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", L"X"}}, {}));
    Load();

    EXPECT_EQ(MostSpecialized(L"protocol"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Average(L"protocol"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOfMostSpecialized(),
                ElementsAre(Entry("protocol"), "exit: << return. Argument CP_TYPE not found"));
    EXPECT_THAT(LinesOfAverage(),
                ElementsAre(Entry("protocol"), "exit: << return. Argument DeviceID or CP_TYPE not found"));
}

TEST_F(ListOfValuesTrace, OfADeviceWithoutAProfileTellsThatEachInItsOwnWords)
{
    WriteDevice({});
    Load();

    EXPECT_EQ(MostSpecialized(L"protocol"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Average(L"protocol"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOfMostSpecialized(),
                ElementsAre(Entry("protocol"), "exit: << return. Busparam not found"));
    EXPECT_THAT(LinesOfAverage(),
                ElementsAre(Entry("protocol"), "exit: << return. Argument Busparam not found"));
}

TEST_F(ListOfValuesTrace, OfBadArgumentsBeginsWithTheEntry)
{
    Load();

    EXPECT_EQ(MostSpecialized(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(MostSpecialized(L"both", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Average(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Average(L"both", 0), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOfMostSpecialized(), ElementsAre(Entry(""), Refusal, Entry("both"), Refusal));
    EXPECT_THAT(LinesOfAverage(), ElementsAre(Entry(""), Refusal, Entry("both"), Refusal));
}

TEST_F(ListOfValuesTrace, OfAMissingProgramFolderNamesIt)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(MostSpecialized(L"both"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Average(L"both"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOfMostSpecialized(), ElementsAre(Entry("both"), NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOfAverage(), ElementsAre(Entry("both"), NoProgramFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
