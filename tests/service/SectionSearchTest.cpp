#include "service/norvepaLogDevBl64/SectionSearch.h"

#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

class SectionSearch : public DeviceScene
{
protected:
    // Where a parameter is found, as "element in section".
    [[nodiscard]] std::wstring Find(const wchar_t* parameter, std::uint32_t lastSection) const
    {
        const FoundEntry found =
            FindEntry(norvepa::LogDeviceFile(roots.data(), L"Presse"), parameter, lastSection);
        return found.element + L" in " + found.section;
    }
};

TEST_F(SectionSearch, FindsEachSectionOfTheTable)
{
    for (const wchar_t* const section :
         {L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings", L"Ndi"})
    {
        store.WriteDevice(L"Presse", XmlContent().Element(section, XmlContent().Int(L"Stufe", L"1")));
        EXPECT_EQ(Find(L"Stufe", LastWrittenSection), L"ParameterInt in " + std::wstring(section));
        EXPECT_EQ(Find(L"Stufe", LastReadSection), L"ParameterInt in " + std::wstring(section));
    }
}

TEST_F(SectionSearch, FindsTheUserInterfaceForReadingOnly)
{
    for (const wchar_t* const section : {L"UserInterface", L"UserInterface64"})
    {
        store.WriteDevice(L"Presse", XmlContent().Element(section, XmlContent().Bool(L"Stufe", L"true")));
        EXPECT_EQ(Find(L"Stufe", LastWrittenSection), L" in ");
        EXPECT_EQ(Find(L"Stufe", LastReadSection), L"ParameterBool in " + std::wstring(section));
    }
}

TEST_F(SectionSearch, FindsNoOtherSection)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"SpareSection", XmlContent().Int(L"Stufe", L"1")));

    EXPECT_EQ(Find(L"Stufe", LastReadSection), L" in ");
}

TEST_F(SectionSearch, GoesByTheTableAndNotByTheFile)
{
    store.WriteDevice(L"Presse", XmlContent()
                                     .Element(L"Ndi", XmlContent().Bool(L"Stufe", L"true"))
                                     .Element(L"Bindings", XmlContent().Int(L"Stufe", L"1"))
                                     .Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"a")));

    EXPECT_EQ(Find(L"STUFE", LastReadSection), L"Parameter in LocalSettings");
}

TEST_F(SectionSearch, IsEmptyForWhatIsNotThere)
{
    EXPECT_EQ(Find(L"Stufe", LastReadSection), L" in ");
    EXPECT_EQ(FindEntry(roots.data() + L"\\gone", L"Stufe", LastReadSection).section, L"");
}

} // namespace
} // namespace norvepa::test
