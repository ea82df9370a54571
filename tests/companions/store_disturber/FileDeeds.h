#pragma once

// What may befall the files of a store without anybody asking the library: they are replaced, cut, broken,
// held, protected and removed, and strange ones appear.

#include "endurance/Draw.h"

#include <filesystem>
#include <vector>

namespace norvepa::test
{

class FileDeeds
{
public:
    FileDeeds(std::filesystem::path store, std::filesystem::path originals);

    // To one file or another. What the system refuses, because somebody reads the file, say, isn't done.
    void DoOne(Draw& any) const;

    // The store as it was. Throws when somebody uses it.
    void Heal() const;

private:
    std::filesystem::path m_store;
    std::filesystem::path m_originals;
    std::vector<std::filesystem::path> m_files; // below both
};

} // namespace norvepa::test
