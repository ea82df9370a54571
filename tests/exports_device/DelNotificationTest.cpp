#include "Registrants.h"
#include "SetScene.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

class DelNotification : public WithRegistrants<SetScene>
{
protected:
    DelNotification()
    {
        store.UseOurSchemas();
        Write(Device());
    }

    // What satisfies the schema.
    [[nodiscard]] static XmlContent Device()
    {
        return XmlContent()
            .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
            .Element(L"SpareSection", XmlContent().Text(L"Ort", L"Halle 2"));
    }
};

TEST_F(DelNotification, TellsOfARemovedValue)
{
    EXPECT_EQ(Delete(L"Ort"), PGSP_OK);

    EXPECT_TRUE(IsTold(press));
    EXPECT_TRUE(IsTold(all));
    EXPECT_FALSE(IsTold(pump));
    EXPECT_FALSE(IsTold(names));
    EXPECT_EQ(workers.count(), 1U);
}

TEST_F(DelNotification, TellsNobodyOfARemovalThatFails)
{
    store.WriteBoard(Catalogue().Parameter(L"Unit", {{L"section", L"DeviceHeader"}}));
    const OpenFile inUse(roots.logDevice(L"Presse"));

    EXPECT_EQ(Delete(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Delete(L"unknown"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Delete(L"Unit"), PGSP_ERR_INVALID_FILE);
    EXPECT_EQ(Delete(L"Ort"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogDeviceDelValueBL(L"gone", L"Ort"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(IsTold(all));
}

TEST_F(DelNotification, TellsNobodyOfATemporaryDevice)
{
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____001", Device());

    EXPECT_EQ(library.LogDeviceDelValueBL(L"PGSP_TEMP_LOG_DEVICE____001", L"Ort"), PGSP_OK);

    EXPECT_EQ(workers.count(), 0U);
}

} // namespace
} // namespace norvepa::test
