#include "NotifyTraceScene.h"

#include "notify/NotifyRegistration.h"
#include "notify/SendNotification.h"
#include "notify/directoryCache.h"
#include "trace/Norvotrc.h"

namespace norvepa::test
{

NotifyTraceScene::NotifyTraceScene()
{
    deinitWatchDirectories();
}

NotifyTraceScene::~NotifyTraceScene()
{
    workers.Await();
    FreeNotifyRegistrations();
    deinitWatchDirectories();
    DeleteMachineKey(TraceKey);
    TraceInit(nullptr, "norvepaBl64x");
}

void NotifyTraceScene::Trace(const std::wstring& level)
{
    m_lines.emplace(level);
    TraceInit(nullptr, "norvepaBl64x");
}

std::vector<std::string> NotifyTraceScene::Lines() const
{
    return m_lines->read();
}

void NotifyTraceScene::Announce(const wchar_t* folderName, const wchar_t* fileName) const
{
    SendNotificationBL(folderName, fileName, L"5");
    workers.Await();
}

std::string ToAnsi(const std::wstring& text)
{
    char ansi[300] = "";
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), -1, ansi, sizeof ansi, nullptr, nullptr);
    return ansi;
}

} // namespace norvepa::test
