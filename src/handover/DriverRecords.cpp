#include "handover/DriverRecords.h"

#include <algorithm>
#include <array>
#include <limits>

namespace norvepa
{

namespace
{

constexpr std::size_t FixedBytes = 6; // of a record beside name and value
constexpr std::uint8_t TypeBytes = 1;

template <typename Number>
std::span<const std::byte> BytesOf(const Number& number) noexcept
{
    return std::as_bytes(std::span(&number, 1));
}

} // namespace

std::span<const std::byte> RecordText(std::wstring_view text) noexcept
{
    const std::size_t bytes = std::min(text.size(), LongestRecordText) * sizeof(wchar_t);
    return std::as_bytes(std::span(text)).first(bytes & 0xFF);
}

DriverRecords::DriverRecords() noexcept
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
    : m_buffer(static_cast<std::byte*>(std::calloc(BlockBytes, 1))), m_writePosition(m_buffer.get())
{
}

Result DriverRecords::Write(const DriverRecord& record)
{
    const std::span<const std::byte> name = RecordText(record.name);
    const auto recordLength = static_cast<std::uint16_t>(FixedBytes + name.size() + record.value.size());
    const auto nameBytes = static_cast<std::uint8_t>(name.size());
    const auto valueBytes = static_cast<std::uint8_t>(record.value.size());
    const std::array fields{BytesOf(recordLength), BytesOf(nameBytes),  name,        BytesOf(TypeBytes),
                            BytesOf(record.type),  BytesOf(valueBytes), record.value};

    m_recordBytes = 0;
    for (const std::span<const std::byte> field : fields)
    {
        if (const Result result = Put(field); result != PGSP_OK)
        {
            return result;
        }
    }
    m_usedBytes += m_recordBytes;
    return PGSP_OK;
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
    const std::uint64_t bytes = std::uint64_t{m_blockCount} * BlockBytes;
    const bool isCountable = bytes <= std::numeric_limits<std::uint32_t>::max();
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
    void* const grown = isCountable ? std::realloc(m_buffer.get(), bytes) : nullptr;
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
