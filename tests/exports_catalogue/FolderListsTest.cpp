#include "CatalogueScene.h"
#include "support/Eventually.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FolderLists : public CatalogueScene
{
protected:
    template <typename Call>
    [[nodiscard]] static Strings ListOf(const Call& call)
    {
        ListBuffer buffer(2000);
        EXPECT_EQ(call(buffer.data(), &buffer.length), PGSP_OK);
        EXPECT_EQ(buffer.length, buffer.written().size());
        return buffer.strings();
    }

    [[nodiscard]] Strings Templates(const wchar_t* folder) const
    {
        return ListOf([&](wchar_t* buffer, std::uint32_t* length) {
            return library.PGSP_TemplateGetListBL(folder, buffer, length);
        });
    }

    [[nodiscard]] Strings LogDevices() const { return ListOf(library.PGSP_GetLogDeviceListBL); }
    [[nodiscard]] Strings LogNames() const { return ListOf(library.PGSP_GetLogNameListBL); }
};

TEST_F(FolderLists, OfTheCatalogueHoldTheNamesWithTheirPrefixes)
{
    WriteBoard(L"X", {});
    WriteProtocol(L"Y", {});
    WriteBytes(roots.deviceTemplate(L"Z"), LogDeviceFile({}));

    EXPECT_THAT(Templates(L"Boards"), ElementsAre(BoardPrefix + L"X"));
    EXPECT_THAT(Templates(L"Protocols"), ElementsAre(ProtocolPrefix + L"Y"));
    EXPECT_THAT(Templates(L"DefaultLogDevices"), ElementsAre(TemplatePrefix + L"Z"));
}

TEST_F(FolderLists, OfTheCatalogueTakeAnyFolderInAnyCase)
{
    WriteBoard(L"X", {});
    WriteBytes(roots.program() + L"\\meta\\Own\\a.xml", "");

    EXPECT_THAT(Templates(L"BOARDS"), ElementsAre(BoardPrefix + L"X"));
    EXPECT_THAT(Templates(L"Own"), ElementsAre(L"a"));
}

TEST_F(FolderLists, HoldNamesAsPeopleWriteThem)
{
    WriteBoard(L"50#25 \u00DCber(nmbr)1", {});
    WriteBytes(roots.logDevice(L"Halle 2#3a Pumpe"), LogDeviceFile({}));
    WriteBytes(roots.logName(L"Gr\u00F6\u00DFe #2aNord#2a"), LogNameFile({}));

    EXPECT_THAT(Templates(L"Boards"), ElementsAre(BoardPrefix + L"50% \u00DCber#1"));
    EXPECT_THAT(LogDevices(), ElementsAre(L"Halle 2: Pumpe"));
    EXPECT_THAT(LogNames(), ElementsAre(L"Gr\u00F6\u00DFe *Nord*"));
}

TEST_F(FolderLists, HoldHiddenAndTemporaryOnesToo)
{
    const XmlContent hidden = XmlContent().Text(L"hidden", L"true");
    WriteBytes(roots.logName(L"Hidden"), LogNameFile(hidden));
    WriteBytes(roots.logDevice(L"Hidden"), LogDeviceFile(XmlContent().Element(L"DeviceHeader", hidden)));
    WriteBytes(roots.logDevice(L"PGSP_TEMP_LOG_DEVICE____001"), LogDeviceFile({}));

    EXPECT_THAT(LogNames(), ElementsAre(L"Hidden"));
    EXPECT_THAT(LogDevices(), UnorderedElementsAre(L"Hidden", L"PGSP_TEMP_LOG_DEVICE____001"));
}

TEST_F(FolderLists, HoldNothingButXmlFiles)
{
    WriteBytes(roots.logName(L"Pumpe"), "not even XML");
    WriteBytes(roots.data() + L"\\data\\LogNames\\Notes.txt", "");

    EXPECT_THAT(LogNames(), ElementsAre(L"Pumpe"));
}

