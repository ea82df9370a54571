#pragma once

// A log device whose links are set and removed, in a folder by whose name new elements are log devices' own.

#include "store/LinkScene.h"
#include "store/WriteScene.h"

#include <string>

namespace norvepa::test
{

// What a caller gives of a link; null where nothing is given.
struct GivenLink
{
    const wchar_t* parameter = L"Seite";
    const wchar_t* assembly = nullptr;
    const wchar_t* path = nullptr;
    const wchar_t* function = nullptr;
    const wchar_t* resourceId = nullptr;
};

class NdiScene : public WriteScene
{
protected:
    NdiScene() : WriteScene(L"LogDevices\\Kesselhaus") {}

    [[nodiscard]] Result SetLink(const GivenLink& link, int wide = In64) const
    {
        return NorvXMLSetNdi(path().c_str(), link.parameter, link.assembly, link.path, link.function,
                             link.resourceId, wide);
    }
    [[nodiscard]] Result DeleteLink(const wchar_t* parameter, int wide = In64) const
    {
        return NorvXMLDelNdi(path().c_str(), parameter, wide);
    }
};

// A log device with one section, `UserInterface64`.
[[nodiscard]] inline std::string DeviceWithLinks(const XmlContent& links)
{
    return LogDeviceFile(XmlContent().Element(L"UserInterface64", links));
}

} // namespace norvepa::test
