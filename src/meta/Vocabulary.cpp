#include "meta/Vocabulary.h"

#include "frame/Text.h"

#include <array>
#include <span>

namespace norvepa
{

namespace
{

constexpr std::size_t ComparedCharacters = 4096;

// By number, 0 first.
constexpr std::array<std::wstring_view, 52> ElementWords{
    L"NotSet",
    L"Assembly",
    L"BasicParams",
    L"Bindings",
    L"BoardAttributes",
    L"Busparameter",
    L"Clients",
    L"Constraints",
    L"default",
    L"Device",
    L"DeviceHeader",
    L"DisplayStep",
    L"DisplayMultiplier",
    L"Function",
    L"Install",
    L"Load",
    L"LocalSettings",
    L"LogDevice",
    L"LogName",
    L"map",
    L"max",
    L"min",
    L"Name",
    L"NameSpace",
    L"NetworkSettings",
    L"NotSupported",
    L"BaseSupported",
    L"Ndi",
    L"option",
    L"ParamDesc",
    L"Parameter",
    L"Parameters",
    L"ParameterAssemblyLink",
    L"ParameterBool",
    L"ParameterInt",
    L"ParamSection",
    L"Path",
    L"Profile",
    L"RelevantSection",
    L"Resource",
    L"ResourceId",
    L"section",
    L"MarvoltNTLinkage",
    L"SpareSection",
    L"step",
    L"Subdevice",
    L"Subdevices",
    L"type",
    L"UserInterface",
    L"UserInterface64",
    L"Value",
    L"ValueCollection",
};

constexpr std::array<std::wstring_view, 10> AttributeWords{
    L"",     L"Alias", L"CP_TYPE",    L"DeviceId", L"Extension", L"MajorVersion", L"MinorVersion",
    L"Name", L"Param", L"SubdevName",
};

static_assert(ElementWords.size() == static_cast<std::size_t>(EpaBlElementTag::ValueCollection) + 1);
static_assert(AttributeWords.size() == static_cast<std::size_t>(EpaBlAttributeTag::SubdevName) + 1);

// The row of a word, the one without a word left out; 0 when there is none.
std::int32_t NumberOf(std::wstring_view word, std::span<const std::wstring_view> words) noexcept
{
    for (std::size_t number = 1; number < words.size(); ++number)
    {
        if (EqualWords(words[number], word))
        {
            return static_cast<std::int32_t>(number);
        }
    }
    return 0;
}

} // namespace

bool EqualWords(std::wstring_view left, std::wstring_view right) noexcept
{
    return EqualNoCase(left, right, ComparedCharacters);
}

EpaBlElementTag ElementTagFromName(std::wstring_view word) noexcept
{
    return EpaBlElementTag{NumberOf(word, ElementWords)};
}

EpaBlAttributeTag AttributeTagFromName(std::wstring_view word) noexcept
{
    return EpaBlAttributeTag{NumberOf(word, AttributeWords)};
}

const wchar_t* ElementTagName(EpaBlElementTag tag) noexcept
{
    const auto number = static_cast<std::size_t>(tag);
    return ElementWords[number < ElementWords.size() ? number : 0].data();
}

const wchar_t* AttributeTagName(EpaBlAttributeTag tag) noexcept
{
    const auto number = static_cast<std::size_t>(tag);
    return number < AttributeWords.size() ? AttributeWords[number].data() : nullptr;
}

} // namespace norvepa
