// A document is saved as the engine would save it, whole or not at all.

#include "support/ImportHook.h"
#include "support/WatchedEngine.h"
#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"
#include "xml/PullReader.h"

#include <array>
#include <filesystem>
#include <new>
#include <objidl.h>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

namespace fs = std::filesystem;

class DocumentSave : public DocumentScene
{
protected:
    // By the engine's own hands.
    [[nodiscard]] std::string SavedByTheEngine(const Document& document) const
    {
        const std::wstring other = folder() / L"by the engine.xml";
        EXPECT_EQ(document.get()->save(Bstr(other).asVariant()), S_OK);
        return ReadBytes(other);
    }

    [[nodiscard]] std::string Saved(const Document& document) const
    {
        const std::wstring other = folder() / L"by us.xml";
        EXPECT_TRUE(document.Save(other));
        return ReadBytes(other);
    }

    void ExpectToBeSavedAlike(const Document& document) const
    {
        EXPECT_EQ(Saved(document), SavedByTheEngine(document));
    }
};

constexpr std::array Contents{
    "<a/>"sv,
    "<a></a>"sv,
    "<?xml version='1.0'?><a/>"sv,
    "<?xml version='1.0' encoding='UTF-8'?>\r\n<a>\r\n  <b>Gr\xC3\xB6\xC3\x9F"
    "e \xE6\xB3\xB5</b>\r\n</a>\r\n"sv,
    "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><a/>"sv,
    "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><a>\xC3\xA4</a>"sv,
    "\xFF\xFE<\0a\0>\0\xE4\0<\0/\0a\0>\0"sv,
    "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>"sv,
    "<!-- ahead --><a><!-- within --></a><!-- behind -->"sv,
    "<?odd ahead?><a><?odd within?></a><?odd behind?>"sv,
    "<a><![CDATA[<b>&amp;]]></a>"sv,
    "<a b='1' c=\"'2'\" d='&quot;&lt;&#10;&#228;'>&amp;&lt;&gt;&#13;</a>"sv,
    "<a xmlns='urn:a'><p:b xmlns:p='urn:p' p:c='d'/><b xmlns=''/></a>"sv,
    "<a xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='urn:a a.xsd'/>"sv,
    "<a>\xF0\x9F\x92\xA9</a>"sv,
};

TEST_F(DocumentSave, WritesWhatTheEngineWrites)
{
    for (const std::string_view bytes : Contents)
    {
        SCOPED_TRACE(bytes);
        ExpectToBeSavedAlike(Loaded(bytes));
    }
}

TEST_F(DocumentSave, WritesUtf16AsTheEngineDoes)
{
    const std::wstring text = L"\uFEFF<?xml version='1.0' encoding='UTF-16'?><a>\u00E4 \u6CF5</a>";
    const std::string bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));

    ExpectToBeSavedAlike(Loaded(bytes));
}

TEST_F(DocumentSave, WritesAChangedDocumentAsTheEngineDoes)
{
    const Document document = Loaded("<a xmlns='urn:a'><b>1</b></a>");
    const Node added = document.CreateElement(L"c", L"urn:a");
    ASSERT_TRUE(document.Root().Append(added));
    ASSERT_TRUE(added.SetText(L"Gr\u00F6\u00DF\u0065 <&>"));
    ASSERT_TRUE(added.SetAttribute(L"d", L"\"'\r\n"));

    ExpectToBeSavedAlike(document);
}

TEST_F(DocumentSave, WritesADocumentThatWasMadeFromNothingAsTheEngineDoes)
{
    const Document document = Empty();
    ASSERT_TRUE(document.Append(document.CreateInstruction(L"xml", L"version='1.0' encoding='UTF-8'")));
    ASSERT_TRUE(document.Append(document.CreateElement(L"a", L"urn:a")));
    ASSERT_TRUE(document.Root().Append(document.CreateElement(L"b", L"urn:a")));
    ASSERT_TRUE(document.Append(document.CreateComment(L"behind")));

    ExpectToBeSavedAlike(document);
}

