#pragma once

// What the store's operations on whole documents have in common: how a file is opened, how a section and an
// entry are found and an entry is made, and what becomes of a thread without COM.
//
// In these walks element names are compared exactly, names of parameters and values without regard to case.

#include "trace/TraceStatement.h"
#include "xml/Document.h"

#include <string>
#include <string_view>

namespace norvepa
{

// PGSP_OK, or PGSP_ERR_CANT_CREATE_XML_ENGINE with its trace.
[[nodiscard]] Result CreateDocument(const TraceSource& source, Document& document);

// The engine, the size guard and the load: PGSP_ERR_CANT_CREATE_XML_ENGINE, PGSP_ERR_FILE_NOT_FOUND,
// PGSP_ERR_CANT_LOAD_XML_FILE.
[[nodiscard]] Result OpenDocument(const TraceSource& source, const std::wstring& file, Document& document);

// The same without a word in the trace, but for the size guard's.
[[nodiscard]] Result OpenDocument(const std::wstring& file, Document& document);

// The same for a store path; `file` becomes what it is called on disk.
[[nodiscard]] Result OpenStoreDocument(const wchar_t* filePath, std::wstring& file, Document& document);

// COM for a call that may come on a thread without it: when there is no engine for want of COM, COM is
// initialised and the engine asked for once more. What was initialised ends with the object, which has to
// outlive the document; but a call that fails to load its file leaves its thread initialised.
class ComForOneCall
{
public:
    ComForOneCall() noexcept = default;
    ComForOneCall(const ComForOneCall&) = delete;
    ComForOneCall& operator=(const ComForOneCall&) = delete;
    ~ComForOneCall();

    // As the function above that traces.
    [[nodiscard]] Result OpenDocument(const TraceSource& source, const std::wstring& file,
                                      Document& document);

private:
    [[nodiscard]] Result CreateDocument(const TraceSource& source, Document& document);

    bool m_ours = false;
};

// The first element of this name below the root; empty when there is none.
[[nodiscard]] Node FirstElement(const Document& document, std::wstring_view name);

// `Parameter`, `ParameterInt` or `ParameterBool`.
[[nodiscard]] bool IsEntry(const Node& node);

// The first child of this name; empty when there is none.
[[nodiscard]] Node ChildNamed(const Node& parent, std::wstring_view name);

// The text of that child; empty when there is none.
[[nodiscard]] std::wstring ChildText(const Node& parent, std::wstring_view name);

// True when a child `Name` of an entry or a link is this one.
[[nodiscard]] bool IsCalled(const Node& element, std::wstring_view parameter);

// The first child of this element name that is called so; empty when there is none.
[[nodiscard]] Node ChildCalled(const Node& parent, std::wstring_view element, std::wstring_view parameter);

// The `Value` of an entry whose `Name`, ahead of it, is the parameter's; empty when it isn't this entry.
[[nodiscard]] Node ValueOfEntry(const Node& entry, std::wstring_view parameter);

// A new entry behind all that `parent` holds; its parts are of the same kind. False when the engine refuses.
[[nodiscard]] bool AppendEntry(const Document& document, const Node& parent, std::wstring_view element,
                               std::wstring_view kind, std::wstring_view parameter, std::wstring_view value);

// Puts `value` into a `Value` and saves, unless it is there already: PGSP_OK, PGSP_ERR_SAME_VALUE, or
// PGSP_ERR_CANT_SET_VALUE for a text that XML can't hold. Whether the file could be saved isn't looked at.
[[nodiscard]] Result ReplaceValue(const Document& document, const std::wstring& file, const Node& valueNode,
                                  std::wstring_view value);

} // namespace norvepa
