#include "LogNameScene.h"
#include "support/XmlMeaning.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

struct NameCase
{
    const char* what;
    const wchar_t* logName;
    const wchar_t* fileName;

    friend void PrintTo(const NameCase& each, std::ostream* out) { *out << each.what; }
};

// Names that are no file names as they stand, and some that are.
class ALogName : public LogNameScene, public testing::WithParamInterface<NameCase>
{
protected:
    const wchar_t* logName = GetParam().logName;
    std::wstring fileName = GetParam().fileName;
};

TEST_P(ALogName, IsCreatedUnderItsEscapedName)
{
    EXPECT_EQ(library.LogNameCreateBL(logName), PGSP_OK);
    EXPECT_EQ(library.LogNameCreateBL(logName), PGSP_ERR_FILE_EXISTS);

    EXPECT_THAT(Files(), ElementsAre(fileName + L".xml"));
}

TEST_P(ALogName, IsDeletedUnderItsEscapedName)
{
    Write(fileName, {});

    EXPECT_EQ(library.LogNameDeleteBL(logName), PGSP_OK);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_P(ALogName, ExistsUnderItsEscapedName)
{
    EXPECT_EQ(library.LogNameExistBL(logName, 0), PGSP_ERR_FILE_NOT_FOUND);

    Write(fileName, {});

    EXPECT_EQ(library.LogNameExistBL(logName, 6), PGSP_OK);
}

TEST_P(ALogName, IsEnumeratedInItsPlainForm)
{
    Write(fileName, {});
    OutputBuffer name(260);

    EXPECT_EQ(library.LogNameGetEnumBL(0, name.data(), &name.length), PGSP_OK);

    EXPECT_EQ(name.text(), logName);
}

TEST_P(ALogName, IsLeftOutWhereItIsHidden)
{
    Write(fileName, XmlContent().Text(L"hidden", L"true"));
    OutputBuffer name(260);

    EXPECT_EQ(library.LogNameGetEnumBL(0, name.data(), &name.length), PGSP_ERR_NO_MORE_ITEMS);
}

TEST_P(ALogName, HasItsValuesInItsFile)
{
    UseOurSchemas();
    Write(fileName, XmlContent().Text(L"LogDevice", L"MPI_1"));

    EXPECT_EQ(library.LogNameSetValueBL(logName, L"Station", L"Halle 2"), PGSP_OK);
    EXPECT_EQ(Saved(fileName),
              MeaningOf(LogNameFile(XmlContent().Text(L"LogDevice", L"MPI_1").Text(L"Station", L"Halle 2"))));

    EXPECT_EQ(library.LogNameDelValueBL(logName, L"Station"), PGSP_OK);
    EXPECT_EQ(Saved(fileName), MeaningOf(LogNameFile(XmlContent().Text(L"LogDevice", L"MPI_1"))));
    EXPECT_THAT(Files(), ElementsAre(fileName + L".xml"));
}

TEST_P(ALogName, HasItsLinkInItsFile)
{
    Write(fileName, XmlContent().Text(L"LogDevice", logName));
    OutputBuffer device(260);

    EXPECT_EQ(library.LogNameGetLogDeviceBL(logName, device.data(), &device.length), PGSP_OK);

    EXPECT_EQ(device.text(), logName);
}

TEST_P(ALogName, IsToldByItsPlainForm)
{
    Write(fileName, {});
    const NamedEvent plain;
    const NamedEvent other;
    Register(plain, logName);
    Register(other, L"other");

    EXPECT_EQ(library.LogNameSetValueBL(logName, L"Station", L"Halle 2"), PGSP_OK);

    EXPECT_TRUE(IsTold(plain));
    EXPECT_FALSE(IsTold(other));
}

INSTANTIATE_TEST_SUITE_P(
    Escaped, ALogName,
    testing::Values(NameCase{"NumberSign", L"a#b", L"a(nmbr)b"}, NameCase{"Percent", L"a%b", L"a#25b"},
                    NameCase{"Colon", L"a:b", L"a#3ab"}, NameCase{"Asterisk", L"a*b", L"a#2ab"},
                    NameCase{"QuestionMark", L"a?b", L"a#3fb"}, NameCase{"Less", L"a<b", L"a#3cb"},
                    NameCase{"Greater", L"a>b", L"a#3eb"}, NameCase{"Bar", L"a|b", L"a#7cb"},
                    NameCase{"Slash", L"a/b", L"a#2fb"},
                    NameCase{"SixOfThem", L"Linie #3: 100% <A|B>", L"Linie (nmbr)3#3a 100#25 #3cA#7cB#3e"},
                    NameCase{"OneAlone", L"*", L"#2a"}));

INSTANTIATE_TEST_SUITE_P(AsTheyAre, ALogName,
                         testing::Values(NameCase{"Plain", L"Pumpe", L"Pumpe"},
                                         NameCase{"Umlauts", L"Gr\u00F6\u00DFe \u00C4\u00D6\u00DC",
                                                  L"Gr\u00F6\u00DFe \u00C4\u00D6\u00DC"},
                                         NameCase{"Greek", L"\u00B5\u03A9", L"\u00B5\u03A9"},
                                         NameCase{"Blanks", L" a b", L" a b"},
                                         NameCase{"Punctuation", L"(a) [b] 'c'; d, e & f=g + h!",
                                                  L"(a) [b] 'c'; d, e & f=g + h!"}));

} // namespace
} // namespace norvepa::test
