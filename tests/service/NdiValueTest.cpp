#include "InternalRead.h"

namespace norvepa::test
{
namespace
{

using NdiValue = InternalRead<&LogDeviceGetNdiValue>;

TEST_F(NdiValue, RefusesMissingArguments)
{
    ExpectMissingArgumentsRefused();
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
