#include "CatalogueScene.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

// An export that answers a list of strings, and what it does where the others differ.
struct ListExport
{
    const char* name;

    // Puts files and what else it takes into the store, and asks.
    void (*fill)(const StoreRoots& roots, const Strings& strings);
    std::int32_t (*ask)(const Exports& library, wchar_t* buffer, std::uint32_t* length);

    std::int32_t withoutRoomForEnd;      // behind two strings
    std::int32_t withoutRoomForEndAlone; // of no strings
    bool clears = false;                 // what is too short
    std::int32_t ofNothing = PGSP_OK;    // an empty list, and the terminators that it is
    std::uint32_t terminatorsOfNothing = 1;
};

void PrintTo(const ListExport& each, std::ostream* stream)
{
    *stream << each.name;
}

void FillFolder(const std::wstring& folder, const Strings& strings)
{
    for (const std::wstring& name : strings)
    {
        WriteBytes(folder + L"\\" + name + L".xml", "");
    }
}

void FillBoardValues(const StoreRoots& roots, const Strings& strings)
{
    XmlContent entries;
    for (std::size_t i = 0; i < strings.size(); ++i)
    {
        entries.Text(std::to_wstring(i), strings[i]);
    }
    WriteBytes(roots.board(L"X"),
               BoardFile(XmlContent().Element(L"Install", entries), std::to_wstring(strings.size())));
}

// All that the file holds: its DeviceID tells how many.
std::int32_t AskBoardValues(const Exports& library, wchar_t* buffer, std::uint32_t* length)
{
    wchar_t count[10] = L"";
    std::uint32_t countLength = 10;
    EXPECT_EQ(library.PGSP_BoardGetValueBL(L"X", L"DeviceID", count, &countLength), PGSP_OK);
    Strings names;
    for (int i = 0; i < std::stoi(count); ++i)
    {
        names.push_back(std::to_wstring(i));
    }
    const std::wstring list = PackedWithoutEnd(names);
    return library.PGSP_BoardGetValueListBL(L"X", list.c_str(), static_cast<std::uint32_t>(list.size()),
                                            buffer, length);
}

void FillCollection(const StoreRoots& roots, const Strings& strings)
{
    XmlContent values;
    for (const std::wstring& string : strings)
    {
        values.Element(L"Value", string);
    }
    WriteBytes(roots.board(L"X"), BoardFile(XmlContent().Element(
                                      L"NotSupported", XmlContent().Element(L"ValueCollection", values))));
}

void FillDevices(const StoreRoots& roots, const Strings& strings)
{
    for (const std::wstring& name : strings)
    {
        WriteBytes(roots.logDevice(name),
                   LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"Halle", L"2"))));
    }
}

const ListExport ListExports[] = {
    {"BoardGetValueList", &FillBoardValues, &AskBoardValues, PGSP_OK, PGSP_OK},
    {"BoardGetValueCollection", &FillCollection,
     [](const Exports& library, wchar_t* buffer, std::uint32_t* length) {
         return library.PGSP_BoardGetValueCollectionBL(L"NotSupported", L"X", buffer, length);
     },
     PGSP_ERR_NO_MORE_ITEMS, PGSP_ERR_PARAM_NOT_FOUND, true},
    {"BoardGetNotSupported", &FillCollection,
     [](const Exports& library, wchar_t* buffer, std::uint32_t* length) {
         return library.PGSP_BoardGetNotSupportedBL(L"X", buffer, length);
     },
     PGSP_ERR_NO_MORE_ITEMS, PGSP_ERR_PARAM_NOT_FOUND, true},
    {"TemplateGetList",
     [](const StoreRoots& roots, const Strings& strings) {
         FillFolder(roots.program() + L"\\meta\\Own", strings);
     },
     [](const Exports& library, wchar_t* buffer, std::uint32_t* length) {
         return library.PGSP_TemplateGetListBL(L"Own", buffer, length);
     },
     PGSP_ERR_BUFFER_TOO_SHORT, PGSP_ERR_BUFFER_TOO_SHORT},
    {"GetLogDeviceList",
     [](const StoreRoots& roots, const Strings& strings) {
         FillFolder(roots.data() + L"\\data\\LogDevices", strings);
     },
     [](const Exports& library, wchar_t* buffer, std::uint32_t* length) {
         return library.PGSP_GetLogDeviceListBL(buffer, length);
     },
     PGSP_ERR_BUFFER_TOO_SHORT, PGSP_ERR_BUFFER_TOO_SHORT},
    {"GetLogNameList",
     [](const StoreRoots& roots, const Strings& strings) {
         FillFolder(roots.data() + L"\\data\\LogNames", strings);
     },
     [](const Exports& library, wchar_t* buffer, std::uint32_t* length) {
         return library.PGSP_GetLogNameListBL(buffer, length);
     },
     PGSP_ERR_BUFFER_TOO_SHORT, PGSP_ERR_BUFFER_TOO_SHORT},
    {"GetLogDeviceListEx", &FillDevices,
     [](const Exports& library, wchar_t* buffer, std::uint32_t* length) {
         return library.PGSP_GetLogDeviceListExBL(L"Halle", L"2", 1, buffer, length);
     },
     PGSP_ERR_BUFFER_TOO_SHORT, PGSP_ERR_BUFFER_TOO_SHORT, false, PGSP_ERR_NO_MORE_ITEMS, 2},
};

