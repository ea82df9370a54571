#include "WrapperScene.h"

namespace norvepa::test
{
namespace
{

using testing::Contains;

const LogName Kessel1(L"Kessel#1");

class WrapperLogName : public WrapperScene
{
};

TEST_F(WrapperLogName, IsAName)
{
    EXPECT_EQ(Kessel1.name(), L"Kessel#1");
    EXPECT_EQ(Kessel1, LogName(L"Kessel#1"));
    EXPECT_NE(Kessel1, LogName(L"Kessel#2"));
}

TEST_F(WrapperLogName, TellsWhetherItExists)
{
    EXPECT_TRUE(Kessel1.Exists().value());
    EXPECT_TRUE(Kessel1.Exists(Access::Reading).value());
    EXPECT_FALSE(LogName(L"gone").Exists().value());
    EXPECT_EQ(LogName(L"").Exists().error(), Error("LogNameExistBL", PGSP_ERR_INVALID_PARAMETERS));
}

TEST_F(WrapperLogName, ReadsItsValues)
{
    EXPECT_EQ(Kessel1.Get(L"Messgr\u00F6\u00DFe").value(), L"Leitf\u00E4higkeit");
    EXPECT_THAT(Kessel1.Values().value(), Contains(Parameter{L"Einheit", L"\u00B5S/cm"}));
    EXPECT_EQ(Kessel1.Get(L"nix").error(), Error("LogNameGetValueBL", PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(LogName(L"gone").Values().error(), Error("LogNameGetEnumValueBL", PGSP_ERR_FILE_NOT_FOUND));
}

TEST_F(WrapperLogName, SetsAndRemovesAValue)
{
    EXPECT_TRUE(Kessel1.Set(L"Vermerk", LongText).has_value());
    EXPECT_EQ(Kessel1.Get(L"Vermerk").value(), LongText);

    EXPECT_TRUE(Kessel1.Unset(L"Vermerk").has_value());
    EXPECT_FALSE(Kessel1.Get(L"Vermerk").has_value());

    EXPECT_EQ(Kessel1.Set(L"Vermerk", L"<x>").error(),
              Error("LogNameSetValueBL", PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_EQ(Kessel1.Unset(L"Vermerk").error(), Error("LogNameDelValueBL", PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(WrapperLogName, FailsForANameThatMakesNoPath)
{
    const LogName endless(LongText);

    EXPECT_EQ(endless.Get(L"x").error(), Error("LogNameGetValueBL", PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_FALSE(endless.Linked().has_value());
    EXPECT_FALSE(endless.Delete().has_value());
}

TEST_F(WrapperLogName, IsMadeAndRemoved)
{
    const LogName made = LogName::Create(L"Mischer S\u00FCd #2").value();
    EXPECT_TRUE(made.Exists().value());
    EXPECT_EQ(LogName::Create(made.name()).error(), Error("LogNameCreateBL", PGSP_ERR_FILE_EXISTS));

    EXPECT_TRUE(made.Delete().has_value());

    EXPECT_FALSE(made.Exists().value());
    EXPECT_EQ(made.Delete().error(), Error("LogNameDeleteBL", PGSP_ERR_CANT_DELETE_FILE));
}

TEST_F(WrapperLogName, IsLinkedToALogDeviceOrNot)
{
    const LogName made = LogName::Create(L"Mischer").value();
    EXPECT_EQ(made.Linked().value(), std::nullopt) << "never linked";

    EXPECT_TRUE(made.LinkTo(Boiler).has_value());
    EXPECT_EQ(made.Linked().value(), Boiler);

    EXPECT_TRUE(made.Unlink().has_value());
    EXPECT_EQ(made.Linked().value(), std::nullopt) << "unlinked";

    EXPECT_EQ(made.LinkTo(Missing).error(), Error("LogNameSetLogDeviceBL", PGSP_ERR_LOG_DEVICE_NOT_EXISTS));
    EXPECT_EQ(LogName(L"gone").Linked().error(), Error("LogNameGetLogDeviceBL", PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(WrapperLogName, TellsATextInALanguage)
{
    LayOutTexts();

    EXPECT_EQ(Kessel1.Text(L"DescText", L"de").value(), L"Kessel 1");
    EXPECT_EQ(Kessel1.Text(L"DescText", L"en").value(), L"Boiler 1");
    EXPECT_FALSE(Kessel1.Text(L"Nix").has_value());
}

} // namespace
} // namespace norvepa::test
