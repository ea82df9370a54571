#include "ListScene.h"
namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class ListArguments : public BothLists
{
protected:
    ListArguments()
    {
        store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
        store.WriteProtocol(ListOf(L"cable", {L"Kupfer"}));
    }

    // The log device with these attributes on its root.
    void WriteRoot(XmlAttributes attributes, const XmlContent& content = {}) const
    {
        WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", attributes, content));
    }
};

INSTANTIATE_TEST_SUITE_P(Of, ListArguments, testing::Values(MostSpecialized, Average), NameOfList);

TEST_P(ListArguments, HaveToBeThere)
{
    ListBuffer buffer(300);
    std::uint32_t none = 0;
    const struct
    {
        const wchar_t* device;
        const wchar_t* parameter;
        wchar_t* values;
        std::uint32_t* length;
    } refused[] = {
        {nullptr, L"cable", buffer.data(), &buffer.length},  {L"", L"cable", buffer.data(), &buffer.length},
        {L"Presse", nullptr, buffer.data(), &buffer.length}, {L"Presse", L"", buffer.data(), &buffer.length},
        {L"Presse", L"cable", nullptr, &buffer.length},      {L"Presse", L"cable", buffer.data(), nullptr},
        {L"Presse", L"cable", buffer.data(), &none},         {nullptr, nullptr, nullptr, nullptr},
    };

    for (const auto& [device, parameter, values, length] : refused)
    {
        EXPECT_EQ((library.*GetParam())(device, parameter, values, length), PGSP_ERR_INVALID_PARAMETERS);
    }

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 300U);
    EXPECT_EQ(none, 0U);
}

TEST_P(ListArguments, AreTestedAheadOfTheLogDeviceAndTheFolders)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();
    ListBuffer buffer(0);

    EXPECT_EQ(Ask(GetParam(), L"cable", buffer), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(buffer.isUntouched());
}

TEST_P(ListArguments, NameALogDeviceThatHasToBeThere)
{
    EXPECT_THAT(Values(L"cable", L"gone"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListArguments, NameALogDeviceThatNamesABoard)
{
    WriteRoot({{L"CP_TYPE", OurProtocol}});

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListArguments, NameALogDeviceThatNamesAProtocol)
{
    WriteRoot({{L"DeviceID", OurBoard}});

    EXPECT_THAT(Values(L"mode"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListArguments, MayNameALogDeviceThatNamesBothAsParameters)
{
    WriteRoot({}, XmlContent().Element(
                      L"Bindings", XmlContent().Text(L"DeviceID", OurBoard).Text(L"CP_TYPE", OurProtocol)));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

TEST_P(ListArguments, LeadToNoLogDeviceWithoutTheDataFolder)
{
    store.TakeDataFolderAway();

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_P(ListArguments, LeadToNoCatalogueWithoutTheProgramFolder)
{
    store.TakeProgramFolderAway();

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_FOLDER_NOT_FOUND)));
}

TEST_P(ListArguments, LeadToNoCatalogueInAnEmptyProgramFolder)
{
    SetMachineText(LocationsKey, L"Corvane_Oam", L"");

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_FOLDER_NOT_FOUND)));
}

TEST_P(ListArguments, AreLookedUpInTheLogDeviceAheadOfTheProgramFolder)
{
    store.TakeProgramFolderAway();

    EXPECT_THAT(Values(L"cable", L"gone"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

class ListNames : public BothLists
{
protected:
    // The log device, naming these two.
    void WriteNames(const std::wstring& board, const std::wstring& protocol) const
    {
        store.WriteDevice(L"Presse", {}, board, protocol);
    }

    const std::wstring boardPrefix = L"Automation-OnlineAccess-BT-";
    const std::wstring protocolPrefix = L"Automation-OnlineAccess-PT-";
};

INSTANTIATE_TEST_SUITE_P(Of, ListNames, testing::Values(MostSpecialized, Average), NameOfList);

TEST_P(ListNames, OfBoardsMayHaveAStarAndThePrefix)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));

    for (const std::wstring& board : {L"*" + std::wstring(OurBoard), boardPrefix + std::wstring(OurBoard),
                                      L"*" + boardPrefix + std::wstring(OurBoard)})
    {
        SCOPED_TRACE(ToUtf8(board));
        WriteNames(board, L"gone");

        EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
    }
}

TEST_P(ListNames, OfBoardsLoseOneStarAndNoMore)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    store.WriteProtocol(ListOf(L"cable", {L"Funk"}));
    WriteNames(L"**" + std::wstring(OurBoard), std::wstring(OurProtocol));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Funk"));
}

TEST_P(ListNames, OfProtocolsMayHaveThePrefixButNoStar)
{
    store.WriteProtocol(ListOf(L"cable", {L"Funk"}));

    WriteNames(L"gone", protocolPrefix + std::wstring(OurProtocol));
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Funk"));

    WriteNames(L"gone", L"*" + std::wstring(OurProtocol));
    EXPECT_EQ(Values(L"cable"), NothingListed());
}

TEST_P(ListNames, OfLogDevicesAreEscaped)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, {});

        EXPECT_THAT(Values(L"cable", coded.name), ElementsAre(L"Kupfer")) << ToUtf8(coded.name);
    }
}

} // namespace
} // namespace norvepa::test
