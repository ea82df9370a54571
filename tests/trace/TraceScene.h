#pragma once

// Trace settings of this test's own, the two trace files in a folder of its own, and tracing switched
// off again when the scene is over.

#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace norvepa::test
{

class TraceScene
{
public:
    TraceScene() = default;
    TraceScene(const TraceScene&) = delete;
    TraceScene& operator=(const TraceScene&) = delete;
    ~TraceScene();

    // A value of the settings' key, as text.
    static void Set(const std::wstring& name, const std::wstring& value);

    // `Path` and `FileName`, so that files appear where file() says.
    void SetFiles() const;

    // What the load of the library does.
    static void ReadSettings();

    // SetFiles(), the given mask and format "TEXT"; then ReadSettings().
    void TraceToFiles(const std::wstring& level) const;

    [[nodiscard]] const RedirectedRegistry& registry() const { return m_registry; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }
    [[nodiscard]] std::wstring file(int number) const;
    [[nodiscard]] std::string base() const; // without number and extension

    // The lines of both files, the first file's first.
    [[nodiscard]] std::vector<std::string> lines() const;

private:
    RedirectedRegistry m_registry;
    TemporaryFolder m_folder;
};

} // namespace norvepa::test