TEST_F(DocumentSave, WritesADocumentOfNothingAsTheEngineDoes)
{
    ExpectToBeSavedAlike(Empty());
}

TEST_F(DocumentSave, WritesEachFileOfTheSampleStoreAsTheEngineDoes)
{
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(FromUtf8(NORV_SAMPLE_STORE)))
    {
        if (entry.path().extension() != L".xml")
        {
            continue;
        }
        SCOPED_TRACE(entry.path().string());
        Document document = Empty();
        ASSERT_TRUE(document.Load(entry.path().wstring()));
        ExpectToBeSavedAlike(document);
        ++files;
    }

    EXPECT_GT(files, 40);
}

TEST_F(DocumentSave, IsInMemoryWhatItIsInAFile)
{
    const Document document = Loaded("<?xml version='1.0' encoding='UTF-8'?><a>\xC3\xA4</a>");

    EXPECT_THAT(document.Bytes(), testing::Optional(Saved(document)));
}

TEST_F(DocumentSave, TakesThePlaceOfALongerFile)
{
    const Document document = Loaded("<a/>");
    WriteBytes(file(), "<old>" + std::string(100'000, 'x') + "</old>");

    ASSERT_TRUE(document.Save(file()));

    EXPECT_EQ(ReadBytes(file()), SavedByTheEngine(document));
}

TEST_F(DocumentSave, ThatTheEngineRefusesLeavesTheFile)
{
    const Document document = Loaded("<a>new</a>");
    WriteBytes(file(), "old");
    WatchedEngine engine;
    const Document watched = Loaded("<a>new</a>");
    WriteBytes(file(), "old");

    engine.FailAtCall(1, E_FAIL);

    EXPECT_FALSE(watched.Save(file()));
    EXPECT_TRUE(engine.hasFailed());
    EXPECT_EQ(ReadBytes(file()), "old");
}

TEST_F(DocumentSave, ThatTheEngineRefusesMakesNoFile)
{
    const std::wstring missing = folder() / L"missing.xml";
    WatchedEngine engine;
    const Document watched = Loaded("<a/>");

    engine.FailAtCall(1, E_FAIL);
    EXPECT_FALSE(watched.Save(missing));
    engine.FailAtCall(1, E_OUTOFMEMORY);
    EXPECT_THROW(static_cast<void>(watched.Save(missing)), std::bad_alloc);

    EXPECT_THAT(FileNames(folder().path()), testing::ElementsAre(L"file.xml"));
}

TEST_F(DocumentSave, ThatMemoryRunsOutForLeavesTheFile)
{
    struct No
    {
        static IStream* WINAPI Stream(const BYTE*, UINT) { return nullptr; }
    };
    const Document document = Loaded("<a/>");
    WriteBytes(file(), "old");
    const ImportHook hook("SHCreateMemStream", &No::Stream);

    EXPECT_THROW(static_cast<void>(document.Save(file())), std::bad_alloc);

    EXPECT_EQ(ReadBytes(file()), "old");
}

// From its creation to its end, with each call to the engine failing in turn.
TEST_F(DocumentSave, LeavesTheOldFileOrTheNewOneWhereverTheEngineFails)
{
    const std::string before = "<a>old</a>";
    const auto prepare = [&] { WriteBytes(file(), before); };
    const auto change = [this] {
        Document document;
        static_cast<void>(document.Create());
        EXPECT_TRUE(document.Load(file()));
        EXPECT_TRUE(document.Root().SetText(L"new"));
        EXPECT_TRUE(document.Save(file()));
    };
    const auto look = [&](bool hasFailed) {
        EXPECT_EQ(MeaningOfFile(file()), MeaningOf(hasFailed ? before : "<a>new</a>"));
        EXPECT_TRUE(!hasFailed || ReadBytes(file()) == before);
    };

    WithEachEngineCallFailing(prepare, change, look);
}

} // namespace
} // namespace norvepa::test
