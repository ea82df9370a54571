#include "support/WatchedEngine.h"
#include "xml/DocumentScene.h"
#include "xml/SchemaCollection.h"

#include <functional>
#include <new>
#include <ostream>

namespace norvepa::test
{
namespace
{

// An element with something on every side: `<r><a/><b n='1'>text</b><c/></r>`.
struct Place
{
    Document document;
    Node root;
    Node b;
};

struct Step
{
    const char* name;
    std::size_t calls; // to the engine, each of which can lack memory
    std::function<void(const Place&)> take;
};

void PrintTo(const Step& step, std::ostream* out)
{
    *out << step.name;
}

std::string NameOf(const testing::TestParamInfo<Step>& info)
{
    return info.param.name;
}

// For what is asked for the sake of the asking.
template <typename Answer>
void Drop(const Answer&)
{
}

void DropElements(const Place& place)
{
    for (const Node& element : place.document.Elements())
    {
        Drop(element);
    }
}

const std::vector<Step>& EveryStep()
{
    static const std::vector<Step> steps{
        {"Name", 1, [](const Place& place) { Drop(place.b.Name()); }},
        {"IsNamed", 1, [](const Place& place) { Drop(place.b.IsNamed(L"b")); }},
        {"IsElement", 1, [](const Place& place) { Drop(place.b.IsElement()); }},
        {"Text", 1, [](const Place& place) { Drop(place.b.Text()); }},
        {"SetText", 4, [](const Place& place) { Drop(place.b.SetText(L"new")); }},
        {"Children", 4,
         [](const Place& place) {
             for (const Node& child : place.root.Children())
                 Drop(child);
         }},
        {"FirstChild", 1, [](const Place& place) { Drop(place.b.FirstChild()); }},
        {"NextSibling", 1, [](const Place& place) { Drop(place.b.NextSibling()); }},
        {"Parent", 1, [](const Place& place) { Drop(place.b.Parent()); }},
        {"Attribute", 2, [](const Place& place) { Drop(place.b.Attribute(L"n")); }},
        {"SetAttribute", 2, [](const Place& place) { Drop(place.b.SetAttribute(L"n", L"2")); }},
        {"Append", 1, [](const Place& place) { Drop(place.root.Append(place.b)); }},
        {"Remove", 1, [](const Place& place) { Drop(place.root.Remove(place.b)); }},
        {"Root", 1, [](const Place& place) { Drop(place.document.Root()); }},
        {"Elements", 14, DropElements},
        {"CreateElement", 1, [](const Place& place) { Drop(place.document.CreateElement(L"d", L"")); }},
        {"CreateComment", 1, [](const Place& place) { Drop(place.document.CreateComment(L"d")); }},
        {"CreateInstruction", 1,
         [](const Place& place) { Drop(place.document.CreateInstruction(L"d", L"")); }},
        {"AppendToTheDocument", 1, [](const Place& place) { Drop(place.document.Append(place.b)); }},
    };
    return steps;
}

class EngineOutOfMemory : public DocumentScene, public testing::WithParamInterface<Step>
{
protected:
    [[nodiscard]] Place Somewhere() const
    {
        const Document document = Loaded("<r><a/><b n='1'>text</b><c/></r>");
        const Node root = document.Root();
        return {document, root, root.FirstChild().NextSibling()};
    }
};

INSTANTIATE_TEST_SUITE_P(, EngineOutOfMemory, testing::ValuesIn(EveryStep()), NameOf);

TEST_P(EngineOutOfMemory, IsNotTakenForNothingThere)
{
    WatchedEngine engine;
    for (std::size_t nth = 1; nth <= GetParam().calls; ++nth)
    {
        const Place place = Somewhere();
        engine.FailAtCall(nth);

        EXPECT_THROW(GetParam().take(place), std::bad_alloc) << "call " << nth;
    }
    const Place place = Somewhere();
    engine.FailAtCall(GetParam().calls + 1);

    EXPECT_NO_THROW(GetParam().take(place));

    EXPECT_FALSE(engine.hasFailed()) << "a call more than told";
}

using EngineOutOfMemoryTest = DocumentScene;

TEST_F(EngineOutOfMemoryTest, ThatWasToMakeADocumentIsNotTakenForNone)
{
    const auto create = [this] { Empty().LoadAsItStands(); };

    WithEachEngineCallFailing([] {}, create, [](bool) {});
}

TEST_F(EngineOutOfMemoryTest, ThatWasToLoadAFileIsNotTakenForOneThatIsMalformed)
{
    for (const char* bytes : {"<r/>", "<r"})
    {
        WriteBytes(file(), bytes);

        WithEachEngineCallFailing([] {}, [this] { Drop(Empty().Load(file())); }, [](bool) {});
    }
}

TEST_F(EngineOutOfMemoryTest, ThatWasToLoadBytesIsNotTakenForBytesThatAreMalformed)
{
    for (const char* bytes : {"<r/>", "<r"})
    {
        WithEachEngineCallFailing([] {}, [&] { Drop(Empty().LoadBytes(bytes)); }, [](bool) {});
    }
}

TEST_F(EngineOutOfMemoryTest, ThatWasToSaveIsToldFromAFileThatCannotBeSaved)
{
    WatchedEngine engine;
    const Document document = Loaded("<r/>");

    engine.FailAtCall(1);
    EXPECT_THROW(Drop(document.Save(file())), std::bad_alloc);
    engine.FailAtCall(1, HRESULT_FROM_WIN32(ERROR_NOT_ENOUGH_MEMORY));
    EXPECT_THROW(Drop(document.Save(file())), std::bad_alloc);
    engine.FailAtCall(1, HRESULT_FROM_WIN32(ERROR_DISK_FULL));
    EXPECT_FALSE(document.Save(file()));
}

TEST_F(EngineOutOfMemoryTest, IsToldFromAnEngineThatFailsOtherwise)
{
    WatchedEngine engine;
    const Node root = Loaded("<r><a/></r>").Root();

    engine.FailAtCall(1, E_FAIL);
    EXPECT_FALSE(root.FirstChild());
    engine.FailAtCall(1, E_FAIL);
    EXPECT_EQ(root.Name().view(), L"");
}

TEST_F(EngineOutOfMemoryTest, ThatWasToValidateHasNotFoundADocumentInvalid)
{
    const std::wstring schemaFile = folder() / L"schema.xsd";
    WriteBytes(schemaFile, "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:r'>"
                           "<xs:element name='r'/></xs:schema>");
    WriteBytes(file(), "<r xmlns='urn:r'/>");
    const auto validate = [&] {
        Document schema = Empty();
        ASSERT_TRUE(schema.Load(schemaFile));
        SchemaCollection collection;
        ASSERT_EQ(collection.Create(), S_OK);
        collection.Add(L"urn:r", schema);
        Document document = Empty();
        ASSERT_TRUE(document.Load(file()));
        EXPECT_TRUE(collection.Validate(document).valid);
    };

    WithEachEngineCallFailing([] {}, validate, [](bool) {});
}

} // namespace
} // namespace norvepa::test
