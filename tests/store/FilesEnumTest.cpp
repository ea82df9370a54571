#include "frame/StoreLocations.h"
#include "notify/directoryCache.h"
#include "store/norvxml.h"
#include "support/OutputBuffer.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

class FilesEnumTest : public testing::Test
{
protected:
    // A folder that is watched can't be removed.
    ~FilesEnumTest() override { deinitWatchDirectories(); }

    void GivenFiles(std::initializer_list<std::wstring> names) const
    {
        for (const std::wstring& name : names)
        {
            WriteBytes(folder() + L"\\" + name, "");
        }
    }

    [[nodiscard]] std::wstring folder() const { return m_roots.data() + L"\\data\\LogNames"; }

    // All that index after index gives.
    [[nodiscard]] std::vector<std::wstring> Names(const std::wstring& folder) const
    {
        std::vector<std::wstring> names;
        std::wstring name;
        while (NorvXMLEnumFile(folder.c_str(), static_cast<std::uint32_t>(names.size()), &name) == PGSP_OK)
        {
            names.push_back(name);
        }
        return names;
    }

    // The first name into a buffer.
    [[nodiscard]] Result FirstName(OutputBuffer& buffer) const
    {
        return NorvXMLEnumFileName(folder().c_str(), 0, buffer.data(), &buffer.length);
    }

private:
    StoreRoots m_roots;
};

using FilesEnumNameTest = FilesEnumTest;

TEST_F(FilesEnumTest, NamesAreUnescapedAndWithoutExtension)
{
    GivenFiles({L"Kessel(nmbr)1.xml", L"50#25 #3cA#7cB#3e.xml", L"Gr\u00F6\u00DFe.xml", L"plain.txt"});

    EXPECT_THAT(Names(folder()),
                testing::UnorderedElementsAre(L"Kessel#1", L"50% <A|B>", L"Gr\u00F6\u00DFe"));
}

TEST_F(FilesEnumTest, ATemporaryFileIsNotHidden)
{
    GivenFiles({L"a.xml", L"a(temp).xml"});

    EXPECT_THAT(Names(folder()), testing::UnorderedElementsAre(L"a", L"a(temp)"));
}

TEST_F(FilesEnumTest, TheOrderIsTheDirectorys)
{
    GivenFiles({L"c.xml", L"a.xml", L"b.xml"});
    std::shared_ptr<const DirectoryListing> listing;
    ASSERT_EQ(getDirectoryContent(folder(), GetDataFolder(), listing), PGSP_OK);

    EXPECT_THAT(Names(folder()), testing::ElementsAreArray(*listing));
}

TEST_F(FilesEnumTest, PastTheEndThereAreNoMoreItems)
{
    GivenFiles({L"a.xml"});
    std::wstring name = L"before";

    EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 1, &name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 0xFFFFFFFF, &name), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_EQ(name, L"before");
}

TEST_F(FilesEnumTest, AnEmptyFolderAndOneThatIsNotThereHaveNone)
{
    std::wstring name;

    EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 0, &name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(NorvXMLEnumFile((folder() + L"\\nowhere").c_str(), 0, &name), PGSP_ERR_NO_MORE_ITEMS);
}

TEST_F(FilesEnumTest, ANullOutputIsRefused)
{
    EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 0, nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(FilesEnumTest, AnyFolderIsListedByTheNameThatItHas)
{
    const std::wstring other = folder() + L"\\Werk #1 100%";
    WriteBytes(other + L"\\a.xml", "");

    EXPECT_THAT(Names(other), testing::ElementsAre(L"a"));
}

TEST_F(FilesEnumNameTest, ANameIsCopiedWithItsTerminator)
{
    GivenFiles({L"Kessel(nmbr)1.xml"});
    OutputBuffer buffer(9);

    EXPECT_EQ(FirstName(buffer), PGSP_OK);

    EXPECT_EQ(buffer.text(), L"Kessel#1");
    EXPECT_EQ(buffer.length, 8u);
}

TEST_F(FilesEnumNameTest, ABufferWithoutRoomForTheTerminatorIsTooShort)
{
    GivenFiles({L"Kessel(nmbr)1.xml"});
    OutputBuffer buffer(8);

    EXPECT_EQ(FirstName(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 8u);
}

TEST_F(FilesEnumNameTest, ATooShortBufferIsToldTheLength)
{
    GivenFiles({L"Kessel(nmbr)1.xml"});
    OutputBuffer buffer(1);

    EXPECT_EQ(FirstName(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 8u);
}

TEST_F(FilesEnumNameTest, PastTheEndBufferAndLengthStay)
{
    OutputBuffer buffer(20);

    EXPECT_EQ(FirstName(buffer), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 20u);
}

TEST_F(FilesEnumNameTest, AnEmptyNameLeavesBufferAndLengthAlone)
{
    GivenFiles({L".xml"});
    OutputBuffer buffer(20);

    EXPECT_EQ(FirstName(buffer), PGSP_OK);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 20u);
}

TEST_F(FilesEnumNameTest, BadArgumentsAreRefused)
{
    GivenFiles({L"a.xml"});
    OutputBuffer buffer(20);
    std::uint32_t zero = 0;

    EXPECT_EQ(NorvXMLEnumFileName(nullptr, 0, buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLEnumFileName(L"", 0, buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLEnumFileName(folder().c_str(), 0, nullptr, &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLEnumFileName(folder().c_str(), 0, buffer.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLEnumFileName(folder().c_str(), 0, buffer.data(), &zero), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(buffer.isUntouched());
}

} // namespace
} // namespace norvepa::test
