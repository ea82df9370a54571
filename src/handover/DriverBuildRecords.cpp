#include "handover/DeviceOutline.h"
#include "handover/DriverRead.h"
#include "handover/DriverRecords.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cwchar>
#include <string_view>

namespace norvepa
{

namespace
{

constexpr std::wstring_view NoSection = L"no_section"; // what no element is called

using SectionWords = std::array<std::wstring_view, 3>;

// What an entry of the load list asks for.
SectionWords WordsOf(std::wstring_view entry)
{
    if (entry == L"Busparameter")
    {
        return {NoSection, L"LocalSettings", L"NetworkSettings"}; // and no element of its own name
    }
    if (entry == L"Bindings")
    {
        return {entry, L"Subdevice", NoSection};
    }
    return {entry, NoSection, NoSection};
}

// Writes the sections of an outline as they are asked for. What a parameter leaves out is what the one ahead
// of it had, in whichever section that was.
class RecordWalk
{
public:
    explicit RecordWalk(const DeviceOutline& outline) : m_outline(outline) {}

    [[nodiscard]] Result Load(const std::wstring& entry)
    {
        const SectionWords words = WordsOf(entry);
        for (const DeviceOutline::Section& section : m_outline.sections)
        {
            if (std::find(words.begin(), words.end(), section.word) == words.end())
            {
                continue;
            }
            if (const Result result = WriteSection(section); result != PGSP_OK)
            {
                return result;
            }
        }
        return PGSP_OK;
    }

    [[nodiscard]] std::span<const std::byte> records() const noexcept { return m_records.bytes(); }

private:
    [[nodiscard]] Result WriteSection(const DeviceOutline::Section& section)
    {
        for (const DeviceOutline::Parameter& parameter : section.parameters)
        {
            if (parameter.name)
            {
                m_name = m_outline.view(*parameter.name);
            }
            if (parameter.value)
            {
                m_value = m_outline.view(*parameter.value);
            }
            if (section.subdevice)
            {
                // Stays with a name that is carried over, as far as a record shows it.
                m_name.insert(0, *section.subdevice + L'/');
                m_name.resize(std::min(m_name.size(), LongestRecordText));
            }
            if (const Result result = WriteRecord(parameter.type); result != PGSP_OK)
            {
                return result;
            }
        }
        return PGSP_OK;
    }

    [[nodiscard]] Result WriteRecord(DriverType type)
    {
        if (type == DriverType::String)
        {
            return m_records.Write({m_name, type, RecordText(m_value)});
        }
        const std::int32_t number = type == DriverType::Integer ? _wtoi(m_value.c_str()) : m_value == L"true";
        return m_records.Write({m_name, type, std::as_bytes(std::span(&number, 1))});
    }

    const DeviceOutline& m_outline;
    DriverRecords m_records;
    std::wstring m_name;
    std::wstring m_value;
};

Result HandOut(std::span<const std::byte> records, std::uint8_t** outBuffer, std::uint32_t* outLength)
{
    auto* const block = static_cast<std::byte*>(GlobalAlloc(GMEM_FIXED, records.size()));
    if (block == nullptr)
    {
        return PGSP_ERR_DRIVER_BUFFER;
    }
    std::copy(records.begin(), records.end(), block); // which may be none, and from nowhere
    *outBuffer = reinterpret_cast<std::uint8_t*>(block);
    *outLength = static_cast<std::uint32_t>(records.size());
    return PGSP_OK;
}

DeviceOutline Gather(const DriverReadContext& context)
{
    if (auto outline = OutlineOf(std::string_view(context.bytes)))
    {
        return std::move(*outline);
    }
    return OutlineOf(context.document);
}

} // namespace

Result DriverBuildRecords(const DriverReadContext& context, std::uint8_t** outBuffer,
                          std::uint32_t* outLength)
{
    const DeviceOutline outline = Gather(context);
    if (outline.load.empty())
    {
        return PGSP_ERR_DRIVER_READ;
    }

    RecordWalk walk(outline);
    for (const std::wstring& entry : outline.load)
    {
        if (const Result result = walk.Load(entry); result != PGSP_OK)
        {
            return result;
        }
    }
    return HandOut(walk.records(), outBuffer, outLength);
}

} // namespace norvepa
