#include "GetLists.h"
#include "GetScene.h"

namespace norvepa::test
{
namespace
{

constexpr std::uint32_t Enough = 20'000; // characters

class GetValueList : public GetScene
{
protected:
    [[nodiscard]] std::int32_t GetList(const wchar_t* device, const wchar_t* section,
                                       const wchar_t* parameters, std::int32_t length,
                                       OutputBuffer& values) const
    {
        return library.LogDeviceGetValueListBL(device, section, parameters, length, values.data(),
                                               &values.length);
    }

    // What is written for a list of names; "(result N)" alone for a call that didn't succeed.
    [[nodiscard]] std::wstring Values(const wchar_t* section, const Names& parameters) const
    {
        const std::wstring list = Packed(parameters);
        return Answer(L"Presse", section, list.c_str(), CountOf(list));
    }

    [[nodiscard]] std::wstring All(const wchar_t* device = L"Presse", const wchar_t* section = nullptr) const
    {
        return Answer(device, section, nullptr, 0);
    }

    [[nodiscard]] std::wstring Answer(const wchar_t* device, const wchar_t* section,
                                      const wchar_t* parameters, std::int32_t length) const
    {
        OutputBuffer values(Enough);
        const std::int32_t result = GetList(device, section, parameters, length, values);
        return result == PGSP_OK ? Written(values) : TextOf(result, values);
    }

    const std::wstring refused = L"(result 87)";
};

TEST_F(GetValueList, GivesTheValuesAloneInTheOrderOfTheRequests)
{
    store.WriteDevice(L"Presse",
                      XmlContent()
                          .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle 2"))
                          .Element(L"Bindings", XmlContent().Int(L"Stufe", L"3").Text(L"Leer", L"")));

    EXPECT_EQ(Values(nullptr, {L"Stufe", L"Ort"}), Packed({L"3", L"Halle 2"}));
    EXPECT_EQ(Values(nullptr, {L"ort"}), Packed({L"Halle 2"}));
    EXPECT_EQ(Values(nullptr, {L"Leer", L"Stufe", L"Stufe", L"Leer"}), Packed({L"", L"3", L"3", L""}));
}

TEST_F(GetValueList, LooksIntoFiveSectionsInTheirOrderWhateverTheFilesIs)
{
    const Names sections{L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings", L"Ndi"};
    for (std::size_t first = 0; first < sections.size(); ++first)
    {
        XmlContent content;
        for (std::size_t i = sections.size(); i-- > first;)
        {
            content.Raw(Section(sections[i], L"Stufe", sections[i]).utf8());
        }
        store.WriteDevice(L"Presse", content);

        EXPECT_EQ(Values(nullptr, {L"Stufe"}), Packed({sections[first]}));
        EXPECT_EQ(Values(L"", {L"Stufe"}), Packed({sections[first]}));
    }
}

TEST_F(GetValueList, LooksIntoNoSixth)
{
    store.WriteDevice(L"Presse", Section(L"SpareSection", L"Stufe", L"1")
                                     .Raw(Section(L"UserInterface", L"Stufe", L"2").utf8())
                                     .Raw(Section(L"UserInterface64", L"Stufe", L"3").utf8()));

    EXPECT_EQ(Values(nullptr, {L"Stufe"}), refused);
}

TEST_F(GetValueList, LooksIntoNoOtherSectionThanTheOneGiven)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"local")
                                     .Raw(Section(L"SpareSection", L"Stufe", L"spare").utf8()));

    EXPECT_EQ(Values(L"SpareSection", {L"Stufe"}), Packed({L"spare"}));
    EXPECT_EQ(Values(L"LocalSettings", {L"Stufe"}), Packed({L"local"}));
    EXPECT_EQ(Values(L"Bindings", {L"Stufe"}), refused);
}

TEST_F(GetValueList, ReadsTwoWordsAsAttributesWhateverTheSection)
{
    store.WriteDevice(L"Presse", Section(L"Ndi", L"DeviceID", L"the parameter"));

    EXPECT_EQ(Values(nullptr, {L"deviceid", L"CP_TYPE"}), Packed({L"AFK110", L"MPI"}));
    EXPECT_EQ(Values(L"Ndi", {L"DeviceID"}), Packed({L"AFK110"}));

    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {}, Section(L"Ndi", L"DeviceID", L"1")));
    EXPECT_EQ(Values(L"Ndi", {L"DeviceID"}), refused);
}

TEST_F(GetValueList, RefusesARequestForWhatIsNotThereThoughItHasADefault)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"default", L"5"}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));

    EXPECT_EQ(Values(nullptr, {L"Ort", L"Takt"}), refused);
    EXPECT_EQ(Values(nullptr, {L"Takt", L"Ort"}), refused);
}

TEST_F(GetValueList, LeavesBufferAndLengthAsTheyWereWhenARequestIsRefused)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));
    OutputBuffer values(300);

    EXPECT_EQ(GetList(L"Presse", nullptr, L"Ort\0Druck\0", 10, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetList(L"gone", nullptr, L"Ort\0", 4, values), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(values.isUntouched());
    EXPECT_EQ(values.length, 300U);
}

TEST_F(GetValueList, TakesAnEmptyRequestForANameLikeAnyOther)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));

    EXPECT_EQ(Answer(L"Presse", nullptr, L"", 1), refused);
    EXPECT_EQ(Answer(L"Presse", nullptr, L"Ort\0\0", 5), refused);
    EXPECT_EQ(Answer(L"Presse", nullptr, L"\0Ort\0", 5), refused);

    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"", L"of no name"));
    EXPECT_EQ(Answer(L"Presse", nullptr, L"", 1), Packed({L"of no name"}));
}

