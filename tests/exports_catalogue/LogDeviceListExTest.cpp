#include "CatalogueScene.h"
#include "support/Eventually.h"
#include "support/ListBuffer.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr std::uint32_t Equal = 1;
constexpr std::uint32_t Unequal = 2;

class LogDeviceListEx : public CatalogueScene
{
protected:
    void WriteDevice(const std::wstring& name, const XmlContent& header) const
    {
        WriteBytes(roots.logDevice(name), LogDeviceFile(XmlContent().Element(L"DeviceHeader", header)));
    }

    [[nodiscard]] Strings Ask(const wchar_t* name, const wchar_t* value, std::uint32_t mode) const
    {
        ListBuffer buffer(2000);
        EXPECT_EQ(library.PGSP_GetLogDeviceListExBL(name, value, mode, buffer.data(), &buffer.length),
                  PGSP_OK);
        EXPECT_EQ(buffer.length, buffer.written().size());
        return buffer.strings();
    }

    [[nodiscard]] std::int32_t ResultOf(const wchar_t* name, const wchar_t* value, std::uint32_t mode) const
    {
        ListBuffer buffer(2000);
        return library.PGSP_GetLogDeviceListExBL(name, value, mode, buffer.data(), &buffer.length);
    }
};

TEST_F(LogDeviceListEx, HoldsThoseWithTheValueInAnyCase)
{
    WriteDevice(L"Ofen", XmlContent().Text(L"Halle", L"NORD"));
    WriteDevice(L"Presse", XmlContent().Text(L"Halle", L"nord"));
    WriteDevice(L"Waage", XmlContent().Text(L"Halle", L"S\u00FCd"));

    EXPECT_THAT(Ask(L"halle", L"Nord", Equal), UnorderedElementsAre(L"Ofen", L"Presse"));
}

TEST_F(LogDeviceListEx, HoldsThoseWithAnotherValueWhenAskedForThem)
{
    WriteDevice(L"Ofen", XmlContent().Text(L"Halle", L"NORD"));
    WriteDevice(L"Waage", XmlContent().Text(L"Halle", L"S\u00FCd"));

    EXPECT_THAT(Ask(L"Halle", L"Nord", Unequal), ElementsAre(L"Waage"));
}

TEST_F(LogDeviceListEx, LeavesOutThoseWithoutAValueOrWithOneTooLong)
{
    WriteDevice(L"Ofen", XmlContent().Text(L"Halle", std::wstring(259, L'x')));
    WriteDevice(L"Presse", XmlContent().Text(L"Halle", std::wstring(260, L'x')));
    WriteDevice(L"Tor", XmlContent().Text(L"Halle", L""));
    WriteDevice(L"Waage", XmlContent());

    EXPECT_THAT(Ask(L"Halle", L"Nord", Unequal), ElementsAre(L"Ofen"));
}

TEST_F(LogDeviceListEx, ReadsAsALogDeviceIsReadAttributesAndDefaultsToo)
{
    WriteDevice(L"Ofen", XmlContent());
    WriteBoard(L"AFK110",
               XmlContent().Element(L"Constraints", XmlContent().ParamSection(
                                                        L"Stufe", XmlContent().Element(L"default", L"4"))));

    EXPECT_THAT(Ask(L"DeviceID", L"afk110", Equal), ElementsAre(L"Ofen"));
    EXPECT_THAT(Ask(L"Stufe", L"4", Equal), ElementsAre(L"Ofen"));
}

TEST_F(LogDeviceListEx, HoldsHiddenOnesToo)
{
    WriteBytes(roots.logDevice(L"Ofen"),
               LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent().Text(L"hidden", L"true"))));

    EXPECT_THAT(Ask(L"CP_TYPE", L"MPI", Equal), ElementsAre(L"Ofen"));
}

// Its name is empty, and a log device without a name has no values.
TEST_F(LogDeviceListEx, LeavesOutAFileThatIsCalledByItsExtensionAlone)
{
    WriteDevice(L"", XmlContent().Text(L"Halle", L"Nord"));
    EXPECT_EQ(ResultOf(L"Halle", L"Nord", Equal), PGSP_ERR_NO_MORE_ITEMS);

    WriteDevice(L"Ofen", XmlContent().Text(L"Halle", L"Nord"));
    EXPECT_TRUE(Eventually([&] { return ResultOf(L"Halle", L"Nord", Equal) == PGSP_OK; }));
    EXPECT_THAT(Ask(L"Halle", L"Nord", Equal), ElementsAre(L"Ofen"));
}

TEST_F(LogDeviceListEx, IsEmptyForAnyOtherMode)
{
    WriteDevice(L"Ofen", XmlContent().Text(L"Halle", L"Nord"));

    EXPECT_EQ(ResultOf(L"Halle", L"Nord", 0), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(ResultOf(L"Halle", L"Nord", 3), PGSP_ERR_NO_MORE_ITEMS);
}

TEST_F(LogDeviceListEx, RefusesWhatIsMissing)
{
    wchar_t buffer[300] = L"as before";
    std::uint32_t length = 300;

    EXPECT_EQ(ResultOf(nullptr, L"Nord", Equal), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(ResultOf(L"", L"Nord", Equal), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(ResultOf(L"Halle", nullptr, Equal), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(ResultOf(L"Halle", L"", Equal), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_GetLogDeviceListExBL(L"Halle", L"Nord", Equal, nullptr, &length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_GetLogDeviceListExBL(L"Halle", L"Nord", Equal, buffer, nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_STREQ(buffer, L"as before");
    EXPECT_EQ(length, 300U);
}

TEST_F(LogDeviceListEx, WithoutADataFolderIsTold)
{
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", L"");

    EXPECT_EQ(ResultOf(L"Halle", L"Nord", Equal), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
