#include "store/ReadScene.h"
#include "support/ImportHook.h"

#include <windows.h>

#include <utility>

namespace norvepa::test
{
namespace
{

class GetValueRawProtocol : public ReadScene
{
protected:
    [[nodiscard]] std::wstring Protocol(const XmlContent& content) const
    {
        return File(ProtocolFile(content), L"meta\\Protocols\\Automation-OnlineAccess-PT-MPI");
    }
};

TEST_F(GetValueRawProtocol, ReadsAnEntryOfASection)
{
    const std::wstring file = Protocol(XmlContent().Element(L"S", XmlContent().Int(L"a", L"1")));

    EXPECT_EQ(GetValueRaw(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueRawProtocol, ReadsAWordOfTheParamSectionOfThatName)
{
    const std::wstring file = Protocol(XmlContent().Element(
        L"Constraints",
        XmlContent()
            .ParamSection(L"Unit", XmlContent().Element(L"type", L"int").Element(L"max", L"255"))
            .ParamSection(L"baudrate", XmlContent().Element(L"type", L"int").Element(L"max", L"187500"))));

    EXPECT_EQ(GetValueRaw(file, L"Baudrate", L"MAX"), Found(L"187500"));
    EXPECT_EQ(GetValueRaw(file, L"Unit", L"max"), Found(L"255"));
    EXPECT_EQ(GetValueRaw(file, L"Unit", L"min"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"other", L"max"), NotFound());
}

TEST_F(GetValueRawProtocol, FindsAParamSectionWhereverItStands)
{
    const std::wstring file = Protocol(XmlContent().EmptyTag(L"odd").Element(
        L"Constraints",
        XmlContent().ParamSection(
            L"baudrate",
            XmlContent().Element(
                L"ValueCollection",
                XmlContent().ParamSection(
                    L"9600", XmlContent().ParamSection(L"Ttr", XmlContent().Element(L"max", L"1")))))));

    EXPECT_EQ(GetValueRaw(file, L"Ttr", L"max"), Found(L"1"));
}

TEST_F(GetValueRawProtocol, AnEntryOfTheSectionComesBeforeAWordThatStandsAheadOfIt)
{
    const std::wstring file =
        Protocol(XmlContent()
                     .ParamSection(L"S", XmlContent().Element(L"a", L"word").Element(L"b", L"other word"))
                     .Element(L"S", XmlContent().Text(L"a", L"entry")));

    EXPECT_EQ(GetValueRaw(file, L"S", L"a"), Found(L"entry"));
    EXPECT_EQ(GetValueRaw(file, L"S", L"b"), Found(L"other word"));
}

TEST_F(GetValueRawProtocol, AWordThatTheFirstParamSectionLacksComesFromALaterOneOfItsName)
{
    const std::wstring file = Protocol(XmlContent()
                                           .ParamSection(L"p", XmlContent().Element(L"min", L"1"))
                                           .EmptyTag(L"ParamSection", {{L"Param", L"p"}})
                                           .ParamSection(L"p", XmlContent().Element(L"max", L"2")));

    EXPECT_EQ(GetValueRaw(file, L"p", L"max"), Found(L"2"));
}

TEST_F(GetValueRawProtocol, AWordOfTwoTagsIsEmptyAndAnEmptyTagIsNoWord)
{
    const std::wstring file =
        Protocol(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"").EmptyTag(L"max")));

    EXPECT_EQ(GetValueRaw(file, L"p", L"min"), Found(L""));
    EXPECT_EQ(GetValueRaw(file, L"p", L"max"), NotFound());
}

TEST_F(GetValueRawProtocol, ASubSectionIsNotFoundAsSoonAsItsSectionIsMet)
{
    const std::wstring file =
        Protocol(XmlContent()
                     .Element(L"S", XmlContent()
                                        .Text(L"min", L"1")
                                        .Element(L"Sub", XmlContent().Text(L"min", L"2"))
                                        .ParamSection(L"Sub", XmlContent().Element(L"min", L"3")))
                     .ParamSection(L"S", XmlContent().Element(L"min", L"4")));

    EXPECT_EQ(GetValueRaw(file, L"S\\Sub", L"min"), NotFound());
}

TEST_F(GetValueRawProtocol, WithoutSuchASectionASubSectionIsIgnoredAndTheWordIsFound)
{
    const std::wstring file = Protocol(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"1")));

    EXPECT_EQ(GetValueRaw(file, L"p\\Sub", L"min"), Found(L"1"));
}

TEST_F(GetValueRawProtocol, TheEmptyPathIsTheParamSectionOfTheEmptyName)
{
    const std::wstring file = Protocol(XmlContent()
                                           .ParamSection(L"p", XmlContent().Element(L"min", L"1"))
                                           .ParamSection(L"", XmlContent().Element(L"min", L"2")));

    EXPECT_EQ(GetValueRaw(file, L"", L"min"), Found(L"2"));
}

TEST_F(GetValueRawProtocol, NoPathIsTheSpareSectionAlsoAsAParamSection)
{
    const std::wstring file =
        Protocol(XmlContent().ParamSection(L"SpareSection", XmlContent().Element(L"min", L"1")));

    EXPECT_EQ(GetValueRaw(file, nullptr, L"min"), Found(L"1"));
}

TEST_F(GetValueRawProtocol, AMalformedPlaceEndsTheFirstSearchAndTheSecondGoesUpToIt)
{
    const std::wstring file = File("<Profile><ParamSection Param='p'><min>1</min></ParamSection><odd></wrong>"
                                   "<ParamSection Param='q'><min>2</min></ParamSection></Profile>",
                                   L"meta\\Protocols\\file");

    EXPECT_EQ(GetValueRaw(file, L"p", L"min"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"q", L"min"), NotFound());
}

bool isFirst = true;

// Opens the first file, and none behind it.
HANDLE WINAPI OpenOnce(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                       DWORD disposition, DWORD flags, HANDLE model)
{
    // Not by its name here, which leads back to this function.
    static const auto createFile = reinterpret_cast<decltype(&CreateFileW)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "CreateFileW")));
    if (!std::exchange(isFirst, false))
    {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    return createFile(path, access, sharing, security, disposition, flags, model);
}

TEST_F(GetValueRawProtocol, AFileThatIsGoneWhenTheSecondSearchOpensItCanNotBeLoaded)
{
    const std::wstring file = Protocol(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"1")));
    const ImportHook opening("CreateFileW", OpenOnce);
    isFirst = true;

    EXPECT_EQ(GetValueRaw(file, L"p", L"min"), (Answer{PGSP_ERR_CANT_LOAD_XML_FILE, L""}));
}

} // namespace
} // namespace norvepa::test
