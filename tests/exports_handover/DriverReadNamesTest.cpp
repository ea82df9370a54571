#include "DriverReadScene.h"
#include "exports_device/SetScene.h"

namespace norvepa::test
{
namespace
{

// Which file a name means.
using DriverReadNames = DriverReadScene;

TEST_F(DriverReadNames, AreCodedInTheirFilesNames)
{
    for (const CodedName& coded : CodedNames)
    {
        Write(Holding(coded.name), coded.fileName);

        EXPECT_EQ(Read(coded.name), Held(coded.name)) << ToUtf8(coded.name);
    }
}

TEST_F(DriverReadNames, AreNotReadAsCodes)
{
    Write(Holding(L"v"), L"Presse(nmbr)3");

    EXPECT_EQ(Read(L"Presse(nmbr)3"), Held(L"v"));
    EXPECT_EQ(ResultOf(L"Presse3"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

// Nothing of it is left alone: what stands ahead of a backslash is a name as well.
TEST_F(DriverReadNames, AreCodedOnBothSidesOfABackslash)
{
    Write(Holding(L"inner"), L"Halle(nmbr)1\\Presse(nmbr)2");

    EXPECT_EQ(Read(L"Halle#1\\Presse#2"), Held(L"inner"));
}

TEST_F(DriverReadNames, WithASlashMeanNoFolder)
{
    Write(Holding(L"inner"), L"Halle\\Presse");

    EXPECT_EQ(ResultOf(L"Halle/Presse"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(DriverReadNames, HaveNoExtension)
{
    Write(Holding(L"plain"), L"Presse");
    Write(Holding(L"twice"), L"Presse.xml");

    EXPECT_EQ(Read(L"Presse"), Held(L"plain"));
    EXPECT_EQ(Read(L"Presse.xml"), Held(L"twice"));
    EXPECT_EQ(ResultOf(L"Presse.xml.xml"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(DriverReadNames, MayHoldAnotherExtensionOrADot)
{
    Write(Holding(L"old"), L"Presse.xml.old");
    Write(Holding(L"dot"), L"Presse 1.5");

    EXPECT_EQ(Read(L"Presse.xml.old"), Held(L"old"));
    EXPECT_EQ(Read(L"Presse 1.5"), Held(L"dot"));
}

TEST_F(DriverReadNames, KeepALeadingStar)
{
    Write(Holding(L"star"), L"#2aPresse");
    Write(Holding(L"plain"), L"Presse");

    EXPECT_EQ(Read(L"*Presse"), Held(L"star"));
}

TEST_F(DriverReadNames, SplitNoSubdeviceOff)
{
    Write(Holding(L"v"), L"Presse");

    EXPECT_EQ(ResultOf(L"Presse\\Subdevices\\Achse"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(DriverReadNames, OfTemporaryDevicesAreNoOthers)
{
    Write(Holding(L"v"), L"PGSP_TEMP_LOG_DEVICE____000");

    EXPECT_EQ(Read(L"PGSP_TEMP_LOG_DEVICE____000"), Held(L"v"));
}

TEST_F(DriverReadNames, WhoseEscapedFormHas260CharactersAreTooLong)
{
    EXPECT_EQ(ResultOf(std::wstring(260, L'x')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(ResultOf(std::wstring(1000, L'x')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(ResultOf(std::wstring(254, L'x') + L"#"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(ResultOf(std::wstring(87, L'?')), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(DriverReadNames, OfAllElseThatHasNoFileAreNotFound)
{
    EXPECT_EQ(ResultOf(std::wstring(259, L'x')), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(ResultOf(std::wstring(253, L'x') + L"#"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(ResultOf(std::wstring(86, L'?')), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(ResultOf(L"a\"b"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(ResultOf(L"\\"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

} // namespace
} // namespace norvepa::test
