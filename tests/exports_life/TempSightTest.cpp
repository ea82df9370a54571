#include "LifeScene.h"
#include "support/ListBuffer.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

// What sets a temporary device apart is its name, and three things look at it, each in its own way. No two of
// these are one file.
struct NameCase
{
    const wchar_t* name;
    bool isEnumerated;
    bool isAnnounced;
    bool isAskedForPermission; // by a removal
};

constexpr NameCase NameCases[] = {
    {L"PGSP_TEMP_LOG_DEVICE____000", false, false, false},
    {L"PGSP_TEMP_LOG_DEVICE____", false, false, false},
    {L"PGSP_TEMP_LOG_DEVICE____ x", false, false, false},
    {L"x PGSP_TEMP_LOG_DEVICE____000", true, false, false},
    {L"PGSP_TEMP_LOG_DEVICE___000", true, true, false},
    {L"PGSP_TEMP_LOG_DEVICE", true, true, false},
    {L"x PGSP_TEMP_LOG_DEVICE", true, true, false},
    {L"pgsp_temp_log_device____001", true, true, true},
    {L"PGSP_TEMP_LOG_DEVIC____000", true, true, true},
    {L"Presse", true, true, true},
};

// What everybody makes of temporary devices while they are there.
class TempSight : public LifeScene
{
protected:
    [[nodiscard]] Names Enumerated() const
    {
        Names names;
        for (;;)
        {
            OutputBuffer name(260);
            if (library.LogDeviceGetEnumBL(nullptr, static_cast<std::uint32_t>(names.size()), name.data(),
                                           &name.length) != PGSP_OK)
            {
                return names;
            }
            names.push_back(name.text());
        }
    }

    static XmlContent Content()
    {
        return XmlContent()
            .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
            .Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1"))
            .Element(L"Ndi", XmlContent())
            .Element(L"SpareSection", XmlContent());
    }
};

TEST_F(TempSight, OfAnEnumerationIsOfNamesThatBeginWithTheWholePrefix)
{
    Names expected;
    for (const NameCase& each : NameCases)
    {
        store.WriteDevice(each.name, {});
        if (each.isEnumerated)
        {
            expected.emplace_back(each.name);
        }
    }

    EXPECT_THAT(Enumerated(), testing::UnorderedElementsAreArray(expected));
}

TEST_F(TempSight, OfANotificationIsOfNamesThatHoldTheWholePrefixAnywhere)
{
    for (const NameCase& each : NameCases)
    {
        store.WriteDevice(each.name, Content());
        const NamedEvent event;
        Register(event, each.name);

        ASSERT_EQ(library.LogDeviceSetValueBL(each.name, L"Stufe", L"2"), PGSP_OK);

        EXPECT_EQ(IsTold(event), each.isAnnounced) << ToUtf8(each.name);
    }
}

TEST_F(TempSight, OfARemovalIsOfNamesThatHoldTheWordAnywhere)
{
    for (const NameCase& each : NameCases)
    {
        store.WriteDevice(each.name, Rights(L"false", L"false"));

        EXPECT_EQ(library.LogDeviceDelBL(each.name, 0),
                  each.isAskedForPermission ? PGSP_ERR_LOG_DEVICE_NOT_DELETABLE : PGSP_OK)
            << ToUtf8(each.name);

        EXPECT_EQ(IsThere(each.name), each.isAskedForPermission) << ToUtf8(each.name);
    }
}

TEST_F(TempSight, OfARemovalOfATemporaryOneIsThatOfEveryRemoval)
{
    for (const NameCase& each : NameCases)
    {
        store.WriteDevice(each.name, Rights(L"false", L"false"));

        EXPECT_EQ(library.LogDeviceDelTempBL(each.name),
                  each.isAskedForPermission ? PGSP_ERR_INVALID_PARAMETERS : PGSP_OK)
            << ToUtf8(each.name);

        EXPECT_EQ(IsThere(each.name), each.isAskedForPermission) << ToUtf8(each.name);
    }
}

