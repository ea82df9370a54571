#pragma once

// The network device identity of the log device "Presse", read and changed through the library.

#include "exports_device/GetScene.h"
#include "exports_device/SetScene.h"

#include <cstdint>
#include <string>

namespace norvepa::test
{

// The values of `flag`.
inline constexpr std::int32_t In64 = 0; // UserInterface64
inline constexpr std::int32_t In32 = 1; // UserInterface

// Of a library that nobody has: what is only read and written, and never loaded.
inline constexpr Link PropSheet{
    .name = L"PropSheet", .assembly = L"Seiten.dll", .path = L"%commonpath%", .function = L"ShowPage"};
inline constexpr Link DescText{
    .name = L"DescText", .assembly = L"Texte.dll", .path = L"%commonpath%", .resourceId = L"7"};

// The sections of a file, each with this content; all three with the links for processes of 64 bits.
[[nodiscard]] XmlContent Ndi(const XmlContent& content);
[[nodiscard]] XmlContent Links(const XmlContent& content, std::int32_t flag = In64);
[[nodiscard]] XmlContent Identity(const XmlContent& ndi, const XmlContent& links);

// What the schema demands of every log device, and this.
[[nodiscard]] XmlContent Valid(const XmlContent& sections);

class NdiScene : public SetScene
{
protected:
    // On the log device "Presse", as all that names no other.
    [[nodiscard]] std::int32_t SetNdi(const wchar_t* parameter, const wchar_t* value,
                                      std::int32_t flag = In64) const;
    [[nodiscard]] std::int32_t DelNdi(const wchar_t* parameter, std::int32_t flag = In64) const;
    [[nodiscard]] std::int32_t GetNdi(const wchar_t* parameter, OutputBuffer& value,
                                      std::int32_t flag = In64) const;
    [[nodiscard]] std::int32_t GetNdiOf(const wchar_t* device, const wchar_t* parameter, OutputBuffer& value,
                                        std::int32_t flag = In64) const;
    [[nodiscard]] std::int32_t EnumNdi(std::uint32_t index, OutputBuffer& name, OutputBuffer& value,
                                       std::int32_t flag = In64) const;
    [[nodiscard]] std::int32_t EnumNdiOf(const wchar_t* device, std::uint32_t index, OutputBuffer& name,
                                         OutputBuffer& value, std::int32_t flag = In64) const;

    // The value that is read, or "(result N)"; and all pairs of the enumeration.
    [[nodiscard]] std::wstring Value(const wchar_t* parameter, std::int32_t flag = In64) const;
    [[nodiscard]] std::wstring ValueOf(const std::wstring& device, const wchar_t* parameter,
                                       std::int32_t flag = In64) const;
    [[nodiscard]] Pairs AllNdi(std::int32_t flag = In64) const;
    [[nodiscard]] Pairs AllNdiOf(const std::wstring& device, std::int32_t flag = In64) const;

    // What a set or a deletion answers, and that the file stays byte for byte as it was and nothing stands
    // beside it.
    void ExpectSetNdiChangesNothing(const wchar_t* parameter, const wchar_t* value, std::int32_t result,
                                    std::int32_t flag = In64) const;
    void ExpectDelNdiChangesNothing(const wchar_t* parameter, std::int32_t result,
                                    std::int32_t flag = In64) const;

    // Lays our texts, German and English, where links to them lead.
    void UseOurTexts() const;
};

// A buffer that a call has left alone.
void ExpectUntouched(const OutputBuffer& buffer, std::uint32_t capacity);

} // namespace norvepa::test
