#include "support/LoadedLibrary.h"
#include "support/PortableExecutable.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <regex>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::ResultOf;
using testing::UnorderedElementsAreArray;

// The functions that the public header declares: a name, its arguments, a semicolon.
std::vector<std::string> DeclaredFunctions()
{
    const std::string header = ReadBytes(FromUtf8(NORV_PUBLIC_HEADER));
    const std::string code = std::regex_replace(header, std::regex("/\\*[^]*?\\*/|#[^\n]*"), "");
    const std::regex declaration("(\\w+)\\s*\\([^()]*\\)\\s*;");

    std::vector<std::string> names;
    for (std::sregex_iterator each(code.begin(), code.end(), declaration), end; each != end; ++each)
    {
        names.push_back((*each)[1]);
    }
    return names;
}

// Neither the marks of C++ nor those of a calling convention.
bool IsUndecorated(const std::string& name)
{
    return std::regex_match(name, std::regex("[A-Za-z]\\w*"));
}

bool IsOfTheSystem(const std::string& module)
{
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(GetSystemDirectoryW(folder.data(), MAX_PATH));
    return Exists(folder + L"\\" + FromUtf8(module));
}

TEST(LibraryFile, ExportsWhatThePublicHeaderDeclaresAndNothingElse)
{
    const PortableExecutable library(LibraryPath());

    EXPECT_THAT(library.exportedNames(), UnorderedElementsAreArray(DeclaredFunctions()));
    EXPECT_EQ(library.exportedFunctionCount(), library.exportedNames().size());
}

TEST(LibraryFile, ExportsEightyFunctions)
{
    EXPECT_EQ(PortableExecutable(LibraryPath()).exportedFunctionCount(), 80U);
}

TEST(LibraryFile, ExportsUndecoratedNames)
{
    const std::vector<std::string> names = PortableExecutable(LibraryPath()).exportedNames();

    EXPECT_THAT(names, Contains("LogNameGetValueBL"));
    EXPECT_THAT(names, Each(ResultOf(IsUndecorated, true)));
}

TEST(LibraryFile, CallsItselfByItsFilesName)
{
    EXPECT_EQ(PortableExecutable(LibraryPath()).exportedModuleName(), "NorvepaBl64x.dll");
}

TEST(LibraryFile, ImportsLibrariesOfTheSystemOnly)
{
    const std::vector<std::string> modules = PortableExecutable(LibraryPath()).importedModules();

    EXPECT_THAT(modules, AllOf(Not(IsEmpty()), Each(ResultOf(IsOfTheSystem, true))));
}

TEST(LibraryFile, MayBeLaidOutAnywhereInTheWholeAddressSpace)
{
    const PortableExecutable library(LibraryPath());

    EXPECT_TRUE(library.characteristics() & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
    EXPECT_TRUE(library.characteristics() & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA);
    EXPECT_THAT(library.sectionNames(), Contains(".reloc")); // without which it couldn't be
}

TEST(LibraryFile, IsNotRunWhereItHoldsData)
{
    EXPECT_TRUE(PortableExecutable(LibraryPath()).characteristics() & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
}

// What the check says that the compiler has put into them: it is linked in with the first.
TEST(LibraryFile, ChecksItsFrames)
{
    EXPECT_THAT(ReadBytes(LibraryPath()), HasSubstr("stack smashing detected"));
}

} // namespace
} // namespace norvepa::test
