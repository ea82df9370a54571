#pragma once

// Both ways to the outline of a document. What they give is told in a line, so that a difference shows:
//
//     load 'A' 'B' S{2 'name'='value', 1 -='5'} Subdevice@'x'{0 'b'=-}
//
// These are the entries of every `Load`, then the sections with their parameters' types, names and values; a
// dash is what isn't there.

#include "xml/Document.h"

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <string_view>

namespace norvepa::test
{

using OutlineLine = std::optional<std::string>;

class OutlineScene : public testing::Test
{
protected:
    OutlineScene();

    // By the engine, node by node; none when it doesn't load these bytes.
    [[nodiscard]] OutlineLine ByTheEngine(std::string_view bytes);

    // By the bytes; none when they're left to the engine.
    [[nodiscard]] static OutlineLine ByTheBytes(std::string_view bytes);

    void ExpectAlike(std::string_view bytes, const std::string& line);
    void ExpectLeftToTheEngine(std::string_view bytes);

private:
    Document m_document;
};

// A document whose only parameter has this value.
[[nodiscard]] std::string WithValue(std::string_view raw);

// A document, and what both ways must give for it.
struct PlainDocument
{
    const char* name;
    std::string bytes;
    std::string line;
};

// A document that the engine loads and that isn't read by its bytes.
struct OtherDocument
{
    const char* name;
    std::string bytes;
};

void PrintTo(const PlainDocument& document, std::ostream* out);
void PrintTo(const OtherDocument& document, std::ostream* out);

template <typename Document>
std::string NameOf(const testing::TestParamInfo<Document>& info)
{
    return info.param.name;
}

// For the tables of such documents.
class AlikeBothWays : public OutlineScene, public testing::WithParamInterface<PlainDocument>
{
};

class LeftToTheEngine : public OutlineScene, public testing::WithParamInterface<OtherDocument>
{
};

} // namespace norvepa::test
