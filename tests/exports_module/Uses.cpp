#include "Uses.h"

#include "support/Answers.h"
#include "support/ListBuffer.h"
#include "support/NamedEvent.h"

#include <windows.h>

#include <array>
#include <gmock/gmock.h>
#include <ostream>

namespace norvepa::test
{

namespace
{

// Sets up the watch, and fills the listings and the index of identities.
void Enumerate(const Exports& library)
{
    EXPECT_NE(TextOf([&](wchar_t* name, std::uint32_t* length) {
                  return library.LogDeviceGetEnumBL(nullptr, 0, name, length);
              }),
              L"");
    EXPECT_NE(TextOf([&](wchar_t* name, std::uint32_t* length) {
                  return library.LogNameGetEnumBL(0, name, length);
              }),
              L"");
    EXPECT_THAT(
        PairOf([&](wchar_t* name, std::uint32_t* nameLength, wchar_t* unit, std::uint32_t* unitLength) {
            return library.LogDeviceGetEnumByDeviceIdBL(L"AFK110", 0, name, nameLength, unit, unitLength);
        }),
        testing::HasSubstr(L"="));
}

// Fills the list of documents, the answers and the memo of constraints.
void AskTheCatalogue(const Exports& library)
{
    EXPECT_THAT(
        PairOf([&](wchar_t* name, std::uint32_t* nameLength, wchar_t* value, std::uint32_t* valueLength) {
            return library.PGSP_BoardGetEnumValueBL(L"AFK110", 0, name, nameLength, value, valueLength);
        }),
        testing::HasSubstr(L"="));
    ListBuffer values(2000);
    EXPECT_EQ(
        library.PGSP_BoardGetValueCollectionBL(L"NotSupported", L"AFK110", values.data(), &values.length),
        PGSP_OK);
    EXPECT_EQ(TextOf([&](wchar_t* text, std::uint32_t* length) {
                  return library.PGSP_TemplateGetConstraintBL(L"Boards", L"AFK110", L"DualPortRam", L"type",
                                                              text, length);
              }),
              L"int");
}

// Leaves the registration behind, and a worker that may still be about.
void SetAndBeTold(const Exports& library)
{
    static const NamedEvent event;
    static int count = 0;
    EXPECT_THAT(library.RegisterNotification(L"LogNames", nullptr, event.c_str()),
                testing::AnyOf(PGSP_OK, PGSP_ERR_DUPLICATE_EVENT)); // from a call before, in the same load
    EXPECT_EQ(library.LogNameSetValueBL(L"Leitwarte", L"Station", ++count % 2 == 0 ? L"A" : L"B"), PGSP_OK);
    EXPECT_TRUE(event.Await());
}

// Leaves the copy of the file behind.
void ReadHalfATransfer(const Exports& library)
{
    std::array<std::uint8_t, 100> piece{};
    std::uint32_t length = piece.size();
    EXPECT_EQ(library.LogDeviceGetXmlBL(7, 2, L"Kesselhaus", 0, piece.data(), &length),
              PGSP_ERR_BUFFER_TOO_SHORT);
}

void ReadForADriver(const Exports& library)
{
    std::uint8_t* records = nullptr;
    std::uint32_t length = 0;
    EXPECT_EQ(library.norvDriverReadLogDevice(L"Kesselhaus", &records, &length), PGSP_OK);
    EXPECT_EQ(GlobalFree(records), nullptr);
}

// Takes a document of the engine's, a schema and a file beside the file.
void SetAndDelete(const Exports& library)
{
    EXPECT_EQ(library.LogNameSetValueBL(L"Leitwarte", L"Neu", L"1"), PGSP_OK);
    EXPECT_EQ(library.LogNameDelValueBL(L"Leitwarte", L"Neu"), PGSP_OK);
}

void ReadValues(const Exports& library)
{
    EXPECT_EQ(DeviceValue(library, L"baudrate"), L"1500000");
    EXPECT_EQ(DeviceValue(library, L"nowhere"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

} // namespace

std::wstring DeviceValue(const Exports& library, const wchar_t* parameter)
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.LogDeviceGetValueBL(L"Kesselhaus", parameter, value, length);
    });
}

void PrintTo(const Use& use, std::ostream* out)
{
    *out << use.name;
}

const std::vector<Use>& Uses()
{
    static const std::vector<Use> all{
        {"ValuesThatAreRead", ReadValues},
        {"AnEnumeration", Enumerate},
        {"QuestionsToTheCatalogue", AskTheCatalogue},
        {"ASetThatIsTold", SetAndBeTold},
        {"ADeletion", SetAndDelete},
        {"ATransferThatIsHalfRead", ReadHalfATransfer},
        {"AReadForADriver", ReadForADriver},
    };
    return all;
}

} // namespace norvepa::test
