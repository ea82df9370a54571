#include "store/CommitScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

using ValidateTest = CommitScene;

TEST_F(ValidateTest, AValidFileIsValidAndStaysAsItIs)
{
    WriteBytes(real(), ValidLogName());

    EXPECT_EQ(Validate(), PGSP_OK);

    EXPECT_EQ(ReadBytes(real()), ValidLogName());
}

TEST_F(ValidateTest, AFileThatDoesNotFitIsNot)
{
    WriteBytes(real(), InvalidLogName());

    EXPECT_EQ(Validate(), PGSP_ERR_INVALID_FILE);
}

TEST_F(ValidateTest, ALogDeviceNeedsItsUnit)
{
    WriteBytes(real(), LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))));
    EXPECT_EQ(Validate(LogDeviceSchema), PGSP_OK);

    WriteBytes(real(),
               LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"Text", L"1"))));
    EXPECT_EQ(Validate(LogDeviceSchema), PGSP_ERR_INVALID_FILE);
}

TEST_F(ValidateTest, ABadArgumentIsRefused)
{
    const std::wstring folder = this->folder();

    EXPECT_EQ(NorvXMLValidateFile(nullptr, LogNameSchema, folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLValidateFile(L"", LogNameSchema, folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLValidateFile(L"Name", nullptr, folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLValidateFile(L"Name", L"", folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLValidateFile(L"Name", LogNameSchema, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLValidateFile(L"Name", LogNameSchema, L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(ValidateTest, ANameIsEscapedAndExtended)
{
    WriteBytes(folder() + L"\\50#25 (nmbr)1.xml", ValidLogName());
    WriteBytes(folder() + L"\\a.xml.old.xml", ValidLogName());

    EXPECT_EQ(NorvXMLValidateFile(L"50% #1", LogNameSchema, folder().c_str()), PGSP_OK);
    EXPECT_EQ(NorvXMLValidateFile(L"50% #1.xml", LogNameSchema, folder().c_str()), PGSP_OK);
    EXPECT_EQ(NorvXMLValidateFile(L"a.xml.old", LogNameSchema, folder().c_str()), PGSP_OK);
}

TEST_F(ValidateTest, ANameOf260CharactersIsTooLong)
{
    EXPECT_EQ(NorvXMLValidateFile(std::wstring(260, L'x').c_str(), LogNameSchema, folder().c_str()),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLValidateFile(std::wstring(259, L'x').c_str(), LogNameSchema, folder().c_str()),
              PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(ValidateTest, WithoutAProgramFolderThereIsNoSchema)
{
    WriteBytes(real(), ValidLogName());
    SetMachineText(LocationsKey, L"Corvane_Oam", L"");

    EXPECT_EQ(Validate(), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(NorvXMLValidateFile(std::wstring(260, L'x').c_str(), LogNameSchema, folder().c_str()),
              PGSP_ERR_BUFFER_TOO_SHORT);
    OnFreshThread([&] { EXPECT_EQ(Validate(), PGSP_ERR_FOLDER_NOT_FOUND); });
}

TEST_F(ValidateTest, AThreadWithoutComHasNoEngineAndStaysWithout)
{
    WriteBytes(real(), ValidLogName());

    OnFreshThread([&] {
        EXPECT_EQ(Validate(), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_EQ(Validate(L"no such schema"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(ValidateTest, TheSchemaComesAheadOfTheFile)
{
    EXPECT_EQ(Validate(L"no such schema"), PGSP_ERR_CANT_LOAD_SCHEMA);
    EXPECT_EQ(Validate(), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(ValidateTest, AMalformedSchemaCannotBeLoaded)
{
    WriteBytes(real(), ValidLogName());
    WriteBytes(schema(LogNameSchema), "<xs:schema></xs:scheme>");

    EXPECT_EQ(Validate(), PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(ValidateTest, ASchemaThatIsNoneValidatesNothing)
{
    WriteBytes(real(), ValidLogName());
    WriteBytes(schema(LogNameSchema), "<nothing/>");

    EXPECT_EQ(Validate(), PGSP_ERR_INVALID_FILE);
}

TEST_F(ValidateTest, ASchemaOfAnotherNameValidatesNothing)
{
    WriteBytes(real(), ValidLogName());
    WriteBytes(schema(L"Other"), ReadBytes(schema(LogNameSchema)));

    EXPECT_EQ(Validate(L"Other"), PGSP_ERR_INVALID_FILE);
}

TEST_F(ValidateTest, SchemaNamesAreOfExactCase)
{
    WriteBytes(real(), ValidLogName());

    // The file system finds the schema, and no namespace belongs to that name.
    EXPECT_EQ(Validate(L"corvane.device.driver.logname"), PGSP_ERR_INVALID_FILE);
}

TEST_F(ValidateTest, AFileThatIsTooLargeIsNotParsed)
{
    WriteBytes(real(), ValidLogName() + std::string(10'000'000, ' '));

    EXPECT_EQ(Validate(), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(ValidateTest, AMalformedFileCannotBeLoaded)
{
    WriteBytes(real(), "<LogName></logname>");

    EXPECT_EQ(Validate(), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(ValidateTest, ALocationInTheFilePlaysNoPart)
{
    ASSERT_EQ(NorvXMLCreateFile((folder() + L"\\Name").c_str(), L"nam"), PGSP_OK);

    EXPECT_EQ(Validate(), PGSP_OK);
}

TEST_F(ValidateTest, ANewDriverInformationIsValidToo)
{
    ASSERT_EQ(NorvXMLCreateFile((folder() + L"\\Name").c_str(), L"driv"), PGSP_OK);

    EXPECT_EQ(Validate(L"DriverInfo.Schema"), PGSP_OK);
}

TEST_F(ValidateTest, AFileThatOthersReadIsReadToo)
{
    WriteBytes(real(), ValidLogName());
    const OpenFile inUse(real());

    EXPECT_EQ(Validate(), PGSP_OK);
}

struct SchemaCase
{
    const wchar_t* schema;
    const char* nameSpace; // below the driver namespace
};

void PrintTo(const SchemaCase& each, std::ostream* out)
{
    *out << ToUtf8(each.schema);
}

class ValidateNamespaces : public CommitScene, public testing::WithParamInterface<SchemaCase>
{
};

TEST_P(ValidateNamespaces, BelongToTheSchemasName)
{
    const auto& [name, path] = GetParam();
    const std::string uri = std::string("http://www.marvolt.example/Automation/Corvane.Device.Driver") + path;
    WriteBytes(schema(name), "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" +
                                 uri + "'><xs:element name='any'/></xs:schema>");

    WriteBytes(real(), "<any xmlns='" + uri + "'/>");
    EXPECT_EQ(Validate(name), PGSP_OK);

    WriteBytes(real(), "<any xmlns='" + uri + "2'/>");
    EXPECT_EQ(Validate(name), PGSP_ERR_INVALID_FILE);
}

INSTANTIATE_TEST_SUITE_P(Store, ValidateNamespaces,
                         testing::Values(SchemaCase{L"Corvane.Device.Driver.Logdevice", "/LogDevice"},
                                         SchemaCase{L"DefaultLogDevices.Schema", "/LogDevice"},
                                         SchemaCase{L"Corvane.Device.Driver.Logname", "/LogName"},
                                         SchemaCase{L"Protocols.Schema", "/Protocols"},
                                         SchemaCase{L"Boards.Schema", "/Boards"},
                                         SchemaCase{L"DriverInfo.Schema", "/DriverInfo"}));

} // namespace
} // namespace norvepa::test
