#include "Refusal.h"

#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

// A log device's board and protocol, and what they say of one of its parameters.
struct Limits
{
    Limits(const std::wstring& logDevice, std::wstring asked) : parameter(std::move(asked))
    {
        board = ToWide(DeviceValue(logDevice, L"DeviceID"));
        protocol = ToWide(DeviceValue(logDevice, L"CP_TYPE"));
    }

    // A word of the board, or else of the protocol; empty when neither has it.
    [[nodiscard]] std::string Word(const wchar_t* word) const
    {
        const std::wstring path = L"Constraints\\" + parameter;
        const ReadResult ofBoard = ReadText([&](wchar_t* text, uint32_t* length) {
            return PGSP_BoardGetValueRawBL(board.c_str(), path.c_str(), word, text, length);
        });
        if (ofBoard.result == PGSP_OK)
        {
            return ofBoard.value;
        }
        return ReadText([&](wchar_t* text, uint32_t* length) {
                   return PGSP_ProtocolGetValueBL(protocol.c_str(), parameter.c_str(), nullptr, nullptr,
                                                  nullptr, word, text, length);
               })
            .value;
    }

    // The list of the board, each value without its description.
    [[nodiscard]] std::vector<std::string> Listed() const
    {
        const std::wstring path = L"Constraints\\" + parameter;
        std::vector<std::string> values = ReadTexts(ToUtf8(board), [&](wchar_t* list, uint32_t* length) {
            return PGSP_BoardGetValueCollectionBL(path.c_str(), board.c_str(), list, length);
        });
        for (std::string& value : values)
        {
            value.resize(value.find('/') == std::string::npos ? value.size() : value.find('/'));
        }
        return values;
    }

    static std::string DeviceValue(const std::wstring& logDevice, const wchar_t* attribute)
    {
        return ReadText([&](wchar_t* text, uint32_t* length) {
                   return LogDeviceGetValueBL(logDevice.c_str(), attribute, text, length);
               })
            .value;
    }

    std::wstring board;
    std::wstring protocol;
    std::wstring parameter;
};

std::string Range(const Limits& limits)
{
    const std::string min = limits.Word(L"min");
    const std::string max = limits.Word(L"max");
    const std::string step = limits.Word(L"step");
    const std::string base = limits.Word(L"base");
    std::string text = "allowed are ";
    text += min.empty() ? "values" : min;
    text += max.empty() ? " and more" : " to " + max;
    text += step.empty() || step == "1" ? "" : " in steps of " + step;
    text += base.empty() || base == "10" ? "" : ", all to the base " + base;
    return text;
}

std::string List(const Limits& limits)
{
    const std::vector<std::string> values = limits.Listed();
    return values.empty() ? "" : fmt::format("allowed are {}", fmt::join(values, ", "));
}

} // namespace

std::string AllowedValues(const std::wstring& logDevice, const std::wstring& parameter, int32_t result)
{
    switch (result)
    {
    case PGSP_SET_VAL_LESS_THAN_MIN:
    case PGSP_SET_VAL_BIGGER_THAN_MAX:
    case PGSP_NOT_IN_STEP:
        return Range({logDevice, parameter});
    case PGSP_NOT_IN_LIST:
        return List({logDevice, parameter});
    case PGSP_NOT_A_BOOL:
        return "allowed are true and false";
    default:
        return "";
    }
}

} // namespace norvctl
