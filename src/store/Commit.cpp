#include "BuildSettings.h"
#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/DomWalk.h"
#include "store/FileSteps.h"
#include "store/ProvisionalFile.h"
#include "store/TemporaryForm.h"
#include "store/norvxml.h"
#include "xml/SchemaCollection.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

constexpr TraceSource validateSource{"NorvXMLValidateFile: ", "XML"};

struct SchemaRow
{
    std::wstring_view schema;
    std::wstring_view path; // below the driver namespace
};

constexpr std::array<SchemaRow, 6> SchemaTable{{
    {L"Corvane.Device.Driver.Logdevice", L"/LogDevice"},
    {L"DefaultLogDevices.Schema", L"/LogDevice"},
    {L"Corvane.Device.Driver.Logname", L"/LogName"},
    {L"Protocols.Schema", L"/Protocols"},
    {L"Boards.Schema", L"/Boards"},
    {L"DriverInfo.Schema", L"/DriverInfo"},
}};

// Empty for a schema of another name, under which no document of ours is valid.
std::wstring NamespaceOfSchema(std::wstring_view schemaName)
{
    const auto row = std::find_if(SchemaTable.begin(), SchemaTable.end(),
                                  [=](const SchemaRow& each) { return each.schema == schemaName; });
    return row == SchemaTable.end() ? std::wstring{} : std::wstring(DriverNamespace).append(row->path);
}

Result CreateForValidation(Document& document)
{
    const Result result = CreateDocument(validateSource, document);
    if (result == PGSP_OK)
    {
        document.LoadAsItStands();
    }
    return result;
}

} // namespace

Result NorvXMLValidateFile(const wchar_t* fileName, const wchar_t* schemaName, const wchar_t* folderPath)
{
    NORV_TRACE(validateSource, TraceEntry, ">> fileName = %s", TraceToAnsi(fileName));
    if (IsMissing(fileName) || IsMissing(schemaName) || IsMissing(folderPath))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring escaped;
    if (const Result result = EscapePath(fileName, escaped); result != PGSP_OK)
    {
        return result;
    }
    const std::wstring programFolder = GetProgramFolder();
    if (programFolder.empty())
    {
        return PGSP_ERR_FOLDER_NOT_FOUND;
    }

    Document schema;
    if (const Result result = CreateForValidation(schema); result != PGSP_OK)
    {
        return result;
    }
    if (!schema.LoadWithNeighbours(MakeStoreFolder(programFolder, L"Schemes", schemaName) + L".xsd"))
    {
        return PGSP_ERR_CANT_LOAD_SCHEMA;
    }

    Document document;
    if (const Result result = CreateForValidation(document); result != PGSP_OK)
    {
        return result;
    }
    std::wstring file = JoinPath(folderPath, escaped);
    ExtendByEndRule(file);
    if (const Result result = CheckFileSize(file); result != PGSP_OK)
    {
        return result;
    }
    if (!document.Load(file))
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }

    SchemaCollection collection;
    if (FAILED(collection.Create()))
    {
        NORV_TRACE(validateSource, TraceInfo, "ERROR : CreateInstance");
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }
    collection.Add(NamespaceOfSchema(schemaName), schema);
    const ValidationOutcome outcome = collection.Validate(document);
    if (!outcome.valid)
    {
        NORV_TRACE(validateSource, TraceInfo, "INVALID FILE, reason: %s",
                   TraceToAnsi(outcome.reason.c_str()));
        return PGSP_ERR_INVALID_FILE;
    }
    return PGSP_OK;
}

Result NorvXMLCommitTemp(const wchar_t* fileName, const wchar_t* schemaName, const wchar_t* folderPath)
{
    if (IsMissing(fileName) || IsMissing(schemaName) || IsMissing(folderPath))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    const std::wstring temporaryName = std::wstring(fileName) + TemporaryMark;
    const std::wstring temporary = JoinPath(folderPath, temporaryName);
    const Result validation = NorvXMLValidateFile(temporaryName.c_str(), schemaName, folderPath);
    if (validation != PGSP_OK)
    {
        static_cast<void>(NorvXMLDeleteFile(temporary.c_str()));
        return validation;
    }

    const std::wstring real = JoinPath(folderPath, fileName);
    const Result replacing = Replacing(temporary.c_str(), real.c_str()).Run();
    return replacing == PGSP_ERR_CANT_DELETE_FILE ? replacing : PGSP_OK; // no other failure is told
}

Result CommitDeletion(const std::wstring& folderPath, const wchar_t* fileName, const wchar_t* schemaName,
                      const std::function<Result(const wchar_t* filePath)>& deletion)
{
    const std::wstring file = JoinPath(folderPath, fileName);
    std::wstring escaped;
    if (const Result result = EscapePath(file.c_str(), escaped); result != PGSP_OK)
    {
        return result;
    }

    const std::wstring temporary = TemporaryForm(escaped);
    const ProvisionalFile provisional(temporary);
    const Result result = deletion(file.c_str());
    return result == PGSP_OK ? NorvXMLCommitTemp(fileName, schemaName, folderPath.c_str()) : result;
}

} // namespace norvepa
