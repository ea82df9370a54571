#pragma once

// What is told to the event log while the object lives, one line a call. The log itself keeps nothing that
// could be read back under Wine, so the calls stand for it.

#include "support/ImportHook.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace norvepa::test
{

class EventLogEntries
{
public:
    EventLogEntries() { told().clear(); }

    [[nodiscard]] static std::vector<std::string>& told()
    {
        static std::vector<std::string> entries;
        return entries;
    }

private:
    static HANDLE WINAPI Register(const wchar_t* server, const wchar_t* source)
    {
        told().push_back("register " + ToUtf8(source) + (server == nullptr ? "" : " elsewhere"));
        return reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(42));
    }

    static BOOL WINAPI Report(HANDLE source, WORD type, WORD category, DWORD id, void*, WORD count, DWORD,
                              const char** strings, void*)
    {
        std::ostringstream entry;
        entry << "report " << reinterpret_cast<std::uintptr_t>(source) << " " << type << " " << category
              << " " << std::hex << id;
        for (WORD index = 0; index < count; ++index)
        {
            entry << " [" << strings[index] << "]";
        }
        told().push_back(entry.str());
        return TRUE;
    }

    static BOOL WINAPI Deregister(HANDLE source)
    {
        told().push_back("deregister " + std::to_string(reinterpret_cast<std::uintptr_t>(source)));
        return TRUE;
    }

    ImportHook m_register{"RegisterEventSourceW", Register};
    ImportHook m_report{"ReportEventA", Report};
    ImportHook m_deregister{"DeregisterEventSource", Deregister};
};

} // namespace norvepa::test
