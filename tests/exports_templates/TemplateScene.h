#pragma once

// Files of the catalogue as the exports see them that are told a folder word, and templates as log devices;
// the answers in one word each.

#include "exports_catalogue/CatalogueScene.h"

#include <cstdint>
#include <string>

namespace norvepa::test
{

class TemplateScene : public CatalogueScene
{
protected:
    // The path of a catalogue's file of this whole name, without extension, in whatever folder.
    [[nodiscard]] std::wstring PathOf(const std::wstring& folder, const std::wstring& fileName) const;

    // Files of the catalogue: a template by its name without prefix, any by its whole name.
    void WriteTemplate(const std::wstring& name, const XmlContent& content) const;
    void WriteIn(const std::wstring& folder, const std::wstring& fileName, const XmlContent& content) const;

    // Files of all folders.
    [[nodiscard]] std::int32_t Exist(const std::wstring& folder, const std::wstring& name,
                                     std::int32_t flag = 0) const;
    [[nodiscard]] std::int32_t KeyExists(const std::wstring& folder, const std::wstring& name,
                                         const std::wstring& key) const;
    [[nodiscard]] std::wstring Item(const std::wstring& folder, const std::wstring& name,
                                    const std::wstring& key, std::uint32_t index) const;
    [[nodiscard]] std::wstring Constraint(const std::wstring& folder, const std::wstring& fileName,
                                          const std::wstring& parameter, const std::wstring& word) const;
    [[nodiscard]] std::int32_t Set(const std::wstring& folder, const std::wstring& fileName,
                                   const std::wstring& parameter, const std::wstring& value) const;
    [[nodiscard]] std::wstring FileName(const std::wstring& folder, std::uint32_t index) const;

    // Templates as log devices.
    [[nodiscard]] std::wstring DevicePair(const std::wstring& name, std::uint32_t index) const;
    [[nodiscard]] std::wstring DeviceValue(const std::wstring& name, const std::wstring& parameter,
                                           std::int32_t flag = 0) const;
    [[nodiscard]] std::wstring DeviceValueRaw(const std::wstring& name, const wchar_t* path,
                                              const std::wstring& parameter) const;
};

} // namespace norvepa::test
