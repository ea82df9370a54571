#include "Console.h"

#include "Text.h"

#include <windows.h>
#include <iostream>

#include <string>

namespace norvctl
{

namespace
{

constexpr std::size_t UsualWidth = 80;

bool IsConsole(HANDLE stream)
{
    DWORD mode = 0;
    return GetConsoleMode(stream, &mode) != 0;
}

// How many bytes at the end of a text are the beginning of a character whose rest is still to come.
std::size_t UnfinishedBytes(const std::string& utf8)
{
    constexpr std::size_t LongestCharacter = 4;
    for (std::size_t count = 1; count <= LongestCharacter && count <= utf8.size(); ++count)
    {
        const auto byte = static_cast<unsigned char>(utf8[utf8.size() - count]);
        if (byte < 0x80)
        {
            return 0;
        }
        if (byte >= 0xC0) // the first byte of a character
        {
            const std::size_t length = byte >= 0xF0 ? 4U : byte >= 0xE0 ? 3U : 2U;
            return length > count ? count : 0;
        }
    }
    return 0;
}

// Collects UTF-8 and hands whole characters to a console.
class ConsoleBuffer : public std::streambuf
{
public:
    explicit ConsoleBuffer(HANDLE console) : m_console(console) {}
    ConsoleBuffer(const ConsoleBuffer&) = delete;
    ConsoleBuffer& operator=(const ConsoleBuffer&) = delete;
    ~ConsoleBuffer() override { Flush(); }

protected:
    int_type overflow(int_type character) override
    {
        if (character != traits_type::eof())
        {
            m_text += traits_type::to_char_type(character);
            FlushWhenLong();
        }
        return traits_type::not_eof(character);
    }

    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        m_text.append(text, static_cast<std::size_t>(count));
        FlushWhenLong();
        return count;
    }

    int sync() override
    {
        Flush();
        return 0;
    }

private:
    void FlushWhenLong()
    {
        constexpr std::size_t Long = 4096; // what a console takes at once is limited
        if (m_text.size() >= Long)
        {
            Flush();
        }
    }

    void Flush()
    {
        const std::size_t whole = m_text.size() - UnfinishedBytes(m_text);
        const std::wstring wide = ToWide(std::string_view(m_text).substr(0, whole));
        m_text.erase(0, whole);
        std::wstring_view rest = wide;
        while (!rest.empty())
        {
            DWORD written = 0;
            if (WriteConsoleW(m_console, rest.data(), static_cast<DWORD>(rest.size()), &written, nullptr) ==
                    0 ||
                written == 0)
            {
                return;
            }
            rest.remove_prefix(written);
        }
    }

    HANDLE m_console;
    std::string m_text;
};

std::unique_ptr<std::streambuf> BufferFor(std::ostream& stream, DWORD which)
{
    const HANDLE handle = GetStdHandle(which);
    if (!IsConsole(handle))
    {
        return nullptr;
    }
    auto buffer = std::make_unique<ConsoleBuffer>(handle);
    stream.rdbuf(buffer.get());
    return buffer;
}

} // namespace

ConsoleStreams::ConsoleStreams() : m_plainOutput(std::cout.rdbuf()), m_plainError(std::cerr.rdbuf())
{
    m_output = BufferFor(std::cout, STD_OUTPUT_HANDLE);
    m_error = BufferFor(std::cerr, STD_ERROR_HANDLE);
}

ConsoleStreams::~ConsoleStreams()
{
    std::cout.flush();
    std::cerr.flush();
    std::cout.rdbuf(m_plainOutput);
    std::cerr.rdbuf(m_plainError);
}

bool IsOutputConsole()
{
    return IsConsole(GetStdHandle(STD_OUTPUT_HANDLE));
}

bool IsErrorConsole()
{
    return IsConsole(GetStdHandle(STD_ERROR_HANDLE));
}

std::size_t ConsoleWidth()
{
    for (const DWORD which : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE})
    {
        CONSOLE_SCREEN_BUFFER_INFO info{};
        if (GetConsoleScreenBufferInfo(GetStdHandle(which), &info) != 0)
        {
            const int columns = info.srWindow.Right - info.srWindow.Left + 1;
            return columns > 0 ? static_cast<std::size_t>(columns) : UsualWidth;
        }
    }
    return UsualWidth;
}

} // namespace norvctl
