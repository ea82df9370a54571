#include "exports_device/Registrants.h"
#include "exports_device/SetScene.h"
#include "support/Eventually.h"
#include "support/FreshThread.h"
#include "support/OutputBuffer.h"
#include "support/Peer.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class DelVmdId : public WithRegistrants<SetScene>
{
protected:
    [[nodiscard]] std::int32_t DelIdentity(const std::wstring& logDevice) const
    {
        return library.LogDeviceDelVmdIdBL(logDevice.c_str());
    }

    // A device that doesn't allow its removal.
    void WriteLasting(const std::wstring& fileName) const
    {
        store.WriteDevice(fileName,
                          XmlContent().Element(L"Ndi", XmlContent().Bool(L"enable_delete", L"false")));
    }

    // The first log device of the enumeration, "" when there is none.
    [[nodiscard]] std::wstring First() const
    {
        OutputBuffer name(260);
        const std::int32_t result = library.LogDeviceGetEnumBL(nullptr, 0, name.data(), &name.length);
        return result == PGSP_OK ? name.text() : L"";
    }
};

TEST_F(DelVmdId, RemovesWhatHoldsOneOfTheTwoTexts)
{
    const CodedName identities[] = {
        {L"*_/VMDID", L"#2a_#2fVMDID"},
        {L"S7*_/VMDID_2", L"S7#2a_#2fVMDID_2"},
        {L"PC internal", L"PC internal"},
        {L"My PC internal (local)", L"My PC internal (local)"},
        {L"xPC internalx", L"xPC internalx"},
        {L"50% PC internal #1: a?b|c", L"50#25 PC internal (nmbr)1#3a a#3fb#7cc"},
        {L"PC internal*_/VMDID", L"PC internal#2a_#2fVMDID"},
    };
    for (const CodedName& identity : identities)
    {
        WriteLasting(L"Presse");
        WriteLasting(identity.fileName);

        EXPECT_EQ(DelIdentity(identity.name), PGSP_OK) << ToUtf8(identity.name);

        EXPECT_THAT(Files(), ElementsAre(L"Presse.xml")) << ToUtf8(identity.name);
    }
}

TEST_F(DelVmdId, RefusesWhatHoldsNeither)
{
    const CodedName others[] = {
        {L"Presse", L"Presse"},
        {L"PC Internal", L"PC Internal"},
        {L"pc internal", L"pc internal"},
        {L"PC  internal", L"PC  internal"},
        {L"PC", L"PC"},
        {L"*_/vmdid", L"#2a_#2fvmdid"},
        {L"*_VMDID", L"#2a_VMDID"},
        {L"_/VMDID", L"_#2fVMDID"},
        {L"#2a_#2fVMDID", L"(nmbr)2a_(nmbr)2fVMDID"},
        {L"VMDID", L"VMDID"},
    };
    for (const CodedName& other : others)
    {
        WriteLasting(other.fileName);
        const std::string before = store.Bytes(other.fileName);

        EXPECT_EQ(DelIdentity(other.name), PGSP_ERR_INVALID_PARAMETERS) << ToUtf8(other.name);

        EXPECT_EQ(store.Bytes(other.fileName), before);
    }
}

TEST_F(DelVmdId, NeedsAName)
{
    EXPECT_EQ(library.LogDeviceDelVmdIdBL(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceDelVmdIdBL(L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(DelVmdId, TestsTheNameAheadOfTheDataFolder)
{
    WriteLasting(L"PC internal");
    store.TakeDataFolderAway();

    EXPECT_EQ(library.LogDeviceDelVmdIdBL(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(DelIdentity(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(DelIdentity(L"Presse"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(Files(), ElementsAre(L"PC internal.xml"));
}

TEST_F(DelVmdId, DoesNotLookIntoTheFile)
{
    for (const std::string_view bytes : {"", "no document"})
    {
        WriteBytes(roots.logDevice(L"PC internal"), bytes);

        EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_OK);

        EXPECT_THAT(Files(), IsEmpty());
    }
}

TEST_F(DelVmdId, NeedsNoComAndNoProgramFolder)
{
    WriteLasting(L"PC internal");
    store.TakeProgramFolderAway();

    OnFreshThread([&] { EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_OK); });

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(DelVmdId, TellsNobody)
{
    const NamedEvent itself;
    Register(itself, L"PC internal");
    WriteLasting(L"PC internal");

    EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_OK);

    ExpectNobodyTold();
    EXPECT_FALSE(IsTold(itself));
}

TEST_F(DelVmdId, IsLearntByTheWatchOfTheFolder)
{
    WriteLasting(L"PC internal");
    ASSERT_EQ(First(), L"PC internal");

    EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_OK);

    EXPECT_TRUE(Eventually([&] { return First().empty(); }));
}

TEST_F(DelVmdId, CanNotRemoveWhatIsNotThere)
{
    WriteLasting(L"Presse");

    EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(DelIdentity(L"*_/VMDID"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(DelVmdId, RemovesNoSubdevice)
{
    store.WriteDevice(L"Presse", XmlContent().Subdevice(L"PC internal", {}));
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(DelIdentity(L"Presse\\subdevices\\PC internal"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(DelVmdId, LeavesAFileThatAnotherProcessHolds)
{
    WriteLasting(L"PC internal");
    const std::string before = store.Bytes(L"PC internal");
    {
        Peer holder(L"file_holder.exe", roots.registry());
        ASSERT_EQ(holder.Ask(ToUtf8(roots.logDevice(L"PC internal"))), "held");

        EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_ERR_CANT_DELETE_FILE);

        EXPECT_EQ(store.Bytes(L"PC internal"), before);
    }

    EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_OK);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(DelVmdId, LeavesAReadOnlyFile)
{
    WriteLasting(L"PC internal");
    SetFileAttributesW(roots.logDevice(L"PC internal").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(DelIdentity(L"PC internal"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"PC internal.xml"));
    SetFileAttributesW(roots.logDevice(L"PC internal").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DelVmdId, TakesAPathOf259CharactersAndNoMore)
{
    const auto identity = [this](std::size_t length) {
        return store.DeviceForPathOf(length - 11) + L"PC internal";
    };

    EXPECT_EQ(DelIdentity(identity(260)), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(DelIdentity(identity(254) + L"#"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(DelIdentity(std::wstring(100'000, L'n') + L"PC internal"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(DelIdentity(identity(259)), PGSP_ERR_CANT_DELETE_FILE);
}

TEST_F(DelVmdId, TakesANameWithItsExtension)
{
    WriteLasting(L"PC internal");
    WriteBytes(store.deviceFolder() + L"\\PC internal.xml.old", "");

    EXPECT_EQ(DelIdentity(L"PC internal.xml.old"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(DelIdentity(L"PC internal.xml"), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"PC internal.xml.old"));
}

} // namespace
} // namespace norvepa::test
