#include "BareEngines.h"
#include "FileAge.h"
#include "GoalGroups.h"
#include "OneValue.h"
#include "Stopwatch.h"
#include "Table.h"
#include "norvepa.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <stdexcept>

namespace norvepa::bench
{

namespace
{

constexpr wchar_t LogName[] = L"Pumpe";
constexpr wchar_t LastLogNameParameter[] = L"CP_TYPE";
constexpr wchar_t LogNameValue[] = L"L2";

void ReadFromRegistry()
{
    Expect(ReadWithRegistry(RegistryKey, lastParameter), LastValue);
}

void Require(std::int32_t result)
{
    if (result != PGSP_OK)
    {
        throw std::runtime_error("refused");
    }
}

void MakeLogName()
{
    Require(LogNameCreateBL(LogName));
    Require(LogNameSetValueBL(LogName, L"LogDevice", device.c_str()));
    Require(LogNameSetValueBL(LogName, L"Station", L"Halle 2"));
    Require(LogNameSetValueBL(LogName, LastLogNameParameter, LogNameValue));
}

void ReadLogName()
{
    std::array<wchar_t, 64> value{};
    auto length = static_cast<std::uint32_t>(value.size());
    Require(LogNameGetValueBL(LogName, LastLogNameParameter, value.data(), &length));
    Expect(value.data(), LogNameValue);
}

// Answers what a read took.
double MeasureUnchanged(GoalTable& goals, const PlantStore& store)
{
    const std::wstring ini = IniFile(store);
    MakeLogName();
    WaitUntilOld(store.devicePath(0));
    WaitUntilOld(ini);
    WaitUntilOld(store.logNamePath(LogName));
    Expect(ReadFromLibrary(), LastValue);
    ReadLogName();

    const auto [library, logName, registry, profile] = MedianNanosecondsInTurns(
        [] { Expect(ReadFromLibrary(), LastValue); }, &ReadLogName, &ReadFromRegistry,
        [&] { Expect(ReadWithPrivateProfile(ini, lastParameter), LastValue); });

    const Table table("one value of an unchanged file", "to the registry", registry);
    table.Row("LogDeviceGetValueBL, 100 parameters", library);
    table.Row("LogNameGetValueBL, 4 parameters", logName);
    table.Row("RegGetValueW with open and close", registry);
    table.Row("GetPrivateProfileStringW, 100 parameters", profile);
    goals.Ratio("LogDeviceGetValueBL, unchanged file : registry read", 2.0, library / registry);
    goals.Ratio("LogDeviceGetValueBL, unchanged file : GetPrivateProfileStringW, the same", 0.5,
                library / profile);
    goals.Ratio("LogNameGetValueBL, unchanged file : registry read", 2.0, logName / registry);
    return library;
}

// The first log device's file, whose last value somebody else replaces by another one of the same length.
class ChangingFile
{
public:
    explicit ChangingFile(std::wstring path)
        : m_path(std::move(path)),
          m_bytes(test::ReadBytes(m_path)),
          m_at(m_bytes.find(">" + test::ToUtf8(LastValue) + "<", m_bytes.find(test::ToUtf8(lastParameter))))
    {
    }

    void Change()
    {
        m_value = m_value == L"98" ? LastValue : L"98";
        test::WriteBytes(m_path, m_bytes.replace(m_at + 1, m_value.size(), test::ToUtf8(m_value)));
    }

    [[nodiscard]] const wchar_t* value() const { return m_value.c_str(); }

private:
    std::wstring m_path;
    std::string m_bytes;
    std::size_t m_at;
    std::wstring m_value = LastValue;
};

void MeasureChanged(GoalTable& goals, const PlantStore& store, double unchanged)
{
    ChangingFile file(store.devicePath(0));
    const auto change = [&] { file.Change(); };
    const auto read = [&] { Expect(ReadFromLibrary(), file.value()); };
    const auto readElsewhere = [&] {
        ReadFromRegistry();
        static_cast<void>(CountNodesWithXmlLite(store.devicePath(0)));
    };

    const std::wstring ini = IniFile(store);
    const std::string iniBytes = test::ReadBytes(ini);
    const auto writeIni = [&] { test::WriteBytes(ini, iniBytes); };

    const auto [library, bare, profile] = MedianNanosecondsInTurns(
        Behind{change, read}, Behind{change, readElsewhere},
        Behind{writeIni, [&] { Expect(ReadWithPrivateProfile(ini, lastParameter), LastValue); }});

    const Table table("one value of a file that was changed just now", "to both of them", bare);
    table.Row("LogDeviceGetValueBL, 100 parameters", library);
    table.Row("RegGetValueW, and a bare pass of XmlLite over the file", bare);
    table.Row("GetPrivateProfileStringW, 100 parameters", profile);
    goals.Ratio("LogDeviceGetValueBL, changed file : registry read and bare pass", 1.25, library / bare);
    goals.Ratio("LogDeviceGetValueBL, unchanged file : GetPrivateProfileStringW, changed file", 0.5,
                unchanged / profile);
}

} // namespace

void MeasureReads(GoalTable& goals)
{
    const PlantStore store(1);
    FillRegistry();
    const double unchanged = MeasureUnchanged(goals, store);
    MeasureChanged(goals, store, unchanged);
}

} // namespace norvepa::bench
