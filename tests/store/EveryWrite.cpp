#include "store/EveryWrite.h"

#include "store/norvxml.h"

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

XmlContent Content(const XmlContent& localSettings, const XmlContent& subdevice, const XmlContent& settings)
{
    return XmlContent()
        .Element(L"LocalSettings", localSettings)
        .Element(L"Bindings", XmlContent().Subdevice(L"Pumpe", subdevice))
        .Element(L"PGSP_Section", settings);
}

} // namespace

void PrintTo(const Write& write, std::ostream* out)
{
    *out << write.name;
}

const std::vector<Write>& EveryWrite()
{
    static const std::vector<Write> writes = [] {
        const XmlContent one = XmlContent().Int(L"a", L"1");
        const XmlContent set = XmlContent().Int(L"a", L"2");
        const XmlContent more = XmlContent(one).Int(L"b", L"2");
        constexpr Result notSet = PGSP_ERR_CANT_SET_VALUE;
        constexpr Result notThere = PGSP_ERR_PARAM_NOT_FOUND;
        return std::vector<Write>{
            {"SetValue", CallSetValue, Content(set, one, one), notSet, false},
            {"SetNewValue", CallSetNewValue, Content(more, one, one), notSet, false},
            {"SetHeaderValue", CallSetHeaderValue, Content(set, one, one), notSet, false},
            {"SetSubdevValue", CallSetSubdevValue, Content(one, set, one), notSet, false},
            {"SetNewSubdevValue", CallSetNewSubdevValue, Content(one, more, one), notSet, false},
            {"DelValue", CallDelValue, Content({}, one, one), notThere, true},
            {"DelValueInPlace", CallDelValueInPlace, Content(one, one, {}), notThere, false},
        };
    }();
    return writes;
}

std::string NameOf(const testing::TestParamInfo<Write>& info)
{
    return info.param.name;
}

XmlContent WritableContent()
{
    const XmlContent one = XmlContent().Int(L"a", L"1");
    return Content(one, one, one);
}

} // namespace norvepa::test
