#include "GetLists.h"
#include "GetScene.h"

#include <algorithm>
#include <array>

namespace norvepa::test
{
namespace
{

struct NameAndFile
{
    const wchar_t* name;
    const wchar_t* fileName;
};

constexpr std::array<NameAndFile, 12> Devices{{
    {L"Kessel#1", L"Kessel(nmbr)1"},
    {L"50 %", L"50 #25"},
    {L"Halle: 2", L"Halle#3a 2"},
    {L"*Nord*", L"#2aNord#2a"},
    {L"Druck?", L"Druck#3f"},
    {L"<10 bar", L"#3c10 bar"},
    {L"bar >6", L"bar #3e6"},
    {L"links|rechts", L"links#7crechts"},
    {L"1/2", L"1#2f2"},
    {L"#%:*?<>|/", L"(nmbr)#25#3a#2a#3f#3c#3e#7c#2f"},
    {L"\u00DCberhitzer \u00E4\u00F6\u00FC\u00DF", L"\u00DCberhitzer \u00E4\u00F6\u00FC\u00DF"},
    {L"Gr\u00F6\u00DFe \u00B5\u03A9 \u5DE5", L"Gr\u00F6\u00DFe \u00B5\u03A9 \u5DE5"},
}};

// Log devices and log names that the file system doesn't take as they are, or that have letters beyond ASCII.
class GetNames : public GetScene
{
protected:
    GetNames()
    {
        for (const auto& [name, fileName] : Devices)
        {
            store.WriteDevice(
                fileName,
                XmlContent()
                    .Element(L"DeviceHeader", XmlContent().Text(L"Unit", name))
                    .Element(L"Bindings", XmlContent().Subdevice(name, XmlContent().Text(L"Ort", name))));
            WriteBytes(roots.logName(fileName), LogNameFile(XmlContent().Text(L"Station", name)));
        }
    }

    // The test's own names, sorted, to be compared with what an enumeration gives.
    [[nodiscard]] static Names Sorted(Names names)
    {
        std::sort(names.begin(), names.end());
        return names;
    }

