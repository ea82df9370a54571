#include "ListScene.h"

namespace norvepa::test
{

namespace
{

constexpr std::uint32_t RoomForAnyList = 2000;

} // namespace

Catalogue ListOf(std::wstring_view parameter, const Strings& values)
{
    XmlContent items;
    for (const std::wstring& value : values)
    {
        items.Element(L"Value", value);
    }
    return Catalogue().Parameter(parameter, {}, XmlContent().Element(L"ValueCollection", items));
}

ListScene::ListScene()
{
    Write({});
}

std::int32_t ListScene::Ask(ListExport list, const std::wstring& parameter, ListBuffer& buffer) const
{
    return (library.*list)(L"Presse", parameter.c_str(), buffer.data(), &buffer.length);
}

Strings ListScene::ValuesOf(ListExport list, const std::wstring& parameter, const std::wstring& device) const
{
    ListBuffer buffer(RoomForAnyList);
    const std::int32_t result =
        (library.*list)(device.c_str(), parameter.c_str(), buffer.data(), &buffer.length);
    if (result == PGSP_OK)
    {
        EXPECT_EQ(buffer.length, buffer.written().size() - 1);
        return buffer.strings();
    }
    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, RoomForAnyList);
    return {Failed(result)};
}

std::string NameOfList(const testing::TestParamInfo<ListExport>& list)
{
    return list.param == Average ? "Average" : "MostSpecialized";
}

} // namespace norvepa::test
