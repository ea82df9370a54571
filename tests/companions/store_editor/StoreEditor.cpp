// A second process that changes the files of a store behind the back of the one under test: by itself, or
// with a library of its own. One command a line, its arguments apart by "|", each answered with one line,
// "done" if all is well.

#include "support/FileWriter.h"
#include "support/LoadedLibrary.h"
#include "support/OpenFile.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <windows.h>
#include <iostream>

#include <cstdlib>
#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using namespace norvepa::test;

using Arguments = std::vector<std::wstring>;
using Command = void (*)(const Arguments&);

std::optional<norvepa::test::OpenFile> held; // there is another in windows.h
std::unique_ptr<Exports> library;

const Exports& Library()
{
    if (!library)
    {
        library = std::make_unique<Exports>();
    }
    return *library;
}

void Require(bool isDone, const std::string& what)
{
    if (!isDone)
    {
        throw std::runtime_error(what);
    }
}

void RequireOk(std::int32_t result)
{
    Require(result == PGSP_OK, "result " + std::to_string(result));
}

// FROM, TO: the bytes of one over those of the other, which is as long.
void Overwrite(const Arguments& paths)
{
    FileWriter(paths.at(1)).Write(ReadBytes(paths.at(0)));
}

// FROM, TO: one file in the other's place.
void Replace(const Arguments& paths)
{
    Require(MoveFileExW(paths.at(0).c_str(), paths.at(1).c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE,
            "error " + std::to_string(GetLastError()));
}

// PATH: shared with nobody, until the release.
void Hold(const Arguments& paths)
{
    held.emplace(paths.at(0), 0);
}

void Release(const Arguments&)
{
    held.reset();
}

// LOGDEVICE, PARAMETER, VALUE
void SetDevice(const Arguments& arguments)
{
    RequireOk(Library().LogDeviceSetValueBL(arguments.at(0).c_str(), arguments.at(1).c_str(),
                                            arguments.at(2).c_str()));
}

// LOGNAME, PARAMETER, VALUE
void SetName(const Arguments& arguments)
{
    RequireOk(Library().LogNameSetValueBL(arguments.at(0).c_str(), arguments.at(1).c_str(),
                                          arguments.at(2).c_str()));
}

// TEMPLOGDEVICE, LOGDEVICE
void Swap(const Arguments& arguments)
{
    RequireOk(Library().LogDeviceUpdateWithTempBL(arguments.at(0).c_str(), arguments.at(1).c_str()));
}

Arguments Split(const std::string& text)
{
    Arguments arguments;
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, '|');)
    {
        arguments.push_back(FromUtf8(part));
    }
    return arguments;
}

void Obey(const std::string& line)
{
    static const std::map<std::string, Command> commands{
        {"overwrite", Overwrite},  {"replace", Replace},  {"hold", Hold}, {"release", Release},
        {"set-device", SetDevice}, {"set-name", SetName}, {"swap", Swap},
    };
    const std::string word = line.substr(0, line.find(' '));
    const auto found = commands.find(word);
    Require(found != commands.end(), "unknown");
    found->second(Split(line.size() > word.size() ? line.substr(word.size() + 1) : ""));
}

} // namespace

int main()
{
    const char* const key = std::getenv("NORV_TEST_MACHINE_KEY");
    const RedirectedRegistry registry(FromUtf8(key == nullptr ? "Software\\NorvepaBl64x.Tests\\peer" : key));
    for (std::string line; std::getline(std::cin, line);)
    {
        try
        {
            Obey(line);
            std::cout << "done" << std::endl;
        }
        catch (const std::exception& exception)
        {
            std::cout << "failed: " << exception.what() << std::endl;
        }
    }
    held.reset();
    library.reset();
}
