// A second process that works with temporary log devices beside the one under test, with a library of its
// own. One command a line, its arguments apart by "|", each answered with one line.

#include "support/LoadedLibrary.h"
#include "support/OutputBuffer.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <iostream>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>

namespace
{

using namespace norvepa::test;

struct Library : LoadedLibrary
{
    decltype(&::LogDeviceCreateTempBL) LogDeviceCreateTempBL = Find("LogDeviceCreateTempBL");
    decltype(&::LogDeviceDelTempBL) LogDeviceDelTempBL = Find("LogDeviceDelTempBL");
    decltype(&::LogDeviceUpdateWithTempBL) LogDeviceUpdateWithTempBL = Find("LogDeviceUpdateWithTempBL");
};

using Command = std::string (*)(const Library&, const std::wstring& arguments);

// LOGDEVICE: the name of one, or the result.
std::string Take(const Library& library, const std::wstring& logDevice)
{
    OutputBuffer name(28);
    const std::int32_t result = library.LogDeviceCreateTempBL(logDevice.c_str(), name.data(), &name.length);
    return result == PGSP_OK ? ToUtf8(name.text()) : std::to_string(result);
}

// LOGDEVICE: the names of all that could be had, and the result that ended it, "|" between them.
std::string TakeAll(const Library& library, const std::wstring& logDevice)
{
    std::string all;
    for (;;)
    {
        const std::string name = Take(library, logDevice);
        all += name;
        if (!name.starts_with("PGSP"))
        {
            return all;
        }
        all += '|';
    }
}

// TEMPLOGDEVICE
std::string Drop(const Library& library, const std::wstring& temporary)
{
    return std::to_string(library.LogDeviceDelTempBL(temporary.c_str()));
}

// TEMPLOGDEVICE|LOGDEVICE
std::string Swap(const Library& library, const std::wstring& names)
{
    const std::size_t bar = names.find(L'|');
    return std::to_string(
        library.LogDeviceUpdateWithTempBL(names.substr(0, bar).c_str(), names.substr(bar + 1).c_str()));
}

std::string Answer(const Library& library, const std::string& line)
{
    static const std::map<std::string, Command> commands{
        {"take", Take}, {"take-all", TakeAll}, {"drop", Drop}, {"swap", Swap}};
    const std::size_t blank = line.find(' ');
    const auto found = commands.find(line.substr(0, blank));
    return found == commands.end() || blank == std::string::npos
               ? "unknown"
               : found->second(library, FromUtf8(line.substr(blank + 1)));
}

} // namespace

int main()
{
    const char* const key = std::getenv("NORV_TEST_MACHINE_KEY");
    const RedirectedRegistry registry(FromUtf8(key == nullptr ? "Software\\NorvepaBl64x.Tests\\peer" : key));
    const Library library;
    for (std::string line; std::getline(std::cin, line);)
    {
        std::cout << Answer(library, line) << std::endl;
    }
}
