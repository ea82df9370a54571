#include "handover/DriverRead.h"
#include "support/DeviceStore.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

class DriverLoadLogDeviceTest : public testing::Test
{
protected:
    DriverLoadLogDeviceTest() { store.UseOurSchemas(); }

    [[nodiscard]] Result Load(const wchar_t* name = L"Presse") { return DriverLoadLogDevice(context, name); }

    const StoreRoots roots;
    const DeviceStore store{roots};
    DriverReadContext context;
};

const XmlContent Header = XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"));

TEST_F(DriverLoadLogDeviceTest, GivesTheDocumentAndItsBytes)
{
    store.WriteDevice(L"Presse", Header);

    EXPECT_EQ(Load(), PGSP_OK);

    EXPECT_EQ(context.bytes, store.Bytes(L"Presse"));
    EXPECT_EQ(context.document.Root().Name().view(), L"LogDevice");
}

// A name that isn't there is told here as well: no caller but the export has tested it.
TEST_F(DriverLoadLogDeviceTest, RefusesANameThatIsNotThere)
{
    EXPECT_EQ(Load(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Load(L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(DriverLoadLogDeviceTest, RefusesANameWhoseEscapedFormHas260Characters)
{
    EXPECT_EQ(Load(std::wstring(260, L'x').c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Load((std::wstring(254, L'x') + L"#").c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Load(std::wstring(259, L'x').c_str()), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Load((std::wstring(253, L'x') + L"#").c_str()), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(DriverLoadLogDeviceTest, NeedsTheLogDevicesOwnSchema)
{
    const std::filesystem::path schemas = roots.program() + L"\\Schemes";
    store.WriteDevice(L"Presse", Header);
    std::filesystem::rename(schemas / L"Corvane.Device.Driver.Logdevice.xsd", schemas / L"other.xsd");

    EXPECT_EQ(Load(), PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(DriverLoadLogDeviceTest, KeepsWhiteSpace)
{
    const XmlContent name = XmlContent().Element(L"Name", L"x").Element(L"Value", L"  ");
    store.WriteDevice(L"Presse",
                      XmlContent(Header).Element(L"LocalSettings", XmlContent().Element(L"Parameter", name)));

    ASSERT_EQ(Load(), PGSP_OK);

    std::wstring value;
    for (const Node& element : context.document.Elements())
    {
        value = element.Name().view() == L"Value" ? std::wstring(element.Text().view()) : value;
    }
    EXPECT_EQ(value, L"  ");
}

} // namespace
} // namespace norvepa::test
