#include "exports_device/SetScene.h"
#include "support/ProfileFiles.h"

namespace norvepa::test
{
namespace
{

// Whether a protocol has a value of a parameter: directly, or below a value of another one.
class CollectionExists : public SetScene
{
protected:
    CollectionExists()
    {
        const XmlContent below = SubParameter(L"watchdog", {{L"Kurz"}});
        const XmlContent rates = SubParameter(L"baudrate", {{L"9600/9,6 kbit/s", below}, {L"\u00DCber"}});
        store.WriteProtocol(
            Catalogue()
                .Parameter(L"cable", {}, XmlContent().ValueCollection({L"Kupfer/verdrillt", L"Funk"}))
                .Parameter(L"busparam", {}, Profiles({{L"1/Standard", rates}, {L"3/eigenes"}})));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* parameter, const wchar_t* value,
                                   const wchar_t* protocol = L"MPI") const
    {
        return library.PGSP_ProfileCollectionExistsBL(protocol, parameter, value);
    }
};

TEST_F(CollectionExists, ForAListedValueByWhatIsAheadOfASlash)
{
    EXPECT_EQ(Ask(L"cable", L"Kupfer"), PGSP_OK);
    EXPECT_EQ(Ask(L"cable", L"Funk"), PGSP_OK);
    EXPECT_EQ(Ask(L"busparam", L"3"), PGSP_OK);

    EXPECT_EQ(Ask(L"cable", L"Kupfer/verdrillt"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"cable", L"verdrillt"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"cable", L"Kupf"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"mode", L"Funk"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(CollectionExists, WithoutRegardToCase)
{
    EXPECT_EQ(Ask(L"CABLE", L"kupfer"), PGSP_OK);
    EXPECT_EQ(Ask(L"BUSPARAM\\1\\BaudRate", L"\u00FCBER"), PGSP_OK);
}

TEST_F(CollectionExists, ForAValueBelowAnotherParametersValue)
{
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate", L"9600"), PGSP_OK);

    EXPECT_EQ(Ask(L"busparam\\1\\baudrate", L"19200"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"busparam\\1\\cable", L"9600"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"busparam\\3\\baudrate", L"9600"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"mode\\1\\baudrate", L"9600"), PGSP_ERR_PARAM_NOT_FOUND);
}

// What counts there is a section of the value, not that it's listed.
TEST_F(CollectionExists, ForNoValueBelowThatIsOnlyListed)
{
    const XmlContent rates = XmlContent().ParamSection(L"baudrate", XmlContent().ValueCollection({L"9600"}));
    store.WriteProtocol(Catalogue().Parameter(L"busparam", {}, Profiles({{L"1", rates}})), L"Listed");

    EXPECT_EQ(Ask(L"busparam", L"1", L"Listed"), PGSP_OK);
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate", L"9600", L"Listed"), PGSP_ERR_PARAM_NOT_FOUND);
}

// And the other way round.
TEST_F(CollectionExists, ForNoValueThatOnlyHasASection)
{
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {}, SectionCollection({L"9600"})), L"Sections");

    EXPECT_EQ(Ask(L"baudrate", L"9600", L"Sections"), PGSP_ERR_PARAM_NOT_FOUND);
}

// The value in the middle is empty then, and names no step on the way.
TEST_F(CollectionExists, WithOneBackslashForAParameterBelowWhateverValue)
{
    EXPECT_EQ(Ask(L"busparam\\baudrate", L"9600"), PGSP_OK);

    EXPECT_EQ(Ask(L"busparam\\baudrate", L"19200"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"busparam\\cable", L"9600"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"busparam\\3", L"9600"), PGSP_ERR_PARAM_NOT_FOUND);
}

// A path of so many steps isn't walked, though they are all there.
TEST_F(CollectionExists, WithThreeBackslashesForNothing)
{
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate\\9600", L"watchdog"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate\\9600", L"19200"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(CollectionExists, WithThreeBackslashesWhereTwoStandTogether)
{
    EXPECT_EQ(Ask(L"busparam\\1\\\\baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Ask(L"busparam\\\\1\\baudrate", L"9600"), PGSP_OK);
    EXPECT_EQ(Ask(L"\\busparam\\1\\baudrate", L"9600"), PGSP_OK);

    EXPECT_EQ(Ask(L"busparam\\1\\\\baudrate", L"19200"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(CollectionExists, WithBackslashesWhoseSidesAreEmpty)
{
    EXPECT_EQ(Ask(L"busparam\\1\\", L"baudrate"), PGSP_OK);
    EXPECT_EQ(Ask(L"\\busparam\\1", L"baudrate"), PGSP_OK);
    EXPECT_EQ(Ask(L"\\", L"cable"), PGSP_OK);

    EXPECT_EQ(Ask(L"\\", L"Kupfer"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(L"cable\\", L"Kupfer"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(CollectionExists, ByTheProtocolsNameWithOrWithoutThePrefix)
{
    const std::wstring prefix = L"Automation-OnlineAccess-PT-";

    EXPECT_EQ(Ask(L"cable", L"Funk", (prefix + L"MPI").c_str()), PGSP_OK);
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate", L"9600", (prefix + L"MPI").c_str()), PGSP_OK);
    EXPECT_EQ(Ask(L"cable", L"Funk", L"mpi"), PGSP_OK);
    EXPECT_EQ(Ask(L"cable", L"Funk", L"automation-onlineaccess-pt-MPI"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(CollectionExists, InNoFileThatIsNotThere)
{
    EXPECT_EQ(Ask(L"cable", L"Funk", L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate", L"9600", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(CollectionExists, InNoFolderThatIsNotThere)
{
    store.TakeProgramFolderAway();

    EXPECT_EQ(Ask(L"cable", L"Funk"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Ask(L"busparam\\1\\baudrate", L"9600"), PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(CollectionExists, ForNoArgumentThatIsNullOrEmpty)
{
    const auto expectRefused = [&] {
        for (const wchar_t* const missing : {static_cast<const wchar_t*>(nullptr), L""})
        {
            EXPECT_EQ(Ask(L"cable", L"Funk", missing), PGSP_ERR_INVALID_PARAMETERS);
            EXPECT_EQ(Ask(missing, L"Funk"), PGSP_ERR_INVALID_PARAMETERS);
            EXPECT_EQ(Ask(L"cable", missing), PGSP_ERR_INVALID_PARAMETERS);
            EXPECT_EQ(Ask(L"busparam\\1\\baudrate", missing), PGSP_ERR_INVALID_PARAMETERS);
        }
    };

    expectRefused();
    store.TakeProgramFolderAway();
    expectRefused();
}

} // namespace
} // namespace norvepa::test
