#include "store/EveryWrite.h"

#include "store/DataScene.h"
#include "store/norvxml.h"

#include <algorithm>
#include <iterator>

namespace norvepa::test
{

namespace
{

Result CallSetValue(const wchar_t* file)
{
    return NorvXMLSetValue(file, L"LocalSettings", L"a", L"2", L"int");
}

Result CallSetNewValue(const wchar_t* file)
{
    return NorvXMLSetValue(file, L"LocalSettings", L"b", L"2", L"int");
}

Result CallSetHeaderValue(const wchar_t* file)
{
    return NorvXMLSetHeaderValue(file, L"a", L"2");
}

Result CallSetSubdevValue(const wchar_t* file)
{
    return NorvXMLSetSubdevValue(file, L"Pumpe", L"a", L"2", L"int");
}

Result CallSetNewSubdevValue(const wchar_t* file)
{
    return NorvXMLSetSubdevValue(file, L"Pumpe", L"b", L"2", L"int");
}

Result CallDelValue(const wchar_t* file)
{
    return NorvXMLDelValue(file, L"LocalSettings", L"a");
}

Result CallDelValueInPlace(const wchar_t* file)
{
    return NorvXMLDelValue(file, L"PGSP_Section", L"a");
}

Result CallSetNdi(const wchar_t* file)
{
    return NorvXMLSetNdi(file, L"Seite", L"Neu.dll", nullptr, L"Zeige", nullptr, 0);
}

Result CallSetNewNdi(const wchar_t* file)
{
    return NorvXMLSetNdi(file, L"DescText", L"Texte.dll", nullptr, nullptr, L"7", 0);
}

Result CallSetNdiInNewSection(const wchar_t* file)
{
    return NorvXMLSetNdi(file, L"DescText", L"Texte.dll", nullptr, nullptr, L"7", 1);
}

Result CallDelNdi(const wchar_t* file)
{
    return NorvXMLDelNdi(file, L"Seite", 0);
}

Result CallSetParameterData(const wchar_t* file)
{
    return NorvXMLSetParameterData(file, L"a", L"2", L"int");
}

Result CallSetNewParameterData(const wchar_t* file)
{
    return NorvXMLSetParameterData(file, L"b", L"2", L"int");
}

Result CallDelParameterData(const wchar_t* file)
{
    return NorvXMLDelParameterData(file, L"a");
}

// What stands in the places that the writes look into.
struct Places
{
    XmlContent localSettings = XmlContent().Int(L"a", L"1");
    XmlContent subdevice = XmlContent().Int(L"a", L"1");
    XmlContent settings = XmlContent().Int(L"a", L"1");
    XmlContent links = PageOf(L"Alt.dll");

    [[nodiscard]] static XmlContent PageOf(std::wstring_view assembly)
    {
        return XmlContent().ParameterAssemblyLink(
            {.name = L"Seite", .assembly = assembly, .function = L"Zeige"});
    }
};

XmlContent Content(const Places& places)
{
    return XmlContent()
        .Element(L"LocalSettings", places.localSettings)
        .Element(L"Bindings", XmlContent().Subdevice(L"Pumpe", places.subdevice))
        .Element(L"PGSP_Section", places.settings)
        .Element(L"UserInterface64", places.links);
}

XmlContent NewEntry(const std::wstring& nameSpace)
{
    return XmlContent().Element(L"ParameterInt", {{L"xmlns", nameSpace}},
                                XmlContent().Element(L"Name", L"b").Element(L"Value", L"2"));
}

XmlContent NewLink()
{
    return XmlContent().Resource({.name = L"DescText", .assembly = L"Texte.dll", .resourceId = L"7"});
}

std::vector<Write> WritesWhere(bool (*test)(const Write& write))
{
    std::vector<Write> some;
    std::ranges::copy_if(EveryWrite(), std::back_inserter(some), test);
    return some;
}

} // namespace

void PrintTo(const Write& write, std::ostream* out)
{
    *out << write.name;
}

const std::vector<Write>& EveryWrite()
{
    static const std::vector<Write> writes = [] {
        const XmlContent set = XmlContent().Int(L"a", L"2");
        const std::wstring baseNamespace(BaseNamespace);
        const XmlContent more =
            XmlContent().Int(L"a", L"1").Raw(NewEntry(baseNamespace + L"/LogDevice").utf8());
        const XmlContent newData = NewEntry(baseNamespace);
        const XmlContent newSection = XmlContent().Element(L"UserInterface", NewLink());
        const XmlContent page = Places::PageOf(L"Neu.dll");
        const XmlContent moreLinks = XmlContent(Places().links).Raw(NewLink().utf8());
        const std::string setValue = "NorvXMLSetValue: ";
        const std::string setHeader = "NorvXMLSetHeaderValue: ";
        const std::string setSubdev = "NorvXMLSetSubdevValue: ";
        const std::string delValue = "NorvXMLDelValue: ";
        const std::string setNdi = "NorvXMLSetNdi: ";
        const std::string delNdi = "NorvXMLDelNdi: ";
        constexpr Result notSet = PGSP_ERR_CANT_SET_VALUE;
        constexpr Result notThere = PGSP_ERR_PARAM_NOT_FOUND;
        constexpr Result made = PGSP_OK;
        return std::vector<Write>{
            {"SetValue", setValue, CallSetValue, Content({.localSettings = set}), {}, notSet, false},
            {"SetNewValue", setValue, CallSetNewValue, Content({.localSettings = more}), {}, notSet, false},
            {"SetHeaderValue",
             setHeader,
             CallSetHeaderValue,
             Content({.localSettings = set}),
             {},
             notSet,
             false},
            {"SetSubdevValue", setSubdev, CallSetSubdevValue, Content({.subdevice = set}), {}, notSet, false},
            {"SetNewSubdevValue",
             setSubdev,
             CallSetNewSubdevValue,
             Content({.subdevice = more}),
             {},
             notSet,
             false},
            {"DelValue", delValue, CallDelValue, Content({.localSettings = {}}), {}, notThere, true},
            {"DelValueInPlace",
             delValue,
             CallDelValueInPlace,
             Content({.settings = {}}),
             {},
             notThere,
             false},
            {"SetNdi", setNdi, CallSetNdi, Content({.links = page}), {}, made, false},
            {"SetNewNdi", setNdi, CallSetNewNdi, Content({.links = moreLinks}), {}, made, false},
            {"SetNdiInNewSection", setNdi, CallSetNdiInNewSection, Content({}), newSection, made, false},
            {"DelNdi", delNdi, CallDelNdi, Content({.links = {}}), {}, notThere, true},
            {"SetParameterData", {}, CallSetParameterData, Content({.localSettings = set}), {}, made, false},
            {"SetNewParameterData", {}, CallSetNewParameterData, Content({}), newData, made, false},
            {"DelParameterData", {}, CallDelParameterData, Content({.localSettings = {}}), {}, notSet, false},
        };
    }();
    return writes;
}

std::vector<Write> WritesThatNeedAPlace()
{
    return WritesWhere([](const Write& write) { return write.notFound != PGSP_OK; });
}

std::vector<Write> TellingWrites()
{
    return WritesWhere([](const Write& write) { return !write.tag.empty(); });
}

std::vector<Write> SilentWrites()
{
    return WritesWhere([](const Write& write) { return write.tag.empty(); });
}

std::string NameOf(const testing::TestParamInfo<Write>& info)
{
    return info.param.name;
}

XmlContent WritableContent()
{
    return Content({});
}

std::string WritableFile(const XmlContent& content)
{
    return XmlFile(L"LogDevice", {}, content);
}

} // namespace norvepa::test
