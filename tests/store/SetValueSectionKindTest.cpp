#include "store/WriteScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

struct SectionCase
{
    const wchar_t* section;
    const char* nameSpace; // below the driver namespace
};

void PrintTo(const SectionCase& each, std::ostream* out)
{
    *out << ToUtf8(each.section);
}

class SetValueSectionKinds : public WriteScene, public testing::WithParamInterface<SectionCase>
{
};

TEST_P(SetValueSectionKinds, SayTheNamespaceOfANewEntry)
{
    // A document without a namespace, so that the entry's own shows.
    const auto& [section, nameSpace] = GetParam();
    const std::string name = ToUtf8(section);
    GivenFile("<root><" + name + "/></root>");

    EXPECT_EQ(Set(section, L"a", L"1", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf("<root><" + name +
                        "><ParameterInt xmlns='http://www.marvolt.example/Automation/"
                        "Corvane.Device.Driver" +
                        nameSpace + "'><Name>a</Name><Value>1</Value></ParameterInt></" + name + "></root>"));
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetValueSectionKinds,
                         testing::Values(SectionCase{L"Parameters", "/LogName"},
                                         SectionCase{L"NotificationSection", "/Notification"},
                                         SectionCase{L"Updates", "/PGSP"},
                                         SectionCase{L"PGSP_Section", "/PGSP"},
                                         SectionCase{L"DateTimeSection", "/PGSP"}));

// All others hold log devices' entries, whatever document they stand in.
INSTANTIATE_TEST_SUITE_P(
    SetValueOther, SetValueSectionKinds,
    testing::Values(SectionCase{L"DeviceHeader", "/LogDevice"}, SectionCase{L"LocalSettings", "/LogDevice"},
                    SectionCase{L"NetworkSettings", "/LogDevice"}, SectionCase{L"Bindings", "/LogDevice"},
                    SectionCase{L"Ndi", "/LogDevice"}, SectionCase{L"UserInterface", "/LogDevice"},
                    SectionCase{L"UserInterface64", "/LogDevice"}, SectionCase{L"SpareSection", "/LogDevice"},
                    SectionCase{L"Clients", "/LogDevice"}, SectionCase{L"BoardAttributes", "/LogDevice"},
                    SectionCase{L"Install", "/LogDevice"}));

INSTANTIATE_TEST_SUITE_P(SetValueCase, SetValueSectionKinds,
                         testing::Values(SectionCase{L"parameters", "/LogDevice"},
                                         SectionCase{L"notificationsection", "/LogDevice"},
                                         SectionCase{L"UPDATES", "/LogDevice"},
                                         SectionCase{L"Pgsp_Section", "/LogDevice"},
                                         SectionCase{L"DatetimeSection", "/LogDevice"},
                                         SectionCase{L"Parameters2", "/LogDevice"}));

} // namespace
} // namespace norvepa::test
