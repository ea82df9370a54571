#include "NdiTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class EnumNdiTrace : public NdiTraceScene
{
protected:
    [[nodiscard]] std::int32_t Enum(const wchar_t* device, std::uint32_t index)
    {
        return library().PGSP_LogDeviceEnumNdiValueBL(device, index, name, &nameLength, value, &valueLength,
                                                      0);
    }

    // Buffers of this test's own.
    wchar_t name[20] = L"name";
    wchar_t value[30] = L"before";
    std::uint32_t nameLength = 20;
    std::uint32_t valueLength = 30;
};

TEST_F(EnumNdiTrace, OfASuccessTellsThePairAndHasNoExit)
{
    Load();

    EXPECT_EQ(Enum(L"Presse", 0), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceEnumNdiValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, index = 0",
                            "information: Parameter = Ort, parLen = 3, Value = Halle, valLen = 5"));
}

TEST_F(EnumNdiTrace, OfAFailureTellsTheCodeAlone)
{
    Load();

    EXPECT_EQ(Enum(L"Presse", 2), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Enum(L"gone", 0), PGSP_ERR_FILE_NOT_FOUND);
    nameLength = 3;
    EXPECT_EQ(Enum(L"Presse", 0), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceEnumNdiValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, index = 2", "exit: << return lRet = 259",
                            "entry: >> LogDevice = gone, index = 0", "exit: << return lRet = 8503",
                            "entry: >> LogDevice = Presse, index = 0", "exit: << return lRet = 234"));
}

TEST_F(EnumNdiTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(Enum(nullptr, 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_LogDeviceEnumNdiValueBL(L"Presse", 2, nullptr, nullptr, nullptr, nullptr, 0),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceEnumNdiValueBL"),
                ElementsAre("entry: >> LogDevice = , index = 1", Refusal,
                            "entry: >> LogDevice = Presse, index = 2", Refusal));
}

TEST_F(EnumNdiTrace, WithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Enum(L"Presse", 0), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("PGSP_LogDeviceEnumNdiValueBL"),
        ElementsAre("entry: >> LogDevice = Presse, index = 0", NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test
