#include "GetScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

// The two reads of one value, where they agree and where they don't.
class GetValueBuffer : public GetScene
{
protected:
    GetValueBuffer()
    {
        store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"default", L"12345"}}));
        store.WriteDevice(
            L"Presse",
            XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle").Text(L"Leer", L"")));
    }

    // Too short for a text of five characters, and left alone but for the length.
    void ExpectTooShort(std::int32_t result, const OutputBuffer& value) const
    {
        EXPECT_EQ(result, PGSP_ERR_BUFFER_TOO_SHORT);
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 5U);
    }

    void ExpectUntouched(const OutputBuffer& value, std::uint32_t capacity) const
    {
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, capacity);
    }
};

TEST_F(GetValueBuffer, NeedsOneCharacterMoreThanTheValue)
{
    OutputBuffer enough(6);
    EXPECT_EQ(Get(L"Presse", L"Ort", enough), PGSP_OK);
    EXPECT_EQ(enough.text(), L"Halle");
    EXPECT_EQ(enough.length, 5U);

    OutputBuffer enoughEx(6);
    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Ort", enoughEx), PGSP_OK);
    EXPECT_EQ(enoughEx.text(), L"Halle");
    EXPECT_EQ(enoughEx.length, 5U);
}

TEST_F(GetValueBuffer, OfExactlyTheValuesLengthIsTooShort)
{
    for (const std::uint32_t capacity : {5U, 1U})
    {
        OutputBuffer value(capacity);
        ExpectTooShort(Get(L"Presse", L"Ort", value), value);
        OutputBuffer valueEx(capacity);
        ExpectTooShort(GetEx(L"Presse", L"LocalSettings", L"Ort", valueEx), valueEx);
    }
}

TEST_F(GetValueBuffer, OfExactlyAnAttributesLengthIsTooShort)
{
    store.WriteDevice(L"Band", {}, L"AFK11");
    OutputBuffer enough(6);

    EXPECT_EQ(Get(L"Band", L"DeviceID", enough), PGSP_OK);
    OutputBuffer value(5);
    ExpectTooShort(Get(L"Band", L"DeviceID", value), value);
    OutputBuffer valueEx(5);
    ExpectTooShort(GetEx(L"Band", nullptr, L"DeviceID", valueEx), valueEx);

    EXPECT_EQ(enough.text(), L"AFK11");
}

TEST_F(GetValueBuffer, OfExactlyADefaultsLengthIsTooShort)
{
    OutputBuffer enough(6);
    OutputBuffer value(5);

    EXPECT_EQ(Get(L"Presse", L"Takt", enough), PGSP_OK);
    ExpectTooShort(Get(L"Presse", L"Takt", value), value);

    EXPECT_EQ(enough.text(), L"12345");
    EXPECT_EQ(enough.length, 5U);
}

TEST_F(GetValueBuffer, OfOneCharacterHoldsAnEmptyValue)
{
    OutputBuffer value(1);
    OutputBuffer valueEx(1);

    EXPECT_EQ(Get(L"Presse", L"Leer", value), PGSP_OK);
    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Leer", valueEx), PGSP_OK);

    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);
    EXPECT_EQ(valueEx.text(), L"");
    EXPECT_EQ(valueEx.length, 0U);
}

