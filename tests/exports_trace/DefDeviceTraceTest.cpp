#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class DefDeviceTrace : public CatalogueTraceScene
{
protected:
    DefDeviceTrace()
    {
        WriteBytes(roots.deviceTemplate(L"X"),
                   LogDeviceFile(XmlContent().Element(L"LocalSettings", XmlContent().Text(L"a", L"abc"))));
    }

    [[nodiscard]] std::int32_t Pair(const wchar_t* device, std::uint32_t index)
    {
        return library().PGSP_DefDeviceGetEnumValueBL(device, index, buffer, &length, value, &valueLength);
    }

    [[nodiscard]] std::int32_t Get(const wchar_t* device, const wchar_t* parameter)
    {
        return library().PGSP_DefDeviceGetValueBL(device, parameter, buffer, &length, 0);
    }

    [[nodiscard]] std::int32_t Raw(const wchar_t* device, const wchar_t* path, const wchar_t* parameter)
    {
        return library().PGSP_DefDeviceGetValueRawBL(device, path, parameter, buffer, &length);
    }

    wchar_t value[20] = L"before";
    std::uint32_t valueLength = 20;
};

TEST_F(DefDeviceTrace, OfAPairTellsItAndTheResult)
{
    Load();

    EXPECT_EQ(Pair(L"X", 0), PGSP_OK);
    const std::string pair = "Parameter = " + ToAnsi(buffer) + ", parLen = " + std::to_string(length) +
                             ", Value = " + ToAnsi(value) + ", valLen = " + std::to_string(valueLength);
    EXPECT_EQ(library().PGSP_DefDeviceGetEnumValueBL(L"X", 90, buffer, &length, value, &valueLength),
              PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetEnumValueBL"),
                ElementsAre("entry: >> DefDevice = X, index = 0", "information: " + pair,
                            "exit: << return lRet = 0", "entry: >> DefDevice = X, index = 90",
                            testing::StartsWith("information: Parameter = "), "exit: << return lRet = 259"));
}

TEST_F(DefDeviceTrace, OfAValueIsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(Get(L"X", L"a"), PGSP_OK);
    EXPECT_EQ(Get(L"X", nullptr), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueBL"),
                ElementsAre("entry: >> DefDevice = X, Parameter = a", "exit: << return lRet = 0",
                            "entry: >> DefDevice = X, Parameter = ", "exit: << return lRet = 8513"));
}

TEST_F(DefDeviceTrace, OfAValueByPathTellsTheWay)
{
    Load();

    EXPECT_EQ(Raw(L"X", L"LocalSettings", L"a"), PGSP_OK);
    length = 3;
    EXPECT_EQ(Raw(L"X", L"LocalSettings", L"a"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueRawBL"),
                ElementsAre("entry: >> DefDevice = X, Parameter = a", "information: NorvXMLGetValueRaw",
                            "exit: << return lRet = 0", "entry: >> DefDevice = X, Parameter = a",
                            "information: NorvXMLGetValueRaw", "exit: << return lRet = 234"));
}

TEST_F(DefDeviceTrace, OfAValueWithoutAPathTellsNoWay)
{
    Load();

    EXPECT_EQ(Raw(L"X", L"", L"DeviceID"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueRawBL"),
                ElementsAre("entry: >> DefDevice = X, Parameter = DeviceID", "exit: << return lRet = 0"));
}

TEST_F(DefDeviceTrace, OfBadArgumentsBeginsWithTheEntryButInTheValueByPath)
{
    Load();

    EXPECT_EQ(Pair(nullptr, 3), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"", L"a"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Raw(L"", L"p", L"a"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Raw(L"X", L"p", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetEnumValueBL"),
                ElementsAre("entry: >> DefDevice = , index = 3", Refusal));
    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueBL"),
                ElementsAre("entry: >> DefDevice = , Parameter = a", Refusal));
    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueRawBL"), ElementsAre(Refusal, Refusal));
}

TEST_F(DefDeviceTrace, OfAMissingProgramFolderNamesIt)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Pair(L"X", 0), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Get(L"X", L"a"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Raw(L"X", L"p", L"a"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetEnumValueBL"),
                ElementsAre("entry: >> DefDevice = X, index = 0", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueBL"),
                ElementsAre("entry: >> DefDevice = X, Parameter = a", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_DefDeviceGetValueRawBL"),
                ElementsAre("entry: >> DefDevice = X, Parameter = a", NoProgramFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
