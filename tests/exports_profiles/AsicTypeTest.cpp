#include "exports_device/SetScene.h"
#include "support/Answers.h"

namespace norvepa::test
{
namespace
{

XmlContent Asic(std::wstring_view section, std::wstring_view name)
{
    return XmlContent().Element(section, XmlContent().Text(L"Asic_Type", name));
}

class AsicType : public SetScene
{
protected:
    // The log device "Presse" of this board, and the board with an ASIC among its attributes.
    void WriteBoth(const std::wstring& deviceId, const std::wstring& board, std::wstring_view asic) const
    {
        store.WriteDevice(L"Presse", {}, deviceId);
        WriteBoard(board, Asic(L"BoardAttributes", asic));
    }

    void WriteBoard(const std::wstring& board, const XmlContent& content) const
    {
        WriteBytes(roots.board(board), BoardFile(content, board));
    }

    [[nodiscard]] std::int32_t Ask(OutputBuffer& asic) const
    {
        return library.LogDeviceGetAsicTypeBL(L"Presse", asic.data(), &asic.length);
    }

    [[nodiscard]] std::wstring Text(const wchar_t* device = L"Presse") const
    {
        return TextOf([&](wchar_t* asic, std::uint32_t* length) {
            return library.LogDeviceGetAsicTypeBL(device, asic, length);
        });
    }
};

TEST_F(AsicType, IsWhatTheBoardSaysAmongItsAttributes)
{
    WriteBoth(L"AFK110", L"AFK110", L"ASPC 2");

    EXPECT_EQ(Text(), L"ASPC 2");
}

TEST_F(AsicType, IsWhatTheBoardSaysOfItsInstallationFirst)
{
    store.WriteDevice(L"Presse", {});
    WriteBoard(L"AFK110", Asic(L"BoardAttributes", L"attributes").Raw(Asic(L"Install", L"install").utf8()));

    EXPECT_EQ(Text(), L"install");
}

TEST_F(AsicType, IsOfTheBoardWithoutItsStar)
{
    WriteBoth(L"*AFK110", L"AFK110", L"ASPC 2");

    EXPECT_EQ(Text(), L"ASPC 2");
}

TEST_F(AsicType, IsOfTheBoardWithoutOneStarAndNoMore)
{
    WriteBoth(L"**AFK110", L"AFK110", L"ASPC 2");
    EXPECT_EQ(Text(), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    WriteBoard(L"#2aAFK110", Asic(L"Install", L"with a star"));
    EXPECT_EQ(Text(), L"with a star");
}

// The prefix is put in front of whatever the log device names.
TEST_F(AsicType, IsOfNoBoardThatIsNamedWithThePrefix)
{
    const std::wstring whole = L"Automation-OnlineAccess-BT-AFK110";
    WriteBoth(whole, L"AFK110", L"ASPC 2");
    EXPECT_EQ(Text(), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    WriteBoard(whole, Asic(L"Install", L"of the one with two"));
    EXPECT_EQ(Text(), L"of the one with two");
}

TEST_F(AsicType, IsTheBoardsWhateverTheParameterDeviceOfAKqza010)
{
    for (const wchar_t* const deviceId : {L"*KQZA010", L"KQZA010", L"*kqza010"})
    {
        SCOPED_TRACE(ToUtf8(deviceId));
        WriteBoard(L"KQZA010", Asic(L"BoardAttributes", L"SPC"));
        store.WriteDevice(
            L"Presse", XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Device", L"255")), deviceId);
        OutputBuffer asic(300);

        EXPECT_EQ(Ask(asic), PGSP_OK);

        EXPECT_EQ(asic.text(), L"SPC");
        EXPECT_EQ(asic.length, 3U);
    }
}

TEST_F(AsicType, IsOfABoardThatTheLogDeviceNamesAsAParameter)
{
    WriteBytes(roots.logDevice(L"Presse"),
               XmlFile(L"LogDevice", {},
                       XmlContent().Element(L"LocalSettings", XmlContent().Text(L"DeviceID", L"*AFK110"))));
    WriteBoard(L"AFK110", Asic(L"Install", L"ASPC 2"));

    EXPECT_EQ(Text(), L"ASPC 2");
}

TEST_F(AsicType, IsNotFoundWhereTheBoardDoesNotSay)
{
    store.WriteDevice(L"Presse", {});
    WriteBoard(L"AFK110", Asic(L"Constraints", L"ASPC 2"));

    EXPECT_EQ(Text(), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(AsicType, TellsAMissingFileAsOneThatCannotBeLoaded)
{
    store.WriteDevice(L"Presse", {});

    EXPECT_EQ(Text(L"gone"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Text(), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(AsicType, IsNotFoundForALogDeviceThatNamesNoBoard)
{
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"CP_TYPE", OurProtocol}}, {}));
    WriteBoard(L"", Asic(L"Install", L"ASPC 2"));

    EXPECT_EQ(Text(), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(AsicType, NeedsBothFolders)
{
    WriteBoth(L"AFK110", L"AFK110", L"ASPC 2");

    store.TakeProgramFolderAway();
    EXPECT_EQ(Text(), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
    EXPECT_EQ(Text(L"gone"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    store.TakeDataFolderAway();
    EXPECT_EQ(Text(L"gone"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
}

TEST_F(AsicType, NeedsABufferOfOneCharacterMore)
{
    WriteBoth(L"AFK110", L"AFK110", L"ASPC 2");
    OutputBuffer exact(6);
    OutputBuffer oneMore(7);

    EXPECT_EQ(Ask(exact), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(oneMore), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 6U);
    EXPECT_EQ(oneMore.text(), L"ASPC 2");
    EXPECT_EQ(oneMore.length, 6U);
}

// What doesn't fit isn't there, but for the last place.
TEST_F(AsicType, IsNotFoundWhereItDoesNotFitAndIsNotAmongTheAttributes)
{
    store.WriteDevice(L"Presse", {});
    for (const std::string& board :
         {XmlFile(L"Device", {{L"Asic_Type", L"ASPC 2"}}, {}), BoardFile(Asic(L"Install", L"ASPC 2"))})
    {
        WriteBytes(roots.board(L"AFK110"), board);
        for (const std::uint32_t capacity : {0U, 6U})
        {
            OutputBuffer asic(capacity);

            EXPECT_EQ(Ask(asic), PGSP_ERR_PARAM_NOT_FOUND);

            EXPECT_TRUE(asic.isUntouched());
            EXPECT_EQ(asic.length, capacity);
        }
        EXPECT_EQ(Text(), L"ASPC 2");
    }
}

TEST_F(AsicType, IsTheFirstThatFits)
{
    store.WriteDevice(L"Presse", {});
    WriteBytes(roots.board(L"AFK110"),
               XmlFile(L"Device", {{L"Asic_Type", L"a long one"}},
                       Asic(L"Install", L"too long").Raw(Asic(L"BoardAttributes", L"short").utf8())));
    OutputBuffer asic(6);

    EXPECT_EQ(Ask(asic), PGSP_OK);

    EXPECT_EQ(asic.text(), L"short");
    EXPECT_EQ(asic.length, 5U);
}

TEST_F(AsicType, TellsTheLengthThatALengthOfZeroAsksFor)
{
    WriteBoth(L"AFK110", L"AFK110", L"ASPC 2");
    OutputBuffer asic(0);

    EXPECT_EQ(Ask(asic), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(asic.isUntouched());
    EXPECT_EQ(asic.length, 6U);
}

TEST_F(AsicType, IsRefusedWithoutALogDeviceOrAnOutput)
{
    WriteBoth(L"AFK110", L"AFK110", L"ASPC 2");
    OutputBuffer asic(300);
    const struct
    {
        const wchar_t* device;
        wchar_t* asic;
        std::uint32_t* length;
    } refused[] = {
        {nullptr, asic.data(), &asic.length},
        {L"", asic.data(), &asic.length},
        {L"Presse", nullptr, &asic.length},
        {L"Presse", asic.data(), nullptr},
    };

    for (const auto& [device, buffer, length] : refused)
    {
        EXPECT_EQ(library.LogDeviceGetAsicTypeBL(device, buffer, length), PGSP_ERR_INVALID_PARAMETERS);
    }

    EXPECT_TRUE(asic.isUntouched());
    EXPECT_EQ(asic.length, 300U);
}

} // namespace
} // namespace norvepa::test
