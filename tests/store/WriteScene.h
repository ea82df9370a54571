#pragma once

// A file to write to, in a folder of its own, and what it says afterwards.

#include "store/norvxml.h"
#include "support/TemporaryFolder.h"
#include "support/XmlFiles.h"
#include "support/XmlMeaning.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

class WriteScene : public testing::Test
{
protected:
    // A file of this name, which may have a folder of its own.
    explicit WriteScene(std::wstring_view name = L"Kesselhaus") : m_name(name) {}

    void GivenFile(std::string_view bytes) const { WriteBytes(file(), bytes); }

    // The path as the store takes it, without extension, and the file that it means.
    [[nodiscard]] std::wstring path() const { return m_folder / m_name; }
    [[nodiscard]] std::wstring file() const { return path() + L".xml"; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

    // What the file says now, to be compared with MeaningOf(); and its bytes, for what must not be touched.
    [[nodiscard]] std::string Saved() const { return MeaningOfFile(file()); }
    [[nodiscard]] std::string Bytes() const { return ReadBytes(file()); }

    // The operations on that file.
    [[nodiscard]] Result Set(const wchar_t* section, const wchar_t* parameter, const wchar_t* value,
                             const wchar_t* type) const;
    [[nodiscard]] Result SetHeader(const wchar_t* parameter, const wchar_t* value) const;
    [[nodiscard]] Result SetSubdev(const wchar_t* subdevice, const wchar_t* parameter, const wchar_t* value,
                                   const wchar_t* type) const;
    [[nodiscard]] Result Delete(const wchar_t* section, const wchar_t* parameter) const;

private:
    std::wstring m_name;
    TemporaryFolder m_folder;
};

// A log device with one section, `LocalSettings`.
[[nodiscard]] std::string DeviceWith(const XmlContent& localSettings);

// An entry in an element of any name.
[[nodiscard]] XmlContent EntryIn(std::wstring_view element, std::wstring_view name, std::wstring_view value);

} // namespace norvepa::test
