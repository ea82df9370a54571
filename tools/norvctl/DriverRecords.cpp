#include "DriverRecords.h"

#include <array>
#include <fmt/format.h>
#include <stdexcept>

namespace norvctl
{

namespace
{

using Bytes = std::span<const std::uint8_t>;

enum RecordType : std::uint8_t
{
    BooleanType,
    IntegerType,
    StringType
};

constexpr std::size_t LengthBytes = 2; // of the length that a record begins with
constexpr std::size_t TypeBytes = 1;
constexpr std::size_t NumberBytes = 4; // of an integer, and of a boolean

std::uint32_t LittleEndian(Bytes bytes)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
    {
        number |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
    }
    return number;
}

// Takes the fields of a record one after the other. `where` is which record it is, for a message.
class FieldReader
{
public:
    FieldReader(std::string where, Bytes record) : m_where(std::move(where)), m_rest(record) {}

    [[noreturn]] void Refuse(const std::string& why) const
    {
        throw std::runtime_error(fmt::format("{} {}", m_where, why));
    }

    [[nodiscard]] Bytes Take(std::size_t size, const char* field)
    {
        if (size > m_rest.size())
        {
            Refuse(fmt::format("ends within its {}", field));
        }
        const Bytes taken = m_rest.first(size);
        m_rest = m_rest.subspan(size);
        return taken;
    }

    [[nodiscard]] std::size_t TakeLength(std::size_t size, const char* field)
    {
        return LittleEndian(Take(size, field));
    }

    // A field behind the byte that tells its length.
    [[nodiscard]] Bytes TakeCounted(const char* lengthField, const char* field)
    {
        return Take(TakeLength(1, lengthField), field);
    }

    [[nodiscard]] std::wstring Text(Bytes bytes, const char* field) const
    {
        if (bytes.size() % sizeof(wchar_t) != 0)
        {
            Refuse(fmt::format("has half a character in its {}", field));
        }
        std::wstring text;
        for (std::size_t i = 0; i < bytes.size(); i += sizeof(wchar_t))
        {
            text += static_cast<wchar_t>(LittleEndian(bytes.subspan(i, sizeof(wchar_t))));
        }
        return text;
    }

    [[nodiscard]] std::uint32_t Number(Bytes bytes) const
    {
        if (bytes.size() != NumberBytes)
        {
            Refuse(fmt::format("has a number of {} bytes instead of {}", bytes.size(), NumberBytes));
        }
        return LittleEndian(bytes);
    }

    [[nodiscard]] bool Boolean(Bytes bytes) const
    {
        const std::uint32_t number = Number(bytes);
        if (number > 1)
        {
            Refuse(fmt::format("has a boolean that is {}", number));
        }
        return number == 1;
    }

    void RequireEnd() const
    {
        if (!m_rest.empty())
        {
            Refuse(fmt::format("has bytes behind its value: {}", m_rest.size()));
        }
    }

private:
    std::string m_where;
    Bytes m_rest;
};

DriverValue DecodeValue(const FieldReader& reader, std::uint32_t type, Bytes bytes)
{
    switch (type)
    {
    case BooleanType:
        return reader.Boolean(bytes);
    case IntegerType:
        return static_cast<std::int32_t>(reader.Number(bytes));
    case StringType:
        return reader.Text(bytes, "value");
    default:
        reader.Refuse(fmt::format("has the unknown type {}", type));
    }
}

DriverRecord DecodeRecord(FieldReader reader)
{
    static_cast<void>(reader.Take(LengthBytes, "length"));
    const Bytes name = reader.TakeCounted("length of the name", "name");
    const Bytes type = reader.TakeCounted("length of the type", "type");
    const Bytes value = reader.TakeCounted("length of the value", "value");
    reader.RequireEnd();
    if (type.size() != TypeBytes)
    {
        reader.Refuse(fmt::format("has a type of {} bytes instead of {}", type.size(), TypeBytes));
    }
    return {reader.Text(name, "name"), DecodeValue(reader, LittleEndian(type), value)};
}

} // namespace

std::vector<DriverRecord> DecodeDriverRecords(const std::string& subject, Bytes block)
{
    std::vector<DriverRecord> records;
    while (!block.empty())
    {
        const std::string where = fmt::format("{}: record {}", subject, records.size() + 1);
        FieldReader rest(where, block);
        const std::size_t length = rest.TakeLength(LengthBytes, "length");
        if (length > block.size())
        {
            rest.Refuse(fmt::format("should have {} bytes, and {} are there", length, block.size()));
        }
        records.push_back(DecodeRecord({where, block.first(length)}));
        block = block.subspan(length);
    }
    return records;
}

const char* TypeWord(const DriverValue& value)
{
    constexpr std::array<const char*, 3> words{"boolean", "integer", "string"};

    return words[value.index()];
}

} // namespace norvctl
