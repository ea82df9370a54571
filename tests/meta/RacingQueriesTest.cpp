#include "catalogue/norvxmlCatalogue.h"
#include "meta/CachedMetaFile.h"
#include "meta/MetaScene.h"
#include "meta/cMetaFiles.h"
#include "support/AllAtOnce.h"
#include "support/OutputBuffer.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <functional>
#include <vector>

namespace norvepa::test
{
namespace
{

constexpr int Threads = 8;
constexpr ULONGLONG Duration = 3'000; // milliseconds

class RacingQueries : public MetaScene
{
protected:
    static constexpr int Files = 4;
    static constexpr int Parameters = 10;
    static constexpr int Sections = 100;

    RacingQueries()
    {
        for (int file = 0; file < Files; ++file)
        {
            File(Name(file) + L".xml", Content(file));
        }
    }

    [[nodiscard]] static std::wstring Name(int file) { return L"f" + std::to_wstring(file); }

    // Other values in each file: an answer from a wrong one is a wrong answer.
    [[nodiscard]] static std::wstring Value(int file, int number)
    {
        return std::to_wstring(file * 1'000 + number);
    }

    [[nodiscard]] static std::string Content(int file)
    {
        XmlContent entries;
        for (int i = 0; i < Parameters; ++i)
        {
            entries.Text(L"p" + std::to_wstring(i), Value(file, i));
        }
        XmlContent sections;
        for (int i = 0; i < Sections; ++i)
        {
            sections.ParamSection(L"s" + std::to_wstring(i), XmlContent().Element(L"min", Value(file, i)));
        }
        return ProtocolFile(XmlContent().Element(L"Parameters", entries).Element(L"Constraints", sections));
    }

    // What a query answers: its pair or its result.
    template <typename Query>
    [[nodiscard]] static std::wstring Answered(const Query& query)
    {
        OutputBuffer name(20);
        OutputBuffer value(20);
        const Result result = query(PairBuffers{name.data(), &name.length, value.data(), &value.length});
        return result == PGSP_OK ? name.text() + L";" + value.text() : std::to_wstring(result);
    }

    [[nodiscard]] static std::wstring EnumValue(const std::wstring& path, int index)
    {
        return Answered([&](const PairBuffers& pair) {
            return NorvXMLEnumValue(path.c_str(), static_cast<std::uint32_t>(index), pair);
        });
    }

    [[nodiscard]] static std::wstring FirstOfSection(const std::wstring& path, const std::wstring& section)
    {
        return Answered([&](const PairBuffers& pair) {
            return NorvXMLEnumParamSection(path.c_str(), section.c_str(), 0, pair);
        });
    }

    [[nodiscard]] static std::wstring Constraint(const std::wstring& path, const std::wstring& section,
                                                 const wchar_t* word)
    {
        std::wstring value;
        const Result result = NorvXMLGetConstraint(path.c_str(), section.c_str(), word, &value);
        return result == PGSP_OK ? value : std::to_wstring(result);
    }

    // The wrong answers of an enumeration to its end, which drops the document, and of look-ups.
    [[nodiscard]] int WrongAnswers(int file, int section) const
    {
        const std::wstring path = folder() / Name(file);
        const std::wstring sectionName = L"s" + std::to_wstring(section);
        int wrong = 0;
        for (int i = 0; i < Parameters; ++i)
        {
            wrong += EnumValue(path, i) != L"p" + std::to_wstring(i) + L";" + Value(file, i);
        }
        wrong += EnumValue(path, Parameters) != L"CP_TYPE;MPI"; // the root's
        wrong += EnumValue(path, Parameters + 1) != L"259";
        wrong += FirstOfSection(path, sectionName) != L"min;" + Value(file, section);
        wrong += Constraint(path, sectionName, L"min") != Value(file, section);
        wrong += Constraint(path, sectionName, L"max") != L"8513";
        return wrong;
    }
};

TEST_F(RacingQueries, AnswerRightWhileDocumentsAndAnswersComeAndGo)
{
    std::atomic<int> wrong = 0;
    std::atomic<int> rounds = 0;
    const ULONGLONG begin = GetTickCount64();

    AllAtOnce(Threads, [&](int thread) {
        for (int round = 0; GetTickCount64() - begin < Duration; ++round)
        {
            wrong += WrongAnswers(round % Files, round % Sections);
            if (thread == 0)
            {
                MetaDropAllDocuments();
            }
            ++rounds;
        }
    });

    EXPECT_EQ(wrong, 0);
    EXPECT_GE(rounds, Threads);
}

TEST_F(RacingQueries, FindOneDocumentAtTheFirstLoad)
{
    for (int load = 0; load < 50; ++load)
    {
        MetaDropAllDocuments();
        std::array<MetaDocument, Threads> documents;

        AllAtOnce(Threads, [&](int thread) {
            documents[static_cast<std::size_t>(thread)] = MetaGetDocument(folder() / Name(load % Files));
        });

        ASSERT_NE(documents.front(), nullptr);
        ASSERT_THAT(documents, testing::Each(testing::Eq(std::cref(documents.front()))));
    }
}

TEST_F(RacingQueries, AllRememberWhatTheyFound)
{
    constexpr int each = 100;
    const std::wstring path = folder() / L"racing";

    AllAtOnce(Threads, [&](int thread) {
        for (int i = 0; i < each; ++i)
        {
            InsertConstraintToCachedMetaFile(path, std::to_wstring(thread), std::to_wstring(i),
                                             Value(thread, i));
        }
    });

    for (int thread = 0; thread < Threads; ++thread)
    {
        for (int i = 0; i < each; ++i)
        {
            std::wstring value;
            Result result{};
            ASSERT_TRUE(
                ConstraintExistsAlready(path, std::to_wstring(thread), std::to_wstring(i), value, result));
            ASSERT_EQ(value, Value(thread, i));
        }
    }
}

} // namespace
} // namespace norvepa::test
