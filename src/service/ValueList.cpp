#include "service/ValueList.h"

#include "catalogue/norvxmlCatalogue.h"
#include "frame/PackStringList.h"

namespace norvepa
{

namespace
{

constexpr std::uint32_t EntryCapacity = 4096; // characters, of a name and of a value

// Every string that is tried, with the room that it meets: the first that doesn't fit is the last.
void TraceValues(const ExportFrame& frame, std::span<const std::wstring> values, std::uint32_t capacity)
{
    std::size_t remaining = capacity;
    for (const std::wstring& value : values)
    {
        NORV_TRACE(frame, TraceInfo, "ResultValue=%s valLen=%d inputLen=%d", TraceToAnsi(value.c_str()),
                   static_cast<int>(value.size()), static_cast<int>(remaining));
        if (remaining <= value.size())
        {
            return;
        }
        remaining -= value.size() + 1;
    }
}

} // namespace

std::vector<std::wstring> EnumerateAll(const ExportFrame& frame, const std::wstring& file)
{
    NORV_TRACE(frame, TraceInfo, "Enumerate all, no ParameterList");
    std::vector<std::wstring> values;
    std::vector<wchar_t> name(EntryCapacity);
    std::vector<wchar_t> value(EntryCapacity);
    for (std::uint32_t index = 0;; ++index)
    {
        std::uint32_t nameLength = EntryCapacity;
        std::uint32_t valueLength = EntryCapacity;
        if (NorvXMLEnumValue(file.c_str(), index, {name.data(), &nameLength, value.data(), &valueLength}) !=
            PGSP_OK)
        {
            return values;
        }
        values.emplace_back(name.data(), nameLength);
        values.emplace_back(value.data(), valueLength);
    }
}

Result ReturnValueList(const ExportFrame& frame, std::span<const std::wstring> values, wchar_t* buffer,
                       std::uint32_t* length, TracePlace place)
{
    NORV_TRACE(frame, TraceInfo, "ResultList-Length: Length=%d", static_cast<int>(values.size()));
    TraceValues(frame, values, *length);
    return ReturnStringList(frame, values, buffer, length, place);
}

} // namespace norvepa
