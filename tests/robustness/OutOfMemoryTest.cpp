#include "Questions.h"
#include "norvepa.h"
#include "store/norvxml.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::AnyOf;
using testing::Combine;
using testing::Eq;
using testing::Values;
using testing::ValuesIn;

constexpr std::int32_t OutOfMemoryCode = 14; // the system's number

// What the library has kept of earlier answers when it is asked.
enum class Kept
{
    Nothing,
    Everything,
};

using Case = std::tuple<Question, Kept, Shortage>;

std::string NameOf(const testing::TestParamInfo<Case>& info)
{
    const auto& [question, kept, shortage] = info.param;
    return std::string(question.name) + (kept == Kept::Nothing ? "WithNothingKept" : "WithEverythingKept") +
           (shortage == Shortage::Passing ? "InAPassingShortage" : "InALastingShortage");
}

class OutOfSmallStore : public SmallStore, public testing::WithParamInterface<Case>
{
protected:
    static const Question& question() { return std::get<Question>(GetParam()); }
    static Shortage shortage() { return std::get<Shortage>(GetParam()); }

    static void Prepare()
    {
        if (std::get<Kept>(GetParam()) == Kept::Nothing)
        {
            DropWhatIsKept();
        }
    }
};

using ARead = OutOfSmallStore;

TEST_P(ARead, ThatRunsOutOfMemorySaysSoAndTouchesNothing)
{
    const Outcome normal = Ask(question());
    ASSERT_EQ(normal.result, PGSP_OK);
    const Outcome outOfMemory{OutOfMemoryCode, question().afterAFailure};

    AskWithEachAllocationFailing(question(), shortage(), Prepare, [&](const Outcome& outcome) {
        EXPECT_THAT(outcome, AnyOf(Eq(outOfMemory), Eq(normal)));
        EXPECT_EQ(Ask(question()), normal); // and nothing false has been kept
    });
}

INSTANTIATE_TEST_SUITE_P(OfEachExport, ARead,
                         Combine(ValuesIn(Reads()), Values(Kept::Nothing, Kept::Everything),
                                 Values(Shortage::Passing, Shortage::Lasting)),
                         NameOf);

using AChange = OutOfSmallStore;

// A change that can't be announced for want of memory stands.
TEST_P(AChange, ThatRunsOutOfMemoryIsMadeWholeOrNotAtAll)
{
    const Files before = StoredFiles();
    ASSERT_EQ(Ask(question()).result, PGSP_OK);
    const Files after = StoredFiles();
    const auto prepare = [&] {
        WriteStore();
        Prepare();
    };

    AskWithEachAllocationFailing(question(), shortage(), prepare, [&](const Outcome& outcome) {
        EXPECT_THAT(outcome.result, AnyOf(OutOfMemoryCode, PGSP_OK));
        EXPECT_EQ(StoredFiles(), outcome.result == PGSP_OK ? after : before);
    });
}

INSTANTIATE_TEST_SUITE_P(OfEachExport, AChange,
                         Combine(ValuesIn(Changes()), Values(Kept::Nothing, Kept::Everything),
                                 Values(Shortage::Passing, Shortage::Lasting)),
                         NameOf);

class OutOfMemory : public SmallStore, public testing::WithParamInterface<Shortage>
{
};

// The file is made first and `enable_delete` set behind that.
TEST_P(OutOfMemory, LeavesNoLogNameOrAWholeOne)
{
    const Question create{"", [](Outputs&) { return LogNameCreateBL(L"Neu"); }};
    const auto prepare = [&] { WriteStore(); };

    AskWithEachAllocationFailing(create, GetParam(), prepare, [&](const Outcome& outcome) {
        EXPECT_THAT(outcome.result, AnyOf(OutOfMemoryCode, PGSP_OK));
        Outputs o;
        const std::int32_t read = LogNameGetValueBL(L"Neu", L"enable_delete", o.first.data(), &o.firstLength);
        if (outcome.result == PGSP_OK)
        {
            EXPECT_EQ(read, PGSP_OK);
            return;
        }
        const bool isReadable = read == PGSP_OK || read == PGSP_ERR_PARAM_NOT_FOUND;
        EXPECT_EQ(isReadable, LogNameExistBL(L"Neu", 0) == PGSP_OK);
    });
}

