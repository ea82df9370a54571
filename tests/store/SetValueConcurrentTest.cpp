#include "store/Together.h"
#include "store/WriteScene.h"

#include <atomic>

namespace norvepa::test
{
namespace
{

constexpr int Writers = 3;
constexpr int Rounds = 20;

using SetValueConcurrentTest = WriteScene;

TEST_F(SetValueConcurrentTest, WritersOfOneFileLeaveItWhole)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"0")));
    std::atomic<int> strange = 0;

    Together(Writers, [&](int writer) {
        for (int round = 1; round <= Rounds; ++round)
        {
            // While another one saves, there may be no file, or none that can be loaded.
            const std::wstring value = std::to_wstring(round * Writers + writer);
            const Result result = Set(L"LocalSettings", L"a", value.c_str(), L"int");
            strange += result != PGSP_OK && result != PGSP_ERR_SAME_VALUE &&
                       result != PGSP_ERR_CANT_LOAD_XML_FILE && result != PGSP_ERR_FILE_NOT_FOUND;
        }
    });

    EXPECT_EQ(strange, 0);
    ASSERT_EQ(Set(L"LocalSettings", L"a", L"-1", L"int"), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"a", L"-1"))));
}

TEST_F(SetValueConcurrentTest, WritersOfDifferentFilesDoNotMeet)
{
    for (int writer = 0; writer < Writers; ++writer)
    {
        WriteBytes(folder() / std::to_wstring(writer) + L".xml", DeviceWith({}));
    }
    std::atomic<int> failed = 0;

    Together(Writers, [&](int writer) {
        const std::wstring path = folder() / std::to_wstring(writer);
        for (int round = 1; round <= Rounds; ++round)
        {
            failed += NorvXMLSetValue(path.c_str(), L"LocalSettings", L"a", std::to_wstring(round).c_str(),
                                      L"int") != PGSP_OK;
        }
    });

    EXPECT_EQ(failed, 0);
    for (int writer = 0; writer < Writers; ++writer)
    {
        EXPECT_EQ(MeaningOfFile(folder() / std::to_wstring(writer) + L".xml"),
                  MeaningOf(DeviceWith(XmlContent().Int(L"a", std::to_wstring(Rounds)))));
    }
}

} // namespace
} // namespace norvepa::test
