#include "DoctorScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

constexpr char LocationsBelow[] = " below HKEY_LOCAL_MACHINE\\SOFTWARE\\Marvolt\\Shared Tools\\NorvDOS64";

class NorvctlDoctorRoots : public NorvctlDoctor
{
};

TEST_F(NorvctlDoctorRoots, TellsThatTheDataFolderIsGone)
{
    RemoveAll(folder / L"data-root");

    ExpectOnly(Finding("error", "folder", ToUtf8(folder / L"data-root"), "the data folder is not there",
                       std::string("make it, or correct the value Corvane_Oam_Data") + LocationsBelow));
}

TEST_F(NorvctlDoctorRoots, TellsThatTheProgramFolderIsGone)
{
    RemoveAll(folder / L"program-root");

    ExpectOnly(Finding("error", "folder", ToUtf8(folder / L"program-root"), "the program folder is not there",
                       std::string("make it, or correct the value Corvane_Oam") + LocationsBelow));
}

TEST_F(NorvctlDoctorRoots, TellsThatTheDataFolderIsNowhere)
{
    locations.Set(L"Corvane_Oam_Data", L"");

    ExpectOnly(Finding("error", "folder", "data",
                       "neither the registry nor the common application data has it",
                       std::string("name it by the value Corvane_Oam_Data") + LocationsBelow));
}

TEST_F(NorvctlDoctorRoots, TellsThatTheProgramFolderIsNowhere)
{
    locations.Set(L"Corvane_Oam", L"");

    ExpectOnly(Finding("error", "folder", "program",
                       "neither the registry nor the common program files has it",
                       std::string("name it by the value Corvane_Oam") + LocationsBelow));
}

// A folder that the store can't do without, below the test's own.
struct StoreFolder
{
    const char* name;
    const wchar_t* path;
    const char* advice;
};

void PrintTo(const StoreFolder& storeFolder, std::ostream* stream)
{
    *stream << storeFolder.name;
}

class NorvctlDoctorFolder : public NorvctlDoctor, public testing::WithParamInterface<StoreFolder>
{
};

TEST_P(NorvctlDoctorFolder, IsMissedAndNothingThatLiesInItOrNeedsIt)
{
    RemoveAll(folder / GetParam().path);

    ExpectOnly(
        Finding("error", "folder", ToUtf8(folder / GetParam().path), "it is not there", GetParam().advice));
}

INSTANTIATE_TEST_SUITE_P(
    Folders, NorvctlDoctorFolder,
    testing::Values(StoreFolder{"LogDevices", L"data-root\\data\\LogDevices", "make the folder"},
                    StoreFolder{"LogNames", L"data-root\\data\\LogNames", "make the folder"},
                    StoreFolder{"Boards", L"program-root\\meta\\Boards", "install it anew"},
                    StoreFolder{"Protocols", L"program-root\\meta\\Protocols", "install it anew"},
                    StoreFolder{"Templates", L"program-root\\meta\\DefaultLogDevices", "install it anew"},
                    StoreFolder{"Schemas", L"program-root\\Schemes", "install it anew"}),
    [](const auto& storeFolder) { return storeFolder.param.name; });

// A schema and what has become of it; nothing: its file is gone.
struct DamagedSchema
{
    const char* name;
    const char* schema;
    const char* content;
    const char* finding;
};

void PrintTo(const DamagedSchema& damaged, std::ostream* stream)
{
    *stream << damaged.name;
}

class NorvctlDoctorSchema : public NorvctlDoctor, public testing::WithParamInterface<DamagedSchema>
{
};

TEST_P(NorvctlDoctorSchema, IsTold)
{
    const std::wstring path = ProgramPath(FromUtf8(GetParam().schema));
    RemoveAll(path);
    if (GetParam().content != nullptr)
    {
        WriteBytes(path, GetParam().content);
    }

    ExpectOnly(Finding("error", "schema", GetParam().schema, GetParam().finding, "install it anew"));
}

constexpr char DriversSchema[] = "Schemes\\Corvane.Device.Driver.Logdevice.xsd";
constexpr char NamesSchema[] = "Schemes\\Corvane.Device.Driver.Logname.xsd";
constexpr char NotLoaded[] = "it cannot be loaded: no driver can read a log device";

INSTANTIATE_TEST_SUITE_P(
    Schemas, NorvctlDoctorSchema,
    testing::Values(DamagedSchema{"MissingOfLogDevices", DriversSchema, nullptr, NotLoaded},
                    DamagedSchema{"EmptyOfLogDevices", DriversSchema, "", NotLoaded},
                    DamagedSchema{"MalformedOfLogDevices", DriversSchema, "<xs:schema", NotLoaded},
                    DamagedSchema{"MissingOfLogNames", NamesSchema, nullptr,
                                  "it is not there: log names cannot lose a value"},
                    DamagedSchema{"EmptyOfLogNames", NamesSchema, "",
                                  "its file is empty: log names cannot lose a value"}),
    [](const auto& damaged) { return damaged.param.name; });

} // namespace
} // namespace norvepa::test
