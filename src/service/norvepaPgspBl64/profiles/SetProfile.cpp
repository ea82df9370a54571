#include "catalogue/ProfileWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"

#include <cstdint>

using namespace norvepa;

namespace
{

// A log device, and what is chosen for it: a parameter's value in its protocol's file.
struct Choice
{
    const wchar_t* logDevice;
    const wchar_t* parameter;
    std::wstring file;
    std::wstring value;
};

enum class ProfileKind
{
    Direct,      // the value's own pairs
    SubProfiles, // those of a value of another parameter below it
    None
};

ProfileKind KindOf(const Choice& choice)
{
    if (EqualNoCase(choice.parameter, PGSP_PARAM_BAUDRATE))
    {
        return ProfileKind::Direct;
    }
    if (!EqualNoCase(choice.parameter, PGSP_PARAM_PROFILES))
    {
        return ProfileKind::None;
    }
    return EqualNoCase(choice.value, PGSP_PARAM_PROFILES_USER) ? ProfileKind::Direct
                                                               : ProfileKind::SubProfiles;
}

bool HasCollection(const ExportFrame& frame, const Choice& choice)
{
    NORV_TRACE(frame, TraceInfo, ">> NorvXMLProfileCollectionExists");
    return NorvXMLProfileCollectionExists(choice.file.c_str(), choice.parameter, choice.value.c_str()) ==
           PGSP_OK;
}

enum class Pairs
{
    None, // there was nothing to write
    Written,
    NotAllWritten
};

// Writes the pairs that `next` answers by index, until it has no more. A pair that can't be written doesn't
// keep back those behind it.
template <typename Next>
Pairs WritePairs(const wchar_t* logDevice, const Next& next)
{
    Pairs pairs = Pairs::None;
    std::wstring name;
    std::wstring value;
    for (std::uint32_t index = 0; next(index, name, value) == PGSP_OK; ++index)
    {
        const Result result = AnswerOf(LogDeviceSetValueBL(logDevice, name.c_str(), value.c_str()));
        if (result != PGSP_OK)
        {
            pairs = Pairs::NotAllWritten;
        }
        else if (pairs == Pairs::None)
        {
            pairs = Pairs::Written;
        }
    }
    return pairs;
}

Pairs WriteDirectProfile(const ExportFrame& frame, const Choice& choice)
{
    NORV_TRACE(frame, TraceInfo,
               "sParam=PGSP_PARAM_BAUDRATE or (sParam=PGSP_PARAM_PROFILES and "
               "sParamValue=PGSP_PARAM_PROFILES_USER)");
    if (!HasCollection(frame, choice))
    {
        return Pairs::None;
    }
    NORV_TRACE(frame, TraceInfo, "while NorvXMLEnumProfileValue");
    ProfileWalk walk(choice.file.c_str(), choice.parameter, choice.value);
    return WritePairs(choice.logDevice, [&](std::uint32_t index, std::wstring& name, std::wstring& value) {
        return walk.EntryAt(index, name, value);
    });
}

Pairs WriteSubProfile(const ExportFrame& frame, const Choice& choice, const std::wstring& subParameter,
                      const std::wstring& subValue)
{
    NORV_TRACE(frame, TraceInfo, "while NorvXMLEnumSubProfileValue");
    return WritePairs(choice.logDevice, [&](std::uint32_t index, std::wstring& name, std::wstring& value) {
        return NorvXMLEnumSubProfileValue(choice.file.c_str(), choice.parameter, choice.value.c_str(),
                                          subParameter.c_str(), subValue.c_str(), index, &name, &value);
    });
}

// The first sub-parameter that has pairs is the last one looked at, and so is the first whose value in the
// log device the protocol doesn't know. For one without a value there the pairs of its own section are meant.
Pairs WriteSubProfiles(const ExportFrame& frame, const Choice& choice)
{
    NORV_TRACE(frame, TraceInfo, "sParam=PGSP_PARAM_PROFILES  sParamValue=PGSP_PARAM_PROFILES_USER");
    if (!HasCollection(frame, choice))
    {
        return Pairs::None;
    }
    NORV_TRACE(frame, TraceInfo, "while NorvXMLEnumSubProfile");
    ProfileWalk walk(choice.file.c_str(), choice.parameter, choice.value);
    std::wstring subParameter;
    for (std::uint32_t index = 0; walk.SubParameterAt(index, subParameter) == PGSP_OK; ++index)
    {
        std::wstring subValue;
        static_cast<void>(LogDeviceGetValue(choice.logDevice, subParameter.c_str(), &subValue));
        if (NorvXMLSubProfileCollectionExists(choice.file.c_str(), choice.parameter, choice.value.c_str(),
                                              subParameter.c_str(), subValue.c_str()) != PGSP_OK)
        {
            return Pairs::None;
        }
        if (const Pairs pairs = WriteSubProfile(frame, choice, subParameter, subValue); pairs != Pairs::None)
        {
            return pairs;
        }
    }
    return Pairs::None;
}

Pairs WriteProfile(const ExportFrame& frame, const Choice& choice)
{
    switch (KindOf(choice))
    {
    case ProfileKind::Direct:
        return WriteDirectProfile(frame, choice);
    case ProfileKind::SubProfiles:
        return WriteSubProfiles(frame, choice);
    case ProfileKind::None:
        break;
    }
    return Pairs::None;
}

} // namespace

namespace norvepa
{

Result ReturnNoValue(const ExportFrame& frame, TracePlace place)
{
    NORV_TRACE_AT(place, frame, TraceExit, "<< return PGSP_PROFILE_NO_VALUE");
    return PGSP_PROFILE_NO_VALUE;
}

} // namespace norvepa

int32_t PGSP_LogDeviceSetProfileRBL(const wchar_t* LogDevice, const wchar_t* Profile,
                                    const wchar_t* Parameter)
{
    return RunExport("PGSP_LogDeviceSetProfileRBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Profile = %s, Parameter = %s",
                   TraceToAnsi(LogDevice), TraceToAnsi(Profile), TraceToAnsi(Parameter));
        if (LogDevice == nullptr || Profile == nullptr || Parameter == nullptr)
        {
            return frame.InvalidParameters();
        }
        Choice choice{LogDevice, Parameter, {}, {}};
        if (LogDeviceGetValue(LogDevice, Parameter, &choice.value) != PGSP_OK)
        {
            return ReturnNoValue(frame);
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        choice.file = ProtocolFile(programFolder, MakeProtocolName(Profile));
        return WriteProfile(frame, choice) == Pairs::Written ? frame.Ok() : ReturnNoValue(frame);
    });
}