TEST_F(TempSight, OfEnumerationsAndTheIndexIsTheOriginalAlone)
{
    Write(Content());
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_THAT(Enumerated(), ElementsAre(L"Presse"));
    OutputBuffer name(260);
    OutputBuffer unit(260);
    EXPECT_EQ(library.LogDeviceGetEnumByDeviceIdBL(L"AFK110", 0, name.data(), &name.length, unit.data(),
                                                   &unit.length),
              PGSP_OK);
    EXPECT_EQ(name.text(), L"Presse");
    name.length = 260;
    unit.length = 260;
    EXPECT_EQ(library.LogDeviceGetEnumByDeviceIdBL(L"AFK110", 1, name.data(), &name.length, unit.data(),
                                                   &unit.length),
              PGSP_ERR_NO_MORE_ITEMS);
}

TEST_F(TempSight, OfTheListsOfFilesIsEveryFile)
{
    Write(Content());
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    ListBuffer all(300);
    ListBuffer withValue(300);
    EXPECT_EQ(library.PGSP_GetLogDeviceListBL(all.data(), &all.length), PGSP_OK);
    EXPECT_EQ(library.PGSP_GetLogDeviceListExBL(L"CP_TYPE", L"MPI", 1, withValue.data(), &withValue.length),
              PGSP_OK);

    EXPECT_THAT(all.strings(), UnorderedElementsAre(L"Presse", TemporaryName(0)));
    EXPECT_THAT(withValue.strings(), UnorderedElementsAre(L"Presse", TemporaryName(0)));
}

TEST_F(TempSight, OfAnExistenceTestIsEveryFile)
{
    Write(Content());
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_EQ(library.LogDeviceExistBL(TemporaryName(0).c_str(), 0), PGSP_OK);
    EXPECT_EQ(library.LogDeviceExistBL(TemporaryName(1).c_str(), 0), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(TempSight, OfValueOperationsIsEveryFileAndAnnouncesNothing)
{
    store.UseOurSchemas();
    Write(Content());
    const std::string before = store.Bytes(L"Presse");
    const NamedEvent all;
    Register(all);
    const std::wstring temporary = MakeTemporary();
    ASSERT_EQ(temporary, TemporaryName(0));

    EXPECT_EQ(library.LogDeviceSetValueBL(temporary.c_str(), L"Stufe", L"2"), PGSP_OK);
    EXPECT_EQ(library.LogDeviceSetValueBL(temporary.c_str(), L"Ort", L"Halle 2"), PGSP_OK);
    EXPECT_EQ(library.LogDeviceDelValueBL(temporary.c_str(), L"Ort"), PGSP_OK);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(temporary.c_str(), L"hidden", L"true", 0), PGSP_OK);
    EXPECT_EQ(library.PGSP_LogDeviceDelNdiBL(temporary.c_str(), L"hidden", 0), PGSP_OK);
    OutputBuffer value(300);
    EXPECT_EQ(library.LogDeviceGetValueBL(temporary.c_str(), L"Stufe", value.data(), &value.length), PGSP_OK);

    EXPECT_EQ(value.text(), L"2");
    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(IsTold(all));
}

TEST_F(TempSight, OfRegistrantsIsNothingFromTheBeginningToTheEnd)
{
    WriteTemplate(L"MPI", Content());
    Write(Content());
    const NamedEvent all;
    Register(all);

    ASSERT_EQ(MakeTemporary(), TemporaryName(0));
    ASSERT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(1));
    ASSERT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(2));
    ASSERT_EQ(library.LogDeviceUpdateWithTempBL(TemporaryName(0).c_str(), L"Presse"), PGSP_OK);
    ASSERT_EQ(library.LogDeviceDelTempBL(TemporaryName(1).c_str()), PGSP_OK);
    ASSERT_EQ(library.LogDeviceDelBL(TemporaryName(2).c_str(), 0), PGSP_OK);

    EXPECT_EQ(workers.count(), 0U);
    EXPECT_FALSE(IsTold(all));
}

} // namespace
} // namespace norvepa::test
