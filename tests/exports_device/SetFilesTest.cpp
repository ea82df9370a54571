#include "SetScene.h"
#include "support/FreshThread.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"
#include "support/XmlMeaning.h"

#include <objbase.h>

#include <filesystem>

namespace norvepa::test
{
namespace
{

class SetFiles : public SetScene
{
protected:
    SetFiles() { Write(Stufe(L"1")); }

    [[nodiscard]] static XmlContent Stufe(const wchar_t* value)
    {
        return XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Stufe", value));
    }
};

TEST_F(SetFiles, KeepAllThatIsNotSet)
{
    const XmlContent around =
        XmlContent().Comment(L" by hand ").Element(L"Load", XmlContent().Element(L"section", L"x"));
    Write(XmlContent(around).Raw(Stufe(L"1").utf8()));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(XmlContent(around).Raw(Stufe(L"2").utf8()));
}

TEST_F(SetFiles, WithTheSameValueStayAsTheyAre)
{
    ExpectSetChangesNothing(L"Stufe", L"1", PGSP_OK);

    Write(Stufe(L"Halle"));
    ExpectSetChangesNothing(L"STUFE", L"HALLE", PGSP_OK);
}

TEST_F(SetFiles, ThatAreMissingAreNotMade)
{
    EXPECT_EQ(library.LogDeviceSetValueBL(L"gone", L"Stufe", L"1"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

TEST_F(SetFiles, ThatCanNotBeLoadedStayAsTheyAre)
{
    WriteBytes(roots.logDevice(L"Presse"), "<LogDevice><LocalSettings></LogDevice>");

    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(SetFiles, ThatAreTooLargeStayAsTheyAre)
{
    WriteBytes(roots.logDevice(L"Presse"), "<LogDevice>" + std::string(10'000'000, ' ') + "</LogDevice>");

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(SetFiles, OfTooLongAPathAreRefused)
{
    EXPECT_EQ(library.LogDeviceSetValueBL(store.DeviceForPathOf(260).c_str(), L"Stufe", L"1"),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogDeviceSetValueBL(store.DeviceForPathOf(255).c_str(), L"Stufe", L"1"),
              PGSP_ERR_FILE_NOT_FOUND);
}

// The file would be lost.
TEST_F(SetFiles, TakeNoControlCharacters)
{
    ExpectSetChangesNothing(L"Stufe", L"a\x01", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetFiles, AreWrittenOnAThreadWithoutComWhichStaysSo)
{
    OnFreshThread([&] {
        EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);
        EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectSaved(Stufe(L"2"));
}

HRESULT WINAPI RefuseEngine(REFCLSID, IUnknown*, DWORD, REFIID, void** object)
{
    *object = nullptr;
    return REGDB_E_CLASSNOTREG;
}

TEST_F(SetFiles, NeedTheXmlEngine)
{
    const ImportHook noEngine("CoCreateInstance", RefuseEngine, library.module());

    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_ERR_CANT_CREATE_XML_ENGINE);
}

// Whether it could be saved isn't asked.
TEST_F(SetFiles, ThatAreInUseAreLeftAndNotComplainedOf)
{
    const OpenFile inUse(roots.logDevice(L"Presse"));

    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_OK);
}

TEST_F(SetFiles, AreWrittenUncheckedWithoutTheProgramFolder)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"bool"}, {L"section", L"Bindings"}}));
    store.TakeProgramFolderAway();

    EXPECT_EQ(Set(L"Stufe", L"max"), PGSP_OK);

    ExpectSaved(Stufe(L"max"));
}

class SetWithoutDataFolder : public SetFiles
{
protected:
    SetWithoutDataFolder()
    {
        store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"bool"}}));
        store.TakeDataFolderAway();
        std::filesystem::current_path(m_folder.path());
    }

    ~SetWithoutDataFolder() override { std::filesystem::current_path(m_before); }

    const TemporaryFolder m_folder;

private:
    const std::filesystem::path m_before = std::filesystem::current_path();
};

TEST_F(SetWithoutDataFolder, FindsNoFileBelowTheCurrentFolder)
{
    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(SetWithoutDataFolder, WritesUncheckedBelowTheCurrentFolder)
{
    const std::wstring file = m_folder / L"data\\LogDevices\\Presse.xml";
    const std::string before = store.Bytes(L"Presse");
    WriteBytes(file, LogDeviceFile(Stufe(L"1")));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(file), MeaningOf(LogDeviceFile(Stufe(L"2"))));
    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

} // namespace
} // namespace norvepa::test
