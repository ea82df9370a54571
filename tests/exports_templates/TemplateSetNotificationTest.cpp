#include "TemplateSetScene.h"
#include "support/OpenFile.h"
#include "support/Registrant.h"

namespace norvepa::test
{
namespace
{

class TemplateSetNotification : public TemplateSetScene
{
protected:
    void ExpectNobodyTold() const
    {
        EXPECT_EQ(workers.count(), 0U);
        EXPECT_FALSE(all.IsTold());
        EXPECT_FALSE(bare.IsTold());
    }

    const Workers workers{library.module()};
    const Registrant all{library, workers, L"meta"};
    const Registrant bare{library, workers, L"meta", L"X"};
    const Registrant prefixed{library, workers, L"meta", L"Automation-OnlineAccess-BT-X"};
    const Registrant starred{library, workers, L"meta", L"*X"};
    const Registrant other{library, workers, L"meta", L"Y"};
    const Registrant boards{library, workers, L"Boards"};
    const Registrant devices{library, workers, L"LogDevices"};
};

TEST_F(TemplateSetNotification, TellsOfTheFileAsTheCallerCallsIt)
{
    EXPECT_EQ(Set(L"Boards", L"X", L"a", L"2"), PGSP_OK);

    EXPECT_TRUE(all.IsTold());
    EXPECT_TRUE(bare.IsTold());
    EXPECT_FALSE(prefixed.IsTold());
    EXPECT_FALSE(starred.IsTold());
    EXPECT_FALSE(other.IsTold());
    EXPECT_FALSE(boards.IsTold());
    EXPECT_FALSE(devices.IsTold());
    EXPECT_EQ(workers.count(), 1U);
}

TEST_F(TemplateSetNotification, TellsOfTheSameFileByWhateverNameItWasCalled)
{
    EXPECT_EQ(Set(L"Boards", BoardPrefix + L"X", L"a", L"2"), PGSP_OK);
    EXPECT_TRUE(prefixed.IsTold());
    EXPECT_EQ(Set(L"boards", L"*X", L"a", L"3"), PGSP_OK);
    EXPECT_TRUE(starred.IsTold());

    EXPECT_TRUE(all.IsTold());
    EXPECT_FALSE(bare.IsTold());
    EXPECT_EQ(workers.count(), 2U);
}

TEST_F(TemplateSetNotification, TellsOfFilesInEveryFolder)
{
    const XmlContent content = XmlContent().Element(L"Ndi", XmlContent().Text(L"a", L"1"));
    WriteProtocol(L"X", content);
    WriteTemplate(L"X", content);
    WriteIn(L"Own", L"X", content);

    for (const wchar_t* const folder : {L"Protocols", L"DefaultLogDevices", L"Own"})
    {
        EXPECT_EQ(Set(folder, L"X", L"a", L"2"), PGSP_OK);
        EXPECT_TRUE(bare.IsTold()) << ToUtf8(folder);
    }
}

TEST_F(TemplateSetNotification, TellsNobodyOfAnUnchangedValue)
{
    EXPECT_EQ(SetBoard(L"1"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(TemplateSetNotification, TellsNobodyOfASetThatFails)
{
    WriteBytes(roots.board(L"broken"), "no XML");

    EXPECT_EQ(SetBoard(L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Boards", L"X", L"", L"2"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Boards", L"X", L"gone", L"2"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(Set(L"Boards", L"gone", L"a", L"2"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Set(L"Boards", L"broken", L"a", L"2"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Set(L"Boards", std::wstring(260, L'n'), L"a", L"2"), PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectNobodyTold();
}

TEST_F(TemplateSetNotification, TellsOfAChangeThatCouldNotBeSaved)
{
    const OpenFile inUse(roots.board(L"X"));

    EXPECT_EQ(SetBoard(L"2"), PGSP_OK);

    EXPECT_TRUE(bare.IsTold());
}

TEST_F(TemplateSetNotification, OfAFileWithoutANameReachesThoseWhoAskForAll)
{
    WriteBoard(L"", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(Set(L"Boards", L"", L"a", L"2"), PGSP_OK);

    EXPECT_TRUE(all.IsTold());
    EXPECT_FALSE(bare.IsTold());
}

TEST_F(TemplateSetNotification, OfAFileThatWasNotNamedReachesNobody)
{
    WriteBoard(L"", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(library.PGSP_TemplateSetValueBL(L"Boards", nullptr, L"a", L"2"), PGSP_OK);

    ExpectNobodyTold();
}

} // namespace
} // namespace norvepa::test
