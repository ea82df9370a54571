#pragma once

// Catalogue files of a test's own, and trees written as text:
//
//     Profile{Name=x}[Constraints[min="1"]]
//
// is an element with an attribute and a child that has a child with a text. Children stand in the order in
// which they are visited.

#include "meta/cEpaBlElement.h"
#include "meta/cEpaBlXmlParser.h"
#include "support/TemporaryFolder.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

// "absent" for null.
[[nodiscard]] std::string Outline(const cEpaBlElement* element);

class MetaScene : public testing::Test
{
protected:
    // Written into this test's folder; answers the path.
    std::wstring File(std::wstring_view name, std::string_view bytes) const;

    // The tree of a file that holds these bytes.
    [[nodiscard]] ParsedTree Parsed(std::string_view bytes) const;

    // Its document as text.
    [[nodiscard]] std::string Document(std::string_view bytes) const;

    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

} // namespace norvepa::test
