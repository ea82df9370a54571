#include "norvctl/DeviceSheet.h"

#include "norvctl/Device.h"
#include "norvctl/Reads.h"
#include "norvctl/Text.h"
#include "norvepa.h"
#include "support/Norvctl.h"

#include <algorithm>
#include <stdexcept>

namespace norvepa::test
{
namespace
{

using norvctl::NameAndValue;
using norvctl::SheetSection;
using norvctl::SheetValue;
using testing::ElementsAre;
using testing::Optional;

using Pairs = std::vector<std::pair<std::string, std::string>>;

class NorvctlDeviceSheet : public Norvctl
{
protected:
    // The library watches the folders that are about to be removed.
    ~NorvctlDeviceSheet() override { NorvepaBl64x_deinit(); }

    // A value with what the catalogue says of it.
    static SheetValue LimitsOf(const std::string& device, const std::string& parameter)
    {
        norvctl::CatalogueLimits limits;
        std::vector<SheetSection> sections = norvctl::SectionsOfDevice(device);
        norvctl::AddLimits(device, limits, sections);
        for (const SheetSection& section : sections)
        {
            for (const SheetValue& value : section.values)
            {
                if (value.name == parameter)
                {
                    return value;
                }
            }
        }
        throw std::runtime_error("no such value");
    }

