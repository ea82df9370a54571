#include "handover/DeviceOutline.h"
#include "xml/PlainReader.h"

#include <algorithm>
#include <utility>

namespace norvepa
{

namespace
{

using Token = PlainReader::Token;

bool IsAscii(std::string_view word) noexcept
{
    return std::all_of(word.begin(), word.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// Goes from tag to tag. Elements in unusual places, a parameter within a parameter, say, are more than one
// thing to the engine's walk; they aren't read here.
class TextWalk
{
public:
    explicit TextWalk(std::string_view bytes) : m_reader(bytes) {}

    // False for what isn't read here.
    [[nodiscard]] bool ReadAll()
    {
        for (;;)
        {
            const Token token = m_reader.Read();
            switch (token)
            {
            case Token::BeginTag:
            case Token::EmptyTag:
                if (!ReadTag(token))
                {
                    return false;
                }
                break;
            case Token::EndTag:
                if (m_open.empty())
                {
                    return false;
                }
                m_open.pop_back();
                break;
            case Token::End:
                return m_open.empty();
            case Token::NotPlain:
                return false;
            }
        }
    }

    [[nodiscard]] DeviceOutline Take()
    {
        // A section is known by its first parameter, and stands where its own begin tag does.
        std::sort(m_sections.begin(), m_sections.end(),
                  [](const Found& left, const Found& right) { return left.tag < right.tag; });
        for (Found& found : m_sections)
        {
            m_outline.sections.push_back(std::move(found.section));
        }
        return std::move(m_outline);
    }

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    enum class Kind
    {
        Root, // which is no section
        Element,
        Load,
        Parameter
    };

    struct Open
    {
        Kind kind;
        std::string_view word;
        std::size_t tag; // how many there were ahead of it
        std::optional<std::wstring> subdevice;
        std::size_t section = None; // which of those found it is; of a parameter, which it stands in
    };

    struct Found
    {
        std::size_t tag;
        DeviceOutline::Section section;
    };

    [[nodiscard]] bool ReadTag(Token token)
    {
        ++m_tags;
        if (m_open.empty())
        {
            return m_tags == 1 && Enter(Kind::Root, token);
        }
        const Open& parent = m_open.back();
        const std::string_view word = m_reader.word();
        if (parent.kind == Kind::Load)
        {
            return ReadLoadEntry(token);
        }
        if (parent.kind == Kind::Parameter && word == "Name")
        {
            return ReadPart(token, LastParameterOf(parent.section).name);
        }
        if (parent.kind == Kind::Parameter && word == "Value")
        {
            return ReadPart(token, LastParameterOf(parent.section).value);
        }
        if (const auto type = DriverTypeOf(word))
        {
            return parent.kind == Kind::Element && EnterParameter(token, *type);
        }
        return Enter(word == "Load" ? Kind::Load : Kind::Element, token);
    }

    [[nodiscard]] DeviceOutline::Parameter& LastParameterOf(std::size_t section)
    {
        return m_sections[section].section.parameters.back();
    }

    [[nodiscard]] bool ReadLoadEntry(Token token)
    {
        if (m_reader.word() == "Load" || DriverTypeOf(m_reader.word()))
        {
            return false;
        }
        std::wstring& entry = m_outline.load.emplace_back();
        return token == Token::EmptyTag || m_reader.ReadText(entry);
    }

    [[nodiscard]] bool ReadPart(Token token, std::optional<DeviceOutline::Text>& part)
    {
        const std::size_t begin = m_outline.texts.size();
        if (token == Token::BeginTag && !m_reader.ReadText(m_outline.texts))
        {
            return false;
        }
        part = {begin, m_outline.texts.size() - begin};
        return true;
    }

    [[nodiscard]] bool EnterParameter(Token token, DriverType type)
    {
        Open& parent = m_open.back();
        if (parent.section == None && !FindSection(parent))
        {
            return false;
        }
        const std::size_t section = parent.section;
        m_sections[section].section.parameters.push_back({type, std::nullopt, std::nullopt});
        if (!Enter(Kind::Parameter, token))
        {
            return false;
        }
        if (token == Token::BeginTag)
        {
            m_open.back().section = section;
        }
        return true;
    }

    [[nodiscard]] bool FindSection(Open& element)
    {
        if (!IsAscii(element.word))
        {
            return false;
        }
        element.section = m_sections.size();
        m_sections.push_back(
            {element.tag, {std::wstring(element.word.begin(), element.word.end()), element.subdevice, {}}});
        return true;
    }

    [[nodiscard]] bool Enter(Kind kind, Token token)
    {
        if (token == Token::EmptyTag)
        {
            return true;
        }
        Open element{kind, m_reader.word(), m_tags, std::nullopt};
        if (element.word == "Subdevice" && !m_reader.ReadAttribute("SubdevName", element.subdevice))
        {
            return false;
        }
        m_open.push_back(std::move(element));
        return true;
    }

    PlainReader m_reader;
    std::vector<Open> m_open;
    std::vector<Found> m_sections;
    std::size_t m_tags = 0;
    DeviceOutline m_outline;
};

} // namespace

std::optional<DeviceOutline> OutlineOf(std::string_view bytes)
{
    TextWalk walk(bytes);
    return walk.ReadAll() ? std::optional(walk.Take()) : std::nullopt;
}

} // namespace norvepa
