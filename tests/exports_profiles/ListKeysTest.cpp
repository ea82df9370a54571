#include "ListScene.h"
namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// A protocol with two bus profiles, each with baud rates and a `cable` of its own, and both also without a
// profile.
Catalogue ProtocolWithProfiles()
{
    const auto profile = [](std::wstring_view baudrate, std::wstring_view cable) {
        return SubParameter(L"baudrate", {{baudrate}}).Raw(SubParameter(L"cable", {{cable}}).utf8());
    };
    return Catalogue()
        .Parameter(L"baudrate", {}, Profiles({{L"9600/of none"}}))
        .Parameter(L"cable", {}, Profiles({{L"Kupfer/of none"}}))
        .Parameter(L"busparam", {},
                   Profiles({{L"1/Standard", profile(L"19200", L"Funk")},
                             {L"\u00DCber", profile(L"45450", L"Glasfaser")}}));
}

class ListKeys : public BothLists
{
protected:
    // That protocol, and a log device of it with this content.
    void WriteBoth(std::wstring_view protocol, const XmlContent& content) const
    {
        store.WriteProtocol(ProtocolWithProfiles(), protocol);
        store.WriteDevice(L"Presse", content, OurBoard, protocol);
    }

    void WriteWithProfile(std::wstring_view protocol, std::wstring_view profile) const
    {
        WriteBoth(protocol, Spare(XmlContent().Text(L"busparam", profile)));
    }
};

INSTANTIATE_TEST_SUITE_P(Of, ListKeys, testing::Values(MostSpecialized, Average), NameOfList);

TEST_P(ListKeys, ForBaudratesAreThoseOfTheBusProfileWhereTheProtocolIsAnL2)
{
    WriteWithProfile(L"L2", L"1");
    EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"19200"));

    WriteWithProfile(L"L2", L"\u00DCber");
    EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"45450"));
}

TEST_P(ListKeys, ForBaudratesAreToldByTheParameterInAnyCase)
{
    WriteWithProfile(L"L2", L"\u00FCBER");

    EXPECT_THAT(Values(L"BaudRate"), ElementsAre(L"45450"));
}

TEST_P(ListKeys, ForAllOtherParametersDoNotHoldTheProfile)
{
    WriteWithProfile(L"L2", L"1");

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer/of none"));
    EXPECT_THAT(Values(L"busparam"), ElementsAre(L"1/Standard", L"\u00DCber"));
}

TEST_P(ListKeys, HoldTheProfileWhereverTheProtocolHasL2InItsName)
{
    for (const wchar_t* const protocol : {L"L2DP", L"PROFIL2", L"A-L2-B", L"lL2"})
    {
        SCOPED_TRACE(ToUtf8(protocol));
        WriteWithProfile(protocol, L"1");

        EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"19200"));
    }
}

TEST_P(ListKeys, DoNotHoldTheProfileForAnL2InSmallLettersOrWithSomethingBetween)
{
    for (const wchar_t* const protocol : {L"l2", L"L-2", L"2L", L"MPI"})
    {
        SCOPED_TRACE(ToUtf8(protocol));
        WriteWithProfile(protocol, L"1");

        EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"9600/of none"));
    }
}

TEST_P(ListKeys, NeedNoProfileWhereTheProtocolIsNoL2)
{
    WriteBoth(OurProtocol, {});

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"9600/of none"));
}

TEST_P(ListKeys, NeedAProfileWhereTheProtocolIsAnL2WhateverTheParameter)
{
    WriteBoth(L"L2", {});

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
    EXPECT_THAT(Values(L"busparam"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListKeys, TakeTheProfileFromAnySectionButTheIdentity)
{
    const XmlContent profile = XmlContent().Text(L"BUSPARAM", L"1");
    for (const wchar_t* const section :
         {L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings", L"SpareSection"})
    {
        SCOPED_TRACE(ToUtf8(section));
        WriteBoth(L"L2", XmlContent().Element(section, profile));

        EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"19200"));
    }

    WriteBoth(L"L2", XmlContent().Element(L"Ndi", profile));
    EXPECT_THAT(Values(L"baudrate"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListKeys, DoNotTakeTheCataloguesDefaultForAProfile)
{
    store.WriteProtocol(Catalogue().Parameter(L"busparam", {{L"default", L"1"}},
                                              Profiles({{L"1", SubParameter(L"baudrate", {{L"9600"}})}})),
                        L"L2");
    store.WriteDevice(L"Presse", {}, OurBoard, L"L2");

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListKeys, DoNotFallBackToThePlainOneForAProfileThatTheProtocolDoesNotKnow)
{
    WriteWithProfile(L"L2", L"7");

    EXPECT_EQ(Values(L"baudrate"), NothingListed());
}

// An empty step is none, and of the sections of that name below the parameter the first is met.
TEST_P(ListKeys, AreThoseOfTheFirstProfileWithBaudratesWhereTheBusProfileIsEmpty)
{
    WriteWithProfile(L"L2", L"");

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"19200"));
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer/of none"));
}

TEST_P(ListKeys, OfAParameterWithBackslashesLeadBelowItsValues)
{
    for (const wchar_t* const protocol : {L"L2", L"MPI"})
    {
        SCOPED_TRACE(ToUtf8(protocol));
        WriteWithProfile(protocol, L"1");

        EXPECT_THAT(Values(L"busparam\\\u00DCber\\baudrate"), ElementsAre(L"45450"));
        EXPECT_THAT(Values(L"busparam\\1\\\\cable\\"), ElementsAre(L"Funk"));
        EXPECT_THAT(Values(L"busparam\\1"), ElementsAre(L"19200"));
        EXPECT_EQ(Values(L"busparam\\1\\gone"), NothingListed());
        EXPECT_EQ(Values(L"busparam\\1\\cable\\Funk\\further"), NothingListed());
    }
}

TEST_P(ListKeys, OfAParameterWithBackslashesLeadBelowTheBoardsValuesToo)
{
    const XmlContent cables = SubParameter(L"cable", {{L"Kupfer"}});
    store.WriteBoard(Catalogue().Parameter(L"busparam", {}, Profiles({{L"1", cables}})));

    EXPECT_THAT(Values(L"busparam\\1\\cable"), ElementsAre(L"Kupfer"));
}

TEST_P(ListKeys, AreAskedForBehindTheProgramFolder)
{
    WriteBoth(L"L2", {});
    store.TakeProgramFolderAway();

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(Failed(PGSP_ERR_FOLDER_NOT_FOUND)));
}

} // namespace
} // namespace norvepa::test
