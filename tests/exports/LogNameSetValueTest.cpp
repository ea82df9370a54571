#include "LogNameScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

class LogNameSetValue : public LogNameScene
{
protected:
    LogNameSetValue()
    {
        Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2").Text(L"Bereich", L"West"));
    }

    [[nodiscard]] std::int32_t Set(const wchar_t* parameter, const wchar_t* value) const
    {
        return library.LogNameSetValueBL(L"Pumpe", parameter, value);
    }

    void ExpectSaved(const XmlContent& parameters) const
    {
        EXPECT_EQ(Saved(), MeaningOf(LogNameFile(parameters)));
    }
};

TEST_F(LogNameSetValue, ReplacesTheValueInItsPlace)
{
    EXPECT_EQ(Set(L"Station", L"Halle 3"), PGSP_OK);

    ExpectSaved(XmlContent().Text(L"Station", L"Halle 3").Text(L"Bereich", L"West"));
}

TEST_F(LogNameSetValue, FindsTheParameterInAnyCase)
{
    EXPECT_EQ(Set(L"STATION", L"Halle 3"), PGSP_OK);

    ExpectSaved(XmlContent().Text(L"Station", L"Halle 3").Text(L"Bereich", L"West"));
}

TEST_F(LogNameSetValue, MakesAParameterThatIsNotThereBehindTheOthers)
{
    EXPECT_EQ(Set(L"St\u00F6rung", L"\u00DCberdruck & mehr"), PGSP_OK);

    ExpectSaved(XmlContent()
                    .Text(L"Station", L"Halle 2")
                    .Text(L"Bereich", L"West")
                    .Text(L"St\u00F6rung", L"\u00DCberdruck & mehr"));
}

TEST_F(LogNameSetValue, TakesAnEmptyValue)
{
    EXPECT_EQ(Set(L"Station", L""), PGSP_OK);

    ExpectSaved(XmlContent().Text(L"Station", L"").Text(L"Bereich", L"West"));
}

TEST_F(LogNameSetValue, WithTheSameValueLeavesTheFileAsItIs)
{
    const std::string before = Bytes();

    EXPECT_EQ(Set(L"Station", L"Halle 2"), PGSP_OK);
    EXPECT_EQ(Set(L"Station", L"HALLE 2"), PGSP_OK);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(LogNameSetValue, ProtectsNoWord)
{
    EXPECT_EQ(Set(L"DeviceID", L"AFK110"), PGSP_OK);
    EXPECT_EQ(Set(L"CP_TYPE", L"MPI"), PGSP_OK);
    EXPECT_EQ(Set(L"LogDevice", L"no such device"), PGSP_OK);
    EXPECT_EQ(Set(L"hidden", L"neither true nor false"), PGSP_OK);
    EXPECT_EQ(Set(L"LOCKED_BY_THREAD_POINTER", L"another thread"), PGSP_OK);

    ExpectSaved(XmlContent()
                    .Text(L"Station", L"Halle 2")
                    .Text(L"Bereich", L"West")
                    .Text(L"DeviceID", L"AFK110")
                    .Text(L"CP_TYPE", L"MPI")
                    .Text(L"LogDevice", L"no such device")
                    .Text(L"hidden", L"neither true nor false")
                    .Text(L"LOCKED_BY_THREAD_POINTER", L"another thread"));
}

TEST_F(LogNameSetValue, AlwaysWritesATextAndPassesOverEntriesOfOtherKinds)
{
    Write(L"Pumpe", XmlContent().Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"));

    EXPECT_EQ(Set(L"Stufe", L"two"), PGSP_OK);
    EXPECT_EQ(Set(L"Aktiv", L"TRUE"), PGSP_OK);

    ExpectSaved(XmlContent()
                    .Int(L"Stufe", L"1")
                    .Bool(L"Aktiv", L"true")
                    .Text(L"Stufe", L"two")
                    .Text(L"Aktiv", L"TRUE"));
}

// The parameter meant is "(default)", and no name with parentheses may be written.
TEST_F(LogNameSetValue, RefusesToWriteTheDefault)
{
    Write(L"Pumpe", XmlContent().Text(L"(default)", L"old").Text(L"default", L"old"));
    const std::string before = Bytes();

    EXPECT_EQ(Set(nullptr, L"new"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"", L"new"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"(default)", L"old"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(LogNameSetValue, RefusesForbiddenCharactersInNames)
{
    const std::string before = Bytes();

    for (const wchar_t character : std::wstring(L" []^!\"\u00A7$%&()=?\u00B4'#+><*|;,"))
    {
        const std::wstring name = std::wstring(L"a") + character + L"b";
        EXPECT_EQ(Set(name.c_str(), L"1"), PGSP_ERR_INVALID_PARAMETERS) << ToUtf8(name);
    }

    EXPECT_EQ(Bytes(), before);
}

TEST_F(LogNameSetValue, RefusesAngleBracketsInValues)
{
    const std::string before = Bytes();

    EXPECT_EQ(Set(L"Station", L"a<b"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Station", L"a>b"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Neu", L"<"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Set(L"Station", L" []^!\"\u00A7$%&()=?\u00B4'#+*|;,:/\\"), PGSP_OK);
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L" []^!\"\u00A7$%&()=?\u00B4'#+*|;,:/\\");
}

TEST_F(LogNameSetValue, FindsNoFileForALogNameThatIsMissing)
{
    EXPECT_EQ(library.LogNameSetValueBL(L"Presse", L"Station", L"1"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(Files(), testing::ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameSetValue, LeavesAFileThatCanNotBeLoadedAsItIs)
{
    WriteBytes(roots.logName(L"Pumpe"), "<LogName><Parameters></LogName>");

    EXPECT_EQ(Set(L"Station", L"1"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_EQ(Bytes(), "<LogName><Parameters></LogName>");
}

TEST_F(LogNameSetValue, NeedsASectionToMakeAParameterIn)
{
    const std::string noSection = XmlFile(L"LogName", {}, XmlContent().Text(L"Station", L"Halle 2"));
    WriteBytes(roots.logName(L"Pumpe"), noSection);

    EXPECT_EQ(Set(L"Station", L"Halle 3"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), noSection);
}

TEST_F(LogNameSetValue, TestsThePathAheadOfNameAndValueAndThoseAheadOfTheFile)
{
    const std::wstring tooLong = NameForPathOf(260);

    EXPECT_EQ(library.LogNameSetValueBL(tooLong.c_str(), L"#", L"<"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogNameSetValueBL(tooLong.c_str(), L"Station", L"1"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogNameSetValueBL(L"Presse", L"#", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameSetValueBL(L"Presse", nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameSetValueBL(NameForPathOf(255).c_str(), L"Station", L"1"),
              PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNameSetValue, WorksOnAThreadWithoutComAndLeavesItSo)
{
    OnFreshThread([&] {
        EXPECT_EQ(Set(L"Station", L"Halle 3"), PGSP_OK);
        EXPECT_EQ(Set(L"Station", L"Halle 3"), PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectSaved(XmlContent().Text(L"Station", L"Halle 3").Text(L"Bereich", L"West"));
}

// Whether it could be saved isn't asked.
TEST_F(LogNameSetValue, SucceedsOnAFileInUseAndLeavesIt)
{
    const std::string before = Bytes();
    const OpenFile inUse(roots.logName(L"Pumpe"));

    EXPECT_EQ(Set(L"Station", L"Halle 3"), PGSP_OK);

    EXPECT_EQ(Bytes(), before);
}

} // namespace
} // namespace norvepa::test
