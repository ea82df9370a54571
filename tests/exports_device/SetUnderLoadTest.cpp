#include "SetScene.h"
#include "support/AllAtOnce.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

class SetUnderLoad : public SetScene
{
protected:
    static constexpr int Threads = 4;
    static constexpr int Rounds = 7;

    [[nodiscard]] static std::wstring DeviceOf(int thread) { return L"Anlage " + std::to_wstring(thread); }

    [[nodiscard]] std::int32_t SetOf(const std::wstring& logDevice, const wchar_t* parameter,
                                     const std::wstring& value) const
    {
        return library.LogDeviceSetValueBL(logDevice.c_str(), parameter, value.c_str());
    }
};

// What the catalogue says is looked up for the first time by all of them at once.
TEST_F(SetUnderLoad, ChecksEachValueOfEachDevice)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Stufe", {{L"type", L"int"}, {L"min", L"0"}, {L"max", L"99"}})
                         .Parameter(L"baudrate", {{L"type", L"int"}},
                                    XmlContent().ValueCollection({L"9600/slow", L"19200/fast"})));
    for (int i = 0; i < Threads; ++i)
    {
        store.WriteDevice(DeviceOf(i), XmlContent().Element(L"SpareSection", XmlContent()));
    }

    AllAtOnce(Threads, [&](int thread) {
        const std::wstring device = DeviceOf(thread);
        for (int round = 1; round <= Rounds; ++round)
        {
            EXPECT_EQ(SetOf(device, L"Stufe", std::to_wstring(round)), PGSP_OK);
            EXPECT_EQ(SetOf(device, L"Stufe", L"100"), PGSP_SET_VAL_BIGGER_THAN_MAX);
            EXPECT_EQ(SetOf(device, L"baudrate", L"slow"), PGSP_NOT_IN_LIST);
            EXPECT_EQ(SetOf(device, L"baudrate", round % 2 == 0 ? L"9600" : L"19200"), PGSP_OK);
        }
    });

    const std::string expected = MeaningOf(LogDeviceFile(XmlContent().Element(
        L"SpareSection", XmlContent().Int(L"Stufe", std::to_wstring(Rounds)).Int(L"baudrate", L"19200"))));
    for (int i = 0; i < Threads; ++i)
    {
        EXPECT_EQ(store.Saved(DeviceOf(i)), expected);
    }
}

} // namespace
} // namespace norvepa::test
