#pragma once

// A document of the DOM engine: created empty, or loaded as a whole, walked, changed and saved.
//
// Callers may rely on: nothing is loaded asynchronously, and no DTD or schema location is followed to other
// files. What the document doesn't change it saves: comments, processing instructions, other namespaces. An
// engine without memory throws std::bad_alloc, whatever it is asked for: its own object, a load, a save.
// Callers must: have COM on their thread, and create the document before anything else is asked of it.

#include "frame/Result.h"
#include "xml/Node.h"

#include <msxml2.h>
#include <wrl/client.h>

#include <optional>
#include <string>
#include <string_view>

namespace norvepa
{

class Document
{
public:
    // S_OK, or why there is no engine: CO_E_NOTINITIALIZED on a thread without COM.
    [[nodiscard]] HRESULT Create();

    // Accepts whatever is well-formed, follows nothing and keeps all white space: what a schema and a
    // document to be validated need ahead of their load.
    void LoadAsItStands();

    // True when the engine has read all of the file, at once, and found it well-formed.
    [[nodiscard]] bool Load(const std::wstring& file);
    [[nodiscard]] bool LoadBytes(std::string_view bytes); // the same of a file's content

    // The same by the engine's own hands, which then knows where the file lies: a schema may name its
    // neighbours.
    [[nodiscard]] bool LoadWithNeighbours(const std::wstring& file);

    // What the engine saves, in memory; none when it refuses.
    [[nodiscard]] std::optional<std::string> Bytes() const;

    // The same, and then at once in the place of what the file holds (see win/WholeFile.h).
    [[nodiscard]] bool Save(const std::wstring& file) const;

    [[nodiscard]] Node Root() const;

    // All elements below the root, in document order; none when there is no root.
    [[nodiscard]] ElementRange Elements() const;

    // A new element that stands nowhere yet; with an empty `namespaceUri` it has no namespace. Empty for a
    // name that isn't one.
    [[nodiscard]] Node CreateElement(std::wstring_view name, std::wstring_view namespaceUri) const;

    [[nodiscard]] Node CreateComment(std::wstring_view text) const;
    [[nodiscard]] Node CreateInstruction(std::wstring_view target, std::wstring_view text) const;
    [[nodiscard]] bool Append(const Node& child) const; // behind all that the document holds

    [[nodiscard]] IXMLDOMDocument2* get() const noexcept { return m_document.Get(); }

private:
    [[nodiscard]] bool LoadFrom(VARIANT source);
    void CheckParseError() const;

    Microsoft::WRL::ComPtr<IXMLDOMDocument2> m_document;
};

} // namespace norvepa
