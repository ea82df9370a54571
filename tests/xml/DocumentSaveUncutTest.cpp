// A file that can't be made shorter holds blanks behind its document, in the encoding of that.

#include "support/ImportHook.h"
#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"
#include "xml/EngineMethod.h"
#include "xml/PullScene.h"

#include <filesystem>
#include <objidl.h>
#include <string>
#include <utility>

namespace norvepa::test
{
namespace
{

BOOL WINAPI CutNothing(HANDLE, FILE_INFO_BY_HANDLE_CLASS, void*, DWORD)
{
    SetLastError(ERROR_USER_MAPPED_FILE);
    return FALSE;
}

std::string Utf16(std::wstring_view text)
{
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

class DocumentSaveUncut : public DocumentScene
{
protected:
    // Saves a document of one word in the place of another, and tells what is there then.
    [[nodiscard]] std::string Shortened(const std::string& before) const
    {
        const Document document = Loaded(before);
        EXPECT_TRUE(document.Root().SetText(L"kurz"));
        const std::size_t size = std::filesystem::file_size(file());
        const ImportHook hook("SetFileInformationByHandle", &CutNothing);

        EXPECT_TRUE(document.Save(file()));

        EXPECT_EQ(std::filesystem::file_size(file()), size);
        return ReadBytes(file());
    }

    void ExpectToSayTheWord(const std::string& bytes) const
    {
        EXPECT_EQ(MeaningOf(bytes), MeaningOf("<a>kurz</a>"));
        PullReader reader;
        ASSERT_EQ(reader.Open(file()), PGSP_OK);
        std::wstring text;
        EXPECT_TRUE(XmlSeekElement(reader, L"a"));
        EXPECT_TRUE(XmlReadText(reader, L"a", text));
        EXPECT_EQ(text, L"kurz");
        while (!NextNode(reader).empty())
        {
        }
        EXPECT_EQ(reader.State(), XmlReadState_EndOfFile);
    }
};

TEST_F(DocumentSaveUncut, InUtf8StillIsADocument)
{
    const std::string bytes =
        Shortened("<?xml version='1.0' encoding='UTF-8'?>\r\n<a>" + std::string(1'000, 'x') + "</a>");

    ExpectToSayTheWord(bytes);
    EXPECT_TRUE(bytes.ends_with(std::string(900, ' ')));
}

TEST_F(DocumentSaveUncut, InLatin1StillIsADocument)
{
    const std::string text(1'000, '\xE4');

    const std::string bytes = Shortened("<?xml version='1.0' encoding='ISO-8859-1'?><a>" + text + "</a>");

    EXPECT_EQ(MeaningOf(bytes), MeaningOf("<a>kurz</a>"));
}

// An engine that saves in the encoding of its choice. Not each has UTF-16.
class SavingEngine
{
public:
    SavingEngine(IXMLDOMDocument2* document, std::string bytes)
        : m_slot(*reinterpret_cast<void***>(document) + SlotOf(&IXMLDOMDocument2::save)), m_original(*m_slot)
    {
        saved = std::move(bytes);
        StoreFunction(m_slot, reinterpret_cast<void*>(&Save));
    }
    SavingEngine(const SavingEngine&) = delete;
    SavingEngine& operator=(const SavingEngine&) = delete;
    ~SavingEngine() { StoreFunction(m_slot, m_original); }

private:
    static HRESULT STDMETHODCALLTYPE Save(IXMLDOMDocument2*, VARIANT destination)
    {
        auto* const stream = static_cast<IStream*>(destination.punkVal);
        return stream->Write(saved.data(), static_cast<ULONG>(saved.size()), nullptr);
    }

    static inline std::string saved;
    void** m_slot;
    void* m_original;
};

struct Utf16Case
{
    const char* name;
    std::string document;
    std::string blank;
};

std::string Swapped(std::string bytes)
{
    for (std::size_t at = 0; at < bytes.size(); at += 2)
    {
        std::swap(bytes[at], bytes[at + 1]);
    }
    return bytes;
}

class DocumentSaveUncutUtf16 : public DocumentSaveUncut, public testing::WithParamInterface<Utf16Case>
{
protected:
    // What a file of this length holds once the document has been saved in its place.
    [[nodiscard]] std::string SavedOver(std::size_t size) const
    {
        const Document document = Empty();
        const SavingEngine engine(document.get(), GetParam().document);
        WriteBytes(file(), std::string(size, 'x'));
        const ImportHook hook("SetFileInformationByHandle", &CutNothing);
        EXPECT_TRUE(document.Save(file()));
        return ReadBytes(file());
    }
};

TEST_P(DocumentSaveUncutUtf16, StillIsADocument)
{
    const std::string bytes = SavedOver(1'000);

    ASSERT_EQ(bytes.size(), 1'000U);
    EXPECT_TRUE(bytes.starts_with(GetParam().document));
    for (std::size_t at = GetParam().document.size(); at < bytes.size(); at += 2)
    {
        ASSERT_EQ(bytes.substr(at, 2), GetParam().blank) << at;
    }
    EXPECT_EQ(MeaningOf(bytes), MeaningOf("<a>kurz</a>"));
}

// Half a blank isn't one: the byte behind the last whole one must not spoil what is there.
TEST_P(DocumentSaveUncutUtf16, StillIsADocumentInAFileOfOddLength)
{
    EXPECT_EQ(MeaningOf(SavedOver(1'001)), MeaningOf("<a>kurz</a>"));
}

INSTANTIATE_TEST_SUITE_P(
    , DocumentSaveUncutUtf16,
    testing::Values(Utf16Case{"WithAMark", Utf16(L"\uFEFF<a>kurz</a>"), Utf16(L" ")},
                    Utf16Case{"WithoutAMark", Utf16(L"<?xml version='1.0'?><a>kurz</a>"), Utf16(L" ")},
                    Utf16Case{"HighByteFirst", Swapped(Utf16(L"\uFEFF<a>kurz</a>")), Swapped(Utf16(L" "))},
                    Utf16Case{"HighByteFirstWithoutAMark",
                              Swapped(Utf16(L"<?xml version='1.0'?><a>kurz</a>")), Swapped(Utf16(L" "))}),
    [](const auto& each) { return std::string(each.param.name); });

TEST_F(DocumentSaveUncut, IsCutWithTheNextSave)
{
    static_cast<void>(Shortened("<a>" + std::string(1'000, 'x') + "</a>"));
    Document document = Empty();
    ASSERT_TRUE(document.Load(file()));

    ASSERT_TRUE(document.Save(file()));

    EXPECT_LT(std::filesystem::file_size(file()), 100U);
    ExpectToSayTheWord(ReadBytes(file()));
}

} // namespace
} // namespace norvepa::test
