#include "LifeScene.h"
#include "support/FreshThread.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const std::wstring NoFolder = L"(result 8517)";

class TempFromTemplate : public LifeScene
{
protected:
    TempFromTemplate() { WriteTemplate(L"MPI", WithNdi({})); }

    // Content of a template, or of what is made of it, with these entries in its section Ndi.
    [[nodiscard]] static XmlContent WithNdi(const XmlContent& entries)
    {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1"))
            .Element(L"Ndi", XmlContent().Bool(L"hidden", L"true").Raw(entries.utf8()));
    }

    // What is made of that template when it is called like this.
    [[nodiscard]] static std::string MadeOf(std::wstring_view name)
    {
        return MeaningOf(LogDeviceFile(WithNdi(XmlContent().Text(L"DefLogDevice", name))));
    }

    [[nodiscard]] std::int32_t Make(OutputBuffer& made, const wchar_t* name = L"MPI") const
    {
        return library.LogDeviceCreateTempFromDefBL(name, made.data(), &made.length);
    }
};

TEST_F(TempFromTemplate, IsTheTemplateWithTheTemplatesName)
{
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));

    EXPECT_EQ(store.Saved(TemporaryName(0)), MadeOf(L"MPI"));
    EXPECT_THAT(Files(), ElementsAre(TemporaryName(0) + L".xml"));
    EXPECT_EQ(ReadBytes(roots.deviceTemplate(L"MPI")), LogDeviceFile(WithNdi({})));
}

TEST_F(TempFromTemplate, HoldsTheTemplatesNameAsItWasGiven)
{
    const std::wstring whole = std::wstring(TemplatePrefix) + L"MPI";

    ASSERT_EQ(MakeTemporaryFromTemplate(L"mpi"), TemporaryName(0));
    ASSERT_EQ(MakeTemporaryFromTemplate(whole), TemporaryName(1));

    EXPECT_EQ(store.Saved(TemporaryName(0)), MadeOf(L"mpi"));
    EXPECT_EQ(store.Saved(TemporaryName(1)), MadeOf(whole));
}

TEST_F(TempFromTemplate, HoldsTheTemplatesNameInTheCataloguesType)
{
    store.WriteBoard(Catalogue().Parameter(L"DefLogDevice", {{L"type", L"int"}}));
    WriteTemplate(L"17", WithNdi({}));

    ASSERT_EQ(MakeTemporaryFromTemplate(L"17"), TemporaryName(0));

    EXPECT_EQ(store.Saved(TemporaryName(0)),
              MeaningOf(LogDeviceFile(WithNdi(XmlContent().Int(L"DefLogDevice", L"17")))));
}

TEST_F(TempFromTemplate, ReplacesTheNameThatATemplateHolds)
{
    WriteTemplate(L"MPI", WithNdi(XmlContent().Text(L"DefLogDevice", L"another")));

    ASSERT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));

    EXPECT_EQ(store.Saved(TemporaryName(0)), MadeOf(L"MPI"));
}

TEST_F(TempFromTemplate, LooksForThePrefixAnywhereInTheName)
{
    const std::wstring name = L"alt Automation-OnlineAccess-LDT-MPI";
    WriteBytes(roots.program() + L"\\meta\\DefaultLogDevices\\" + name + L".xml", "anywhere");
    WriteBytes(roots.deviceTemplate(name), "in front");

    EXPECT_EQ(MakeTemporaryFromTemplate(name), TemporaryName(0));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), "anywhere");
}

TEST_F(TempFromTemplate, PutsThePrefixInFrontOfOneInAnotherCase)
{
    EXPECT_EQ(MakeTemporaryFromTemplate(L"automation-onlineaccess-ldt-MPI"), NoNumber);

    WriteBytes(roots.deviceTemplate(L"automation-onlineaccess-ldt-MPI"), "twice");
    EXPECT_EQ(MakeTemporaryFromTemplate(L"automation-onlineaccess-ldt-MPI"), TemporaryName(0));
    EXPECT_EQ(store.Bytes(TemporaryName(0)), "twice");
}

TEST_F(TempFromTemplate, IsMadeWhereTheNameCanNotBeSet)
{
    WriteTemplate(L"ohne Ndi", XmlContent().Element(L"LocalSettings", XmlContent()));
    WriteBytes(roots.deviceTemplate(L"kein XML"), "no XML");
    WriteTemplate(L"#3cneu#3e", WithNdi({}));

    EXPECT_EQ(MakeTemporaryFromTemplate(L"ohne Ndi"), TemporaryName(0));
    EXPECT_EQ(MakeTemporaryFromTemplate(L"kein XML"), TemporaryName(1));
    EXPECT_EQ(MakeTemporaryFromTemplate(L"<neu>"), TemporaryName(2));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), ReadBytes(roots.deviceTemplate(L"ohne Ndi")));
    EXPECT_EQ(store.Bytes(TemporaryName(1)), "no XML");
    EXPECT_EQ(store.Bytes(TemporaryName(2)), ReadBytes(roots.deviceTemplate(L"#3cneu#3e")));
}

