#include "store/WriteScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

// The path of a file, without extension, and the namespace of what is made in it.
struct PathCase
{
    const wchar_t* path;
    const char* nameSpace;
};

constexpr const char* OfLogDevices = "http://www.marvolt.example/Automation/Corvane.Device.Driver/LogDevice";
constexpr const char* None = "";

void PrintTo(const PathCase& each, std::ostream* out)
{
    *out << ToUtf8(each.path);
}

class SetNdiPaths : public testing::TestWithParam<PathCase>
{
protected:
    [[nodiscard]] std::wstring path() const { return m_folder / GetParam().path; }
    [[nodiscard]] std::wstring file() const { return path() + L".xml"; }

    [[nodiscard]] Result Set(const wchar_t* assembly, const wchar_t* libraryPath) const
    {
        return NorvXMLSetNdi(path().c_str(), L"DescText", assembly, libraryPath, nullptr, L"7", 0);
    }

private:
    TemporaryFolder m_folder;
};

// Documents without a namespace, so that that of what is made shows.

TEST_P(SetNdiPaths, SayTheNamespaceOfANewSectionAndItsLink)
{
    WriteBytes(file(), "<root/>");

    EXPECT_EQ(Set(L"A", L"p"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(file()),
              MeaningOf(std::string("<root><UserInterface64 xmlns='") + GetParam().nameSpace +
                        "'><Resource><Name>DescText</Name><Assembly>A</Assembly><Path>p</Path>"
                        "<ResourceId>7</ResourceId></Resource></UserInterface64></root>"));
}

TEST_P(SetNdiPaths, SayTheNamespaceOfWhatALinkIsGiven)
{
    const auto document = [](const std::string& added) {
        return "<root><UserInterface64><Resource><Name>DescText</Name>"
               "<ResourceId>7</ResourceId>" +
               added + "</Resource></UserInterface64></root>";
    };
    WriteBytes(file(), document(""));

    EXPECT_EQ(Set(L"A", nullptr), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(file()), MeaningOf(document(std::string("<Assembly xmlns='") +
                                                        GetParam().nameSpace + "'>A</Assembly>")));
}

INSTANTIATE_TEST_SUITE_P(WithAFolderWord, SetNdiPaths,
                         testing::Values(PathCase{L"Boards\\a", None},
                                         PathCase{L"LogDevices\\a", OfLogDevices},
                                         PathCase{L"DefaultLogDevices\\a", OfLogDevices},
                                         PathCase{L"Protocols\\a", None}));

INSTANTIATE_TEST_SUITE_P(WithoutOne, SetNdiPaths,
                         testing::Values(PathCase{L"a", None}, PathCase{L"LogNames\\a", None},
                                         PathCase{L"logdevices\\a", None}, PathCase{L"LOGDEVICES\\a", None},
                                         PathCase{L"LogDevice\\a", None}));

INSTANTIATE_TEST_SUITE_P(WithOneAnywhere, SetNdiPaths,
                         testing::Values(PathCase{L"My LogDevices.old\\a", OfLogDevices},
                                         PathCase{L"LogDevices\\deeper\\a", OfLogDevices},
                                         PathCase{L"LogNames\\aLogDevicesb", OfLogDevices}));

// "Boards" is looked for ahead of "LogDevices", and that ahead of "Protocols".
INSTANTIATE_TEST_SUITE_P(WithSeveral, SetNdiPaths,
                         testing::Values(PathCase{L"LogDevices\\Boards", None},
                                         PathCase{L"Boards\\LogDevices", None},
                                         PathCase{L"DefaultLogDevices\\Boards", None},
                                         PathCase{L"Protocols\\LogDevices", OfLogDevices},
                                         PathCase{L"LogDevices\\Protocols", OfLogDevices},
                                         PathCase{L"Protocols\\DefaultLogDevices", OfLogDevices}));

} // namespace
} // namespace norvepa::test
