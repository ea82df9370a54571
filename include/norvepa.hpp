/*
 * NorvepaBl64x for C++20, in one header over norvepa.h: link the import library and nothing else.
 *
 *     for (const std::wstring& name : norvepa::LogDevices())
 *     {
 *         const norvepa::Result<std::wstring> speed = norvepa::LogDevice(name).Get(L"baudrate");
 *         std::wcout << name << L' ' << speed.value_or(L"-") << L'\n';
 *     }
 *
 * What holds for everything here:
 *
 *   Text        is std::wstring, in and out, as long as it is; no caller sees a buffer. A text that goes in
 *               ends at its first zero character.
 *   Results     are a Result, which can't be dropped: the value, or the Error with the code and the export
 *               that answered it. Which codes an export answers, and when, is told in norvepa.h.
 *   Exceptions  come where the caller asks for them, by Result::value(), and out of a loop over an
 *               Enumeration, which has no other place to tell of a failure: Failure. std::bad_alloc may come
 *               out of everything that makes a text. Nothing else is thrown.
 *   Ownership   Names and enumerations are values and own nothing of the store. A Watch owns its registration
 *               and its event, an EditCopy its temporary log device, until they are destroyed.
 *   Threads     Different objects may be used on different threads, and so may one that is const. A thread
 *               that writes, changes a speed, or reads as a driver has COM initialised (CoInitializeEx); the
 *               one that the library was loaded on has.
 *   Spelling    Members that the standard library's types have too are spelled as there.
 *
 * What isn't here is called by norvepa.h; ReadText, ReadList and ReadParameters bring the buffers for it.
 */
#pragma once

