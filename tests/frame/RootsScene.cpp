#include "frame/RootsScene.h"

#include "frame/StoreLocations.h"
#include "support/StoreRoots.h"
#include "support/SystemFunction.h"

#include <windows.h>

namespace norvepa::test
{

namespace
{

constexpr wchar_t AdvApi[] = L"advapi32.dll";
const std::wstring DataValue = L"Corvane_Oam_Data";
const std::wstring ProgramValue = L"Corvane_Oam";

int keyOpened = 0;
int dataAsked = 0;
int programAsked = 0;

LSTATUS WINAPI OpenKey(HKEY parent, const wchar_t* path, DWORD options, REGSAM access, HKEY* key)
{
    static auto* const open = SystemFunction<decltype(RegOpenKeyExW)>("RegOpenKeyExW", AdvApi);
    keyOpened += path == LocationsKey ? 1 : 0;
    return open(parent, path, options, access, key);
}

LSTATUS WINAPI AskValue(HKEY key, const wchar_t* subkey, const wchar_t* name, DWORD flags, DWORD* type,
                        void* data, DWORD* size)
{
    static auto* const ask = SystemFunction<decltype(RegGetValueW)>("RegGetValueW", AdvApi);
    dataAsked += name == DataValue ? 1 : 0;
    programAsked += name == ProgramValue ? 1 : 0;
    return ask(key, subkey, name, flags, type, data, size);
}

} // namespace

RootsScene::RootsScene() : m_open("RegOpenKeyExW", OpenKey), m_ask("RegGetValueW", AskValue)
{
    SetRoots(L"C:\\Before");
    keyOpened = 0;
    dataAsked = 0;
    programAsked = 0;
}

void RootsScene::SetRoots(const std::wstring& folder)
{
    SetMachineText(LocationsKey, DataValue, folder + L"\\Data");
    SetMachineText(LocationsKey, ProgramValue, folder + L"\\Program");
}

void RootsScene::ExpectRoots(const std::wstring& folder)
{
    EXPECT_EQ(GetDataFolder(), folder + L"\\Data");
    EXPECT_EQ(GetProgramFolder(), folder + L"\\Program");
}

int RootsScene::timesKeyWasOpened()
{
    return keyOpened;
}

int RootsScene::timesDataWasAskedFor()
{
    return dataAsked;
}

int RootsScene::timesProgramWasAskedFor()
{
    return programAsked;
}

} // namespace norvepa::test
