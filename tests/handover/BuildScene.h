#pragma once

// The records of a log device's document that is built in place.

#include "handover/DriverRead.h"
#include "support/ReceivedRecords.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{

class BuildScene : public testing::Test
{
protected:
    // The records of a document with this content. It is built twice, once so that it is read by its bytes
    // and once so that the engine is asked, and both ways must give the same.
    [[nodiscard]] static ReceivedRecords Build(const XmlContent& content);

    // What its build answers; a failure must leave the outputs alone.
    [[nodiscard]] static Result ResultOf(const XmlContent& content);

    // A document's as it comes, whichever way its outline is had.
    [[nodiscard]] static ReceivedRecords BuildFile(const std::string& bytes);
};

[[nodiscard]] DriverReadContext ContextOf(const std::string& bytes);

// The same document, of which the engine has to be asked.
[[nodiscard]] std::string ForTheEngine(const std::string& file);

// A parameter's element with only one of its parts.
[[nodiscard]] XmlContent OnlyName(std::wstring_view name);
[[nodiscard]] XmlContent OnlyValue(std::wstring_view value);

} // namespace norvepa::test
