#include "support/LoadedLibrary.h"

#include <filesystem>
#include <stdexcept>

namespace norvepa::test
{

std::wstring LibraryPath()
{
    std::wstring program(1024, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return std::filesystem::path(program).replace_filename(L"NorvepaBl64x.dll").wstring();
}

LoadedLibrary::LoadedLibrary() : m_module(LoadLibraryW(LibraryPath().c_str()))
{
    if (m_module == nullptr)
    {
        throw std::runtime_error("NorvepaBl64x.dll can't be loaded: " + std::to_string(GetLastError()));
    }
}

LoadedLibrary::~LoadedLibrary()
{
    FreeLibrary(m_module);
}

LoadedLibrary::Address LoadedLibrary::Find(const char* name) const
{
    const FARPROC address = GetProcAddress(m_module, name);
    if (address == nullptr)
    {
        throw std::runtime_error(std::string("no export ") + name);
    }
    return Address(address);
}

} // namespace norvepa::test
