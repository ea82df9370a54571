#include "SettingsScene.h"

#include "support/Answers.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{

namespace
{

std::string FileOf(const Settings& settings)
{
    return XmlFile(L"PGSP", {{L"xmlns", L"http://www.marvolt.example/Automation/Corvane.Device.Driver/PGSP"}},
                   XmlContent()
                       .Element(L"PGSP_Section", settings.common)
                       .Element(L"Updates", settings.updates)
                       .Element(L"DateTimeSection", settings.times));
}

} // namespace

void SettingsScene::WriteSettings(const Settings& settings) const
{
    WriteSettingsBytes(FileOf(settings));
}

void SettingsScene::WriteSettingsBytes(std::string_view bytes) const
{
    WriteBytes(settingsFile(), bytes);
}

void SettingsScene::ExpectSettings(const Settings& settings) const
{
    EXPECT_EQ(MeaningOfFile(settingsFile()), MeaningOf(FileOf(settings)));
}

void SettingsScene::ExpectNewFile(const Settings& settings) const
{
    EXPECT_EQ(MeaningOfFile(settingsFile()),
              MeaningOf(FileOf(settings) + "<!-- NorvepaBl64x configuration store -->"));
}

std::string SettingsScene::SettingsBytes() const
{
    return ReadBytes(settingsFile());
}

std::wstring SettingsScene::Setting(const wchar_t* parameter) const
{
    return TextOf([&](wchar_t* buffer, std::uint32_t* length) {
        return library.GetValueInPGSP_BL(parameter, buffer, length);
    });
}

std::int32_t SettingsScene::SetSetting(const wchar_t* parameter, const wchar_t* value) const
{
    return library.SetValueInPGSP_BL(parameter, value);
}

void SettingsScene::ExpectSettingsKept(const wchar_t* parameter, const wchar_t* value,
                                       std::int32_t result) const
{
    const std::string before = SettingsBytes();

    EXPECT_EQ(SetSetting(parameter, value), result);

    EXPECT_EQ(SettingsBytes(), before);
    EXPECT_THAT(FileNames(roots.data() + L"\\data"),
                testing::ElementsAre(L"LogDevices", L"LogNames", L"PGSP.xml"));
}

} // namespace norvepa::test
