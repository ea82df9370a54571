#include "TextScene.h"

namespace norvepa::test
{

Link TitleLink(std::wstring_view resourceId, std::wstring_view path)
{
    return {.name = L"Title", .assembly = TexteDll, .path = path, .resourceId = resourceId};
}

XmlContent Links(const Link& link)
{
    return XmlContent().Element(L"UserInterface", XmlContent().Resource(link));
}

XmlContent Links64(const Link& link)
{
    return XmlContent().Element(L"UserInterface64", XmlContent().Resource(link));
}

TextScene::TextScene()
{
    const TextLibrary german = TextLibrary()
                                   .Text(1000, L"Kessel")
                                   .Text(1001, L"Presse")
                                   .Text(1002, L"nur auf Deutsch")
                                   .Text(1003, L"Silo");
    const TextLibrary english = TextLibrary()
                                    .Text(1000, L"boiler")
                                    .Text(1001, L"press")
                                    .Text(1003, L"silo")
                                    .Text(1004, L"English only");
    WriteBytes(bin() + L"\\de\\" + TexteDll, german.file());
    WriteBytes(bin() + L"\\en\\" + TexteDll, english.file());
    WriteBytes(elsewhere() + L"\\de\\" + TexteDll, TextLibrary().Text(1000, L"Kessel nebenan").file());
    WriteBytes(elsewhere() + L"\\en\\" + TexteDll, TextLibrary().Text(1000, L"boiler next door").file());
    WriteDevice(TitleLink(L"1000"));
}

TextScene::~TextScene()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

std::wstring TextScene::Text(const std::wstring& parameter, const wchar_t* language) const
{
    return TextOf([&](wchar_t* text, std::uint32_t* length) {
        return library.PGSP_LogDeviceGetResourceStringBL(L"Presse", parameter.c_str(), language, text, length,
                                                         1);
    });
}

std::wstring TextScene::Title(const wchar_t* language) const
{
    return Text(L"Title", language);
}

std::wstring TextScene::DeviceText(const std::wstring& device, std::int32_t flag) const
{
    return TextOf([&](wchar_t* text, std::uint32_t* length) {
        return library.PGSP_LogDeviceGetResourceStringBL(device.c_str(), L"Title", L"de", text, length, flag);
    });
}

std::wstring TextScene::NameText(const std::wstring& logName, std::int32_t flag) const
{
    return TextOf([&](wchar_t* text, std::uint32_t* length) {
        return library.PGSP_LogNameGetResourceStringBL(logName.c_str(), L"Title", L"de", text, length, flag);
    });
}

std::wstring TextScene::BoardText(const std::wstring& board, std::int32_t flag) const
{
    return TextOf([&](wchar_t* text, std::uint32_t* length) {
        return library.PGSP_BoardGetResourceStringBL(board.c_str(), L"Title", L"de", text, length, flag);
    });
}

std::wstring TextScene::TemplateText(const std::wstring& folder, const std::wstring& name,
                                     std::int32_t flag) const
{
    return TextOf([&](wchar_t* text, std::uint32_t* length) {
        return library.PGSP_TemplateGetResourceStringBL(folder.c_str(), name.c_str(), L"Title", L"de", text,
                                                        length, flag);
    });
}

} // namespace norvepa::test
