#include "TemplateScene.h"

#include <functional>

namespace norvepa::test
{
namespace
{

class TemplateArguments : public TemplateScene
{
protected:
    struct CallWithName
    {
        const char* argument;
        std::function<std::int32_t(const wchar_t* name)> call;
    };

    // Each call with one of its names, in which all else is right.
    const std::vector<CallWithName> namings{
        {"KeyExists, Folder",
         [&](const wchar_t* name) { return library.PGSP_TemplateKeyExistsBL(name, L"X", L"Install", 0); }},
        {"KeyExists, Template",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateKeyExistsBL(L"Boards", name, L"Install", 0);
         }},
        {"KeyExists, Template of a folder of the caller's own",
         [&](const wchar_t* name) { return library.PGSP_TemplateKeyExistsBL(L"Own", name, L"Install", 0); }},
        {"KeyExists, Key",
         [&](const wchar_t* name) { return library.PGSP_TemplateKeyExistsBL(L"Boards", L"X", name, 0); }},
        {"GetEnumValueRaw, Folder",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateGetEnumValueRawBL(name, L"X", L"Install", 0, value.data(),
                                                           &value.length);
         }},
        {"GetEnumValueRaw, Template",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateGetEnumValueRawBL(L"Boards", name, L"Install", 0, value.data(),
                                                           &value.length);
         }},
        {"GetConstraint, FolderName",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateGetConstraintBL(name, L"X", L"p", L"type", value.data(),
                                                         &value.length);
         }},
        {"GetConstraint, fileName",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateGetConstraintBL(L"Boards", name, L"p", L"type", value.data(),
                                                         &value.length);
         }},
        {"GetConstraint, Parameter",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateGetConstraintBL(L"Boards", L"X", name, L"type", value.data(),
                                                         &value.length);
         }},
        {"GetConstraint, Constraint",
         [&](const wchar_t* name) {
             return library.PGSP_TemplateGetConstraintBL(L"Boards", L"X", L"p", name, value.data(),
                                                         &value.length);
         }},
        {"DefDeviceGetEnumValue, DefDevice",
         [&](const wchar_t* name) {
             return library.PGSP_DefDeviceGetEnumValueBL(name, 0, value.data(), &value.length, value.data(),
                                                         &value.length);
         }},
        {"DefDeviceGetValue, DefDevice",
         [&](const wchar_t* name) {
             return library.PGSP_DefDeviceGetValueBL(name, L"a", value.data(), &value.length, 0);
         }},
        {"DefDeviceGetValueRaw, DefDevice",
         [&](const wchar_t* name) {
             return library.PGSP_DefDeviceGetValueRawBL(name, L"Ndi", L"a", value.data(), &value.length);
         }},
        {"DefDeviceGetValueRaw, Parameter",
         [&](const wchar_t* name) {
             return library.PGSP_DefDeviceGetValueRawBL(L"X", nullptr, name, value.data(), &value.length);
         }},
    };

    // What the calls that answer with one text answer into these outputs.
    [[nodiscard]] std::vector<std::int32_t> AskAll(wchar_t* buffer, std::uint32_t* length) const
    {
        return {library.PGSP_TemplateGetEnumValueRawBL(L"Boards", L"X", L"NotSupported", 0, buffer, length),
                library.PGSP_TemplateGetConstraintBL(L"Boards", L"X", L"p", L"type", buffer, length),
                library.PGSP_DefDeviceGetValueBL(L"X", L"CP_TYPE", buffer, length, 0),
                library.PGSP_DefDeviceGetValueRawBL(L"X", nullptr, L"CP_TYPE", buffer, length),
                library.PGSP_DefDeviceGetValueRawBL(L"X", L"Ndi", L"a", buffer, length)};
    }

    void WriteFilesForAll() const
    {
        WriteBoard(L"X", XmlContent()
                             .Element(L"NotSupported", XmlContent().ValueCollection({L"1"}))
                             .ParamSection(L"p", XmlContent().Element(L"type", L"int")));
        WriteTemplate(L"X", XmlContent().Element(L"Ndi", XmlContent().Text(L"a", L"1")));
    }

    void ExpectNothingWritten() const
    {
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 20U);
    }

    OutputBuffer value{20};
};

