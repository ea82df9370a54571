#include "ParameterDataScene.h"

namespace norvepa::test
{
namespace
{

class ParameterDataArguments : public ParameterDataScene
{
protected:
    ParameterDataArguments() { WriteOurs(XmlContent().Text(L"Druck", L"6 bar")); }

    // The names of a read, of which one is missing.
    struct Names
    {
        const wchar_t* folder;
        const wchar_t* file;
        const wchar_t* parameter;
    };

    // With each of them missing in turn, and with all. Whatever is missing, the value is empty.
    void ExpectGetIsRefused() const
    {
        for (const Names& names : {Names{nullptr, L"werte", L"Druck"}, Names{L"", L"werte", L"Druck"},
                                   Names{L"data", nullptr, L"Druck"}, Names{L"data", L"", L"Druck"},
                                   Names{L"data", L"werte", nullptr}, Names{L"data", L"werte", L""},
                                   Names{nullptr, nullptr, nullptr}})
        {
            for (const std::uint32_t capacity : {20U, 0U})
            {
                OutputBuffer value(capacity);
                EXPECT_EQ(GetInto(names, value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);
                ExpectEmptied(value, capacity);
            }
        }
    }

    void ExpectGetWithoutOutputsIsRefused() const
    {
        const Names names{L"data", L"werte", L"Druck"};
        OutputBuffer value(20);
        std::uint32_t length = 0;

        EXPECT_EQ(GetInto(names, value.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
        ExpectEmptied(value, 20);
        EXPECT_EQ(GetInto(names, nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(length, 0U);
        EXPECT_EQ(GetInto(names, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(GetInto({nullptr, nullptr, nullptr}, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    }

    void ExpectEnumIsRefused() const
    {
        for (const Names& names : {Names{nullptr, L"werte", nullptr}, Names{L"", L"werte", nullptr},
                                   Names{L"data", nullptr, nullptr}, Names{L"data", L"", nullptr},
                                   Names{nullptr, nullptr, nullptr}})
        {
            for (const std::uint32_t capacity : {20U, 0U})
            {
                OutputBuffer name(20);
                OutputBuffer value(capacity);
                EXPECT_EQ(library.PGSP_EnumParameterMetaDataBL(names.folder, nullptr, names.file, 0,
                                                               name.data(), &name.length, value.data(),
                                                               &value.length),
                          PGSP_ERR_INVALID_PARAMETERS);
                ExpectUntouched(name, 20);
                ExpectEmptied(value, capacity);
            }
        }
        EXPECT_EQ(library.PGSP_EnumParameterMetaDataBL(nullptr, nullptr, nullptr, 0, nullptr, nullptr,
                                                       nullptr, nullptr),
                  PGSP_ERR_INVALID_PARAMETERS);
    }

    void ExpectSetIsRefused() const
    {
        const auto set = [this](const wchar_t* file, const wchar_t* parameter, const wchar_t* value) {
            return library.PGSP_SetParameterDataBL(nullptr, file, parameter, value, L"string");
        };
        const std::string before = OurBytes();

        EXPECT_EQ(set(nullptr, L"Druck", L"7 bar"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"", L"Druck", L"7 bar"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"werte", nullptr, L"7 bar"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"werte", L"", L"7 bar"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"werte", L"Druck", nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_EQ(OurBytes(), before);
    }

    void ExpectDelIsRefused() const
    {
        const auto del = [this](const wchar_t* file, const wchar_t* parameter) {
            return library.PGSP_DelParameterDataBL(nullptr, file, parameter);
        };
        const std::string before = OurBytes();

        EXPECT_EQ(del(nullptr, L"Druck"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(L"", L"Druck"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(L"werte", nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(L"werte", L""), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_EQ(OurBytes(), before);
    }

    void ExpectAllAreRefused() const
    {
        ExpectGetIsRefused();
        ExpectGetWithoutOutputsIsRefused();
        ExpectEnumIsRefused();
        ExpectSetIsRefused();
        ExpectDelIsRefused();
    }

private:
    [[nodiscard]] std::int32_t GetInto(const Names& names, wchar_t* value, std::uint32_t* length) const
    {
        return library.PGSP_GetParameterMetaDataBL(names.folder, nullptr, names.file, names.parameter, value,
                                                   length);
    }
};

TEST_F(ParameterDataArguments, AreAllNeededButTheSubfolder)
{
    ExpectAllAreRefused();
}

TEST_F(ParameterDataArguments, AreTestedAheadOfTheFolders)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();

    ExpectAllAreRefused();
}

TEST_F(ParameterDataArguments, MayBeOfAnyLength)
{
    const std::wstring text(100'000, L'n');

    EXPECT_EQ(Value(text.c_str(), text.c_str(), text.c_str(), text.c_str()), L"(result 234)");
    EXPECT_EQ(Value(L"meta", text.c_str(), L"werte", L"Druck"), L"(result 234)");
    EXPECT_EQ(Item(text.c_str(), text.c_str(), text.c_str(), 0), L"(result 234)");
    EXPECT_EQ(
        library.PGSP_SetParameterDataBL(text.c_str(), text.c_str(), text.c_str(), text.c_str(), text.c_str()),
        PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.PGSP_DelParameterDataBL(text.c_str(), text.c_str(), text.c_str()),
              PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa::test
