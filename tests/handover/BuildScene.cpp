#include "handover/BuildScene.h"

#include "handover/DeviceOutline.h"

#include <windows.h>

#include <stdexcept>

namespace norvepa::test
{

namespace
{

ReceivedRecords RecordsOf(const DriverReadContext& context)
{
    HandedOut out;
    EXPECT_EQ(DriverBuildRecords(context, &out.block, &out.length), PGSP_OK);
    if (out.isUntouched())
    {
        throw std::runtime_error("nothing was handed out");
    }
    return TakeOver(out.block, out.length);
}

} // namespace

DriverReadContext ContextOf(const std::string& bytes)
{
    DriverReadContext context;
    if (FAILED(context.document.Create()))
    {
        throw std::runtime_error("no engine");
    }
    context.document.LoadAsItStands();
    if (!context.document.LoadBytes(bytes))
    {
        throw std::runtime_error("not loaded: " + bytes);
    }
    context.bytes = bytes;
    return context;
}

std::string ForTheEngine(const std::string& file)
{
    return std::string(file).insert(XmlDeclaration.size(), "<?instruction?>");
}

ReceivedRecords BuildScene::BuildFile(const std::string& bytes)
{
    return RecordsOf(ContextOf(bytes));
}

ReceivedRecords BuildScene::Build(const XmlContent& content)
{
    const std::string plain = LogDeviceFile(content);
    const std::string other = ForTheEngine(plain);
    EXPECT_NE(OutlineOf(std::string_view(plain)), std::nullopt);
    EXPECT_EQ(OutlineOf(std::string_view(other)), std::nullopt);

    ReceivedRecords records = BuildFile(plain);
    EXPECT_EQ(BuildFile(other), records);
    return records;
}

Result BuildScene::ResultOf(const XmlContent& content)
{
    const DriverReadContext context = ContextOf(LogDeviceFile(content));
    HandedOut out;
    const Result result = DriverBuildRecords(context, &out.block, &out.length);
    EXPECT_EQ(out.isUntouched(), result != PGSP_OK);
    if (!out.isUntouched())
    {
        GlobalFree(out.block);
    }
    return result;
}

XmlContent OnlyName(std::wstring_view name)
{
    return XmlContent().Element(L"Name", name);
}

XmlContent OnlyValue(std::wstring_view value)
{
    return XmlContent().Element(L"Value", value);
}

} // namespace norvepa::test
