#pragma once

// Documents of the DOM engine, loaded from files of a test's own.

#include "support/TemporaryFolder.h"
#include "xml/Document.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

class DocumentScene : public testing::Test
{
protected:
    // An empty document, and one that holds these bytes. Both throw when the engine refuses.
    [[nodiscard]] Document Empty() const;
    [[nodiscard]] Document Loaded(std::string_view bytes) const;

    // What a document says once it is saved.
    [[nodiscard]] std::string SavedMeaning(const Document& document) const;

    [[nodiscard]] std::wstring file() const { return m_folder / L"file.xml"; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

} // namespace norvepa::test
