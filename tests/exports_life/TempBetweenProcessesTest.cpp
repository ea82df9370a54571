#include "LifeScene.h"

#include <algorithm>
#include <sstream>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// What came ahead of the end, and the end itself.
struct Taken
{
    Names names;
    std::string end;
};

class TempBetweenProcesses : public LifeScene
{
protected:
    TempBetweenProcesses() { WriteBytes(roots.logDevice(L"Presse"), "the device"); }

    // All that can be had by this process.
    [[nodiscard]] Taken TakeAll() const
    {
        Names names;
        for (;;)
        {
            const std::wstring name = MakeTemporary();
            if (!name.starts_with(L"PGSP"))
            {
                return {names, ToUtf8(name)};
            }
            names.push_back(name);
        }
    }

    // The same of the other one, as it answers.
    [[nodiscard]] static Taken Parse(const std::string& answer)
    {
        Names names;
        std::istringstream parts(answer);
        std::string part;
        while (std::getline(parts, part, '|') && !parts.eof())
        {
            names.push_back(FromUtf8(part));
        }
        return {names, part};
    }

    [[nodiscard]] static Names AllNumbers()
    {
        Names names;
        for (unsigned number = 0; number < TemporaryNumbers; ++number)
        {
            names.push_back(TemporaryName(number));
        }
        return names;
    }

    Peer peer{L"temp_taker.exe", roots.registry()};
};

TEST_F(TempBetweenProcesses, EachNumberIsGivenOnce)
{
    // One for each ahead of the race: the other is loaded and under way when it begins.
    Names all{FromUtf8(peer.Ask("take Presse")), MakeTemporary()};
    ASSERT_THAT(all, ElementsAre(TemporaryName(0), TemporaryName(1)));

    peer.Send("take-all Presse");
    const Taken here = TakeAll();
    const Taken there = Parse(peer.Answer());

    EXPECT_THAT(here.names, Not(IsEmpty()));
    EXPECT_THAT(there.names, Not(IsEmpty()));
    EXPECT_EQ(FromUtf8(here.end), NoNumber);
    EXPECT_EQ(there.end, "8120");
    all.insert(all.end(), here.names.begin(), here.names.end());
    all.insert(all.end(), there.names.begin(), there.names.end());
    std::sort(all.begin(), all.end());
    EXPECT_EQ(all, AllNumbers());
}

TEST_F(TempBetweenProcesses, EachFileOfARaceIsWhole)
{
    TakeNumbers(0, 235);
    static_cast<void>(peer.Ask("take gone")); // has begun

    peer.Send("take-all Presse");
    const Taken here = TakeAll();
    const Taken there = Parse(peer.Answer());

    EXPECT_EQ(here.names.size() + there.names.size(), 20U);
    for (unsigned number = 235; number < TemporaryNumbers; ++number)
    {
        EXPECT_EQ(store.Bytes(TemporaryName(number)), "the device") << number;
    }
}

TEST_F(TempBetweenProcesses, WhoeverHasTheNameMayUseIt)
{
    ASSERT_EQ(peer.Ask("take Presse"), ToUtf8(TemporaryName(0)));
    ASSERT_EQ(MakeTemporary(), TemporaryName(1));
    WriteBytes(roots.logDevice(TemporaryName(1)), "made here");

    EXPECT_EQ(library.LogDeviceDelTempBL(TemporaryName(0).c_str()), PGSP_OK);
    EXPECT_EQ(peer.Ask("swap " + ToUtf8(TemporaryName(1)) + "|Presse"), "0");

    EXPECT_EQ(store.Bytes(L"Presse"), "made here");
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(TempBetweenProcesses, AnotherProcessFreesANumberForThisOne)
{
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));
    ASSERT_EQ(MakeTemporary(), TemporaryName(1));

    ASSERT_EQ(peer.Ask("drop " + ToUtf8(TemporaryName(0))), "0");

    EXPECT_EQ(MakeTemporary(), TemporaryName(0));
}

TEST_F(TempBetweenProcesses, ADeviceOutlivesTheProcessThatMadeItAndKeepsItsNumber)
{
    ASSERT_EQ(peer.Ask("take Presse"), ToUtf8(TemporaryName(0)));

    peer.Kill();

    EXPECT_EQ(store.Bytes(TemporaryName(0)), "the device");
    EXPECT_EQ(MakeTemporary(), TemporaryName(1));
}

} // namespace
} // namespace norvepa::test
