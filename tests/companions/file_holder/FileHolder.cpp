// A second process that has files open: each line names one, which it holds until it ends. Others may read it
// meanwhile, unless "alone|" stands in front of the path. It is open for reading, or with "writing|" in front
// of the path for writing.

#include "support/FileWriter.h"
#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"

#include <iostream>

#include <exception>
#include <list>
#include <string>
#include <string_view>

namespace
{

constexpr std::string_view Alone = "alone|";
constexpr std::string_view Writing = "writing|";

} // namespace

int main()
{
    std::list<norvepa::test::OpenFile> held;
    std::list<norvepa::test::FileWriter> written;
    for (std::string line; std::getline(std::cin, line);)
    {
        try
        {
            if (line.starts_with(Alone))
            {
                held.emplace_back(norvepa::test::FromUtf8(line.substr(Alone.size())), 0);
            }
            else if (line.starts_with(Writing))
            {
                written.emplace_back(norvepa::test::FromUtf8(line.substr(Writing.size())));
            }
            else
            {
                held.emplace_back(norvepa::test::FromUtf8(line));
            }
            std::cout << "held" << std::endl;
        }
        catch (const std::exception& exception)
        {
            std::cout << exception.what() << std::endl;
        }
    }
}
