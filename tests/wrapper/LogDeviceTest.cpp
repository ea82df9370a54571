#include "WrapperScene.h"
#include "support/XmlFiles.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class WrapperLogDevice : public WrapperScene
{
};

TEST_F(WrapperLogDevice, IsAName)
{
    EXPECT_EQ(Boiler.name(), L"Kesselhaus");
    EXPECT_EQ(Boiler, LogDevice(L"Kesselhaus"));
    EXPECT_NE(Boiler, Missing);
}

TEST_F(WrapperLogDevice, TellsWhetherItExists)
{
    EXPECT_TRUE(Boiler.Exists().value());
    EXPECT_TRUE(Boiler.Exists(Access::ReadingAndWriting).value());
    EXPECT_FALSE(Missing.Exists().value());
    EXPECT_TRUE(LogDevice(L"Kesselhaus\\subdevices\\Brenner 1").Exists().value());
    EXPECT_FALSE(LogDevice(L"Kesselhaus\\subdevices\\Brenner 9").Exists().value());
    EXPECT_EQ(LogDevice(L"").Exists().error(), Error("LogDeviceExistBL", PGSP_ERR_INVALID_PARAMETERS));
}

TEST_F(WrapperLogDevice, ReadsAValueOrItsDefault)
{
    EXPECT_EQ(Boiler.Get(L"baudrate").value(), L"1500000");
    EXPECT_EQ(Boiler.Get(L"station_adr").value(), L"1"); // stored as "ts"
    EXPECT_EQ(Boiler.Get(L"nix").error(), Error("LogDeviceGetValueBL", PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(CodeOf(Missing.Get(L"baudrate")), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
}

TEST_F(WrapperLogDevice, ReadsAValueOfASection)
{
    EXPECT_EQ(Boiler.GetFrom(L"Ndi", L"OrderCode").value(), L"AFK220-0");
    EXPECT_EQ(Boiler.GetFrom(L"", L"ts").value(), L"1");
    EXPECT_EQ(Boiler.GetFrom(L"Bindings", L"OrderCode").error(),
              Error("LogDeviceGetValueExBL", PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(WrapperLogDevice, SetsAValue)
{
    EXPECT_TRUE(Boiler.Set(L"watchdog", L"300").has_value());

    EXPECT_EQ(Boiler.Get(L"watchdog").value(), L"300");
}

TEST_F(WrapperLogDevice, RefusesWhatTheCatalogueRefuses)
{
    EXPECT_EQ(Boiler.Set(L"watchdog", L"15").error(), Error("LogDeviceSetValueBL", PGSP_NOT_IN_STEP));
    EXPECT_EQ(CodeOf(Boiler.Set(L"baudrate", L"12345")), PGSP_NOT_IN_LIST);
    EXPECT_EQ(CodeOf(Boiler.Set(L"redundant_master", L"ja")), PGSP_NOT_A_BOOL);
    EXPECT_EQ(CodeOf(Missing.Set(L"watchdog", L"300")), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Boiler.Get(L"watchdog").value(), L"200");
}

TEST_F(WrapperLogDevice, HoldsValuesThatAreLong)
{
    Boiler.Set(L"Vermerk", LongText).value();

    EXPECT_EQ(Boiler.Get(L"Vermerk").value(), LongText);
    EXPECT_EQ(Boiler.GetFrom(L"SpareSection", L"Vermerk").value(), LongText);
    EXPECT_THAT(Boiler.Values().value(), Contains(Parameter{L"Vermerk", LongText}));
}

TEST_F(WrapperLogDevice, FailsForANameThatMakesNoPath)
{
    const LogDevice endless(LongText);

    EXPECT_FALSE(endless.Get(L"baudrate").has_value());
    EXPECT_FALSE(endless.Values().has_value());
    EXPECT_FALSE(endless.Exists().has_value());
    EXPECT_FALSE(endless.Choices(L"baudrate").has_value());
    EXPECT_FALSE(endless.Describe(L"baudrate", L"type").has_value());
    EXPECT_FALSE(endless.Text(L"DescText").has_value());
    EXPECT_EQ(endless.Set(L"baudrate", L"9600").error(),
              Error("LogDeviceSetValueBL", PGSP_ERR_BUFFER_TOO_SHORT));
}

TEST_F(WrapperLogDevice, RemovesAParameter)
{
    Boiler.Set(L"Vermerk", L"x").value();

    EXPECT_TRUE(Boiler.Unset(L"Vermerk").has_value());

    EXPECT_FALSE(Boiler.Get(L"Vermerk").has_value());
    EXPECT_EQ(Boiler.Unset(L"Unit").error(), Error("LogDeviceDelValueBL", PGSP_ERR_INVALID_FILE));
}

TEST_F(WrapperLogDevice, TellsAllItsValues)
{
    const std::vector<Parameter> values = Boiler.Values().value();

    EXPECT_EQ(values.front(), (Parameter{L"Device", L"11"}));
    EXPECT_THAT(values, Contains(Parameter{L"DeviceId", L"*AFK220"}));
    EXPECT_EQ(Missing.Values().error(), Error("LogDeviceGetEnumValueBL", PGSP_ERR_FILE_NOT_FOUND));
}

TEST_F(WrapperLogDevice, TellsItsValuesAnewEachTime)
{
    static_cast<void>(Boiler.Values().value());

    Boiler.Set(L"watchdog", L"300").value();

    EXPECT_THAT(Boiler.Values().value(), Contains(Parameter{L"watchdog", L"300"}));
}

TEST_F(WrapperLogDevice, ChangesItsSpeedWithAllThatFollows)
{
    const LogDevice press(L"Presse#3");

    EXPECT_TRUE(press.ChangeSpeed(L"1500000").has_value());

    EXPECT_EQ(press.Get(L"baudrate").value(), L"1500000");
    EXPECT_EQ(press.Get(L"slot_time").value(), L"300");
    EXPECT_EQ(press.ChangeSpeed(L"500000").error(), Error("LogDeviceSetBusparamsBL", PGSP_PROFILE_NO_VALUE));
}

TEST_F(WrapperLogDevice, IsMadeFromATemplate)
{
    const LogDevice made = LogDevice::Create(L"Mischer S\u00FCd", Template(L"L2-AFK110")).value();

    EXPECT_EQ(made.name(), L"Mischer S\u00FCd");
    EXPECT_TRUE(made.Exists().value());
    EXPECT_EQ(LogDevice::Create(L"Mischer S\u00FCd", Template(L"L2-AFK110")).error(),
              Error("LogDeviceCreateFromDefBL", PGSP_ERR_CANT_COPY_FILE));
    EXPECT_EQ(CodeOf(LogDevice::Create(L"neu", Template(L"gone"))), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(WrapperLogDevice, IsCopied)
{
    const LogDevice copy = Boiler.CopyTo(L"Kesselhaus 2").value();

    EXPECT_EQ(copy.Get(L"baudrate").value(), L"1500000");
    EXPECT_EQ(Boiler.CopyTo(L"Labor").error(), Error("LogDeviceCopyBL", PGSP_ERR_CANT_COPY_FILE));
}

TEST_F(WrapperLogDevice, IsRemovedIfItAllowsThat)
{
    const LogDevice filling(L"Abf\u00FCllung Linie 1");

    EXPECT_TRUE(Boiler.Delete().has_value());
    EXPECT_EQ(filling.Delete().error(), Error("LogDeviceDelBL", PGSP_ERR_LOG_DEVICE_NOT_DELETABLE));
    EXPECT_TRUE(filling.Exists().value());
    EXPECT_TRUE(filling.Delete(Permission::Waived).has_value());

    EXPECT_FALSE(Boiler.Exists().value());
    EXPECT_FALSE(filling.Exists().value());
}

TEST_F(WrapperLogDevice, ThatHasBeenMovedFromIsSomeNameAndFails)
{
    LogDevice device = LogDevice(L"Kesselhaus mit einem langen Namen");

    const LogDevice moved = std::move(device);

    EXPECT_EQ(moved.name(), L"Kesselhaus mit einem langen Namen");
    EXPECT_FALSE(device.Get(L"baudrate").has_value()); // NOLINT(bugprone-use-after-move)
    device = Boiler;
    EXPECT_TRUE(device.Exists().value());
}

TEST_F(WrapperLogDevice, TellsATextInALanguage)
{
    LayOutTexts();

    EXPECT_EQ(Boiler.Text(L"BaudrateResource\\3", L"de").value(), L"93,75 kbit/s");
    EXPECT_EQ(Boiler.Text(L"BaudrateResource\\3", L"en").value(), L"93.75 kbit/s");
    EXPECT_FALSE(Boiler.Text(L"DescText").value().empty());
    EXPECT_EQ(Boiler.Text(L"Nix").error(),
              Error("PGSP_LogDeviceGetResourceStringBL", PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(WrapperLogDevice, TellsWhatTheCatalogueAllows)
{
    const Constraint watchdog = Boiler.Allowed(L"watchdog").value();

    EXPECT_EQ(watchdog.type, L"int");
    EXPECT_EQ(watchdog.min, L"10");
    EXPECT_EQ(watchdog.max, L"30000");
    EXPECT_EQ(watchdog.step, L"10");
    EXPECT_EQ(watchdog.base, std::nullopt);
    EXPECT_TRUE(watchdog.standard.has_value());
    EXPECT_EQ(Boiler.Allowed(L"memory_base").value().base, L"16");
    EXPECT_EQ(Boiler.Allowed(L"Nix").value(), Constraint{});
    EXPECT_EQ(CodeOf(Missing.Allowed(L"watchdog")), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
}

TEST_F(WrapperLogDevice, DescribesParametersAndValues)
{
    const LogDevice press(L"Presse#3");

    EXPECT_EQ(press.Describe(L"watchdog", L"max").value(), L"65530");
    EXPECT_EQ(press.Describe(L"baudrate\\1500000", L"ParamDesc").value(), L"1,5 Mbit/s");
    EXPECT_EQ(press.Describe(L"watchdog", L"nix").error(),
              Error("LogDeviceGetParamDescBL", PGSP_ERR_PARAM_DESC_NOT_FOUND));
}

TEST_F(WrapperLogDevice, TellsTheValuesToChooseFrom)
{
    const LogDevice press(L"Presse#3");

    EXPECT_THAT(press.CommonChoices(L"l4_timeout").value(), ElementsAre(L"200/200 ms", L"2000/2 s"));
    EXPECT_THAT(press.Choices(L"l4_timeout").value(), Contains(L"200/200 ms"));
    EXPECT_THAT(press.Choices(L"Nix").value(), IsEmpty());
    EXPECT_EQ(press.CommonChoices(L"Nix").error(),
              Error("PGSP_LogDeviceGetAverageEnumListBL", PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(CodeOf(Missing.Choices(L"baudrate")), PGSP_ERR_PARAM_NOT_FOUND);
}

// A list that is longer than the first room, of which the library doesn't tell how long it is.
TEST_F(WrapperLogDevice, TellsManyValuesToChooseFrom)
{
    XmlContent values;
    for (int i = 0; i < 3000; ++i)
    {
        values.Element(L"Value", std::to_wstring(1000 + i));
    }
    const XmlContent list = XmlContent().Element(L"ValueCollection", values);
    WriteBytes(
        roots.board(L"VIEL"),
        BoardFile(XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"kanal", list)), L"VIEL"));
    WriteBytes(roots.logDevice(L"Viel"), LogDeviceFile(XmlContent(), L"VIEL"));

    const std::vector<std::wstring> choices = LogDevice(L"Viel").Choices(L"kanal").value();

    ASSERT_EQ(choices.size(), 3000U);
    EXPECT_EQ(choices.back(), L"3999");
    EXPECT_EQ(LogDevice(L"Viel").CommonChoices(L"kanal").value(), choices);
    EXPECT_EQ(Board(L"VIEL").List(L"Constraints\\kanal").value(), choices);
}

} // namespace
} // namespace norvepa::test