TEST_F(TemplateArguments, WithoutANameAreRefused)
{
    for (const auto& [argument, call] : namings)
    {
        EXPECT_EQ(call(nullptr), PGSP_ERR_INVALID_PARAMETERS) << argument;
        EXPECT_EQ(call(L""), PGSP_ERR_INVALID_PARAMETERS) << argument;
    }
    ExpectNothingWritten();
}

TEST_F(TemplateArguments, WithoutANameAreRefusedAheadOfTheFolder)
{
    TakeProgramFolderAway();

    for (const auto& [argument, call] : namings)
    {
        EXPECT_EQ(call(nullptr), PGSP_ERR_INVALID_PARAMETERS) << argument;
        EXPECT_EQ(call(L""), PGSP_ERR_INVALID_PARAMETERS) << argument;
        EXPECT_EQ(call(L"name"), PGSP_ERR_FOLDER_NOT_FOUND) << argument;
    }
    ExpectNothingWritten();
}

TEST_F(TemplateArguments, OfAnEmptyProgramFolderLeadNowhere)
{
    SetMachineText(LocationsKey, L"Corvane_Oam", L"");

    for (const auto& [argument, call] : namings)
    {
        EXPECT_EQ(call(L"name"), PGSP_ERR_FOLDER_NOT_FOUND) << argument;
    }
    EXPECT_EQ(Exist(L"Boards", L"X"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(FileName(L"Boards", 0), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
    ExpectNothingWritten();
}

TEST_F(TemplateArguments, OfTheExistenceTestAreRefusedWhenTheyAreNullAndNotWhenTheyAreEmpty)
{
    EXPECT_EQ(library.PGSP_TemplateExistBL(nullptr, L"X", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateExistBL(L"Boards", nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateExistBL(nullptr, nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateExistBL(L"", L"X", 0), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.PGSP_TemplateExistBL(L"Boards", L"", 0), PGSP_ERR_FILE_NOT_FOUND);

    TakeProgramFolderAway();
    EXPECT_EQ(library.PGSP_TemplateExistBL(nullptr, L"X", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateExistBL(L"Boards", nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(TemplateArguments, WithoutAnOutputAreRefusedAheadOfTheFolder)
{
    WriteFilesForAll();
    EXPECT_THAT(AskAll(nullptr, &value.length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(value.data(), nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(nullptr, nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));

    TakeProgramFolderAway();
    EXPECT_THAT(AskAll(nullptr, &value.length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(value.data(), nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(value.data(), &value.length), testing::Each(PGSP_ERR_FOLDER_NOT_FOUND));

    ExpectNothingWritten();
}

TEST_F(TemplateArguments, NeedNoDataFolder)
{
    WriteFilesForAll();
    TakeDataFolderAway();

    EXPECT_EQ(Exist(L"Boards", L"X"), PGSP_OK);
    EXPECT_EQ(KeyExists(L"Boards", L"X", L"NotSupported"), PGSP_OK);
    EXPECT_EQ(Item(L"Boards", L"X", L"NotSupported", 0), L"1");
    EXPECT_EQ(Constraint(L"Boards", L"X", L"p", L"type"), L"int");
    EXPECT_EQ(FileName(L"Boards", 0), BoardPrefix + L"X");
    EXPECT_EQ(Set(L"DefaultLogDevices", L"X", L"a", L"2"), PGSP_OK);
    EXPECT_EQ(DeviceValue(L"X", L"a"), L"2");
    EXPECT_EQ(DeviceValueRaw(L"X", L"Ndi", L"a"), L"2");
    EXPECT_EQ(DevicePair(L"X", 0), L"CP_TYPE=MPI");
}

} // namespace
} // namespace norvepa::test
