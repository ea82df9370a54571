#include "LifeScene.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

using testing::UnorderedElementsAre;

// What copies adds no extension to a name that holds it anywhere; what looks for a file or removes it adds
// one unless the name ends with the first that it holds.
class ExtensionInName : public LifeScene
{
protected:
    ExtensionInName() { WriteTemplate(L"MPI", Rights(L"false", L"true")); }

    [[nodiscard]] std::int32_t Create(const std::wstring& name, const std::wstring& logDevice) const
    {
        return library.LogDeviceCreateFromDefBL(name.c_str(), logDevice.c_str());
    }

    // A file of the log devices' folder by its whole name.
    [[nodiscard]] std::wstring File(const std::wstring& name) const
    {
        return store.deviceFolder() + L"\\" + name;
    }
};

TEST_F(ExtensionInName, OfADeviceGetsNoSecondOneAnywhereItStands)
{
    EXPECT_EQ(Create(L"MPI", L"Presse.xml"), PGSP_OK);
    EXPECT_EQ(Create(L"MPI", L"Pumpe.xml.old"), PGSP_OK);
    EXPECT_EQ(Create(L"MPI", L"Band.XML"), PGSP_OK);

    EXPECT_THAT(Files(), UnorderedElementsAre(L"Presse.xml", L"Pumpe.xml.old", L"Band.XML.xml"));
}

// What looks for a template and what copies it give names the extension by different rules.
TEST_F(ExtensionInName, OfATemplateIsLookedForUnderAnotherNameThanIsCopied)
{
    WriteBytes(roots.program() + L"\\meta\\DefaultLogDevices\\" + TemplatePrefix + L"MPI.xml.old", "copied");
    EXPECT_EQ(Create(L"MPI.xml.old", L"Presse"), PGSP_ERR_FILE_NOT_FOUND);

    WriteBytes(roots.deviceTemplate(L"MPI.xml.old"), "looked for");
    EXPECT_EQ(Create(L"MPI.xml.old", L"Presse"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), "copied");
    EXPECT_EQ(Create(L"MPI.xml", L"Pumpe"), PGSP_OK);
}

TEST_F(ExtensionInName, OfACopysOriginalGetsNoSecondOne)
{
    WriteBytes(File(L"Presse.xml.old"), "copied");
    WriteBytes(File(L"Presse.xml.old.xml"), "not meant");

    EXPECT_EQ(library.LogDeviceCopyBL(L"Presse.xml.old", L"Kopie"), PGSP_OK);
    EXPECT_EQ(library.LogDeviceCopyBL(L"Kopie.xml", L"zweite"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Kopie"), "copied");
    EXPECT_EQ(store.Bytes(L"zweite"), "copied");
}

TEST_F(ExtensionInName, OfACopyGetsNoSecondOneAndItsValuesAreSet)
{
    Write(Rights(L"false", L"true"));

    EXPECT_EQ(library.LogDeviceCopyBL(L"Presse", L"Kopie.xml.old"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(File(L"Kopie.xml.old")), MeaningOf(LogDeviceFile(Rights(L"true", L"false"))));
    EXPECT_THAT(Files(), UnorderedElementsAre(L"Kopie.xml.old", L"Presse.xml"));
}

TEST_F(ExtensionInName, OfATemporaryDevicesOriginalGetsNoSecondOne)
{
    WriteBytes(File(L"Presse.xml.old"), "copied");
    WriteBytes(File(L"Presse.xml.old.xml"), "not meant");

    EXPECT_EQ(MakeTemporary(L"Presse.xml.old"), TemporaryName(0));
    EXPECT_EQ(MakeTemporary(TemporaryName(0) + L".xml"), TemporaryName(1));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), "copied");
    EXPECT_EQ(store.Bytes(TemporaryName(1)), "copied");
}

TEST_F(ExtensionInName, OfATemporaryDeviceToRemoveGetsASecondOneUnlessItIsTheEnd)
{
    const std::wstring name = TemporaryName(0);
    for (const wchar_t* const ending : {L".xml", L".xml.old", L".xml.old.xml", L".xml.xml", L".xml.xml.xml"})
    {
        WriteBytes(File(name + ending), "");
    }

    EXPECT_EQ(library.LogDeviceDelTempBL((name + L".xml.old").c_str()), PGSP_OK);
    EXPECT_EQ(library.LogDeviceDelTempBL((name + L".xml.xml").c_str()), PGSP_OK);
    EXPECT_EQ(library.LogDeviceDelTempBL((name + L".xml").c_str()), PGSP_OK);
    EXPECT_EQ(library.LogDeviceDelTempBL(name.c_str()), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), UnorderedElementsAre(name + L".xml.old", name + L".xml.xml"));
}

} // namespace
} // namespace norvepa::test
