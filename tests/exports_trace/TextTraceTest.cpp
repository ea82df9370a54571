#include "TextTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

using TextTrace = TextTraceScene;

TEST_F(TextTrace, TellsTheFileTheLibraryAndTheResult)
{
    Load();

    EXPECT_EQ(Ask(L"DE"), PGSP_OK);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()),
                            Info("Using ExpandEnvironmentStrings = ", bin() + L"\\de\\Texte.dll"),
                            "exit: << return lRet = 0"));
}

TEST_F(TextTrace, TellsATextThatDoesNotFit)
{
    Load();
    length = 3;

    EXPECT_EQ(library().PGSP_LogDeviceGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(LinesOfDevice().back(), "exit: << return lRet = 234");
    EXPECT_EQ(LinesOfLoad().back(), "exit: << return lRet = 234");
}

TEST_F(TextTrace, TellsWhatIsAskedInTheWordsOfEachExport)
{
    WriteBytes(roots.logName(L"X"), XmlFile(L"LogName", {}, Links(L"")));
    WriteBytes(roots.board(L"Y"), BoardFile(Links(L"")));
    Load();

    EXPECT_EQ(library().PGSP_LogNameGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1), PGSP_OK);
    length = 20;
    EXPECT_EQ(library().PGSP_BoardGetResourceStringBL(L"*Y", L"Title", L"de", buffer, &length, 1), PGSP_OK);
    EXPECT_EQ(AskTemplate(L"boards", L"*Y"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogNameGetResourceStringBL"),
                ElementsAre("entry: >> LogName = X", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("PGSP_BoardGetResourceStringBL"),
                ElementsAre("entry: >> Board = *Y", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOfTemplate(),
                ElementsAre("entry: >> FolderName = boards, TemplateName = *Y", "exit: << return lRet = 0"));
    const std::vector<std::string> lines = LinesOfLoad();
    EXPECT_THAT(lines, testing::IsSupersetOf(
                           {EntryOf(roots.data() + L"\\data\\LogNames\\X"),
                            EntryOf(roots.program() + L"\\meta\\Boards\\Automation-OnlineAccess-BT-Y"),
                            EntryOf(roots.program() + L"\\meta\\boards\\Automation-OnlineAccess-BT-Y")}));
}

TEST_F(TextTrace, OfAMissingFolderNamesIt)
{
    TakeDataFolderAway();
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_LogNameGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1), 8517);
    EXPECT_EQ(library().PGSP_BoardGetResourceStringBL(L"X", L"Title", L"de", buffer, &length, 1), 8517);
    EXPECT_EQ(AskTemplate(L"Boards", L"X"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", NoFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_LogNameGetResourceStringBL"),
                ElementsAre("entry: >> LogName = X", NoFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_BoardGetResourceStringBL"),
                ElementsAre("entry: >> Board = X", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOfTemplate(), ElementsAre("entry: >> FolderName = Boards, TemplateName = X",
                                               NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOfLoad(), testing::IsEmpty());
}

TEST_F(TextTrace, OfTextsWithoutTheProgramFolderNamesItInOtherWords)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Ask(), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", FolderNotFound));
    EXPECT_THAT(LinesOfLoad(),
                ElementsAre(EntryOf(deviceFile()), "information: Can not get ProgramFile Path"));
}

TEST_F(TextTrace, OfALinkThatIsNotThereEndsInTheExport)
{
    WriteBytes(roots.logDevice(L"Y"), LogDeviceFile({}));
    Load();

    EXPECT_EQ(Ask(L"de", L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Ask(L"de", L"Y"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = gone", "exit: << return lRet = 8508",
                                             "entry: >> LogDevice = Y", "exit: << return lRet = 8513"));
    EXPECT_THAT(LinesOfLoad(), ElementsAre(EntryOf(roots.data() + L"\\data\\LogDevices\\gone"),
                                           EntryOf(roots.data() + L"\\data\\LogDevices\\Y")));
}

TEST_F(TextTrace, OfAMissingOutputEndsInTheExport)
{
    Load();

    EXPECT_EQ(library().PGSP_LogDeviceGetResourceStringBL(L"X", L"Title", L"de", buffer, nullptr, 1),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOfDevice(), ElementsAre("entry: >> LogDevice = X", "exit: << return lRet = 87"));
    EXPECT_EQ(LinesOfLoad().size(), 2U);
}

TEST_F(TextTrace, OfATemplateWithoutAFolderOrANameIsARefusal)
{
    Load();

    EXPECT_EQ(AskTemplate(nullptr, L"X"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(AskTemplate(L"Boards", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOfTemplate(), ElementsAre("entry: >> FolderName = , TemplateName = X", Refusal,
                                               "entry: >> FolderName = Boards, TemplateName = ", Refusal));
}

TEST_F(TextTrace, OfATemplateWhoseNameCanNotBeEscapedHasNoExit)
{
    const std::wstring name(LongestPath, L'n');
    Load();

    EXPECT_EQ(AskTemplate(L"DefaultLogDevices", name.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(
        LinesOfTemplate(),
        ElementsAre(Line("entry", ">> FolderName = DefaultLogDevices, TemplateName = " + ToAnsi(name))));
    EXPECT_THAT(LinesOfLoad(), testing::IsEmpty());
}

TEST_F(TextTrace, OfATemplateWhosePathIsTooLongHasOne)
{
    const std::wstring name(LongestPath - 1, L'n');
    Load();

    EXPECT_EQ(AskTemplate(L"DefaultLogDevices", name.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(LinesOfTemplate().size(), 2U);
    EXPECT_EQ(LinesOfTemplate().back(), "exit: << return lRet = 234");
    EXPECT_EQ(LinesOfLoad().size(), 1U);
}

} // namespace
} // namespace norvepa::test
