#include "support/ReceivedRecords.h"

#include "support/TemporaryFolder.h"

#include <windows.h>

#include <cstring>
#include <ostream>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace norvepa::test
{

namespace
{

// One record's bytes, or those of all that are left, taken from the front.
class Bytes
{
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool empty() const { return m_bytes.empty(); }

    [[nodiscard]] Bytes Take(std::size_t size)
    {
        Require(size <= m_bytes.size(), "a record ends too early");
        const Bytes taken(m_bytes.first(size));
        m_bytes = m_bytes.subspan(size);
        return taken;
    }

    template <typename Number>
    [[nodiscard]] Number TakeNumber()
    {
        const Bytes taken = Take(sizeof(Number));
        Number number{};
        std::memcpy(&number, taken.m_bytes.data(), sizeof number);
        return number;
    }

    [[nodiscard]] std::wstring text() const
    {
        Require(m_bytes.size() % sizeof(wchar_t) == 0, "a text ends within a character");
        std::wstring text(m_bytes.size() / sizeof(wchar_t), L'\0');
        std::memcpy(text.data(), m_bytes.data(), m_bytes.size());
        return text;
    }

    static void Require(bool condition, const char* what)
    {
        if (!condition)
        {
            throw std::runtime_error(what);
        }
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

template <typename Number>
Number WholeNumber(Bytes value)
{
    const auto number = value.TakeNumber<Number>();
    Bytes::Require(value.empty(), "a number has more than 32 bits");
    return number;
}

std::uint32_t Flag(Bytes value)
{
    const auto flag = WholeNumber<std::uint32_t>(value);
    Bytes::Require(flag <= 1, "a boolean is neither 0 nor 1");
    return flag;
}

decltype(ReceivedRecord::value) ValueOf(std::uint8_t type, Bytes value)
{
    switch (type)
    {
    case 0:
        return Flag(value);
    case 1:
        return WholeNumber<std::int32_t>(value);
    case 2:
        return value.text();
    default:
        throw std::runtime_error("a type is unknown: " + std::to_string(type));
    }
}

ReceivedRecord TakeRecord(Bytes& stream)
{
    const auto length = stream.TakeNumber<std::uint16_t>();
    Bytes::Require(length >= sizeof length, "a record is shorter than its length");
    Bytes record = stream.Take(length - sizeof length);

    std::wstring name = record.Take(record.TakeNumber<std::uint8_t>()).text();
    Bytes::Require(record.TakeNumber<std::uint8_t>() == 1, "a type isn't one byte long");
    const auto type = record.TakeNumber<std::uint8_t>();
    const Bytes value = record.Take(record.TakeNumber<std::uint8_t>());
    Bytes::Require(record.empty(), "a record is longer than its fields");
    return {std::move(name), ValueOf(type, value)};
}

} // namespace

ReceivedRecord BoolRecord(std::wstring name, std::uint32_t value)
{
    return {std::move(name), value};
}

ReceivedRecord IntRecord(std::wstring name, std::int32_t value)
{
    return {std::move(name), value};
}

ReceivedRecord TextRecord(std::wstring name, std::wstring value)
{
    return {std::move(name), std::move(value)};
}

ReceivedRecords TakeApart(std::span<const std::uint8_t> stream)
{
    ReceivedRecords records;
    for (Bytes rest(stream); !rest.empty();)
    {
        records.push_back(TakeRecord(rest));
    }
    return records;
}

ReceivedRecords TakeOver(std::uint8_t* block, std::uint32_t length)
{
    Bytes::Require(block != nullptr, "there is no block");
    // One of nothing has a byte.
    Bytes::Require(length == 0 || GlobalSize(block) == length, "the block is of another size");
    ReceivedRecords records = TakeApart(std::span(block, length));
    Bytes::Require(GlobalFree(block) == nullptr, "the block isn't the system's");
    return records;
}

std::ostream& operator<<(std::ostream& stream, const ReceivedRecord& record)
{
    constexpr const char* types[] = {"boolean", "integer", "string"};
    stream << types[record.value.index()] << ' ' << ToUtf8(record.name) << '=';
    std::visit(
        [&](const auto& value) {
            if constexpr (std::is_same_v<decltype(value), const std::wstring&>)
            {
                stream << ToUtf8(value);
            }
            else
            {
                stream << value;
            }
        },
        record.value);
    return stream;
}

} // namespace norvepa::test
