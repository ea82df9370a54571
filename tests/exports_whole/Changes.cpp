#include "exports_whole/Objects.h"
#include "exports_whole/Steps.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{

namespace
{

constexpr std::uint32_t TemporaryNameRoom = 28; // characters

void CountResult(Tally& tally, const char* call, std::int32_t result)
{
    tally.Count(call, {result, {}}, result == PGSP_OK);
}

} // namespace

void SetDevice(const Exports& library, unsigned round, Tally& tally)
{
    CountResult(tally, "LogDeviceSetValueBL",
                library.LogDeviceSetValueBL(OurDevice, TextParameter, TextOfRound(round).c_str()));
}

void SetName(const Exports& library, unsigned round, Tally& tally)
{
    CountResult(tally, "LogNameSetValueBL",
                library.LogNameSetValueBL(OurName, TextParameter, TextOfRound(round).c_str()));
}

void DeleteNote(const Exports& library, unsigned, Tally& tally)
{
    CountResult(tally, "LogDeviceSetValueBL",
                library.LogDeviceSetValueBL(OurDevice, NoteParameter, NoteValue));
    CountResult(tally, "LogDeviceDelValueBL", library.LogDeviceDelValueBL(OurDevice, NoteParameter));
}

void SwapDevice(const Exports& library, unsigned round, Tally& tally)
{
    OutputBuffer name(TemporaryNameRoom);
    const std::int32_t made = library.LogDeviceCreateTempBL(OurDevice, name.data(), &name.length);
    CountResult(tally, "LogDeviceCreateTempBL", made);
    if (made != PGSP_OK)
    {
        return;
    }
    const std::wstring temporary = name.text();
    CountResult(tally, "LogDeviceSetValueBL, temporary",
                library.LogDeviceSetValueBL(temporary.c_str(), TextParameter, TextOfRound(round).c_str()));
    CountResult(tally, "LogDeviceUpdateWithTempBL",
                library.LogDeviceUpdateWithTempBL(temporary.c_str(), OurDevice));
}

} // namespace norvepa::test
