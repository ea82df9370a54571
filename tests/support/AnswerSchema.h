#pragma once

// What norvctl --json promises to answer: norvctl.schema.json.

#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

// Why an answer isn't what the definition of the command says; empty when it is. The arguments are those of
// norvctl; without --json among them, and where nothing has been answered, there is nothing to say.
[[nodiscard]] std::string WhyUndocumented(const std::vector<std::wstring>& arguments,
                                          std::string_view answer);

// The same as a failure of the test.
void ExpectDocumentedAnswer(const std::vector<std::wstring>& arguments, std::string_view answer);

// The commands that have a definition.
[[nodiscard]] std::vector<std::string> DocumentedCommands();

} // namespace norvepa::test