    static std::vector<std::string> AllDevices()
    {
        return norvctl::ReadTexts("the log devices", [](wchar_t* list, uint32_t* length) {
            return PGSP_GetLogDeviceListBL(list, length);
        });
    }
};

bool IsOfSubdevice(const SheetSection& section)
{
    return section.name.starts_with("subdevices\\");
}

Pairs SortedValues(const std::vector<SheetSection>& sections)
{
    Pairs pairs;
    for (const SheetSection& section : sections)
    {
        for (const SheetValue& value : section.values)
        {
            if (!IsOfSubdevice(section))
            {
                pairs.emplace_back(value.name, value.value);
            }
        }
    }
    std::sort(pairs.begin(), pairs.end());
    return pairs;
}

Pairs SortedValues(const std::vector<NameAndValue>& enumerated)
{
    Pairs pairs;
    for (const NameAndValue& pair : enumerated)
    {
        pairs.emplace_back(pair.name, pair.value);
    }
    std::sort(pairs.begin(), pairs.end());
    return pairs;
}

std::vector<std::string> NamesOf(const std::vector<SheetSection>& sections)
{
    std::vector<std::string> names;
    for (const SheetSection& section : sections)
    {
        names.push_back(section.name);
    }
    return names;
}

std::string ReadFrom(const std::string& device, const std::string& section, const std::string& parameter)
{
    return norvctl::ReadText([&](wchar_t* value, uint32_t* length) {
               return LogDeviceGetValueExBL(norvctl::ToWide(device).c_str(), norvctl::ToWide(section).c_str(),
                                            norvctl::ToWide(parameter).c_str(), value, length);
           })
        .value;
}

TEST_F(NorvctlDeviceSheet, HasEveryEnumeratedValueOfEveryDeviceOnce)
{
    for (const std::string& device : AllDevices())
    {
        EXPECT_EQ(SortedValues(norvctl::SectionsOfDevice(device)),
                  SortedValues(norvctl::ValuesOfDevice(device)))
            << device;
    }
}

TEST_F(NorvctlDeviceSheet, TellsTheSectionThatAValueStandsIn)
{
    for (const std::string& device : AllDevices())
    {
        const std::vector<SheetSection> sections = norvctl::SectionsOfDevice(device);

        ASSERT_EQ(sections.front().name, "LogDevice") << device;
        for (const SheetSection& section : sections)
        {
            const bool isOfFile = section.name != "LogDevice" && !IsOfSubdevice(section);
            for (std::size_t i = 0; isOfFile && i < section.values.size(); ++i)
            {
                EXPECT_EQ(ReadFrom(device, section.name, section.values[i].name), section.values[i].value)
                    << device << ", " << section.name << ", " << section.values[i].name;
            }
        }
    }
}

TEST_F(NorvctlDeviceSheet, FollowsTheFileAndPutsSubdevicesBehind)
{
    EXPECT_THAT(NamesOf(norvctl::SectionsOfDevice("Etikettierer")),
                ElementsAre("LogDevice", "DeviceHeader", "LocalSettings", "NetworkSettings", "Bindings",
                            "SpareSection", "subdevices\\Drucker A", "subdevices\\Drucker B"));
}

TEST_F(NorvctlDeviceSheet, HasTheValuesOfASectionInTheFilesOrder)
{
    const SheetSection header = norvctl::SectionsOfDevice("Etikettierer").at(1);

    std::vector<std::string> names;
    for (const SheetValue& value : header.values)
    {
        names.push_back(value.name);
    }
    EXPECT_THAT(names, ElementsAre("Unit", "Device", "Description", "Location", "Active"));
}

TEST_F(NorvctlDeviceSheet, OfASubdeviceHasItsValuesAlone)
{
    const std::vector<SheetSection> sections =
        norvctl::SectionsOfDevice("Etikettierer\\subdevices\\drucker b");

    ASSERT_THAT(NamesOf(sections), ElementsAre("subdevices\\Drucker B"));
    ASSERT_EQ(sections.front().values.size(), 3U);
    EXPECT_EQ(sections.front().values.at(2).value, "false");
}

TEST_F(NorvctlDeviceSheet, HasTheValuesThatAreReadOfSubdevices)
{
    for (const SheetSection& section : norvctl::SectionsOfDevice("Kesselhaus"))
    {
        for (std::size_t i = 0; IsOfSubdevice(section) && i < section.values.size(); ++i)
        {
            const SheetValue& value = section.values[i];
            EXPECT_EQ(norvctl::ReadDevice("Kesselhaus\\" + section.name, value.name).value, value.value)
                << section.name << ", " << value.name;
        }
    }
}

TEST_F(NorvctlDeviceSheet, OfWhatIsNotThereIsRefused)
{
    EXPECT_THROW(static_cast<void>(norvctl::SectionsOfDevice("gone")), std::runtime_error);
    EXPECT_THROW(static_cast<void>(norvctl::SectionsOfDevice("Etikettierer\\subdevices\\gone")),
                 std::runtime_error);
}

TEST_F(NorvctlDeviceSheet, TellsWhichWholeNumbersAreAllowed)
{
    const SheetValue watchdog = LimitsOf("Kesselhaus", "watchdog");

    EXPECT_EQ(watchdog.allowed, "10 to 30000 in steps of 10");
    EXPECT_THAT(watchdog.standard, Optional(std::string("400")));
    EXPECT_TRUE(watchdog.differs);
    EXPECT_EQ(LimitsOf("Kesselhaus", "memory_base").allowed, "80000 to 7FFFFF, all to the base 16");
    EXPECT_EQ(LimitsOf("Kesselhaus", "retry_limit").allowed,
              "whole numbers"); // a maximum alone refuses nothing
}

TEST_F(NorvctlDeviceSheet, TellsWhichValuesOfAListAreAllowed)
{
    EXPECT_EQ(LimitsOf("Abf\u00FCllung Linie 1", "baudrate").allowed, "19200, 187500");
    EXPECT_EQ(LimitsOf("Presse#3", "l4_timeout").allowed, "200, 400, 1000, 2000");
}

TEST_F(NorvctlDeviceSheet, TellsThatATruthValueIsAllowedOrAnything)
{
    const SheetValue redundant = LimitsOf("Kesselhaus", "redundant_master");

    EXPECT_EQ(redundant.allowed, "true, false");
    EXPECT_FALSE(redundant.differs);
    EXPECT_EQ(LimitsOf("Kesselhaus", "station_name").allowed, "");
    EXPECT_EQ(LimitsOf("Kesselhaus", "Remark").standard, std::nullopt);
}

TEST_F(NorvctlDeviceSheet, TellsValuesThatMeanTheSameFromThoseThatDiffer)
{
    const auto put = [](const wchar_t* parameter, const wchar_t* value) {
        ASSERT_EQ(LogDeviceSetValueBL(L"Kesselhaus", parameter, value), PGSP_OK);
    };
    put(L"watchdog", L"00400");
    put(L"redundant_master", L"TRUE");

    EXPECT_FALSE(LimitsOf("Kesselhaus", "watchdog").differs);
    EXPECT_FALSE(LimitsOf("Kesselhaus", "redundant_master").differs);
    EXPECT_TRUE(LimitsOf("Kesselhaus", "station_name").differs);
}

TEST_F(NorvctlDeviceSheet, OfAnUnknownBoardHasItsValuesAndWhatTheProtocolSays)
{
    DeleteFileW(CataloguePath(L"Boards\\Automation-OnlineAccess-BT-AFK220").c_str());

    EXPECT_EQ(LimitsOf("Kesselhaus", "watchdog").allowed, "10 to 65530 in steps of 10");
}

// A store of a thousand log devices, which few boards and protocols describe, is looked at in seconds.
TEST_F(NorvctlDeviceSheet, ReadsTheCatalogueOnceForAllDevicesThatAreAlike)
{
    norvctl::CatalogueLimits limits;
    std::vector<SheetSection> first = norvctl::SectionsOfDevice("Kesselhaus");
    norvctl::AddLimits("Kesselhaus", limits, first);
    DeleteFileW(CataloguePath(L"Protocols\\Automation-OnlineAccess-PT-L2").c_str());
    norvctl::LimitsOfPair& pair = limits.Of("*AFK220", "L2");

    EXPECT_EQ(&limits.Of("*AFK220", "L2"), &pair);
    EXPECT_EQ(pair.Of("LocalSettings", "watchdog").allowed, "10 to 30000 in steps of 10");
}

} // namespace
} // namespace norvepa::test
