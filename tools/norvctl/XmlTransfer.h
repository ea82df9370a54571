#pragma once

// The files of the store as the library hands them out, to whom can't read them himself: without what stands
// blank between the tags.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace norvctl
{

struct XmlKind
{
    std::uint16_t number; // as the library takes it
    const char* what;     // one of them, for a message
};

inline constexpr XmlKind NameXml{1, "log name"};
inline constexpr XmlKind DeviceXml{2, "log device"};
inline constexpr XmlKind BoardXml{3, "board"};
inline constexpr XmlKind TemplateXml{4, "template"};
inline constexpr XmlKind ProtocolXml{5, "protocol"};

// Gives the bytes of a file to `take`, a piece at a time. Throws when there is no such file or it can't be
// read.
void TransferXml(const XmlKind& kind, const std::string& object,
                 const std::function<void(std::string_view)>& take);

// All of them at once.
[[nodiscard]] std::string ReadXml(const XmlKind& kind, const std::string& object);

} // namespace norvctl
