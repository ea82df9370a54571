#pragma once

// What the calls are drawn from: fixed sets of names, paths and values. What the library keeps of answers
// grows with the number of different questions, so that only sets that don't grow let a leak be seen.

#include <span>
#include <string_view>

namespace norvepa::test
{

using Texts = std::span<const wchar_t* const>;

// A kind of text: what a caller means, and what one may come upon.
struct Words
{
    Texts usual;
    Texts odd;
};

extern const Words Devices; // subdevices, copies and temporary ones too
extern const Words LogNames;
extern const Words Boards;
extern const Words BoardSections; // a board's, behind a backslash
extern const Words Protocols;
extern const Words Templates;
extern const Words Folders;        // of the catalogue
extern const Words CatalogueFiles; // of whatever folder
extern const Words Sections;
extern const Words Parameters;
extern const Words Constraints; // words that the catalogue has for a parameter
extern const Words Keys;        // paths within a file of the catalogue
extern const Words Values;
extern const Words BusParameters; // those with profiles
extern const Words Speeds;
extern const Words Links; // names of texts
extern const Words Languages;
extern const Words Settings;
extern const Words DataFolders; // of flat files
extern const Words DataSubfolders;
extern const Words DataTypes;
extern const Words DataFiles;
extern const Words DataParameters;
extern const Words NotifyFolders;
extern const Words Events;

// What no name should be: null, empty, too long, not even text.
extern const Texts Hostile;

// The events among them that are there.
extern const Texts OwnedEvents;

// Names one behind the other, each with its terminator; a character behind the last is a terminator too.
inline constexpr std::wstring_view NameList{L"Unit\0Station\0DeviceID\0Asic_Type\0CP_TYPE\0baudrate\0", 49};

} // namespace norvepa::test
