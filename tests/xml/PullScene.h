#pragma once

// A pull reader on a file of a test's own, and what it meets there.

#include "support/TemporaryFolder.h"
#include "xml/PullReader.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

class PullScene : public testing::Test
{
protected:
    // A reader ahead of the first node of a file that holds these bytes.
    [[nodiscard]] PullReader Reading(std::string_view bytes) const;

    // The same just behind the start tag of the file's root.
    [[nodiscard]] PullReader InsideRoot(std::string_view bytes) const;

    [[nodiscard]] std::wstring file() const { return m_folder / L"file.xml"; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

// The next node as it might stand in a file: "<a>", "</a>", "<a/>", a text as it is, and any other node as
// the number of its type. Empty where the reader stops.
[[nodiscard]] std::string NextNode(PullReader& reader);

// All nodes to the end, with a blank between two.
[[nodiscard]] std::string RestOf(PullReader& reader);

// The local name of the node that the reader stands on.
[[nodiscard]] std::string NameAt(const PullReader& reader);

} // namespace norvepa::test
