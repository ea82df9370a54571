#include "store/ReadScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

// Which folder word of a path decides. The document answers differently by each kind of file.
class GetValueRawKind : public ReadScene
{
protected:
    [[nodiscard]] Answer SubSectionOf(std::wstring_view name) const
    {
        return GetValueRaw(File(m_document, name), L"S\\Sub", L"word");
    }

    // Only a protocol's words are found by their ParamSection alone.
    [[nodiscard]] Answer WordOf(std::wstring_view name) const
    {
        return GetValueRaw(File(m_document, name), L"Alone", L"word");
    }

    const std::string m_document = LogDeviceFile(
        XmlContent().Element(L"S", XmlContent()
                                       .Element(L"Sub", XmlContent().Text(L"word", L"template"))
                                       .ParamSection(L"Sub", XmlContent().Element(L"word", L"catalogue"))
                                       .ParamSection(L"Alone", XmlContent().Element(L"word", L"catalogue"))));
    const Answer m_asTemplate = Found(L"template");
    const Answer m_asBoard = Found(L"catalogue");
    const Answer m_asProtocol = Found(L"catalogue");
};

TEST_F(GetValueRawKind, EachFolderHasItsOwn)
{
    EXPECT_EQ(SubSectionOf(L"meta\\DefaultLogDevices\\file"), m_asTemplate);
    EXPECT_EQ(SubSectionOf(L"meta\\Boards\\file"), m_asBoard);
    EXPECT_EQ(SubSectionOf(L"meta\\Protocols\\file"), NotFound());
    EXPECT_EQ(SubSectionOf(L"meta\\Profiles\\file"), NotFound());
}

TEST_F(GetValueRawKind, OnlyProtocolsAreSearchedForTheWordAlone)
{
    EXPECT_EQ(WordOf(L"meta\\Protocols\\file"), m_asProtocol);

    EXPECT_EQ(WordOf(L"meta\\DefaultLogDevices\\file"), NotFound());
    EXPECT_EQ(WordOf(L"meta\\Boards\\file"), NotFound());
    EXPECT_EQ(WordOf(L"meta\\Profiles\\file"), NotFound());
}

TEST_F(GetValueRawKind, TemplatesComeBeforeBoardsAndBoardsBeforeProtocolsWhereverTheyStand)
{
    EXPECT_EQ(SubSectionOf(L"Boards\\DefaultLogDevices\\file"), m_asTemplate);
    EXPECT_EQ(SubSectionOf(L"Protocols\\DefaultLogDevices\\file"), m_asTemplate);
    EXPECT_EQ(SubSectionOf(L"Protocols\\Boards\\file"), m_asBoard);
    EXPECT_EQ(SubSectionOf(L"Boards\\Protocols\\file"), m_asBoard);
}

TEST_F(GetValueRawKind, TheWordCountsAnywhereInThePath)
{
    EXPECT_EQ(SubSectionOf(L"MyBoards2\\file"), m_asBoard);
    EXPECT_EQ(SubSectionOf(L"plain\\Boards of the plant"), m_asBoard);
}

TEST_F(GetValueRawKind, TheWordCountsInItsExactCaseOnly)
{
    EXPECT_EQ(SubSectionOf(L"boards\\file"), NotFound());
    EXPECT_EQ(SubSectionOf(L"DEFAULTLOGDEVICES\\file"), NotFound());
    EXPECT_EQ(WordOf(L"protocols\\file"), NotFound());
}

TEST_F(GetValueRawKind, AWordThatThePathBeginsWithDoesNotCount)
{
    static_cast<void>(File(m_document, L"Boards\\file"));
    static_cast<void>(File(m_document, L"x\\Boards\\file"));
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder().path());

    const Answer atTheBeginning = GetValueRaw(L"Boards\\file", L"S\\Sub", L"word");
    const Answer further = GetValueRaw(L"x\\Boards\\file", L"S\\Sub", L"word");
    std::filesystem::current_path(before);

    EXPECT_EQ(atTheBeginning, NotFound());
    EXPECT_EQ(further, m_asBoard);
}

} // namespace
} // namespace norvepa::test
