#include "store/Kinds.h"

#include "support/TemporaryFolder.h"
#include "support/XmlMeaning.h"

#include <gmock/gmock.h>
#include <ostream>

namespace norvepa::test
{
namespace
{

struct KindCase
{
    const wchar_t* kind;
    const char* path; // below the driver namespace
};

constexpr const char* None = nullptr; // no namespace at all

void PrintTo(const KindCase& each, std::ostream* out)
{
    *out << ToUtf8(each.kind);
}

class Kinds : public testing::TestWithParam<KindCase>
{
};

TEST_P(Kinds, SayTheNamespaceOfAnElement)
{
    const auto& [kind, path] = GetParam();
    const std::string uri =
        path == None ? "" : std::string("http://www.marvolt.example/Automation/Corvane.Device.Driver") + path;
    const TemporaryFolder folder;
    Document document;
    ASSERT_EQ(document.Create(), S_OK);

    ASSERT_TRUE(document.Append(NorvXMLCreateElement(L"Any", kind, document)));
    ASSERT_TRUE(document.Save(folder / L"any.xml"));

    EXPECT_EQ(MeaningOfFile(folder / L"any.xml"), MeaningOf("<Any xmlns='" + uri + "'/>"));
    EXPECT_EQ(ToUtf8(NamespaceOfKind(kind)), uri);
}

INSTANTIATE_TEST_SUITE_P(, Kinds,
                         testing::Values(KindCase{L"dev", "/LogDevice"}, KindCase{L"nam", "/LogName"},
                                         KindCase{L"notif", "/Notification"},
                                         KindCase{L"driv", "/DriverInfo"}, KindCase{L"pgsp", "/PGSP"},
                                         KindCase{L"x", ""}, KindCase{L"dll", "/Instance"},
                                         KindCase{L"brd", None}, KindCase{L"pro", None}, KindCase{L"", None},
                                         KindCase{L"unknown", None}, KindCase{L"DEV", None},
                                         KindCase{L"dev ", None}, KindCase{L"de", None}));

TEST(KindsTest, WhatIsNoNameMakesNoElement)
{
    Document document;
    ASSERT_EQ(document.Create(), S_OK);

    EXPECT_FALSE(NorvXMLCreateElement(L"", L"dev", document));
    EXPECT_FALSE(NorvXMLCreateElement(L"two words", L"dev", document));
    EXPECT_FALSE(NorvXMLCreateElement(L"two words", L"brd", document));
}

} // namespace
} // namespace norvepa::test
