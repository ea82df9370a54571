#include "catalogue/ProfileWalk.h"

#include "catalogue/CatalogueScene.h"
#include "support/Eventually.h"
#include "support/ImportHook.h"
#include "win/FileStamp.h"

namespace norvepa::test
{
namespace
{

int loads = 0; // the documents that were asked for

HRESULT WINAPI CountLoad(REFCLSID classId, IUnknown* outer, DWORD context, REFIID interfaceId, void** object)
{
    // Not by its name here, which leads back to this function.
    static const auto createInstance = reinterpret_cast<decltype(&CoCreateInstance)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ole32.dll"), "CoCreateInstance")));
    ++loads;
    return createInstance(classId, outer, context, interfaceId, object);
}

// The walk over what the value "v" of the parameter "p" holds.
class ProfileWalks : public CatalogueScene
{
protected:
    ProfileWalks() { Write(TwoEntries()); }

    void Write(const XmlContent& content) const
    {
        const XmlContent values = XmlContent().ParamSection(L"v", content);
        static_cast<void>(File(WithConstraints(XmlContent().ParamSection(L"p", Values(values)))));
    }

    [[nodiscard]] static XmlContent TwoEntries() { return XmlContent().Int(L"a", L"1").Int(L"b", L"2"); }

    // Until the times of the file tell for certain that it stays as it is.
    void WaitUntilCertain() const
    {
        const std::wstring path = folder() / L"file.xml";
        ASSERT_TRUE(Eventually([&] { return win::FileStamp::Of(path)->IsCertain(); }));
    }

    [[nodiscard]] PairAnswer Entry(std::uint32_t index)
    {
        PairAnswer answer = NoPair();
        answer.result = walk.EntryAt(index, answer.name, answer.value);
        return answer;
    }

    ProfileWalk walk{(folder() / L"file").c_str(), L"p", L"v"};

private:
    const int m_before = loads = 0;
    const ImportHook m_engine{"CoCreateInstance", CountLoad};
};

TEST_F(ProfileWalks, AnswersOneIndexAfterTheOther)
{
    EXPECT_EQ(Entry(0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(1), Found(L"b", L"2"));
    EXPECT_EQ(Entry(2), NoPair());
    EXPECT_EQ(Entry(0), Found(L"a", L"1"));
}

TEST_F(ProfileWalks, LoadsAFileOnceThatStaysAsItIs)
{
    WaitUntilCertain();

    EXPECT_EQ(Entry(0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(1), Found(L"b", L"2"));
    EXPECT_EQ(Entry(2), NoPair());

    EXPECT_EQ(loads, 1);
}

TEST_F(ProfileWalks, SeesAFileThatHasChangedSinceItsLoad)
{
    WaitUntilCertain();
    EXPECT_EQ(Entry(0), Found(L"a", L"1"));

    Write(XmlContent().Int(L"a", L"3").Int(L"b", L"4"));

    EXPECT_EQ(Entry(1), Found(L"b", L"4"));
    EXPECT_EQ(loads, 2);
}

TEST_F(ProfileWalks, LoadsAFileForEachQuestionWhoseTimesCanNotTell)
{
    const auto askWhileItIsNew = [this] {
        Write(TwoEntries());
        loads = 0;
        EXPECT_EQ(Entry(0), Found(L"a", L"1"));
        EXPECT_EQ(Entry(1), Found(L"b", L"2"));
        return !win::FileStamp::Of(folder() / L"file.xml")->IsCertain();
    };

    ASSERT_TRUE(Eventually(askWhileItIsNew));

    EXPECT_EQ(loads, 2);
}

TEST_F(ProfileWalks, AnswersTheLoadOfAFileThatHasGone)
{
    EXPECT_EQ(Entry(0), Found(L"a", L"1"));

    DeleteFileW((folder() / L"file.xml").c_str());

    EXPECT_EQ(Entry(1), NoPair(PGSP_ERR_FILE_NOT_FOUND));
}

TEST_F(ProfileWalks, GoesOnWithAFileThatHasComeBack)
{
    WriteBytes(folder() / L"file.xml", "<a></b>");
    EXPECT_EQ(Entry(0), NoPair(PGSP_ERR_CANT_LOAD_XML_FILE));

    Write(TwoEntries());

    EXPECT_EQ(Entry(1), Found(L"b", L"2"));
}

TEST_F(ProfileWalks, MeetsASecondSectionOfTheValueBehindTheEndOfTheFirst)
{
    const XmlContent first = XmlContent().ParamSection(L"v", XmlContent().Int(L"a", L"1"));
    const XmlContent second = XmlContent().ParamSection(L"v", XmlContent().Int(L"b", L"2").Int(L"c", L"3"));
    static_cast<void>(File(
        WithConstraints(XmlContent().ParamSection(L"p", Values(first)).ParamSection(L"p", Values(second)))));

    EXPECT_EQ(Entry(0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(1), Found(L"c", L"3")) << "the count begins anew in each section";
    EXPECT_EQ(Entry(2), NoPair());
}

} // namespace
} // namespace norvepa::test
