#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolNames : public CatalogueScene
{
protected:
    // Whether each export meets the protocol by this name.
    [[nodiscard]] std::vector<bool> Met(const std::wstring& name) const
    {
        const Question profile{L"busparam", L"3"};
        const Question subProfile{L"busparam", L"3", L"baudrate", L"9600"};
        return {ProtocolPair(name, {}, 0) == L"busparam=1",
                ProtocolPair(name, {L"busparam"}, 0) == L"default=1",
                ProtocolPair(name, profile, 0) == L"slot=103",
                ProtocolPair(name, subProfile, 0) == L"(default)=of the baud rate",
                Busprofile(name, 0) == L"0/DP",
                Baudrate(name, nullptr, 0) == L"187500",
                Baudrate(name, L"3", 0) == L"9600",
                ProtocolValue(name, {}, L"CP_TYPE") == L"MPI",
                ProtocolValue(name, {L"busparam"}, L"type") == L"int",
                ProtocolValue(name, profile, L"slot") == L"103",
                ProtocolValue(name, subProfile, L"slot") == L"9",
                ProtocolValueRaw(name, nullptr, L"CP_TYPE") == L"MPI",
                ProtocolValueRaw(name, L"Constraints\\busparam\\3", L"slot") == L"103"};
    }
};

TEST_F(ProtocolNames, MayBeBareOrWithThePrefix)
{
    WriteProtocol(L"X", BusProtocol());

    EXPECT_THAT(Met(L"X"), testing::Each(true));
    EXPECT_THAT(Met(ProtocolPrefix + L"X"), testing::Each(true));
}

TEST_F(ProtocolNames, ThatHoldThePrefixAnywhereGetNoOther)
{
    WriteProtocolAs(L"Old-" + ProtocolPrefix + L"X", BusProtocol());

    EXPECT_THAT(Met(L"Old-" + ProtocolPrefix + L"X"), testing::Each(true));
}

TEST_F(ProtocolNames, HoldThePrefixInExactCaseOrNotAtAll)
{
    const std::wstring lower = L"automation-onlineaccess-pt-X";
    WriteProtocol(L"X", BusProtocol());
    EXPECT_THAT(Met(lower), testing::Each(false));

    WriteProtocol(lower, BusProtocol());
    EXPECT_THAT(Met(lower), testing::Each(true));
}

TEST_F(ProtocolNames, LoseNoStar)
{
    WriteProtocol(L"X", BusProtocol());

    EXPECT_THAT(Met(L"*X"), testing::Each(false));
    EXPECT_THAT(Met(L"*" + ProtocolPrefix + L"X"), testing::Each(false));
}

TEST_F(ProtocolNames, MayHoldAnyLetter)
{
    WriteProtocol(L"Gr\u00F6\u00DFe \u00B5\u03A9 \u20AC", BusProtocol());

    EXPECT_THAT(Met(L"Gr\u00F6\u00DFe \u00B5\u03A9 \u20AC"), testing::Each(true));
}

// Each query has its own way to the file: the name escaped not at all, once, or twice.
TEST_F(ProtocolNames, AreEscapedByEachQueryInItsOwnWay)
{
    WriteProtocol(L"50%", BusProtocol());
    EXPECT_THAT(Met(L"50%"), testing::ElementsAre(false, false, true, false, false, false, false, false, true,
                                                  false, true, false, true));

    WriteProtocol(L"50#25", BusProtocol());
    EXPECT_THAT(Met(L"50%"), testing::ElementsAre(true, true, true, true, false, true, true, true, true, true,
                                                  true, true, true));

    WriteProtocol(L"50(nmbr)25", BusProtocol());
    EXPECT_THAT(Met(L"50%"), testing::Each(true));
}

} // namespace
} // namespace norvepa::test
