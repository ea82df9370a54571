#pragma once

// What a value of a parameter holds in a protocol's file: the pairs that it gives to other parameters, and
// the parameters below it.
//
// Each question is answered by the file as it is now; it is loaded again only when it may have changed since,
// so that a walk over a profile costs one load. Needs COM on its thread, which it must not leave; an
// exception is the walk's end.

#include "frame/Result.h"
#include "win/FileStamp.h"
#include "xml/Document.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

class ProfileWalk
{
public:
    ProfileWalk(const wchar_t* filePath, std::wstring_view parameter, std::wstring_view value);
    ProfileWalk(const ProfileWalk&) = delete;
    ProfileWalk& operator=(const ProfileWalk&) = delete;
    ~ProfileWalk() = default;

    // The entry, or the parameter's section, that is the child of this index or the first behind it; all
    // children count, comments too. PGSP_OK, PGSP_ERR_NO_MORE_ITEMS, or the codes of a document's load; the
    // outputs are untouched but for the first.
    [[nodiscard]] Result EntryAt(std::uint32_t index, std::wstring& name, std::wstring& text);
    [[nodiscard]] Result SubParameterAt(std::uint32_t index, std::wstring& subParameter);

private:
    using IsWanted = bool (*)(const Node& child);

    [[nodiscard]] Result Load();
    [[nodiscard]] bool FindMore();

    // Counting from 0 in every section of the value, whatever the children are; empty when there is none.
    [[nodiscard]] Node ChildAt(std::uint32_t index, IsWanted isWanted);

    const std::wstring m_file;
    const std::wstring m_parameter;
    const std::wstring m_value;
    std::optional<win::FileStamp> m_stamp; // of the file that is loaded; none when that can't be told again
    Document m_document;
    ElementRange::Iterator m_next{Node()}; // the element that is looked at next
    std::vector<Node> m_profiles;          // the sections of the value ahead of it
};

} // namespace norvepa
