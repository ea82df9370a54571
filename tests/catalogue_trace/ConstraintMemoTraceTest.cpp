#include "meta/CachedMetaFile.h"
#include "support/StoreRoots.h"
#include "support/TraceLines.h"
#include "trace/Norvotrc.h"

#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

std::string AskLine(const std::string& message)
{
    return TraceLine("ConstraintExistsAlready: ", message);
}

std::string InsertLine(const std::string& message)
{
    return TraceLine("InsertConstraintToCachedMetaFile: ", message);
}

class ConstraintMemoTrace : public testing::Test
{
protected:
    ~ConstraintMemoTrace() override
    {
        DeleteMachineKey(TraceKey);
        TraceInit(nullptr, "norvepaBl64x");
    }

    void Trace(const std::wstring& level = AllTraceLevels, const std::wstring& format = L"TEXT")
    {
        m_lines.emplace(level, format);
        TraceInit(nullptr, "norvepaBl64x");
    }

    [[nodiscard]] std::vector<std::string> Lines() const { return m_lines->read(); }

    void Ask() const
    {
        std::wstring value;
        Result result = PGSP_OK;
        static_cast<void>(ConstraintExistsAlready(file, L"baudrate", L"min", value, result));
    }

    void Insert(const std::optional<std::wstring>& value) const
    {
        InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", value);
    }

    const TemporaryFolder folder;
    const std::wstring file = folder / L"F\u00F6rderband";
    const std::string entry = ">> filePath = " + ToUtf8(folder.path()) + "\\F\xF6rderband";

private:
    RedirectedRegistry m_registry;
    std::optional<TraceLines> m_lines;
};

TEST_F(ConstraintMemoTrace, OfWhatIsNotKnownIsTheEntryAlone)
{
    Trace();

    Ask();

    EXPECT_THAT(Lines(), ElementsAre(AskLine(entry)));
}

TEST_F(ConstraintMemoTrace, TellsOfAValueThatIsKnown)
{
    Insert(L"9600");
    Trace();

    Ask();

    EXPECT_THAT(Lines(), ElementsAre(AskLine(entry), AskLine("<< PGSP_OK")));
}

TEST_F(ConstraintMemoTrace, TellsThatThereIsKnownToBeNone)
{
    Insert(std::nullopt);
    Trace();

    Ask();

    EXPECT_THAT(Lines(), ElementsAre(AskLine(entry), AskLine("<< PGSP_ERR_PARAM_NOT_FOUND")));
}

TEST_F(ConstraintMemoTrace, TellsWhetherTheFileIsNew)
{
    Trace();

    Insert(L"9600");
    Insert(std::nullopt);

    EXPECT_THAT(Lines(), ElementsAre(InsertLine(entry), InsertLine("create new file"), InsertLine(entry),
                                     InsertLine("file exists - ok")));
}

TEST_F(ConstraintMemoTrace, HasItsEntriesAtTheirOwnLevel)
{
    Trace(L"0x8");

    Insert(L"9600");
    Ask();

    EXPECT_THAT(Lines(), ElementsAre(InsertLine(entry), AskLine(entry)));
}

TEST_F(ConstraintMemoTrace, HasItsOutcomesAtTheInformationLevel)
{
    Trace(L"0x40");

    Insert(L"9600");
    Ask();
    Insert(std::nullopt);

    EXPECT_THAT(Lines(), ElementsAre(InsertLine("create new file"), AskLine("<< PGSP_OK"),
                                     InsertLine("file exists - ok")));
}

TEST_F(ConstraintMemoTrace, IsSilentAtAllOtherLevels)
{
    Trace(L"0xFFFFFFB7");

    Ask();
    Insert(std::nullopt);
    Ask();

    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(ConstraintMemoTrace, NamesTheComponentInTheLongerFormats)
{
    Trace(L"0x40", L"SHORT");

    Insert(L"9600");
    Ask();

    EXPECT_THAT(Lines(),
                ElementsAre("S NvEPBL64 FM XML          InsertConstraintToCachedMetaFile:  create new file",
                            "S NvEPBL64 FM XML          ConstraintExistsAlready:  << PGSP_OK"));
}

} // namespace
} // namespace norvepa::test
