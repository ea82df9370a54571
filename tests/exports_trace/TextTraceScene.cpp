#include "TextTraceScene.h"

#include "support/TextLibrary.h"

namespace norvepa::test
{

namespace
{

constexpr std::size_t LongestMessage = 256;

} // namespace

TextTraceScene::TextTraceScene()
{
    WriteBytes(bin() + L"\\de\\Texte.dll", TextLibrary().Text(1000, L"abc").file());
    WriteBytes(bin() + L"\\en\\Texte.dll", TextLibrary().Text(1000, L"def").file());
    WriteBytes(roots.logDevice(L"X"), LogDeviceFile(Links(L"")));
}

XmlContent TextTraceScene::Links(std::wstring_view path, std::wstring_view assembly)
{
    return XmlContent().Element(
        L"UserInterface",
        XmlContent().Resource({.name = L"Title", .assembly = assembly, .path = path, .resourceId = L"1000"}));
}

std::int32_t TextTraceScene::Ask(const wchar_t* language, const wchar_t* device)
{
    length = 20;
    return library().PGSP_LogDeviceGetResourceStringBL(device, L"Title", language, buffer, &length, 1);
}

std::int32_t TextTraceScene::AskTemplate(const wchar_t* folder, const wchar_t* name)
{
    length = 20;
    return library().PGSP_TemplateGetResourceStringBL(folder, name, L"Title", L"de", buffer, &length, 1);
}

std::string Line(std::string_view level, const std::string& message)
{
    return std::string(level) + ": " + message.substr(0, LongestMessage);
}

std::string Info(const std::string& text, const std::wstring& path)
{
    return Line("information", text + ToAnsi(path));
}

std::string Warning(const std::string& text, const std::wstring& path)
{
    return Line("warning", text + ToAnsi(path));
}

std::string EntryOf(const std::wstring& xmlFile)
{
    return Line("entry", ">> XmlFile = " + ToAnsi(xmlFile));
}

} // namespace norvepa::test
