#include "notify/NotifyRegistration.h"

#include "frame/Text.h"
#include "win/Undestroyed.h"

#include <cstdint>
#include <mutex>
#include <utility>

namespace norvepa
{

constinit win::Mutex notifyRegisterMutex;

namespace
{

// Emptied when the module goes, and not touched when the process ends.
constinit win::Undestroyed<std::unique_ptr<NotifyRegisterList>> registerList;

} // namespace

constinit std::unique_ptr<NotifyRegisterList>& notifyRegisterList = registerList.get();

template <std::size_t Width>
bool TextField<Width>::Matches(std::wstring_view text) const noexcept
{
    return EqualNoCase(view(), text, Width);
}

template class TextField<128>;
template class TextField<256>;
template class TextField<64>;

bool NotifyRegistration::IsFor(std::wstring_view folderName, std::wstring_view fileName) const noexcept
{
    return FolderName.Matches(folderName) && (FileName.empty() || FileName.Matches(fileName));
}

void AddRegistration(std::unique_ptr<NotifyRegistration> registration)
{
    if (notifyRegisterList)
    {
        notifyRegisterList->push_back(std::move(registration));
        return;
    }
    // Filled before it is the list: an empty one must not stay when memory runs out.
    auto list = std::make_unique<NotifyRegisterList>();
    list->push_back(std::move(registration));
    notifyRegisterList = std::move(list);
}

void RemoveRegistration(const NotifyRegistration* registration)
{
    std::erase_if(*notifyRegisterList, [=](const auto& each) { return each.get() == registration; });
    if (notifyRegisterList->empty())
    {
        notifyRegisterList.reset();
    }
}

unsigned TraceAddress(const NotifyRegistration* registration) noexcept
{
    return static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(registration));
}

void FreeNotifyRegistrations()
{
    const std::lock_guard lock(notifyRegisterMutex);
    notifyRegisterList.reset();
}

} // namespace norvepa
