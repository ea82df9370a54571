// A second process that is in the midst of making a file: each line names one, of which it has written the
// half and keeps nothing. "at once|" in front of the path makes it in its place.

#include "support/TemporaryFolder.h"
#include "win/NewFile.h"

#include <iostream>

#include <list>
#include <string>
#include <string_view>

namespace
{

constexpr std::string_view InPlace = "at once|";

struct File
{
    std::wstring path;
    norvepa::win::NewFile made;

    explicit File(std::string_view line)
        : path(norvepa::test::FromUtf8(line.starts_with(InPlace) ? line.substr(InPlace.size()) : line)),
          made(line.starts_with(InPlace) ? norvepa::win::NewFile::CreateOrEmpty(path)
                                         : norvepa::win::NewFile::CreateBeside(path))
    {
    }
};

} // namespace

int main()
{
    std::list<File> files;
    for (std::string line; std::getline(std::cin, line);)
    {
        const File& file = files.emplace_back(line);
        std::cout << (file.made && file.made.Write("the half") ? "made" : "not made") << std::endl;
    }
}