TEST_F(TempFromTemplate, HoldsTheNameAlsoOnAThreadWithoutCom)
{
    OnFreshThread([&] {
        EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(store.Saved(TemporaryName(0)), MadeOf(L"MPI"));
}

TEST_F(TempFromTemplate, TakesTheLowestNumberThatIsFree)
{
    TakeNumbers(0, 3);

    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(3));
    ASSERT_EQ(library.LogDeviceDelTempBL(TemporaryName(1).c_str()), PGSP_OK);
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(1));
    EXPECT_EQ(MakeTemporary(TemporaryName(1)), TemporaryName(4));
}

TEST_F(TempFromTemplate, NeedsANumber)
{
    TakeNumbers(0, TemporaryNumbers);
    const Names before = Files();
    OutputBuffer made(TemporaryNameRoom);

    EXPECT_EQ(Make(made), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_EQ(Files(), before);
    EXPECT_EQ(store.Bytes(TemporaryName(254)), "taken");
    EXPECT_TRUE(made.isUntouched());
    EXPECT_EQ(made.length, TemporaryNameRoom);
}

TEST_F(TempFromTemplate, NeedsATemplateAndMakesTheFolderAllTheSame)
{
    std::filesystem::remove(store.deviceFolder());

    EXPECT_EQ(MakeTemporaryFromTemplate(L"gone"), NoNumber);

    EXPECT_TRUE(Exists(store.deviceFolder()));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(TempFromTemplate, MakesTheFolderThatIsMissingButNoneAboveIt)
{
    std::filesystem::remove(store.deviceFolder());
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));
    EXPECT_THAT(Files(), ElementsAre(TemporaryName(0) + L".xml"));

    std::filesystem::remove_all(roots.data() + L"\\data");
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), NoNumber);
    EXPECT_FALSE(Exists(roots.data() + L"\\data"));
}

TEST_F(TempFromTemplate, NeedsTheDataFolderAndMakesNothingBelowTheCurrentOne)
{
    const CurrentFolder current;
    MakeFolders(L"data");
    store.TakeDataFolderAway();

    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), NoFolder);

    EXPECT_FALSE(Exists(L"data\\LogDevices"));
}

TEST_F(TempFromTemplate, NeedsTheProgramFolderAndMakesNoFolderWithoutIt)
{
    std::filesystem::remove(store.deviceFolder());
    store.TakeProgramFolderAway();

    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), NoFolder);

    EXPECT_FALSE(Exists(store.deviceFolder()));
}

TEST_F(TempFromTemplate, EscapesTheTemplatesName)
{
    for (const CodedName& coded : CodedNames)
    {
        const std::string bytes = ToUtf8(coded.fileName);
        WriteBytes(roots.deviceTemplate(coded.fileName), bytes);

        const std::wstring made = MakeTemporaryFromTemplate(coded.name);

        EXPECT_EQ(store.Bytes(made), bytes);
    }
}

TEST_F(TempFromTemplate, FindsNoTemplateOfTooLongAPath)
{
    EXPECT_EQ(MakeTemporaryFromTemplate(std::wstring(300, L't')), NoNumber);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(TempFromTemplate, NeedsATemplateThatNobodyKeepsToHimself)
{
    const HeldElsewhere held(roots, roots.deviceTemplate(L"MPI"), Sharing::Nothing);

    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), NoNumber);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(TempFromTemplate, NeedsRoomForTheNameAndItsTerminator)
{
    OutputBuffer made(28);

    EXPECT_EQ(Make(made), PGSP_OK);

    EXPECT_EQ(made.text(), TemporaryName(0));
    EXPECT_EQ(made.length, 27U);
}

TEST_F(TempFromTemplate, IsLostToABufferThatIsTooShort)
{
    unsigned number = 0;
    for (const std::uint32_t capacity : {27U, 1U, 0U})
    {
        OutputBuffer made(capacity);

        EXPECT_EQ(Make(made), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_EQ(made.length, 27U) << capacity;
        EXPECT_TRUE(made.isUntouched()) << capacity;
        EXPECT_EQ(store.Saved(TemporaryName(number++)), MadeOf(L"MPI")) << capacity;
    }
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(number));
}

} // namespace
} // namespace norvepa::test