TEST_F(GetValueBuffer, OfNoCharactersIsRefused)
{
    OutputBuffer value(0);

    EXPECT_EQ(Get(L"Presse", L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"Presse", L"Leer", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"gone", L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Leer", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(L"gone", nullptr, L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);

    ExpectUntouched(value, 0);
}

TEST_F(GetValueBuffer, StaysAsItIsWhenAnArgumentIsRefused)
{
    OutputBuffer value(20);

    EXPECT_EQ(Get(nullptr, L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"", L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueBL(L"Presse", L"Ort", nullptr, &value.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueBL(L"Presse", L"Ort", value.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(nullptr, nullptr, L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(L"", L"LocalSettings", L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueExBL(L"Presse", nullptr, L"Ort", nullptr, &value.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueExBL(L"Presse", nullptr, L"Ort", value.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    ExpectUntouched(value, 20);
}

TEST_F(GetValueBuffer, StaysAsItIsWithoutTheDataFolderWhichIsAskedForBehindTheArguments)
{
    store.TakeDataFolderAway();
    OutputBuffer value(20);

    EXPECT_EQ(Get(L"", L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"Presse", L"Ort", value), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Get(L"Presse\\subdevices\\Achse", L"Ort", value), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(GetEx(L"", nullptr, L"Ort", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Ort", value), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(GetEx(L"Presse\\subdevices\\Achse", nullptr, L"Ort", value), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectUntouched(value, 20);
}

TEST_F(GetValueBuffer, StaysAsItIsForAParameterThatIsNotThereAndIsEmptiedByTheOtherRead)
{
    OutputBuffer value(20);
    OutputBuffer valueEx(20);

    EXPECT_EQ(Get(L"Presse", L"Druck", value), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Druck", valueEx), PGSP_ERR_PARAM_NOT_FOUND);

    ExpectUntouched(value, 20);
    EXPECT_EQ(valueEx.text(), L"");
    EXPECT_EQ(valueEx.length, 0U);
}

TEST_F(GetValueBuffer, StaysAsItIsForADeviceThatIsNotThereAndIsEmptiedByTheOtherRead)
{
    for (const wchar_t* const parameter : {L"Ort", L"Takt", L"DeviceID", L""})
    {
        OutputBuffer value(1);
        OutputBuffer valueEx(1);

        EXPECT_EQ(Get(L"gone", parameter, value), PGSP_ERR_LOG_DEVICE_NOT_EXISTS) << parameter;
        EXPECT_EQ(GetEx(L"gone", nullptr, parameter, valueEx), PGSP_ERR_CANT_LOAD_XML_FILE) << parameter;

        ExpectUntouched(value, 1);
        EXPECT_EQ(valueEx.text(), L"");
        EXPECT_EQ(valueEx.length, 0U);
    }
}

TEST_F(GetValueBuffer, TellsADeviceThatCanNotBeOpenedLikeOneThatIsNotThere)
{
    MakeFolders(roots.logDevice(L"folder"));
    const HANDLE held = CreateFileW(roots.logDevice(L"Presse").c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);

    EXPECT_EQ(Value(L"folder", L"Ort"), L"(result 8012)");
    EXPECT_EQ(ValueEx(L"folder", nullptr, L"Ort"), L"(result 8508)");
    EXPECT_EQ(Value(L"Presse", L"Ort"), L"(result 8012)");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Ort"), L"(result 8508)");

    CloseHandle(held);
    EXPECT_EQ(Value(L"Presse", L"Ort"), L"Halle");
}

TEST_F(GetValueBuffer, FindsNothingInAFileThatIsNoXml)
{
    WriteBytes(roots.logDevice(L"text"), "no XML");
    WriteBytes(roots.logDevice(L"empty"), "");

    for (const wchar_t* const device : {L"text", L"empty"})
    {
        EXPECT_EQ(Value(device, L"Ort"), L"(result 8513)") << device;
        EXPECT_EQ(Value(device, L"DeviceID"), L"(result 8513)") << device;
        EXPECT_EQ(ValueEx(device, nullptr, L"Ort"), L"(result 8513)") << device;
        EXPECT_EQ(ValueEx(device, nullptr, L"DeviceID"), L"(result 8513)") << device;
    }
}

// What a path is too long for is the store's own buffer, and not the caller's.
TEST_F(GetValueBuffer, StaysAsItIsForAPathOf260Characters)
{
    const std::wstring fits = store.DeviceForPathOf(259);
    const std::wstring tooLong = store.DeviceForPathOf(260);
    OutputBuffer value(20);

    EXPECT_EQ(Get(fits.c_str(), L"Ort", value), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
    EXPECT_EQ(Get(tooLong.c_str(), L"Ort", value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Get(tooLong.c_str(), L"DeviceID", value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(GetEx(tooLong.c_str(), nullptr, L"Ort", value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(GetEx(tooLong.c_str(), L"LocalSettings", L"Ort", value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(GetEx(tooLong.c_str(), nullptr, L"DeviceID", value), PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectUntouched(value, 20);
}

TEST_F(GetValueBuffer, HoldsALongValueWhole)
{
    const std::wstring text = std::wstring(100'000, L'v') + L"end";
    store.WriteDevice(L"Band", Section(L"Ndi", L"Text", text));
    OutputBuffer value(100'004);
    OutputBuffer tooShort(100'003);

    EXPECT_EQ(Get(L"Band", L"Text", value), PGSP_OK);
    EXPECT_EQ(Get(L"Band", L"Text", tooShort), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(value.text(), text);
    EXPECT_EQ(tooShort.length, 100'003U);
}

} // namespace
} // namespace norvepa::test
