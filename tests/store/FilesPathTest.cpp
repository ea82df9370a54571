#include "notify/directoryCache.h"
#include "store/WriteScene.h"
#include "support/StoreRoots.h"

#include <functional>
#include <ostream>
#include <vector>

namespace norvepa::test
{
namespace
{

// What all operations do with the path they are given, before anything else.
struct Operation
{
    const char* name;
    std::function<Result(const wchar_t* path)> run;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

const std::vector<Operation> Operations{
    {"CreateFile", [](const wchar_t* path) { return NorvXMLCreateFile(path, L"nam"); }},
    {"DeleteFile", [](const wchar_t* path) { return NorvXMLDeleteFile(path); }},
    {"FileExists", [](const wchar_t* path) { return NorvXMLFileExists(path); }},
    {"CopyFileFrom", [](const wchar_t* path) { return NorvXMLCopyFile(path, L"other"); }},
    {"CopyFileTo", [](const wchar_t* path) { return NorvXMLCopyFile(L"other", path); }},
    {"RenameFileFrom", [](const wchar_t* path) { return NorvXMLRenameFile(path, L"other"); }},
    {"RenameFileTo", [](const wchar_t* path) { return NorvXMLRenameFile(L"other", path); }},
    {"EnumFile",
     [](const wchar_t* path) {
         std::wstring name;
         return NorvXMLEnumFile(path, 0, &name);
     }},
    {"EnumFileName",
     [](const wchar_t* path) {
         wchar_t buffer[8];
         std::uint32_t length = 8;
         return NorvXMLEnumFileName(path, 0, buffer, &length);
     }},
    {"SetValue", [](const wchar_t* path) { return NorvXMLSetValue(path, L"s", L"p", L"1", L"int"); }},
    {"SetHeaderValue", [](const wchar_t* path) { return NorvXMLSetHeaderValue(path, L"p", L"1"); }},
    {"SetSubdevValue",
     [](const wchar_t* path) { return NorvXMLSetSubdevValue(path, L"d", L"p", L"1", L"int"); }},
    {"DelValue", [](const wchar_t* path) { return NorvXMLDelValue(path, L"s", L"p"); }},
    {"SetNdi",
     [](const wchar_t* path) { return NorvXMLSetNdi(path, L"p", L"a", nullptr, nullptr, nullptr, 0); }},
    {"DelNdi", [](const wchar_t* path) { return NorvXMLDelNdi(path, L"p", 0); }},
    {"SetParameterData",
     [](const wchar_t* path) { return NorvXMLSetParameterData(path, L"p", L"1", L"int"); }},
    {"DelParameterData", [](const wchar_t* path) { return NorvXMLDelParameterData(path, L"p"); }},
    {"EnumNdi",
     [](const wchar_t* path) {
         std::wstring name;
         std::wstring value;
         return NorvXMLEnumNdi(path, 0, &name, &value, 0);
     }},
    {"GetParameterData",
     [](const wchar_t* path) {
         std::wstring value;
         return NorvXMLGetParameterData(path, L"p", &value);
     }},
    {"EnumParameterData",
     [](const wchar_t* path) {
         std::wstring name;
         std::wstring value;
         return NorvXMLEnumParameterData(path, 0, &name, &value);
     }},
};

class FilesPathTest : public testing::TestWithParam<Operation>
{
protected:
    // An enumeration watches the store's folders, wherever they are.
    ~FilesPathTest() override { deinitWatchDirectories(); }

    // A path of so many characters to a file that can't be there.
    [[nodiscard]] std::wstring PathOf(std::size_t length) const
    {
        std::wstring path = m_roots.data() + L"\\";
        while (path.size() + 2 < length)
        {
            path += L"no\\";
        }
        return path + std::wstring(length - path.size(), L'x');
    }

    [[nodiscard]] Result Run(const std::wstring& path) const { return GetParam().run(path.c_str()); }

private:
    StoreRoots m_roots;
};

TEST_P(FilesPathTest, ANullPathIsRefused)
{
    EXPECT_EQ(GetParam().run(nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_P(FilesPathTest, AnEmptyPathIsRefused)
{
    EXPECT_EQ(Run(L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_P(FilesPathTest, APathOf259CharactersIsAccepted)
{
    const Result result = Run(PathOf(259));

    EXPECT_NE(result, PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_NE(result, PGSP_ERR_INVALID_PARAMETERS);
}

TEST_P(FilesPathTest, APathOf260CharactersIsTooLong)
{
    EXPECT_EQ(Run(PathOf(260)), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_P(FilesPathTest, TheEscapedPathCounts)
{
    // "%" takes three characters.
    EXPECT_NE(Run(PathOf(256) + L"%"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Run(PathOf(257) + L"%"), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_P(FilesPathTest, OnlyTheLastComponentIsEscaped)
{
    EXPECT_NE(Run(L"%%%%%%%%%%\\" + std::wstring(248, L'x')), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_P(FilesPathTest, AVeryLongPathIsTooLong)
{
    EXPECT_EQ(Run(std::wstring(100'000, L'#')), PGSP_ERR_BUFFER_TOO_SHORT);
}

INSTANTIATE_TEST_SUITE_P(Store, FilesPathTest, testing::ValuesIn(Operations),
                         [](const auto& each) { return each.param.name; });

} // namespace
} // namespace norvepa::test
