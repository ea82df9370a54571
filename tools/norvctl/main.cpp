// norvctl: the configuration store from the command line. A client of the library's exports.

#include "Console.h"
#include "Run.h"
#include "Text.h"

int main()
{
    const norvctl::ConsoleStreams streams;
    return norvctl::Run(norvctl::CommandLineReversed());
}
