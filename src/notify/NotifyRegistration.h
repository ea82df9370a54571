#pragma once

// The registrations for notification: who wants which named event set when which file changes.
//
// The list exists while it has entries. It, its records and the pointer to it belong to whoever holds
// notifyRegisterMutex; no other lock is taken meanwhile but the trace's.

#include "win/Mutex.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

// Text of a fixed width, cut at it; as long as the field it has no terminator.
template <std::size_t Width>
class TextField
{
public:
    TextField() noexcept = default;
    explicit TextField(std::wstring_view text) noexcept
    {
        const std::wstring_view cut = text.substr(0, Width);
        cut.copy(m_text.data(), cut.size());
    }

    [[nodiscard]] std::wstring_view view() const noexcept
    {
        const std::wstring_view whole(m_text.data(), Width);
        return whole.substr(0, whole.find(L'\0'));
    }
    [[nodiscard]] bool empty() const noexcept { return m_text.front() == L'\0'; }
    [[nodiscard]] bool Matches(std::wstring_view text) const noexcept;

private:
    std::array<wchar_t, Width> m_text{};
};

struct NotifyRegistration
{
    TextField<128> FolderName;
    TextField<256> FileName; // empty when every file of the folder is meant
    TextField<64> EventName;

    // True for a change of this file of this folder.
    [[nodiscard]] bool IsFor(std::wstring_view folderName, std::wstring_view fileName) const noexcept;
};

using NotifyRegisterList = std::vector<std::unique_ptr<NotifyRegistration>>;

extern constinit win::Mutex notifyRegisterMutex;
extern std::unique_ptr<NotifyRegisterList>& notifyRegisterList; // in the order of registration

// Puts a record behind the others, and makes the list for the first. Under the mutex.
void AddRegistration(std::unique_ptr<NotifyRegistration> registration);

// Takes a record out of the list and frees it, and the list when that was the last. Under the mutex.
void RemoveRegistration(const NotifyRegistration* registration);

// The low half of a record's address: enough to tell records apart in a trace.
[[nodiscard]] unsigned TraceAddress(const NotifyRegistration* registration) noexcept;

// Frees all that is registered. Workers that come later find nothing.
void FreeNotifyRegistrations();

} // namespace norvepa
