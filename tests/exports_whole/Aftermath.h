#pragma once

// What a writer that was killed has left of a store: whether each file that there was at first is whole, and
// what lies beside, counted by its kind. What isn't as it ought to be is mended, so that the next may come.

#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"

#include <map>
#include <string>
#include <vector>

namespace norvepa::test
{

class Aftermath
{
public:
    // Of the store as it stands.
    Aftermath(const StoreRoots& roots, const Exports& library);

    void LookAround(const std::string& occasion);

    // What must not be, each with its occasion.
    void AddFaults(const std::string& occasion, const std::vector<std::string>& faults);
    [[nodiscard]] const std::vector<std::string>& faults() const { return m_faults; }

    // What may be, by its kind: "3 times a (temp) form, empty; ..."
    [[nodiscard]] std::string met() const;

private:
    void CountWhatLiesBeside();
    void PutTemporaryInPlace();
    void LookAtFiles(const std::string& occasion);
    void AskTheExports(const std::string& occasion);
    void DropTemporaryDevices(const std::string& occasion);

    [[nodiscard]] std::vector<std::wstring> filesBeside() const;

    const StoreRoots& m_roots;
    const Exports& m_library;
    std::map<std::wstring, std::string> m_files; // those of the beginning, with their bytes
    std::map<std::string, unsigned> m_met;
    std::vector<std::string> m_faults;
};

} // namespace norvepa::test
