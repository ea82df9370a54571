#include "support/Answers.h"
#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

class SampleStoreTexts : public testing::Test
{
protected:
    SampleStoreTexts()
    {
        m_roots.FillWithSampleStore();
        CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), m_roots.program() + L"\\bin");
    }

    ~SampleStoreTexts() override
    {
        library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
    }

    // A text in German and in English, from either section the same.
    template <typename Call>
    [[nodiscard]] static std::vector<std::wstring> InBothLanguages(const Call& call)
    {
        std::vector<std::wstring> texts;
        for (const wchar_t* const language : {L"de", L"en"})
        {
            const auto from = [&](std::int32_t flag) {
                return TextOf(
                    [&](wchar_t* text, std::uint32_t* length) { return call(language, text, length, flag); });
            };
            texts.push_back(from(1));
            EXPECT_EQ(from(0), texts.back());
        }
        return texts;
    }

    [[nodiscard]] std::vector<std::wstring> OfDevice(const wchar_t* device, const wchar_t* parameter) const
    {
        return InBothLanguages([&](auto... rest) {
            return library.PGSP_LogDeviceGetResourceStringBL(device, parameter, rest...);
        });
    }

    [[nodiscard]] std::vector<std::wstring> OfName(const wchar_t* logName) const
    {
        return InBothLanguages([&](auto... rest) {
            return library.PGSP_LogNameGetResourceStringBL(logName, L"DescText", rest...);
        });
    }

    [[nodiscard]] std::vector<std::wstring> OfBoard(const wchar_t* board) const
    {
        return InBothLanguages(
            [&](auto... rest) { return library.PGSP_BoardGetResourceStringBL(board, L"DescText", rest...); });
    }

    [[nodiscard]] std::vector<std::wstring> OfTemplate(const wchar_t* folder, const wchar_t* name) const
    {
        return InBothLanguages([&](auto... rest) {
            return library.PGSP_TemplateGetResourceStringBL(folder, name, L"DescText", rest...);
        });
    }

private:
    StoreRoots m_roots;

protected:
    Exports library;
};

using testing::ElementsAre;

TEST_F(SampleStoreTexts, DescribeLogDevices)
{
    EXPECT_THAT(OfDevice(L"Kesselhaus", L"DescText"),
                ElementsAre(L"Dampferzeuger 1 und 2", L"Steam generators 1 and 2"));
    EXPECT_THAT(OfDevice(L"F\u00F6rderb\u00E4nder", L"DescText"),
                ElementsAre(L"R\u00FCbenw\u00E4sche bis Schnitzelmaschine", L"Beet washer to beet slicer"));
    EXPECT_THAT(OfDevice(L"Leitwarte*_/VMDID", L"DescText"),
                ElementsAre(L"Abbild der Leitwarte", L"Image of the control room"));
    EXPECT_THAT(OfDevice(L"Presse#3", L"DescDefault"),
                ElementsAre(L"Zugangsweg der Anlage Auental", L"Access path of the Auental plant"));
}

TEST_F(SampleStoreTexts, NameTheValuesOfALogDevice)
{
    EXPECT_THAT(OfDevice(L"Kesselhaus", L"BaudrateResource"), ElementsAre(L"9,6 kbit/s", L"9.6 kbit/s"));
    EXPECT_THAT(OfDevice(L"Kesselhaus", L"BaudrateResource\\3"),
                ElementsAre(L"93,75 kbit/s", L"93.75 kbit/s"));
    EXPECT_THAT(OfDevice(L"Kesselhaus", L"BaudrateResource\\9"), ElementsAre(L"12 Mbit/s", L"12 Mbit/s"));
    EXPECT_THAT(OfDevice(L"Kesselhaus", L"BaudrateResource\\10"),
                testing::Each(Failed(PGSP_ERR_CANT_LOAD_RESOURCE)));
}

TEST_F(SampleStoreTexts, DescribeLogNamesBoardsAndTemplates)
{
    EXPECT_THAT(OfName(L"Kessel#1"), ElementsAre(L"Kessel 1", L"Boiler 1"));
    EXPECT_THAT(OfBoard(L"*AFK220"), ElementsAre(L"Feldbuskarte 220", L"Fieldbus board 220"));
    EXPECT_THAT(OfTemplate(L"Boards", L"KQZA010"), ElementsAre(L"Koppelkabel", L"Coupling cable"));
    EXPECT_THAT(OfTemplate(L"Protocols", L"L2"), ElementsAre(L"Feldbus", L"Fieldbus"));
    EXPECT_THAT(OfTemplate(L"DefaultLogDevices", L"SERIAL-ASK040"),
                ElementsAre(L"Vorlage SERIAL-ASK040", L"Template SERIAL-ASK040"));
}

TEST_F(SampleStoreTexts, DoNotDescribeWhatHasNone)
{
    EXPECT_THAT(OfDevice(L"Pr\u00FCfstand", L"DescText"), testing::Each(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
    EXPECT_THAT(OfName(L"Lagerhaus"), testing::Each(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

} // namespace
} // namespace norvepa::test
