#pragma once

// Log devices made, copied, removed and changed aside through the library: which files are there afterwards,
// and who is told.

#include "exports_device/SetScene.h"
#include "support/CurrentFolder.h"
#include "support/OutputBuffer.h"
#include "support/Peer.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

using Names = std::vector<std::wstring>;

// What stands in front of the names of templates.
inline constexpr wchar_t TemplatePrefix[] = L"Automation-OnlineAccess-LDT-";

inline constexpr unsigned TemporaryNumbers = 255;

// Of a temporary log device; and the room that it needs.
[[nodiscard]] std::wstring TemporaryName(unsigned number);
inline constexpr std::uint32_t TemporaryNameRoom = 28;

// A section Ndi that says whether a log device may be removed and whether it is hidden.
[[nodiscard]] XmlContent Rights(std::wstring_view enableDelete, std::wstring_view hidden);

// What others may do with a file that somebody has open.
enum class Sharing
{
    Reading,
    Nothing,
};

// A file that another process has open for as long as the object lives.
class HeldElsewhere
{
public:
    HeldElsewhere(const StoreRoots& roots, const std::wstring& path, Sharing sharing);

private:
    Peer m_holder;
};

// What MakeTemporary gives when no number could be had.
inline const std::wstring NoNumber = L"(result 8120)";

class LifeScene : public SetScene
{
protected:
    // A name as the file has it, without prefix and extension.
    void WriteTemplate(const std::wstring& fileName, const XmlContent& content) const;

    // A file of the log devices' folder, without extension.
    [[nodiscard]] bool IsThere(const std::wstring& fileName) const;

    // What is made, for calls that succeed; "(result N)" for those that don't.
    [[nodiscard]] std::wstring MakeTemporary(const std::wstring& logDevice = L"Presse") const;
    [[nodiscard]] std::wstring MakeTemporaryFromTemplate(const std::wstring& name) const;

    // Takes the numbers from `first` to the one ahead of `end`.
    void TakeNumbers(unsigned first, unsigned end) const;
};

} // namespace norvepa::test
