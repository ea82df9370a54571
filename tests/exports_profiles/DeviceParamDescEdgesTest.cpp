#include "DeviceParamDescScene.h"
#include "support/ImportHook.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

DWORD WINAPI DenyAttributes(const wchar_t*)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_FILE_ATTRIBUTES;
}

using DeviceParamDescEdges = DeviceParamDescScene;

TEST_F(DeviceParamDescEdges, FillABufferOfOneCharacterMore)
{
    WriteBoardsWord(L"board");
    OutputBuffer text(6);

    EXPECT_EQ(Ask(L"Takt", L"default", text), PGSP_OK);

    EXPECT_EQ(text.text(), L"board");
    EXPECT_EQ(text.length, 5U);
}

TEST_F(DeviceParamDescEdges, PassOverABoardsWordThatDoesNotFit)
{
    WriteBoardsWord(L"board");
    WriteProtocolsWord(L"pt");
    OutputBuffer text(5);

    EXPECT_EQ(Ask(L"Takt", L"default", text), PGSP_OK);

    EXPECT_EQ(text.text(), L"pt");
    EXPECT_EQ(text.length, 2U);
}

// Not the length that the board's word has left behind, be it more or less.
TEST_F(DeviceParamDescEdges, OfferTheProtocolTheCallersCapacity)
{
    WriteBoardsWord(L"the longest word of all");
    WriteProtocolsWord(L"a long word");
    OutputBuffer text(8);

    EXPECT_EQ(Ask(L"Takt", L"default", text), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 11U);
}

TEST_F(DeviceParamDescEdges, OfferAProtocolThatFillsTheBufferItsCapacityToo)
{
    WriteBoardsWord(L"12345");
    WriteProtocolsWord(L"1234");
    OutputBuffer text(5);

    EXPECT_EQ(Ask(L"Takt", L"default", text), PGSP_OK);

    EXPECT_EQ(text.text(), L"1234");
    EXPECT_EQ(text.length, 4U);
}

