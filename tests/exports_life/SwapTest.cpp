#include "LifeScene.h"
#include "support/FreshThread.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class Swap : public LifeScene
{
protected:
    Swap() { WriteBytes(roots.logDevice(L"Presse"), "the device"); }

    [[nodiscard]] std::int32_t Run(const std::wstring& temporary, const std::wstring& logDevice) const
    {
        return library.LogDeviceUpdateWithTempBL(temporary.c_str(), logDevice.c_str());
    }

    // A file of the name that an empty one stands for.
    [[nodiscard]] std::wstring fileWithoutName() const { return store.deviceFolder() + L".xml"; }
};

TEST_F(Swap, PutsTheTemporaryDeviceInTheDevicesPlace)
{
    WriteBytes(roots.logDevice(TemporaryName(0)), "the temporary one");

    EXPECT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), "the temporary one");
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Swap, BringsWhatWasChangedAside)
{
    Write(Rights(L"false", L"false"));
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));
    ASSERT_EQ(library.PGSP_LogDeviceSetNdiBL(TemporaryName(0).c_str(), L"hidden", L"true", 0), PGSP_OK);

    EXPECT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK);

    EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(Rights(L"false", L"true"))));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Swap, BringsTheTemplatesNameToo)
{
    WriteTemplate(L"MPI", XmlContent().Element(L"Ndi", XmlContent()));
    ASSERT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));

    EXPECT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK);

    EXPECT_EQ(
        store.Saved(L"Presse"),
        MeaningOf(LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent().Text(L"DefLogDevice", L"MPI")))));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Swap, FreesTheNumber)
{
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    ASSERT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK);

    EXPECT_EQ(MakeTemporary(), TemporaryName(0));
}

TEST_F(Swap, TellsNobody)
{
    const NamedEvent all;
    Register(all);
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    ASSERT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK);

    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(IsTold(all));
}

TEST_F(Swap, AsksForNoPermission)
{
    Write(Rights(L"false", L"false"));
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK);
}

TEST_F(Swap, LetsAnyDeviceReplaceAnyOther)
{
    WriteBytes(roots.logDevice(L"Pumpe"), "another device");
    EXPECT_EQ(Run(L"Pumpe", L"Presse"), PGSP_OK);
    EXPECT_EQ(store.Bytes(L"Presse"), "another device");
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));

    WriteBytes(roots.logDevice(TemporaryName(0)), "the temporary one");
    EXPECT_EQ(Run(L"Presse", TemporaryName(0)), PGSP_OK);
    EXPECT_EQ(store.Bytes(TemporaryName(0)), "another device");
    EXPECT_THAT(Files(), ElementsAre(TemporaryName(0) + L".xml"));
}

TEST_F(Swap, LosesADeviceThatIsToReplaceItself)
{
    EXPECT_EQ(Run(L"Presse", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Swap, TakesAnEmptyNameForTheFileOfTheFoldersName)
{
    WriteBytes(fileWithoutName(), "without a name");
    EXPECT_EQ(Run(L"", L"Presse"), PGSP_OK);
    EXPECT_EQ(store.Bytes(L"Presse"), "without a name");
    EXPECT_FALSE(Exists(fileWithoutName()));

    WriteBytes(fileWithoutName(), "without a name");
    EXPECT_EQ(Run(L"Presse", L""), PGSP_OK);
    EXPECT_EQ(ReadBytes(fileWithoutName()), "without a name");
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Swap, FindsNoDeviceWithoutAName)
{
    EXPECT_EQ(Run(L"Presse", L""), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Run(L"", L""), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(store.Bytes(L"Presse"), "the device");

    EXPECT_EQ(Run(L"", L"Presse"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Swap, EscapesBothNames)
{
    for (const CodedName& coded : CodedNames)
    {
        const std::wstring asideFile = L"Neu " + std::wstring(coded.fileName);
        WriteBytes(roots.logDevice(coded.fileName), "the device");
        WriteBytes(roots.logDevice(asideFile), "the other");

        EXPECT_EQ(Run(L"Neu " + std::wstring(coded.name), coded.name), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_EQ(store.Bytes(coded.fileName), "the other") << ToUtf8(coded.name);
        EXPECT_FALSE(IsThere(asideFile)) << ToUtf8(coded.name);
    }
}

// What removes and what copies give names the extension by different rules.
TEST_F(Swap, MakesAnotherFileThanItRemovesWhenTheNameHoldsTheExtension)
{
    const std::wstring file = store.deviceFolder() + L"\\Pumpe.xml.old";
    WriteBytes(file + L".xml", "removed");

    EXPECT_EQ(Run(L"Presse", L"Pumpe.xml.old"), PGSP_OK);

    EXPECT_EQ(ReadBytes(file), "the device");
    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml.old"));
}

TEST_F(Swap, NeedsNoComAndNoProgramFolder)
{
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));
    store.TakeProgramFolderAway();

    OnFreshThread([&] { EXPECT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_OK); });
}

TEST_F(Swap, NeedsTheDataFolderAndSwapsNothingBelowTheCurrentOne)
{
    const CurrentFolder current;
    store.TakeDataFolderAway();
    WriteBytes(current.logDevice(L"Presse"), "relative");
    WriteBytes(current.logDevice(TemporaryName(0)), "");

    EXPECT_EQ(Run(TemporaryName(0), L"Presse"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_EQ(ReadBytes(current.logDevice(L"Presse")), "relative");
    EXPECT_TRUE(Exists(current.logDevice(TemporaryName(0))));
}

} // namespace
} // namespace norvepa::test
