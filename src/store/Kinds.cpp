#include "store/Kinds.h"

#include "BuildSettings.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

struct KindRow
{
    std::wstring_view kind;
    std::wstring_view path; // below the driver namespace
};

constexpr std::array<KindRow, 7> KindTable{{
    {L"dev", L"/LogDevice"},
    {L"nam", L"/LogName"},
    {L"notif", L"/Notification"},
    {L"driv", L"/DriverInfo"},
    {L"pgsp", L"/PGSP"},
    {L"x", L""},
    {L"dll", L"/Instance"},
}};

} // namespace

std::wstring NamespaceOfKind(std::wstring_view kind)
{
    const auto row = std::find_if(KindTable.begin(), KindTable.end(),
                                  [=](const KindRow& each) { return each.kind == kind; });
    if (row == KindTable.end())
    {
        return {};
    }
    return std::wstring(DriverNamespace).append(row->path);
}

Node NorvXMLCreateElement(std::wstring_view name, std::wstring_view kind, const Document& document)
{
    return document.CreateElement(name, NamespaceOfKind(kind));
}

} // namespace norvepa
