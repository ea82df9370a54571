// A second process beside the one under test: it changes folders, owns named events, and registers with a
// library of its own. One command a line, its arguments apart by "|", each answered with one line.

#include "norvepa.h"
#include "support/LoadedLibrary.h"
#include "support/NamedEvent.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <windows.h>
#include <iostream>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace
{

using namespace norvepa::test;
namespace fs = std::filesystem;

using Arguments = std::vector<std::wstring>;
using Command = std::function<std::string(const Arguments&)>;

struct Library : LoadedLibrary
{
    decltype(&::LogNameSetValueBL) LogNameSetValueBL = Find("LogNameSetValueBL");
    decltype(&::RegisterNotification) RegisterNotification = Find("RegisterNotification");
};

std::map<std::wstring, std::unique_ptr<NamedEvent>> events;
std::unique_ptr<Library> library;

std::string Create(const Arguments& paths)
{
    for (const std::wstring& path : paths)
    {
        WriteBytes(path, "");
    }
    return "done";
}

std::string Remove(const Arguments& paths)
{
    for (const std::wstring& path : paths)
    {
        fs::remove_all(path);
    }
    return "done";
}

std::string Rename(const Arguments& paths)
{
    fs::rename(paths.at(0), paths.at(1));
    return "done";
}

std::string Append(const Arguments& paths)
{
    std::ofstream(fs::path(paths.at(0)), std::ios::app) << "more";
    return "done";
}

// Others have each file of a storm open for a moment.
void RemoveWhenNobodyReads(const fs::path& path)
{
    std::error_code error;
    while (!fs::remove(path, error) && error.value() == ERROR_SHARING_VIOLATION)
    {
        std::this_thread::yield();
    }
    if (error)
    {
        throw fs::filesystem_error("cannot remove", path, error);
    }
}

// FOLDER, PREFIX, COUNT: so many files made, and every other one removed again.
std::string Storm(const Arguments& arguments)
{
    const int count = std::stoi(arguments.at(2));
    for (int i = 0; i < count; ++i)
    {
        const std::wstring path = arguments[0] + L"\\" + arguments[1] + std::to_wstring(i) + L".xml";
        WriteBytes(path, "");
        if (i % 2 != 0)
        {
            RemoveWhenNobodyReads(path);
        }
    }
    return "done";
}

std::string Event(const Arguments& names)
{
    events[names.at(0)] = std::make_unique<NamedEvent>(names[0]);
    return "done";
}

std::string Close(const Arguments& names)
{
    events.erase(names.at(0));
    return "done";
}

std::string Await(const Arguments& names)
{
    return events.at(names.at(0))->Await() ? "set" : "not set";
}

std::string Peek(const Arguments& names)
{
    return events.at(names.at(0))->IsSet() ? "set" : "not set";
}

std::string Load(const Arguments&)
{
    library = std::make_unique<Library>();
    return "done";
}

// FOLDER, FILE, EVENT
std::string Register(const Arguments& arguments)
{
    return std::to_string(library->RegisterNotification(arguments.at(0).c_str(), arguments.at(1).c_str(),
                                                        arguments.at(2).c_str()));
}

// LOGNAME, PARAMETER, VALUE
std::string Set(const Arguments& arguments)
{
    return std::to_string(library->LogNameSetValueBL(arguments.at(0).c_str(), arguments.at(1).c_str(),
                                                     arguments.at(2).c_str()));
}

// LOGNAME, COUNT: so many changes, and the process ends while they are being announced.
std::string ChangeAndEnd(const Arguments& arguments)
{
    const int count = std::stoi(arguments.at(1));
    for (int i = 0; i < count; ++i)
    {
        if (library->LogNameSetValueBL(arguments[0].c_str(), L"Station", std::to_wstring(i).c_str()) != 0)
        {
            ExitProcess(1);
        }
    }
    ExitProcess(0);
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

std::string Answer(const std::string& line)
{
    static const std::map<std::string, Command> commands{
        {"create", Create},    {"remove", Remove}, {"rename", Rename}, {"append", Append},
        {"storm", Storm},      {"event", Event},   {"close", Close},   {"await", Await},
        {"peek", Peek},        {"load", Load},     {"set", Set},       {"register", Register},
        {"end", ChangeAndEnd},
    };
    const std::string word = line.substr(0, line.find(' '));
    const auto found = commands.find(word);
    if (found == commands.end())
    {
        return "unknown";
    }
    try
    {
        return found->second(Split(line.size() > word.size() ? line.substr(word.size() + 1) : ""));
    }
    catch (const std::exception& exception)
    {
        return std::string("failed: ") + exception.what();
    }
}

} // namespace

int main()
{
    const char* const key = std::getenv("NORV_TEST_MACHINE_KEY");
    const RedirectedRegistry registry(FromUtf8(key == nullptr ? "Software\\NorvepaBl64x.Tests\\peer" : key));
    for (std::string line; std::getline(std::cin, line);)
    {
        std::cout << Answer(line) << std::endl;
    }
    library.reset();
}
