#include "xml/OldFolder.h"

#include "support/FileAge.h"
#include "support/TemporaryFolder.h"

#include <optional>

namespace norvepa::test
{

namespace
{

constexpr std::size_t FoldersAtOnce = 64;

class OldFolders
{
public:
    OldFolders()
    {
        for (std::size_t number = 0; number < FoldersAtOnce; ++number)
        {
            for (const std::string name : {"a", "b", "c"})
            {
                WriteBytes(Folder(number) + FromUtf8("\\" + name + ".xml"), "<old-" + name + "/>");
            }
        }
        AwaitAge(Folder(FoldersAtOnce - 1) + L"\\c.xml");
    }

    [[nodiscard]] bool isUsedUp() const { return m_taken == FoldersAtOnce; }
    [[nodiscard]] std::wstring Take() { return Folder(m_taken++); }

private:
    [[nodiscard]] std::wstring Folder(std::size_t number) const { return m_root / std::to_wstring(number); }

    const TemporaryFolder m_root;
    std::size_t m_taken = 0;
};

} // namespace

std::wstring TakeOldFolder()
{
    static std::optional<OldFolders> folders;
    if (!folders || folders->isUsedUp())
    {
        folders.emplace();
    }
    return folders->Take();
}

} // namespace norvepa::test
