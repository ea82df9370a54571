#pragma once

// The two roots of a store, empty, in a folder of this test's own and named by the redirected registry:
// what nearly every test of a file or an export stands on.

#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <string>

namespace norvepa::test
{

inline const std::wstring LocationsKey = L"SOFTWARE\\Marvolt\\Shared Tools\\NorvDOS64";
inline const std::wstring TraceKey = L"Software\\MARVOLT\\DRAVIK\\TrcParams";

class StoreRoots
{
public:
    StoreRoots();

    [[nodiscard]] std::wstring data() const { return m_folder / L"data-root"; }
    [[nodiscard]] std::wstring program() const { return m_folder / L"program-root"; }
    [[nodiscard]] std::wstring logName(const std::wstring& fileName) const;   // path of a log name's file
    [[nodiscard]] std::wstring logDevice(const std::wstring& fileName) const; // path of a log device's file
    [[nodiscard]] std::wstring board(const std::wstring& id) const;           // paths of catalogue files
    [[nodiscard]] std::wstring protocol(const std::wstring& name) const;
    [[nodiscard]] std::wstring deviceTemplate(const std::wstring& name) const;

    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }
    [[nodiscard]] const RedirectedRegistry& registry() const { return m_registry; }

    // Our sample store, copied into the two roots.
    void FillWithSampleStore() const;

private:
    RedirectedRegistry m_registry;
    TemporaryFolder m_folder;
};

} // namespace norvepa::test
