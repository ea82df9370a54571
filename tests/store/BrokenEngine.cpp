#include "store/BrokenEngine.h"

#include <objbase.h>

#include <algorithm>
#include <utility>

namespace norvepa::test
{

namespace
{

std::vector<HRESULT> results;
int objectsThatAreGiven = 0;
int objectsAskedFor = 0;

HRESULT WINAPI Create(REFCLSID classId, IUnknown* outer, DWORD context, REFIID interfaceId, void** object)
{
    // Not by its name here, which leads back to this function.
    static const auto createInstance = reinterpret_cast<decltype(&CoCreateInstance)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ole32.dll"), "CoCreateInstance")));
    const int refusal = objectsAskedFor++ - objectsThatAreGiven;
    if (refusal < 0)
    {
        return createInstance(classId, outer, context, interfaceId, object);
    }
    *object = nullptr;
    return results.at(std::min(static_cast<std::size_t>(refusal), results.size() - 1));
}

} // namespace

BrokenEngine::BrokenEngine(std::vector<HRESULT> refusals, int objectsBefore)
    : m_hook("CoCreateInstance", Create)
{
    results = std::move(refusals);
    objectsThatAreGiven = objectsBefore;
    objectsAskedFor = 0;
}

int BrokenEngine::asked() const
{
    return objectsAskedFor;
}

} // namespace norvepa::test