class ListEdges : public CatalogueScene, public testing::WithParamInterface<ListExport>
{
protected:
    void Fill(const Strings& strings) const { GetParam().fill(roots, strings); }

    [[nodiscard]] std::int32_t Ask(ListBuffer& buffer) const
    {
        return GetParam().ask(library, buffer.data(), &buffer.length);
    }

    // The whole list in its order, which for files is the folder's.
    [[nodiscard]] Strings All() const
    {
        ListBuffer buffer(2000);
        EXPECT_EQ(Ask(buffer), PGSP_OK);
        EXPECT_EQ(buffer.length, buffer.written().size());
        return buffer.strings();
    }

    void ExpectAsBeforeOrCleared(const ListBuffer& buffer) const
    {
        if (GetParam().clears)
        {
            EXPECT_EQ(buffer.written(), std::wstring(260, L'\0'));
        }
        else
        {
            EXPECT_TRUE(buffer.isUntouched());
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Of, ListEdges, testing::ValuesIn(ListExports),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_P(ListEdges, HaveRoomForAllAndCountTheEnd)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(9);

    EXPECT_EQ(Ask(buffer), PGSP_OK);

    EXPECT_EQ(buffer.written(), Packed(All()));
    EXPECT_EQ(buffer.length, 9U);
    EXPECT_THAT(All(), testing::UnorderedElementsAre(L"abc", L"def"));
}

TEST_P(ListEdges, LeaveWhatIsBehindTheEndAlone)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(1000);

    EXPECT_EQ(Ask(buffer), PGSP_OK);

    EXPECT_EQ(buffer.written().size(), 9U);
    EXPECT_EQ(buffer.length, 9U);
}

TEST_P(ListEdges, DifferWhenTheEndAloneHasNoRoom)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(8);

    EXPECT_EQ(Ask(buffer), GetParam().withoutRoomForEnd);

    EXPECT_EQ(buffer.written(), PackedWithoutEnd(All()));
    EXPECT_EQ(buffer.length, 8U);
}

TEST_P(ListEdges, AreTooShortForOneStringOrMore)
{
    Fill({L"abc", L"def"});
    for (std::uint32_t capacity = 0; capacity < 8; ++capacity)
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

        ExpectAsBeforeOrCleared(buffer);
        EXPECT_EQ(buffer.length, 9U);
    }
}

TEST_P(ListEdges, KeepOrClearTheFirstCharactersOfALongBufferAndNoMore)
{
    Fill({std::wstring(90, L'a'), std::wstring(90, L'b'), std::wstring(90, L'c'), std::wstring(90, L'd')});
    ListBuffer buffer(300);

    EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    const std::wstring behind = PackedWithoutEnd({All()[2]}).substr(260 - 2 * 91);
    if (GetParam().clears)
    {
        EXPECT_EQ(buffer.written(), std::wstring(260, L'\0') + behind);
    }
    else
    {
        EXPECT_TRUE(buffer.isUntouched(260));
        EXPECT_EQ(buffer.written().substr(260), behind);
    }
    EXPECT_EQ(buffer.length, 4U * 91 + 1);
}

TEST_P(ListEdges, AreTheEndAloneForAnEmptyList)
{
    Fill({});
    for (const std::uint32_t capacity : {1U, 2U, 300U})
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), GetParam().ofNothing);

        EXPECT_EQ(buffer.written(), std::wstring(std::min(capacity, GetParam().terminatorsOfNothing), L'\0'));
        EXPECT_EQ(buffer.length, 1U);
    }
}

TEST_P(ListEdges, DifferWhenAnEmptyListHasNoRoom)
{
    Fill({});
    ListBuffer buffer(0);

    EXPECT_EQ(Ask(buffer), GetParam().withoutRoomForEndAlone);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 0U);
}

TEST_P(ListEdges, LeadByTwoCallsToAnyList)
{
    Fill({L"abc", L"a longer one", L"\u00DCber"});
    ListBuffer first(0);
    ASSERT_EQ(Ask(first), PGSP_ERR_BUFFER_TOO_SHORT);

    ListBuffer second(first.length);
    EXPECT_EQ(Ask(second), PGSP_OK);

    EXPECT_THAT(second.strings(), testing::UnorderedElementsAre(L"abc", L"a longer one", L"\u00DCber"));
    EXPECT_EQ(second.length, first.length);
}

} // namespace
} // namespace norvepa::test
