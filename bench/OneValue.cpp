#include "OneValue.h"

#include "norvepa.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"

#include <stdexcept>

namespace norvepa::bench
{

std::wstring IniFile(const PlantStore& store)
{
    std::string text = "[LocalSettings]\r\n";
    for (std::size_t number = 0; number < ParametersOfADevice; ++number)
    {
        text += test::ToUtf8(ParameterName(number)) + "=" + std::to_string(number) + "\r\n";
    }
    std::wstring file = store.folder() + L"\\device.ini";
    test::WriteBytes(file, text);
    return file;
}

void FillRegistry()
{
    for (std::size_t number = 0; number < ParametersOfADevice; ++number)
    {
        test::SetMachineText(RegistryKey, ParameterName(number), std::to_wstring(number));
    }
}

void Expect(const std::wstring& value, const wchar_t* expected)
{
    if (value != expected)
    {
        throw std::runtime_error("another value than expected");
    }
}

std::wstring ReadFromLibrary()
{
    std::array<wchar_t, 64> value{};
    auto length = static_cast<uint32_t>(value.size());
    if (LogDeviceGetValueBL(device.c_str(), lastParameter.c_str(), value.data(), &length) != PGSP_OK)
    {
        throw std::runtime_error("not read");
    }
    return value.data();
}

void WriteToLibrary(const std::wstring& value)
{
    if (LogDeviceSetValueBL(device.c_str(), lastParameter.c_str(), value.c_str()) != PGSP_OK)
    {
        throw std::runtime_error("not set");
    }
}

} // namespace norvepa::bench
