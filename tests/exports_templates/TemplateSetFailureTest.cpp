#include "TemplateSetScene.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"

#include <windows.h>
#include <objbase.h>

namespace norvepa::test
{
namespace
{

HRESULT WINAPI RefuseEngine(REFCLSID, IUnknown*, DWORD, REFIID, void** object)
{
    *object = nullptr;
    return REGDB_E_CLASSNOTREG;
}

// What a set answers that can't be done, and that the file stays as it was.
class TemplateSetFailure : public TemplateSetScene
{
protected:
    void TearDown() override { EXPECT_EQ(Bytes(), before); }

    const std::string before = Bytes();
};

TEST_F(TemplateSetFailure, OfAParameterThatTheFileLacks)
{
    for (const wchar_t* const parameter : {L"gone", L"DeviceID", L"default", L"Constraints"})
    {
        EXPECT_EQ(Set(L"Boards", L"X", parameter, L"2"), PGSP_ERR_CANT_SET_VALUE);
    }
}

TEST_F(TemplateSetFailure, OfAParameterOfAnotherSection)
{
    WriteBoard(L"Y", XmlContent()
                         .Element(L"Constraints", XmlContent().Text(L"a", L"1"))
                         .Element(L"SpareSection", XmlContent().Text(L"a", L"1"))
                         .Element(L"Parameters", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(Set(L"Boards", L"Y", L"a", L"2"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(TemplateSetFailure, OfAMalformedValueOrName)
{
    EXPECT_EQ(SetBoard(L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetBoard(L"2>"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Boards", L"X", L"a b", L"text"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Boards", L"gone", L"a", L"<"), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(TemplateSetFailure, OfAValueThatNoFileCouldHold)
{
    EXPECT_EQ(SetBoard(L"\u0001"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetBoard(L"\uFFFE"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(TemplateSetFailure, OfAFileThatIsMissing)
{
    EXPECT_EQ(Set(L"Boards", L"gone", L"a", L"2"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Set(L"gone", L"X", L"a", L"2"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Set(L"Boards", L"gone\\X", L"a", L"2"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_FALSE(Exists(roots.board(L"gone")));
}

TEST_F(TemplateSetFailure, OfAFileThatCanNotBeLoaded)
{
    WriteBytes(roots.board(L"broken"), "<Device><Install>");
    WriteBytes(roots.board(L"large"), BoardFile(BoardWith(L"1")) + std::string(10'000'000, ' '));

    EXPECT_EQ(Set(L"Boards", L"broken", L"a", L"2"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Set(L"Boards", L"large", L"a", L"2"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(TemplateSetFailure, OfAPathThatIsTooLong)
{
    for (const wchar_t* const folder : {L"Boards", L"Protocols", L"DefaultLogDevices", L"Own"})
    {
        EXPECT_EQ(Set(folder, std::wstring(260, L'n'), L"a", L"2"), PGSP_ERR_BUFFER_TOO_SHORT);
    }
}

TEST_F(TemplateSetFailure, WithoutAnEngine)
{
    const ImportHook noEngine("CoCreateInstance", RefuseEngine, library.module());

    EXPECT_EQ(SetBoard(L"2"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
}

TEST_F(TemplateSetFailure, WithoutAParameterOrAValue)
{
    EXPECT_EQ(library.PGSP_TemplateSetValueBL(L"Boards", L"X", nullptr, L"2"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateSetValueBL(L"Boards", L"X", L"", L"2"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateSetValueBL(L"Boards", L"X", L"a", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateSetValueBL(nullptr, nullptr, nullptr, nullptr), 87);
}

TEST_F(TemplateSetFailure, WithoutAProgramFolder)
{
    TakeProgramFolderAway();

    EXPECT_EQ(library.PGSP_TemplateSetValueBL(L"Boards", L"X", L"", L"2"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateSetValueBL(L"Boards", L"X", L"a", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetBoard(L"2"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(SetBoard(L"<"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library.PGSP_TemplateSetValueBL(nullptr, nullptr, L"a", L"2"), PGSP_ERR_FOLDER_NOT_FOUND);
}

// That a file can't be saved is nobody's matter.
TEST_F(TemplateSetFailure, ToSaveIsNotTold)
{
    const OpenFile inUse(roots.board(L"X"));

    EXPECT_EQ(SetBoard(L"2"), PGSP_OK);
}

} // namespace
} // namespace norvepa::test
