#include "SubProfileScene.h"

namespace norvepa::test
{
namespace
{

// What is found on the way through the protocol where a part of it is empty or is more than one step.
using SetSubProfileWay = SubProfileScene;

TEST_F(SetSubProfileWay, EndsAtTheValuesOwnPairsForASubParameterWithoutAName)
{
    const XmlContent nameless = Profiles({{L"9600", XmlContent().Int(L"gap", L"2")}});
    WriteProfile(XmlContent().Int(L"slot", L"100").Int(L"retry", L"3").Element(L"ParamSection", nameless));

    ExpectWritten(XmlContent().Text(L"slot", L"100").Text(L"retry", L"3"));
}

TEST_F(SetSubProfileWay, EndsAtASubParametersOwnPairsForADeviceThatLacksIt)
{
    const XmlContent ofOn = Profiles({{L"on", XmlContent().Int(L"gap", L"2")}});
    WriteProfile(XmlContent().ParamSection(L"redundancy", XmlContent().Int(L"slot", L"1").Raw(ofOn.utf8())));

    ExpectWritten(XmlContent().Text(L"slot", L"1"));
}

TEST_F(SetSubProfileWay, EndsAtASubParametersOwnPairsForADeviceThatHasItEmpty)
{
    WriteProfile(XmlContent().ParamSection(L"redundancy", XmlContent().Int(L"slot", L"1")));
    WriteEntries(Chosen(XmlContent().Text(L"redundancy", L"")));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectEntries(Chosen(XmlContent().Text(L"redundancy", L"").Text(L"slot", L"1")));
}

// Neither a section of that name nor one within the other: both would be a step too many.
TEST_F(SetSubProfileWay, LeadsNowhereForASubValueWithABackslash)
{
    const XmlContent pairs = XmlContent().Int(L"slot", L"1");
    WriteProfile(SubParameter(
        L"cable", {{L"copper\\thick", pairs}, {L"copper", XmlContent().ParamSection(L"thick", pairs)}}));
    WriteEntries(Chosen(XmlContent().Text(L"cable", L"copper\\thick")));

    ExpectSetProfileChangesNothing(L"busparam", PGSP_PROFILE_NO_VALUE);
}

} // namespace
} // namespace norvepa::test
