#include "WatchScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

// The names as the system tells them, in its order.
Names SystemOrder(const std::wstring& folder)
{
    Names names;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((folder + L"\\*.xml").c_str(), &found);
    do
    {
        const std::wstring name = found.cFileName;
        names.push_back(name.substr(0, name.size() - 4));
    } while (FindNextFileW(search, &found) != FALSE);
    FindClose(search);
    return names;
}

class ListedNames : public WatchScene
{
};

TEST_F(ListedNames, AreInTheFoldersOrder)
{
    for (const wchar_t* const name : {L"m", L"a", L"Z", L"0", L"\u00E4", L"_", L"b2", L"b10", L"B1"})
    {
        MakeFile(logDevices(), std::wstring(name) + L".xml");
    }

    const Names listed = Listing(logDevices());

    EXPECT_EQ(listed.size(), 9U);
    EXPECT_EQ(listed, SystemOrder(logDevices()));
}

struct EscapedName
{
    const wchar_t* fileName;
    const wchar_t* name;
};

class AnEscapedName : public WatchScene, public testing::WithParamInterface<EscapedName>
{
};

TEST_P(AnEscapedName, IsListedInItsPlainForm)
{
    MakeFile(logDevices(), std::wstring(GetParam().fileName) + L".xml");

    EXPECT_THAT(Listing(logDevices()), ElementsAre(GetParam().name));
}

constexpr EscapedName EscapedNames[] = {
    {L"a(nmbr)b", L"a#b"},
    {L"a#25b", L"a%b"},
    {L"a#3ab", L"a:b"},
    {L"a#2ab", L"a*b"},
    {L"a#3fb", L"a?b"},
    {L"a#3cb", L"a<b"},
    {L"a#3eb", L"a>b"},
    {L"a#7cb", L"a|b"},
    {L"a#2fb", L"a/b"},
    {L"#25#25(nmbr)", L"%%#"},
    {L"(nmbr)25", L"#25"},
    {L"#3A#5c", L"#3A#5c"}, // no codes: the letters' case counts, and the backslash has none
    {L"F\u00F6rderband \u00DCber \u00DF", L"F\u00F6rderband \u00DCber \u00DF"},
    {L"\u041F\u0440\u0435\u0441\u0441 \u6CF5", L"\u041F\u0440\u0435\u0441\u0441 \u6CF5"},
    {L"a.b", L"a.b"},
    {L"a.xml", L"a.xml"},
};

INSTANTIATE_TEST_SUITE_P(Each, AnEscapedName, testing::ValuesIn(EscapedNames));

TEST_F(ListedNames, LoseAnExtensionInAnyCase)
{
    MakeFile(logDevices(), L"Pumpe.XML");

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
}

TEST_F(ListedNames, AreThoseOfXmlFilesOnly)
{
    for (const wchar_t* const name : {L"Pumpe.xml", L"Pumpe.xml.old", L"Pumpe.txt", L"Pumpexml", L"xml"})
    {
        MakeFile(logDevices(), name);
    }

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Pumpe"));
}

TEST_F(ListedNames, MayBeEmpty)
{
    MakeFile(logDevices(), L".xml");
    MakeFile(logDevices(), L"Pumpe.xml");

    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(L"", L"Pumpe"));
}

TEST_F(ListedNames, AreThoseOfFoldersNamedLikeFilesToo)
{
    MakeFolders(logDevices() + L"\\Ordner.xml");
    MakeFolders(logDevices() + L"\\Ordner");
    MakeFile(logDevices() + L"\\Ordner", L"Tief.xml");

    EXPECT_THAT(Listing(logDevices()), ElementsAre(L"Ordner"));
}

TEST_F(ListedNames, MayBeAsLongAsTheFileSystemAllows)
{
    const std::wstring longest(251, L'n'); // 255 with the extension
    const std::wstring escaped = L"#25" + std::wstring(248, L'o');
    MakeFile(L"\\\\?\\" + logDevices(), longest + L".xml");
    MakeFile(L"\\\\?\\" + logDevices(), escaped + L".xml");

    EXPECT_THAT(Listing(logDevices()), UnorderedElementsAre(longest, L"%" + std::wstring(248, L'o')));
}

TEST_F(ListedNames, MayBeMany)
{
    constexpr int count = 1000;
    Names expected;
    for (int i = 0; i < count; ++i)
    {
        expected.push_back(L"Ger\u00E4t " + std::to_wstring(i));
        MakeFile(logDevices(), expected.back() + L".xml");
    }

    EXPECT_THAT(Listing(logDevices()), testing::UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace norvepa::test
