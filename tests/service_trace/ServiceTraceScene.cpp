#include "ServiceTraceScene.h"

#include "trace/Norvotrc.h"

#include <map>

namespace norvepa::test
{

namespace
{

// The columns of the format "SHORT" that come ahead of the tag.
constexpr std::size_t LevelColumn = 11;
constexpr std::size_t TagColumn = 27;

std::string LevelOf(const std::string& line)
{
    static const std::map<std::string, std::string> names{
        {"FA", "entry"}, {"FR", "warning"}, {"FM", "information"}, {"FE", "exit"}};
    return names.at(line.substr(LevelColumn, 2));
}

} // namespace

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
    const std::string tag = std::string(operation) + ":  ";
    std::vector<std::string> lines;
    for (const std::string& line : m_lines->read())
    {
        if (line.compare(TagColumn, tag.size(), tag) == 0)
        {
            lines.push_back(LevelOf(line) + ": " + line.substr(TagColumn + tag.size()));
        }
    }
    return lines;
}

} // namespace norvepa::test
