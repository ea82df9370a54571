#pragma once

// HKEY_LOCAL_MACHINE of this process, led into a key of its own for as long as the object lives, so
// that tests neither meet each other nor the machine's settings. Children started with the name in
// NORV_TEST_MACHINE_KEY join the same key (see Peer.h).

#include <windows.h>

#include <string>

namespace norvepa::test
{

class RedirectedRegistry
{
public:
    RedirectedRegistry();                                  // a fresh, empty key
    explicit RedirectedRegistry(const std::wstring& name); // an existing one, left behind on destruction
    RedirectedRegistry(const RedirectedRegistry&) = delete;
    RedirectedRegistry& operator=(const RedirectedRegistry&) = delete;
    ~RedirectedRegistry();

    // Below HKEY_CURRENT_USER.
    [[nodiscard]] const std::wstring& name() const { return m_name; }

private:
    void Redirect();

    std::wstring m_name;
    bool m_owned;
};

// Writers below (redirected) HKEY_LOCAL_MACHINE; each makes the key if need be and throws on failure.
void SetMachineText(const std::wstring& key, const std::wstring& name, const std::wstring& text);
void SetMachineValue(const std::wstring& key, const std::wstring& name, DWORD type, const void* data,
                     DWORD size);
void DeleteMachineValue(const std::wstring& key, const std::wstring& name);
void DeleteMachineKey(const std::wstring& key);

} // namespace norvepa::test
