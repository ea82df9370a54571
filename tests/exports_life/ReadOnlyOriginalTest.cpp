#include "LifeScene.h"

#include <windows.h>

#include <vector>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// A copy takes the attribute with it, and can't be removed. Whether anything can be saved to it is the
// system's affair, and nobody is told.
class ReadOnlyOriginal : public LifeScene
{
protected:
    ReadOnlyOriginal()
    {
        Write(Rights(L"false", L"true"));
        WriteTemplate(L"MPI", Rights(L"true", L"false"));
        for (const std::wstring& original : originals)
        {
            SetFileAttributesW(original.c_str(), FILE_ATTRIBUTE_READONLY);
        }
    }

    ~ReadOnlyOriginal() override
    {
        for (const std::wstring& original : originals)
        {
            SetFileAttributesW(original.c_str(), FILE_ATTRIBUTE_NORMAL);
        }
        for (const std::wstring& file : Files())
        {
            SetFileAttributesW((store.deviceFolder() + L"\\" + file).c_str(), FILE_ATTRIBUTE_NORMAL);
        }
    }

    [[nodiscard]] bool IsReadOnly(const std::wstring& fileName) const
    {
        return (GetFileAttributesW(roots.logDevice(fileName).c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    }

    const std::vector<std::wstring> originals{roots.logDevice(L"Presse"), roots.deviceTemplate(L"MPI")};
};

TEST_F(ReadOnlyOriginal, OfACopyKeepsItFromRemoval)
{
    const NamedEvent told;
    Register(told, L"Kopie");

    EXPECT_EQ(library.LogDeviceCopyBL(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_TRUE(IsTold(told));
    EXPECT_TRUE(IsReadOnly(L"Kopie"));
    EXPECT_EQ(library.LogDeviceDelBL(L"Kopie", 1), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_THAT(Files(), ElementsAre(L"Kopie.xml", L"Presse.xml"));
}

TEST_F(ReadOnlyOriginal, OfADeviceFromATemplateKeepsItFromRemoval)
{
    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"Neu"), PGSP_OK);

    EXPECT_TRUE(IsReadOnly(L"Neu"));
    EXPECT_EQ(store.Bytes(L"Neu"), ReadBytes(roots.deviceTemplate(L"MPI")));
    EXPECT_EQ(library.LogDeviceDelBL(L"Neu", 0), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_THAT(Files(), ElementsAre(L"Neu.xml", L"Presse.xml"));
}

TEST_F(ReadOnlyOriginal, OfATemporaryDeviceKeepsItsNumberTaken)
{
    EXPECT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_TRUE(IsReadOnly(TemporaryName(0)));
    EXPECT_EQ(store.Bytes(TemporaryName(0)), store.Bytes(L"Presse"));
    EXPECT_EQ(library.LogDeviceDelTempBL(TemporaryName(0).c_str()), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(MakeTemporary(), TemporaryName(1));
}

TEST_F(ReadOnlyOriginal, OfATemporaryDeviceFromATemplateKeepsItsNumberTakenToo)
{
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));

    EXPECT_TRUE(IsReadOnly(TemporaryName(0)));
    EXPECT_EQ(library.LogDeviceDelTempBL(TemporaryName(0).c_str()), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(1));
}

} // namespace
} // namespace norvepa::test
