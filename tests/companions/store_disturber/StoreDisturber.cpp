// A second process beside the one under test that lets it have no rest: it calls the exports of a library of
// its own, and breaks and mends the files of the store. One command a line, each answered with one line,
// "done" if all is well.

#include "FileDeeds.h"
#include "endurance/Deck.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <iostream>

#include <cstdlib>
#include <exception>
#include <memory>
#include <string>

namespace
{

using namespace norvepa::test;

constexpr int DeedsOfADisturbance = 12;
constexpr std::uint32_t CardsEach = 50;

struct Place
{
    explicit Place(const std::wstring& folders)
        : deeds(folders.substr(0, folders.find(L'|')), folders.substr(folders.find(L'|') + 1))
    {
    }

    const FileDeeds deeds;
    const Exports library;
    Deck deck{1, CardsEach};
};

std::unique_ptr<Place> place;

// STORE|ORIGINALS
void GoTo(const std::wstring& folders)
{
    place = std::make_unique<Place>(folders);
}

// NUMBER, by which it is drawn what is done
void Disturb(const std::wstring& number)
{
    Draw any(std::stoull(number));
    for (int deed = 0; deed < DeedsOfADisturbance; ++deed)
    {
        place->deeds.DoOne(any);
        const Card& card = place->deck.Deal();
        Draw arguments(card.number);
        place->deck.callOf(card).make(arguments, place->library);
    }
}

void Heal(const std::wstring&)
{
    place->deeds.Heal();
}

void Obey(const std::string& line)
{
    struct Command
    {
        const char* word;
        void (*run)(const std::wstring& argument);
    };
    constexpr Command commands[] = {{"at", GoTo}, {"disturb", Disturb}, {"heal", Heal}};

    const std::size_t blank = std::min(line.find(' '), line.size());
    for (const Command& command : commands)
    {
        if (line.compare(0, blank, command.word) == 0)
        {
            return command.run(FromUtf8(line.substr(std::min(blank + 1, line.size()))));
        }
    }
    throw std::invalid_argument("unknown");
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
    place.reset();
}
