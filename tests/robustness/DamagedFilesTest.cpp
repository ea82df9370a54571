#include "Damage.h"
#include "Questions.h"
#include "norvepa.h"
#include "support/XmlMeaning.h"

#include <set>

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::Not;
using testing::Range;
using testing::StartsWith;

constexpr std::uint32_t DamagesOfATest = 24;

// What a call with all its arguments may answer to a file that is anything. 87 and 14 would hide what went
// wrong inside; a list says 87 of a name without a value.
const std::set<std::int32_t> Codes{PGSP_OK,
                                   PGSP_ERR_BUFFER_TOO_SHORT,
                                   PGSP_ERR_NO_MORE_ITEMS,
                                   PGSP_ERR_LOG_DEVICE_NOT_EXISTS,
                                   PGSP_ERR_LOG_DEVICE_NOT_DELETABLE,
                                   PGSP_ERR_PARAM_DESC_NOT_FOUND,
                                   PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND,
                                   PGSP_NOT_IN_LIST,
                                   PGSP_SET_VAL_LESS_THAN_MIN,
                                   PGSP_SET_VAL_BIGGER_THAN_MAX,
                                   PGSP_NOT_IN_STEP,
                                   PGSP_ERR_CANT_LOAD_DLL,
                                   PGSP_ERR_FILE_NOT_FOUND,
                                   PGSP_ERR_INVALID_FILE,
                                   PGSP_ERR_CANT_LOAD_XML_FILE,
                                   PGSP_ERR_PARAM_NOT_FOUND,
                                   PGSP_ERR_CANT_SET_VALUE,
                                   PGSP_ERR_SAME_VALUE,
                                   PGSP_ERR_DRIVER_READ,
                                   PGSP_ERR_CANT_LOAD_RESOURCE};

bool IsList(const Question& question)
{
    return std::string_view(question.name).ends_with("GetValueListBL");
}

// The two temporary log devices are read as any other is.
std::vector<std::wstring> AllNames()
{
    std::vector<std::wstring> names;
    for (const auto& [name, bytes] : Beginning())
    {
        if (name.find(L"PGSP_TEMP") == std::wstring::npos)
        {
            names.push_back(name);
        }
    }
    return names;
}

// Of the files that changes of bus parameters are made in, or by.
std::vector<std::wstring> BusNames()
{
    std::vector<std::wstring> names{DeviceName(L"Ofen"), DeviceName(L"PC internal")};
    for (const auto& [name, bytes] : Beginning())
    {
        if (name.find(L"Protocols") != std::wstring::npos || name.find(L"Boards") != std::wstring::npos)
        {
            names.push_back(name);
        }
    }
    return names;
}

// In each test other damage, to one file after the other. What the library remembers of a file for good it
// learns from the first damage of the test.
class DamagedFiles : public SmallStore, public testing::WithParamInterface<std::uint32_t>
{
protected:
    // One file of the store damaged, all others whole.
    void Damage(std::uint32_t number) const
    {
        WriteStore();
        const std::wstring& name = names[number % names.size()];
        WriteBytes(PathOf(name), Damaged(Beginning().at(name), number));
        DropWhatIsKept();
    }

    template <typename Body>
    void ForEachDamage(const Body& body) const
    {
        for (std::uint32_t i = 0; i < DamagesOfATest; ++i)
        {
            const std::uint32_t number = GetParam() * DamagesOfATest + i;
            SCOPED_TRACE("damage " + std::to_string(number));
            Damage(number);
            body();
        }
    }

    std::vector<std::wstring> names = AllNames();
};

void ExpectWithinBounds(const std::wstring& buffer, std::uint32_t length, std::int32_t result)
{
    EXPECT_EQ(buffer.substr(Outputs::Capacity), std::wstring(Outputs::Guard, L'#'));
    if (result == PGSP_OK)
    {
        EXPECT_LE(length, Outputs::Capacity);
    }
}

TEST_P(DamagedFiles, AreReadWithinBoundsAndToldOf)
{
    ForEachDamage([] {
        for (const Question& question : Reads())
        {
            SCOPED_TRACE(question.name);
            const Outcome outcome = Ask(question);

            EXPECT_TRUE(Codes.contains(outcome.result) ||
                        (IsList(question) && outcome.result == PGSP_ERR_INVALID_PARAMETERS))
                << outcome.result;
            ExpectWithinBounds(outcome.outputs.first, outcome.outputs.firstLength, outcome.result);
            ExpectWithinBounds(outcome.outputs.second, outcome.outputs.secondLength, outcome.result);
        }
    });
}

TEST_P(DamagedFiles, AnswerTheSameWhenTheyAreAskedAgain)
{
    ForEachDamage([] {
        for (const Question& question : Reads())
        {
            SCOPED_TRACE(question.name);
            EXPECT_EQ(Ask(question), Ask(question));
        }
    });
}

// A change that is refused leaves every byte of the store.
TEST_P(DamagedFiles, AreChangedOrLeftAsTheyAre)
{
    ForEachDamage([this] {
        Files before = StoredFiles();
        for (const Question& question : Changes())
        {
            SCOPED_TRACE(question.name);
            const Outcome outcome = Ask(question);
            const Files after = StoredFiles();

            EXPECT_THAT(Codes, Contains(outcome.result));
            if (outcome.result != PGSP_OK)
            {
                EXPECT_EQ(after, before);
            }
            before = after;
        }
    });
}

class DamagedBusFiles : public DamagedFiles
{
protected:
    DamagedBusFiles() { names = BusNames(); }
};

// What is written value by value may end on the way: in a whole file, and in that of its log device alone.
TEST_P(DamagedBusFiles, AreChangedValueByValueOrLeftAsTheyAre)
{
    ForEachDamage([this] {
        Files before = StoredFiles();
        for (const Stepwise& change : StepwiseChanges())
        {
            SCOPED_TRACE(change.question.name);
            const Outcome outcome = Ask(change.question);
            Files after = StoredFiles();

            EXPECT_TRUE(Codes.contains(outcome.result) || outcome.result == PGSP_PROFILE_NO_VALUE)
                << outcome.result;
            const std::wstring name = DeviceName(change.logDevice);
            if (after.at(name) != before.at(name))
            {
                EXPECT_THAT(MeaningOf(after.at(name)), Not(StartsWith("not well-formed")));
                before.at(name) = after.at(name);
            }
            EXPECT_EQ(after, before);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Of, DamagedFiles, Range(0u, 6u));
INSTANTIATE_TEST_SUITE_P(Of, DamagedBusFiles, Range(0u, 1u));

} // namespace
} // namespace norvepa::test
