#include "Registrants.h"
#include "SetScene.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

class SetNotification : public WithRegistrants<SetScene>
{
protected:
    SetNotification()
    {
        Write(XmlContent()
                  .Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1"))
                  .Subdevice(L"Ventil", XmlContent().Text(L"Stufe", L"1"))
                  .Element(L"SpareSection", XmlContent()));
    }

    void ExpectPressTold() const
    {
        EXPECT_TRUE(IsTold(press));
        EXPECT_TRUE(IsTold(all));
        EXPECT_FALSE(IsTold(pump));
        EXPECT_FALSE(IsTold(names));
        EXPECT_FALSE(IsTold(templates));
        EXPECT_EQ(workers.count(), 1U);
    }
};

TEST_F(SetNotification, TellsOfAChangedValue)
{
    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectPressTold();
}

TEST_F(SetNotification, TellsOfANewValue)
{
    EXPECT_EQ(Set(L"Takt", L""), PGSP_OK);

    ExpectPressTold();
}

TEST_F(SetNotification, TellsOfTheDeviceOfASubdevice)
{
    const NamedEvent valve;
    Register(valve, L"Presse\\subdevices\\Ventil");

    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse\\subdevices\\Ventil", L"Stufe", L"2"), PGSP_OK);

    ExpectPressTold();
    EXPECT_FALSE(IsTold(valve));
}

TEST_F(SetNotification, TellsOfAChangeThatCouldNotBeSaved)
{
    const OpenFile inUse(roots.logDevice(L"Presse"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectPressTold();
}

TEST_F(SetNotification, TellsOfDevicesWithCodedNamesByTheirNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, XmlContent().Element(L"SpareSection", XmlContent()));
        const NamedEvent event;
        Register(event, coded.name);

        EXPECT_EQ(library.LogDeviceSetValueBL(coded.name, L"Stufe", L"2"), PGSP_OK);

        EXPECT_TRUE(IsTold(event)) << ToUtf8(coded.name);
    }
}

TEST_F(SetNotification, TellsNobodyOfAnUnchangedValue)
{
    EXPECT_EQ(Set(L"Stufe", L"1"), PGSP_OK);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse\\subdevices\\Ventil", L"Stufe", L"1"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(SetNotification, TellsNobodyOfAValueThatIsRefused)
{
    store.WriteBoard(Catalogue().Parameter(L"Aktiv", {{L"type", L"bool"}}));

    EXPECT_EQ(Set(L"Stufe", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"DeviceID", L"2"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(Set(L"Aktiv", L"1"), PGSP_NOT_A_BOOL);

    ExpectNobodyTold();
}

TEST_F(SetNotification, TellsNobodyOfAWriteThatFails)
{
    WriteBytes(roots.logDevice(L"broken"), "no XML");
    store.WriteDevice(L"bare", {});

    EXPECT_EQ(Set(L"Takt", L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"gone", L"Stufe", L"2"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"broken", L"Stufe", L"2"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"bare", L"Stufe", L"2"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse\\subdevices\\Motor", L"Stufe", L"2"),
              PGSP_ERR_CANT_SET_VALUE);

    ExpectNobodyTold();
}

TEST_F(SetNotification, TellsNobodyOfATemporaryDevice)
{
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____001", XmlContent().Element(L"SpareSection", XmlContent()));

    EXPECT_EQ(library.LogDeviceSetValueBL(L"PGSP_TEMP_LOG_DEVICE____001", L"Stufe", L"2"), PGSP_OK);

    ExpectNobodyTold();
}

} // namespace
} // namespace norvepa::test
