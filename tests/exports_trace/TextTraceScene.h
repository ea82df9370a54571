#pragma once

// The trace of exports that read texts. The log device "X" has a link "Title" to number 1000 of "Texte.dll"
// in "bin" below the program folder, which is "abc" in German and "def" in English.

#include "CatalogueTraceScene.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

class TextTraceScene : public CatalogueTraceScene
{
protected:
    TextTraceScene();

    [[nodiscard]] std::wstring bin() const { return roots.program() + L"\\bin"; }
    [[nodiscard]] std::wstring deviceFile() const { return roots.data() + L"\\data\\LogDevices\\X"; }

    // A section of links with one to number 1000.
    [[nodiscard]] static XmlContent Links(std::wstring_view path, std::wstring_view assembly = L"Texte.dll");

    // The text of a log device, and of a template. Each call offers 20 characters.
    [[nodiscard]] std::int32_t Ask(const wchar_t* language = L"de", const wchar_t* device = L"X");
    [[nodiscard]] std::int32_t AskTemplate(const wchar_t* folder, const wchar_t* name);

    [[nodiscard]] std::vector<std::string> LinesOfLoad() const { return LinesOf("PGSP_LoadResourceString"); }
    [[nodiscard]] std::vector<std::string> LinesOfDevice() const
    {
        return LinesOf("PGSP_LogDeviceGetResourceStringBL");
    }
    [[nodiscard]] std::vector<std::string> LinesOfTemplate() const
    {
        return LinesOf("PGSP_TemplateGetResourceStringBL");
    }
};

inline constexpr std::size_t LongestPath = 260; // of a library's file, in characters

// Lines as they are told by LinesOf, "level: message", cut where a trace cuts them.
[[nodiscard]] std::string Line(std::string_view level, const std::string& message);
[[nodiscard]] std::string Info(const std::string& text, const std::wstring& path);
[[nodiscard]] std::string Warning(const std::string& text, const std::wstring& path);
[[nodiscard]] std::string EntryOf(const std::wstring& xmlFile);

} // namespace norvepa::test
