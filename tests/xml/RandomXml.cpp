#include "xml/RandomXml.h"

#include "support/TemporaryFolder.h"

#include <array>
#include <random>
#include <string_view>

namespace norvepa::test
{

namespace
{

using namespace std::string_view_literals;

constexpr int DeepestElement = 6;

// Names that are in most documents, and of all alphabets.
constexpr std::array Names{L"Parameter"sv, L"Name"sv,  L"Value"sv, L"a"sv,      L"Größe"sv, L"Ω"sv,
                           L"Насос"sv,     L"מנוע"sv,  L"محرك"sv,  L"ポンプ"sv, L"泵"sv,    L"펌프"sv,
                           L"_x-1.y"sv,    L"p:Ort"sv, L"q:Ort"sv, L"p:_"sv,    L"ปั๊ม"sv,    L"पंप"sv,
                           L"aÿ·"sv,       L"xml1"sv,  L"Xmlns"sv, L"ß"sv,      L"ﬁ"sv,     L"Ⅷ"sv};
constexpr std::array LatinNames{L"Parameter"sv, L"Name"sv, L"Value"sv, L"a"sv, L"Größe"sv, L"p:Ort"sv};

// What stands between the tags and in attributes. All of it is well-formed in both.
constexpr std::array Texts{L"187500"sv,     L" "sv,         L"\r\n\t"sv,    L"\n"sv,        L"Größe µ"sv,
                           L"&amp;"sv,      L"&lt;&gt;"sv,  L"&#228;"sv,    L"&#x1F4A9;"sv, L"&quot;&apos;"sv,
                           L"&#13;&#10;"sv, L"a  b"sv,      L"x\r\ny\rz"sv, L"]]"sv,        L"true"sv,
                           L"-- ?>"sv,      L"C:\\Werke"sv, L"="sv,         L"/"sv,         L"&#9;"sv};
constexpr std::array WideTexts{L"Ω≈ç"sv, L"泵ポンプ"sv, L"\U0001F4A9"sv, L"מנוע"sv, L"\u2028\u0085"sv};

// What is no element and no text.
constexpr std::array Others{
    L"<!---->"sv, L"<!-- Größe <a> &b; -->"sv, L"<![CDATA[]]>"sv, L"<![CDATA[<a>]]&amp;]]>"sv,
    L"<?odd?>"sv, L"<?odd a='b' ?? >?>"sv,     L"<!--\r\n-->"sv};

enum class Encoding
{
    Utf8,
    MarkedUtf8,
    Utf16,
    Latin1,
};

std::string Encoded(std::wstring_view text, Encoding encoding)
{
    std::string bytes;
    switch (encoding)
    {
    case Encoding::MarkedUtf8:
        return "\xEF\xBB\xBF" + ToUtf8(text);
    case Encoding::Utf16:
        bytes = "\xFF\xFE";
        return bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
    case Encoding::Latin1:
        for (const wchar_t character : text)
        {
            bytes += static_cast<char>(character);
        }
        return bytes;
    default:
        return ToUtf8(text);
    }
}

class Writer
{
public:
    explicit Writer(std::uint32_t number)
        : m_random(number), m_encoding(static_cast<Encoding>(m_random() % 4))
    {
    }

    RandomDocument Make()
    {
        WriteDeclaration();
        const std::size_t behindDeclaration = m_text.size();
        WriteBlank();
        WriteElement(0);
        if (Chance(4))
        {
            m_text.append(L"\r\n").append(Pick(Others));
        }
        WriteBlank();
        // Also the blank behind the declaration, and the root's first character.
        const std::size_t root = m_text.find(L'<', behindDeclaration);
        return {Encoded(m_text, m_encoding), Encoded(m_text.substr(0, root + 2), m_encoding).size()};
    }

private:
    [[nodiscard]] bool Chance(unsigned of) { return m_random() % of == 0; }

    template <typename Table>
    [[nodiscard]] std::wstring_view Pick(const Table& table)
    {
        return table[m_random() % table.size()];
    }

    [[nodiscard]] std::wstring_view Name()
    {
        return m_encoding == Encoding::Latin1 ? Pick(LatinNames) : Pick(Names);
    }

    [[nodiscard]] std::wstring_view Text()
    {
        return m_encoding != Encoding::Latin1 && Chance(3) ? Pick(WideTexts) : Pick(Texts);
    }

    void WriteDeclaration()
    {
        const std::array names{L"UTF-8"sv, L"utf-8"sv, L"UTF-16"sv, L"ISO-8859-1"sv};
        if (m_encoding == Encoding::Latin1 || Chance(2))
        {
            m_text.append(L"<?xml version='1.0' encoding=\"")
                .append(names[static_cast<std::size_t>(m_encoding)])
                .append(Chance(4) ? L"\" standalone='yes' ?>" : L"\"?>");
            m_text += Chance(3) ? L"" : L"\r\n";
        }
    }

    void WriteBlank()
    {
        if (Chance(2))
        {
            m_text += L"\r\n  ";
        }
    }

    void WriteElement(int depth)
    {
        const std::wstring name(Name());
        m_text.append(L"<").append(name);
        if (depth == 0 && !Chance(4))
        {
            m_text += L" xmlns='urn:a' xmlns:p=\"urn:p\"";
        }
        WriteAttributes();
        m_text += Chance(3) ? L" " : L"";
        if (Chance(4))
        {
            m_text += L"/>";
            return;
        }
        m_text += L">";
        WriteContent(depth + 1);
        m_text.append(L"</").append(name).append(Chance(5) ? L"\n>" : L">");
    }

    // Names may come twice, which isn't well-formed: seldom.
    void WriteAttributes()
    {
        for (unsigned left = m_random() % 4; left > 0 && Chance(2); --left)
        {
            const wchar_t quote = Chance(2) ? L'"' : L'\'';
            m_text.append(Chance(4) ? L"\r\n\t" : L" ").append(Name()).append(Chance(5) ? L" = " : L"=");
            m_text += quote;
            m_text.append(Chance(4) ? L""sv : Text());
            m_text += quote;
        }
    }

    void WriteContent(int depth)
    {
        for (unsigned left = m_random() % 6; left > 0; --left)
        {
            WriteBlank();
            switch (m_random() % 4)
            {
            case 0:
                m_text += Text();
                break;
            case 1:
                m_text += Pick(Others);
                break;
            default:
                if (depth < DeepestElement)
                {
                    WriteElement(depth);
                }
            }
        }
    }

    std::mt19937 m_random;
    Encoding m_encoding;
    std::wstring m_text;
};

} // namespace

RandomDocument MakeDocument(std::uint32_t number)
{
    return Writer(number).Make();
}

std::string Damaged(const RandomDocument& document, std::uint32_t number)
{
    std::mt19937 random(number);
    std::string bytes = document.bytes;
    const std::size_t at = document.prolog + random() % (bytes.size() - document.prolog);
    switch (random() % 6)
    {
    case 0:
        return bytes.substr(0, at);
    case 1:
        bytes[at] = '\0';
        return bytes;
    case 2:
        return bytes.erase(at, 1 + random() % 20);
    case 3:
        return bytes.insert(at, bytes.substr(at, 1 + random() % 40));
    case 4:
        bytes[at] = "<>&\"'/=!?-["[random() % 11];
        return bytes;
    default:
        bytes[at] = static_cast<char>(random());
        return bytes;
    }
}

} // namespace norvepa::test
