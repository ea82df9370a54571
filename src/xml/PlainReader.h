#pragma once

// A look at the tags and texts of a document's bytes, for a document that an engine has found well-formed
// already: it costs a twentieth of asking the engine node by node.
//
// What it would take an engine to read right isn't read here, and the reader says so: other encodings than
// UTF-8, document types, CDATA, instructions, elements with a prefix, white space rules of a document's own,
// references but the five that XML knows; in a text that is wanted, comments, elements, carriage returns, or
// nothing but white space; and an attribute that is wanted beside one of that name with a prefix.
//
// Callers may rely on: what is read is what the engine answers; no byte beyond the end is looked at, whatever
// the bytes are. Callers must: ask the engine after NotPlain, or after a false. The bytes are lent.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace norvepa
{

class PlainReader
{
public:
    enum class Token
    {
        BeginTag,
        EmptyTag, // which is its own end tag
        EndTag,
        End,
        NotPlain
    };

    explicit PlainReader(std::string_view bytes);

    [[nodiscard]] Token Read();

    // Of the begin or empty tag that was read last.
    [[nodiscard]] std::string_view word() const noexcept { return m_word; }

    // Adds the value of an attribute to `text`, which must be empty; it stays none when there is no such
    // attribute.
    [[nodiscard]] bool ReadAttribute(std::string_view name, std::optional<std::wstring>& text) const;

    // Behind a begin tag: adds the element's text to `text` and goes on to behind its end tag.
    [[nodiscard]] bool ReadText(std::wstring& text);

private:
    [[nodiscard]] bool SkipPrologue();
    [[nodiscard]] bool SkipDeclaration();
    [[nodiscard]] Token ReadBeginTag();
    [[nodiscard]] bool SkipPast(std::string_view mark);

    std::string_view m_rest;
    std::string_view m_word;
    std::string_view m_attributes; // what stands in the tag behind its word
    bool m_isPlain;
};

} // namespace norvepa
