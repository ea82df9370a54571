#include "PlantStore.h"

#include "support/TemporaryFolder.h"
#include "support/XmlFiles.h"
#include "trace/Norvotrc.h"

namespace norvepa::bench
{

namespace
{

constexpr wchar_t DeviceId[] = L"AFK220";
constexpr wchar_t NetType[] = L"L2";

std::string DeviceBytes(std::size_t unit, std::size_t count)
{
    test::XmlContent header;
    header.Int(L"Unit", std::to_wstring(unit)).Bool(L"enable_delete", L"true");
    test::XmlContent content;
    content.Element(L"DeviceHeader", header).Element(L"LocalSettings", Parameters(count));
    return test::LogDeviceFile(content, DeviceId, NetType);
}

} // namespace

std::wstring ParameterName(std::size_t number)
{
    return L"parameter_" + std::to_wstring(number);
}

test::XmlContent Parameters(std::size_t count)
{
    test::XmlContent parameters;
    for (std::size_t number = 0; number < count; ++number)
    {
        parameters.Int(ParameterName(number), std::to_wstring(number));
    }
    return parameters;
}

test::XmlContent ParameterConstraints()
{
    test::XmlContent constraints;
    for (std::size_t number = 0; number < ParametersOfADevice; ++number)
    {
        test::XmlContent words;
        words.Element(L"type", L"int")
            .Element(L"default", L"0")
            .Element(L"min", L"0")
            .Element(L"max", L"1000000")
            .Element(L"section", L"LocalSettings")
            .ValueCollection({L"0/aus", L"1/ein", L"10/langsam", L"100/schnell"});
        constraints.ParamSection(ParameterName(number), words);
    }
    return constraints;
}

PlantStore::PlantStore(std::size_t devices, std::size_t parameters)
{
    TraceInit(nullptr, "norvepaBl64x"); // by the redirected registry: switched off
    for (std::size_t number = 0; number < devices; ++number)
    {
        test::WriteBytes(devicePath(number), DeviceBytes(number, parameters));
    }
    test::WriteBytes(m_roots.board(DeviceId), test::BoardFile(test::XmlContent(), DeviceId, NetType));
    test::WriteBytes(
        protocolPath(),
        test::ProtocolFile(test::XmlContent().Element(L"Constraints", ParameterConstraints()), NetType));
}

std::wstring PlantStore::deviceName(std::size_t number)
{
    return L"Anlage " + std::to_wstring(number);
}

std::wstring PlantStore::devicePath(std::size_t number) const
{
    return m_roots.logDevice(deviceName(number));
}

std::wstring PlantStore::logNamePath(const std::wstring& name) const
{
    return m_roots.logName(name);
}

std::wstring PlantStore::protocolPath() const
{
    return m_roots.protocol(NetType);
}

std::wstring PlantStore::protocolPath(const std::wstring& name) const
{
    return m_roots.protocol(name);
}

} // namespace norvepa::bench
