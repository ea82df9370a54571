#include "exports_whole/Objects.h"

#include "support/DeviceStore.h"
#include "support/XmlFiles.h"

#include <array>

namespace norvepa::test
{

namespace
{

constexpr int EntriesBetween = 60;
constexpr std::size_t LongText = 2000; // characters

XmlContent EntriesWith(const std::wstring& text)
{
    XmlContent entries;
    entries.Text(TextParameter, text);
    for (int entry = 0; entry < EntriesBetween; ++entry)
    {
        entries.Text(L"Messstelle " + std::to_wstring(entry), L"Halle 2, Vorlauf der Turbine, oben");
    }
    return entries;
}

XmlContent HeaderOfUnit(std::wstring_view unit)
{
    return XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", unit));
}

} // namespace

const std::wstring& TextOfRound(unsigned round)
{
    static const std::array<std::wstring, 2> texts{L"kurz",
                                                   L"lang " + std::wstring(LongText, L'-') + L" \u00FCber"};
    return texts.at(round % 2);
}

bool IsATextOfOurs(const std::wstring& text)
{
    return text == TextOfRound(0) || text == TextOfRound(1);
}

void WriteObjects(const StoreRoots& roots)
{
    const DeviceStore store(roots);
    store.WriteDevice(L"Anlage", HeaderOfUnit(L"1"));
    WriteBytes(roots.logDevice(OurDevice), DeviceFileWith(TextOfRound(0)));
    store.WriteDevice(L"Waage", HeaderOfUnit(L"3"));
    WriteBytes(roots.logName(OurName), NameFileWith(TextOfRound(0)));
}

std::string DeviceFileWith(const std::wstring& text)
{
    return LogDeviceFile(HeaderOfUnit(L"2")
                             .Element(L"LocalSettings", EntriesWith(text))
                             .Element(L"SpareSection", XmlContent().Text(LastParameter, LastValue)),
                         OurBoard, OurNetType);
}

std::string NameFileWith(const std::wstring& text)
{
    return LogNameFile(EntriesWith(text).Text(LastParameter, LastValue));
}

} // namespace norvepa::test
