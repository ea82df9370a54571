#pragma once

// A key of the machine's own registry, lent to a test: emptied when the object is made, and put back as it
// was when it goes. For programs that are started and can't be led elsewhere; tests that link or load the
// library redirect their own registry instead (see RedirectedRegistry.h).
//
// Callers must: hold the lock "trace", as two tests at once would lend the same key, and not redirect their
// registry meanwhile.

#include <windows.h>

#include <string>
#include <vector>

namespace norvepa::test
{

class MachineKey
{
public:
    explicit MachineKey(const std::wstring& path); // below HKEY_LOCAL_MACHINE
    MachineKey(const MachineKey&) = delete;
    MachineKey& operator=(const MachineKey&) = delete;
    ~MachineKey();

    void Set(const std::wstring& name, const std::wstring& text) const;

    // What a value holds now; empty when there is none.
    [[nodiscard]] std::wstring Get(const std::wstring& name) const;

private:
    struct Value
    {
        std::wstring name;
        DWORD type;
        std::vector<BYTE> data;
    };

    std::wstring m_path;
    std::vector<Value> m_saved;
};

} // namespace norvepa::test
