#include "support/LoadedLibrary.h"
#include "support/PortableExecutable.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <regex>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::IsEmpty;
using testing::Not;

struct Declaration
{
    std::string name;
    std::vector<std::string> arguments;
    std::string comment; // right above it, or above the block of declarations that it stands in
    std::string ahead;   // the comment of the block above that
};

// The last word of each argument; "void" is none.
std::vector<std::string> ArgumentNames(const std::string& arguments)
{
    const std::regex last("(\\w+)\\s*(,|$)");
    std::vector<std::string> names;
    for (std::sregex_iterator each(arguments.begin(), arguments.end(), last), end; each != end; ++each)
    {
        names.push_back((*each)[1]);
    }
    std::erase(names, "void");
    return names;
}

// What is declared, in the header's order. A blank line parts a declaration from what stands above it.
std::vector<Declaration> Declarations()
{
    const std::string header = ReadBytes(FromUtf8(NORV_PUBLIC_HEADER));
    const std::regex commentOrFunction("/\\*([^]*?)\\*/|(\\w+)\\s*\\(([^()]*)\\)\\s*;");

    std::vector<Declaration> all;
    std::string comment;
    std::string documented; // the last comment that a declaration had
    std::string ahead;
    for (std::sregex_iterator each(header.begin(), header.end(), commentOrFunction), end; each != end; ++each)
    {
        const std::smatch& found = *each;
        if (!found[2].matched)
        {
            comment = found[1];
            continue;
        }
        if (found.prefix().str().find("\n\n") != std::string::npos)
        {
            comment.clear();
        }
        if (comment != documented)
        {
            ahead = documented;
            documented = comment;
        }
        all.push_back({found[2], ArgumentNames(found[3]), comment, ahead});
    }
    return all;
}

bool HoldsWord(const std::string& text, const std::string& word)
{
    return std::regex_search(text, std::regex("\\b" + word + "\\b"));
}

class PublicHeader : public testing::Test
{
protected:
    // In the comment itself, in that of a function that it refers to, there under the same name or in the
    // same place, or in the one above, if it says so.
    [[nodiscard]] bool IsDocumented(const Declaration& function, std::size_t argument) const
    {
        const std::string& name = function.arguments[argument];
        if (HoldsWord(function.comment, name))
        {
            return true;
        }
        if (HoldsWord(function.comment, "as above") && HoldsWord(function.ahead, name))
        {
            return true;
        }
        return std::any_of(declarations.begin(), declarations.end(), [&](const Declaration& other) {
            return other.name != function.name && HoldsWord(function.comment, other.name) &&
                   (HoldsWord(other.comment, name) || (argument < other.arguments.size() &&
                                                       HoldsWord(other.comment, other.arguments[argument])));
        });
    }

    const std::vector<Declaration> declarations = Declarations();
};

TEST_F(PublicHeader, TellsWhatEachExportIsFor)
{
    for (const std::string& name : PortableExecutable(LibraryPath()).exportedNames())
    {
        const auto found = std::find_if(declarations.begin(), declarations.end(),
                                        [&](const Declaration& each) { return each.name == name; });
        ASSERT_NE(found, declarations.end()) << name;
        EXPECT_THAT(found->comment, Not(IsEmpty())) << name;
    }
}

TEST_F(PublicHeader, TellsWhatEachArgumentIs)
{
    for (const Declaration& function : declarations)
    {
        for (std::size_t argument = 0; argument < function.arguments.size(); ++argument)
        {
            EXPECT_TRUE(IsDocumented(function, argument))
                << function.name << ", " << function.arguments[argument];
        }
    }
}

} // namespace
} // namespace norvepa::test