TEST_F(DeviceParamDescEdges, TellTheLengthOfTheProtocolsWord)
{
    WriteProtocolsWord(L"protocol");
    for (const std::uint32_t capacity : {1U, 8U})
    {
        OutputBuffer text(capacity);

        EXPECT_EQ(Ask(L"Takt", L"default", text), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_TRUE(text.isUntouched());
        EXPECT_EQ(text.length, 8U);
    }
}

TEST_F(DeviceParamDescEdges, TellTheLengthOfAValuesDescription)
{
    WriteDescribedValue(L"of the value");
    OutputBuffer exact(12);
    OutputBuffer oneMore(13);

    EXPECT_EQ(Ask(L"Takt\\1", L"default", exact), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Takt\\1", L"default", oneMore), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 12U);
    EXPECT_EQ(oneMore.text(), L"of the value");
    EXPECT_EQ(oneMore.length, 12U);
}

// The board's word doesn't fit, and what comes behind it fails: nothing of the board is told.
TEST_F(DeviceParamDescEdges, LeaveTheCallersLengthWhereTheProtocolHasNoWord)
{
    WriteBoardsWord(L"board");
    store.WriteProtocol({});
    OutputBuffer text(5);

    EXPECT_EQ(Ask(L"Takt", L"default", text), PGSP_ERR_PARAM_DESC_NOT_FOUND);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 5U);
}

TEST_F(DeviceParamDescEdges, OfALogDeviceThatIsNotThereHaveACodeOfTheirOwn)
{
    WriteBoardsWord(L"board");

    EXPECT_EQ(Text(L"Takt", L"default", L"gone"), Failed(PGSP_ERR_LOG_DEVICE_NOT_EXISTS));
    EXPECT_EQ(Text(L"Takt\\1", L"default", L"gone"), Failed(PGSP_ERR_LOG_DEVICE_NOT_EXISTS));
}

TEST_F(DeviceParamDescEdges, OfALogDeviceWithoutTheRightToReadItAreDenied)
{
    WriteBoardsWord(L"board");
    const ImportHook denied("GetFileAttributesW", DenyAttributes, GetModuleHandleW(L"msvcrt.dll"));

    EXPECT_EQ(Text(L"Takt", L"default"), Failed(PGSP_ERR_ACCESS_DENIED));
}

TEST_F(DeviceParamDescEdges, OfALogDeviceThatIsReadOnlyAreNotDenied)
{
    WriteBoardsWord(L"board");
    SetFileAttributesW(roots.logDevice(L"Presse").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Text(L"Takt", L"default"), L"board");

    SetFileAttributesW(roots.logDevice(L"Presse").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DeviceParamDescEdges, OfALogDeviceThatIsNoXmlAreNotFoundByEitherName)
{
    WriteBoardsWord(L"board");
    WriteBytes(roots.logDevice(L"Presse"), "no XML");

    EXPECT_EQ(Text(L"Takt", L"default"), Failed(PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND));
}

// Only a log device's absence has its code replaced, and only a word's.
TEST_F(DeviceParamDescEdges, PassOnWhateverElseSpeaksAgainstALogDevice)
{
    Write(XmlContent().Element(L"Ndi", XmlContent().Subdevice(L"Achse", {})));

    EXPECT_EQ(Text(L"Takt", L"default", std::wstring(260, L'n')), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(Text(L"Takt", L"default", L"Presse\\subdevices\\Band"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"Takt", L"default", L"gone\\subdevices\\Achse"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Text(L"Takt", L"default", L"Presse\\subdevices\\Achse"),
              Failed(PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND));
}

TEST_F(DeviceParamDescEdges, AreThoseOfALogDeviceWithAnyName)
{
    WriteBoardsWord(L"board");
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, {});

        EXPECT_EQ(Text(L"Takt", L"default", coded.name), L"board") << ToUtf8(coded.name);
    }
}

TEST_F(DeviceParamDescEdges, NeedBothFolders)
{
    WriteBoardsWord(L"board");
    WriteDescribedValue(L"of the value");

    store.TakeProgramFolderAway();
    EXPECT_EQ(Text(L"Takt", L"default"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
    EXPECT_EQ(Text(L"Takt\\1", L"default"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
    EXPECT_EQ(Text(L"Takt", L"default", L"gone"), Failed(PGSP_ERR_LOG_DEVICE_NOT_EXISTS));

    store.TakeDataFolderAway();
    EXPECT_EQ(Text(L"Takt", L"default"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
    EXPECT_EQ(Text(L"Takt", L"default", L"gone"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
}

TEST_F(DeviceParamDescEdges, AreRefusedWithoutANameOrAnOutput)
{
    WriteBoardsWord(L"board");
    OutputBuffer text(300);
    std::uint32_t none = 0;
    const struct
    {
        const wchar_t* device;
        const wchar_t* parameter;
        const wchar_t* word;
        wchar_t* text;
        std::uint32_t* length;
    } refused[] = {
        {nullptr, L"Takt", L"default", text.data(), &text.length},
        {L"", L"Takt", L"default", text.data(), &text.length},
        {L"Presse", nullptr, L"default", text.data(), &text.length},
        {L"Presse", L"", L"default", text.data(), &text.length},
        {L"Presse", L"Takt", nullptr, text.data(), &text.length},
        {L"Presse", L"Takt", L"", text.data(), &text.length},
        {L"Presse", L"Takt\\1", L"", text.data(), &text.length},
        {L"Presse", L"Takt", L"default", nullptr, &text.length},
        {L"Presse", L"Takt", L"default", text.data(), nullptr},
        {L"Presse", L"Takt", L"default", text.data(), &none},
        {L"gone", L"", L"default", text.data(), &text.length},
    };

    for (const auto& [device, parameter, word, buffer, length] : refused)
    {
        EXPECT_EQ(library.LogDeviceGetParamDescBL(device, parameter, word, buffer, length),
                  PGSP_ERR_INVALID_PARAMETERS);
    }

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 300U);
    EXPECT_EQ(none, 0U);
}

} // namespace
} // namespace norvepa::test
