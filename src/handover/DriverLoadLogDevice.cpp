#include "BuildSettings.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "handover/DriverRead.h"
#include "win/WholeFile.h"
#include "xml/SchemaCollection.h"

#include <array>
#include <optional>
#include <utility>

namespace norvepa
{

namespace
{

constexpr wchar_t SchemaName[] = L"Corvane.Device.Driver.Logdevice";

// The name is one component: a backslash in it separates nothing to be left alone.
Result EscapeWholeName(const wchar_t* name, std::wstring& escaped)
{
    std::array<wchar_t, PathCapacity> buffer;
    std::uint32_t length = PathCapacity;
    const Result result = NorvXMLEscapeBareName(name, buffer.data(), &length);
    if (result == PGSP_OK)
    {
        escaped.assign(buffer.data(), length);
    }
    return result;
}

// False when there is no engine.
bool CreateForValidation(Document& document)
{
    if (FAILED(document.Create()))
    {
        return false;
    }
    document.LoadAsItStands();
    return true;
}

// What is read once is what the engine judges and what the records are made of.
bool LoadAndKeep(DriverReadContext& context, const std::wstring& file)
{
    std::optional<std::string> bytes = win::ReadWholeFile(file);
    if (!bytes || !context.document.LoadBytes(*bytes))
    {
        return false;
    }
    context.bytes = std::move(*bytes);
    return true;
}

} // namespace

Result DriverLoadLogDevice(DriverReadContext& context, const wchar_t* logDeviceName)
{
    std::wstring escaped;
    if (const Result result = EscapeWholeName(logDeviceName, escaped); result != PGSP_OK)
    {
        return result;
    }
    const std::wstring dataFolder = GetDataFolder();
    const std::wstring programFolder = GetProgramFolder();
    if (dataFolder.empty() || programFolder.empty())
    {
        return PGSP_ERR_FOLDER_NOT_FOUND;
    }

    Document schema;
    if (!CreateForValidation(schema))
    {
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }
    if (!schema.LoadWithNeighbours(MakeStoreFolder(programFolder, L"Schemes", SchemaName) + L".xsd"))
    {
        return PGSP_ERR_CANT_LOAD_SCHEMA;
    }

    // Neither the size guard nor a rule for the extension: ".xml" follows whatever the name holds.
    if (!CreateForValidation(context.document))
    {
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }
    if (!LoadAndKeep(context,
                     JoinPath(MakeStoreFolder(dataFolder, L"data", L"LogDevices"), escaped) + L".xml"))
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }

    SchemaCollection collection;
    if (FAILED(collection.Create()))
    {
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }
    collection.Add(std::wstring(DriverNamespace) + L"/LogDevice", schema);
    return collection.Validate(context.document).valid ? PGSP_OK : PGSP_ERR_INVALID_FILE;
}

} // namespace norvepa
