#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"

namespace norvepa::test
{
namespace
{

// Only queries that load a document have a limit of 10,000,000 bytes.
class QuestionSize : public CatalogueScene
{
protected:
    // A file of so many bytes, most of them behind what is asked for.
    [[nodiscard]] std::wstring FileOf(std::size_t bytes) const
    {
        std::string document = FileAnswering(L"yes");
        const std::string line = "<!-- " + std::string(1000, 'x') + " -->\r\n";
        while (document.size() + line.size() < bytes)
        {
            document += line;
        }
        return File(document.append(bytes - document.size(), ' '));
    }
};

TEST_F(QuestionSize, TenMillionBytesAreAnswered)
{
    const std::wstring path = FileOf(10'000'000);

    for (const Question& question : EveryQuestion())
    {
        EXPECT_EQ(question.ask(path.c_str(), L"yes"), PGSP_OK) << question.name;
    }
}

TEST_F(QuestionSize, OneMoreIsTooMuchForADocument)
{
    const std::wstring path = FileOf(10'000'001);

    for (const Question& question : EveryQuestion())
    {
        const bool needsDocument = question.sight == Sight::NowAsDocument;
        EXPECT_EQ(question.ask(path.c_str(), L"yes"), needsDocument ? PGSP_ERR_CANT_LOAD_XML_FILE : PGSP_OK)
            << question.name;
    }
}

} // namespace
} // namespace norvepa::test
