#include "ServiceTraceScene.h"

#include "trace/Norvotrc.h"

namespace norvepa::test
{

ServiceTraceScene::ServiceTraceScene()
{
    store.WriteDevice(L"Presse", {});
}

ServiceTraceScene::~ServiceTraceScene()
{
    DeleteMachineKey(TraceKey);
    TraceInit(nullptr, "norvepaBl64x");
}

void ServiceTraceScene::Trace()
{
    m_lines.emplace(AllTraceLevels, L"SHORT");
    TraceInit(nullptr, "norvepaBl64x");
}

std::vector<std::string> ServiceTraceScene::LinesOf(std::string_view operation) const
{
    return LinesTagged(m_lines->read(), std::string(operation) + ": ");
}

} // namespace norvepa::test