TEST_F(GetValueList, EndsItsRequestsWhereTheLengthSaysButNotWithinAName)
{
    store.WriteDevice(
        L"Presse",
        XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle 2").Text(L"Stufe", L"3")));
    constexpr const wchar_t* list = L"Ort\0Stufe\0";

    for (const std::int32_t length : {1, 3, 4})
    {
        EXPECT_EQ(Answer(L"Presse", nullptr, list, length), Packed({L"Halle 2"})) << length;
    }
    for (const std::int32_t length : {5, 9, 10})
    {
        EXPECT_EQ(Answer(L"Presse", nullptr, list, length), Packed({L"Halle 2", L"3"})) << length;
    }
}

TEST_F(GetValueList, TakesANegativeLengthForAListWithoutNames)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));

    EXPECT_EQ(Answer(L"Presse", nullptr, L"Ort\0", -1), Packed({}));
    EXPECT_EQ(Answer(L"gone", nullptr, L"Ort\0", INT32_MIN), Packed({}));
}

TEST_F(GetValueList, EnumeratesAllWithoutAListWhateverItsLength)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));
    const std::wstring all = Packed({L"Ort", L"Halle 2", L"CP_TYPE", L"MPI", L"DeviceId", L"AFK110"});

    EXPECT_EQ(Answer(L"Presse", nullptr, nullptr, 0), all);
    EXPECT_EQ(Answer(L"Presse", nullptr, nullptr, 10), all);
    EXPECT_EQ(Answer(L"Presse", nullptr, nullptr, -1), all);
    EXPECT_EQ(Answer(L"Presse", nullptr, L"Ort\0", 0), all);
    EXPECT_EQ(Answer(L"Presse", L"Bindings", nullptr, 0), all);
}

TEST_F(GetValueList, EnumeratesTheSectionsInTheirOrderAndTheAttributesLast)
{
    store.WriteDevice(L"Presse", Section(L"SpareSection", L"e", L"5")
                                     .Raw(Section(L"Ndi", L"hidden", L"no part of it").utf8())
                                     .Raw(Section(L"UserInterface", L"Titel", L"no part of it").utf8())
                                     .Raw(Section(L"Bindings", L"d", L"4").utf8())
                                     .Raw(Section(L"NetworkSettings", L"c", L"3").utf8())
                                     .Raw(Section(L"LocalSettings", L"b", L"2;with a semicolon").utf8())
                                     .Raw(Section(L"DeviceHeader", L"a", L"").utf8()));

    EXPECT_EQ(All(), Packed({L"a", L"", L"b", L"2;with a semicolon", L"c", L"3", L"d", L"4", L"e", L"5",
                             L"CP_TYPE", L"MPI", L"DeviceId", L"AFK110"}));
}

TEST_F(GetValueList, EnumeratesNothingOfADeviceThatIsNotThere)
{
    OutputBuffer values(300);

    EXPECT_EQ(GetList(L"gone", nullptr, nullptr, 0, values), PGSP_OK);

    EXPECT_EQ(values.text(), L"");
    EXPECT_EQ(values.length, 1U);
}

TEST_F(GetValueList, EnumeratesValuesOf4095CharactersAndEndsAtALongerOne)
{
    const std::wstring longest(4095, L'v');
    store.WriteDevice(
        L"Presse",
        XmlContent().Element(
            L"LocalSettings",
            XmlContent().Text(L"a", longest).Text(L"b", L"2").Text(L"c", longest + L"v").Text(L"d", L"4")));

    EXPECT_EQ(All(), Packed({L"a", longest, L"b", L"2"}));
}

TEST_F(GetValueList, EnumeratesNamesOf4095CharactersAndEndsAtALongerOne)
{
    const std::wstring longest(4095, L'n');
    store.WriteDevice(
        L"Presse",
        XmlContent().Element(L"LocalSettings",
                             XmlContent().Text(longest, L"1").Text(longest + L"n", L"2").Text(L"c", L"3")));

    EXPECT_EQ(All(), Packed({longest, L"1"}));
}

TEST_F(GetValueList, GivesAValueOfAnyLengthWhenItIsAskedFor)
{
    const std::wstring text(10'000, L'v');
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Text", text));

    EXPECT_EQ(Values(nullptr, {L"Text"}), Packed({text}));
}

TEST_F(GetValueList, SeesAChangedFileOnceItHasBeenEnumeratedToTheEnd)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));
    EXPECT_NE(All(), Packed({}));

    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"3"), L"AFK220");

    EXPECT_EQ(All(), Packed({L"Stufe", L"3", L"CP_TYPE", L"MPI", L"DeviceId", L"AFK220"}));
}

TEST_F(GetValueList, TestsTheArgumentsAheadOfTheDataFolderAndTheFolderAheadOfTheRequests)
{
    store.TakeDataFolderAway();
    OutputBuffer values(300);

    EXPECT_EQ(GetList(nullptr, nullptr, nullptr, 0, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetList(L"", nullptr, nullptr, 0, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueListBL(L"Presse", nullptr, nullptr, 0, nullptr, &values.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueListBL(L"Presse", nullptr, nullptr, 0, values.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetList(L"Presse", nullptr, nullptr, 0, values), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(GetList(L"Presse", nullptr, L"Ort\0", 4, values), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(values.isUntouched());
    EXPECT_EQ(values.length, 300U);
}

} // namespace
} // namespace norvepa::test
