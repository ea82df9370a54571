#include "LifeScene.h"

#include <functional>

namespace norvepa::test
{
namespace
{

// An export with its arguments, of which one is missing.
struct Call
{
    const char* name;
    std::function<std::int32_t(const Exports&)> run;
};

// In the order of the exports and of their arguments, each null and then empty.
std::vector<Call> CallsWithAMissingName()
{
    static wchar_t buffer[TemporaryNameRoom];
    static std::uint32_t length = TemporaryNameRoom;
    return {
        {"create, null", [](auto& e) { return e.LogDeviceCreateFromDefBL(nullptr, L"Neu"); }},
        {"create, empty", [](auto& e) { return e.LogDeviceCreateFromDefBL(L"", L"Neu"); }},
        {"create to null", [](auto& e) { return e.LogDeviceCreateFromDefBL(L"MPI", nullptr); }},
        {"create to empty", [](auto& e) { return e.LogDeviceCreateFromDefBL(L"MPI", L""); }},
        {"create, both", [](auto& e) { return e.LogDeviceCreateFromDefBL(nullptr, nullptr); }},
        {"copy, null", [](auto& e) { return e.LogDeviceCopyBL(nullptr, L"Neu"); }},
        {"copy, empty", [](auto& e) { return e.LogDeviceCopyBL(L"", L"Neu"); }},
        {"copy to null", [](auto& e) { return e.LogDeviceCopyBL(L"Presse", nullptr); }},
        {"copy to empty", [](auto& e) { return e.LogDeviceCopyBL(L"Presse", L""); }},
        {"copy, both", [](auto& e) { return e.LogDeviceCopyBL(nullptr, nullptr); }},
        {"delete, null", [](auto& e) { return e.LogDeviceDelBL(nullptr, 0); }},
        {"delete, empty", [](auto& e) { return e.LogDeviceDelBL(L"", 0); }},
        {"delete at all costs, null", [](auto& e) { return e.LogDeviceDelBL(nullptr, 1); }},
        {"delete at all costs, empty", [](auto& e) { return e.LogDeviceDelBL(L"", 1); }},
        {"temp, null", [](auto& e) { return e.LogDeviceCreateTempBL(nullptr, buffer, &length); }},
        {"temp, empty", [](auto& e) { return e.LogDeviceCreateTempBL(L"", buffer, &length); }},
        {"temp to null", [](auto& e) { return e.LogDeviceCreateTempBL(L"Presse", nullptr, &length); }},
        {"temp, no length", [](auto& e) { return e.LogDeviceCreateTempBL(L"Presse", buffer, nullptr); }},
        {"temp, all", [](auto& e) { return e.LogDeviceCreateTempBL(nullptr, nullptr, nullptr); }},
        {"from template, null",
         [](auto& e) { return e.LogDeviceCreateTempFromDefBL(nullptr, buffer, &length); }},
        {"from template, empty",
         [](auto& e) { return e.LogDeviceCreateTempFromDefBL(L"", buffer, &length); }},
        {"from template to null",
         [](auto& e) { return e.LogDeviceCreateTempFromDefBL(L"MPI", nullptr, &length); }},
        {"from template, no length",
         [](auto& e) { return e.LogDeviceCreateTempFromDefBL(L"MPI", buffer, nullptr); }},
        {"from template, all",
         [](auto& e) { return e.LogDeviceCreateTempFromDefBL(nullptr, nullptr, nullptr); }},
        {"swap, null", [](auto& e) { return e.LogDeviceUpdateWithTempBL(nullptr, L"Presse"); }},
        {"swap for null", [](auto& e) { return e.LogDeviceUpdateWithTempBL(L"Presse", nullptr); }},
        {"swap, both", [](auto& e) { return e.LogDeviceUpdateWithTempBL(nullptr, nullptr); }},
        {"swap, null for empty", [](auto& e) { return e.LogDeviceUpdateWithTempBL(nullptr, L""); }},
        {"drop, null", [](auto& e) { return e.LogDeviceDelTempBL(nullptr); }},
        {"drop, empty", [](auto& e) { return e.LogDeviceDelTempBL(L""); }},
    };
}

class LifeArguments : public LifeScene
{
protected:
    LifeArguments()
    {
        WriteTemplate(L"MPI", {});
        Write(Rights(L"true", L"false"));
    }

    void ExpectAllRefused() const
    {
        for (const Call& call : CallsWithAMissingName())
        {
            EXPECT_EQ(call.run(library), PGSP_ERR_INVALID_PARAMETERS) << call.name;
        }
        EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
        EXPECT_EQ(workers.count(), 0U);
    }
};

TEST_F(LifeArguments, ThatAreMissingAreRefusedAndNothingIsDone)
{
    ExpectAllRefused();
}

TEST_F(LifeArguments, AreTestedAheadOfTheFolders)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();

    ExpectAllRefused();
}

TEST_F(LifeArguments, ThatAreMissingAreTestedAheadOfTheFolderOfDevices)
{
    std::filesystem::remove_all(store.deviceFolder());

    for (const Call& call : CallsWithAMissingName())
    {
        EXPECT_EQ(call.run(library), PGSP_ERR_INVALID_PARAMETERS) << call.name;
        EXPECT_FALSE(Exists(store.deviceFolder())) << call.name;
    }
}

TEST_F(LifeArguments, MayBeBlank)
{
    WriteTemplate(L" ", {});

    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L" ", L"x"), PGSP_OK);
    EXPECT_EQ(library.LogDeviceCopyBL(L" ", L"y"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(library.LogDeviceDelBL(L" ", 1), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(MakeTemporary(L" "), NoNumber);
    EXPECT_EQ(MakeTemporaryFromTemplate(L" "), TemporaryName(0));
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(L" ", L" "), PGSP_ERR_FILE_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
