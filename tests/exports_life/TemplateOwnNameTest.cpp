#include "LifeScene.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// A template that comes with a DefLogDevice of its own.
class TemplateOwnName : public LifeScene
{
protected:
    [[nodiscard]] static XmlContent WithNdi(const XmlContent& entries)
    {
        return XmlContent().Element(L"Ndi", entries);
    }

    void WriteTemplateWith(const XmlContent& entries) const { WriteTemplate(L"MPI", WithNdi(entries)); }

    // What a temporary log device of that template says in its section Ndi.
    void ExpectMade(const XmlContent& entries) const
    {
        EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));

        EXPECT_EQ(store.Saved(TemporaryName(0)), MeaningOf(LogDeviceFile(WithNdi(entries))));
        EXPECT_THAT(Files(), ElementsAre(TemporaryName(0) + L".xml"));
    }
};

TEST_F(TemplateOwnName, IsReplacedInAnyCaseAndKeepsItsSpelling)
{
    WriteTemplateWith(XmlContent().Text(L"DEFLOGDEVICE", L"another").Bool(L"hidden", L"true"));

    ExpectMade(XmlContent().Text(L"DEFLOGDEVICE", L"MPI").Bool(L"hidden", L"true"));
}

TEST_F(TemplateOwnName, ThatDiffersInCaseAloneStays)
{
    WriteTemplateWith(XmlContent().Text(L"DefLogDevice", L"mpi"));

    ExpectMade(XmlContent().Text(L"DefLogDevice", L"mpi"));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), ReadBytes(roots.deviceTemplate(L"MPI")));
}

TEST_F(TemplateOwnName, OfAnotherTypeStaysAheadOfASecondOne)
{
    WriteTemplateWith(XmlContent().Int(L"DefLogDevice", L"17").Bool(L"DefLogDevice", L"true"));

    ExpectMade(XmlContent()
                   .Int(L"DefLogDevice", L"17")
                   .Bool(L"DefLogDevice", L"true")
                   .Text(L"DefLogDevice", L"MPI"));
}

TEST_F(TemplateOwnName, StaysInALogDeviceThatIsNotTemporary)
{
    WriteTemplateWith(XmlContent().Text(L"DEFLOGDEVICE", L"another"));

    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"Presse"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), ReadBytes(roots.deviceTemplate(L"MPI")));
}

} // namespace
} // namespace norvepa::test