    [[nodiscard]] static Names All()
    {
        Names names;
        for (const NameAndFile& device : Devices)
        {
            names.emplace_back(device.name);
        }
        return Sorted(names);
    }
};

TEST_F(GetNames, HaveValues)
{
    for (const auto& [name, fileName] : Devices)
    {
        EXPECT_EQ(Value(name, L"Unit"), name);
        EXPECT_EQ(Value(name, L"CP_TYPE"), L"MPI") << name;
        EXPECT_EQ(ValueEx(name, nullptr, L"Unit"), name);
        EXPECT_EQ(ValueEx(name, L"DeviceHeader", L"Unit"), name);
        EXPECT_EQ(ValueEx(name, nullptr, L"DeviceID"), L"AFK110") << name;
    }
}

TEST_F(GetNames, HaveSubdevices)
{
    for (const auto& [name, fileName] : Devices)
    {
        const std::wstring subdevice = std::wstring(name) + L"\\Subdevices\\" + name;
        EXPECT_EQ(Value(subdevice, L"Ort"), name);
        EXPECT_EQ(ValueEx(subdevice, nullptr, L"Ort"), name);
        EXPECT_EQ(library.LogDeviceExistBL(subdevice.c_str(), 0), PGSP_OK) << name;
    }
}

TEST_F(GetNames, HaveLists)
{
    for (const auto& [name, fileName] : Devices)
    {
        OutputBuffer values(300);
        EXPECT_EQ(library.LogDeviceGetValueListBL(name, nullptr, L"Unit\0DeviceID\0", 14, values.data(),
                                                  &values.length),
                  PGSP_OK);
        EXPECT_EQ(Written(values), Packed({name, L"AFK110"}));

        OutputBuffer all(300);
        EXPECT_EQ(library.LogDeviceGetValueListBL(name, nullptr, nullptr, 0, all.data(), &all.length),
                  PGSP_OK);
        EXPECT_EQ(Written(all), Packed({L"Unit", name, L"CP_TYPE", L"MPI", L"DeviceId", L"AFK110"}));

        OutputBuffer ofLogName(300);
        EXPECT_EQ(
            library.LogNameGetValueListBL(name, nullptr, nullptr, 0, ofLogName.data(), &ofLogName.length),
            PGSP_OK);
        EXPECT_EQ(Written(ofLogName), Packed({L"Station", name}));
    }
}

TEST_F(GetNames, AreWalkedThrough)
{
    for (const auto& [name, fileName] : Devices)
    {
        OutputBuffer parameter(20);
        OutputBuffer value(40);
        EXPECT_EQ(library.LogDeviceGetEnumValueBL(name, 0, parameter.data(), &parameter.length, value.data(),
                                                  &value.length),
                  PGSP_OK);
        EXPECT_EQ(value.text(), name);

        OutputBuffer ofLogName(20);
        OutputBuffer station(40);
        EXPECT_EQ(library.LogNameGetEnumValueBL(name, 0, ofLogName.data(), &ofLogName.length, station.data(),
                                                &station.length),
                  PGSP_OK);
        EXPECT_EQ(station.text(), name);
    }
}

TEST_F(GetNames, ComeBackFromTheEnumerationAsTheyAre)
{
    Names names;
    OutputBuffer name(260);
    while (library.LogDeviceGetEnumBL(L"mpi", static_cast<std::uint32_t>(names.size()), name.data(),
                                      &name.length) == PGSP_OK)
    {
        names.push_back(name.text());
        EXPECT_EQ(name.length, names.back().size());
        name = OutputBuffer(260);
    }

    EXPECT_EQ(Sorted(names), All());
}

TEST_F(GetNames, ComeBackFromTheIndexOfIdentitiesAsTheyAre)
{
    Names names;
    OutputBuffer name(260);
    OutputBuffer unit(260);
    while (library.LogDeviceGetEnumByDeviceIdBL(L"afk110", static_cast<std::uint32_t>(names.size()),
                                                name.data(), &name.length, unit.data(),
                                                &unit.length) == PGSP_OK)
    {
        names.push_back(name.text());
        EXPECT_EQ(unit.text(), names.back());
        name = OutputBuffer(260);
        unit = OutputBuffer(260);
    }

    EXPECT_EQ(Sorted(names), All());
}

TEST_F(GetNames, AreHiddenByTheirFiles)
{
    for (const auto& [name, fileName] : Devices)
    {
        store.WriteDevice(fileName, Section(L"Ndi", L"hidden", L"true"));
    }
    OutputBuffer name(260);

    EXPECT_EQ(library.LogDeviceGetEnumBL(nullptr, 0, name.data(), &name.length), PGSP_ERR_NO_MORE_ITEMS);
}

TEST_F(GetNames, Exist)
{
    for (const auto& [name, fileName] : Devices)
    {
        EXPECT_EQ(library.LogDeviceExistBL(name, 0), PGSP_OK) << name;
        EXPECT_EQ(library.LogDeviceExistBL(name, 6), PGSP_OK) << name;
        EXPECT_EQ(library.LogDeviceExistBL((std::wstring(name) + L"x").c_str(), 0), PGSP_ERR_FILE_NOT_FOUND)
            << name;
    }
}

TEST_F(GetNames, AreLinked)
{
    for (const auto& [name, fileName] : Devices)
    {
        OutputBuffer device(260);
        const bool isValue = std::wstring_view(name).find_first_of(L"<>") == std::wstring_view::npos;

        // A log device with "<" or ">" is found, but its name is no value that the store takes.
        EXPECT_EQ(library.LogNameSetLogDeviceBL(name, name), isValue ? PGSP_OK : PGSP_ERR_INVALID_PARAMETERS)
            << name;

        const std::int32_t result = library.LogNameGetLogDeviceBL(name, device.data(), &device.length);
        EXPECT_EQ(TextOf(result, device), isValue ? name : L"(result 8513)");
    }
}

TEST_F(GetNames, GiveTheirTypeThoughTheyCanNotBeLinked)
{
    OutputBuffer type(20);

    EXPECT_EQ(library.LogNameSetLogDeviceBL(L"Druck?", L"<10 bar"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(library.LogNameGetValueBL(L"Druck?", L"CP_TYPE", type.data(), &type.length), PGSP_OK);
    EXPECT_EQ(type.text(), L"MPI");
}

} // namespace
} // namespace norvepa::test
