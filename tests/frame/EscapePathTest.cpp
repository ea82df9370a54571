#include "frame/FileNames.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa
{
namespace
{

TEST(EscapePath, EscapesTheLastComponent)
{
    std::wstring escaped;

    EXPECT_EQ(EscapePath(L"C:\\50%\\Pump*", escaped), PGSP_OK);

    EXPECT_EQ(escaped, L"C:\\50%\\Pump#2a");
}

TEST(EscapePath, RefusesAMissingPathAndLeavesItsOutput)
{
    std::wstring escaped = L"before";

    EXPECT_EQ(EscapePath(nullptr, escaped), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(EscapePath(L"", escaped), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(escaped, L"before");
}

TEST(EscapePath, TakesAPathOf259Characters)
{
    const std::wstring path = L"C:\\" + std::wstring(256, L'p');
    std::wstring escaped;

    EXPECT_EQ(EscapePath(path.c_str(), escaped), PGSP_OK);

    EXPECT_EQ(escaped, path);
}

TEST(EscapePath, RefusesAPathOf260CharactersAndLeavesItsOutput)
{
    const std::wstring path = L"C:\\" + std::wstring(257, L'p');
    std::wstring escaped = L"before";

    EXPECT_EQ(EscapePath(path.c_str(), escaped), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(escaped, L"before");
}

TEST(EscapePath, CountsTheCodesAndNotTheCharacters)
{
    const std::wstring path = L"C:\\" + std::wstring(250, L'p');
    std::wstring escaped;

    EXPECT_EQ(EscapePath((path + L"#").c_str(), escaped), PGSP_OK); // 253 and 6
    EXPECT_EQ(escaped, path + L"(nmbr)");

    EXPECT_EQ(EscapePath((path + L"#a").c_str(), escaped), PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa
