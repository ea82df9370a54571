#pragma once

// What the exports that are given a folder word make of the name of a file in that folder.
//
// The exports differ from folder to folder, on purpose. Where a form lowers a name, the prefix is looked for
// in small letters, and the file's path is composed of the small letters; a prefix that is put in front keeps
// its own.

#include "frame/Result.h"

#include <string>
#include <string_view>

namespace norvepa
{

// PGSP_OK, or the codes of an escaping; `made` is untouched then. The name must be there.
using NameForm = Result (*)(const wchar_t* name, std::wstring& made);

struct NameForms
{
    NameForm board;
    NameForm protocol;
    NameForm logDeviceTemplate;
};

// One row for each export.
extern const NameForms TemplateExistForms;
extern const NameForms TemplateKeyExistsForms;
extern const NameForms TemplateGetEnumValueRawForms;
extern const NameForms TemplateGetConstraintForms;
extern const NameForms TemplateSetValueForms;
extern const NameForms TemplateGetResourceStringForms;

// The name by the form for a folder word, which is known without regard to case. In any other folder a name
// is used as it comes.
[[nodiscard]] Result MakeNameIn(const NameForms& forms, std::wstring_view folder, const wchar_t* name,
                                std::wstring& made);

// The store path of a catalogue's file by such a name; `folder` goes into it as the caller wrote it.
[[nodiscard]] Result MakeFileIn(const NameForms& forms, const std::wstring& programFolder,
                                std::wstring_view folder, const wchar_t* name, std::wstring& file);

} // namespace norvepa
