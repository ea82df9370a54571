#pragma once

// What the kinds ask the library of an object, answered in one word: the value, "(result N)" for a read that
// fails, or whether an enumeration lists the object.

#include "Place.h"

#include <string>

namespace norvepa::test
{

inline const std::wstring Listed = L"listed";
inline const std::wstring NotListed = L"not listed";

// What files hold for these.
inline constexpr wchar_t AskedParameter[] = L"Ort";
inline constexpr wchar_t AskedSubdevice[] = L"Achse";

[[nodiscard]] std::wstring AskDeviceValue(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskDeviceId(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskSubdeviceValue(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskNameValue(const Place& place, const std::wstring& object);

[[nodiscard]] std::wstring AskBoardValue(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskBoardId(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskBoardWord(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskProtocolWord(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskTemplateValue(const Place& place, const std::wstring& object);

// Whether it is enumerated, hidden ones left out: among all log devices, among those whose type is its name,
// and among all log names.
[[nodiscard]] std::wstring AskDeviceShown(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskDeviceShownByType(const Place& place, const std::wstring& object);
[[nodiscard]] std::wstring AskNameShown(const Place& place, const std::wstring& object);

// The type, 1 or 2, under which a log device is enumerated. No other object has these types.
[[nodiscard]] std::wstring TypeOf(const std::wstring& object, const std::wstring& type);
[[nodiscard]] std::wstring AskDeviceType(const Place& place, const std::wstring& object);

// The unit by the index of identities, in which the object stands under its own name. The index is made anew
// for each question, because of a stranger in the folder.
[[nodiscard]] std::wstring AskUnit(const Place& place, const std::wstring& object);

} // namespace norvepa::test