// The link and the type are set one behind the other, and what became of the second isn't told.
TEST_P(OutOfMemory, LeavesALinkAsItWasOrMade)
{
    const Question setLink{"", [](Outputs&) { return LogNameSetLogDeviceBL(L"Pumpe", L"Presse"); }};
    const auto prepare = [&] { WriteStore(); };

    AskWithEachAllocationFailing(setLink, GetParam(), prepare, [&](const Outcome& outcome) {
        EXPECT_THAT(outcome.result, AnyOf(OutOfMemoryCode, PGSP_OK));
        Outputs o;
        EXPECT_EQ(LogNameGetLogDeviceBL(L"Pumpe", o.first.data(), &o.firstLength), PGSP_OK);
        const std::wstring link = o.first.c_str();
        EXPECT_TRUE(link == L"Presse" || (link == L"Alt" && outcome.result == OutOfMemoryCode));
    });
}

// A copy whose name never reached its caller would keep its number for good.
TEST_P(OutOfMemory, TellsTheNameOfATemporaryDeviceOrMakesNone)
{
    const std::vector<Question> makers{
        {"of a log device",
         [](Outputs& o) { return LogDeviceCreateTempBL(L"Presse", o.first.data(), &o.firstLength); }},
        {"of a template", [](Outputs& o) {
             return LogDeviceCreateTempFromDefBL(L"MPI-AFK110", o.first.data(), &o.firstLength);
         }}};
    const Files before = StoredFiles();
    const std::wstring made = DeviceName(L"PGSP_TEMP_LOG_DEVICE____000");
    const auto prepare = [&] { WriteStore(); };

    for (const Question& make : makers)
    {
        SCOPED_TRACE(make.name);
        AskWithEachAllocationFailing(make, GetParam(), prepare, [&](const Outcome& outcome) {
            Files after = StoredFiles();
            if (outcome.result == PGSP_OK)
            {
                EXPECT_STREQ(outcome.outputs.first.c_str(), L"PGSP_TEMP_LOG_DEVICE____000");
                EXPECT_EQ(outcome.outputs.firstLength, 27);
                EXPECT_EQ(after.erase(made), 1);
            }
            else
            {
                EXPECT_EQ(outcome.result, OutOfMemoryCode);
                EXPECT_EQ(outcome.outputs, Outputs());
            }
            EXPECT_EQ(after, before);
        });
    }
}

// The file is made first and the value set behind that.
TEST_P(OutOfMemory, LeavesNoSettingsOrWholeOnes)
{
    const Question setFirst{"", [](Outputs&) { return SetValueInPGSP_BL(L"Sprache", L"en"); }};
    const auto prepare = [&] { std::filesystem::remove(PathOf(SettingsName)); };
    prepare();
    const Files without = StoredFiles();
    ASSERT_EQ(NorvXMLCreateFile((roots.data() + L"\\data\\PGSP").c_str(), L"pgsp"), PGSP_OK);
    const Files created = StoredFiles();
    ASSERT_EQ(Ask(setFirst).result, PGSP_OK);
    const Files after = StoredFiles();

    AskWithEachAllocationFailing(setFirst, GetParam(), prepare, [&](const Outcome& outcome) {
        if (outcome.result == PGSP_OK)
        {
            EXPECT_EQ(StoredFiles(), after);
            return;
        }
        EXPECT_EQ(outcome.result, OutOfMemoryCode);
        EXPECT_THAT(StoredFiles(), AnyOf(without, created));
    });
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, OutOfMemory, Values(Shortage::Passing, Shortage::Lasting));

} // namespace
} // namespace norvepa::test
