#pragma once

// From a catalogue file to its tree, in one forward pass.
//
// Nothing is validated, and what isn't in the vocabulary is passed over, with consequences that files are
// written against: an end tag closes one level whatever it is called, also that of an element that was passed
// over, and the children of such an element belong to the one around it.

#include "meta/cEpaBlElement.h"
#include "xml/PullReader.h"

#include <memory>

namespace norvepa
{

// A parsed file. `document` is the element that was open when the file ended or broke off, and so not the
// root of the whole when something was open then; null when nothing of the vocabulary was met.
struct ParsedTree
{
    std::unique_ptr<cEpaBlElement> whole;
    const cEpaBlElement* document = nullptr;
};

class cEpaBlXmlParser
{
public:
    // Reads to the file's end, or to where the reader fails: the two aren't told apart.
    [[nodiscard]] ParsedTree Parse(PullReader& reader);

private:
    void OpenElement(PullReader& reader);
    void ReadAttributes(PullReader& reader, cEpaBlElement& element);

    std::unique_ptr<cEpaBlElement> m_root;
    cEpaBlElement* m_current = nullptr; // what receives children and text
};

} // namespace norvepa
