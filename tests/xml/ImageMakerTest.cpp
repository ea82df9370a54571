#include "xml/ImageMaker.h"

#include "support/ImportHook.h"
#include "xml/EngineMethod.h"
#include "xml/PullScene.h"

#include <new>
#include <string>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

// With all that the engine needs memory of its own for.
std::string Document()
{
    const std::string text(3'000, 'x');
    return "<a b='" + text + "' c='2'><d>" + text + "</d><!--" + text + "--><e/></a>";
}

// Null when there is no engine.
std::shared_ptr<const XmlImage> ImageOfBytes(std::string_view bytes)
{
    HRESULT status = S_OK;
    return ImageMaker::Make(bytes, status);
}

std::wstring_view AttributeOf(const XmlImage& image, std::size_t node, std::uint32_t number)
{
    return image.text(image.attribute(image.node(node).content.begin + number).value);
}

TEST(ImageMakerTest, NumbersEachNameOnce)
{
    const auto image = ImageOfBytes("<a><b a='1'/><a/></a>");

    ASSERT_EQ(image->size(), 4U);
    EXPECT_EQ(image->name(image->node(0).name), L"a");
    EXPECT_EQ(image->name(image->node(1).name), L"b");
    EXPECT_EQ(image->node(2).name, image->node(0).name);
    EXPECT_EQ(image->attribute(image->node(1).content.begin).name, image->node(0).name);
}

TEST(ImageMakerTest, TellsTheAttributesOfEachElementApart)
{
    const auto image = ImageOfBytes("<a b='1' c='2'><d/><e f='3'/></a>");

    EXPECT_EQ(image->node(0).content.length, 2U);
    EXPECT_EQ(AttributeOf(*image, 0, 0), L"1");
    EXPECT_EQ(AttributeOf(*image, 0, 1), L"2");
    EXPECT_EQ(image->node(1).content.length, 0U);
    EXPECT_EQ(XmlImage::noAttribute(image->node(1)), S_FALSE);
    EXPECT_EQ(image->node(2).content.length, 1U);
    EXPECT_EQ(AttributeOf(*image, 2, 0), L"3");
}

TEST(ImageMakerTest, ThatHasNoEngineSaysWhy)
{
    struct No
    {
        static HRESULT WINAPI Engine(const IID&, void**, IMalloc*) { return E_NOINTERFACE; }
    };
    const ImportHook engine("CreateXmlReader", &No::Engine);
    HRESULT status = S_OK;

    EXPECT_EQ(ImageMaker::Make("<a/>", status), nullptr);

    EXPECT_EQ(status, E_NOINTERFACE);
}

TEST(ImageMakerTest, TellsWhatAnImageTakesOfMemory)
{
    EXPECT_GT(ImageOfBytes("<a>" + std::string(100'000, 'x') + "</a>")->bytes(), 200'000U);
    EXPECT_LT(ImageOfBytes("<a>1</a>")->bytes(), 1'000U);
}

TEST(ImageMakerTest, KeepsNoMoreOfMemoryThanItNeeds)
{
    std::string bytes = "<a>";
    for (int i = 0; i < 1'000; ++i)
    {
        bytes += "<b c='1'/>";
    }

    EXPECT_LT(ImageOfBytes(bytes + "</a>")->bytes(),
              1'002 * sizeof(XmlImage::Node) + 1'000 * sizeof(XmlImage::Attribute) + 3'000);
}

// An engine that refuses its settings or its input delivers nothing.
TEST(ImageMakerTest, IsNotActiveWithAnEngineThatRefusesItsInput)
{
    const EngineMethod refused(SlotOf(&IXmlReader::SetInput), E_FAIL);

    const auto image = ImageOfBytes("<a/>");

    EXPECT_EQ(image->size(), 0U);
    EXPECT_NE(image->firstState(), XmlReadState_Interactive);
    EXPECT_NE(image->lastState(), XmlReadState_Interactive);
    EXPECT_NE(image->lastState(), XmlReadState_Initial);
}

TEST(ImageMakerTest, IsNotActiveWithAnEngineThatDoesNotTellItsState)
{
    const EngineMethod untold(SlotOf(&IXmlReader::GetProperty), E_FAIL);

    const auto image = ImageOfBytes("<a/>");

    EXPECT_EQ(image->firstState(), XmlReadState_Closed);
    EXPECT_EQ(image->lastState(), XmlReadState_Closed);
}

TEST(ImageMakerTest, StopsWhereTheEngineFails)
{
    const EngineMethod failing(SlotOf(&IXmlReader::Read), E_FAIL);

    const auto image = ImageOfBytes("<a/>");

    EXPECT_EQ(image->size(), 0U);
    EXPECT_EQ(image->lastState(), XmlReadState_Error);
}

TEST(ImageMakerTest, KnowsAnAttributeThatTheEngineDoesNotTell)
{
    const EngineMethod untold(SlotOf(&IXmlReader::GetPrefix), E_FAIL);

    const auto image = ImageOfBytes("<a b='1'/>");

    ASSERT_EQ(image->node(0).content.length, 1U);
    EXPECT_FALSE(image->attribute(image->node(0).content.begin).isTold);
}

TEST(ImageMakerTest, PassesOnWhyAnElementHasNoAttribute)
{
    const EngineMethod failing(SlotOf(&IXmlReader::MoveToFirstAttribute), E_FAIL);

    const auto image = ImageOfBytes("<a b='1'/>");

    EXPECT_EQ(image->node(0).content.length, 0U);
    EXPECT_EQ(XmlImage::noAttribute(image->node(0)), E_FAIL);
}

class AMethodWithoutMemory : public testing::TestWithParam<std::size_t>
{
};

TEST_P(AMethodWithoutMemory, IsNotTakenForOneThatHasNothingToTell)
{
    const EngineMethod failing(GetParam(), E_OUTOFMEMORY);

    EXPECT_THROW(static_cast<void>(ImageOfBytes("<a b='1'>2</a>")), std::bad_alloc);
}

INSTANTIATE_TEST_SUITE_P(OfTheEngine, AMethodWithoutMemory,
                         testing::Values(SlotOf(&IXmlReader::SetProperty), SlotOf(&IXmlReader::SetInput),
                                         SlotOf(&IXmlReader::Read), SlotOf(&IXmlReader::GetLocalName),
                                         SlotOf(&IXmlReader::GetPrefix), SlotOf(&IXmlReader::GetValue),
                                         SlotOf(&IXmlReader::MoveToFirstAttribute),
                                         SlotOf(&IXmlReader::MoveToNextAttribute),
                                         SlotOf(&IXmlReader::MoveToElement)));

TEST(AnEngineWithoutMemory, IsNotTakenForATextThatIsEmpty)
{
    const EngineMethod failing(SlotOf(&IXmlReader::GetValue), E_OUTOFMEMORY);

    EXPECT_THROW(static_cast<void>(ImageOfBytes("<a>1</a>")), std::bad_alloc);
}

// The heap as its pool sees it.
int left = 0;
bool hasFailed = false;

LPVOID WINAPI AllocUntilNoneIsLeft(HANDLE heap, DWORD flags, SIZE_T bytes)
{
    static const auto alloc = reinterpret_cast<decltype(&HeapAlloc)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "HeapAlloc")));
    if (left-- > 0)
    {
        return alloc(heap, flags, bytes);
    }
    hasFailed = true;
    return nullptr;
}

bool IsWhole(const XmlImage& image)
{
    return image.size() == 7 && image.node(0).content.length == 2 &&
           AttributeOf(image, 0, 0).size() == 3'000 && AttributeOf(image, 0, 1) == L"2" &&
           image.text(image.node(2).content).size() == 3'000;
}

TEST(AnEngineWithoutMemory, NeverMakesAnImageOfLessThanTheFile)
{
    const std::string bytes = Document();
    ASSERT_TRUE(IsWhole(*ImageOfBytes(bytes)));
    const ImportHook heap("HeapAlloc", &AllocUntilNoneIsLeft);

    int allocations = 0;
    do
    {
        SCOPED_TRACE(allocations);
        left = allocations++;
        hasFailed = false;
        HRESULT status = S_OK;
        try
        {
            const auto image = ImageMaker::Make(bytes, status);
            EXPECT_TRUE(image == nullptr ? status == E_OUTOFMEMORY : IsWhole(*image));
        }
        catch (const std::bad_alloc&)
        {
        }
    } while (hasFailed);

    EXPECT_GT(allocations, 5);
}

} // namespace
} // namespace norvepa::test
