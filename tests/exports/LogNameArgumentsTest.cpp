#include "LogNameScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

wchar_t buffer[20];
std::uint32_t length = 20;

struct Call
{
    const char* what;
    std::int32_t (*make)(const Exports&);

    friend void PrintTo(const Call& each, std::ostream* out) { *out << each.what; }
};

class LogNameArgumentsScene : public LogNameScene, public testing::WithParamInterface<Call>
{
protected:
    LogNameArgumentsScene()
    {
        Write(L"Pumpe", XmlContent().Text(L"LogDevice", L"MPI_1"));
        m_before = Bytes();
        std::wstring(L"before").copy(buffer, 7);
        buffer[6] = L'\0';
        length = 20;
    }

    void ExpectNothingTouched() const
    {
        EXPECT_STREQ(buffer, L"before");
        EXPECT_EQ(length, 20U);
        EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
        EXPECT_EQ(Bytes(), m_before);
        EXPECT_FALSE(Exists(roots.data() + L"\\data\\LogNames.xml"));
        EXPECT_EQ(workers.count(), 0U);
    }

private:
    std::string m_before;
};

using BadLogNameArgument = LogNameArgumentsScene;

TEST_P(BadLogNameArgument, IsRefusedAndTouchesNothing)
{
    EXPECT_EQ(GetParam().make(library), PGSP_ERR_INVALID_PARAMETERS);

    ExpectNothingTouched();
}

TEST_P(BadLogNameArgument, IsRefusedAheadOfTheFolder)
{
    TakeDataFolderAway();

    EXPECT_EQ(GetParam().make(library), PGSP_ERR_INVALID_PARAMETERS);

    ExpectNothingTouched();
}

constexpr Call BadCalls[] = {
    {"CreateNull", [](const Exports& l) { return l.LogNameCreateBL(nullptr); }},
    {"DeleteNull", [](const Exports& l) { return l.LogNameDeleteBL(nullptr); }},
    {"ExistNull", [](const Exports& l) { return l.LogNameExistBL(nullptr, 0); }},
    {"ExistEmpty", [](const Exports& l) { return l.LogNameExistBL(L"", 0); }},
    {"ExistFlag", [](const Exports& l) { return l.LogNameExistBL(L"Pumpe", 1); }},
    {"ExistBoth", [](const Exports& l) { return l.LogNameExistBL(nullptr, -1); }},
    {"GetEnumBuffer", [](const Exports& l) { return l.LogNameGetEnumBL(0, nullptr, &length); }},
    {"GetEnumLength", [](const Exports& l) { return l.LogNameGetEnumBL(0, buffer, nullptr); }},
    {"GetEnumBoth", [](const Exports& l) { return l.LogNameGetEnumBL(99, nullptr, nullptr); }},
    {"GetLogDeviceNull", [](const Exports& l) { return l.LogNameGetLogDeviceBL(nullptr, buffer, &length); }},
    {"GetLogDeviceEmpty", [](const Exports& l) { return l.LogNameGetLogDeviceBL(L"", buffer, &length); }},
    {"GetLogDeviceBuffer",
     [](const Exports& l) { return l.LogNameGetLogDeviceBL(L"Pumpe", nullptr, &length); }},
    {"GetLogDeviceLength",
     [](const Exports& l) { return l.LogNameGetLogDeviceBL(L"Pumpe", buffer, nullptr); }},
    {"GetLogDeviceAll", [](const Exports& l) { return l.LogNameGetLogDeviceBL(nullptr, nullptr, nullptr); }},
    {"SetValueNull", [](const Exports& l) { return l.LogNameSetValueBL(nullptr, L"Station", L"1"); }},
    {"SetValueEmpty", [](const Exports& l) { return l.LogNameSetValueBL(L"", L"Station", L"1"); }},
    {"SetValueValue", [](const Exports& l) { return l.LogNameSetValueBL(L"Pumpe", L"Station", nullptr); }},
    {"SetValueAll", [](const Exports& l) { return l.LogNameSetValueBL(nullptr, nullptr, nullptr); }},
    {"DelValueNull", [](const Exports& l) { return l.LogNameDelValueBL(nullptr, L"LogDevice"); }},
    {"DelValueEmpty", [](const Exports& l) { return l.LogNameDelValueBL(L"", L"LogDevice"); }},
    {"DelValueNoParameter", [](const Exports& l) { return l.LogNameDelValueBL(L"Pumpe", nullptr); }},
    {"DelValueEmptyParameter", [](const Exports& l) { return l.LogNameDelValueBL(L"Pumpe", L""); }},
    {"DelValueAll", [](const Exports& l) { return l.LogNameDelValueBL(nullptr, nullptr); }},
};

INSTANTIATE_TEST_SUITE_P(Table, BadLogNameArgument, testing::ValuesIn(BadCalls));

using LogNameCallWithoutDataFolder = LogNameArgumentsScene;

TEST_P(LogNameCallWithoutDataFolder, FailsAndTouchesNothing)
{
    TakeDataFolderAway();

    EXPECT_EQ(GetParam().make(library), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectNothingTouched();
}

TEST_P(LogNameCallWithoutDataFolder, FailsForAnEmptyOneOfTheRegistryToo)
{
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", L"");

    EXPECT_EQ(GetParam().make(library), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectNothingTouched();
}

constexpr Call GoodCalls[] = {
    {"Create", [](const Exports& l) { return l.LogNameCreateBL(L"Presse"); }},
    {"CreateEmpty", [](const Exports& l) { return l.LogNameCreateBL(L""); }},
    {"Delete", [](const Exports& l) { return l.LogNameDeleteBL(L"Pumpe"); }},
    {"DeleteEmpty", [](const Exports& l) { return l.LogNameDeleteBL(L""); }},
    {"Exist", [](const Exports& l) { return l.LogNameExistBL(L"Pumpe", 6); }},
    {"GetEnum", [](const Exports& l) { return l.LogNameGetEnumBL(0, buffer, &length); }},
    {"GetLogDevice", [](const Exports& l) { return l.LogNameGetLogDeviceBL(L"Pumpe", buffer, &length); }},
    {"SetValue", [](const Exports& l) { return l.LogNameSetValueBL(L"Pumpe", L"Station", L"1"); }},
    // What the store would refuse comes later.
    {"SetBadValue", [](const Exports& l) { return l.LogNameSetValueBL(L"Pumpe", L"Station", L"<>"); }},
    {"SetDefault", [](const Exports& l) { return l.LogNameSetValueBL(L"Pumpe", nullptr, L"1"); }},
    {"DelValue", [](const Exports& l) { return l.LogNameDelValueBL(L"Pumpe", L"LogDevice"); }},
};

INSTANTIATE_TEST_SUITE_P(Table, LogNameCallWithoutDataFolder, testing::ValuesIn(GoodCalls));

} // namespace
} // namespace norvepa::test
