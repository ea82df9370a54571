#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class TemplateTrace : public CatalogueTraceScene
{
protected:
    [[nodiscard]] std::int32_t Exist(const wchar_t* folder, const wchar_t* name, std::int32_t flag = 0) const
    {
        return library().PGSP_TemplateExistBL(folder, name, flag);
    }

    [[nodiscard]] std::int32_t Name(const wchar_t* folder, std::uint32_t index)
    {
        return library().PGSP_TemplateGetEnumBL(folder, index, buffer, &length);
    }

    [[nodiscard]] std::int32_t Item(const wchar_t* folder, std::uint32_t index)
    {
        return library().PGSP_TemplateGetEnumValueRawBL(folder, L"X", L"NotSupported", index, buffer,
                                                        &length);
    }

    [[nodiscard]] std::int32_t Key(const wchar_t* folder, const wchar_t* key) const
    {
        return library().PGSP_TemplateKeyExistsBL(folder, L"X", key, 0);
    }

    [[nodiscard]] std::int32_t Constraint(const wchar_t* file, const wchar_t* parameter)
    {
        return library().PGSP_TemplateGetConstraintBL(L"Boards", file, parameter, L"default", buffer,
                                                      &length);
    }

    [[nodiscard]] std::int32_t Set(const wchar_t* parameter, const wchar_t* text) const
    {
        return library().PGSP_TemplateSetValueBL(L"Boards", L"X", parameter, text);
    }

    [[nodiscard]] std::string Meta(const std::wstring& path) const
    {
        return ToAnsi(roots.program() + L"\\meta\\" + path);
    }
};

