#include "store/NdiScene.h"

namespace norvepa::test
{
namespace
{

// Links are looked for among the children of the first section of the name, and nowhere else.
class NdiSection : public NdiScene
{
protected:
    // A log device with a first section of links and another one.
    [[nodiscard]] static std::string Device(const XmlContent& first, const XmlContent& second)
    {
        return LogDeviceFile(
            XmlContent().Element(L"UserInterface64", first).Element(L"UserInterface64", second));
    }

    [[nodiscard]] static XmlContent InGroup(const XmlContent& links)
    {
        return XmlContent().Element(L"Gruppe", links);
    }

    void ExpectNothingToDelete(const std::string& device) const
    {
        GivenFile(device);

        EXPECT_EQ(DeleteLink(L"Seite"), PGSP_ERR_PARAM_NOT_FOUND);

        EXPECT_EQ(Bytes(), device);
        EXPECT_FALSE(Exists(path() + L"(temp).xml"));
    }

    const XmlContent page = XmlContent().ParameterAssemblyLink({.name = L"Seite", .assembly = L"A.dll"});
    const XmlContent resource = XmlContent().Resource({.name = L"Seite", .assembly = L"A.dll"});
};

TEST_F(NdiSection, GetsALinkThatStandsInASecondOneOnly)
{
    GivenFile(Device({}, resource));

    EXPECT_EQ(SetLink({.assembly = L"A.dll"}), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(Device(resource, resource)));
}

TEST_F(NdiSection, GetsALinkThatStandsInAGroupWithinItOnly)
{
    GivenFile(DeviceWithLinks(InGroup(resource)));

    EXPECT_EQ(SetLink({.assembly = L"A.dll"}), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithLinks(InGroup(resource).Raw(resource.utf8()))));
}

TEST_F(NdiSection, LosesNoLinkThatStandsInASecondOneOnly)
{
    ExpectNothingToDelete(Device({}, page));
    ExpectNothingToDelete(Device(resource, page));
}

TEST_F(NdiSection, LosesNoLinkThatStandsInAGroupWithinItOnly)
{
    ExpectNothingToDelete(DeviceWithLinks(InGroup(page)));
}

TEST_F(NdiSection, LosesItsOwnLinkAheadOfThatOfASecondOne)
{
    GivenFile(Device(page, page));

    EXPECT_EQ(DeleteLink(L"Seite"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(path() + L"(temp).xml"), MeaningOf(Device({}, page)));
}

} // namespace
} // namespace norvepa::test
