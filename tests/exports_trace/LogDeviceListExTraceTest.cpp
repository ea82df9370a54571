#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// What is asked for, which stands for an entry.
const std::string AskedForNord = "information: EntryName = Halle  EntryValue = Nord";
const std::string AskedForWest = "information: EntryName = Halle  EntryValue = West";

class LogDeviceListExTrace : public CatalogueTraceScene
{
protected:
    LogDeviceListExTrace() { WriteDeviceIn(L"Nord", L"Ofen"); }

    void WriteDeviceIn(std::wstring_view hall, const std::wstring& name) const
    {
        WriteBytes(roots.logDevice(name),
                   LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"Halle", hall))));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* hall, std::uint32_t mode, std::uint32_t capacity = 300)
    {
        length = capacity;
        return library().PGSP_GetLogDeviceListExBL(L"Halle", hall, mode, buffer, &length);
    }

    [[nodiscard]] std::vector<std::string> Lines() const { return LinesOf("PGSP_GetLogDeviceListExBL"); }
};

TEST_F(LogDeviceListExTrace, TellsAValueThatIsAskedForAndTheResultAsANumber)
{
    Load();

    EXPECT_EQ(library().PGSP_GetLogDeviceListExBL(L"HALLE", L"NORD", 1, buffer, &length), PGSP_OK);
    EXPECT_EQ(Ask(L"West", 2), PGSP_OK);

    EXPECT_THAT(Lines(),
                ElementsAre("information: EntryName = HALLE  EntryValue = NORD",
                            "information: Equal: foundValue = Nord  EntryValue = NORD", "exit: << return 0x0",
                            AskedForWest, "information: Unequal: foundValue = Nord  EntryValue = West",
                            "exit: << return 0x0"));
}

TEST_F(LogDeviceListExTrace, TellsEachValueThatIsAskedFor)
{
    WriteDeviceIn(L"Nord", L"Presse");
    WriteDeviceIn(L"West", L"Waage");
    Load();

    EXPECT_EQ(Ask(L"Nord", 1), PGSP_OK);

    const std::string equal = "information: Equal: foundValue = Nord  EntryValue = Nord";
    EXPECT_THAT(Lines(), ElementsAre(AskedForNord, equal, equal, "exit: << return 0x0"));
}

TEST_F(LogDeviceListExTrace, IsSilentAboutAValueThatIsNotAskedFor)
{
    Load();

    EXPECT_EQ(Ask(L"West", 1), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Ask(L"Nord", 2), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Ask(L"Nord", 3), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(Lines(), ElementsAre(AskedForWest, "exit: << return 0x103", AskedForNord,
                                     "exit: << return 0x103", AskedForNord, "exit: << return 0x103"));
}

TEST_F(LogDeviceListExTrace, OfAListThatDoesNotFitTellsTheEdgesApart)
{
    Load();

    EXPECT_EQ(Ask(L"Nord", 1, 5), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Nord", 1, 4), PGSP_ERR_BUFFER_TOO_SHORT);

    const std::string equal = "information: Equal: foundValue = Nord  EntryValue = Nord";
    EXPECT_THAT(Lines(), ElementsAre(AskedForNord, equal, "exit: << return 0xea", AskedForNord, equal,
                                     "information: Not all values are returned",
                                     "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(LogDeviceListExTrace, OfBadArgumentsBeginsWithWhatIsAskedFor)
{
    Load();

    EXPECT_EQ(library().PGSP_GetLogDeviceListExBL(L"", L"West", 1, buffer, &length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(nullptr, 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_GetLogDeviceListExBL(L"Halle", L"Nord", 1, nullptr, nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(),
                ElementsAre("information: EntryName =   EntryValue = West", Refusal,
                            "information: EntryName = Halle  EntryValue = ", Refusal, AskedForNord, Refusal));
}

TEST_F(LogDeviceListExTrace, OfAMissingFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Ask(L"Nord", 1), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(Lines(), ElementsAre(AskedForNord, NoFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
