#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

class TemplateFolderPath : public TemplateScene
{
protected:
    // A folder word with which the path of the folder has this many characters.
    [[nodiscard]] std::wstring FolderForPathOf(std::size_t length) const
    {
        return std::wstring(length - (roots.program() + L"\\meta\\").size(), L'f');
    }
};

TEST_F(TemplateFolderPath, MayHave259CharactersAndNoMoreWhereOneNameIsAskedFor)
{
    EXPECT_EQ(FileName(FolderForPathOf(259), 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(FileName(FolderForPathOf(260), 0), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(FileName(FolderForPathOf(10'000), 1), Failed(PGSP_ERR_BUFFER_TOO_SHORT));

    EXPECT_EQ(NameWithoutPrefix(FolderForPathOf(259), 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(NameWithoutPrefix(FolderForPathOf(260), 0), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(NameWithoutPrefix(FolderForPathOf(10'000), 1), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
}

TEST_F(TemplateFolderPath, CountsWithItsLastNameCoded)
{
    const std::wstring folder = FolderForPathOf(254);

    EXPECT_EQ(FileName(folder + L"%", 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(FileName(folder + L"#", 0), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(NameWithoutPrefix(folder + L"#", 0), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
}

TEST_F(TemplateFolderPath, OfAnyLengthLeadsToAnEmptyListWhereAllNamesAreAskedFor)
{
    for (const std::size_t length : {259U, 260U, 10'000U})
    {
        ListBuffer names(300);

        EXPECT_EQ(
            library.PGSP_TemplateGetListBL(FolderForPathOf(length).c_str(), names.data(), &names.length),
            PGSP_OK);

        EXPECT_EQ(names.written(), Packed({}));
        EXPECT_EQ(names.length, 1U);
    }
}

} // namespace
} // namespace norvepa::test
