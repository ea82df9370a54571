#include "ProfileScene.h"

#include <cstdint>
#include <string_view>

namespace norvepa::test
{
namespace
{

// Each pair is checked and placed as any value that a caller sets.
class SetProfileChecked : public ProfileScene
{
protected:
    // What is written of these pairs, by a value's own profile and by that of a sub-parameter, beside the
    // choice itself.
    void ExpectWritten(const XmlContent& pairs, const XmlContent& entries, std::int32_t result) const
    {
        store.WriteProtocol(
            Catalogue().Parameter(
                L"busparam", {},
                Profiles({{L"3", pairs}, {L"1", SubParameter(L"medium", {{L"copper", pairs}})}})),
            L"other");
        for (const wchar_t* const value : {L"3", L"1"})
        {
            const XmlContent chosen = XmlContent().Text(L"busparam", value).Text(L"medium", L"copper");
            WriteEntries(chosen);

            EXPECT_EQ(SetProfile(L"busparam", L"other"), result);

            ExpectEntries(XmlContent(chosen).Raw(entries.utf8()));
        }
    }
};

TEST_F(SetProfileChecked, WritesWhatStandsAroundAValueThatIsRefused)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"gap", {{L"type", L"int"}, {L"min", L"1"}, {L"max", L"8"}})
                         .Parameter(L"dp", {{L"type", L"bool"}}));

    ExpectWritten(XmlContent()
                      .Text(L"slot", L"100")
                      .Text(L"gap", L"9")
                      .Text(L"ttr", L"3")
                      .Text(L"dp", L"1")
                      .Text(L"hsa", L"63"),
                  XmlContent().Text(L"slot", L"100").Text(L"ttr", L"3").Text(L"hsa", L"63"),
                  PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileChecked, StoresWhatAKeywordStandsFor)
{
    store.WriteBoard(Catalogue().Parameter(
        L"gap", {{L"type", L"int"}, {L"min", L"1"}, {L"max", L"8"}, {L"default", L"5"}}));

    ExpectWritten(XmlContent().Text(L"gap", L"MAX").Text(L"slot", L"max"),
                  XmlContent().Int(L"gap", L"8").Text(L"slot", L"max"), PGSP_OK);
}

TEST_F(SetProfileChecked, RefusesAnEmptyValueOfANumber)
{
    store.WriteBoard(Catalogue().Parameter(L"gap", {{L"type", L"int"}}));

    ExpectWritten(XmlContent().Text(L"gap", L"").Text(L"slot", L""), XmlContent().Text(L"slot", L""),
                  PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileChecked, RefusesABaudrateThatTheBoardDoesNotList)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}},
                                           XmlContent().ValueCollection({L"9600/slow", L"19200"})));

    ExpectWritten(XmlContent().Text(L"baudrate", L"187500").Text(L"slot", L"100"),
                  XmlContent().Text(L"slot", L"100"), PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileChecked, GoesByTheDevicesProtocolAndNotByTheOneThatIsNamed)
{
    store.WriteProtocol(Catalogue().Parameter(L"gap", {{L"type", L"bool"}}));

    ExpectWritten(XmlContent().Text(L"gap", L"2").Text(L"slot", L"100"), XmlContent().Text(L"slot", L"100"),
                  PGSP_PROFILE_NO_VALUE);
}

TEST_F(SetProfileChecked, IsNotCheckedByTheProtocolThatIsNamed)
{
    store.WriteProtocol(
        Catalogue()
            .Parameter(L"gap", {{L"type", L"bool"}})
            .Parameter(L"baudrate", {}, Profiles({{L"9600", XmlContent().Text(L"gap", L"2")}})),
        L"L2");
    WriteEntries(XmlContent().Text(L"baudrate", L"9600"));

    EXPECT_EQ(SetProfile(L"baudrate", L"L2"), PGSP_OK);

    ExpectEntries(XmlContent().Text(L"baudrate", L"9600").Text(L"gap", L"2"));
}

TEST_F(SetProfileChecked, KeepsToTheSectionsAndNamesOfTheCatalogue)
{
    store.WriteBoard(
        Catalogue()
            .Parameter(L"gap", {{L"type", L"int"}, {L"section", L"NetworkSettings"}, {L"map", L"gap_factor"}})
            .Parameter(L"busparam", {{L"section", L"LocalSettings"}}));
    store.WriteProtocol(
        Catalogue().Parameter(L"busparam", {}, Profiles({{L"3", XmlContent().Text(L"gap", L"2")}})));
    const auto device = [](std::wstring_view gap) {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"busparam", L"3").Int(L"gap_factor", L"7"))
            .Element(L"NetworkSettings", XmlContent().Int(L"gap_factor", gap))
            .Raw(Spare(XmlContent().Text(L"busparam", L"1")).utf8());
    };
    Write(device(L"1"));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectSaved(device(L"2"));
}

TEST_F(SetProfileChecked, IsNoSuccessWithoutASectionForThePairs)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"section", L"LocalSettings"}}));
    store.WriteProtocol(Catalogue().Parameter(
        L"baudrate", {}, Profiles({{L"9600", XmlContent().Text(L"slot", L"1").Text(L"gap", L"2")}})));
    const auto device = [](std::wstring_view gap) {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"9600"))
            .Element(L"NetworkSettings", XmlContent().Text(L"gap", gap));
    };
    Write(device(L"1"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_PROFILE_NO_VALUE);

    ExpectSaved(device(L"2"));
}

TEST_F(SetProfileChecked, RefusesANameWithAForbiddenCharacter)
{
    ExpectWritten(XmlContent().Text(L"sl<ot", L"1").Text(L"gap", L"2"), XmlContent().Text(L"gap", L"2"),
                  PGSP_PROFILE_NO_VALUE);
}

} // namespace
} // namespace norvepa::test
