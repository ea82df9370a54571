#pragma once

// A store with our schemas and a log name, for what validates and what puts temporary files in place.

#include "store/norvxml.h"
#include "support/StoreRoots.h"
#include "support/XmlFiles.h"
#include "support/XmlMeaning.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

inline constexpr const wchar_t* LogNameSchema = L"Corvane.Device.Driver.Logname";
inline constexpr const wchar_t* LogDeviceSchema = L"Corvane.Device.Driver.Logdevice";

class CommitScene : public testing::Test
{
protected:
    CommitScene()
    {
        CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\program-root\\Schemes", m_roots.program() + L"\\Schemes");
    }

    // The folder of the log names, without a backslash behind it.
    [[nodiscard]] std::wstring folder() const { return m_roots.data() + L"\\data\\LogNames"; }

    // The file "Name" there, and its temporary form.
    [[nodiscard]] std::wstring real() const { return folder() + L"\\Name.xml"; }
    [[nodiscard]] std::wstring temporary() const { return folder() + L"\\Name(temp).xml"; }

    [[nodiscard]] std::wstring schema(std::wstring_view name) const
    {
        return m_roots.program() + L"\\Schemes\\" + std::wstring(name) + L".xsd";
    }

    [[nodiscard]] const StoreRoots& roots() const { return m_roots; }

    // The operations on that file.
    [[nodiscard]] Result Validate(const wchar_t* schemaName = LogNameSchema) const
    {
        return NorvXMLValidateFile(L"Name", schemaName, folder().c_str());
    }
    [[nodiscard]] Result Commit(const wchar_t* schemaName = LogNameSchema) const
    {
        return NorvXMLCommitTemp(L"Name", schemaName, folder().c_str());
    }

private:
    StoreRoots m_roots;
};

// Log names, one valid and one that isn't: its number is none.
[[nodiscard]] inline std::string ValidLogName()
{
    return LogNameFile(XmlContent().Text(L"a", L"1"));
}
[[nodiscard]] inline std::string InvalidLogName()
{
    return LogNameFile(XmlContent().Int(L"a", L"one"));
}

} // namespace norvepa::test
