#include "SetScene.h"

#include "support/XmlMeaning.h"

#include <stdexcept>

namespace norvepa::test
{

SetScene::~SetScene()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

std::int32_t SetScene::Set(const wchar_t* parameter, const wchar_t* value) const
{
    return library.LogDeviceSetValueBL(L"Presse", parameter, value);
}

std::int32_t SetScene::Delete(const wchar_t* parameter) const
{
    return library.LogDeviceDelValueBL(L"Presse", parameter);
}

void SetScene::Write(const XmlContent& content) const
{
    store.WriteDevice(L"Presse", content);
}

void SetScene::ExpectSaved(const XmlContent& content) const
{
    EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(content)));
}

void SetScene::ExpectSetChangesNothing(const wchar_t* parameter, const wchar_t* value,
                                       std::int32_t result) const
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(Set(parameter, value), result);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

void SetScene::ExpectDeletionChangesNothing(const wchar_t* parameter, std::int32_t result) const
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(Delete(parameter), result);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
}

std::vector<std::wstring> SetScene::Files() const
{
    return FileNames(store.deviceFolder());
}

void SetScene::Register(const NamedEvent& event, const wchar_t* logDevice, const wchar_t* folderWord) const
{
    if (library.RegisterNotification(folderWord, logDevice, event.c_str()) != PGSP_OK)
    {
        throw std::runtime_error("the event isn't registered");
    }
}

bool SetScene::IsTold(const NamedEvent& event) const
{
    workers.Await();
    return event.IsSet();
}

} // namespace norvepa::test
