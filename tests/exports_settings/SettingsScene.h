#pragma once

// The machine's settings, read and changed through the library.

#include "exports_device/SetScene.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa::test
{

// What the sections of the file hold.
struct Settings
{
    XmlContent common = {};  // PGSP_Section
    XmlContent updates = {}; // Updates
    XmlContent times = {};   // DateTimeSection
};

class SettingsScene : public SetScene
{
protected:
    void WriteSettings(const Settings& settings) const;
    void WriteSettingsBytes(std::string_view bytes) const;

    // What the file says now, and its bytes.
    void ExpectSettings(const Settings& settings) const;
    void ExpectNewFile(const Settings& settings) const; // as the library makes it
    [[nodiscard]] std::string SettingsBytes() const;

    // What a setting is, or "(result N)".
    [[nodiscard]] std::wstring Setting(const wchar_t* parameter) const;
    [[nodiscard]] std::int32_t SetSetting(const wchar_t* parameter, const wchar_t* value) const;

    // What a set answers, and that the file stays byte for byte as it was and nothing stands beside it.
    void ExpectSettingsKept(const wchar_t* parameter, const wchar_t* value, std::int32_t result) const;

    [[nodiscard]] std::wstring settingsFile() const { return roots.data() + L"\\data\\PGSP.xml"; }
};

} // namespace norvepa::test
