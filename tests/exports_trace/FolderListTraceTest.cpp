#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class FolderListTrace : public CatalogueTraceScene
{
protected:
    [[nodiscard]] std::int32_t Templates(const wchar_t* folder)
    {
        return library().PGSP_TemplateGetListBL(folder, buffer, &length);
    }

    [[nodiscard]] std::int32_t Name(const wchar_t* folder, std::uint32_t index)
    {
        return library().PGSP_TemplateGetEnumNoPrefixBL(folder, index, buffer, &length);
    }

    [[nodiscard]] std::string Enumerating(const std::wstring& folder) const
    {
        return "information: Enumerating templates from: " + ToAnsi(roots.program() + L"\\meta\\" + folder);
    }
};

TEST_F(FolderListTrace, OfTheCatalogueTellsTheEdgesApart)
{
    Load();
    const std::string tooShort = "exit: << return PGSP_ERR_BUFFER_TOO_SHORT";
    const std::string entry = "entry: >> FolderName = Boards";
    length = 300;
    EXPECT_EQ(Templates(L"Boards"), PGSP_OK);
    const std::uint32_t needed = length;
    length = needed - 1;
    EXPECT_EQ(Templates(L"Boards"), PGSP_ERR_BUFFER_TOO_SHORT);
    length = needed - 2;
    EXPECT_EQ(Templates(L"Boards"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_TemplateGetListBL"),
                ElementsAre(entry, "exit: << return PGSP_OK", entry, tooShort, entry,
                            "information: Not all values are returned", tooShort));
}

TEST_F(FolderListTrace, OfTheDataFolderHasNoEntry)
{
    Load();
    EXPECT_EQ(library().PGSP_GetLogDeviceListBL(buffer, &length), PGSP_OK);
    length = 5;
    EXPECT_EQ(library().PGSP_GetLogNameListBL(buffer, &length), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_GetLogDeviceListBL"), ElementsAre("exit: << return PGSP_OK"));
    EXPECT_THAT(LinesTagged("GetLogNameListBL"), ElementsAre("information: Not all values are returned",
                                                             "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(FolderListTrace, OfANameTellsItItsLengthAndTheCallersIndex)
{
    WriteBytes(roots.protocol(L"Y"), ProtocolFile({}));
    Load();

    EXPECT_EQ(Name(L"Protocols", 1), PGSP_OK);

    EXPECT_THAT(
        LinesOf("PGSP_TemplateGetEnumNoPrefixBL"),
        ElementsAre("entry: >> FolderName = Protocols, index = 1", Enumerating(L"Protocols"),
                    "exit: << return TemplateName = " + ToAnsi(buffer) + ", TemplateLen = 1, index = 1"));
}

TEST_F(FolderListTrace, OfANameIsThatOfEveryStepUpToIt)
{
    WriteBytes(roots.protocol(L"Y"), ProtocolFile({}));
    Load();

    EXPECT_EQ(Name(L"Protocols", 9), PGSP_ERR_NO_MORE_ITEMS);

    const std::string entry =
        "entry: >> folderPath = " + ToAnsi(roots.program() + L"\\meta\\Protocols") + ", index = ";
    EXPECT_THAT(LinesOf("NorvXMLEnumFile"),
                ElementsAre(entry + "0", testing::StartsWith("exit: << file = "), entry + "1",
                            testing::StartsWith("exit: << file = "), entry + "2"));
}

TEST_F(FolderListTrace, OfANameOfABoardHoldsThatOfItsValue)
{
    Load();

    EXPECT_EQ(Name(L"Boards", 0), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_BoardGetValueBL"),
                ElementsAre("entry: >> DeviceID = Automation-OnlineAccess-BT-X, Parameter = DeviceID",
                            "information: Value = AFK110, dwValue = 6", "exit: << return lRet = 0"));
    EXPECT_EQ(LinesOf("PGSP_TemplateGetEnumNoPrefixBL").back(),
              "exit: << return TemplateName = AFK110, TemplateLen = 6, index = 0");
}

TEST_F(FolderListTrace, OfANameThatIsNotThereOrDoesNotFitIsTheResult)
{
    Load();
    EXPECT_EQ(Name(L"Protocols", 1), PGSP_ERR_NO_MORE_ITEMS);
    length = 1;
    EXPECT_EQ(Name(L"Protocols", 0), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumNoPrefixBL"),
                ElementsAre("entry: >> FolderName = Protocols, index = 1", Enumerating(L"Protocols"),
                            "exit: << return lRet = 259", "entry: >> FolderName = Protocols, index = 0",
                            Enumerating(L"Protocols"), "exit: << return lRet = 234"));
}

TEST_F(FolderListTrace, OfBadArgumentsIsTheRefusal)
{
    Load();

    EXPECT_EQ(Templates(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Name(L"", 7), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_GetLogDeviceListBL(nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_GetLogNameListBL(buffer, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_TemplateGetListBL"), ElementsAre("entry: >> FolderName = ", Refusal));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumNoPrefixBL"),
                ElementsAre("entry: >> FolderName = , index = 7", Refusal));
    EXPECT_THAT(LinesOf("PGSP_GetLogDeviceListBL"), ElementsAre(Refusal));
    EXPECT_THAT(LinesTagged("GetLogNameListBL"), ElementsAre(Refusal));
}

TEST_F(FolderListTrace, OfAMissingFolderNamesEachItsOwn)
{
    TakeProgramFolderAway();
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Templates(L"Boards"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Name(L"Boards", 0), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_GetLogDeviceListBL(buffer, &length), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_GetLogNameListBL(buffer, &length), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_TemplateGetListBL"),
                ElementsAre("entry: >> FolderName = Boards", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumNoPrefixBL"),
                ElementsAre("entry: >> FolderName = Boards, index = 0", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_GetLogDeviceListBL"), ElementsAre(NoFolder, FolderNotFound));
    EXPECT_THAT(LinesTagged("GetLogNameListBL"), ElementsAre(NoFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
