#pragma once

#include "support/Norvctl.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace norvepa::test
{

// Documents of log devices, as a user keeps them in files.
class NorvctlImport : public Norvctl
{
protected:
    using Document = nlohmann::ordered_json;

    static Document Exported(const std::wstring& device)
    {
        return Document::parse(OutputOfNorvctl({L"device", L"export", device}));
    }

    [[nodiscard]] std::wstring Keep(std::string_view bytes) const
    {
        WriteBytes(folder / L"document.json", bytes);
        return folder / L"document.json";
    }

    [[nodiscard]] ProgramEnd ImportBytes(const std::wstring& device, std::string_view bytes,
                                         const Words& more = {}) const
    {
        Words words{L"device", L"import", device, Keep(bytes)};
        words.insert(words.end(), more.begin(), more.end());
        return RunNorvctl(words);
    }

    [[nodiscard]] ProgramEnd Import(const std::wstring& device, const Document& document,
                                    const Words& more = {}) const
    {
        return ImportBytes(device, document.dump(), more);
    }

    [[nodiscard]] std::string BytesOf(const std::wstring& fileName) const
    {
        return ReadBytes(LogDevicePath(fileName));
    }

    // Neither temporary log devices nor files in the making.
    [[nodiscard]] bool IsNothingLeft() const
    {
        const auto names = FileNames(folder / L"data-root\\data\\LogDevices");
        return std::none_of(names.begin(), names.end(), [](const std::wstring& name) {
            return name.find(L"TEMP_LOG_DEVICE") != std::wstring::npos || name.front() == L'~';
        });
    }
};

} // namespace norvepa::test
