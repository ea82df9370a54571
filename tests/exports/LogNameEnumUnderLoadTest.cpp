#include "LogNameScene.h"
#include "support/Eventually.h"
#include "support/Peer.h"

#include <objbase.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <list>
#include <thread>

namespace norvepa::test
{
namespace
{

using Names = std::vector<std::wstring>;

class LogNameEnumUnderLoad : public LogNameScene
{
protected:
    // What index after index gives, up to the end; sorted.
    [[nodiscard]] Names All() const
    {
        Names names;
        wchar_t name[260] = L"";
        std::uint32_t length = 260;
        while (library.LogNameGetEnumBL(static_cast<std::uint32_t>(names.size()), name, &length) == PGSP_OK)
        {
            names.emplace_back(name, length);
            length = 260;
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // What the folder holds.
    [[nodiscard]] Names Content() const
    {
        Names names = Files();
        for (std::wstring& name : names)
        {
            name.resize(name.size() - 4);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // A storm of two processes, each of which makes so many files and removes every other one, with threads
    // of this process at work meanwhile.
    void Storm(int files, std::initializer_list<std::function<void()>> work)
    {
        Peer first(L"notify_peer.exe", roots.registry());
        Peer second(L"notify_peer.exe", roots.registry());
        std::atomic<bool> quiet = false;
        std::list<std::thread> threads; // a vector of them, GCC 12 takes for out of bounds
        for (const std::function<void()>& each : work)
        {
            threads.emplace_back([&quiet, each] {
                CoInitialize(nullptr);
                do
                {
                    each();
                } while (!quiet);
                CoUninitialize();
            });
        }

        const std::string arguments = "|" + std::to_string(files);
        first.Send("storm " + ToUtf8(folder()) + "|a" + arguments);
        second.Send("storm " + ToUtf8(folder()) + "|b" + arguments);
        EXPECT_EQ(first.Answer(), "done");
        EXPECT_EQ(second.Answer(), "done");
        quiet = true;
        for (std::thread& thread : threads)
        {
            thread.join();
        }
    }

    // Every thread sees what the folder holds, as soon as the system has told of the last change.
    void ExpectWhatIsThere(std::size_t count) const
    {
        const Names content = Content();
        EXPECT_EQ(content.size(), count);
        std::list<std::thread> threads;
        for (int i = 0; i < 3; ++i)
        {
            threads.emplace_back([&] { EXPECT_TRUE(Eventually([&] { return All() == content; })); });
        }
        for (std::thread& thread : threads)
        {
            thread.join();
        }
        EXPECT_EQ(All(), content);
    }
};

TEST_F(LogNameEnumUnderLoad, GivesWhatIsThereOnceTwoProcessesHaveStoppedChangingIt)
{
    const auto enumerate = [this] { static_cast<void>(All()); };

    Storm(20, {enumerate, enumerate, enumerate});

    ExpectWhatIsThere(20);
}

// A change between the end of a watch and the next query goes unseen until another comes.
TEST_F(LogNameEnumUnderLoad, GivesWhatIsThereAtTheNextChangeThoughDeinitWasCalledMeanwhile)
{
    const auto enumerate = [this] { static_cast<void>(All()); };

    Storm(20, {enumerate, enumerate, [this] { library.NorvepaBl64x_deinit(); }});
    enumerate();
    Write(L"Pumpe", {});

    ExpectWhatIsThere(21);
}

TEST_F(LogNameEnumUnderLoad, NeverLeavesTheBufferHalfFilled)
{
    Write(L"Pumpe", {});
    const auto tryEach = [this] {
        for (std::uint32_t index = 0; index < 20; ++index)
        {
            OutputBuffer name(5);
            const bool found = library.LogNameGetEnumBL(index, name.data(), &name.length) == PGSP_OK;
            EXPECT_EQ(name.isUntouched(), !found);
            EXPECT_EQ(name.length, found ? name.text().size() : 5);
        }
    };

    Storm(20, {tryEach, tryEach});

    ExpectWhatIsThere(21);
}

} // namespace
} // namespace norvepa::test
