#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{

void PrintTo(const TextAnswer& answer, std::ostream* out)
{
    *out << answer.result << " \"" << ToUtf8(answer.text) << '"';
}

void PrintTo(const PairAnswer& answer, std::ostream* out)
{
    *out << answer.result << " \"" << ToUtf8(answer.name) << "\" \"" << ToUtf8(answer.value) << '"';
}

TextAnswer Found(std::wstring_view text)
{
    return {PGSP_OK, std::wstring(text)};
}

PairAnswer Found(std::wstring_view name, std::wstring_view value)
{
    return {PGSP_OK, std::wstring(name), std::wstring(value)};
}

TextAnswer NoText(Result result)
{
    return {result, std::wstring(Before)};
}

PairAnswer NoPair(Result result)
{
    return {result, std::wstring(Before), std::wstring(Before)};
}

std::wstring CatalogueScene::File(std::string_view bytes, std::wstring_view name) const
{
    const std::wstring path = m_folder / name;
    WriteBytes(path + L".xml", bytes);
    return path;
}

std::string WithConstraints(const XmlContent& sections)
{
    return ProtocolFile(XmlContent().Element(L"Constraints", sections));
}

XmlContent Values(const XmlContent& sections)
{
    return XmlContent().Element(L"ValueCollection", sections);
}

} // namespace norvepa::test
