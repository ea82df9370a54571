#include "GetScene.h"

namespace norvepa::test
{

namespace
{

constexpr std::uint32_t Enough = 600; // characters

} // namespace

XmlContent Section(std::wstring_view section, std::wstring_view parameter, std::wstring_view value)
{
    return XmlContent().Element(section, XmlContent().Text(parameter, value));
}

std::wstring TextOf(std::int32_t result, const OutputBuffer& value)
{
    return result == PGSP_OK ? value.text() : L"(result " + std::to_wstring(result) + L")";
}

GetScene::~GetScene()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

std::int32_t GetScene::Get(const wchar_t* device, const wchar_t* parameter, OutputBuffer& value) const
{
    return library.LogDeviceGetValueBL(device, parameter, value.data(), &value.length);
}

std::int32_t GetScene::GetEx(const wchar_t* device, const wchar_t* section, const wchar_t* parameter,
                             OutputBuffer& value) const
{
    return library.LogDeviceGetValueExBL(device, section, parameter, value.data(), &value.length);
}

std::wstring GetScene::Value(const std::wstring& device, const wchar_t* parameter) const
{
    OutputBuffer value(Enough);
    const std::int32_t result = Get(device.c_str(), parameter, value);
    return TextOf(result, value);
}

std::wstring GetScene::ValueEx(const std::wstring& device, const wchar_t* section,
                               const wchar_t* parameter) const
{
    OutputBuffer value(Enough);
    const std::int32_t result = GetEx(device.c_str(), section, parameter, value);
    return TextOf(result, value);
}

} // namespace norvepa::test
