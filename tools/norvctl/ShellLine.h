#pragma once

// A command line as it stands in a shell up to the cursor, and words as that shell wants them back.

#include <string>
#include <string_view>
#include <vector>

namespace norvctl
{

struct ShellLine
{
    std::vector<std::string> words; // that are complete, without the program's
    std::string present;            // what the cursor stands behind, without its quotation marks
    std::string kept;               // what of it the shell doesn't replace
    char quote = '\0';              // the mark that is open at the end
};

// Bash replaces what stands behind a quotation mark that is open, or else behind the last of the
// characters in COMP_WORDBREAKS.
[[nodiscard]] ShellLine ReadBashLine(std::string_view line, std::string_view breaks);

// What bash is to put there for each of the words, all of which begin as the present one does. When one
// needs marks all get them: what words have in common, which is all that bash puts there, is then quoted
// right, too.
[[nodiscard]] std::vector<std::string> BashWords(const std::vector<std::string>& words,
                                                 const ShellLine& line);

// PowerShell replaces whole words.
[[nodiscard]] ShellLine ReadPowerShellLine(std::string_view line);
[[nodiscard]] std::string PowerShellWord(const std::string& word);

} // namespace norvctl
