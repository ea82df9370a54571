#pragma once

// The trace of the exports that read and change the network device identity of a log device "Presse".

#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

#include <cstdint>

namespace norvepa::test
{

class NdiTraceScene : public LogNameTraceScene
{
protected:
    NdiTraceScene()
    {
        store.WriteDevice(L"Presse", XmlContent()
                                         .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
                                         .Element(L"Ndi", XmlContent().Text(L"Ort", L"Halle"))
                                         .Element(L"UserInterface64", XmlContent().ParameterAssemblyLink(
                                                                          {.name = L"PropSheet",
                                                                           .assembly = L"Seiten.dll",
                                                                           .path = L"%commonpath%",
                                                                           .function = L"ShowPage"})));
    }

    const DeviceStore store{roots};
};

} // namespace norvepa::test
