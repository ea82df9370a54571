#include "store/WriteScene.h"
#include "support/FreshThread.h"

#include <windows.h>
#include <objbase.h>

namespace norvepa::test
{
namespace
{

// Threads without COM: which operations bring it along, and which exits leave it behind.
class SetValueComTest : public WriteScene
{
protected:
    struct Left
    {
        Result result;
        bool withCom;
    };

    // Runs on a thread without COM.
    template <typename Operation>
    [[nodiscard]] static Left After(const Operation& operation)
    {
        Left left{};
        OnFreshThread([&] {
            EXPECT_FALSE(ThisThreadHasCom());
            left.result = operation();
            left.withCom = ThisThreadHasCom();
            if (left.withCom)
            {
                CoUninitialize();
                EXPECT_FALSE(ThisThreadHasCom()) << "initialised more than once";
            }
        });
        return left;
    }
};

TEST_F(SetValueComTest, ASetWorksAndLeavesTheThreadAsItWas)
{
    GivenFile(LogDeviceFile(XmlContent().Element(L"Bindings", XmlContent().Int(L"a", L"1"))));

    const Left set = After([&] { return Set(L"Bindings", L"a", L"2", L"int"); });
    const Left created = After([&] { return Set(L"Bindings", L"b", L"2", L"int"); });
    const Left header = After([&] { return SetHeader(L"a", L"3"); });

    EXPECT_EQ(set.result, PGSP_OK);
    EXPECT_EQ(created.result, PGSP_OK);
    EXPECT_EQ(header.result, PGSP_OK);
    EXPECT_FALSE(set.withCom || created.withCom || header.withCom);
    EXPECT_EQ(Saved(), MeaningOf(LogDeviceFile(
                           XmlContent().Element(L"Bindings", XmlContent().Int(L"a", L"3").Int(L"b", L"2")))));
}

TEST_F(SetValueComTest, TheSameValueLeavesTheThreadAsItWas)
{
    GivenFile(LogDeviceFile(XmlContent().Element(L"Bindings", XmlContent().Int(L"a", L"1"))));

    const Left set = After([&] { return Set(L"Bindings", L"a", L"1", L"int"); });
    const Left header = After([&] { return SetHeader(L"a", L"1"); });

    EXPECT_EQ(set.result, PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(header.result, PGSP_ERR_SAME_VALUE);
    EXPECT_FALSE(set.withCom || header.withCom);
}

TEST_F(SetValueComTest, AMissingSectionOrParameterLeavesTheThreadAsItWas)
{
    GivenFile(DeviceWith({}));

    const Left set = After([&] { return Set(L"Bindings", L"a", L"1", L"int"); });
    const Left header = After([&] { return SetHeader(L"a", L"1"); });

    EXPECT_EQ(set.result, PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(header.result, PGSP_ERR_CANT_SET_VALUE);
    EXPECT_FALSE(set.withCom || header.withCom);
}

TEST_F(SetValueComTest, AMissingFileLeavesTheThreadInitialised)
{
    const Left set = After([&] { return Set(L"Bindings", L"a", L"1", L"int"); });
    const Left header = After([&] { return SetHeader(L"a", L"1"); });

    EXPECT_EQ(set.result, PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(header.result, PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_TRUE(set.withCom && header.withCom);
}

TEST_F(SetValueComTest, AFileThatIsTooLargeLeavesTheThreadInitialised)
{
    GivenFile(std::string(10'000'001, ' '));

    const Left set = After([&] { return Set(L"Bindings", L"a", L"1", L"int"); });
    const Left header = After([&] { return SetHeader(L"a", L"1"); });

    EXPECT_EQ(set.result, PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(header.result, PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_TRUE(set.withCom && header.withCom);
}

TEST_F(SetValueComTest, AMalformedFileLeavesTheThreadInitialised)
{
    GivenFile("<a></b>");

    const Left set = After([&] { return Set(L"Bindings", L"a", L"1", L"int"); });
    const Left header = After([&] { return SetHeader(L"a", L"1"); });

    EXPECT_EQ(set.result, PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(header.result, PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_TRUE(set.withCom && header.withCom);
}

TEST_F(SetValueComTest, AThreadThatHasComKeepsIt)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));

    OnFreshThread([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_OK);
        EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_ERR_SAME_VALUE);
        EXPECT_TRUE(ThisThreadHasCom());
        CoUninitialize();
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(SetValueComTest, TheOtherOperationsMakeNoAttempt)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1").Subdevice(L"A", {})));
    const std::string before = Bytes();

    const Left subdevice = After([&] { return SetSubdev(L"A", L"a", L"1", L"int"); });
    const Left deletion = After([&] { return Delete(L"LocalSettings", L"a"); });
    const Left link =
        After([&] { return NorvXMLSetNdi(path().c_str(), L"a", L"b", nullptr, nullptr, nullptr, 0); });
    const Left linkDeletion = After([&] { return NorvXMLDelNdi(path().c_str(), L"a", 0); });
    const Left data = After([&] { return NorvXMLSetParameterData(path().c_str(), L"a", L"2", L"int"); });
    const Left dataDeletion = After([&] { return NorvXMLDelParameterData(path().c_str(), L"a"); });

    for (const Left& left : {subdevice, deletion, link, linkDeletion, data, dataDeletion})
    {
        EXPECT_EQ(left.result, PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(left.withCom);
    }
    EXPECT_EQ(Bytes(), before);
}

} // namespace
} // namespace norvepa::test
