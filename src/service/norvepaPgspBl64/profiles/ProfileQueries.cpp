#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

using namespace norvepa;

namespace
{

// A text at its first backslash. Backslashes aren't counted as one where they follow each other, unlike in
// keys.
struct Halves
{
    std::wstring ahead; // empty without a backslash
    std::wstring behind;
};

Halves SplitOnce(std::wstring_view text)
{
    const std::size_t backslash = text.find(L'\\');
    if (backslash == std::wstring_view::npos)
    {
        return {{}, std::wstring(text)};
    }
    return {std::wstring(text.substr(0, backslash)), std::wstring(text.substr(backslash + 1))};
}

// Of parameter\value\subparameter, or of parameter\subparameter for the value that is empty.
Result SubProfileExists(const std::wstring& file, std::wstring_view path, const wchar_t* subValue)
{
    const Halves parameter = SplitOnce(path);
    const Halves value = SplitOnce(parameter.behind);
    return NorvXMLSubProfileCollectionExists(file.c_str(), parameter.ahead.c_str(), value.ahead.c_str(),
                                             value.behind.c_str(), subValue);
}

} // namespace

int32_t PGSP_ProfileCollectionExistsBL(const wchar_t* Protocol, const wchar_t* Parameter,
                                       const wchar_t* Value)
{
    return RunExport("PGSP_ProfileCollectionExistsBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> Protocol = %s, Parameter = %s, Value = %s", TraceToAnsi(Protocol),
                   TraceToAnsi(Parameter), TraceToAnsi(Value));
        if (IsMissing(Protocol) || IsMissing(Parameter) || IsMissing(Value))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = ProtocolFile(programFolder, MakeProtocolName(Protocol));
        return frame.Return(Holds(Parameter, L"\\")
                                ? SubProfileExists(file, Parameter, Value)
                                : NorvXMLProfileCollectionExists(file.c_str(), Parameter, Value));
    });
}

int32_t PGSP_GetParamDescBL(const wchar_t* Profile, const wchar_t* ParamValue, wchar_t* ParamDesc,
                            uint32_t* dwParamDesc)
{
    return RunExport("PGSP_GetParamDescBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> Profile = %s, ParamValue = %s", TraceToAnsi(Profile),
                   TraceToAnsi(ParamValue));
        if (IsMissing(Profile) || IsMissing(ParamValue) || dwParamDesc == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = ProtocolFile(programFolder, MakeProtocolName(Profile));
        const Halves asked = SplitOnce(ParamValue);
        std::wstring text;
        Result result = NorvXMLGetParamDesc(file.c_str(), asked.ahead.c_str(), asked.behind.c_str(), &text);
        if (result == PGSP_OK)
        {
            result = CopyOutUntested(text, ParamDesc, dwParamDesc);
            NORV_TRACE(frame, TraceInfo, "ParamDesc = %s, dwParamDesc = %d", TraceToAnsi(text.c_str()),
                       *dwParamDesc);
        }
        return frame.Return(result);
    });
}
