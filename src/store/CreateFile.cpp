#include "BuildSettings.h"
#include "frame/Arguments.h"
#include "store/Kinds.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"
#include "win/NewFile.h"
#include "xml/CallImages.h"
#include "xml/Document.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLCreateFile: ", "XML"};

constexpr std::wstring_view InstanceNamespace = L"http://www.w3.org/2001/XMLSchema-instance";

// Fixed texts, wherever the schemas really lie.
constexpr std::wstring_view LogNameSchema =
    L"C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.Logname.xsd";
constexpr std::wstring_view DriverInfoSchema =
    L"C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.DriverInfo.xsd";

constexpr std::array<std::wstring_view, 1> LogNameSections{L"Parameters"};
constexpr std::array<std::wstring_view, 1> DriverInfoSections{L"Clients"};
constexpr std::array<std::wstring_view, 1> NotificationSections{L"NotificationSection"};
constexpr std::array<std::wstring_view, 3> SettingsSections{L"PGSP_Section", L"Updates", L"DateTimeSection"};

struct FormRow
{
    std::wstring_view kind;
    std::wstring_view root;
    std::wstring_view schema; // empty for a root that names none
    std::span<const std::wstring_view> sections;
};

constexpr std::array<FormRow, 4> FormTable{{
    {L"nam", L"LogName", LogNameSchema, LogNameSections},
    {L"driv", L"DriverInfo", DriverInfoSchema, DriverInfoSections},
    {L"notif", L"Notification", {}, NotificationSections},
    {L"pgsp", L"PGSP", {}, SettingsSections},
}};

// The engine writes the root's own xmlns, ahead of these, from the namespace that the root was made in.
bool NameSchema(const Node& root, const FormRow& form)
{
    const std::wstring location = NamespaceOfKind(form.kind).append(L" ").append(form.schema);
    return form.schema.empty() || (root.SetAttribute(L"xmlns:xsi", InstanceNamespace) &&
                                   root.SetAttribute(L"xsi:schemaLocation", location));
}

bool AppendSections(const Node& root, const FormRow& form, const Document& document)
{
    return std::all_of(form.sections.begin(), form.sections.end(), [&](std::wstring_view name) {
        const Node section = NorvXMLCreateElement(name, form.kind, document);
        return section && root.Append(section);
    });
}

bool Build(const FormRow& form, const Document& document)
{
    const Node root = NorvXMLCreateElement(form.root, form.kind, document);
    return root && document.Append(document.CreateInstruction(L"xml", L"version='1.0' encoding='UTF-8'")) &&
           document.Append(root) && NameSchema(root, form) && AppendSections(root, form, document) &&
           document.Append(document.CreateComment(CreatedFileNotice));
}

Result Fill(const win::NewFile& file, std::wstring_view kind)
{
    Document document;
    if (FAILED(document.Create()))
    {
        NORV_TRACE(source, TraceInfo, "ERROR : CreateInstance");
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }

    const auto form = std::find_if(FormTable.begin(), FormTable.end(),
                                   [=](const FormRow& each) { return each.kind == kind; });
    const auto bytes = form != FormTable.end() && Build(*form, document) ? document.Bytes() : std::nullopt;
    if (!bytes || !file.Write(*bytes))
    {
        file.Empty();
        return PGSP_ERR_CANT_CREATE_FILE;
    }
    return PGSP_OK;
}

} // namespace

Result NorvXMLCreateFile(const wchar_t* filePath, const wchar_t* fileKind)
{
    NORV_TRACE(source, TraceEntry, ">> filePath = %s", TraceToAnsi(filePath));
    if (IsMissing(filePath))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    if (NorvXMLFileExists(filePath) == PGSP_ERR_FILE_EXISTS)
    {
        return PGSP_ERR_FILE_EXISTS;
    }
    std::wstring file;
    if (const Result result = StoreFile(filePath, file); result != PGSP_OK)
    {
        return result;
    }

    ForgetImages();
    win::NewFile made = win::NewFile::CreateOrEmpty(file);
    if (!made)
    {
        NORV_TRACE(source, TraceInfo, "can't create file");
        return PGSP_ERR_CANT_CREATE_FILE;
    }
    const Result result = Fill(made, TextOrEmpty(fileKind));
    static_cast<void>(made.Keep()); // also when it has stayed empty
    return result;
}

} // namespace norvepa
