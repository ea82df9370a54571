#include "LifeScene.h"
#include "support/AllAtOnce.h"
#include "support/FreshThread.h"
#include "support/XmlMeaning.h"

#include <array>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class Copy : public LifeScene
{
protected:
    Copy() { Write(Rights(L"false", L"true")); }

    [[nodiscard]] std::int32_t Run(const std::wstring& from, const std::wstring& to) const
    {
        return library.LogDeviceCopyBL(from.c_str(), to.c_str());
    }
};

TEST_F(Copy, MakesAHiddenDeviceThatCanNotBeRemovedVisibleAndRemovable)
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_EQ(store.Saved(L"Kopie"), MeaningOf(LogDeviceFile(Rights(L"true", L"false"))));
    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), ElementsAre(L"Kopie.xml", L"Presse.xml"));
}

TEST_F(Copy, CanBeEnumeratedAndRemovedWhereItsOriginalCanNot)
{
    ASSERT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK);

    OutputBuffer name(260);
    EXPECT_EQ(library.LogDeviceGetEnumBL(nullptr, 0, name.data(), &name.length), PGSP_OK);
    EXPECT_EQ(name.text(), L"Kopie");
    EXPECT_EQ(library.LogDeviceDelBL(L"Kopie", 0), PGSP_OK);
    EXPECT_EQ(library.LogDeviceDelBL(L"Presse", 0), PGSP_ERR_LOG_DEVICE_NOT_DELETABLE);
}

TEST_F(Copy, OfADeviceThatSaysSoAlreadyIsItByteForByte)
{
    Write(Rights(L"TRUE", L"False").Comment(L" by hand "));

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Kopie"), store.Bytes(L"Presse"));
}

TEST_F(Copy, GetsBothValuesWhereItsOriginalHasNone)
{
    Write(XmlContent()
              .Element(L"LocalSettings", XmlContent().Text(L"enable_delete", L"false"))
              .Element(L"Ndi", XmlContent()));

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_EQ(
        store.Saved(L"Kopie"),
        MeaningOf(LogDeviceFile(
            XmlContent()
                .Element(L"LocalSettings", XmlContent().Text(L"enable_delete", L"false"))
                .Element(L"Ndi", XmlContent().Bool(L"enable_delete", L"true").Bool(L"hidden", L"false")))));
}

TEST_F(Copy, SucceedsWhereTheValuesCanNotBeSet)
{
    Write(XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1")));
    WriteBytes(roots.logDevice(L"kein XML"), "<LogDevice><Ndi>");

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK);
    EXPECT_EQ(Run(L"kein XML", L"auch keins"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Kopie"), store.Bytes(L"Presse"));
    EXPECT_EQ(store.Bytes(L"auch keins"), "<LogDevice><Ndi>");
}

TEST_F(Copy, SetsTheValuesOnAThreadWithoutComToo)
{
    OnFreshThread([&] { EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK); });

    EXPECT_EQ(store.Saved(L"Kopie"), MeaningOf(LogDeviceFile(Rights(L"true", L"false"))));
}

TEST_F(Copy, LeavesADeviceThatIsThereAsItIs)
{
    store.WriteDevice(L"Kopie", Rights(L"false", L"true").Comment(L" there "));
    const std::string before = store.Bytes(L"Kopie");

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(Run(L"Presse", L"KOPIE"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(store.Bytes(L"Kopie"), before);
    EXPECT_THAT(Files(), ElementsAre(L"Kopie.xml", L"Presse.xml"));
}

TEST_F(Copy, OfADeviceToItselfChangesNothing)
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(Run(L"Presse", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(Copy, NeedsAnOriginalAndMakesNothingWithoutOne)
{
    EXPECT_EQ(Run(L"gone", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Copy, MakesNoFolder)
{
    std::filesystem::remove_all(store.deviceFolder());

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_FALSE(Exists(store.deviceFolder()));
}

TEST_F(Copy, WithoutTheDataFolderLiesBelowTheCurrentOneAndStaysAsItWasMade)
{
    const CurrentFolder current;
    store.TakeDataFolderAway();
    WriteBytes(current.logDevice(L"Pumpe"), LogDeviceFile(Rights(L"false", L"true")));

    EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(Run(L"Pumpe", L"Kopie"), PGSP_OK);

    EXPECT_EQ(ReadBytes(current.logDevice(L"Kopie")), LogDeviceFile(Rights(L"false", L"true")));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Copy, EscapesBothNames)
{
    for (const CodedName& coded : CodedNames)
    {
        const std::wstring copy = std::wstring(L"Kopie ") + coded.name;
        const std::wstring copysFile = std::wstring(L"Kopie ") + coded.fileName;
        store.WriteDevice(coded.fileName, Rights(L"false", L"true"));

        EXPECT_EQ(Run(coded.name, copy), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_EQ(store.Saved(copysFile), MeaningOf(LogDeviceFile(Rights(L"true", L"false"))))
            << ToUtf8(coded.name);
    }
}

TEST_F(Copy, TakesPathsOf259CharactersAndNoMore)
{
    EXPECT_EQ(Run(L"Presse", store.DeviceForPathOf(260)), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Run(L"Presse", store.DeviceForPathOf(254) + L"#"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Run(store.DeviceForPathOf(260), L"Kopie"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Run(store.DeviceForPathOf(259), L"Kopie"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));

    EXPECT_EQ(Run(L"Presse", store.DeviceForPathOf(255)), PGSP_OK);
    EXPECT_EQ(Run(store.DeviceForPathOf(255), L"Kopie"), PGSP_OK);
}

TEST_F(Copy, SplitsOffNoSubdevice)
{
    Write(XmlContent().Subdevice(L"Ventil", Rights(L"true", L"false")));

    EXPECT_EQ(Run(L"Presse\\subdevices\\Ventil", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(Run(L"Presse", L"Presse\\subdevices\\Kopie"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(Copy, CanBeMadeOfADeviceThatAnotherProcessReadsButNotOfOneThatItKeepsToItself)
{
    {
        const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Reading);
        EXPECT_EQ(Run(L"Presse", L"Kopie"), PGSP_OK);
    }
    const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Nothing);

    EXPECT_EQ(Run(L"Presse", L"zweite"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Kopie.xml", L"Presse.xml"));
}

TEST_F(Copy, OfOneNameIsMadeByOneThreadAlone)
{
    constexpr int threads = 4;
    for (int round = 0; round < 10; ++round)
    {
        const std::wstring copy = L"Kopie " + std::to_wstring(round);
        std::array<std::int32_t, threads> results{};

        AllAtOnce(threads,
                  [&](int thread) { results.at(static_cast<std::size_t>(thread)) = Run(L"Presse", copy); });

        EXPECT_THAT(results, UnorderedElementsAre(PGSP_OK, PGSP_ERR_CANT_COPY_FILE, PGSP_ERR_CANT_COPY_FILE,
                                                  PGSP_ERR_CANT_COPY_FILE));
        EXPECT_EQ(store.Saved(copy), MeaningOf(LogDeviceFile(Rights(L"true", L"false"))));
    }
}

} // namespace
} // namespace norvepa::test
