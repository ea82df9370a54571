#pragma once

// Log devices in a store, and the boards and protocols that say what their parameters may hold:
//
//     const DeviceStore store{roots};
//     store.WriteDevice(L"Presse", XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"1")));
//     store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}, {L"max", L"8"}}));
//
// Unless a test says otherwise a log device names the board and the protocol that are written without a name.
// The library remembers for good what it has once read of a board or a protocol: write them ahead of the
// first call, and a second one under another name.

#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace norvepa::test
{

inline constexpr std::wstring_view OurBoard = L"AFK110";
inline constexpr std::wstring_view OurProtocol = L"MPI";

// A word of a parameter, such as "min", and what it says.
struct ConstraintWord
{
    std::wstring_view word;
    std::wstring_view text;
};
using ConstraintWords = std::initializer_list<ConstraintWord>;

// What a board or a protocol says of parameters.
class Catalogue
{
public:
    // The words in their order and, behind them, `collection`: a ValueCollection, or whatever a test wants.
    Catalogue& Parameter(std::wstring_view name, ConstraintWords words, const XmlContent& collection = {});

    // The content of a file: `Constraints` with all parameters.
    [[nodiscard]] XmlContent content() const;

private:
    XmlContent m_sections;
};

// A value collection whose items are sections, as that of baud rates is in its other form.
[[nodiscard]] XmlContent SectionCollection(Texts items);

class DeviceStore
{
public:
    explicit DeviceStore(const StoreRoots& roots) : m_roots(roots) {} // which have to outlive it

    // File names as the files have them, escaped and without extension. A name that is written again is
    // replaced.
    void WriteDevice(const std::wstring& fileName, const XmlContent& content,
                     std::wstring_view board = OurBoard, std::wstring_view protocol = OurProtocol) const;
    void WriteBoard(const Catalogue& catalogue, std::wstring_view id = OurBoard) const;
    void WriteProtocol(const Catalogue& catalogue, std::wstring_view name = OurProtocol) const;

    // What values are removed under, and log devices are committed under.
    void UseOurSchemas() const;

    void TakeDataFolderAway() const;
    void TakeProgramFolderAway() const;

    [[nodiscard]] std::wstring deviceFolder() const { return m_roots.data() + L"\\data\\LogDevices"; }

    // A log device's name with which the path of its file, without extension, has this many characters.
    [[nodiscard]] std::wstring DeviceForPathOf(std::size_t length) const;

    // What the file of a log device says now, to be compared with MeaningOf(); and its bytes, for what must
    // not be touched. The calling thread must have COM for the first.
    [[nodiscard]] std::string Saved(const std::wstring& fileName) const;
    [[nodiscard]] std::string Bytes(const std::wstring& fileName) const;

private:
    const StoreRoots& m_roots;
};

} // namespace norvepa::test
