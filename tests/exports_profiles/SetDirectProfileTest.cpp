#include "ProfileScene.h"

namespace norvepa::test
{
namespace
{

class SetDirectProfile : public ProfileScene
{
protected:
    // The protocol, of which the value "187500" of `baudrate` and the value "3" of `busparam` hold this.
    void WriteProfile(const XmlContent& pairs) const
    {
        store.WriteProtocol(Catalogue()
                                .Parameter(L"baudrate", {}, Profiles({{L"187500", pairs}}))
                                .Parameter(L"busparam", {}, Profiles({{L"3", pairs}})));
    }
};

TEST_F(SetDirectProfile, WritesAllPairsOfABaudrate)
{
    WriteProfile(XmlContent().Int(L"slot", L"100").Text(L"name", L"fast").Bool(L"dp", L"true"));
    WriteEntries(XmlContent().Text(L"baudrate", L"187500"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectEntries(XmlContent()
                      .Text(L"baudrate", L"187500")
                      .Text(L"slot", L"100")
                      .Text(L"name", L"fast")
                      .Text(L"dp", L"true"));
}

} // namespace
} // namespace norvepa::test
