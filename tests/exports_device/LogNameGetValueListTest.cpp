#include "GetLists.h"
#include "GetScene.h"

namespace norvepa::test
{
namespace
{

class LogNameGetValueList : public GetScene
{
protected:
    LogNameGetValueList()
    {
        Write(XmlContent().Text(L"Ort", L"Halle 2").Text(L"Leer", L"").Text(L"CP_TYPE", L"of the link"));
    }

    void Write(const XmlContent& parameters) const
    {
        WriteBytes(roots.logName(L"Pumpe"), LogNameFile(parameters));
    }

    [[nodiscard]] std::int32_t GetList(const wchar_t* logName, const wchar_t* parameters, std::int32_t length,
                                       OutputBuffer& values, const wchar_t* section = nullptr) const
    {
        return library.LogNameGetValueListBL(logName, section, parameters, length, values.data(),
                                             &values.length);
    }

    // What is written for a list of names; "(result N)" alone for a call that didn't succeed.
    [[nodiscard]] std::wstring Values(const Names& parameters, const wchar_t* section = nullptr) const
    {
        const std::wstring list = Packed(parameters);
        return Answer(L"Pumpe", list.c_str(), CountOf(list), section);
    }

    [[nodiscard]] std::wstring Answer(const wchar_t* logName, const wchar_t* parameters, std::int32_t length,
                                      const wchar_t* section = nullptr) const
    {
        OutputBuffer values(20'000);
        const std::int32_t result = GetList(logName, parameters, length, values, section);
        return result == PGSP_OK ? Written(values) : TextOf(result, values);
    }

    const std::wstring refused = L"(result 87)";
};

TEST_F(LogNameGetValueList, GivesTheValuesAloneInTheOrderOfTheRequests)
{
    EXPECT_EQ(Values({L"Leer", L"ORT", L"Ort"}), Packed({L"", L"Halle 2", L"Halle 2"}));
}

TEST_F(LogNameGetValueList, RefusesARequestForWhatIsNotThere)
{
    EXPECT_EQ(Values({L"Ort", L"Druck"}), refused);
    EXPECT_EQ(Values({L""}), refused);
    EXPECT_EQ(Answer(L"gone", L"Ort\0", 4), refused);
}

TEST_F(LogNameGetValueList, IgnoresTheSection)
{
    EXPECT_EQ(Values({L"Ort"}, L"LocalSettings"), Packed({L"Halle 2"}));
    EXPECT_EQ(Values({L"Ort"}, L""), Packed({L"Halle 2"}));
    EXPECT_EQ(Answer(L"Pumpe", nullptr, 0, L"LocalSettings"), Answer(L"Pumpe", nullptr, 0));
}

TEST_F(LogNameGetValueList, ReadsNoSectionButItsOwn)
{
    WriteBytes(roots.logName(L"Pumpe"), XmlFile(L"LogName", {}, Section(L"LocalSettings", L"Ort", L"1")));

    EXPECT_EQ(Values({L"Ort"}), refused);
}

TEST_F(LogNameGetValueList, ReadsTheTypeAsAnAttributeThoughALinkStoresAParameter)
{
    EXPECT_EQ(Values({L"CP_TYPE"}), refused);
    EXPECT_EQ(Values({L"cp_type"}), refused);
    EXPECT_EQ(Values({L"DeviceID"}), refused);
    OutputBuffer type(20);
    EXPECT_EQ(library.LogNameGetValueBL(L"Pumpe", L"CP_TYPE", type.data(), &type.length), PGSP_OK);
    EXPECT_EQ(type.text(), L"of the link");

    WriteBytes(roots.logName(L"Pumpe"),
               XmlFile(L"LogName", {{L"CP_TYPE", L"of the root"}, {L"DeviceID", L"AFK110"}},
                       Section(L"Parameters", L"CP_TYPE", L"of the link")));
    EXPECT_EQ(Values({L"CP_TYPE", L"deviceid"}), Packed({L"of the root", L"AFK110"}));
}

TEST_F(LogNameGetValueList, EnumeratesAllWithoutAListOrALength)
{
    const std::wstring all = Packed({L"Ort", L"Halle 2", L"Leer", L"", L"CP_TYPE", L"of the link"});

    EXPECT_EQ(Answer(L"Pumpe", nullptr, 0), all);
    EXPECT_EQ(Answer(L"Pumpe", nullptr, -1), all);
    EXPECT_EQ(Answer(L"Pumpe", L"Ort\0", 0), all);
    EXPECT_EQ(Answer(L"Pumpe", L"Ort\0", -1), Packed({}));
    EXPECT_EQ(Answer(L"gone", nullptr, 0), Packed({}));
}

TEST_F(LogNameGetValueList, EnumeratesValuesOf4095CharactersAndEndsAtALongerOne)
{
    const std::wstring longest(4095, L'v');
    Write(XmlContent().Text(L"a", longest).Text(L"b", longest + L"v").Text(L"c", L"3"));

    EXPECT_EQ(Answer(L"Pumpe", nullptr, 0), Packed({L"a", longest}));
}

TEST_F(LogNameGetValueList, KeepsTheValuesWithoutRoomForTheLastTerminator)
{
    constexpr const wchar_t* list = L"Ort\0Leer\0";

    OutputBuffer enough(10);
    EXPECT_EQ(GetList(L"Pumpe", list, 9, enough), PGSP_OK);
    EXPECT_EQ(enough.length, 10U);
    EXPECT_EQ(Written(enough), Packed({L"Halle 2", L""}));

    OutputBuffer noEnd(9);
    EXPECT_EQ(GetList(L"Pumpe", list, 9, noEnd), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(noEnd.length, 9U);
    EXPECT_EQ(Written(noEnd), std::wstring(L"Halle 2\0\0", 9));
}

TEST_F(LogNameGetValueList, ComesBackWithoutRoomForAValue)
{
    for (const std::uint32_t capacity : {8U, 7U, 1U, 0U})
    {
        OutputBuffer values(capacity);
        EXPECT_EQ(GetList(L"Pumpe", L"Ort\0Leer\0", 9, values), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;
        EXPECT_TRUE(values.isUntouched()) << capacity;
        EXPECT_EQ(values.length, 10U) << capacity;
    }

    OutputBuffer nothing(0);
    EXPECT_EQ(GetList(L"gone", nullptr, 0, nothing), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(nothing.length, 0U);
}

TEST_F(LogNameGetValueList, ComesBackForTheFirst260CharactersAlone)
{
    Write(XmlContent().Text(L"Text", std::wstring(300, L'v')));
    OutputBuffer values(400);
    const std::wstring before(values.data(), 260);

    EXPECT_EQ(GetList(L"Pumpe", L"Text\0Text\0", 10, values), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(values.length, 603U);
    EXPECT_EQ(std::wstring(values.data(), 260), before);
    EXPECT_EQ(values.data()[260], L'v');
}

TEST_F(LogNameGetValueList, RefusesBadArgumentsAheadOfLookingForTheFolder)
{
    store.TakeDataFolderAway();
    OutputBuffer values(300);

    EXPECT_EQ(GetList(nullptr, nullptr, 0, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetList(L"", nullptr, 0, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameGetValueListBL(L"Pumpe", nullptr, nullptr, 0, nullptr, &values.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameGetValueListBL(L"Pumpe", nullptr, nullptr, 0, values.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetList(L"Pumpe", L"Ort\0", 4, values), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(values.isUntouched());
    EXPECT_EQ(values.length, 300U);
}

} // namespace
} // namespace norvepa::test
