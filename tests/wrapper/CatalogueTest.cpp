#include "WrapperScene.h"
#include "support/XmlFiles.h"

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WrapperCatalogue : public WrapperScene
{
};

TEST_F(WrapperCatalogue, NamesAreValues)
{
    EXPECT_EQ(Board(L"AFK110").name(), L"AFK110");
    EXPECT_EQ(Board(L"AFK110"), Board(L"AFK110"));
    EXPECT_NE(Protocol(L"L2"), Protocol(L"MPI"));
    EXPECT_EQ(Protocol(L"L2").name(), L"L2");
    EXPECT_NE(Template(L"L2-AFK110"), Template(L"L2-AFK220"));
}

TEST_F(WrapperCatalogue, ABoardTellsItsValues)
{
    const Board board(L"*AFK110");

    EXPECT_EQ(board.Get(L"Asic_Type").value(), L"AUE_32_B");
    EXPECT_THAT(board.Values().value(), Contains(Parameter{L"Connector", L"9-polig, 150 \u03A9"}));
    EXPECT_EQ(board.Get(L"nix").error(), Error("PGSP_BoardGetValueBL", PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Board(L"gone").Values().error(), Error("PGSP_BoardGetEnumValueBL", PGSP_ERR_FILE_NOT_FOUND));
}

TEST_F(WrapperCatalogue, ABoardTellsItsLists)
{
    const Board board(L"AFK110");

    EXPECT_THAT(board.NotSupported().value(),
                ElementsAre(L"redundant_master", L"Glasfaser", L"3000000/3 Mbit/s", L"6000000/6 Mbit/s",
                            L"12000000/12 Mbit/s"));
    EXPECT_THAT(board.List(L"Constraints\\l4_timeout").value(), Contains(L"2000/2 s"));
    EXPECT_THAT(board.List(L"Constraints\\nix").value(), IsEmpty());
}

// Of which the library tells otherwise that the last terminator has no room.
TEST_F(WrapperCatalogue, ABoardTellsAListThatFillsTheRoomExactly)
{
    const std::wstring text(detail::FirstRoom - 1, L'x');
    const XmlContent list = XmlContent().Element(L"ValueCollection", XmlContent().Element(L"Value", text));
    WriteBytes(roots.board(L"GENAU"),
               BoardFile(XmlContent()
                             .Element(L"NotSupported", list)
                             .Element(L"Constraints", XmlContent().ParamSection(L"kanal", list)),
                         L"GENAU"));

    EXPECT_THAT(Board(L"GENAU").List(L"Constraints\\kanal").value(), ElementsAre(text));
    EXPECT_THAT(Board(L"GENAU").NotSupported().value(), ElementsAre(text));
}

TEST_F(WrapperCatalogue, ABoardTellsATextInALanguage)
{
    LayOutTexts();

    EXPECT_EQ(Board(L"AFK110").Text(L"DescText", L"en").value(), L"Fieldbus board 110");
    EXPECT_FALSE(Board(L"AFK110").Text(L"Nix").has_value());
}

TEST_F(WrapperCatalogue, AProtocolTellsWhatItSays)
{
    const Protocol serial(L"SERIAL");

    EXPECT_THAT(serial.Defaults().value(), Contains(Parameter{L"char_delay", L"4"}));
    EXPECT_THAT(serial.Words(L"char_delay").value(), Contains(Parameter{L"max", L"255"}));
    EXPECT_EQ(serial.Words(L"nix").error(), Error("PGSP_ProtocolGetEnumValueBL", PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(CodeOf(Protocol(L"gone").Defaults()), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(WrapperCatalogue, AProtocolTellsItsBusProfilesAndBaudRates)
{
    const Protocol l2(L"L2");

    EXPECT_THAT(l2.BusProfiles().All().value(), SizeIs(4));
    EXPECT_FALSE(l2.BaudRates().All().value().empty());
    EXPECT_LT(l2.BaudRates(L"1").All().value().size(), l2.BaudRates().All().value().size());
    EXPECT_EQ(Protocol(L"TCPIP").BusProfiles().All().error(),
              Error("PGSP_ProtocolGetEnumBusprofilesBL", PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_THROW(static_cast<void>(Protocol(L"TCPIP").BaudRates().begin()), Failure);
}

TEST_F(WrapperCatalogue, ATemplateTellsItsValues)
{
    const Template from(L"MPI-AFK110");

    EXPECT_EQ(from.name(), L"MPI-AFK110");
    EXPECT_EQ(from.Get(L"CP_TYPE").value(), L"MPI");
    EXPECT_THAT(from.Values().value(), Contains(Parameter{L"DeviceId", L"AFK110"}));
    EXPECT_EQ(Template(L"gone").Values().error(),
              Error("PGSP_DefDeviceGetEnumValueBL", PGSP_ERR_FILE_NOT_FOUND));
    EXPECT_EQ(Template(L"gone").Get(L"CP_TYPE").error(),
              Error("PGSP_DefDeviceGetValueBL", PGSP_ERR_CANT_LOAD_XML_FILE));
}

} // namespace
} // namespace norvepa::test
