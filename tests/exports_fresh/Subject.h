#pragma once

// A file that a test changes, and the question that it answers. Its twin lies elsewhere: another value, the
// same size and the same write time.

#include "Kinds.h"
#include "Place.h"

#include <string>

namespace norvepa::test
{

class Subject
{
public:
    Subject(Place& place, const Kind& kind, const std::wstring& object); // which have to outlive it

    // The value before in the file, and the value after in the twin.
    void Make() const;

    [[nodiscard]] std::wstring Ask() const { return m_kind.ask(m_place, m_object); }

    [[nodiscard]] const Kind& kind() const { return m_kind; }
    [[nodiscard]] const std::wstring& path() const { return m_path; }
    [[nodiscard]] const std::wstring& twin() const { return m_twin; }
    [[nodiscard]] std::string Bytes(const Value& value) const
    {
        return m_kind.content(m_object, value.inFile);
    }

    // Cuts the file to nothing first, as most programs write.
    void Write(const Value& value) const;

private:
    Place& m_place;
    const Kind& m_kind;
    std::wstring m_object;
    std::wstring m_path;
    std::wstring m_twin;
};

} // namespace norvepa::test
