#pragma once

// Texts of a test's own in two languages, a log device that names them, and the library loaded on both.
//
// The libraries lie in "bin" below the program folder, where all links lead that name no other path, and in
// a folder "else" beside the store:
//
//     number    bin\de             bin\en           else\de           else\en
//     1000      Kessel             boiler           Kessel nebenan    boiler next door
//     1001      Presse             press
//     1002      nur auf Deutsch
//     1003      Silo               silo
//     1004                         English only

#include "support/Answers.h"
#include "support/DeviceStore.h"
#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"
#include "support/TextLibrary.h"
#include "support/XmlFiles.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

inline const std::wstring TexteDll = L"Texte.dll"; // what all the libraries are called

// A link named "Title" to a string of these. It lasts as long as what it is given.
[[nodiscard]] Link TitleLink(std::wstring_view resourceId, std::wstring_view path = L"");

// The section of links for all flags but 0, and the one for 0.
[[nodiscard]] XmlContent Links(const Link& link);
[[nodiscard]] XmlContent Links64(const Link& link);

class TextScene : public testing::Test
{
protected:
    TextScene();
    ~TextScene() override;

    // The log device "Presse" with one link.
    void WriteDevice(const Link& link) const { store.WriteDevice(L"Presse", Links(link)); }

    [[nodiscard]] std::wstring bin() const { return roots.program() + L"\\bin"; }
    [[nodiscard]] std::wstring elsewhere() const { return roots.folder() / L"else"; }

    // Texts of "Presse", in the section for all flags but 0.
    [[nodiscard]] std::wstring Text(const std::wstring& parameter, const wchar_t* language = L"de") const;
    [[nodiscard]] std::wstring Title(const wchar_t* language = L"de") const;

    // Texts in German of whatever has some.
    [[nodiscard]] std::wstring DeviceText(const std::wstring& device, std::int32_t flag = 1) const;
    [[nodiscard]] std::wstring NameText(const std::wstring& logName, std::int32_t flag = 1) const;
    [[nodiscard]] std::wstring BoardText(const std::wstring& board, std::int32_t flag = 1) const;
    [[nodiscard]] std::wstring TemplateText(const std::wstring& folder, const std::wstring& name,
                                            std::int32_t flag = 1) const;

    StoreRoots roots;
    const DeviceStore store{roots};
    Exports library;
};

} // namespace norvepa::test
