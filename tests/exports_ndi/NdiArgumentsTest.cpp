#include "NdiScene.h"

namespace norvepa::test
{
namespace
{

class NdiArguments : public NdiScene
{
protected:
    NdiArguments()
    {
        Write(Identity(XmlContent().Text(L"Ort", L"Halle").Text(L"default", L"1").Text(L"(default)", L"2"),
                       XmlContent().ParameterAssemblyLink(PropSheet)));
    }

    // With each of them missing in turn, and with all.
    void ExpectEnumIsRefused()
    {
        const auto enumerate = [this](const wchar_t* device, wchar_t* n, std::uint32_t* nl, wchar_t* v,
                                      std::uint32_t* vl) {
            return library.PGSP_LogDeviceEnumNdiValueBL(device, 0, n, nl, v, vl, In64);
        };
        wchar_t* const n = name.data();
        wchar_t* const v = value.data();
        std::uint32_t* const nl = &name.length;
        std::uint32_t* const vl = &value.length;

        EXPECT_EQ(enumerate(nullptr, n, nl, v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(enumerate(L"", n, nl, v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(enumerate(L"Presse", nullptr, nl, v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(enumerate(L"Presse", n, nullptr, v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(enumerate(L"Presse", n, nl, nullptr, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(enumerate(L"Presse", n, nl, v, nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(enumerate(nullptr, nullptr, nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        ExpectUntouched(name, 30);
        ExpectUntouched(value, 30);
    }

    void ExpectGetIsRefused()
    {
        const auto get = [this](const wchar_t* device, const wchar_t* parameter, wchar_t* v,
                                std::uint32_t* vl) {
            return library.PGSP_LogDeviceGetNdiBL(device, parameter, v, vl, In64);
        };
        wchar_t* const v = value.data();
        std::uint32_t* const vl = &value.length;

        EXPECT_EQ(get(nullptr, L"Ort", v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(get(L"", L"Ort", v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(get(L"Presse", nullptr, v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(get(L"Presse", L"", v, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(get(L"Presse", L"Ort", nullptr, vl), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(get(L"Presse", L"Ort", v, nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(get(nullptr, nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        ExpectUntouched(value, 30);
    }

    void ExpectSetIsRefused() const
    {
        const auto set = [this](const wchar_t* device, const wchar_t* parameter, const wchar_t* text) {
            return library.PGSP_LogDeviceSetNdiBL(device, parameter, text, In64);
        };
        const std::string before = store.Bytes(L"Presse");

        EXPECT_EQ(set(nullptr, L"Ort", L"1"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"", L"Ort", L"1"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"Presse", nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(set(L"Presse", L"", L"1"), PGSP_ERR_INVALID_PARAMETERS);
        for (const wchar_t* const parameter : {L"Ort", L"DescText", L"PropSheet"})
        {
            EXPECT_EQ(set(L"Presse", parameter, nullptr), PGSP_ERR_INVALID_PARAMETERS);
        }
        EXPECT_EQ(set(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_EQ(store.Bytes(L"Presse"), before);
    }

    void ExpectDelIsRefused() const
    {
        const auto del = [this](const wchar_t* device, const wchar_t* parameter) {
            return library.PGSP_LogDeviceDelNdiBL(device, parameter, In64);
        };
        const std::string before = store.Bytes(L"Presse");

        EXPECT_EQ(del(nullptr, L"Ort"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(L"", L"Ort"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(L"Presse", nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(L"Presse", L""), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(del(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_EQ(store.Bytes(L"Presse"), before);
    }

    OutputBuffer name{30};
    OutputBuffer value{30};
};

TEST_F(NdiArguments, AreAllNeeded)
{
    ExpectEnumIsRefused();
    ExpectGetIsRefused();
    ExpectSetIsRefused();
    ExpectDelIsRefused();
}

TEST_F(NdiArguments, AreTestedAheadOfTheDataFolder)
{
    store.TakeDataFolderAway();

    ExpectEnumIsRefused();
    ExpectGetIsRefused();
    ExpectSetIsRefused();
    ExpectDelIsRefused();
}

TEST_F(NdiArguments, AreNotEnoughWithoutTheDataFolder)
{
    const std::string before = store.Bytes(L"Presse");
    store.TakeDataFolderAway();

    EXPECT_EQ(EnumNdi(0, name, value), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(GetNdi(L"Ort", value), PGSP_ERR_FOLDER_NOT_FOUND);
    for (const wchar_t* const parameter : {L"Ort", L"DescText", L"PropSheet"})
    {
        EXPECT_EQ(SetNdi(parameter, L"a,b"), PGSP_ERR_FOLDER_NOT_FOUND);
    }
    EXPECT_EQ(DelNdi(L"Ort"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    ExpectUntouched(name, 30);
    ExpectUntouched(value, 30);
}

TEST_F(NdiArguments, MayBeOfAnyLength)
{
    const std::wstring text(100'000, L'n');

    EXPECT_EQ(EnumNdiOf(text.c_str(), 0, name, value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(GetNdiOf(text.c_str(), text.c_str(), value), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(text.c_str(), text.c_str(), text.c_str(), In64),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(text.c_str(), text.c_str(), In64), PGSP_ERR_BUFFER_TOO_SHORT);
    ExpectUntouched(name, 30);
    ExpectUntouched(value, 30);

    EXPECT_EQ(SetNdi(text.c_str(), text.c_str()), PGSP_OK);
    OutputBuffer whole(100'001);
    EXPECT_EQ(GetNdi(text.c_str(), whole), PGSP_OK);
    EXPECT_EQ(whole.text(), text);
}

TEST_F(NdiArguments, MayHoldALinkOfAnyLength)
{
    const std::wstring text(100'000, L'n');

    EXPECT_EQ(SetNdi(L"PropSheet", (text + L"," + text).c_str()), PGSP_OK);

    OutputBuffer whole(200'002);
    EXPECT_EQ(GetNdi(L"PropSheet", whole), PGSP_OK);
    EXPECT_EQ(whole.text(), text + L"," + text);
}

// What a device's file says of its board is no more than a part of a path.
TEST_F(NdiArguments, MayMeetADeviceWithABoardOfAnyName)
{
    const std::wstring text(100'000, L'b');
    for (const std::wstring& board :
         {text, std::wstring(L"..\\..\\x"), std::wstring(L"*"), std::wstring(L"?<>|")})
    {
        store.WriteDevice(L"Presse", Ndi({}), board, board);

        EXPECT_EQ(SetNdi(L"Stufe", L"1"), PGSP_OK);
        EXPECT_EQ(Value(L"Stufe"), L"1");
    }
}

} // namespace
} // namespace norvepa::test