TEST_F(FolderLists, AreEmptyForAFolderThatIsNotThere)
{
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"gone");

    EXPECT_THAT(Templates(L"gone"), IsEmpty());
    EXPECT_THAT(LogDevices(), IsEmpty());
    EXPECT_THAT(LogNames(), IsEmpty());
}

TEST_F(FolderLists, LeadNowhereWithoutTheirRoot)
{
    TakeProgramFolderAway();
    TakeDataFolderAway();
    ListBuffer buffer(300);

    EXPECT_EQ(library.PGSP_TemplateGetListBL(L"Boards", buffer.data(), &buffer.length), 8517);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Boards", 0, buffer.data(), &buffer.length), 8517);
    EXPECT_EQ(library.PGSP_GetLogDeviceListBL(buffer.data(), &buffer.length), 8517);
    EXPECT_EQ(library.PGSP_GetLogNameListBL(buffer.data(), &buffer.length), 8517);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 300U);
}

TEST_F(FolderLists, NeedNoRootButTheirOwn)
{
    WriteBoard(L"X", {});
    WriteBytes(roots.logName(L"Pumpe"), LogNameFile({}));
    TakeDataFolderAway();
    EXPECT_THAT(Templates(L"Boards"), ElementsAre(BoardPrefix + L"X"));

    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.data());
    TakeProgramFolderAway();
    EXPECT_THAT(LogNames(), ElementsAre(L"Pumpe"));
}

TEST_F(FolderLists, RefuseBadArgumentsAheadOfTheirRoot)
{
    TakeProgramFolderAway();
    TakeDataFolderAway();
    wchar_t buffer[300] = L"before";
    std::uint32_t length = 300;

    EXPECT_EQ(library.PGSP_TemplateGetListBL(nullptr, buffer, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateGetListBL(L"", buffer, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateGetListBL(L"Boards", nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateGetListBL(L"Boards", buffer, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(nullptr, 0, buffer, &length), 87);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"", 0, buffer, &length), 87);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Boards", 0, nullptr, nullptr), 8517); // not yet
    EXPECT_EQ(library.PGSP_GetLogDeviceListBL(nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_GetLogDeviceListBL(buffer, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_GetLogNameListBL(nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_GetLogNameListBL(buffer, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_STREQ(buffer, L"before");
    EXPECT_EQ(length, 300U);
}

TEST_F(FolderLists, OfTheCatalogueStayAsTheyWereFirstTaken)
{
    WriteBoard(L"X", {});
    EXPECT_THAT(Templates(L"Boards"), ElementsAre(BoardPrefix + L"X"));

    WriteBoard(L"Y", {});
    library.NorvepaBl64x_deinit();

    EXPECT_THAT(Templates(L"Boards"), ElementsAre(BoardPrefix + L"X"));
    EXPECT_EQ(NameWithoutPrefix(L"Boards", 1), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(FolderLists, OfTheDataFolderFollowIt)
{
    WriteBytes(roots.logName(L"Pumpe"), LogNameFile({}));
    WriteBytes(roots.logDevice(L"Kessel"), LogDeviceFile({}));
    EXPECT_THAT(LogNames(), ElementsAre(L"Pumpe"));
    EXPECT_THAT(LogDevices(), ElementsAre(L"Kessel"));

    WriteBytes(roots.logName(L"Silo"), LogNameFile({}));
    WriteBytes(roots.logDevice(L"Ofen"), LogDeviceFile({}));

    EXPECT_TRUE(Eventually([&] { return LogNames().size() == 2 && LogDevices().size() == 2; }));
    EXPECT_THAT(LogNames(), UnorderedElementsAre(L"Pumpe", L"Silo"));
    EXPECT_THAT(LogDevices(), UnorderedElementsAre(L"Kessel", L"Ofen"));
}

} // namespace
} // namespace norvepa::test
