#pragma once

// The exports, a row each: how one of them is called with what a draw yields.

#include "endurance/Draw.h"
#include "support/LoadedLibrary.h"

#include <cstdint>
#include <span>
#include <tuple>
#include <type_traits>
#include <vector>

namespace norvepa::test
{

struct Call
{
    const char* name;
    std::int32_t (*make)(Draw& any, const Exports& library); // the result
    std::uint32_t share = 20;                                // of how often others are called, in twentieths
};

[[nodiscard]] std::span<const Call> DeviceCalls();
[[nodiscard]] std::span<const Call> CatalogueCalls();
[[nodiscard]] std::span<const Call> NameCalls(); // log names, settings, flat files, notification, the module

[[nodiscard]] std::vector<Call> AllCalls();

// What a row says of an argument: each draws one, or two that belong together.
template <const Words& Kind>
struct One
{
    static std::tuple<const wchar_t*> From(Draw& any) { return {any.Of(Kind)}; }
};

struct Index
{
    static std::tuple<std::uint32_t> From(Draw& any) { return {any.Index()}; }
};

struct Flag
{
    static std::tuple<std::int32_t> From(Draw& any) { return {any.Flag()}; }
};

struct Output
{
    static std::tuple<wchar_t*, std::uint32_t*> From(Draw& any)
    {
        Room& room = any.Output();
        return {room.data(), room.length()};
    }
};

// Some names of a list, by its length; the type of that differs.
template <typename Length>
struct Names
{
    static std::tuple<const wchar_t*, Length> From(Draw& any)
    {
        constexpr Length least = std::is_signed_v<Length> ? static_cast<Length>(-1) : Length{0};
        constexpr Length most = static_cast<Length>(NameList.size()) + 1;
        const auto length = static_cast<Length>(any.Below(static_cast<std::uint32_t>(most - least) + 1));
        return {any.Below(10) == 0 ? nullptr : NameList.data(), static_cast<Length>(length + least)};
    }
};

template <auto Function, typename... Argument>
std::int32_t Make(Draw& any, const Exports& library)
{
    // Between braces they are drawn from left to right.
    const std::tuple<decltype(Argument::From(any))...> drawn{Argument::From(any)...};
    const auto arguments = std::apply([](const auto&... each) { return std::tuple_cat(each...); }, drawn);
    return std::apply(library.*Function, arguments);
}

} // namespace norvepa::test
