#include "norvctl/DeviceDocument.h"

#include <gmock/gmock.h>
#include <stdexcept>
#include <string>

namespace norvepa::test
{
namespace
{

using Document = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::StartsWith;

const Document Whole{{"format", "norvctl log device"},
                     {"version", 1},
                     {"name", "Presse"},
                     {"board", "AFK110"},
                     {"protocol", "MPI"},
                     {"sections", {{"Ndi", {{"VendorName", "Auental"}, {"Year", {"2019", "2020"}}}}}},
                     {"subdevices", {{"Zange", {{"address", "3"}}}}},
                     {"links", {{"UserInterface", {{"DescText", "Texte.dll,1001"}}}}}};

std::string WhyNot(const std::string& bytes)
{
    try
    {
        static_cast<void>(norvctl::ParseDeviceDocument("presse.json", bytes));
        return "it is a document";
    }
    catch (const std::runtime_error& error)
    {
        return error.what();
    }
}

struct Spoiled
{
    void (*spoil)(Document& document);
    const char* why;
};

class ADeviceDocumentThatIsSpoiled : public testing::TestWithParam<Spoiled>
{
};

TEST(ADeviceDocument, IsWrittenAsItIsRead)
{
    const norvctl::DeviceDocument document = norvctl::ParseDeviceDocument("presse.json", Whole.dump());

    EXPECT_EQ(document.name, "Presse");
    EXPECT_EQ(norvctl::AttributeOf(document.content, "DeviceID"), "AFK110");
    EXPECT_EQ(norvctl::AsJson(document), Whole);
}

TEST(ADeviceDocument, IsNotAnythingElse)
{
    EXPECT_THAT(WhyNot(""), StartsWith("presse.json: this isn't a JSON document: "));
    EXPECT_THAT(WhyNot("[1, 2"), HasSubstr("this isn't a JSON document"));
    EXPECT_THAT(WhyNot("\xFF\xFE{"), HasSubstr("this isn't a JSON document"));
    EXPECT_THAT(WhyNot("\"\xC3\""), HasSubstr("this isn't a JSON document"));
    EXPECT_THAT(WhyNot(Whole.dump() + "}"), HasSubstr("this isn't a JSON document"));
    EXPECT_THAT(WhyNot("null"), HasSubstr("this isn't a log device as device export writes it"));
    EXPECT_THAT(WhyNot("{\"format\": \"another\"}"), HasSubstr("this isn't a log device as device export"));
}

TEST(ADeviceDocument, IsNotNestedDeep)
{
    EXPECT_THAT(WhyNot(std::string(1'000'000, '[')), HasSubstr("no log device is nested so deep"));
}

TEST(ADeviceDocument, IsNotCutOffAnywhere)
{
    const std::string whole = Whole.dump();
    for (std::size_t length = 0; length < whole.size(); ++length)
    {
        EXPECT_THAT(WhyNot(whole.substr(0, length)), HasSubstr("this isn't a JSON document")) << length;
    }
}

TEST(ADeviceDocument, HasNoKeyTwice)
{
    std::string twice = Whole.dump();
    twice.insert(twice.find("\"VendorName\""), "\"VendorName\":\"Andere\",");

    EXPECT_EQ(WhyNot(twice), "presse.json: sections/Ndi/VendorName: this key comes twice");
}

TEST_P(ADeviceDocumentThatIsSpoiled, IsRefusedWithThePlace)
{
    Document document = Whole;

    GetParam().spoil(document);

    EXPECT_THAT(WhyNot(document.dump()), StartsWith(std::string("presse.json: ") + GetParam().why));
}

const Spoiled AllSpoiled[]{
    {[](Document& all) { all["version"] = 2; }, "version: this is 2, and this norvctl knows 1 and older"},
    {[](Document& all) { all["version"] = "1"; }, "version: this isn't a version"},
    {[](Document& all) { all["version"] = 0; }, "version: this isn't a version"},
    {[](Document& all) { all.erase("links"); }, "links: this is missing"},
    {[](Document& all) { all["more"] = 1; }, "more: no log device has this"},
    {[](Document& all) { all["board"] = 7; }, "board: this isn't a text"},
    {[](Document& all) { all["sections"] = "none"; }, "sections: this isn't an object"},
    {[](Document& all) { all["sections"]["Ndi"] = Document::array(); },
     "sections/Ndi: this isn't an object of values"},
    {[](Document& all) { all["sections"]["Ndi"]["Year"] = 2019; }, "sections/Ndi/Year: this isn't a text"},
    {[](Document& all) { all["sections"]["Ndi"]["Year"] = Document::array(); },
     "sections/Ndi/Year: there is no value in this array"},
    {[](Document& all) { all["sections"]["Ndi"]["Year"][1] = nullptr; },
     "sections/Ndi/Year/1: this isn't a text"},
    {[](Document& all) { all["sections"]["Ndi"]["Year"] = std::string("1\0002", 3); },
     "sections/Ndi/Year: a text can't hold a zero character"},
    {[](Document& all) { all["sections"]["Ndi"][""] = "x"; }, "sections/Ndi/: this isn't a name"},
    {[](Document& all) { all["sections"]["Ndi"]["vendorname"] = "x"; },
     "sections/Ndi/vendorname: this name comes twice"},
    {[](Document& all) { all["links"]["UserInterface"]["Other"] = "a,1"; },
     "links/UserInterface/Other: of links only DescDefault"},
    {[](Document& all) { all["links"]["Ndi"]["DescText"] = "a,1"; }, "links/Ndi: links stand in"},
};

INSTANTIATE_TEST_SUITE_P(OfAllKinds, ADeviceDocumentThatIsSpoiled, testing::ValuesIn(AllSpoiled));

} // namespace
} // namespace norvepa::test
