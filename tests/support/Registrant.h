#pragma once

// One who has registered for changes with a loaded library, and waits.

#include "support/LoadedLibrary.h"
#include "support/NamedEvent.h"
#include "support/Workers.h"

#include <stdexcept>

namespace norvepa::test
{

class Registrant
{
public:
    // For all files of a folder word unless one is named. Throws when the library refuses. `workers` are the
    // library's, and have to outlive this.
    Registrant(const Exports& library, const Workers& workers, const wchar_t* folderWord,
               const wchar_t* file = nullptr)
        : m_workers(workers)
    {
        if (library.RegisterNotification(folderWord, file, m_event.c_str()) != PGSP_OK)
        {
            throw std::runtime_error("the event isn't registered");
        }
    }

    // Whether a change has been told since this was asked last, once all that is being told has been.
    [[nodiscard]] bool IsTold() const
    {
        m_workers.Await();
        return m_event.IsSet();
    }

private:
    const Workers& m_workers;
    const NamedEvent m_event;
};

} // namespace norvepa::test
