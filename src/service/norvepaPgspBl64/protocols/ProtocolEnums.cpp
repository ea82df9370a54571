#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

using namespace norvepa;

namespace
{

constexpr wchar_t BusProfilesKey[] = L"Constraints\\busparam";

} // namespace

int32_t PGSP_ProtocolGetEnumValueBL(const wchar_t* Protocol, const wchar_t* Parameter, const wchar_t* Profile,
                                    const wchar_t* SubParam, const wchar_t* SubValue, uint32_t index,
                                    wchar_t* Name, uint32_t* parLen, wchar_t* Value, uint32_t* valLen)
{
    return RunExport("PGSP_ProtocolGetEnumValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry,
                   ">> Protocol = %s, index = %d, Parameter = %s, Profile = %s, SubParam = %s, SubValue = %s",
                   TraceToAnsi(Protocol), index, TraceToAnsi(Parameter), TraceToAnsi(Profile),
                   TraceToAnsi(SubParam), TraceToAnsi(SubValue));
        if (IsMissing(Protocol))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = ProtocolFile(programFolder, MakeProtocolName(Protocol));
        const std::wstring profile = MapProfileWord(TextOrEmpty(Profile));
        const PairBuffers pair{Name, parLen, Value, valLen};
        const std::uint32_t nameCapacity = LengthOrZero(parLen);
        const std::uint32_t valueCapacity = LengthOrZero(valLen);
        Result result = PGSP_OK;
        if (IsMissing(Parameter))
        {
            NORV_TRACE(frame, TraceInfo, "calling NorvXMLEnumProtocolValue");
            result = NorvXMLEnumProtocolValue(file.c_str(), index, pair);
        }
        else if (IsMissing(Profile))
        {
            NORV_TRACE(frame, TraceInfo, "calling NorvXMLEnumProtocolParameter");
            result = NorvXMLEnumProtocolParameter(file.c_str(), Parameter, index, pair);
        }
        else if (IsMissing(SubParam) || IsMissing(SubValue))
        {
            NORV_TRACE(frame, TraceInfo, "calling NorvXMLEnumProfileValue");
            result = NorvXMLEnumProfileValue(file.c_str(), Parameter, profile.c_str(), index, pair);
        }
        else
        {
            NORV_TRACE(frame, TraceInfo, "calling NorvXMLEnumSubProfileValue");
            result = NorvXMLEnumSubProfileValue(file.c_str(), Parameter, profile.c_str(), SubParam, SubValue,
                                                index, pair);
        }

        if (result == PGSP_OK)
        {
            NORV_TRACE(frame, TraceInfo, "Parameter = %s, parLen = %d, Value = %s, valLen = %d",
                       TraceToAnsi(Name, nameCapacity), *parLen, TraceToAnsi(Value, valueCapacity), *valLen);
        }
        return frame.Return(result);
    });
}

int32_t PGSP_ProtocolGetEnumBusprofilesBL(const wchar_t* ProtocolFile, uint32_t index, wchar_t* Busprofile,
                                          uint32_t* BusprofileLen)
{
    return RunExport("PGSP_ProtocolGetEnumBusprofilesBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> ProtocolFile = %s, index = %d", TraceToAnsi(ProtocolFile), index);
        if (IsMissing(ProtocolFile) || Busprofile == nullptr || BusprofileLen == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = norvepa::ProtocolFile(programFolder, MakeProtocolName(ProtocolFile));
        std::wstring profile;
        Result result = NorvXMLEnumValueCollectionRaw(file.c_str(), BusProfilesKey, index, &profile);
        if (result == PGSP_OK)
        {
            result = CopyOut(profile, Busprofile, BusprofileLen);
        }

        NORV_TRACE(frame, TraceInfo, "Busprofile = %s, BusprofileLen = %d", TraceToAnsi(profile.c_str()),
                   *BusprofileLen);
        return result == PGSP_ERR_BUFFER_TOO_SHORT ? frame.BufferTooShort() : frame.Return(result);
    });
}

int32_t PGSP_ProtocolGetEnumBaudrateBL(const wchar_t* ProtocolFile, const wchar_t* Profile, uint32_t index,
                                       wchar_t* Baudrate, uint32_t* BaudrateLen)
{
    return RunExport("PGSP_ProtocolGetEnumBaudrateBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> ProtocolFile = %s, index = %d", TraceToAnsi(ProtocolFile), index);
        if (IsMissing(ProtocolFile) || Baudrate == nullptr || BaudrateLen == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = norvepa::ProtocolFile(programFolder, MakeProtocolName(ProtocolFile));
        std::wstring baudrate;
        Result result = PGSP_OK;
        if (IsMissing(Profile))
        {
            NORV_TRACE(frame, TraceInfo, "no Profile, index = %d", index);
            result = NorvXMLEnumBaudrate(file.c_str(), index, &baudrate);
        }
        else
        {
            // The profile's text as the file has it, so its number: words aren't mapped here.
            NORV_TRACE(frame, TraceInfo, "Profile = %s, index = %d", TraceToAnsi(Profile), index);
            result = NorvXMLEnumProfileBaudrate(file.c_str(), Profile, index, &baudrate);
        }
        if (result == PGSP_OK)
        {
            result = CopyOut(baudrate, Baudrate, BaudrateLen);
        }

        NORV_TRACE(frame, TraceInfo, "Baudrate = %s, BaudrateLen = %d", TraceToAnsi(baudrate.c_str()),
                   *BaudrateLen);
        return frame.Return(result);
    });
}