TEST_F(TemplateTrace, OfAnExistenceTellsThePathAheadOfItsExtensionAndTheError)
{
    Load();

    EXPECT_EQ(Exist(L"Boards", L"*X", 4), PGSP_OK);
    EXPECT_EQ(Exist(L"boards", L"Gone.XML"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_TemplateExistBL"),
                ElementsAre("entry: >> Folder = Boards, Template = *X, flag = 4",
                            "information: Calling _waccess_s for Template: " +
                                Meta(L"Boards\\Automation-OnlineAccess-BT-x"),
                            "exit: << errno_t err = 0", "exit: << return lRet = 0",
                            "entry: >> Folder = boards, Template = Gone.XML, flag = 0",
                            "information: Calling _waccess_s for Template: " +
                                Meta(L"boards\\Automation-OnlineAccess-BT-gone.xml"),
                            "exit: << errno_t err = 2", "exit: << return lRet = 8503"));
}

TEST_F(TemplateTrace, OfASubdevicesExistenceTellsTheAnswerInsteadOfAPath)
{
    WriteBytes(roots.deviceTemplate(L"Y"),
               LogDeviceFile(XmlContent().Element(
                   L"Bindings", XmlContent().Element(L"Subdevices", XmlContent().Subdevice(L"s", {})))));
    Load();
    const std::string name = "Automation-OnlineAccess-LDT-Y\\subdevices\\s";

    EXPECT_EQ(Exist(L"DefaultLogDevices", FromUtf8(name).c_str()), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_TemplateExistBL"),
                ElementsAre("entry: >> Folder = DefaultLogDevices, Template = " + name + ", flag = 0",
                            "information: << SubdeviceExist for = " + name + " : returned = 0",
                            "exit: << return lRet = 0"));
}

TEST_F(TemplateTrace, OfANameThatIsTooLongToBeEscapedHasNoExit)
{
    Load();
    const std::wstring name(260, L'n');

    EXPECT_NE(Exist(L"DefaultLogDevices", name.c_str()), PGSP_OK);
    EXPECT_NE(library().PGSP_TemplateKeyExistsBL(L"DefaultLogDevices", name.c_str(), L"k", 0), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_TemplateExistBL"),
                ElementsAre(StartsWith("entry: >> Folder = DefaultLogDevices, Template = nnn")));
    EXPECT_THAT(LinesOf("PGSP_TemplateKeyExistsBL"), IsEmpty());
}

TEST_F(TemplateTrace, OfANameByIndexTellsTheIndexOfTheNextOne)
{
    Load();

    EXPECT_EQ(Name(L"Protocols", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    length = 300;
    EXPECT_EQ(Name(L"Protocols", 0), PGSP_OK);
    EXPECT_EQ(Name(L"Protocols", 1), PGSP_ERR_NO_MORE_ITEMS);

    const std::string folder = "information: Enumerating templates from: " + Meta(L"Protocols");
    EXPECT_THAT(
        LinesOf("PGSP_TemplateGetEnumBL"),
        ElementsAre("entry: >> FolderName = Protocols, index = 0", folder, "exit: << return lRet = 234",
                    "entry: >> FolderName = Protocols, index = 0", folder,
                    "exit: << return TemplateName = Automation-OnlineAccess-PT-X, TemplateLen = 28, "
                    "index = 1",
                    "entry: >> FolderName = Protocols, index = 1", folder, "exit: << return lRet = 259"));
}

TEST_F(TemplateTrace, OfAListsItemIsItsResultAlone)
{
    Load();

    EXPECT_EQ(Item(L"Boards", 0), PGSP_OK);
    EXPECT_EQ(Item(L"Boards", 2), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumValueRawBL"),
                ElementsAre("exit: << return lRet = 0", "exit: << return lRet = 259"));
}

TEST_F(TemplateTrace, OfAKeyIsItsResultAlone)
{
    Load();

    EXPECT_EQ(Key(L"Boards", L"Constraints\\s"), PGSP_OK);
    EXPECT_EQ(Key(L"Protocols", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Key(L"Others", L"gone"), PGSP_OK);

    EXPECT_THAT(
        LinesOf("PGSP_TemplateKeyExistsBL"),
        ElementsAre("exit: << return lRet = 0", "exit: << return lRet = 8513", "exit: << return lRet = 0"));
}

TEST_F(TemplateTrace, OfAConstraintTellsItWhenItIsDelivered)
{
    Load();

    EXPECT_EQ(Constraint(L"X", L"s"), PGSP_OK);
    EXPECT_EQ(Constraint(L"X", L"s"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Constraint(L"X", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);

    const std::string entry = "entry: >> FolderName = Boards, fileName = X, Parameter = ";
    EXPECT_THAT(LinesOf("PGSP_TemplateGetConstraintBL"),
                ElementsAre(entry + "s, Constraint = default", "information: Value = 1, dwValue = 1",
                            "exit: << return lRet = 0", entry + "s, Constraint = default",
                            "exit: << return lRet = 234", entry + "gone, Constraint = default",
                            "exit: << return lRet = 8513"));
}

TEST_F(TemplateTrace, OfASetValueAnnouncesAChangeAlone)
{
    Load();

    EXPECT_EQ(Set(L"a", L"new"), PGSP_OK);
    EXPECT_EQ(Set(L"a", L"NEW"), PGSP_OK);
    EXPECT_EQ(Set(L"gone", L"1"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_THAT(LinesOf("PGSP_TemplateSetValueBL"),
                ElementsAre("entry: >> fileName = X, Parameter = a, Value = new", "exit: << return lRet = 0",
                            "entry: >> fileName = X, Parameter = a, Value = NEW", "exit: << return lRet = 0",
                            "entry: >> fileName = X, Parameter = gone, Value = 1",
                            "exit: << return lRet = 8514"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), SizeIs(1));
}

TEST_F(TemplateTrace, OfBadArgumentsBeginsWithTheEntryWhereItStandsAheadOfTheTests)
{
    Load();

    EXPECT_EQ(Exist(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"Boards", L"X", 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Name(nullptr, 7), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Item(L"", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Key(L"Boards", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Constraint(nullptr, L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"a", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_TemplateExistBL"),
                ElementsAre("entry: >> Folder = , Template = , flag = 0", Refusal,
                            "entry: >> Folder = Boards, Template = X, flag = 1", Refusal));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumBL"),
                ElementsAre("entry: >> FolderName = , index = 7", Refusal));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumValueRawBL"), ElementsAre(Refusal));
    EXPECT_THAT(LinesOf("PGSP_TemplateKeyExistsBL"), ElementsAre(Refusal));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetConstraintBL"),
                ElementsAre("entry: >> FolderName = Boards, fileName = , Parameter = , Constraint = default",
                            Refusal));
    EXPECT_THAT(LinesOf("PGSP_TemplateSetValueBL"), ElementsAre(Refusal, Refusal));
}

TEST_F(TemplateTrace, OfAMissingProgramFolderNamesIt)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Exist(L"Boards", L"X"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Name(L"Boards", 0), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Item(L"Boards", 0), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Key(L"Others", L"k"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Constraint(L"X", L"s"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Set(L"a", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("PGSP_TemplateExistBL"),
        ElementsAre("entry: >> Folder = Boards, Template = X, flag = 0", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumBL"),
                ElementsAre("entry: >> FolderName = Boards, index = 0", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetEnumValueRawBL"), ElementsAre(NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_TemplateKeyExistsBL"), ElementsAre(NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_TemplateGetConstraintBL"),
                ElementsAre(StartsWith("entry: >> FolderName = Boards"), NoProgramFolder, FolderNotFound));
    EXPECT_THAT(
        LinesOf("PGSP_TemplateSetValueBL"),
        ElementsAre("entry: >> fileName = X, Parameter = a, Value = 1", NoProgramFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
