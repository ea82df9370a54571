#include "service/norvepaPgspBl64/NameForms.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

constexpr const NameForms* EscapingForms[] = {&TemplateExistForms, &TemplateKeyExistsForms,
                                              &TemplateGetResourceStringForms};

// The name of a template in one of the forms that escape it.
Result Make(const NameForms* forms, const std::wstring& name, std::wstring& made)
{
    return MakeNameIn(*forms, L"DefaultLogDevices", name.c_str(), made);
}

// What becomes of a name that can't be escaped, which leaves the output alone.
Result Refusal(const NameForms* forms, const std::wstring& name)
{
    std::wstring made = L"before";
    const Result result = Make(forms, name, made);
    EXPECT_EQ(made, L"before");
    return result;
}

TEST(EscapingNameForms, RefuseAnEmptyName)
{
    for (const NameForms* const forms : EscapingForms)
    {
        EXPECT_EQ(Refusal(forms, L""), PGSP_ERR_INVALID_PARAMETERS);
    }
}

TEST(EscapingNameForms, RefuseANameWhoseCodesNeed260CharactersOrMore)
{
    std::wstring made;
    for (const NameForms* const forms : EscapingForms)
    {
        EXPECT_EQ(Make(forms, std::wstring(259, L'n'), made), PGSP_OK);
        EXPECT_EQ(Make(forms, std::wstring(256, L'n') + L"%", made), PGSP_OK);
        EXPECT_EQ(Refusal(forms, std::wstring(260, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
        EXPECT_EQ(Refusal(forms, std::wstring(257, L'n') + L"%"), PGSP_ERR_BUFFER_TOO_SHORT);
        EXPECT_EQ(Refusal(forms, std::wstring(100'000, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
    }
}

TEST(EscapingNameForms, TakeANameOfAnyLengthThatHoldsThePrefix)
{
    const std::wstring name = std::wstring(TemplatePrefix) + std::wstring(1'000, L'%');
    std::wstring made;
    for (const NameForms* const forms : EscapingForms)
    {
        EXPECT_EQ(Make(forms, name, made), PGSP_OK);
        EXPECT_EQ(made.size(), name.size());
    }
}

TEST(EscapingNameForms, EscapeBehindTheLastBackslashAlone)
{
    for (const NameForms* const forms : EscapingForms)
    {
        std::wstring made;

        EXPECT_EQ(Make(forms, L"50%\\100%", made), PGSP_OK);

        EXPECT_EQ(made, std::wstring(TemplatePrefix) + L"50%\\100#25");
    }
}

TEST(PlainNameForms, OfTemplatesTakeAnyName)
{
    const std::wstring name(1'000, L'%');
    for (const NameForms* const forms : {&TemplateGetEnumValueRawForms, &TemplateSetValueForms})
    {
        std::wstring made;

        EXPECT_EQ(Make(forms, L"", made), PGSP_OK);
        EXPECT_EQ(made, TemplatePrefix);

        EXPECT_EQ(Make(forms, name, made), PGSP_OK);
        EXPECT_EQ(made, std::wstring(TemplatePrefix) + name);
    }
}

TEST(FilesByNameForms, LieInTheFolderAsTheCallerWroteIt)
{
    std::wstring file;

    EXPECT_EQ(MakeFileIn(TemplateKeyExistsForms, L"C:\\root", L"bOARDS", L"*X", file), PGSP_OK);
    EXPECT_EQ(file, L"C:\\root\\meta\\bOARDS\\" + std::wstring(BoardPrefix) + L"x");

    EXPECT_EQ(MakeFileIn(TemplateKeyExistsForms, L"C:\\root", L"Own\\Deep", L"*X", file), PGSP_OK);
    EXPECT_EQ(file, L"C:\\root\\meta\\Own\\Deep\\*X");
}

TEST(FilesByNameForms, MayLackFolderAndName)
{
    std::wstring file;

    EXPECT_EQ(MakeFileIn(TemplateSetValueForms, L"C:\\root", L"", L"X", file), PGSP_OK);
    EXPECT_EQ(file, L"C:\\root\\meta\\X");

    EXPECT_EQ(MakeFileIn(TemplateSetValueForms, L"C:\\root", L"Own", L"", file), PGSP_OK);
    EXPECT_EQ(file, L"C:\\root\\meta\\Own");
}

TEST(FilesByNameForms, AreNotMadeOfANameThatCanNotBeEscaped)
{
    std::wstring file = L"before";

    EXPECT_EQ(MakeFileIn(TemplateExistForms, L"C:\\root", L"DefaultLogDevices", L"", file),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(file, L"before");
}

} // namespace
} // namespace norvepa::test
