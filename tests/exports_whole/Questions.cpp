#include "exports_whole/Objects.h"
#include "exports_whole/Steps.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{

namespace
{

constexpr std::uint32_t Room = 4000; // characters

template <typename Call>
Answer AnswerOf(const Call& call)
{
    OutputBuffer buffer(Room);
    const std::int32_t result = call(buffer.data(), &buffer.length);
    return {result, result == PGSP_OK ? buffer.text() : L""};
}

Answer DeviceValue(const Exports& library, const wchar_t* parameter)
{
    return AnswerOf([&](wchar_t* value, std::uint32_t* length) {
        return library.LogDeviceGetValueBL(OurDevice, parameter, value, length);
    });
}

Answer DeviceValueOf(const Exports& library, const wchar_t* section, const wchar_t* parameter)
{
    return AnswerOf([&](wchar_t* value, std::uint32_t* length) {
        return library.LogDeviceGetValueExBL(OurDevice, section, parameter, value, length);
    });
}

// Our device among all of its type: itself, or the result that ended the search.
Answer DeviceFound(const Exports& library)
{
    Answer found{PGSP_OK, {}};
    for (std::uint32_t index = 0; found.result == PGSP_OK && found.value != OurDevice; ++index)
    {
        found = AnswerOf([&](wchar_t* name, std::uint32_t* length) {
            return library.LogDeviceGetEnumBL(OurNetType, index, name, length);
        });
    }
    return found;
}

Answer NameValue(const Exports& library, const wchar_t* parameter)
{
    return AnswerOf([&](wchar_t* value, std::uint32_t* length) {
        return library.LogNameGetValueBL(OurName, parameter, value, length);
    });
}

bool IsText(const Answer& answer)
{
    return answer.result == PGSP_OK && IsATextOfOurs(answer.value);
}

bool Is(const Answer& answer, const std::wstring& value)
{
    return answer == Answer{PGSP_OK, value};
}

} // namespace

void AskDevice(const Exports& library, unsigned, Tally& tally)
{
    const Answer value = DeviceValue(library, TextParameter);
    const Answer ofSection = DeviceValueOf(library, L"LocalSettings", TextParameter);
    const Answer last = DeviceValueOf(library, L"SpareSection", LastParameter);
    const Answer found = DeviceFound(library);
    tally.Count("LogDeviceGetValueBL", value, IsText(value));
    tally.Count("LogDeviceGetValueExBL", ofSection, IsText(ofSection));
    tally.Count("LogDeviceGetValueExBL, the last", last, Is(last, LastValue));
    tally.Count("LogDeviceGetEnumBL", found, Is(found, OurDevice));
}

void AskName(const Exports& library, unsigned, Tally& tally)
{
    const Answer value = NameValue(library, TextParameter);
    const Answer last = NameValue(library, LastParameter);
    tally.Count("LogNameGetValueBL", value, IsText(value));
    tally.Count("LogNameGetValueBL, the last", last, Is(last, LastValue));
}

void AskNote(const Exports& library, unsigned, Tally& tally)
{
    const Answer note = DeviceValueOf(library, L"SpareSection", NoteParameter);
    tally.Count("LogDeviceGetValueExBL, the note", note,
                Is(note, NoteValue) || note.result == PGSP_ERR_PARAM_NOT_FOUND);
}

void LookAtDevice(const Exports& library, unsigned round, Tally& tally)
{
    const Answer value = DeviceValue(library, TextParameter);
    tally.Count("LogDeviceGetValueBL, as set", value, Is(value, TextOfRound(round)));
}

void LookAtName(const Exports& library, unsigned round, Tally& tally)
{
    const Answer value = NameValue(library, TextParameter);
    tally.Count("LogNameGetValueBL, as set", value, Is(value, TextOfRound(round)));
}

} // namespace norvepa::test
