#include "TraceScene.h"

#include "support/StoreRoots.h"
#include "trace/Norvotrc.h"

#include <sstream>

namespace norvepa::test
{

TraceScene::~TraceScene()
{
    // What a reading without the key doesn't reset, put back for a next test of the same process.
    Set(L"Output", L"FILE");
    Set(L"Byte/File", L"2097152");
    SetFiles();
    ReadSettings();
    DeleteMachineKey(TraceKey);
    ReadSettings();
}

void TraceScene::Set(const std::wstring& name, const std::wstring& value)
{
    SetMachineText(TraceKey, name, value);
}

void TraceScene::SetFiles() const
{
    Set(L"Path", m_folder.path());
    Set(L"FileName", L"trace");
}

void TraceScene::ReadSettings()
{
    TraceInit(nullptr, "norvepaBl64x");
}

void TraceScene::TraceToFiles(const std::wstring& level) const
{
    SetFiles();
    Set(L"Level", level);
    Set(L"Format", L"TEXT");
    ReadSettings();
}

std::wstring TraceScene::file(int number) const
{
    return m_folder / (L"trace" + std::to_wstring(number) + L".TRC");
}

std::string TraceScene::base() const
{
    return ToUtf8(m_folder / L"trace");
}

std::vector<std::string> TraceScene::lines() const
{
    std::vector<std::string> all;
    for (const int number : {1, 2})
    {
        std::istringstream content(Exists(file(number)) ? ReadBytes(file(number)) : "");
        for (std::string line; std::getline(content, line);)
        {
            all.push_back(line);
        }
    }
    return all;
}

} // namespace norvepa::test
