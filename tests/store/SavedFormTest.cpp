// What the store creates and changes is saved byte for byte as the engine would save it to a file.

#include "store/WriteScene.h"
#include "xml/Document.h"

namespace norvepa::test
{
namespace
{

class SavedForm : public WriteScene, public testing::WithParamInterface<const wchar_t*>
{
protected:
    [[nodiscard]] std::string SavedByTheEngine(const Document& document) const
    {
        const std::wstring other = folder() / L"by the engine.xml";
        EXPECT_EQ(document.get()->save(Bstr(other).asVariant()), S_OK);
        return ReadBytes(other);
    }

    [[nodiscard]] Document Loaded() const
    {
        Document document;
        EXPECT_EQ(document.Create(), S_OK);
        EXPECT_TRUE(document.Load(file()));
        return document;
    }
};

INSTANTIATE_TEST_SUITE_P(OfEachKind, SavedForm, testing::Values(L"nam", L"driv", L"notif", L"pgsp"));

TEST_P(SavedForm, IsWhatTheEngineWrites)
{
    ASSERT_EQ(NorvXMLCreateFile(path().c_str(), GetParam()), PGSP_OK);
    const Document document = Loaded();

    ASSERT_TRUE(document.Save(file()));

    EXPECT_EQ(Bytes(), SavedByTheEngine(document));
}

// But for the quotes in the declaration, which a document that was loaded spells as the engine likes.
TEST_P(SavedForm, IsAsItWasCreated)
{
    const auto behindTheDeclaration = [](const std::string& bytes) { return bytes.substr(bytes.find("?>")); };
    ASSERT_EQ(NorvXMLCreateFile(path().c_str(), GetParam()), PGSP_OK);

    EXPECT_EQ(behindTheDeclaration(Bytes()), behindTheDeclaration(SavedByTheEngine(Loaded())));
}

TEST_P(SavedForm, IsWhatTheEngineWritesOfAChangedDocument)
{
    ASSERT_EQ(NorvXMLCreateFile(path().c_str(), GetParam()), PGSP_OK);
    const Document document = Loaded();
    const Node section = document.Root().FirstChild();
    const Node entry = document.CreateElement(L"Parameter", L"urn:other");
    ASSERT_TRUE(section.Append(entry));
    ASSERT_TRUE(entry.SetText(L"Gr\u00F6\u00DFe \u03A9 <&>"));

    ASSERT_TRUE(document.Save(file()));

    EXPECT_EQ(Bytes(), SavedByTheEngine(document));
}

} // namespace
} // namespace norvepa::test
