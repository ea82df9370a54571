// Prints values of a log name, whatever their lengths: client_cpp LOGNAME PARAMETER...
#include "norvepa.h"

#include <cstdio>
#include <string>
#include <system_error>

namespace
{

std::wstring Value(const wchar_t* logName, const wchar_t* parameter)
{
    std::wstring value(64, L'\0');
    for (;;)
    {
        // The terminator behind the string's own characters is room that the buffer offers too.
        auto length = static_cast<uint32_t>(value.size() + 1);
        const int32_t result = LogNameGetValueBL(logName, parameter, value.data(), &length);
        if (result != PGSP_OK && (result != PGSP_ERR_BUFFER_TOO_SHORT || length <= value.size()))
        {
            throw std::system_error(result, std::generic_category(), "LogNameGetValueBL");
        }
        value.resize(length);
        if (result == PGSP_OK)
        {
            return value;
        }
    }
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    try
    {
        for (int i = 2; i < argc; ++i)
        {
            std::printf("%ls = %ls\n", argv[i], Value(argv[1], argv[i]).c_str());
        }
        return 0;
    }
    catch (const std::system_error& error)
    {
        std::fprintf(stderr, "result %d\n", error.code().value());
        return 1;
    }
}
