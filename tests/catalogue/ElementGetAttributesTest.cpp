#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ElementGetAttributes : public CatalogueScene
{
protected:
    Result Read(const std::wstring& file)
    {
        return NorvXMLElementGetAttributes(file.c_str(), {{L"DeviceID", &deviceId}, {L"CP_TYPE", &netType}});
    }

    std::wstring deviceId = L"of before";
    std::wstring netType = L"of before";
};

TEST_F(ElementGetAttributes, ReadsAllOfThemWhateverTheirOrder)
{
    EXPECT_EQ(Read(File("<a CP_TYPE='MPI' x='1' DeviceID='*AFK110'/>")), PGSP_OK);
    EXPECT_EQ(deviceId, L"*AFK110");
    EXPECT_EQ(netType, L"MPI");
}

TEST_F(ElementGetAttributes, EmptiesWhatTheRootDoesNotHave)
{
    EXPECT_EQ(Read(File("<a CP_TYPE='MPI'><b DeviceID='AFK110'/></a>")), PGSP_OK);
    EXPECT_EQ(deviceId, L"");
    EXPECT_EQ(netType, L"MPI");
}

TEST_F(ElementGetAttributes, OfAFileWithoutRootOrNoFileAreEmpty)
{
    EXPECT_EQ(Read(File("no element")), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(deviceId, L"");

    netType = L"of before";
    EXPECT_EQ(Read(File("<a/>") + L"-gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(netType, L"");
}

} // namespace
} // namespace norvepa::test
