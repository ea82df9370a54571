#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const std::string FolderOfTheCatalogue = "information: Can not get ProgramPath";

class SettingsTrace : public CatalogueTraceScene
{
protected:
    SettingsTrace()
    {
        WriteBytes(roots.data() + L"\\data\\PGSP.xml", SettingsFile(XmlContent().Text(L"a", L"abc")));
        WriteBytes(roots.data() + L"\\data\\Werte\\F.xml",
                   XmlFile(L"ParameterData",
                           {{L"xmlns", L"http://www.marvolt.example/Automation/Corvane.Device.Driver"}},
                           XmlContent().Text(L"a", L"abc")));
    }

    [[nodiscard]] std::int32_t Get(const wchar_t* folder, const wchar_t* parameter)
    {
        return library().PGSP_GetParameterMetaDataBL(folder, L"Werte", L"F", parameter, buffer, &length);
    }

    [[nodiscard]] std::int32_t Pair(const wchar_t* folder, std::uint32_t index)
    {
        return library().PGSP_EnumParameterMetaDataBL(folder, L"Werte", L"F", index, buffer, &length, value,
                                                      &valueLength);
    }

    [[nodiscard]] std::int32_t Set(const wchar_t* file, const wchar_t* text) const
    {
        return library().PGSP_SetParameterDataBL(L"Werte", file, L"a", text, L"int");
    }

    [[nodiscard]] std::int32_t Del(const wchar_t* file) const
    {
        return library().PGSP_DelParameterDataBL(L"Werte", file, L"a");
    }

    wchar_t value[20] = L"before";
    std::uint32_t valueLength = 20;
};

TEST_F(SettingsTrace, OfASettingTellsItAndTheResultInOneLine)
{
    Load();

    EXPECT_EQ(library().GetValueInPGSP_BL(L"a", buffer, &length), PGSP_OK);

    EXPECT_THAT(LinesOf("GetValueInPGSP_BL"),
                ElementsAre("entry: >> Parameter = a", "exit: << return lRet = 0, Value = abc, dwValue = 3"));
}

TEST_F(SettingsTrace, OfASettingThatIsNotThereTellsTheBufferNoFurtherThanItGoes)
{
    Load();
    length = 3;

    EXPECT_EQ(library().GetValueInPGSP_BL(L"gone", buffer, &length), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("GetValueInPGSP_BL"),
        ElementsAre("entry: >> Parameter = gone", "exit: << return lRet = 8513, Value = bef, dwValue = 3"));
}

