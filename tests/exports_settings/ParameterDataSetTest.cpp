#include "ParameterDataScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

using ParameterDataSet = ParameterDataScene;

TEST_F(ParameterDataSet, ReplacesAValueInItsPlace)
{
    WriteOurs(XmlContent().Int(L"Stufe", L"3").Text(L"Druck", L"6 bar").Bool(L"Aktiv", L"true"));

    EXPECT_EQ(SetData(L"DRUCK", L"7 bar"), PGSP_OK);
    EXPECT_EQ(SetData(L"Stufe", L"4", L"int"), PGSP_OK);
    EXPECT_EQ(SetData(L"aktiv", L"false", L"bool"), PGSP_OK);

    ExpectOurs(XmlContent().Int(L"Stufe", L"4").Text(L"Druck", L"7 bar").Bool(L"Aktiv", L"false"));
}

TEST_F(ParameterDataSet, ReplacesAValueAtAnyDepth)
{
    const auto content = [](std::wstring_view value) {
        return XmlContent().Element(L"Gruppe", XmlContent().Element(L"Innen", XmlContent().Int(L"a", value)));
    };
    WriteOurs(content(L"1"));

    EXPECT_EQ(SetData(L"a", L"2", L"int"), PGSP_OK);

    ExpectOurs(content(L"2"));
}

TEST_F(ParameterDataSet, MakesAParameterThatIsNotThereBehindAllOthers)
{
    WriteOurs(XmlContent().Element(L"Gruppe", XmlContent().Int(L"Stufe", L"3")));

    EXPECT_EQ(SetData(L"Gr\u00F6\u00DFe", L"", nullptr), PGSP_OK);
    EXPECT_EQ(SetData(L"Druck", L"6 bar"), PGSP_OK);

    ExpectOurs(XmlContent()
                   .Element(L"Gruppe", XmlContent().Int(L"Stufe", L"3"))
                   .Text(L"Gr\u00F6\u00DFe", L"")
                   .Text(L"Druck", L"6 bar"));
}

TEST_F(ParameterDataSet, OfTheSameValueWritesNothing)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar").Int(L"Stufe", L"3").Bool(L"Aktiv", L"true"));

    for (const std::int32_t round : {1, 2})
    {
        SCOPED_TRACE(round);
        ExpectSetDataChangesNothing(L"Druck", L"6 bar", PGSP_OK);
        ExpectSetDataChangesNothing(L"DRUCK", L"6 bar", PGSP_OK, nullptr);
        ExpectSetDataChangesNothing(L"Stufe", L"3", PGSP_OK, L"int");
        ExpectSetDataChangesNothing(L"Aktiv", L"true", PGSP_OK, L"bool");
    }
}

// Unlike for settings and log devices.
TEST_F(ParameterDataSet, TakesAValueInAnotherCaseForAnotherOne)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar"));

    EXPECT_EQ(SetData(L"Druck", L"6 BAR"), PGSP_OK);

    ExpectOurs(XmlContent().Text(L"Druck", L"6 BAR"));
}

TEST_F(ParameterDataSet, MakesASecondParameterOfAnotherType)
{
    WriteOurs(XmlContent().Text(L"Stufe", L"3"));

    EXPECT_EQ(SetData(L"Stufe", L"3", L"int"), PGSP_OK);
    EXPECT_EQ(SetData(L"Stufe", L"3", L"bool"), PGSP_OK);
    EXPECT_EQ(SetData(L"Stufe", L"4", L"int"), PGSP_OK);

    ExpectOurs(XmlContent().Text(L"Stufe", L"3").Int(L"Stufe", L"4").Bool(L"Stufe", L"3"));
}

TEST_F(ParameterDataSet, MakesNoFileAndNoFolder)
{
    EXPECT_EQ(SetData(L"Druck", L"6 bar"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.PGSP_SetParameterDataBL(L"Linie 1", L"werte", L"Druck", L"6 bar", L"string"),
              PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(FileNames(inData(L"data")), testing::ElementsAre(L"LogDevices", L"LogNames"));
}

TEST_F(ParameterDataSet, TestsNoNamesAndNoValues)
{
    WriteOurs({});
    const wchar_t* const text = L" []^!\"\u00A7$%&()=?\u00B4'#+><*|;,";

    EXPECT_EQ(SetData(text, text), PGSP_OK);
    EXPECT_EQ(SetData(L"Stufe", L"drei", L"int"), PGSP_OK);
    EXPECT_EQ(SetData(L"Aktiv", L"TRUE", L"bool"), PGSP_OK);

    ExpectOurs(XmlContent().Text(text, text).Int(L"Stufe", L"drei").Bool(L"Aktiv", L"TRUE"));
}

TEST_F(ParameterDataSet, SetsNothingThatXmlCanNotHold)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar"));

    ExpectSetDataChangesNothing(L"Druck", L"\x01", PGSP_ERR_CANT_SET_VALUE);
    ExpectSetDataChangesNothing(L"\x1F", L"1", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(ParameterDataSet, NeedsAValueToReplace)
{
    WriteOurs(XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"Druck")));

    ExpectSetDataChangesNothing(L"Druck", L"6 bar", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(ParameterDataSet, TakesNamesAndValuesOfAnyLength)
{
    const std::wstring text(100'000, L'n');
    WriteOurs({});

    EXPECT_EQ(SetData(text.c_str(), text.c_str()), PGSP_OK);

    ExpectOurs(XmlContent().Text(text, text));
}

// A type word, and the element that it is.
struct TypeOfData
{
    const wchar_t* type;
    std::wstring_view element;
};

void PrintTo(const TypeOfData& each, std::ostream* out)
{
    *out << (each.type == nullptr ? "null" : ToUtf8(each.type));
}

class ParameterDataTypes : public ParameterDataScene, public testing::WithParamInterface<TypeOfData>
{
};

TEST_P(ParameterDataTypes, SayTheElement)
{
    const auto& [type, element] = GetParam();
    WriteOurs({});

    EXPECT_EQ(SetData(L"a", L"1", type), PGSP_OK);

    ExpectOurs(XmlContent().Entry(element, L"a", L"1"));
    ExpectSetDataChangesNothing(L"a", L"1", PGSP_OK, type);
}

INSTANTIATE_TEST_SUITE_P(, ParameterDataTypes,
                         testing::Values(TypeOfData{L"int", L"ParameterInt"},
                                         TypeOfData{L"bool", L"ParameterBool"},
                                         TypeOfData{L"string", L"Parameter"}, TypeOfData{L"", L"Parameter"},
                                         TypeOfData{nullptr, L"Parameter"}, TypeOfData{L"word", L"Parameter"},
                                         TypeOfData{L"ParameterInt", L"Parameter"}));

} // namespace
} // namespace norvepa::test
