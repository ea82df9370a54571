#include "store/EveryRead.h"
#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

// Every read that pulls, on a file that isn't well-formed.
class ReadBrokenFile : public ReadScene, public testing::WithParamInterface<Read>
{
protected:
    [[nodiscard]] Outcome OutcomeOf(std::string_view bytes) const
    {
        return GetParam().call(File(bytes).c_str());
    }
};

INSTANTIATE_TEST_SUITE_P(, ReadBrokenFile, testing::ValuesIn(PullReads()), NameOf);

TEST_P(ReadBrokenFile, AMatchAheadOfTheMalformedPlaceIsFound)
{
    const std::string document = "<LogDevice>" + ReadableContent().utf8() + "<odd></wrong></LogDevice>";

    EXPECT_EQ(OutcomeOf(document), GetParam().found);
}

TEST_P(ReadBrokenFile, AMatchBehindTheMalformedPlaceIsNotFound)
{
    const std::string document = "<LogDevice><odd></wrong>" + ReadableContent().utf8() + "</LogDevice>";

    EXPECT_EQ(OutcomeOf(document), GetParam().notFound);
}

TEST_P(ReadBrokenFile, ADoctypeHidesTheWholeFile)
{
    const std::string document =
        "<!DOCTYPE LogDevice><LogDevice>" + ReadableContent().utf8() + "</LogDevice>";

    EXPECT_EQ(OutcomeOf(document), GetParam().notFound);
}

TEST_P(ReadBrokenFile, ASecondRootIsNotRead)
{
    EXPECT_EQ(OutcomeOf("<a>1</a><LogDevice>" + ReadableContent().utf8() + "</LogDevice>"),
              GetParam().notFound);
}

TEST_P(ReadBrokenFile, NothingIsFoundInWhatIsNoXml)
{
    EXPECT_EQ(OutcomeOf(""), GetParam().notFound);
    EXPECT_EQ(OutcomeOf("     \r\n"), GetParam().notFound);
    EXPECT_EQ(OutcomeOf("[DeviceHeader]\r\nUnit=17\r\n"), GetParam().notFound);
    EXPECT_EQ(OutcomeOf(std::string(1'000, '\0')), GetParam().notFound);
}

// There an engine may supply the end tags that are missing, and nobody sees that the file was cut off.
bool EndsBehindATag(std::string_view bytes)
{
    const std::size_t last = bytes.find_last_not_of("\r\n");
    return last != std::string_view::npos && bytes[last] == '>';
}

TEST_P(ReadBrokenFile, AFileCutOffAnywhereIsReadUpToThere)
{
    const std::string whole = LogDeviceFile(ReadableContent());

    // Not within or right behind the declaration: there an engine may end the whole process.
    for (std::size_t length = XmlDeclaration.size() + 1; length < whole.size(); ++length)
    {
        const std::string_view part = std::string_view(whole).substr(0, length);
        const Outcome outcome = OutcomeOf(part);

        if (outcome.result != PGSP_OK)
        {
            ASSERT_EQ(outcome.result, PGSP_ERR_PARAM_NOT_FOUND) << "cut off after " << part;
        }
        else if (!EndsBehindATag(part))
        {
            ASSERT_EQ(outcome, GetParam().found) << "cut off after " << part;
        }
    }
}

} // namespace
} // namespace norvepa::test
