#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

class NdiValue : public DeviceScene
{
protected:
    // The value, for reads that succeed; "(result N)" for those that don't.
    [[nodiscard]] static std::wstring Value(const wchar_t* parameter, const wchar_t* logDevice = L"Presse")
    {
        std::wstring value = L"before";
        const Result result = LogDeviceGetNdiValue(logDevice, parameter, &value);
        return result == PGSP_OK ? value : L"(result " + std::to_wstring(result) + L")";
    }
};

TEST_F(NdiValue, RefusesMissingArguments)
{
    std::wstring value = L"before";

    EXPECT_EQ(LogDeviceGetNdiValue(nullptr, L"Modul", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetNdiValue(L"", L"Modul", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetNdiValue(L"Presse", nullptr, &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetNdiValue(L"Presse", L"", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceGetNdiValue(L"Presse", L"Modul", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(value, L"before");
}

TEST_F(NdiValue, NeedsTheDataFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(Value(L"Modul"), L"(result 8517)");
}

TEST_F(NdiValue, ComesFromTheSectionNdiAlone)
{
    store.WriteBoard(Catalogue().Parameter(L"Ort", {{L"section", L"LocalSettings"}, {L"default", L"c"}}));
    store.WriteDevice(L"Presse",
                      XmlContent()
                          .Element(L"LocalSettings", XmlContent().Text(L"Modul", L"a").Text(L"Ort", L"b"))
                          .Element(L"Ndi", XmlContent().Text(L"Modul", L"norvndi")));

    EXPECT_EQ(Value(L"MODUL"), L"norvndi");
    EXPECT_EQ(Value(L"Ort"), L"(result 8513)");
    EXPECT_EQ(Value(L"DeviceID"), L"(result 8513)");
}

TEST_F(NdiValue, OfADeviceThatIsMissingIsTheStoresCode)
{
    EXPECT_EQ(Value(L"Modul", L"gone"), L"(result 8508)");
}

} // namespace
} // namespace norvepa::test
