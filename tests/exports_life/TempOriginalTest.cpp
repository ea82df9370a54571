#include "LifeScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// The log device that a temporary one is made of.
class TempOriginal : public LifeScene
{
protected:
    TempOriginal() { Write(Rights(L"false", L"true").Comment(L" the original ")); }
};

TEST_F(TempOriginal, IsCopiedByteForByte)
{
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), store.Bytes(L"Presse"));
    EXPECT_THAT(Files(), ElementsAre(TemporaryName(0) + L".xml", L"Presse.xml"));
}

TEST_F(TempOriginal, MayBeNoXml)
{
    WriteBytes(roots.logDevice(L"Presse"), "no XML");

    EXPECT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), "no XML");
}

TEST_F(TempOriginal, HasToBeThere)
{
    OutputBuffer name(TemporaryNameRoom);

    EXPECT_EQ(library.LogDeviceCreateTempBL(L"gone", name.data(), &name.length),
              PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, TemporaryNameRoom);
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(TempOriginal, MustNotBeKeptByAnotherProcessToItself)
{
    const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Nothing);

    EXPECT_EQ(MakeTemporary(), NoNumber);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(TempOriginal, MayBeReadByAnotherProcess)
{
    const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Reading);

    EXPECT_EQ(MakeTemporary(), TemporaryName(0));
}

TEST_F(TempOriginal, IsNoSubdeviceAndHasNoTooLongAPath)
{
    Write(XmlContent().Subdevice(L"Ventil", {}));

    EXPECT_EQ(MakeTemporary(L"Presse\\subdevices\\Ventil"), NoNumber);
    EXPECT_EQ(MakeTemporary(store.DeviceForPathOf(260)), NoNumber);
    EXPECT_EQ(MakeTemporary(std::wstring(100'000, L'n')), NoNumber);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(TempOriginal, MayBeTemporaryItself)
{
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_EQ(MakeTemporary(TemporaryName(0)), TemporaryName(1));

    EXPECT_EQ(store.Bytes(TemporaryName(1)), store.Bytes(L"Presse"));
}

TEST_F(TempOriginal, MayHaveACodedName)
{
    for (const CodedName& coded : CodedNames)
    {
        const std::string bytes = ToUtf8(coded.fileName);
        WriteBytes(roots.logDevice(coded.fileName), bytes);

        const std::wstring made = MakeTemporary(coded.name);

        EXPECT_EQ(store.Bytes(made), bytes);
    }
}

} // namespace
} // namespace norvepa::test
