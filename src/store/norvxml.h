#pragma once

// The store's operations on files and on the values in them. Each looks at its file, does its work and
// forgets it: the store has no state of its own, and answers what the file says now. The questions to boards,
// protocols and templates are on the floor above, in catalogue/norvxmlCatalogue.h.
//
// Conventions: `filePath` is a full path without extension whose last component is a plain name; the
// store escapes it and appends ".xml". An output is untouched when an argument is refused or the file
// can't be opened, empty when the value isn't found, unless told otherwise. Every operation answers
// PGSP_ERR_INVALID_PARAMETERS for a path that is null or empty or an output that is null, and
// PGSP_ERR_BUFFER_TOO_SHORT for an escaped path of 260 characters or more. Memory that runs out, ours or the
// DOM engine's, is std::bad_alloc.

#include "frame/Result.h"

#include <cstdint>
#include <functional>
#include <string>

namespace norvepa
{

// Whole files ---------------------------------------------------------------------------------------
//
// The two rules by which a path gets its extension differ on purpose; each operation keeps its own.

// A file at this exact path that isn't too large for the DOM engine, 10,000,000 bytes. PGSP_OK,
// PGSP_ERR_FILE_NOT_FOUND or PGSP_ERR_CANT_LOAD_XML_FILE.
[[nodiscard]] Result CheckFileSize(const std::wstring& path);

// A new file of a kind: "nam", "driv", "notif" or "pgsp". PGSP_ERR_FILE_EXISTS leaves a file that is there
// alone; PGSP_ERR_CANT_CREATE_XML_ENGINE, and PGSP_ERR_CANT_CREATE_FILE when the file could be opened but not
// saved, leave an empty file behind; memory that runs out leaves none.
[[nodiscard]] Result NorvXMLCreateFile(const wchar_t* filePath, const wchar_t* fileKind);

// PGSP_ERR_CANT_DELETE_FILE for whatever reason.
[[nodiscard]] Result NorvXMLDeleteFile(const wchar_t* filePath);

// PGSP_ERR_FILE_EXISTS for yes, PGSP_ERR_FILE_NOT_FOUND for no; never PGSP_OK.
[[nodiscard]] Result NorvXMLFileExists(const wchar_t* filePath);

// PGSP_ERR_CANT_COPY_FILE; a destination that is there is not replaced.
[[nodiscard]] Result NorvXMLCopyFile(const wchar_t* sourcePath, const wchar_t* destinationPath);
[[nodiscard]] Result NorvXMLRenameFile(const wchar_t* sourcePath, const wchar_t* destinationPath);

// The name of a folder's file by index, unescaped and without extension. PGSP_ERR_NO_MORE_ITEMS past the end,
// and for a folder that is empty or can't be read.
[[nodiscard]] Result NorvXMLEnumFile(const wchar_t* folderPath, std::uint32_t index, std::wstring* name);

// The same into a caller's buffer, by the output rule. A length of 0 is refused.
[[nodiscard]] Result NorvXMLEnumFileName(const wchar_t* folderPath, std::uint32_t index, wchar_t* buffer,
                                         std::uint32_t* length);

// Reading parameter values: one forward pass over the file as it is now, up to the first match -------
//
// Section and parameter names match without regard to case; a value comes as it stands.
// PGSP_ERR_CANT_LOAD_XML_FILE when the file can't be opened; PGSP_ERR_PARAM_NOT_FOUND when there is no
// match, also because the file isn't well-formed ahead of it.

// A null or empty section is "SpareSection".
[[nodiscard]] Result NorvXMLGetValue(const wchar_t* filePath, const wchar_t* section,
                                     const wchar_t* parameter, std::wstring* value);

// The same into a caller's buffer, by the output rule. A null parameter is refused.
[[nodiscard]] Result NorvXMLGetValueBuffer(const wchar_t* filePath, const wchar_t* section,
                                           const wchar_t* parameter, wchar_t* buffer, std::uint32_t* length);

// For catalogue files, whose folder decides what a second part of `sectionPath` means. Only a null
// `sectionPath` is "SpareSection"; an empty one is a section without a name.
[[nodiscard]] Result NorvXMLGetValueRaw(const wchar_t* filePath, const wchar_t* sectionPath,
                                        const wchar_t* parameter, std::wstring* value);

// A value of a subdevice, in whatever kind of entry it stands.
[[nodiscard]] Result NorvXMLGetSubdevValue(const wchar_t* filePath, const wchar_t* subdevName,
                                           const wchar_t* parameter, std::wstring* value);

[[nodiscard]] Result NorvXMLSubdevExists(const wchar_t* filePath, const wchar_t* subdevName);

// Where a parameter is stored: `elementName` is its entry's element as the file spells it, `sectionName`
// the section's word. Indices without a section are those of no element.
[[nodiscard]] Result NorvXMLGetValueBySectionIndex(const wchar_t* filePath, std::uint32_t sectionIndex,
                                                   const wchar_t* parameter, std::wstring* elementName,
                                                   std::wstring* sectionName);

// A `Resource` of the section `UserInterface64` (`wide` 0) or `UserInterface`. The outputs hold what was
// met last, also of a `Resource` with another name.
[[nodiscard]] Result NorvXMLGetAssemblyLink(const wchar_t* filePath, const wchar_t* resourceName,
                                            std::wstring* assembly, std::wstring* path,
                                            std::wstring* resourceId, std::wstring* nameSpace, int wide);

// The link of a parameter, in the same sections. `filePath` is opened as it stands with ".xml" added.
[[nodiscard]] Result NorvXMLGetParameterAssemblyLink(const wchar_t* filePath, const wchar_t* parameter,
                                                     std::wstring* assembly, std::wstring* path,
                                                     std::wstring* function, int wide);

// Writing parameter values: the document loaded as a whole, one entry changed, the whole saved ---------
//
// Element names match exactly here, names of parameters and values without regard to case. PGSP_OK when the
// file was changed, whether or not it could be saved, unless memory ran out in that; PGSP_ERR_SAME_VALUE when
// nothing had to be done.
// PGSP_ERR_FILE_NOT_FOUND, PGSP_ERR_CANT_LOAD_XML_FILE (too large or malformed) and
// PGSP_ERR_CANT_CREATE_XML_ENGINE leave the file as it is. A value that is malformed for its type, or a name
// with a forbidden character, is PGSP_ERR_INVALID_PARAMETERS. What XML can't hold at all, such as a control
// character, is PGSP_ERR_CANT_SET_VALUE: the file would be lost.

// Sets a parameter, and creates it in a section that is there; PGSP_ERR_CANT_SET_VALUE when it isn't. `type`
// is "int", "bool", "string" or none, which is a string; another word is itself the entry's element. A null
// or empty section is "SpareSection". Works on threads without COM; after a failed load COM stays
// initialised.
[[nodiscard]] Result NorvXMLSetValue(const wchar_t* filePath, const wchar_t* section,
                                     const wchar_t* parameter, const wchar_t* value, const wchar_t* type);

// Sets a parameter that is there, in whatever section of a log device or board; PGSP_ERR_CANT_SET_VALUE when
// it isn't. COM as above.
[[nodiscard]] Result NorvXMLSetHeaderValue(const wchar_t* filePath, const wchar_t* parameter,
                                           const wchar_t* value);

// Sets a subdevice's parameter, and creates it in a subdevice that is there, the last of its name;
// PGSP_ERR_CANT_SET_VALUE when there is none. Any value passes for a "bool", and without a type nothing is
// tested.
[[nodiscard]] Result NorvXMLSetSubdevValue(const wchar_t* filePath, const wchar_t* subdevName,
                                           const wchar_t* parameter, const wchar_t* value,
                                           const wchar_t* type);

// Removes a parameter from the first section of the name; PGSP_ERR_PARAM_NOT_FOUND when it isn't there. A
// null or empty section is "SpareSection". For sections of the settings and notification files the file is
// saved; for all others the result lies beside it, with "(temp)" behind its name, and the caller goes on with
// NorvXMLCommitTemp.
[[nodiscard]] Result NorvXMLDelValue(const wchar_t* filePath, const wchar_t* section,
                                     const wchar_t* parameter);

// Validation and commit --------------------------------------------------------------------------------

// A file of a folder against a schema of the program folder. `fileName` is a plain name without folder.
// PGSP_OK for a valid file; PGSP_ERR_INVALID_FILE; PGSP_ERR_CANT_LOAD_SCHEMA; PGSP_ERR_FILE_NOT_FOUND and
// PGSP_ERR_CANT_LOAD_XML_FILE for the file; PGSP_ERR_FOLDER_NOT_FOUND; PGSP_ERR_CANT_CREATE_XML_ENGINE.
[[nodiscard]] Result NorvXMLValidateFile(const wchar_t* fileName, const wchar_t* schemaName,
                                         const wchar_t* folderPath);

// Puts a file's "(temp)" form in its place when it is valid, and otherwise removes that form and answers the
// validation's result. PGSP_ERR_CANT_DELETE_FILE when the file can't be removed: both then stay. A rename
// that fails behind that is not told.
[[nodiscard]] Result NorvXMLCommitTemp(const wchar_t* fileName, const wchar_t* schemaName,
                                       const wchar_t* folderPath);

// A deletion that leaves a "(temp)" form of a folder's file, and the commit that has to follow it. That form
// is gone also when memory runs out on the way. `deletion` is given the file's store path.
[[nodiscard]] Result CommitDeletion(const std::wstring& folderPath, const wchar_t* fileName,
                                    const wchar_t* schemaName,
                                    const std::function<Result(const wchar_t* filePath)>& deletion);

// The same for NorvXMLDelValue.
[[nodiscard]] Result DelValueAndCommit(const std::wstring& folderPath, const wchar_t* fileName,
                                       const wchar_t* schemaName, const wchar_t* section,
                                       const wchar_t* parameter);

// Texts, pages and the section `Ndi` of a log device ---------------------------------------------------
//
// By documents, as the writing above; outputs are untouched without an answer. `wide` chooses the section of
// links: 0 `UserInterface64`, any other number `UserInterface`. A null parameter is refused.

// The entries of `Ndi` and of the section of links, and the links to pages, by index; PGSP_ERR_NO_MORE_ITEMS
// past the last. A link's value is its assembly, "," and its function; without an assembly it is empty.
[[nodiscard]] Result NorvXMLEnumNdi(const wchar_t* filePath, std::uint32_t index, std::wstring* name,
                                    std::wstring* value, int wide);

// Sets a link, and makes it, and the section, where they aren't there: a `Resource` when a resource id is
// given or no function, otherwise a `ParameterAssemblyLink`. What is null is left alone and not made; a
// function is made for "PropSheet" and "Diagnosis" only, a resource id for "DescText", "DescDefault",
// "BaudrateResource" and "BusparamResource". PGSP_ERR_SAME_VALUE when all that is given is there.
[[nodiscard]] Result NorvXMLSetNdi(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* assembly,
                                   const wchar_t* path, const wchar_t* function, const wchar_t* resourceId,
                                   int wide);

// Removes a `ParameterAssemblyLink`, into the file's "(temp)" form: the caller goes on with
// NorvXMLCommitTemp. PGSP_ERR_PARAM_NOT_FOUND when there is none.
[[nodiscard]] Result NorvXMLDelNdi(const wchar_t* filePath, const wchar_t* parameter, int wide);

// Parameter data: flat files of named parameters ---------------------------------------------------------
//
// By documents; entries are met at whatever depth, names without regard to case. Outputs are untouched
// without an answer. A null name is refused; there are no rules for names or values but what XML can hold.

// The first entry of the name; PGSP_ERR_PARAM_NOT_FOUND when there is none, or it has no value.
[[nodiscard]] Result NorvXMLGetParameterData(const wchar_t* filePath, const wchar_t* name,
                                             std::wstring* value);

// Sets an entry of the type ("int", "bool", all else is a text), and makes it below the root where it isn't
// there: entries of another type don't count. PGSP_ERR_SAME_VALUE here regards case. An entry without a
// `Value` can't be set.
[[nodiscard]] Result NorvXMLSetParameterData(const wchar_t* filePath, const wchar_t* name,
                                             const wchar_t* value, const wchar_t* type);

// Removes the first entry of the name, in the file itself. PGSP_ERR_CANT_SET_VALUE when there is none.
[[nodiscard]] Result NorvXMLDelParameterData(const wchar_t* filePath, const wchar_t* name);

// All entries by index. Unlike all other enumerations it ends with PGSP_ERR_PARAM_NOT_FOUND.
[[nodiscard]] Result NorvXMLEnumParameterData(const wchar_t* filePath, std::uint32_t index,
                                              std::wstring* name, std::wstring* value);

} // namespace norvepa
