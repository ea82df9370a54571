#pragma once

// A page of HTML as it is written. Every text and every attribute is escaped; nothing of the store can become
// markup.

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace norvctl::report
{

// For texts and for attributes in double quotes.
[[nodiscard]] std::string Escaped(std::string_view text);

// A part of an address behind "#", of letters, digits, hyphens and underscores alone; different names have
// different ones.
[[nodiscard]] std::string AsAnchor(std::string_view name);

class Html
{
public:
    using Attributes = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    Html& Open(std::string_view tag, Attributes attributes = {});
    Html& Close(std::string_view tag);
    Html& Text(std::string_view text);
    Html& Element(std::string_view tag, std::string_view text, Attributes attributes = {});

    // As it stands: for our own style and script alone, which have no other way in.
    Html& Verbatim(std::string_view ours);

    [[nodiscard]] const std::string& Page() const { return m_page; }

private:
    std::string m_page;
};

} // namespace norvctl::report
