#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

using namespace norvepa;

namespace
{

// A parameter, and the value of it that is asked about, if any.
struct Question
{
    const wchar_t* parameter;
    const wchar_t* value;
    const wchar_t* subParameter;
    const wchar_t* subValue;
};

// What a protocol says of a parameter, of a value of it, or of a value below that one.
Result ReadProtocolValue(const ExportFrame& frame, const std::wstring& file, const Question& asked,
                         const wchar_t* attribute, wchar_t* buffer, std::uint32_t* length)
{
    if (IsMissing(asked.value))
    {
        NORV_TRACE(frame, TraceInfo, "ProtocolGetValue");
        return NorvXMLProtocolGetValue(file.c_str(), asked.parameter, attribute, buffer, length);
    }
    const std::wstring profile = MapProfileWord(asked.value);
    if (IsMissing(asked.subParameter) || IsMissing(asked.subValue))
    {
        NORV_TRACE(frame, TraceInfo, "ProfileGetValue");
        return NorvXMLProfileGetValue(file.c_str(), asked.parameter, profile.c_str(), attribute, buffer,
                                      length);
    }
    NORV_TRACE(frame, TraceInfo, "SubProfileGetValue");
    return NorvXMLSubProfileGetValue(file.c_str(), asked.parameter, profile.c_str(), asked.subParameter,
                                     asked.subValue, attribute, buffer, length);
}

Result ReadProtocolValueRaw(const ExportFrame& frame, const std::wstring& file, const wchar_t* path,
                            const wchar_t* attribute, wchar_t* buffer, std::uint32_t* length)
{
    if (IsMissing(path))
    {
        NORV_TRACE(frame, TraceInfo, "-> NorvXMLElementGetAttribute");
        return NorvXMLElementGetAttribute(file.c_str(), attribute, buffer, length);
    }
    NORV_TRACE(frame, TraceInfo, "-> NorvXMLProtocolGetValueRaw");
    std::wstring text;
    const Result result = NorvXMLProtocolGetValueRaw(file.c_str(), path, attribute, &text);
    return result == PGSP_OK ? CopyOut(text, buffer, length) : result;
}

} // namespace

int32_t PGSP_ProtocolGetValueBL(const wchar_t* CPType, const wchar_t* Parameter, const wchar_t* Value,
                                const wchar_t* SubParam, const wchar_t* SubValue, const wchar_t* Attribute,
                                wchar_t* Text, uint32_t* dwText)
{
    return RunExport("PGSP_ProtocolGetValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry,
                   ">> CPType = %s, Parameter = %s, Value = %s, SubParam = %s, SubValue = %s",
                   TraceToAnsi(CPType), TraceToAnsi(Parameter), TraceToAnsi(Value), TraceToAnsi(SubParam),
                   TraceToAnsi(SubValue));
        if (IsMissing(CPType) || Text == nullptr || dwText == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = ProtocolFile(programFolder, MakeProtocolName(CPType));
        const wchar_t* const attribute = ParameterOrDefault(Attribute);
        const std::uint32_t capacity = *dwText;
        Result result = NorvXMLElementGetAttribute(file.c_str(), attribute, Text, dwText);
        if (result != PGSP_OK)
        {
            *dwText = capacity; // each place is asked with what the caller offered
            const Question asked{Parameter, Value, SubParam, SubValue};
            result = ReadProtocolValue(frame, file, asked, attribute, Text, dwText);
        }

        NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Text, capacity), *dwText);
        return frame.Return(result);
    });
}

int32_t PGSP_ProtocolGetValueRawBL(const wchar_t* CPType, const wchar_t* ParameterPath,
                                   const wchar_t* Attribute, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_ProtocolGetValueRawBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> CPType = %s, ParameterPath = %s", TraceToAnsi(CPType),
                   TraceToAnsi(ParameterPath));
        if (IsMissing(CPType) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = ProtocolFile(programFolder, MakeProtocolName(CPType));
        const std::uint32_t capacity = *dwValue;
        const Result result =
            ReadProtocolValueRaw(frame, file, ParameterPath, ParameterOrDefault(Attribute), Value, dwValue);
        if (result == PGSP_OK)
        {
            NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value, capacity), *dwValue);
        }
        return frame.Return(result);
    });
}
