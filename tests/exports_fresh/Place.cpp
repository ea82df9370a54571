#include "Place.h"

#include "support/Eventually.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace norvepa::test
{

Place::Place()
{
    const XmlContent hidden = XmlContent().Bool(L"hidden", L"true");
    for (int number = 1; number <= 12; ++number)
    {
        const std::wstring name = L"Abseits " + std::to_wstring(number);
        store.WriteDevice(name, XmlContent().Element(L"Ndi", hidden));
        WriteBytes(roots.logName(name), LogNameFile(hidden));
    }
}

Place::~Place()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

void Place::Elsewhere(const std::string& command, std::initializer_list<std::wstring> arguments)
{
    std::string line = command;
    char separator = ' ';
    for (const std::wstring& argument : arguments)
    {
        line += separator + ToUtf8(argument);
        separator = '|';
    }

    std::string answer;
    const bool isDone = Eventually([&] {
        answer = editor.Ask(line);
        return answer == "done";
    });
    if (!isDone)
    {
        throw std::runtime_error(line + ": " + answer);
    }
}

std::vector<std::string> TestsToRun()
{
    const testing::TestSuite& suite = *testing::UnitTest::GetInstance()->current_test_suite();
    std::vector<std::string> tests;
    for (int index = 0; index < suite.total_test_count(); ++index)
    {
        const testing::TestInfo& test = *suite.GetTestInfo(index);
        if (test.should_run())
        {
            tests.emplace_back(test.name());
        }
    }
    return tests;
}

std::wstring ObjectOf(const std::string& test)
{
    std::wstring object = FromUtf8(test);
    std::replace(object.begin(), object.end(), L'/', L' ');
    return object;
}

std::wstring ObjectOfThisTest()
{
    return ObjectOf(testing::UnitTest::GetInstance()->current_test_info()->name());
}

} // namespace norvepa::test
