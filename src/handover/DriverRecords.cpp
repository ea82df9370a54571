#include "handover/DriverRecords.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace norvepa
{

namespace
{

constexpr std::size_t LongestText = 260; // characters
constexpr std::size_t FixedBytes = 6;    // of a record beside name and value

std::array<std::byte, 2> LittleEndian(std::size_t value) noexcept
{
    return {static_cast<std::byte>(value & 0xFF), static_cast<std::byte>(value >> 8)};
}

} // namespace

std::span<const std::byte> RecordText(std::wstring_view text) noexcept
{
    const std::size_t bytes = std::min(text.size(), LongestText) * sizeof(wchar_t);
    return std::as_bytes(std::span(text)).first(bytes & 0xFF);
}

DriverRecords::DriverRecords() noexcept
    : m_buffer(static_cast<std::byte*>(std::calloc(BlockBytes, 1))), m_writePosition(m_buffer.get())
{
}

Result DriverRecords::Write(const DriverRecord& record)
{
    const std::span<const std::byte> name = RecordText(record.name);
    Result result = Put(LittleEndian(FixedBytes + name.size() + record.value.size()));
    result = result == PGSP_OK ? PutByte(name.size()) : result;
    result = result == PGSP_OK ? Put(name) : result;
    result = result == PGSP_OK ? PutByte(sizeof record.type) : result;
    result = result == PGSP_OK ? PutByte(static_cast<std::size_t>(record.type)) : result;
    result = result == PGSP_OK ? PutByte(record.value.size()) : result;
    result = result == PGSP_OK ? Put(record.value) : result;
    if (result == PGSP_OK)
    {
        m_usedBytes += m_recordBytes;
        m_recordBytes = 0;
    }
    return result;
}

Result DriverRecords::PutByte(std::size_t value)
{
    const auto byte = static_cast<std::byte>(value);
    return Put(std::span(&byte, 1));
}

// One byte more than the field has to be free.
Result DriverRecords::Put(std::span<const std::byte> field)
{
    const auto size = static_cast<std::uint32_t>(field.size());
    if (m_freeBytes <= size)
    {
        if (const Result result = Grow(); result != PGSP_OK)
        {
            return result;
        }
    }
    if (m_writePosition == nullptr)
    {
        return PGSP_ERR_DRIVER_BUFFER;
    }
    std::copy(field.begin(), field.end(), m_writePosition);
    m_writePosition += size;
    m_recordBytes += size;
    m_freeBytes -= size;
    return PGSP_OK;
}

Result DriverRecords::Grow() noexcept
{
    ++m_blockCount;
    void* const grown = std::realloc(m_buffer.get(), std::size_t{m_blockCount} * BlockBytes);
    if (grown == nullptr)
    {
        m_buffer.reset();
        m_writePosition = nullptr;
        m_usedBytes = 0;
        return PGSP_ERR_DRIVER_NO_MEMORY;
    }
    static_cast<void>(m_buffer.release()); // realloc has taken the old block
    m_buffer.reset(static_cast<std::byte*>(grown));
    m_writePosition = m_buffer.get() + m_usedBytes + m_recordBytes;
    m_freeBytes = BlockBytes;
    return PGSP_OK;
}

} // namespace norvepa
