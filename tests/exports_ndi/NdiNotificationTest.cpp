#include "NdiScene.h"
#include "exports_device/Registrants.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

class NdiNotification : public WithRegistrants<NdiScene>
{
protected:
    NdiNotification()
    {
        store.UseOurSchemas();
        Write(Device());
    }

    [[nodiscard]] static XmlContent Device()
    {
        return Valid(
            Identity(XmlContent().Text(L"Ort", L"Halle"),
                     XmlContent().Resource(DescText).ParameterAssemblyLink(PropSheet).Text(L"Titel", L"a")));
    }

    // Of one change, and by what it takes to tell of one.
    void ExpectPressTold(std::size_t changes = 1) const
    {
        EXPECT_TRUE(press.Await());
        EXPECT_TRUE(all.Await());
        EXPECT_FALSE(IsTold(press));
        EXPECT_FALSE(IsTold(all));
        EXPECT_FALSE(IsTold(pump));
        EXPECT_FALSE(IsTold(names));
        EXPECT_FALSE(IsTold(templates));
        EXPECT_EQ(workers.count(), changes);
    }
};

TEST_F(NdiNotification, TellsOfAPlainValue)
{
    EXPECT_EQ(SetNdi(L"Ort", L"Hof"), PGSP_OK);
    ExpectPressTold(1);

    EXPECT_EQ(SetNdi(L"hidden", L"true"), PGSP_OK);
    ExpectPressTold(2);
}

TEST_F(NdiNotification, TellsOfALinkThatIsChanged)
{
    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,8"), PGSP_OK);
    ExpectPressTold(1);

    EXPECT_EQ(SetNdi(L"DescText", L"9"), PGSP_OK);
    ExpectPressTold(2);

    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,Other"), PGSP_OK);
    ExpectPressTold(3);
}

TEST_F(NdiNotification, TellsOfALinkThatIsMadeAndOfOneWithItsSection)
{
    EXPECT_EQ(SetNdi(L"Diagnosis", L"Seiten.dll,Diagnose"), PGSP_OK);
    ExpectPressTold(1);

    EXPECT_EQ(SetNdi(L"DescText", L"7", In32), PGSP_OK);
    ExpectPressTold(2);
}

TEST_F(NdiNotification, TellsOnceOfAValueThatIsSetTwice)
{
    EXPECT_EQ(SetNdi(L"Ort", L"Hof"), PGSP_OK);
    ExpectPressTold(1);

    EXPECT_EQ(SetNdi(L"Ort", L"Hof"), PGSP_OK);

    EXPECT_FALSE(IsTold(press));
    EXPECT_FALSE(IsTold(all));
    EXPECT_EQ(workers.count(), 1U);
}

TEST_F(NdiNotification, TellsOnceOfALinkThatIsSetTwice)
{
    EXPECT_EQ(SetNdi(L"DescDefault", L"Texte.dll,8"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Diagnosis", L"Seiten.dll,Diagnose"), PGSP_OK);
    EXPECT_TRUE(IsTold(press));

    EXPECT_EQ(SetNdi(L"DescDefault", L"Texte.dll,8"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Diagnosis", L"Seiten.dll,Diagnose"), PGSP_OK);

    EXPECT_FALSE(IsTold(press));
    EXPECT_EQ(workers.count(), 2U);
}

TEST_F(NdiNotification, TellsNobodyOfAnUnchangedValue)
{
    EXPECT_EQ(SetNdi(L"ORT", L"HALLE"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescText", L"texte.dll,7"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescText", L"7"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,showpage"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(NdiNotification, TellsOfAChangeThatCouldNotBeSaved)
{
    const OpenFile inUse(roots.logDevice(L"Presse"));

    EXPECT_EQ(SetNdi(L"Ort", L"Hof"), PGSP_OK);

    ExpectPressTold();
}

TEST_F(NdiNotification, TellsNobodyOfASetThatFails)
{
    WriteBytes(roots.logDevice(L"broken"), "no XML");
    store.WriteDevice(L"bare", {});

    EXPECT_EQ(SetNdi(L"", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetNdi(L"Ort", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetNdi(L"Ort", L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetNdi(L"DescText", L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"gone", L"Ort", L"1", In64), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"broken", L"DescText", L"1", In64),
              PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"bare", L"Ort", L"1", In64), PGSP_ERR_CANT_SET_VALUE);

    ExpectNobodyTold();
}

TEST_F(NdiNotification, TellsOfARemovalFromEachPlace)
{
    EXPECT_EQ(DelNdi(L"Ort"), PGSP_OK);
    ExpectPressTold(1);

    EXPECT_EQ(DelNdi(L"PropSheet"), PGSP_OK);
    ExpectPressTold(2);

    EXPECT_EQ(DelNdi(L"Titel"), PGSP_OK);
    ExpectPressTold(3);
}

TEST_F(NdiNotification, TellsNobodyOfARemovalThatFails)
{
    const OpenFile inUse(roots.logDevice(L"Presse"));
    store.WriteDevice(L"bare", Ndi(XmlContent().Text(L"Ort", L"Halle")));

    EXPECT_EQ(DelNdi(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(DelNdi(L"DescText"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(DelNdi(L"Ort"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(L"bare", L"Ort", In64), PGSP_ERR_INVALID_FILE);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(L"gone", L"Ort", In64), PGSP_ERR_FILE_NOT_FOUND);

    ExpectNobodyTold();
}

TEST_F(NdiNotification, TellsOfDevicesWithCodedNamesByTheirNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Device());
        const NamedEvent event;
        Register(event, coded.name);

        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(coded.name, L"DescText", L"8", In64), PGSP_OK);
        EXPECT_TRUE(IsTold(event)) << ToUtf8(coded.name);

        EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(coded.name, L"Ort", In64), PGSP_OK);
        EXPECT_TRUE(IsTold(event)) << ToUtf8(coded.name);
    }
}

TEST_F(NdiNotification, TellsNobodyOfATemporaryDevice)
{
    const wchar_t* const temporary = L"PGSP_TEMP_LOG_DEVICE____001";
    store.WriteDevice(temporary, Device());

    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(temporary, L"Ort", L"Hof", In64), PGSP_OK);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(temporary, L"DescText", L"8", In64), PGSP_OK);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(temporary, L"Ort", In64), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(NdiNotification, TellsNobodyOfReads)
{
    EXPECT_EQ(Value(L"Ort"), L"Halle");
    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
    EXPECT_EQ(AllNdi().size(), 3U);

    ExpectNobodyTold();
}

} // namespace
} // namespace norvepa::test
