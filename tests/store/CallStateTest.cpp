// A call sees one state of a file until it changes a file itself: then it sees what it has done.

#include "frame/CallScope.h"
#include "store/FileSteps.h"
#include "store/WriteScene.h"

#include <functional>
#include <ostream>

namespace norvepa::test
{
namespace
{

// Something that changes files of a folder: "a.xml", whose parameter has the value "a", and likewise "b.xml".
struct Step
{
    const char* name;
    std::function<Result(const std::wstring& a, const std::wstring& b, const std::wstring& missing)> take;
    // What the values are then; empty for a file that can't be read, or holds none.
    std::wstring a;
    std::wstring b;
    std::wstring missing;
    Result result = PGSP_OK;
};

void PrintTo(const Step& step, std::ostream* out)
{
    *out << step.name;
}

std::string DeviceThatSays(std::wstring_view value)
{
    return DeviceWith(XmlContent().Text(L"Wort", value));
}

class CallState : public WriteScene, public testing::WithParamInterface<Step>
{
protected:
    CallState()
    {
        WriteBytes(a + L".xml", DeviceThatSays(L"a"));
        WriteBytes(b + L".xml", DeviceThatSays(L"b"));
    }

    // Empty when there is none.
    [[nodiscard]] static std::wstring ValueIn(const std::wstring& path)
    {
        std::wstring value;
        return NorvXMLGetValue(path.c_str(), L"LocalSettings", L"Wort", &value) == PGSP_OK ? value
                                                                                           : std::wstring();
    }

    const std::wstring a = folder() / L"a";
    const std::wstring b = folder() / L"b";
    const std::wstring missing = folder() / L"missing";
};

TEST_P(CallState, IsWhatItsOwnStepHasMadeOfIt)
{
    const CallScope call;
    ASSERT_EQ(ValueIn(a), L"a");
    ASSERT_EQ(ValueIn(b), L"b");
    ASSERT_EQ(ValueIn(missing), L"");

    EXPECT_EQ(GetParam().take(a, b, missing), GetParam().result);

    EXPECT_EQ(ValueIn(a), GetParam().a);
    EXPECT_EQ(ValueIn(b), GetParam().b);
    EXPECT_EQ(ValueIn(missing), GetParam().missing);
}

// What others change it sees only then.
TEST_P(CallState, IsThatOfTheWholeFolderBehindItsOwnStep)
{
    const std::wstring other = folder() / L"other";
    WriteBytes(other + L".xml", DeviceThatSays(L"first"));
    const CallScope call;
    ASSERT_EQ(ValueIn(other), L"first");
    WriteBytes(other + L".xml", DeviceThatSays(L"second"));
    ASSERT_EQ(ValueIn(other), L"first");

    static_cast<void>(GetParam().take(a, b, missing));

    EXPECT_EQ(ValueIn(other), L"second");
}

INSTANTIATE_TEST_SUITE_P(
    , CallState,
    testing::Values(
        Step{"Deletion", [](const auto& a, const auto&, const auto&) { return NorvXMLDeleteFile(a.c_str()); },
             L"", L"b", L""},
        Step{"Copy",
             [](const auto& a, const auto&, const auto& missing) {
                 return NorvXMLCopyFile(a.c_str(), missing.c_str());
             },
             L"a", L"b", L"a"},
        Step{"Renaming",
             [](const auto& a, const auto&, const auto& missing) {
                 return NorvXMLRenameFile(a.c_str(), missing.c_str());
             },
             L"", L"b", L"a"},
        Step{"Replacing",
             [](const auto& a, const auto& b, const auto&) { return Replacing(b.c_str(), a.c_str()).Run(); },
             L"b", L"", L""},
        Step{"SwapOfAFile",
             [](const auto& a, const auto& b, const auto&) {
                 const Result deleted = NorvXMLDeleteFile(a.c_str());
                 return deleted == PGSP_OK ? NorvXMLCopyFile(b.c_str(), a.c_str()) : deleted;
             },
             L"b", L"b", L""},
        Step{"Creation",
             [](const auto&, const auto&, const auto& missing) {
                 return NorvXMLCreateFile(missing.c_str(), L"nam");
             },
             L"a", L"b", L""},
        Step{"CreationWithAValue",
             [](const auto&, const auto&, const auto& missing) {
                 const Result created = NorvXMLCreateFile(missing.c_str(), L"nam");
                 return created == PGSP_OK
                            ? NorvXMLSetValue(missing.c_str(), L"Parameters", L"Wort", L"c", L"string")
                            : created;
             },
             L"a", L"b", L""},
        Step{"Change",
             [](const auto& a, const auto&, const auto&) {
                 return NorvXMLSetValue(a.c_str(), L"LocalSettings", L"Wort", L"c", L"string");
             },
             L"c", L"b", L""},
        Step{"CopyThatFails",
             [](const auto& a, const auto& b, const auto&) { return NorvXMLCopyFile(a.c_str(), b.c_str()); },
             L"a", L"b", L"", PGSP_ERR_CANT_COPY_FILE}),
    [](const auto& each) { return std::string(each.param.name); });

using ACallThatCreatesAFile = CallState;

// Of a file that was looked at as it was, which nobody would do in one call but by another's hand.
TEST_F(ACallThatCreatesAFile, SeesTheFileThatItHasCreated)
{
    const CallScope call;
    ASSERT_EQ(ValueIn(a), L"a");
    DeleteFileW((a + L".xml").c_str());

    ASSERT_EQ(NorvXMLCreateFile(a.c_str(), L"nam"), PGSP_OK);

    std::wstring value;
    EXPECT_EQ(ValueIn(a), L"");
    EXPECT_EQ(NorvXMLSetValue(a.c_str(), L"Parameters", L"Wort", L"c", L"string"), PGSP_OK);
    EXPECT_EQ(NorvXMLGetValue(a.c_str(), L"Parameters", L"Wort", &value), PGSP_OK);
    EXPECT_EQ(value, L"c");
}

} // namespace
} // namespace norvepa::test
