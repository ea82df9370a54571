#include "handover/OutlineScene.h"

#include "handover/DeviceOutline.h"
#include "support/TemporaryFolder.h"

#include <iomanip>

#include <sstream>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

std::string Quoted(std::wstring_view text)
{
    std::ostringstream quoted;
    quoted << std::quoted(ToUtf8(text), '\'');
    return quoted.str();
}

void TellText(const DeviceOutline& outline, const std::optional<DeviceOutline::Text>& text,
              std::ostream& line)
{
    if (text)
    {
        line << Quoted(outline.view(*text));
        return;
    }
    line << '-';
}

void TellSection(const DeviceOutline& outline, const DeviceOutline::Section& section, std::ostream& line)
{
    line << ' ' << ToUtf8(section.word);
    if (section.subdevice)
    {
        line << '@' << Quoted(*section.subdevice);
    }
    const char* before = "{";
    for (const DeviceOutline::Parameter& parameter : section.parameters)
    {
        line << before << static_cast<int>(parameter.type) << ' ';
        TellText(outline, parameter.name, line);
        line << '=';
        TellText(outline, parameter.value, line);
        before = ", ";
    }
    line << '}';
}

std::string LineOf(const DeviceOutline& outline)
{
    std::ostringstream line;
    line << "load";
    for (const std::wstring& entry : outline.load)
    {
        line << ' ' << Quoted(entry);
    }
    for (const DeviceOutline::Section& section : outline.sections)
    {
        TellSection(outline, section, line);
    }
    return line.str();
}

} // namespace

OutlineScene::OutlineScene()
{
    if (FAILED(m_document.Create()))
    {
        throw std::runtime_error("no DOM engine");
    }
    m_document.LoadAsItStands();
}

OutlineLine OutlineScene::ByTheEngine(std::string_view bytes)
{
    return m_document.LoadBytes(bytes) ? OutlineLine(LineOf(OutlineOf(m_document))) : std::nullopt;
}

OutlineLine OutlineScene::ByTheBytes(std::string_view bytes)
{
    const auto outline = OutlineOf(bytes);
    return outline ? OutlineLine(LineOf(*outline)) : std::nullopt;
}

void OutlineScene::ExpectAlike(std::string_view bytes, const std::string& line)
{
    EXPECT_EQ(ByTheEngine(bytes), line);
    EXPECT_EQ(ByTheBytes(bytes), line);
}

void OutlineScene::ExpectLeftToTheEngine(std::string_view bytes)
{
    EXPECT_NE(ByTheEngine(bytes), std::nullopt);
    EXPECT_EQ(ByTheBytes(bytes), std::nullopt);
}

std::string WithValue(std::string_view raw)
{
    return "<d><S><Parameter><Name>n</Name><Value>" + std::string(raw) + "</Value></Parameter></S></d>";
}

void PrintTo(const PlainDocument& document, std::ostream* out)
{
    *out << document.name; // in one line, as lists of tests have them
}

void PrintTo(const OtherDocument& document, std::ostream* out)
{
    *out << document.name; // in one line, as lists of tests have them
}

} // namespace norvepa::test
