#include "xml/FileLooks.h"

#include <xmllite.h>

#include <algorithm>
#include <vector>

namespace norvepa::test
{

namespace
{

std::size_t made = 0;
std::vector<std::wstring> opened;

// Not by its name here, which leads back to what stands in its place.
template <typename Function>
Function* Original(const wchar_t* library, const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

HRESULT WINAPI MakeEngine(const IID& interfaceId, void** engine, IMalloc* memory)
{
    static auto* const original = Original<decltype(CreateXmlReader)>(L"xmllite.dll", "CreateXmlReader");
    ++made;
    return original(interfaceId, engine, memory);
}

HANDLE WINAPI Open(const wchar_t* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                   DWORD disposition, DWORD flags, HANDLE model)
{
    static auto* const original = Original<decltype(CreateFileW)>(L"kernel32.dll", "CreateFileW");
    opened.emplace_back(path);
    return original(path, access, sharing, security, disposition, flags, model);
}

} // namespace

FileLooks::FileLooks() : m_engine("CreateXmlReader", &MakeEngine), m_file("CreateFileW", &Open)
{
    made = 0;
    opened.clear();
}

std::size_t FileLooks::engines()
{
    return made;
}

std::size_t FileLooks::openings()
{
    return opened.size();
}

std::size_t FileLooks::openingsOf(const std::wstring& path)
{
    return static_cast<std::size_t>(std::count(opened.begin(), opened.end(), path));
}

} // namespace norvepa::test
