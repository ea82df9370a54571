#include "support/StoreRoots.h"

namespace norvepa::test
{

StoreRoots::StoreRoots()
{
    MakeFolders(data() + L"\\data\\LogNames");
    MakeFolders(data() + L"\\data\\LogDevices");
    MakeFolders(program() + L"\\meta\\Boards");
    MakeFolders(program() + L"\\meta\\Protocols");
    MakeFolders(program() + L"\\meta\\DefaultLogDevices");
    MakeFolders(program() + L"\\Schemes");
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", data());
    SetMachineText(LocationsKey, L"Corvane_Oam", program());
}

std::wstring StoreRoots::logName(const std::wstring& fileName) const
{
    return data() + L"\\data\\LogNames\\" + fileName + L".xml";
}

std::wstring StoreRoots::logDevice(const std::wstring& fileName) const
{
    return data() + L"\\data\\LogDevices\\" + fileName + L".xml";
}

std::wstring StoreRoots::board(const std::wstring& id) const
{
    return program() + L"\\meta\\Boards\\Automation-OnlineAccess-BT-" + id + L".xml";
}

std::wstring StoreRoots::protocol(const std::wstring& name) const
{
    return program() + L"\\meta\\Protocols\\Automation-OnlineAccess-PT-" + name + L".xml";
}

std::wstring StoreRoots::deviceTemplate(const std::wstring& name) const
{
    return program() + L"\\meta\\DefaultLogDevices\\Automation-OnlineAccess-LDT-" + name + L".xml";
}

void StoreRoots::FillWithSampleStore() const
{
    CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\data-root", data());
    CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\program-root", program());
}

} // namespace norvepa::test
