#include "ProfileScene.h"

namespace norvepa::test
{

std::int32_t ProfileScene::SetProfile(const wchar_t* parameter, const wchar_t* protocol) const
{
    return library.PGSP_LogDeviceSetProfileRBL(L"Presse", protocol, parameter);
}

void ProfileScene::WriteEntries(const XmlContent& entries) const
{
    Write(Spare(entries));
}

void ProfileScene::ExpectEntries(const XmlContent& entries) const
{
    ExpectSaved(Spare(entries));
}

void ProfileScene::ExpectSetProfileChangesNothing(const wchar_t* parameter, std::int32_t result,
                                                  const wchar_t* protocol) const
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(SetProfile(parameter, protocol), result);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

} // namespace norvepa::test
