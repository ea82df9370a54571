#pragma once

// The two closed vocabularies of catalogue files: element and attribute words as small numbers.
//
// The numbers are the order in which the children of an element are visited, so they are as fixed as the
// words. 0 means that a word isn't in the vocabulary.

#include <cstdint>
#include <string_view>

namespace norvepa
{

enum class EpaBlElementTag : std::int32_t
{
    None = 0,
    Assembly = 1,
    BasicParams,
    Bindings,
    BoardAttributes,
    Busparameter,
    Clients,
    Constraints,
    Default,
    Device,
    DeviceHeader,
    DisplayStep,
    DisplayMultiplier,
    Function,
    Install,
    Load,
    LocalSettings,
    LogDevice,
    LogName,
    Map,
    Max,
    Min,
    Name,
    NameSpace,
    NetworkSettings,
    NotSupported,
    BaseSupported,
    Ndi,
    Option,
    ParamDesc,
    Parameter,
    Parameters,
    ParameterAssemblyLink,
    ParameterBool,
    ParameterInt,
    ParamSection,
    Path,
    Profile,
    RelevantSection,
    Resource,
    ResourceId,
    Section,
    MarvoltNTLinkage,
    SpareSection,
    Step,
    Subdevice,
    Subdevices,
    Type,
    UserInterface,
    UserInterface64,
    Value,
    ValueCollection = 51
};

enum class EpaBlAttributeTag : std::int32_t
{
    None = 0,
    Alias = 1,
    CpType,
    DeviceId,
    Extension,
    MajorVersion,
    MinorVersion,
    Name,
    Param,
    SubdevName = 9
};

// The one comparison of words, attribute values and keys in the catalogue: without regard to case, by the
// first 4096 characters.
[[nodiscard]] bool EqualWords(std::wstring_view left, std::wstring_view right) noexcept;

[[nodiscard]] EpaBlElementTag ElementTagFromName(std::wstring_view word) noexcept;
[[nodiscard]] EpaBlAttributeTag AttributeTagFromName(std::wstring_view word) noexcept;

// The vocabulary's spelling; "NotSet" for any number without a word.
[[nodiscard]] const wchar_t* ElementTagName(EpaBlElementTag tag) noexcept;

// The vocabulary's spelling; empty for 0, null for any other number without a word.
[[nodiscard]] const wchar_t* AttributeTagName(EpaBlAttributeTag tag) noexcept;

} // namespace norvepa
