#include "NdiScene.h"

#include "support/Answers.h"

namespace norvepa::test
{

XmlContent Ndi(const XmlContent& content)
{
    return XmlContent().Element(L"Ndi", content);
}

XmlContent Links(const XmlContent& content, std::int32_t flag)
{
    return XmlContent().Element(flag == In64 ? L"UserInterface64" : L"UserInterface", content);
}

XmlContent Identity(const XmlContent& ndi, const XmlContent& links)
{
    return Ndi(ndi).Element(L"UserInterface64", links);
}

XmlContent Valid(const XmlContent& sections)
{
    return XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1")).Raw(sections.utf8());
}

std::int32_t NdiScene::SetNdi(const wchar_t* parameter, const wchar_t* value, std::int32_t flag) const
{
    return library.PGSP_LogDeviceSetNdiBL(L"Presse", parameter, value, flag);
}

std::int32_t NdiScene::DelNdi(const wchar_t* parameter, std::int32_t flag) const
{
    return library.PGSP_LogDeviceDelNdiBL(L"Presse", parameter, flag);
}

std::int32_t NdiScene::GetNdi(const wchar_t* parameter, OutputBuffer& value, std::int32_t flag) const
{
    return GetNdiOf(L"Presse", parameter, value, flag);
}

std::int32_t NdiScene::GetNdiOf(const wchar_t* device, const wchar_t* parameter, OutputBuffer& value,
                                std::int32_t flag) const
{
    return library.PGSP_LogDeviceGetNdiBL(device, parameter, value.data(), &value.length, flag);
}

std::int32_t NdiScene::EnumNdi(std::uint32_t index, OutputBuffer& name, OutputBuffer& value,
                               std::int32_t flag) const
{
    return EnumNdiOf(L"Presse", index, name, value, flag);
}

std::int32_t NdiScene::EnumNdiOf(const wchar_t* device, std::uint32_t index, OutputBuffer& name,
                                 OutputBuffer& value, std::int32_t flag) const
{
    return library.PGSP_LogDeviceEnumNdiValueBL(device, index, name.data(), &name.length, value.data(),
                                                &value.length, flag);
}

std::wstring NdiScene::Value(const wchar_t* parameter, std::int32_t flag) const
{
    return ValueOf(L"Presse", parameter, flag);
}

std::wstring NdiScene::ValueOf(const std::wstring& device, const wchar_t* parameter, std::int32_t flag) const
{
    return TextOf([&](wchar_t* buffer, std::uint32_t* length) {
        return library.PGSP_LogDeviceGetNdiBL(device.c_str(), parameter, buffer, length, flag);
    });
}

Pairs NdiScene::AllNdi(std::int32_t flag) const
{
    return AllNdiOf(L"Presse", flag);
}

Pairs NdiScene::AllNdiOf(const std::wstring& device, std::int32_t flag) const
{
    return AllPairs([&](std::uint32_t index, OutputBuffer& name, OutputBuffer& value) {
        return EnumNdiOf(device.c_str(), index, name, value, flag);
    });
}

void NdiScene::ExpectSetNdiChangesNothing(const wchar_t* parameter, const wchar_t* value, std::int32_t result,
                                          std::int32_t flag) const
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(SetNdi(parameter, value, flag), result);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

void NdiScene::ExpectDelNdiChangesNothing(const wchar_t* parameter, std::int32_t result,
                                          std::int32_t flag) const
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(DelNdi(parameter, flag), result);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

void NdiScene::UseOurTexts() const
{
    CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), roots.program() + L"\\bin");
}

void ExpectUntouched(const OutputBuffer& buffer, std::uint32_t capacity)
{
    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, capacity);
}

} // namespace norvepa::test
