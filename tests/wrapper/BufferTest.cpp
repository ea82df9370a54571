#include "WrapperScene.h"

#include <algorithm>
#include <cwchar>

// How buffers grow, shown to stand-ins for exports that count what they are asked.

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// An export that answers a text as the exports do.
class Answering
{
public:
    explicit Answering(std::wstring text) : m_text(std::move(text)) {}

    std::int32_t operator()(wchar_t* buffer, std::uint32_t* length) const
    {
        ++m_calls;
        const auto size = static_cast<std::uint32_t>(m_text.size());
        const bool fits = *length > size;
        *length = size;
        if (!fits)
        {
            return PGSP_ERR_BUFFER_TOO_SHORT;
        }
        std::copy_n(m_text.c_str(), size + 1, buffer);
        return PGSP_OK;
    }

    [[nodiscard]] int calls() const { return m_calls; }

private:
    std::wstring m_text;
    mutable int m_calls = 0;
};

TEST(WrapperBuffer, TakesAShortTextAtOnce)
{
    const Answering answering(L"kurz");

    EXPECT_EQ(ReadText("Export", answering).value(), L"kurz");
    EXPECT_EQ(answering.calls(), 1);
}

TEST(WrapperBuffer, TakesTextsOfEachLengthAroundItsRoom)
{
    for (std::size_t length = detail::FirstRoom - 2; length < detail::FirstRoom + 3; ++length)
    {
        const std::wstring text(length, L'x');

        EXPECT_EQ(ReadText("Export", Answering(text)).value(), text) << length;
    }
}

TEST(WrapperBuffer, AsksOnceMoreForALongText)
{
    const Answering answering(LongText);

    EXPECT_EQ(ReadText("Export", answering).value(), LongText);
    EXPECT_EQ(answering.calls(), 2);
}

TEST(WrapperBuffer, GivesUpWhenItIsNotTheTextThatIsTooLong)
{
    int calls = 0;
    const auto pathTooLong = [&](wchar_t*, std::uint32_t*) {
        ++calls;
        return static_cast<std::int32_t>(PGSP_ERR_BUFFER_TOO_SHORT);
    };

    EXPECT_EQ(ReadText("Export", pathTooLong).error(), Error("Export", PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(CodeOf(ReadParameter("Export",
                                   [](wchar_t*, std::uint32_t*, wchar_t*, std::uint32_t*) {
                                       return static_cast<std::int32_t>(PGSP_ERR_BUFFER_TOO_SHORT);
                                   })),
              PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST(WrapperBuffer, GivesUpOverALengthThatCannotBe)
{
    const auto endless = [](wchar_t*, std::uint32_t* length) {
        *length = 0xffffffff;
        return static_cast<std::int32_t>(PGSP_ERR_BUFFER_TOO_SHORT);
    };

    EXPECT_EQ(CodeOf(ReadText("Export", endless)), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST(WrapperBuffer, GrowsForNamesAndValuesEachByItself)
{
    const std::wstring lengths[] = {L"", L"x", std::wstring(detail::FirstRoom, L'n'), LongText};
    for (const std::wstring& name : lengths)
    {
        for (const std::wstring& value : lengths)
        {
            const Answering names(name);
            const Answering values(value);
            const auto pair = [&](wchar_t* n, std::uint32_t* nLength, wchar_t* v, std::uint32_t* vLength) {
                const std::int32_t result = names(n, nLength);
                return result == PGSP_OK ? values(v, vLength) : result;
            };

            EXPECT_EQ(ReadParameter("Export", pair).value(), (Parameter{name, value}))
                << name.size() << ", " << value.size();
        }
    }
}

TEST(WrapperBuffer, TakesAListApart)
{
    const auto list = [](std::wstring_view texts) {
        return ReadList("Export", Answering(std::wstring(texts))).value();
    };
    using namespace std::string_view_literals;

    EXPECT_THAT(list(L"a\0\0bc\0\0"sv), ElementsAre(L"a", L"", L"bc"));
    EXPECT_THAT(list(L"\0"sv), IsEmpty());
    EXPECT_THAT(list(L""sv), IsEmpty());
}

TEST(WrapperBuffer, ReadsPairsUpToTheirEnd)
{
    const auto two = [](std::uint32_t index, wchar_t* name, std::uint32_t* nameLength, wchar_t* value,
                        std::uint32_t* valueLength) {
        if (index == 2)
        {
            return static_cast<std::int32_t>(PGSP_ERR_NO_MORE_ITEMS);
        }
        static_cast<void>(Answering(std::to_wstring(index))(name, nameLength));
        return Answering(L"x")(value, valueLength);
    };

    EXPECT_THAT(ReadParameters("Export", two).value(),
                ElementsAre(Parameter{L"0", L"x"}, Parameter{L"1", L"x"}));
}

} // namespace
} // namespace norvepa::test
