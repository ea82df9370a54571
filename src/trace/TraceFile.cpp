#include "trace/TraceFile.h"

#include "trace/TraceRecord.h"
#include "trace/TraceSettings.h"
#include "win/Handle.h"

#include <windows.h>

#include <optional>

namespace norvepa
{

namespace
{

// Room for the base, a number and the extension. The base is the user's and is never a format itself.
using FileName = FixedText<530>;

FileName NameOf(std::string_view base, int number) noexcept
{
    FileName name(base);
    name.Append(number == 1 ? "1" : "2");
    name.Append(".TRC");
    return name;
}

int OtherThan(int number) noexcept
{
    return 3 - number;
}

std::optional<FILETIME> ModificationTime(const FileName& name) noexcept
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExA(name.c_str(), GetFileExInfoStandard, &data) == 0)
    {
        return std::nullopt;
    }
    return data.ftLastWriteTime;
}

// A file open at its end. Opening makes it if need be.
class Appendix
{
public:
    Appendix() noexcept = default;
    explicit Appendix(const FileName& name) noexcept
        : m_file(CreateFileA(name.c_str(), FILE_APPEND_DATA | SYNCHRONIZE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                             nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }

    [[nodiscard]] std::optional<std::int64_t> Size() const noexcept
    {
        LARGE_INTEGER size{};
        if (!m_file || GetFileSizeEx(m_file.get(), &size) == 0)
        {
            return std::nullopt;
        }
        return size.QuadPart;
    }

    [[nodiscard]] bool IsOver(std::int64_t limit) const noexcept { return Size().value_or(0) > limit; }

    void Append(std::string_view text) const noexcept
    {
        DWORD written = 0;
        WriteFile(m_file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    }

    void Close() noexcept { m_file = win::Handle(); }

private:
    win::Handle m_file;
};

} // namespace

void TraceFile::Choose(std::string_view base) noexcept
{
    const auto first = ModificationTime(NameOf(base, 1));
    const auto second = ModificationTime(NameOf(base, 2));
    if (!first || !second)
    {
        m_number = second ? 2 : 1;
        return;
    }
    m_number = CompareFileTime(&*first, &*second) >= 0 ? 1 : 2;
}

void TraceFile::Write(std::string_view base, std::int64_t bytesPerFile, std::string_view line) noexcept
{
    Appendix file(NameOf(base, m_number));
    if (file.IsOver(bytesPerFile))
    {
        m_number = OtherThan(m_number);
        file = Appendix(NameOf(base, m_number));
    }
    if (file.IsOver(bytesPerFile))
    {
        m_number = OtherThan(m_number);
        file.Close();
        DeleteFileA(NameOf(base, m_number).c_str());
        file = Appendix(NameOf(base, m_number));
    }
    if (!file.Size())
    {
        return;
    }

    FixedText<TraceLineLimit + 1> text(line);
    text.Append("\n");
    file.Append(text.view());
    if (!file.IsOver(bytesPerFile))
    {
        return;
    }

    file.Close();
    m_number = OtherThan(m_number);
    const FileName next = NameOf(base, m_number);
    Appendix other(next);
    const bool otherIsOver = other.IsOver(bytesPerFile);
    other.Close();
    if (otherIsOver)
    {
        DeleteFileA(next.c_str());
    }
}

} // namespace norvepa
