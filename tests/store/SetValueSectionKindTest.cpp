#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

struct SectionCase
{
    const wchar_t* section;
    const char* nameSpace; // below the driver namespace
};

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

INSTANTIATE_TEST_SUITE_P(
    SetValue, SetValueSectionKinds,
    testing::Values(SectionCase{L"Parameters", "/LogName"},
                    SectionCase{L"NotificationSection", "/Notification"}, SectionCase{L"Updates", "/PGSP"},
                    SectionCase{L"PGSP_Section", "/PGSP"}, SectionCase{L"DateTimeSection", "/PGSP"},
                    SectionCase{L"LocalSettings", "/LogDevice"}, SectionCase{L"SpareSection", "/LogDevice"},
                    SectionCase{L"Clients", "/LogDevice"}, SectionCase{L"parameters", "/LogDevice"},
                    SectionCase{L"BoardAttributes", "/LogDevice"}));

} // namespace
} // namespace norvepa::test
