#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/norvepaPgspBl64/NameForms.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// The folder word of notifications.
constexpr wchar_t CatalogueWord[] = L"meta";

} // namespace

int32_t PGSP_TemplateGetEnumValueRawBL(const wchar_t* Folder, const wchar_t* Template, const wchar_t* Key,
                                       uint32_t index, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_TemplateGetEnumValueRawBL: ", [&](const ExportFrame& frame) -> Result {
        if (IsMissing(Folder) || IsMissing(Template) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }
        std::wstring file;
        if (const Result result =
                MakeFileIn(TemplateGetEnumValueRawForms, programFolder, Folder, Template, file);
            result != PGSP_OK)
        {
            return frame.Return(result);
        }

        std::wstring item;
        const Result result = NorvXMLEnumValueCollectionRaw(file.c_str(), Key, index, &item);
        return frame.Return(result == PGSP_OK ? CopyOut(item, Value, dwValue) : result);
    });
}

int32_t PGSP_TemplateGetConstraintBL(const wchar_t* FolderName, const wchar_t* fileName,
                                     const wchar_t* Parameter, const wchar_t* Constraint, wchar_t* Value,
                                     uint32_t* dwValue)
{
    return RunExport("PGSP_TemplateGetConstraintBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> FolderName = %s, fileName = %s, Parameter = %s, Constraint = %s",
                   TraceToAnsi(FolderName), TraceToAnsi(fileName), TraceToAnsi(Parameter),
                   TraceToAnsi(Constraint));
        if (IsMissing(FolderName) || IsMissing(fileName) || IsMissing(Parameter) || IsMissing(Constraint) ||
            Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }
        std::wstring file;
        if (const Result result =
                MakeFileIn(TemplateGetConstraintForms, programFolder, FolderName, fileName, file);
            result != PGSP_OK)
        {
            return frame.Return(result);
        }

        std::wstring word;
        Result result = NorvXMLGetConstraint(file.c_str(), Parameter, Constraint, &word);
        if (result == PGSP_OK)
        {
            result = CopyOut(word, Value, dwValue);
        }
        if (result == PGSP_OK)
        {
            NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value), *dwValue);
        }
        return frame.Return(result);
    });
}

int32_t PGSP_TemplateSetValueBL(const wchar_t* Folder, const wchar_t* fileName, const wchar_t* Parameter,
                                const wchar_t* Value)
{
    return RunExport("PGSP_TemplateSetValueBL: ", [&](const ExportFrame& frame) -> Result {
        if (IsMissing(Parameter) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceEntry, ">> fileName = %s, Parameter = %s, Value = %s", TraceToAnsi(fileName),
                   TraceToAnsi(Parameter), TraceToAnsi(Value));
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }
        const wchar_t* const name = fileName == nullptr ? L"" : fileName;
        std::wstring file;
        if (const Result result =
                MakeFileIn(TemplateSetValueForms, programFolder, TextOrEmpty(Folder), name, file);
            result != PGSP_OK)
        {
            return frame.Return(result);
        }

        const Result result = NorvXMLSetHeaderValue(file.c_str(), Parameter, Value);
        if (result == PGSP_OK)
        {
            SendNotificationBL(CatalogueWord, fileName, L"5");
        }
        return frame.Return(result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result);
    });
}
