#pragma once

// Standard output for bytes that arrive as they are: without it a line feed becomes two characters.

#include <string_view>

namespace norvctl
{

// One for a process, which answers with nothing else.
class RawOutput
{
public:
    RawOutput();

    void Write(std::string_view bytes); // throws when nobody takes them
    void EndLine();                     // ends with a line feed, if that isn't the last byte

private:
    char m_last = '\0';
};

} // namespace norvctl
