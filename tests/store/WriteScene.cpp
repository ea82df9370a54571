#include "store/WriteScene.h"

namespace norvepa::test
{

Result WriteScene::Set(const wchar_t* section, const wchar_t* parameter, const wchar_t* value,
                       const wchar_t* type) const
{
    return NorvXMLSetValue(path().c_str(), section, parameter, value, type);
}

Result WriteScene::SetHeader(const wchar_t* parameter, const wchar_t* value) const
{
    return NorvXMLSetHeaderValue(path().c_str(), parameter, value);
}

Result WriteScene::SetSubdev(const wchar_t* subdevice, const wchar_t* parameter, const wchar_t* value,
                             const wchar_t* type) const
{
    return NorvXMLSetSubdevValue(path().c_str(), subdevice, parameter, value, type);
}

Result WriteScene::Delete(const wchar_t* section, const wchar_t* parameter) const
{
    return NorvXMLDelValue(path().c_str(), section, parameter);
}

std::string DeviceWith(const XmlContent& localSettings)
{
    return LogDeviceFile(XmlContent().Element(L"LocalSettings", localSettings));
}

XmlContent EntryIn(std::wstring_view element, std::wstring_view name, std::wstring_view value)
{
    return XmlContent().Element(element, XmlContent().Element(L"Name", name).Element(L"Value", value));
}

} // namespace norvepa::test
