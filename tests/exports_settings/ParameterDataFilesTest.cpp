#include "ParameterDataScene.h"
#include "exports_device/Registrants.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

// What the file that holds the parameters may be.
class ParameterDataFiles : public ParameterDataScene
{
protected:
    // A name with which the path of our file, escaped and without extension, has this many characters.
    [[nodiscard]] std::wstring NameForPathOf(std::size_t length) const
    {
        return std::wstring(length - inData(L"data\\").size(), L'n');
    }

    void ExpectAllAnswerOf(const std::wstring& file, std::int32_t result, const wchar_t* answer) const
    {
        EXPECT_EQ(Value(L"data", nullptr, file.c_str(), L"Druck"), answer);
        EXPECT_EQ(Item(L"data", nullptr, file.c_str(), 0), answer);
        EXPECT_EQ(library.PGSP_SetParameterDataBL(nullptr, file.c_str(), L"Druck", L"7", nullptr), result);
        EXPECT_EQ(library.PGSP_DelParameterDataBL(nullptr, file.c_str(), L"Druck"), result);
    }
};

TEST_F(ParameterDataFiles, HaveToBeThere)
{
    ExpectAllAnswer(PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_FALSE(Exists(ourFile() + L".xml"));
}

TEST_F(ParameterDataFiles, HaveToBeDocuments)
{
    for (const std::string_view bytes :
         {"", "not even a document", "<ParameterData><Parameter></ParameterData>"})
    {
        WriteBytes(ourFile() + L".xml", bytes);

        ExpectAllAnswer(PGSP_ERR_CANT_LOAD_XML_FILE);

        EXPECT_EQ(OurBytes(), bytes);
    }
}

TEST_F(ParameterDataFiles, AreLoadedUpToTenMillionBytes)
{
    const auto fileOf = [](std::size_t size) {
        const std::string bytes = DataFile(XmlContent().Text(L"Druck", L"6 bar"));
        return bytes + std::string(size - bytes.size(), ' ');
    };
    WriteBytes(ourFile() + L".xml", fileOf(10'000'001));
    ExpectAllAnswer(PGSP_ERR_CANT_LOAD_XML_FILE);

    WriteBytes(ourFile() + L".xml", fileOf(10'000'000));
    EXPECT_EQ(OurItem(0), L"Druck=6 bar");
}

TEST_F(ParameterDataFiles, CanNotBeLoadedWhileSomebodyKeepsThemToHimself)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar"));
    {
        const OpenFile held(ourFile() + L".xml", 0);
        ExpectAllAnswer(PGSP_ERR_CANT_LOAD_XML_FILE);
    }
    EXPECT_EQ(OurValue(L"Druck"), L"6 bar");
}

// A change that can't be saved is no failure.
TEST_F(ParameterDataFiles, MayBeInUse)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar"));
    const OpenFile inUse(ourFile() + L".xml");

    ExpectSetDataChangesNothing(L"Druck", L"7 bar", PGSP_OK);
    ExpectDelDataChangesNothing(L"Druck", PGSP_OK);
    EXPECT_EQ(OurValue(L"Druck"), L"6 bar");
}

TEST_F(ParameterDataFiles, NeedCom)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar"));
    const std::string before = OurBytes();

    OnFreshThread([&] {
        ExpectAllAnswer(PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(OurBytes(), before);
}

TEST_F(ParameterDataFiles, HavePathsOf259CharactersAndNoMore)
{
    ExpectAllAnswerOf(NameForPathOf(260), PGSP_ERR_BUFFER_TOO_SHORT, L"(result 234)");
    ExpectAllAnswerOf(NameForPathOf(254) + L"#", PGSP_ERR_BUFFER_TOO_SHORT, L"(result 234)");
    ExpectAllAnswerOf(std::wstring(100'000, L'n'), PGSP_ERR_BUFFER_TOO_SHORT, L"(result 234)");
    ExpectAllAnswerOf(NameForPathOf(255), PGSP_ERR_FILE_NOT_FOUND, L"(result 8503)");
}

using ParameterDataNotification = WithRegistrants<ParameterDataScene>;

TEST_F(ParameterDataNotification, IsGivenToNobody)
{
    WriteOurs(XmlContent().Text(L"Druck", L"6 bar"));

    EXPECT_EQ(SetData(L"Druck", L"7 bar"), PGSP_OK);
    EXPECT_EQ(DelData(L"Druck"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(ParameterDataNotification, IsGivenToNobodyOfALogDeviceThatIsChangedThisWay)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"3")));

    EXPECT_EQ(library.PGSP_SetParameterDataBL(L"LogDevices", L"Presse", L"Stufe", L"4", L"int"), PGSP_OK);
    EXPECT_EQ(
        store.Saved(L"Presse"),
        MeaningOf(LogDeviceFile(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"4")))));
    EXPECT_EQ(library.PGSP_DelParameterDataBL(L"LogDevices", L"Presse", L"Stufe"), PGSP_OK);

    ExpectNobodyTold();
}

} // namespace
} // namespace norvepa::test
