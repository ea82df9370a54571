#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

constexpr const wchar_t* Folders[] = {L"Boards", L"Protocols", L"DefaultLogDevices", L"Own"};

// A file that is called by its extension alone, in each folder of the catalogue.
class FileWithoutName : public TemplateScene
{
protected:
    FileWithoutName()
    {
        for (const wchar_t* const folder : Folders)
        {
            WriteIn(folder, L"", {});
        }
    }
};

TEST_F(FileWithoutName, IsTakenForANameThatIsNotWritten)
{
    for (const wchar_t* const folder : Folders)
    {
        SCOPED_TRACE(ToUtf8(folder));
        OutputBuffer name(20);

        EXPECT_EQ(library.PGSP_TemplateGetEnumBL(folder, 0, name.data(), &name.length), PGSP_OK);

        EXPECT_TRUE(name.isUntouched());
        EXPECT_EQ(name.length, 20U);
        EXPECT_EQ(FileName(folder, 1), Failed(PGSP_ERR_NO_MORE_ITEMS));
    }
}

TEST_F(FileWithoutName, HasAnEmptyOneWhereNamesHaveNoPrefix)
{
    for (const wchar_t* const folder : Folders)
    {
        EXPECT_EQ(NameWithoutPrefix(folder, 0), L"") << ToUtf8(folder);
        EXPECT_EQ(NameWithoutPrefix(folder, 1), Failed(PGSP_ERR_NO_MORE_ITEMS));
    }
}

TEST_F(FileWithoutName, IsAnEmptyStringInAList)
{
    for (const wchar_t* const folder : Folders)
    {
        SCOPED_TRACE(ToUtf8(folder));
        ListBuffer names(300);

        EXPECT_EQ(library.PGSP_TemplateGetListBL(folder, names.data(), &names.length), PGSP_OK);

        EXPECT_EQ(names.written(), Packed({L""}));
        EXPECT_EQ(names.length, 2U);
    }
}

} // namespace
} // namespace norvepa::test
