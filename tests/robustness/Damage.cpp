#include "Damage.h"

#include <array>
#include <random>
#include <string_view>

namespace norvepa::test
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array Pieces{
    "<"sv,
    ">"sv,
    "/>"sv,
    "\""sv,
    "&"sv,
    "&#0;"sv,
    "&amp;"sv,
    "]]>"sv,
    "<![CDATA["sv,
    "<!--"sv,
    "-->"sv,
    "<?xml version='1.0' encoding='UTF-16'?>"sv,
    "<!DOCTYPE a [<!ENTITY b 'c'>]>"sv,
    "<Parameter>"sv,
    "</Parameter>"sv,
    "<Name>Stufe</Name>"sv,
    "<Value>"sv,
    "</Value>"sv,
    "<Constraints>"sv,
    "<ParamSection param=\"Stufe\">"sv,
    "</LogDevice>"sv,
    "\0"sv,
    "\xFF\xFE"sv,
    "\xEF\xBB\xBF"sv,
    "\xC3"sv,
    "\xF0\x9F\x92\xA9"sv,
};

// Steps of damage, each told where to begin.
using Step = void (*)(std::string& bytes, std::size_t at, std::mt19937& random);

// A length of up to 40 bytes, mostly a short one.
std::size_t SomeLength(std::mt19937& random)
{
    return 1 + random() % (1 + random() % 40);
}

void Lose(std::string& bytes, std::size_t at, std::mt19937& random)
{
    bytes.erase(at, SomeLength(random));
}

void CutOff(std::string& bytes, std::size_t at, std::mt19937&)
{
    bytes.resize(at);
}

void Turn(std::string& bytes, std::size_t at, std::mt19937& random)
{
    bytes[at] = static_cast<char>(random());
}

void Double(std::string& bytes, std::size_t at, std::mt19937& random)
{
    bytes.insert(at, bytes.substr(at, SomeLength(random) * 8));
}

void Move(std::string& bytes, std::size_t at, std::mt19937& random)
{
    const std::string piece = bytes.substr(at, SomeLength(random) * 2);
    bytes.erase(at, piece.size());
    bytes.insert(random() % (bytes.size() + 1), piece);
}

void PutMarkup(std::string& bytes, std::size_t at, std::mt19937& random)
{
    bytes.insert(at, Pieces[random() % Pieces.size()]);
}

void Blow(std::string& bytes, std::size_t at, std::mt19937& random)
{
    bytes.insert(at, 200 + random() % 10'000, 'x');
}

constexpr std::array<Step, 7> Steps{Lose, CutOff, Turn, Double, Move, PutMarkup, Blow};

// Wine's pull engine ends the process when a file stops within its declaration or right behind it, or has a
// zero there.
bool StopsInItsDeclaration(std::string_view bytes)
{
    const std::size_t begin = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    const std::string_view read = bytes.substr(begin, bytes.find('\0') - begin);
    return read.starts_with("<?x") && read.find('<', 1) == std::string_view::npos;
}

} // namespace

std::string Damaged(const std::string& whole, std::uint32_t number)
{
    std::mt19937 random(number);
    std::string bytes = whole;
    for (std::size_t left = 1 + random() % 3; left > 0 && !bytes.empty(); --left)
    {
        const std::size_t at = random() % bytes.size();
        Steps[random() % Steps.size()](bytes, at, random);
    }
    return StopsInItsDeclaration(bytes) ? whole : bytes;
}

} // namespace norvepa::test