#include "norvepa.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <ranges>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace norvepa
{

// Results ----------------------------------------------------------------------------------------------

namespace detail
{

struct CodeWord
{
    std::int32_t code;
    std::string_view word;
};

inline constexpr std::int32_t OutOfMemory = 14; // the system's ERROR_OUTOFMEMORY
inline constexpr std::int32_t InvalidData = 13; // the system's ERROR_INVALID_DATA

inline constexpr std::array CodeWords{
    CodeWord{PGSP_OK, "PGSP_OK"},
    CodeWord{PGSP_ERR_ACCESS_DENIED, "PGSP_ERR_ACCESS_DENIED"},
    CodeWord{InvalidData, "ERROR_INVALID_DATA"},
    CodeWord{OutOfMemory, "ERROR_OUTOFMEMORY"},
    CodeWord{PGSP_ERR_INVALID_PARAMETERS, "PGSP_ERR_INVALID_PARAMETERS"},
    CodeWord{PGSP_ERR_BUFFER_TOO_SHORT, "PGSP_ERR_BUFFER_TOO_SHORT"},
    CodeWord{PGSP_ERR_NO_MORE_ITEMS, "PGSP_ERR_NO_MORE_ITEMS"},
    CodeWord{PGSP_ERR_LOG_DEVICE_NOT_EXISTS, "PGSP_ERR_LOG_DEVICE_NOT_EXISTS"},
    CodeWord{PGSP_ERR_LOG_DEVICE_NOT_DELETABLE, "PGSP_ERR_LOG_DEVICE_NOT_DELETABLE"},
    CodeWord{PGSP_ERR_NOT_REGISTERED, "PGSP_ERR_NOT_REGISTERED"},
    CodeWord{PGSP_ERR_PARAM_DESC_NOT_FOUND, "PGSP_ERR_PARAM_DESC_NOT_FOUND"},
    CodeWord{PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND, "PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND"},
    CodeWord{PGSP_NOT_IN_LIST, "PGSP_NOT_IN_LIST"},
    CodeWord{PGSP_NOT_A_BOOL, "PGSP_NOT_A_BOOL"},
    CodeWord{PGSP_SET_VAL_LESS_THAN_MIN, "PGSP_SET_VAL_LESS_THAN_MIN"},
    CodeWord{PGSP_SET_VAL_BIGGER_THAN_MAX, "PGSP_SET_VAL_BIGGER_THAN_MAX"},
    CodeWord{PGSP_NOT_IN_STEP, "PGSP_NOT_IN_STEP"},
    CodeWord{PGSP_PROFILE_NO_VALUE, "PGSP_PROFILE_NO_VALUE"},
    CodeWord{PGSP_ERR_CANT_LOAD_DLL, "PGSP_ERR_CANT_LOAD_DLL"},
    CodeWord{PGSP_CANT_CREATE_TEMP_LOG_DEVICE, "PGSP_CANT_CREATE_TEMP_LOG_DEVICE"},
    CodeWord{PGSP_LOCKED_BY_THIS_THREAD, "PGSP_LOCKED_BY_THIS_THREAD"},
    CodeWord{PGSP_LOCKED_BY_OTHER_THREAD, "PGSP_LOCKED_BY_OTHER_THREAD"},
    CodeWord{PGSP_ERR_FILE_NOT_FOUND, "PGSP_ERR_FILE_NOT_FOUND"},
    CodeWord{PGSP_ERR_FILE_EXISTS, "PGSP_ERR_FILE_EXISTS"},
    CodeWord{PGSP_ERR_CANT_CREATE_XML_ENGINE, "PGSP_ERR_CANT_CREATE_XML_ENGINE"},
    CodeWord{PGSP_ERR_INVALID_FILE, "PGSP_ERR_INVALID_FILE"},
    CodeWord{PGSP_ERR_CANT_LOAD_XML_FILE, "PGSP_ERR_CANT_LOAD_XML_FILE"},
    CodeWord{PGSP_ERR_CANT_LOAD_SCHEMA, "PGSP_ERR_CANT_LOAD_SCHEMA"},
    CodeWord{PGSP_ERR_CANT_CREATE_FILE, "PGSP_ERR_CANT_CREATE_FILE"},
    CodeWord{PGSP_ERR_CANT_DELETE_FILE, "PGSP_ERR_CANT_DELETE_FILE"},
    CodeWord{PGSP_ERR_CANT_COPY_FILE, "PGSP_ERR_CANT_COPY_FILE"},
    CodeWord{PGSP_ERR_PARAM_NOT_FOUND, "PGSP_ERR_PARAM_NOT_FOUND"},
    CodeWord{PGSP_ERR_CANT_SET_VALUE, "PGSP_ERR_CANT_SET_VALUE"},
    CodeWord{PGSP_ERR_SAME_VALUE, "PGSP_ERR_SAME_VALUE"},
    CodeWord{PGSP_ERR_DRIVER_READ, "PGSP_ERR_DRIVER_READ"},
    CodeWord{PGSP_ERR_FOLDER_NOT_FOUND, "PGSP_ERR_FOLDER_NOT_FOUND"},
    CodeWord{PGSP_ERR_DUPLICATE_EVENT, "PGSP_ERR_DUPLICATE_EVENT"},
    CodeWord{PGSP_ERR_DRIVER_BUFFER, "PGSP_ERR_DRIVER_BUFFER"},
    CodeWord{PGSP_ERR_DRIVER_NO_MEMORY, "PGSP_ERR_DRIVER_NO_MEMORY"},
    CodeWord{PGSP_ERR_CANT_LOAD_RESOURCE, "PGSP_ERR_CANT_LOAD_RESOURCE"},
};

} // namespace detail

// The word of a result code, such as "PGSP_NOT_IN_STEP"; empty for a number that isn't one of the library's.
[[nodiscard]] constexpr std::string_view WordOf(std::int32_t code) noexcept
{
    for (const detail::CodeWord& each : detail::CodeWords)
    {
        if (each.code == code)
        {
            return each.word;
        }
    }
    return {};
}

// Why a call has failed.
class Error
{
public:
    // `call` is a literal: the name of the export, or of the function here, that has failed.
    constexpr Error(const char* call, std::int32_t code) noexcept : m_call(call), m_code(code) {}

    [[nodiscard]] constexpr std::int32_t code() const noexcept { return m_code; }
    [[nodiscard]] constexpr const char* call() const noexcept { return m_call; }

    // For a log or a developer: "LogDeviceSetValueBL: 8058 PGSP_NOT_IN_STEP".
    [[nodiscard]] std::string Message() const
    {
        std::string message = std::string(m_call) + ": " + std::to_string(m_code);
        const std::string_view word = WordOf(m_code);
        return word.empty() ? message : message.append(" ").append(word);
    }

    [[nodiscard]] friend constexpr bool operator==(const Error& left, const Error& right) noexcept
    {
        return left.m_code == right.m_code && std::string_view(left.m_call) == right.m_call;
    }

private:
    const char* m_call;
    std::int32_t m_code;
};

// An Error as an exception, with its Message() for what().
class Failure : public std::runtime_error
{
public:
    explicit Failure(const Error& error) : std::runtime_error(error.Message()), m_error(error) {}

    [[nodiscard]] const Error& error() const noexcept { return m_error; }

private:
    Error m_error;
};

// What a call has answered: a value, or an Error. A caller who drops it is told by the compiler.
template <typename Value>
class [[nodiscard]] Result
{
public:
    using value_type = Value;
    using error_type = Error;

    Result(Value value) : m_answer(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) noexcept : m_answer(std::in_place_index<1>, error) {}

    // A Result<bool> has no conversion, which could be taken for its value.
    [[nodiscard]] bool has_value() const noexcept { return m_answer.index() == 0; }
    [[nodiscard]] explicit operator bool() const noexcept requires(!std::is_same_v<Value, bool>)
    {
        return has_value();
    }

    // Throws Failure where there is none. Of a temporary Result it is a copy of one's own, so that a loop may
    // go over Values().value().
    const Value& value() const&
    {
        RequireValue();
        return std::get<0>(m_answer);
    }
    Value value() &&
    {
        RequireValue();
        return std::get<0>(std::move(m_answer));
    }

    // The same, to be used where has_value().
    [[nodiscard]] const Value& operator*() const& { return value(); }
    [[nodiscard]] Value operator*() && { return std::move(*this).value(); }
    [[nodiscard]] const Value* operator->() const { return &value(); }

    [[nodiscard]] Value value_or(Value otherwise) const&
    {
        return has_value() ? std::get<0>(m_answer) : std::move(otherwise);
    }
    [[nodiscard]] Value value_or(Value otherwise) &&
    {
        return has_value() ? std::get<0>(std::move(m_answer)) : std::move(otherwise);
    }

    // Throws std::bad_variant_access where there is a value.
    [[nodiscard]] const Error& error() const { return std::get<1>(m_answer); }

private:
    void RequireValue() const
    {
        if (!has_value())
        {
            throw Failure(error());
        }
    }

    std::variant<Value, Error> m_answer;
};

// Of a call that answers nothing but whether it has succeeded.
template <>
class [[nodiscard]] Result<void>
{
public:
    using value_type = void;
    using error_type = Error;

    Result() noexcept = default; // success
    Result(Error error) noexcept : m_error(error) {}

    [[nodiscard]] bool has_value() const noexcept { return !m_error.has_value(); }
    [[nodiscard]] explicit operator bool() const noexcept { return has_value(); }

    // Throws Failure for a call that has failed.
    void value() const
    {
        if (m_error)
        {
            throw Failure(*m_error);
        }
    }

    // Throws std::bad_optional_access for a call that has succeeded.
    [[nodiscard]] const Error& error() const { return m_error.value(); }

private:
    std::optional<Error> m_error;
};

// A parameter with its value.
struct Parameter
{
    std::wstring name;
    std::wstring value;

    friend bool operator==(const Parameter&, const Parameter&) = default;
};

// Buffers ----------------------------------------------------------------------------------------------

namespace detail
{

[[nodiscard]] inline Result<void> Told(const char* call, std::int32_t result)
{
    return result == PGSP_OK ? Result<void>() : Error(call, result);
}

// Most answers fit at once. It is large because some exports pass over a value that doesn't fit, and answer
// from the next place: where norvepa.h says so, values up to this length are found.
inline constexpr std::uint32_t FirstRoom = 4096; // characters

// The room of a buffer, which may turn out too small. The export then tells the length that it needs, or
// leaves the length as it was: either the text has as many characters as there was room, without its
// terminator, or it was something else that was too long, such as a path. Twice the room shows which.
class Room
{
public:
    [[nodiscard]] std::uint32_t size() const noexcept { return m_size; }

    // For the length that a call has told which found the room too small; whether another try makes sense.
    [[nodiscard]] bool GrowFor(std::uint32_t told) noexcept
    {
        if (told > m_size)
        {
            m_size = told + 1;
            return m_size != 0;
        }
        if (told < m_size || m_isDoubled)
        {
            return false;
        }
        m_isDoubled = true;
        m_size *= 2;
        return true;
    }

private:
    std::uint32_t m_size = FirstRoom;
    bool m_isDoubled = false;
};

// Takes a list apart: texts one behind the other, each with its terminator.
[[nodiscard]] inline std::vector<std::wstring> Split(std::wstring_view list)
{
    std::vector<std::wstring> texts;
    for (std::size_t at = 0; at < list.size();)
    {
        const std::wstring_view rest = list.substr(at);
        const std::wstring_view text = rest.substr(0, rest.find(L'\0'));
        texts.emplace_back(text);
        at += text.size() + 1;
    }
    return texts;
}

} // namespace detail

/*
 * Reads a text of any length.
 *
 *   call  the export's name, for the Error
 *   read  calls it with a buffer and its length and gives back what it answers:
 *         [&](wchar_t* text, std::uint32_t* length) { return GetValueInPGSP_BL(name, text, length); }
 */
template <typename Read>
[[nodiscard]] Result<std::wstring> ReadText(const char* call, const Read& read)
{
    for (detail::Room room;;)
    {
        std::wstring buffer(room.size(), L'\0');
        std::uint32_t length = room.size();
        const std::int32_t result = read(buffer.data(), &length);
        if (result == PGSP_OK)
        {
            return std::wstring(buffer, 0, length);
        }
        if (result != PGSP_ERR_BUFFER_TOO_SHORT || !room.GrowFor(length))
        {
            return Error(call, result);
        }
    }
}

/*
 * Reads a list of texts, of an export whose list ends with one more terminator behind the last text and whose
 * length counts that. Arguments as of ReadText.
 */
template <typename Read>
[[nodiscard]] Result<std::vector<std::wstring>> ReadList(const char* call, const Read& read)
{
    const Result<std::wstring> list = ReadText(call, read);
    if (!list)
    {
        return list.error();
    }
    return detail::Split(std::wstring_view(*list).substr(0, list->empty() ? 0 : list->size() - 1));
}

/*
 * Reads one of the pairs that an export enumerates.
 *
 *   call  the export's name, for the Error
 *   read  calls it with two buffers: [&](wchar_t* name, std::uint32_t* nameLength, wchar_t* value,
 *         std::uint32_t* valueLength)
 */
template <typename Read>
[[nodiscard]] Result<Parameter> ReadParameter(const char* call, const Read& read)
{
    for (detail::Room nameRoom, valueRoom;;)
    {
        std::wstring name(nameRoom.size(), L'\0');
        std::wstring value(valueRoom.size(), L'\0');
        std::uint32_t nameLength = nameRoom.size();
        std::uint32_t valueLength = valueRoom.size();
        const std::int32_t result = read(name.data(), &nameLength, value.data(), &valueLength);
        if (result == PGSP_OK)
        {
            return Parameter{std::wstring(name, 0, nameLength), std::wstring(value, 0, valueLength)};
        }
        if (result != PGSP_ERR_BUFFER_TOO_SHORT ||
            !(nameRoom.GrowFor(nameLength) || valueRoom.GrowFor(valueLength)))
        {
            return Error(call, result);
        }
    }
}

/*
 * Reads all pairs that an export enumerates, to the end: the library answers such a walk from what it knew
 * when the walk began, and lets go of that at its end, so that none is ever left unfinished here.
 *
 *   call  the export's name, for the Error
 *   read  as of ReadParameter, with the index, from 0, ahead of the buffers
 */
template <typename Read>
[[nodiscard]] Result<std::vector<Parameter>> ReadParameters(const char* call, const Read& read)
{
    std::vector<Parameter> all;
    for (std::uint32_t index = 0;; ++index)
    {
        Result<Parameter> next = ReadParameter(
            call, [&](wchar_t* name, std::uint32_t* nameLength, wchar_t* value, std::uint32_t* valueLength) {
                return read(index, name, nameLength, value, valueLength);
            });
        if (next)
        {
            all.push_back(std::move(next).value());
        }
        else if (next.error().code() == PGSP_ERR_NO_MORE_ITEMS)
        {
            return all;
        }
        else
        {
            return next.error();
        }
    }
}

// Enumerations -----------------------------------------------------------------------------------------

/*
 * A range over what the store has: a view and an input range, which asks the library as the loop goes on.
 * Each begin() begins anew and sees the store as it is then. What comes or goes during a loop may be missed,
 * or shift the rest by one.
 *
 * The end is the library's PGSP_ERR_NO_MORE_ITEMS. Any other failure is thrown as Failure, out of begin() or
 * ++; whoever wants a Result instead takes All(). One that has been moved from has no items.
 */
template <typename Item>
class Enumeration : public std::ranges::view_base
{
public:
    // Gives the item of an index, and PGSP_ERR_NO_MORE_ITEMS behind the last.
    using Fetch = std::function<Result<Item>(std::uint32_t index)>;

    // Good for as long as its Enumeration stands where it stood. It may be copied; copies go on by
    // themselves.
    class iterator
    {
    public:
        using value_type = Item;
        using difference_type = std::ptrdiff_t;
        using iterator_concept = std::input_iterator_tag;

        iterator() = default; // at the end
        explicit iterator(const Fetch& fetch) : m_fetch(&fetch) { Take(); }

        [[nodiscard]] const Item& operator*() const { return m_item.value(); }
        [[nodiscard]] const Item* operator->() const { return &m_item.value(); }

        iterator& operator++()
        {
            if (m_item)
            {
                ++m_index;
                Take();
            }
            return *this;
        }
        void operator++(int) { ++*this; }

        [[nodiscard]] friend bool operator==(const iterator& at, std::default_sentinel_t) noexcept
        {
            return !at.m_item.has_value();
        }

    private:
        void Take()
        {
            m_item.reset();
            Result<Item> next = (*m_fetch)(m_index);
            if (next)
            {
                m_item = std::move(next).value();
            }
            else if (next.error().code() != PGSP_ERR_NO_MORE_ITEMS)
            {
                throw Failure(next.error());
            }
        }

        const Fetch* m_fetch = nullptr;
        std::uint32_t m_index = 0;
        std::optional<Item> m_item; // none at the end
    };

    explicit Enumeration(Fetch fetch) : m_fetch(std::move(fetch)) {}

    [[nodiscard]] iterator begin() const { return m_fetch ? iterator(m_fetch) : iterator(); }
    [[nodiscard]] std::default_sentinel_t end() const noexcept { return {}; }

    // All items at once; nothing but std::bad_alloc is thrown.
    [[nodiscard]] Result<std::vector<Item>> All() const
    {
        std::vector<Item> items;
        for (std::uint32_t index = 0; m_fetch; ++index)
        {
            Result<Item> next = m_fetch(index);
            if (next)
            {
                items.push_back(std::move(next).value());
            }
            else if (next.error().code() != PGSP_ERR_NO_MORE_ITEMS)
            {
                return next.error();
            }
            else
            {
                break;
            }
        }
        return items;
    }

private:
    Fetch m_fetch;
};

namespace detail
{

// An enumeration of texts by an export: read(index, text, length).
template <typename Read>
[[nodiscard]] Enumeration<std::wstring> Texts(const char* call, Read read)
{
    return Enumeration<std::wstring>([call, read = std::move(read)](std::uint32_t index) {
        return ReadText(call,
                        [&](wchar_t* text, std::uint32_t* length) { return read(index, text, length); });
    });
}

// Files of the catalogue as a person knows them.
[[nodiscard]] inline Enumeration<std::wstring> CatalogueFiles(const wchar_t* folder)
{
    return Texts("PGSP_TemplateGetEnumNoPrefixBL",
                 [folder](std::uint32_t index, wchar_t* name, std::uint32_t* length) {
                     return PGSP_TemplateGetEnumNoPrefixBL(folder, index, name, length);
                 });
}

// For what may be left out.
[[nodiscard]] inline const wchar_t* OrNull(const std::wstring& text)
{
    return text.empty() ? nullptr : text.c_str();
}

} // namespace detail

// The names of the log devices that are neither hidden nor temporary; of those with this CP_TYPE, in any
// case, or of all.
[[nodiscard]] inline Enumeration<std::wstring> LogDevices(const std::wstring& protocol = {})
{
    return detail::Texts("LogDeviceGetEnumBL",
                         [protocol](std::uint32_t index, wchar_t* name, std::uint32_t* length) {
                             return LogDeviceGetEnumBL(detail::OrNull(protocol), index, name, length);
                         });
}

// A log device of a board, with its parameter Unit.
struct BoardUse
{
    std::wstring logDevice;
    std::wstring unit;

    friend bool operator==(const BoardUse&, const BoardUse&) = default;
};

// The log devices of a board, by its identity as they have it, in any case, with the "*" it may begin with.
[[nodiscard]] inline Enumeration<BoardUse> LogDevicesOf(const std::wstring& deviceId)
{
    return Enumeration<BoardUse>([deviceId](std::uint32_t index) -> Result<BoardUse> {
        Result<Parameter> use =
            ReadParameter("LogDeviceGetEnumByDeviceIdBL", [&](wchar_t* name, std::uint32_t* nameLength,
                                                              wchar_t* unit, std::uint32_t* unitLength) {
                return LogDeviceGetEnumByDeviceIdBL(deviceId.c_str(), index, name, nameLength, unit,
                                                    unitLength);
            });
        if (!use)
        {
            return use.error();
        }
        return BoardUse{use->name, use->value};
    });
}

// The names of the log names that aren't hidden.
[[nodiscard]] inline Enumeration<std::wstring> LogNames()
{
    return detail::Texts("LogNameGetEnumBL", [](std::uint32_t index, wchar_t* name, std::uint32_t* length) {
        return LogNameGetEnumBL(index, name, length);
    });
}

// What the catalogue has: boards by their DeviceID, protocols by their CP_TYPE, templates by what Create
// takes. Which files there are is read at the first question of the process.
[[nodiscard]] inline Enumeration<std::wstring> Boards()
{
    return detail::CatalogueFiles(L"Boards");
}

[[nodiscard]] inline Enumeration<std::wstring> Protocols()
{
    return detail::CatalogueFiles(L"Protocols");
}

[[nodiscard]] inline Enumeration<std::wstring> Templates()
{
    return detail::CatalogueFiles(L"DefaultLogDevices");
}

// The catalogue ----------------------------------------------------------------------------------------

// A board of the catalogue: by the DeviceID of a log device, with or without a leading "*", or by its file's
// name.
class Board
{
public:
    explicit Board(std::wstring name) : m_name(std::move(name)) {}

    [[nodiscard]] const std::wstring& name() const noexcept { return m_name; }

    // One value, of the root element, "Install" or "BoardAttributes". PGSP_BoardGetValueBL.
    [[nodiscard]] Result<std::wstring> Get(const std::wstring& parameter) const
    {
        return ReadText("PGSP_BoardGetValueBL", [&](wchar_t* value, std::uint32_t* length) {
            return PGSP_BoardGetValueBL(m_name.c_str(), parameter.c_str(), value, length);
        });
    }

    // All values, attributes of the root element behind the others. PGSP_BoardGetEnumValueBL.
    [[nodiscard]] Result<std::vector<Parameter>> Values() const
    {
        return ReadParameters("PGSP_BoardGetEnumValueBL", [&](std::uint32_t index, wchar_t* name,
                                                              std::uint32_t* nameLength, wchar_t* value,
                                                              std::uint32_t* valueLength) {
            return PGSP_BoardGetEnumValueBL(m_name.c_str(), index, name, nameLength, value, valueLength);
        });
    }

    // A list of values by its path, such as "Constraints\baudrate"; none where the board has no such list.
    // PGSP_BoardGetValueCollectionBL.
    [[nodiscard]] Result<std::vector<std::wstring>> List(const std::wstring& path) const
    {
        return ReadList("PGSP_BoardGetValueCollectionBL", [&](wchar_t* values, std::uint32_t* length) {
            const std::int32_t result =
                PGSP_BoardGetValueCollectionBL(path.c_str(), m_name.c_str(), values, length);
            return TooShortForTheEnd(result);
        });
    }

    // What the board can't do. PGSP_BoardGetNotSupportedBL.
    [[nodiscard]] Result<std::vector<std::wstring>> NotSupported() const
    {
        return ReadList("PGSP_BoardGetNotSupportedBL", [&](wchar_t* values, std::uint32_t* length) {
            return TooShortForTheEnd(PGSP_BoardGetNotSupportedBL(m_name.c_str(), values, length));
        });
    }

    // What a person is shown, by a link of the 64-bit interface and in a language of two characters, or the
    // user's own. PGSP_BoardGetResourceStringBL.
    [[nodiscard]] Result<std::wstring> Text(const std::wstring& link, const std::wstring& language = {}) const
    {
        return ReadText("PGSP_BoardGetResourceStringBL", [&](wchar_t* text, std::uint32_t* length) {
            return PGSP_BoardGetResourceStringBL(m_name.c_str(), link.c_str(), detail::OrNull(language), text,
                                                 length, 0);
        });
    }

    friend bool operator==(const Board&, const Board&) = default;

private:
    // What these two answer when there is room for all but the last terminator.
    [[nodiscard]] static std::int32_t TooShortForTheEnd(std::int32_t result) noexcept
    {
        return result == PGSP_ERR_NO_MORE_ITEMS ? static_cast<std::int32_t>(PGSP_ERR_BUFFER_TOO_SHORT)
                                                : result;
    }

    std::wstring m_name;
};

// A protocol of the catalogue: by the CP_TYPE of a log device, or by its file's name.
class Protocol
{
public:
    explicit Protocol(std::wstring name) : m_name(std::move(name)) {}

    [[nodiscard]] const std::wstring& name() const noexcept { return m_name; }

    // All parameters with their defaults. PGSP_ProtocolGetEnumValueBL.
    [[nodiscard]] Result<std::vector<Parameter>> Defaults() const { return Enumerate({}); }

    // What is said of one parameter, word by word: "type", "min", "max" and so on.
    // PGSP_ProtocolGetEnumValueBL.
    [[nodiscard]] Result<std::vector<Parameter>> Words(const std::wstring& parameter) const
    {
        return Enumerate(parameter);
    }

    // The bus profiles, and PGSP_ERR_PARAM_NOT_FOUND for a protocol without any.
    // PGSP_ProtocolGetEnumBusprofilesBL.
    [[nodiscard]] Enumeration<std::wstring> BusProfiles() const
    {
        return detail::Texts("PGSP_ProtocolGetEnumBusprofilesBL",
                             [name = m_name](std::uint32_t index, wchar_t* profile, std::uint32_t* length) {
                                 return PGSP_ProtocolGetEnumBusprofilesBL(name.c_str(), index, profile,
                                                                          length);
                             });
    }

    // The baud rates, in all or under a bus profile by its number. PGSP_ProtocolGetEnumBaudrateBL.
    [[nodiscard]] Enumeration<std::wstring> BaudRates(const std::wstring& busProfile = {}) const
    {
        return detail::Texts(
            "PGSP_ProtocolGetEnumBaudrateBL",
            [name = m_name, busProfile](std::uint32_t index, wchar_t* rate, std::uint32_t* length) {
                return PGSP_ProtocolGetEnumBaudrateBL(name.c_str(), detail::OrNull(busProfile), index, rate,
                                                      length);
            });
    }

    friend bool operator==(const Protocol&, const Protocol&) = default;

private:
    [[nodiscard]] Result<std::vector<Parameter>> Enumerate(const std::wstring& parameter) const
    {
        return ReadParameters("PGSP_ProtocolGetEnumValueBL", [&](std::uint32_t index, wchar_t* name,
                                                                 std::uint32_t* nameLength, wchar_t* value,
                                                                 std::uint32_t* valueLength) {
            return PGSP_ProtocolGetEnumValueBL(m_name.c_str(), detail::OrNull(parameter), nullptr, nullptr,
                                               nullptr, index, name, nameLength, value, valueLength);
        });
    }

    std::wstring m_name;
};

// A template of the catalogue, which log devices are made from: with or without what its file's name begins
// with.
class Template
{
public:
    explicit Template(std::wstring name) : m_name(std::move(name)) {}

    [[nodiscard]] const std::wstring& name() const noexcept { return m_name; }

    // One value, or a link of the 64-bit interface. PGSP_DefDeviceGetValueBL.
    [[nodiscard]] Result<std::wstring> Get(const std::wstring& parameter) const
    {
        return ReadText("PGSP_DefDeviceGetValueBL", [&](wchar_t* value, std::uint32_t* length) {
            return PGSP_DefDeviceGetValueBL(m_name.c_str(), parameter.c_str(), value, length, 0);
        });
    }

    // All values, attributes of the root element behind the others. PGSP_DefDeviceGetEnumValueBL.
    [[nodiscard]] Result<std::vector<Parameter>> Values() const
    {
        return ReadParameters("PGSP_DefDeviceGetEnumValueBL", [&](std::uint32_t index, wchar_t* name,
                                                                  std::uint32_t* nameLength, wchar_t* value,
                                                                  std::uint32_t* valueLength) {
            return PGSP_DefDeviceGetEnumValueBL(m_name.c_str(), index, name, nameLength, value, valueLength);
        });
    }

    friend bool operator==(const Template&, const Template&) = default;

private:
    std::wstring m_name;
};

// What the catalogue says of a parameter of a log device. A word that neither board nor protocol has is left
// out; a parameter without any may hold everything.
struct Constraint
{
    std::optional<std::wstring> type; // "int", "bool", or a text
    std::optional<std::wstring> min;
    std::optional<std::wstring> max;
    std::optional<std::wstring> step; // counts from min
    std::optional<std::wstring> base; // of the numbers: 10 unless told
    std::optional<std::wstring> standard;

    friend bool operator==(const Constraint&, const Constraint&) = default;
};

// What a driver receives ---------------------------------------------------------------------------------

struct DriverRecord
{
    std::wstring name;
    std::variant<bool, std::int32_t, std::wstring> value; // in the order of the records' type numbers

    friend bool operator==(const DriverRecord&, const DriverRecord&) = default;
};

namespace detail
{

using Bytes = std::span<const std::uint8_t>;

[[nodiscard]] inline std::uint32_t LittleEndian(Bytes bytes) noexcept
{
    std::uint32_t number = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
    {
        number = number << 8 | *byte;
    }
    return number;
}

// Takes the fields of a record one after the other. What isn't there is none.
class RecordReader
{
public:
    explicit RecordReader(Bytes record) noexcept : m_rest(record) {}

    [[nodiscard]] bool isAtEnd() const noexcept { return m_rest.empty(); }

    [[nodiscard]] std::optional<Bytes> Take(std::size_t size) noexcept
    {
        if (size > m_rest.size())
        {
            return std::nullopt;
        }
        const Bytes taken = m_rest.first(size);
        m_rest = m_rest.subspan(size);
        return taken;
    }

    // A field behind the byte that tells its length.
    [[nodiscard]] std::optional<Bytes> TakeCounted() noexcept
    {
        const std::optional<Bytes> length = Take(1);
        return length ? Take(length->front()) : std::nullopt;
    }

private:
    Bytes m_rest;
};

[[nodiscard]] inline std::optional<std::wstring> RecordText(Bytes bytes)
{
    constexpr std::size_t size = 2; // bytes of a character
    if (bytes.size() % size != 0)
    {
        return std::nullopt;
    }
    std::wstring text;
    for (std::size_t at = 0; at < bytes.size(); at += size)
    {
        text += static_cast<wchar_t>(LittleEndian(bytes.subspan(at, size)));
    }
    return text;
}

[[nodiscard]] inline std::optional<decltype(DriverRecord::value)> RecordValue(std::uint32_t type, Bytes bytes)
{
    enum RecordType : std::uint32_t
    {
        Boolean,
        Integer,
        String
    };

    if (type == String)
    {
        std::optional<std::wstring> text = RecordText(bytes);
        return text ? std::optional<decltype(DriverRecord::value)>(*std::move(text)) : std::nullopt;
    }
    if (bytes.size() != sizeof(std::int32_t))
    {
        return std::nullopt;
    }
    const std::uint32_t number = LittleEndian(bytes);
    if (type == Integer)
    {
        return static_cast<std::int32_t>(number);
    }
    return type == Boolean && number <= 1 ? std::optional<decltype(DriverRecord::value)>(number == 1)
                                          : std::nullopt;
}

// Of a record without the length that it begins with.
[[nodiscard]] inline std::optional<DriverRecord> DecodeRecord(RecordReader reader)
{
    const std::optional<Bytes> name = reader.TakeCounted();
    const std::optional<Bytes> type = reader.TakeCounted();
    const std::optional<Bytes> bytes = reader.TakeCounted();
    if (!name || !type || !bytes || type->size() != 1 || !reader.isAtEnd())
    {
        return std::nullopt;
    }
    std::optional<std::wstring> text = RecordText(*name);
    auto value = RecordValue(type->front(), *bytes);
    if (!text || !value)
    {
        return std::nullopt;
    }
    return DriverRecord{*std::move(text), *std::move(value)};
}

struct FreeGlobal
{
    void operator()(std::uint8_t* block) const noexcept { GlobalFree(block); }
};

} // namespace detail

// The records of norvDriverReadLogDevice. Nothing is guessed: a block whose lengths don't add up, or with a
// value that isn't of its type, is 13, the system's ERROR_INVALID_DATA, as a whole.
[[nodiscard]] inline Result<std::vector<DriverRecord>> DecodeDriverRecords(
    std::span<const std::uint8_t> block)
{
    constexpr std::size_t lengthSize = 2; // bytes of the length that a record begins with
    const Error damaged("DecodeDriverRecords", detail::InvalidData);

    std::vector<DriverRecord> records;
    for (detail::RecordReader blocks(block); !blocks.isAtEnd();)
    {
        const std::optional<detail::Bytes> length = blocks.Take(lengthSize);
        const std::size_t size = length ? detail::LittleEndian(*length) : 0;
        const std::optional<detail::Bytes> rest =
            size < lengthSize ? std::nullopt : blocks.Take(size - lengthSize);
        std::optional<DriverRecord> record =
            rest ? detail::DecodeRecord(detail::RecordReader(*rest)) : std::nullopt;
        if (!record)
        {
            return damaged;
        }
        records.push_back(*std::move(record));
    }
    return records;
}

// Log devices ------------------------------------------------------------------------------------------

// What is asked of a file.
enum class Access : std::int32_t
{
    Existence = 0,
    Writing = 2,
    Reading = 4,
    ReadingAndWriting = 6,
};

// Whether the log device's own "enable_delete" decides of its removal.
enum class Permission : std::int32_t
{
    Asked = 0,
    Waived = 1,
};

/*
 * A log device by its name, or a subdevice of one: device\subdevices\sub. A value, which is there whether or
 * not the log device is. One that has been moved from has some name, mostly none.
 *
 * Changes are announced to the watches of this process, but those of temporary log devices.
 */
class LogDevice
{
public:
    explicit LogDevice(std::wstring name) : m_name(std::move(name)) {}

    // Makes a log device from a template. LogDeviceCreateFromDefBL.
    [[nodiscard]] static Result<LogDevice> Create(const std::wstring& name, const Template& from)
    {
        const std::int32_t result = LogDeviceCreateFromDefBL(from.name().c_str(), name.c_str());
        return result == PGSP_OK ? Result<LogDevice>(LogDevice(name))
                                 : Error("LogDeviceCreateFromDefBL", result);
    }

    [[nodiscard]] const std::wstring& name() const noexcept { return m_name; }

    // Whether it is there, and may be used like that. LogDeviceExistBL.
    [[nodiscard]] Result<bool> Exists(Access access = Access::Existence) const
    {
        switch (const std::int32_t result =
                    LogDeviceExistBL(m_name.c_str(), static_cast<std::int32_t>(access)))
        {
        case PGSP_OK:
            return true;
        case PGSP_ERR_ACCESS_DENIED:
        case PGSP_ERR_FILE_NOT_FOUND:
        case PGSP_ERR_PARAM_NOT_FOUND: // the log device is there, the subdevice isn't
            return false;
        default:
            return Error("LogDeviceExistBL", result);
        }
    }

    // One value, or the catalogue's default for it. LogDeviceGetValueBL.
    [[nodiscard]] Result<std::wstring> Get(const std::wstring& parameter) const
    {
        return ReadText("LogDeviceGetValueBL", [&](wchar_t* value, std::uint32_t* length) {
            return LogDeviceGetValueBL(m_name.c_str(), parameter.c_str(), value, length);
        });
    }

    // One value of a section, such as "Ndi", or of the first of five that has it for an empty one; without a
    // default. LogDeviceGetValueExBL.
    [[nodiscard]] Result<std::wstring> GetFrom(const std::wstring& section,
                                               const std::wstring& parameter) const
    {
        return ReadText("LogDeviceGetValueExBL", [&](wchar_t* value, std::uint32_t* length) {
            return LogDeviceGetValueExBL(m_name.c_str(), section.c_str(), parameter.c_str(), value, length);
        });
    }

    // All values, attributes of the root element behind the others. LogDeviceGetEnumValueBL.
    [[nodiscard]] Result<std::vector<Parameter>> Values() const
    {
        return ReadParameters("LogDeviceGetEnumValueBL", [&](std::uint32_t index, wchar_t* name,
                                                             std::uint32_t* nameLength, wchar_t* value,
                                                             std::uint32_t* valueLength) {
            return LogDeviceGetEnumValueBL(m_name.c_str(), index, name, nameLength, value, valueLength);
        });
    }

    // Sets a value that the catalogue allows; a refusal is a code from PGSP_NOT_IN_LIST to PGSP_NOT_IN_STEP,
    // of which Allowed and Choices tell more. LogDeviceSetValueBL.
    [[nodiscard]] Result<void> Set(const std::wstring& parameter, const std::wstring& value) const
    {
        return detail::Told("LogDeviceSetValueBL",
                            LogDeviceSetValueBL(m_name.c_str(), parameter.c_str(), value.c_str()));
    }

    // Removes a parameter, if the schema allows it. LogDeviceDelValueBL.
    [[nodiscard]] Result<void> Unset(const std::wstring& parameter) const
    {
        return detail::Told("LogDeviceDelValueBL", LogDeviceDelValueBL(m_name.c_str(), parameter.c_str()));
    }

    // Sets the baud rate and all that follows from it. LogDeviceSetBusparamsBL.
    [[nodiscard]] Result<void> ChangeSpeed(const std::wstring& baudRate) const
    {
        return detail::Told("LogDeviceSetBusparamsBL",
                            LogDeviceSetBusparamsBL(m_name.c_str(), baudRate.c_str()));
    }

    // Makes a copy, visible and removable whatever this one is, and gives that back. LogDeviceCopyBL.
    [[nodiscard]] Result<LogDevice> CopyTo(const std::wstring& name) const
    {
        const std::int32_t result = LogDeviceCopyBL(m_name.c_str(), name.c_str());
        return result == PGSP_OK ? Result<LogDevice>(LogDevice(name)) : Error("LogDeviceCopyBL", result);
    }

    // Removes it with its subdevices; log names that are linked to it keep their link. LogDeviceDelBL.
    [[nodiscard]] Result<void> Delete(Permission permission = Permission::Asked) const
    {
        return detail::Told("LogDeviceDelBL",
                            LogDeviceDelBL(m_name.c_str(), static_cast<std::int32_t>(permission)));
    }

    // What its board, or else its protocol, says of a parameter. LogDeviceGetParamDescBL.
    [[nodiscard]] Result<Constraint> Allowed(const std::wstring& parameter) const
    {
        struct Place
        {
            const wchar_t* word;
            std::optional<std::wstring> Constraint::*text;
        };
        constexpr std::array places{
            Place{L"type", &Constraint::type}, Place{L"min", &Constraint::min},
            Place{L"max", &Constraint::max},   Place{L"step", &Constraint::step},
            Place{L"base", &Constraint::base}, Place{L"default", &Constraint::standard}};

        Constraint constraint;
        for (const Place& place : places)
        {
            Result<std::wstring> text = Describe(parameter, place.word);
            if (text)
            {
                constraint.*place.text = std::move(text).value();
            }
            else if (text.error().code() != PGSP_ERR_PARAM_DESC_NOT_FOUND)
            {
                return text.error();
            }
        }
        return constraint;
    }

    // One word of that; or of parameter\value the description of the value. LogDeviceGetParamDescBL.
    [[nodiscard]] Result<std::wstring> Describe(const std::wstring& parameter, const std::wstring& word) const
    {
        return ReadText("LogDeviceGetParamDescBL", [&](wchar_t* text, std::uint32_t* length) {
            return LogDeviceGetParamDescBL(m_name.c_str(), parameter.c_str(), word.c_str(), text, length);
        });
    }

    // The values to choose from: those that the board lists, or else the protocol; none where nobody lists
    // any. PGSP_LogDeviceGetMostSpecializedEnumListBL.
    [[nodiscard]] Result<std::vector<std::wstring>> Choices(const std::wstring& parameter) const
    {
        constexpr std::uint32_t mostRoom = 1U << 24; // characters; a list has far fewer
        for (std::uint32_t room = detail::FirstRoom;; room *= 2)
        {
            // The closing terminator has a place of its own, and how much room is needed isn't told.
            std::wstring list(std::size_t{room} + 1, L'\0');
            std::uint32_t length = room;
            const std::int32_t result = PGSP_LogDeviceGetMostSpecializedEnumListBL(
                m_name.c_str(), parameter.c_str(), list.data(), &length);
            if (result == PGSP_OK)
            {
                return detail::Split(std::wstring_view(list).substr(0, length));
            }
            if (result != PGSP_ERR_BUFFER_TOO_SHORT || room >= mostRoom)
            {
                return Error("PGSP_LogDeviceGetMostSpecializedEnumListBL", result);
            }
        }
    }

    // The values that board and protocol both list. PGSP_LogDeviceGetAverageEnumListBL.
    [[nodiscard]] Result<std::vector<std::wstring>> CommonChoices(const std::wstring& parameter) const
    {
        const Result<std::wstring> list =
            ReadText("PGSP_LogDeviceGetAverageEnumListBL", [&](wchar_t* values, std::uint32_t* length) {
                return PGSP_LogDeviceGetAverageEnumListBL(m_name.c_str(), parameter.c_str(), values, length);
            });
        if (!list)
        {
            return list.error();
        }
        return detail::Split(*list); // the last terminator isn't told here
    }

    // What a person is shown, by a link of the 64-bit interface and in a language of two characters, or the
    // user's own. PGSP_LogDeviceGetResourceStringBL.
    [[nodiscard]] Result<std::wstring> Text(const std::wstring& link, const std::wstring& language = {}) const
    {
        return ReadText("PGSP_LogDeviceGetResourceStringBL", [&](wchar_t* text, std::uint32_t* length) {
            return PGSP_LogDeviceGetResourceStringBL(m_name.c_str(), link.c_str(), detail::OrNull(language),
                                                     text, length, 0);
        });
    }

    // What its driver receives, decoded; the block is released. norvDriverReadLogDevice.
    [[nodiscard]] Result<std::vector<DriverRecord>> ReadAsDriver() const
    {
        std::uint8_t* block = nullptr;
        std::uint32_t length = 0;
        const std::int32_t result = norvDriverReadLogDevice(m_name.c_str(), &block, &length);
        const std::unique_ptr<std::uint8_t, detail::FreeGlobal> owner(block);
        if (result != PGSP_OK)
        {
            return Error("norvDriverReadLogDevice", result);
        }
        return DecodeDriverRecords({block, length});
    }

    friend bool operator==(const LogDevice&, const LogDevice&) = default;

private:
    std::wstring m_name;
};

// Log names --------------------------------------------------------------------------------------------

// A log name: a value, as LogDevice is.
class LogName
{
public:
    explicit LogName(std::wstring name) : m_name(std::move(name)) {}

    // Makes a log name. LogNameCreateBL.
    [[nodiscard]] static Result<LogName> Create(const std::wstring& name)
    {
        const std::int32_t result = LogNameCreateBL(name.c_str());
        return result == PGSP_OK ? Result<LogName>(LogName(name)) : Error("LogNameCreateBL", result);
    }

    [[nodiscard]] const std::wstring& name() const noexcept { return m_name; }

    // Whether it is there, and may be used like that. LogNameExistBL.
    [[nodiscard]] Result<bool> Exists(Access access = Access::Existence) const
    {
        switch (const std::int32_t result = LogNameExistBL(m_name.c_str(), static_cast<std::int32_t>(access)))
        {
        case PGSP_OK:
            return true;
        case PGSP_ERR_ACCESS_DENIED:
        case PGSP_ERR_FILE_NOT_FOUND:
            return false;
        default:
            return Error("LogNameExistBL", result);
        }
    }

    // One value; no default is applied. LogNameGetValueBL.
    [[nodiscard]] Result<std::wstring> Get(const std::wstring& parameter) const
    {
        return ReadText("LogNameGetValueBL", [&](wchar_t* value, std::uint32_t* length) {
            return LogNameGetValueBL(m_name.c_str(), parameter.c_str(), value, length);
        });
    }

    // All values, attributes of the root element behind the others. LogNameGetEnumValueBL.
    [[nodiscard]] Result<std::vector<Parameter>> Values() const
    {
        return ReadParameters("LogNameGetEnumValueBL", [&](std::uint32_t index, wchar_t* name,
                                                           std::uint32_t* nameLength, wchar_t* value,
                                                           std::uint32_t* valueLength) {
            return LogNameGetEnumValueBL(m_name.c_str(), index, name, nameLength, value, valueLength);
        });
    }

    // Sets a value, and makes the parameter where it isn't there. LogNameSetValueBL.
    [[nodiscard]] Result<void> Set(const std::wstring& parameter, const std::wstring& value) const
    {
        return detail::Told("LogNameSetValueBL",
                            LogNameSetValueBL(m_name.c_str(), parameter.c_str(), value.c_str()));
    }

    // Removes a parameter, if the schema allows it. LogNameDelValueBL.
    [[nodiscard]] Result<void> Unset(const std::wstring& parameter) const
    {
        return detail::Told("LogNameDelValueBL", LogNameDelValueBL(m_name.c_str(), parameter.c_str()));
    }

    // The log device that it stands for, whether or not that exists; none where it isn't linked.
    // LogNameGetLogDeviceBL.
    [[nodiscard]] Result<std::optional<LogDevice>> Linked() const
    {
        Result<std::wstring> device =
            ReadText("LogNameGetLogDeviceBL", [&](wchar_t* name, std::uint32_t* length) {
                return LogNameGetLogDeviceBL(m_name.c_str(), name, length);
            });
        if (!device && device.error().code() != PGSP_ERR_PARAM_NOT_FOUND)
        {
            return device.error();
        }
        const std::wstring name = std::move(device).value_or({});
        return name.empty() ? std::nullopt : std::optional(LogDevice(name));
    }

    // Links it to a log device that exists. LogNameSetLogDeviceBL.
    [[nodiscard]] Result<void> LinkTo(const LogDevice& device) const
    {
        return detail::Told("LogNameSetLogDeviceBL",
                            LogNameSetLogDeviceBL(m_name.c_str(), device.name().c_str()));
    }

    // LogNameSetLogDeviceBL.
    [[nodiscard]] Result<void> Unlink() const
    {
        return detail::Told("LogNameSetLogDeviceBL", LogNameSetLogDeviceBL(m_name.c_str(), L""));
    }

    // Removes it, whether or not it is locked. LogNameDeleteBL.
    [[nodiscard]] Result<void> Delete() const
    {
        return detail::Told("LogNameDeleteBL", LogNameDeleteBL(m_name.c_str()));
    }

    // What a person is shown, as LogDevice::Text. PGSP_LogNameGetResourceStringBL.
    [[nodiscard]] Result<std::wstring> Text(const std::wstring& link, const std::wstring& language = {}) const
    {
        return ReadText("PGSP_LogNameGetResourceStringBL", [&](wchar_t* text, std::uint32_t* length) {
            return PGSP_LogNameGetResourceStringBL(m_name.c_str(), link.c_str(), detail::OrNull(language),
                                                   text, length, 0);
        });
    }

    friend bool operator==(const LogName&, const LogName&) = default;

private:
    std::wstring m_name;
};

// Editing aside ----------------------------------------------------------------------------------------

/*
 * A temporary copy of a log device, to change several values of it at once or not at all:
 *
 *     norvepa::EditCopy copy = norvepa::EditCopy::Of(norvepa::LogDevice(L"Kesselhaus")).value();
 *     copy.Set(L"baudrate", L"187500").value();
 *     copy.Set(L"watchdog", L"300").value();
 *     copy.Apply().value();
 *
 * A copy that isn't applied is discarded with the object, and so the log device stays what it was. Neither
 * the changes nor Apply are announced. There are 255 copies for all processes together; the one of a process
 * that is killed keeps its number. One that has been moved from owns nothing, as after Discard.
 */
class EditCopy
{
public:
    // LogDeviceCreateTempBL.
    [[nodiscard]] static Result<EditCopy> Of(LogDevice original)
    {
        return Make("LogDeviceCreateTempBL", LogDeviceCreateTempBL, original.name(), original);
    }

    // A copy of a template: for Apply to a log device that exists, or to become a new one by device().CopyTo.
    // LogDeviceCreateTempFromDefBL.
    [[nodiscard]] static Result<EditCopy> Of(const Template& original, LogDevice target)
    {
        return Make("LogDeviceCreateTempFromDefBL", LogDeviceCreateTempFromDefBL, original.name(),
                    std::move(target));
    }

    EditCopy(EditCopy&& other) noexcept
        : m_copy(std::exchange(other.m_copy, LogDevice({}))),
          m_target(std::move(other.m_target)),
          m_isOwned(std::exchange(other.m_isOwned, false))
    {
    }
    EditCopy& operator=(EditCopy&& other) noexcept
    {
        if (this != &other)
        {
            static_cast<void>(Discard()); // nobody to tell
            m_copy = std::exchange(other.m_copy, LogDevice({}));
            m_target = std::move(other.m_target);
            m_isOwned = std::exchange(other.m_isOwned, false);
        }
        return *this;
    }
    EditCopy(const EditCopy&) = delete;
    EditCopy& operator=(const EditCopy&) = delete;
    ~EditCopy() { static_cast<void>(Discard()); }

    // The copy, to be used like any other log device until it is applied or discarded; then one without a
    // name.
    [[nodiscard]] const LogDevice& device() const noexcept { return m_copy; }

    [[nodiscard]] Result<std::wstring> Get(const std::wstring& parameter) const
    {
        return m_copy.Get(parameter);
    }

    [[nodiscard]] Result<void> Set(const std::wstring& parameter, const std::wstring& value) const
    {
        return m_copy.Set(parameter, value);
    }

    // Puts the copy in the log device's place; it is gone then. After a failure nothing has changed, mostly,
    // and it may be tried again. Should the log device be gone, the copy is all that is left of it: it isn't
    // discarded any more, and device() tells its name. LogDeviceUpdateWithTempBL.
    [[nodiscard]] Result<void> Apply()
    {
        if (!m_isOwned)
        {
            return Error("LogDeviceUpdateWithTempBL", PGSP_ERR_INVALID_PARAMETERS);
        }
        const std::int32_t result = LogDeviceUpdateWithTempBL(m_copy.name().c_str(), m_target.name().c_str());
        if (result == PGSP_OK)
        {
            Release();
            return {};
        }
        if (result ==
            PGSP_ERR_CANT_DELETE_FILE) // all is done; the copy, which somebody holds, goes with the object
        {
            return {};
        }
        m_isOwned = result != PGSP_ERR_CANT_COPY_FILE;
        return Error("LogDeviceUpdateWithTempBL", result);
    }

    // Removes the copy; nothing to do where it has been applied or discarded. LogDeviceDelTempBL.
    Result<void> Discard() noexcept
    {
        if (!m_isOwned)
        {
            return {};
        }
        const std::int32_t result = LogDeviceDelTempBL(m_copy.name().c_str());
        Release();
        return detail::Told("LogDeviceDelTempBL", result);
    }

private:
    using Maker = std::int32_t(const wchar_t* original, wchar_t* name, std::uint32_t* length);

    EditCopy(LogDevice copy, LogDevice target) noexcept : m_copy(std::move(copy)), m_target(std::move(target))
    {
    }

    // With room at once: a buffer too small would cost a number that nobody learns.
    [[nodiscard]] static Result<EditCopy> Make(const char* call, Maker* make, const std::wstring& original,
                                               LogDevice target)
    {
        Result<std::wstring> name = ReadText(
            call, [&](wchar_t* text, std::uint32_t* length) { return make(original.c_str(), text, length); });
        if (!name)
        {
            return name.error();
        }
        return EditCopy(LogDevice(std::move(name).value()), std::move(target));
    }

    void Release() noexcept
    {
        m_isOwned = false;
        m_copy = LogDevice({}); // the number may be somebody else's at once
    }

    LogDevice m_copy;
    LogDevice m_target;
    bool m_isOwned = true;
};

// Being told ---------------------------------------------------------------------------------------------

// What a watch may be for.
enum class Folder
{
    LogDevices,
    LogNames,
    Catalogue, // what PGSP_TemplateSetValueBL sets
};

/*
 * Hears of changes that this process makes through the library, on whatever thread, for as long as it lives.
 * What other processes change is announced there. An event carries no data: what has changed is to be asked
 * for, and changes that come close together may be heard as one. One that has been moved from hears nothing.
 */
class Watch
{
public:
    // Of all files of a folder, or of one by its plain name. A failure is a code of RegisterNotification, or
    // the system's where it can't make the event.
    [[nodiscard]] static Result<Watch> Of(Folder folder, std::wstring file = {})
    {
        // Numbers go on, so that a name comes again only where another module of this process counts as well.
        static std::atomic<std::uint32_t> count{0};
        for (;;)
        {
            std::wstring name =
                L"norvepa.watch." + std::to_wstring(GetCurrentProcessId()) + L'.' + std::to_wstring(count++);
            Event event(CreateEventW(nullptr, FALSE, FALSE, name.c_str()));
            const DWORD error = GetLastError();
            if (!event)
            {
                return Error("CreateEventW", static_cast<std::int32_t>(error));
            }
            if (error == ERROR_ALREADY_EXISTS)
            {
                continue;
            }
            const std::int32_t result = RegisterNotification(Word(folder), file.c_str(), name.c_str());
            if (result != PGSP_OK)
            {
                return Error("RegisterNotification", result);
            }
            return Watch(folder, std::move(file), std::move(name), std::move(event));
        }
    }

    Watch(Watch&&) noexcept = default;
    Watch& operator=(Watch&& other) noexcept
    {
        if (this != &other)
        {
            End();
            m_folder = other.m_folder;
            m_file = std::move(other.m_file);
            m_name = std::move(other.m_name);
            m_event = std::move(other.m_event);
        }
        return *this;
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() { End(); }

    // Whether a change has come that no wait has told of yet, or comes in time. Announcements come behind the
    // return of the call that has made the change. The longest time is 24 days, and a longer one is that.
    template <typename Number, typename Period>
    [[nodiscard]] bool wait_for(std::chrono::duration<Number, Period> time) const
    {
        return WaitForSingleObject(m_event.get(), Milliseconds(time)) == WAIT_OBJECT_0;
    }

    // The event, to be waited for beside others; a wait that sees it resets it. It stays the Watch's own;
    // null of one that has been moved from.
    [[nodiscard]] HANDLE native_handle() const noexcept { return m_event.get(); }

private:
    struct CloseEvent
    {
        void operator()(void* event) const noexcept { CloseHandle(event); }
    };
    using Event = std::unique_ptr<void, CloseEvent>;

    Watch(Folder folder, std::wstring file, std::wstring name, Event event) noexcept
        : m_folder(folder), m_file(std::move(file)), m_name(std::move(name)), m_event(std::move(event))
    {
    }

    [[nodiscard]] static const wchar_t* Word(Folder folder) noexcept
    {
        constexpr std::array words{L"LogDevices", L"LogNames", L"meta"};

        return words[static_cast<std::size_t>(folder)];
    }

    template <typename Number, typename Period>
    [[nodiscard]] static DWORD Milliseconds(std::chrono::duration<Number, Period> time)
    {
        constexpr std::chrono::milliseconds longest{0x7fffffff};
        if (time <= time.zero())
        {
            return 0;
        }
        // Compared in what doesn't overflow.
        if (std::chrono::duration<double, std::milli>(time) >=
            std::chrono::duration<double, std::milli>(longest))
        {
            return static_cast<DWORD>(longest.count());
        }
        return static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(time).count());
    }

    void End() noexcept
    {
        if (m_event)
        {
            UnRegisterNotification(Word(m_folder), m_file.c_str(), m_name.c_str());
            m_event.reset();
        }
    }

    Folder m_folder;
    std::wstring m_file;
    std::wstring m_name; // of the event
    Event m_event;
};

} // namespace norvepa
