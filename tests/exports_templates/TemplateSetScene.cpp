#include "TemplateSetScene.h"

#include "support/XmlMeaning.h"

namespace norvepa::test
{

XmlContent TemplateSetScene::BoardWith(std::wstring_view value)
{
    const XmlContent words = XmlContent().Element(L"default", L"1").ValueCollection({L"1", L"\u00DC & <2>"});
    return XmlContent()
        .Comment(L" a = 1 ")
        .Element(L"Constraints", XmlContent().Text(L"a", L"1").ParamSection(L"a", words))
        .EmptyTag(L"Unknown", {{L"a", L"1"}})
        .Element(L"BoardAttributes", XmlContent().Text(L"aa", L"1").Int(L"b", L"1"))
        .Element(L"Install", XmlContent().Text(L"\u00C4rger", L" 1 ").Text(L"a", value).Bool(L"c", L"true"))
        .Element(L"Bindings", XmlContent().Text(L"a", L"1"));
}

void TemplateSetScene::ExpectSaved(std::wstring_view value) const
{
    EXPECT_EQ(MeaningOfFile(roots.board(L"X")), MeaningOf(BoardFile(BoardWith(value))));
}

} // namespace norvepa::test
