#include "store/WriteScene.h"

#include <ostream>
#include <regex>
#include <vector>

namespace norvepa::test
{
namespace
{

// The four forms, as they would be written by hand.
std::string LogNameForm()
{
    return "<?xml version='1.0' encoding='UTF-8'?>"
           "<LogName xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogName'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xsi:schemaLocation='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogName"
           " C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.Logname.xsd'>"
           "<Parameters/></LogName><!-- NorvepaBl64x configuration store -->";
}

std::string DriverInfoForm()
{
    return "<?xml version='1.0' encoding='UTF-8'?>"
           "<DriverInfo xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/DriverInfo'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xsi:schemaLocation='http://www.marvolt.example/Automation/Corvane.Device.Driver/DriverInfo"
           " C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.DriverInfo.xsd'>"
           "<Clients/></DriverInfo><!-- NorvepaBl64x configuration store -->";
}

std::string NotificationForm()
{
    return "<Notification xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/Notification'>"
           "<NotificationSection/></Notification><!-- NorvepaBl64x configuration store -->";
}

std::string SettingsForm()
{
    return "<PGSP xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/PGSP'>"
           "<PGSP_Section/><Updates/><DateTimeSection/></PGSP><!-- NorvepaBl64x configuration store -->";
}

struct FormCase
{
    const wchar_t* kind;
    std::string root;
    std::vector<std::string> attributes; // of the root, in their order
    std::string form;
};

void PrintTo(const FormCase& each, std::ostream* out)
{
    *out << each.root;
}

class CreateFileForm : public WriteScene, public testing::WithParamInterface<FormCase>
{
protected:
    CreateFileForm() { EXPECT_EQ(NorvXMLCreateFile(path().c_str(), GetParam().kind), PGSP_OK); }

    // All bytes but the line ends, which the engine puts where it likes.
    [[nodiscard]] std::string OneLine() const
    {
        std::string bytes = Bytes();
        std::erase_if(bytes, [](char byte) { return byte == '\r' || byte == '\n'; });
        return bytes;
    }
};

INSTANTIATE_TEST_SUITE_P(
    , CreateFileForm,
    testing::Values(
        FormCase{L"nam", "LogName", {"xmlns", "xmlns:xsi", "xsi:schemaLocation"}, LogNameForm()},
        FormCase{L"driv", "DriverInfo", {"xmlns", "xmlns:xsi", "xsi:schemaLocation"}, DriverInfoForm()},
        FormCase{L"notif", "Notification", {"xmlns"}, NotificationForm()},
        FormCase{L"pgsp", "PGSP", {"xmlns"}, SettingsForm()}),
    [](const auto& each) { return each.param.root; });

TEST_P(CreateFileForm, IsThatOfItsKind)
{
    EXPECT_EQ(Saved(), MeaningOf(GetParam().form));
}

TEST_P(CreateFileForm, BeginsWithTheDeclarationAndTheRoot)
{
    EXPECT_THAT(OneLine(),
                testing::StartsWith("<?xml version='1.0' encoding='UTF-8'?><" + GetParam().root + " "));
}

TEST_P(CreateFileForm, HasItsRootsAttributesInTheirOrder)
{
    const std::string bytes = OneLine();
    const std::size_t begin = bytes.find("<" + GetParam().root);
    const std::string tag = bytes.substr(begin, bytes.find('>', begin) - begin);

    const std::regex attribute(" ([A-Za-z:]+)=[\"']");
    std::vector<std::string> attributes;
    for (std::sregex_iterator each(tag.begin(), tag.end(), attribute); each != std::sregex_iterator(); ++each)
    {
        attributes.push_back(each->str(1));
    }
    EXPECT_EQ(attributes, GetParam().attributes);
}

TEST_P(CreateFileForm, EndsWithTheNoticeBehindTheRoot)
{
    EXPECT_THAT(OneLine(),
                testing::EndsWith("</" + GetParam().root + "><!-- NorvepaBl64x configuration store -->"));
}

} // namespace
} // namespace norvepa::test
