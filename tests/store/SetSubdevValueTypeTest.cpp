#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// Not the rules of a plain set.
using SetSubdevValueTypeTest = WriteScene;

std::string DeviceOf(const XmlContent& subdevice)
{
    return LogDeviceFile(XmlContent().Subdevice(L"A", subdevice));
}

TEST_F(SetSubdevValueTypeTest, AnyValuePassesForABooleanAndStaysAsItIs)
{
    GivenFile(DeviceOf({}));

    EXPECT_EQ(SetSubdev(L"A", L"my flag", L"yes", L"bool"), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"other", L"TRUE", L"BOOL"), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"third", L"<>", L"bool"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf(DeviceOf(
                  XmlContent().Bool(L"my flag", L"yes").Bool(L"other", L"TRUE").Bool(L"third", L"<>"))));
}

TEST_F(SetSubdevValueTypeTest, WithoutATypeNothingIsTested)
{
    GivenFile(DeviceOf({}));

    EXPECT_EQ(SetSubdev(L"A", L"my param", L"<1>", L""), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"<other>", L"<2>", nullptr), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceOf(XmlContent().Text(L"my param", L"<1>").Text(L"<other>", L"<2>"))));
}

TEST_F(SetSubdevValueTypeTest, NumbersAndStringsAreTested)
{
    GivenFile(DeviceOf({}));
    const std::string before = Bytes();

    EXPECT_EQ(SetSubdev(L"A", L"a", L"12a", L"int"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetSubdev(L"A", L"a", L"<", L"string"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetSubdev(L"A", L"my param", L"1", L"String"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(SetSubdev(L"A", L"my param", nullptr, L"int"), PGSP_OK);
}

TEST_F(SetSubdevValueTypeTest, AnotherWordIsTheElementItself)
{
    GivenFile(DeviceOf({}));

    EXPECT_EQ(SetSubdev(L"A", L"my param", L"<1>", L"Messwert"), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"a", L"1", L"two words"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Saved(), MeaningOf(DeviceOf(EntryIn(L"Messwert", L"my param", L"<1>"))));
}

} // namespace
} // namespace norvepa::test
