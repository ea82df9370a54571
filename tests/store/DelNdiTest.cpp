#include "store/CommitScene.h"
#include "store/NdiScene.h"

namespace norvepa::test
{
namespace
{

// What is removed is gone in the "(temp)" form only.
class DelNdiTest : public NdiScene
{
protected:
    [[nodiscard]] std::wstring temporary() const { return path() + L"(temp).xml"; }

    void ExpectNotThere(const std::string& device, const wchar_t* parameter = L"Seite", int wide = In64) const
    {
        GivenFile(device);

        EXPECT_EQ(DeleteLink(parameter, wide), PGSP_ERR_PARAM_NOT_FOUND);

        EXPECT_EQ(Bytes(), device);
        EXPECT_FALSE(Exists(temporary()));
    }
};

TEST_F(DelNdiTest, TheLinkIsGoneInTheTemporaryFileAlone)
{
    const auto device = [](const XmlContent& page) {
        return DeviceWithLinks(XmlContent()
                                   .ParameterAssemblyLink({.name = L"Vor", .function = L"V"})
                                   .Raw(page.utf8())
                                   .ParameterAssemblyLink({.name = L"Nach", .function = L"N"}));
    };
    GivenFile(device(XmlContent().ParameterAssemblyLink({.name = L"Seite", .function = L"F"})));
    const std::string before = Bytes();

    EXPECT_EQ(DeleteLink(L"Seite"), PGSP_OK);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(device({})));
}

TEST_F(DelNdiTest, WideChoosesTheSection)
{
    const XmlContent page = XmlContent().ParameterAssemblyLink({.name = L"Seite"});
    const auto device = [](const XmlContent& in32, const XmlContent& in64) {
        return LogDeviceFile(XmlContent().Element(L"UserInterface", in32).Element(L"UserInterface64", in64));
    };
    GivenFile(device(page, page));

    EXPECT_EQ(DeleteLink(L"Seite", In64), PGSP_OK);
    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(device(page, {})));
    EXPECT_EQ(DeleteLink(L"Seite", In32), PGSP_OK);
    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(device({}, page)));
    EXPECT_EQ(DeleteLink(L"Seite", -1), PGSP_OK);
    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(device({}, page)));
}

TEST_F(DelNdiTest, TheNameIsComparedWithoutRegardToCase)
{
    GivenFile(DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"\u00DCbersicht"})));

    EXPECT_EQ(DeleteLink(L"\u00FCBERSICHT"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWithLinks({})));
}

TEST_F(DelNdiTest, OnlyTheFirstLinkOfTheNameGoes)
{
    const XmlContent second = XmlContent().ParameterAssemblyLink({.name = L"SEITE", .function = L"G"});
    GivenFile(DeviceWithLinks(
        XmlContent().ParameterAssemblyLink({.name = L"Seite", .function = L"F"}).Raw(second.utf8())));

    EXPECT_EQ(DeleteLink(L"seite"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWithLinks(second)));
}

TEST_F(DelNdiTest, AResourceOfTheNameIsNotRemoved)
{
    const XmlContent resource = XmlContent().Resource({.name = L"Seite"});
    ExpectNotThere(DeviceWithLinks(resource));

    GivenFile(DeviceWithLinks(XmlContent(resource).ParameterAssemblyLink({.name = L"Seite"})));
    EXPECT_EQ(DeleteLink(L"Seite"), PGSP_OK);
    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWithLinks(resource)));
}

TEST_F(DelNdiTest, AnEntryOfTheNameIsNotRemoved)
{
    ExpectNotThere(
        DeviceWithLinks(XmlContent().Text(L"Seite", L"1").Entry(L"parameterassemblylink", L"Seite", L"1")));
}

TEST_F(DelNdiTest, WithoutTheSectionThereIsNothingToRemove)
{
    const XmlContent page = XmlContent().ParameterAssemblyLink({.name = L"Seite"});

    ExpectNotThere(LogDeviceFile({}));
    ExpectNotThere(LogDeviceFile(XmlContent().Element(L"Ndi", page)));
    ExpectNotThere(LogDeviceFile(XmlContent().Element(L"userinterface64", page)));
    ExpectNotThere(DeviceWithLinks(page), L"Seite", In32);
}

TEST_F(DelNdiTest, WithoutTheLinkThereIsNothingToRemove)
{
    ExpectNotThere(DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite"})), L"Seiten");
    ExpectNotThere(DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite"})), L"");
    ExpectNotThere(DeviceWithLinks(
        XmlContent().Element(L"Group", XmlContent().ParameterAssemblyLink({.name = L"Seite"}))));
}

TEST_F(DelNdiTest, WhatIsNotThereLeavesALeftoverAlone)
{
    GivenFile(DeviceWithLinks({}));
    WriteBytes(temporary(), "left over");

    EXPECT_EQ(DeleteLink(L"Seite"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(ReadBytes(temporary()), "left over");
}

TEST_F(DelNdiTest, ALeftoverIsReplaced)
{
    GivenFile(DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite"})));
    WriteBytes(temporary(), "left over" + std::string(10'000, ' '));

    EXPECT_EQ(DeleteLink(L"Seite"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWithLinks({})));
}

// Unlike in the deletion of a value the leftover is looked for by its own name, and no other's is met.
TEST_F(DelNdiTest, ALeftoverOfANameWithCodesIsReplacedAndNoOther)
{
    WriteBytes(folder() / L"Presse(nmbr)3.xml",
               DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite"})));
    WriteBytes(folder() / L"Presse(nmbr)3(temp).xml", "left over" + std::string(10'000, ' '));
    WriteBytes(folder() / L"50#25.xml",
               DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite"})));
    WriteBytes(folder() / L"50(nmbr)25(temp).xml", "of another name");

    EXPECT_EQ(NorvXMLDelNdi((folder() / L"Presse#3").c_str(), L"Seite", In64), PGSP_OK);
    EXPECT_EQ(NorvXMLDelNdi((folder() / L"50%").c_str(), L"Seite", In64), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(folder() / L"Presse(nmbr)3(temp).xml"), MeaningOf(DeviceWithLinks({})));
    EXPECT_EQ(MeaningOfFile(folder() / L"50#25(temp).xml"), MeaningOf(DeviceWithLinks({})));
    EXPECT_EQ(ReadBytes(folder() / L"50(nmbr)25(temp).xml"), "of another name");
}

TEST_F(DelNdiTest, ANullNameIsRefused)
{
    GivenFile(DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite"})));

    EXPECT_EQ(DeleteLink(nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_FALSE(Exists(temporary()));
}

TEST_F(DelNdiTest, ThereAreNoRulesForTheNameOfWhatIsRemoved)
{
    GivenFile(DeviceWithLinks(XmlContent().ParameterAssemblyLink({.name = L"<a b>"})));

    EXPECT_EQ(DeleteLink(L"<a b>"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWithLinks({})));
}

class DelNdiCommit : public CommitScene
{
};

TEST_F(DelNdiCommit, PutsTheTemporaryFileInPlace)
{
    const auto device = [](const XmlContent& links) {
        return LogDeviceFile(XmlContent()
                                 .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
                                 .Element(L"UserInterface64", links));
    };
    WriteBytes(real(), device(XmlContent().ParameterAssemblyLink({.name = L"Seite", .function = L"F"})));
    ASSERT_EQ(NorvXMLDelNdi((folder() + L"\\Name").c_str(), L"Seite", In64), PGSP_OK);

    EXPECT_EQ(Commit(LogDeviceSchema), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(real()), MeaningOf(device({})));
    EXPECT_FALSE(Exists(temporary()));
}

} // namespace
} // namespace norvepa::test