TEST_F(SettingsTrace, OfASettingThatDoesNotFitTellsTheBufferAndTheLengthThatIsNeeded)
{
    Load();
    length = 2;

    EXPECT_EQ(library().GetValueInPGSP_BL(L"a", buffer, &length), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(
        LinesOf("GetValueInPGSP_BL"),
        ElementsAre("entry: >> Parameter = a", "exit: << return lRet = 234, Value = be, dwValue = 3"));
}

TEST_F(SettingsTrace, OfASetIsArgumentsAndResultWhetherAnythingChangesOrNot)
{
    Load();

    EXPECT_EQ(library().SetValueInPGSP_BL(L"a", L"new"), PGSP_OK);
    EXPECT_EQ(library().SetValueInPGSP_BL(L"a", L"NEW"), PGSP_OK);

    EXPECT_THAT(LinesOf("SetValueInPGSP_BL"),
                ElementsAre("entry: >> Parameter = a, Value = new", "exit: << return lRet = 0",
                            "entry: >> Parameter = a, Value = NEW", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SettingsTrace, OfASettingWithBadArgumentsIsTheRefusalAlone)
{
    Load();

    EXPECT_EQ(library().GetValueInPGSP_BL(L"", buffer, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().GetValueInPGSP_BL(L"a", nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().SetValueInPGSP_BL(nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().SetValueInPGSP_BL(L"a", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("GetValueInPGSP_BL"), ElementsAre(Refusal, Refusal));
    EXPECT_THAT(LinesOf("SetValueInPGSP_BL"), ElementsAre(Refusal, Refusal));
}

TEST_F(SettingsTrace, OfDataTellsItAndTheResultInOneLine)
{
    Load();

    EXPECT_EQ(Get(L"data", L"a"), PGSP_OK);
    EXPECT_EQ(Get(L"data", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);

    const std::string entry = "entry: >> Folder = data, Subfolder = Werte, File = F, Parameter = ";
    EXPECT_THAT(LinesOf("PGSP_GetParameterMetaDataBL"),
                ElementsAre(entry + "a", "exit: << return lRet = 0, Value = abc, dwValue = 3", entry + "gone",
                            "exit: << return lRet = 8513, Value = , dwValue = 3"));
}

TEST_F(SettingsTrace, OfDataThatDoNotFitHasNoExit)
{
    Load();
    length = 3;

    EXPECT_EQ(Get(L"data", L"a"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_GetParameterMetaDataBL"),
                ElementsAre("entry: >> Folder = data, Subfolder = Werte, File = F, Parameter = a"));
}

TEST_F(SettingsTrace, OfDataBelowAPathThatIsTooLongHasNoExit)
{
    Load();
    const std::wstring file(260, L'n');

    EXPECT_EQ(library().PGSP_GetParameterMetaDataBL(L"data", L"", file.c_str(), L"a", buffer, &length),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_GetParameterMetaDataBL"),
                ElementsAre(testing::StartsWith("entry: >> Folder = data, Subfolder = , File = nnn")));
}

TEST_F(SettingsTrace, OfAPairIsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(Pair(L"data", 0), PGSP_OK);
    length = 1;
    EXPECT_EQ(Pair(L"data", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Pair(L"data", 1), PGSP_ERR_PARAM_NOT_FOUND);

    const std::string entry = "entry: >> Folder = data, Subfolder = Werte, File = F";
    EXPECT_THAT(LinesOf("PGSP_EnumParameterMetaDataBL"),
                ElementsAre(entry, "exit: << return lRet = 0", entry, "exit: << return lRet = 234", entry,
                            "exit: << return lRet = 8513"));
}

TEST_F(SettingsTrace, OfSetDataTellsThatTheyAreTheSame)
{
    Load();

    EXPECT_EQ(Set(L"F", L"new"), PGSP_OK);
    EXPECT_EQ(Set(L"F", L"new"), PGSP_OK);
    EXPECT_EQ(Set(L"gone", L"1"), PGSP_ERR_FILE_NOT_FOUND);

    const std::string entry = "entry: >> Subfolder = Werte, File = ";
    EXPECT_THAT(LinesOf("PGSP_SetParameterDataBL"),
                ElementsAre(entry + "F, Parameter = a, Value = new", "exit: << return lRet = 0",
                            entry + "F, Parameter = a, Value = new",
                            "information: Parameter with same Value already exists",
                            "exit: << return lRet = 0", entry + "gone, Parameter = a, Value = 1",
                            "exit: << return lRet = 8503"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SettingsTrace, OfRemovedDataIsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(Del(L"F"), PGSP_OK);
    EXPECT_EQ(Del(L"F"), PGSP_ERR_CANT_SET_VALUE);

    const std::string entry = "entry: >> Subfolder = Werte, File = F, Parameter = a";
    EXPECT_THAT(LinesOf("PGSP_DelParameterDataBL"),
                ElementsAre(entry, "exit: << return lRet = 0", entry, "exit: << return lRet = 8514"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SettingsTrace, OfDataWithBadArgumentsBeginsWithTheEntry)
{
    Load();

    EXPECT_EQ(Get(nullptr, L"a"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_GetParameterMetaDataBL(L"data", L"Werte", L"F", L"a", nullptr, nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Pair(L"", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"F", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Del(nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_GetParameterMetaDataBL"),
                ElementsAre("entry: >> Folder = , Subfolder = Werte, File = F, Parameter = a", Refusal,
                            "entry: >> Folder = data, Subfolder = Werte, File = F, Parameter = a", Refusal));
    EXPECT_THAT(LinesOf("PGSP_EnumParameterMetaDataBL"),
                ElementsAre("entry: >> Folder = , Subfolder = Werte, File = F", Refusal));
    EXPECT_THAT(LinesOf("PGSP_SetParameterDataBL"),
                ElementsAre("entry: >> Subfolder = Werte, File = F, Parameter = a, Value = ", Refusal));
    EXPECT_THAT(LinesOf("PGSP_DelParameterDataBL"),
                ElementsAre("entry: >> Subfolder = Werte, File = , Parameter = a", Refusal));
}

TEST_F(SettingsTrace, OfAMissingFolderNamesTheSameOneForBothRoots)
{
    TakeProgramFolderAway();
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().GetValueInPGSP_BL(L"a", buffer, &length), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().SetValueInPGSP_BL(L"a", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);
    for (const wchar_t* const folder : {L"meta", L"data"})
    {
        EXPECT_EQ(Get(folder, L"a"), PGSP_ERR_FOLDER_NOT_FOUND);
        EXPECT_EQ(Pair(folder, 0), PGSP_ERR_FOLDER_NOT_FOUND);
    }
    EXPECT_EQ(Set(L"F", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Del(L"F"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("GetValueInPGSP_BL"),
                ElementsAre("entry: >> Parameter = a", NoFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("SetValueInPGSP_BL"),
                ElementsAre("entry: >> Parameter = a, Value = 1", NoFolder, FolderNotFound));
    const std::string file = ", Subfolder = Werte, File = F";
    EXPECT_THAT(LinesOf("PGSP_GetParameterMetaDataBL"),
                ElementsAre("entry: >> Folder = meta" + file + ", Parameter = a", FolderOfTheCatalogue,
                            FolderNotFound, "entry: >> Folder = data" + file + ", Parameter = a",
                            FolderOfTheCatalogue, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_EnumParameterMetaDataBL"),
                ElementsAre("entry: >> Folder = meta" + file, NoFolder, FolderNotFound,
                            "entry: >> Folder = data" + file, NoFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_SetParameterDataBL"),
                ElementsAre("entry: >> Subfolder = Werte, File = F, Parameter = a, Value = 1", NoFolder,
                            FolderNotFound));
    EXPECT_THAT(
        LinesOf("PGSP_DelParameterDataBL"),
        ElementsAre("entry: >> Subfolder = Werte, File = F, Parameter = a", NoFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
