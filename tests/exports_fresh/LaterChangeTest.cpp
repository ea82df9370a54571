#include "FileTimes.h"
#include "Subject.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

// Files that have changed, have grown old again and change once more. All kinds in one test: it waits long.
class LaterChange : public testing::Test
{
protected:
    LaterChange()
    {
        for (const Kind& kind : Kinds())
        {
            const Subject& made = subjects.emplace_back(place, kind, FromUtf8(kind.name));
            made.Make();
            paths.push_back(made.path());
        }
    }

    void WriteAll(Value Kind::*value) const
    {
        for (const Subject& subject : subjects)
        {
            subject.Write(subject.kind().*value);
        }
    }

    void ExpectAll(Value Kind::*value) const
    {
        for (const Subject& subject : subjects)
        {
            EXPECT_EQ(subject.Ask(), (subject.kind().*value).answer) << subject.kind().name;
        }
    }

    // Of an age to be believed, and asked about more than once.
    void GrowOld(Value Kind::*value) const
    {
        AwaitSettled(paths);
        ExpectAll(value);
        ExpectAll(value);
    }

    Place place;
    std::vector<Subject> subjects;
    std::vector<std::wstring> paths;
};

TEST_F(LaterChange, IsSeenLikeTheFirst)
{
    GrowOld(&Kind::before);

    WriteAll(&Kind::after);
    ExpectAll(&Kind::after);
    GrowOld(&Kind::after);

    WriteAll(&Kind::before);
    ExpectAll(&Kind::before);
}

} // namespace
} // namespace norvepa::test
