// A second process that has files open: each line names one, which it holds until it ends.

#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"

#include <iostream>

#include <exception>
#include <list>
#include <string>

int main()
{
    std::list<norvepa::test::OpenFile> held;
    for (std::string path; std::getline(std::cin, path);)
    {
        try
        {
            held.emplace_back(norvepa::test::FromUtf8(path));
            std::cout << "held" << std::endl;
        }
        catch (const std::exception& exception)
        {
            std::cout << exception.what() << std::endl;
        }
    }
}
