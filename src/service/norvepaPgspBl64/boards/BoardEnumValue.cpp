#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

using namespace norvepa;

namespace
{

constexpr std::wstring_view DefaultsWord = L"ConstraintsWithDefault";

// What a board's text asks for: the board's name, and what is behind it.
struct BoardText
{
    enum class Asks
    {
        Parameters,
        Defaults,
        Section
    };

    Asks asks;
    std::wstring_view board;
    std::wstring_view section; // what stands behind the last backslash
};

BoardText Split(std::wstring_view text)
{
    const std::size_t first = text.find(L'\\');
    if (first == std::wstring_view::npos)
    {
        return {BoardText::Asks::Parameters, text, {}};
    }
    const bool asksForDefaults = text.find(DefaultsWord) != std::wstring_view::npos;
    return {asksForDefaults ? BoardText::Asks::Defaults : BoardText::Asks::Section, text.substr(0, first),
            text.substr(text.rfind(L'\\') + 1)};
}

Result EnumBoard(const std::wstring& file, const BoardText& text, std::uint32_t index,
                 const PairBuffers& pair)
{
    switch (text.asks)
    {
    case BoardText::Asks::Defaults:
        return NorvXMLEnumConstraintDefault(file.c_str(), index, pair);
    case BoardText::Asks::Section:
        return NorvXMLEnumParamSection(file.c_str(), std::wstring(text.section).c_str(), index, pair);
    case BoardText::Asks::Parameters:
        break;
    }
    return NorvXMLEnumValue(file.c_str(), index, pair);
}

} // namespace

int32_t PGSP_BoardGetEnumValueBL(const wchar_t* Board, uint32_t index, wchar_t* Parameter, uint32_t* parLen,
                                 wchar_t* Value, uint32_t* valLen)
{
    return RunExport("PGSP_BoardGetEnumValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> Board = %s, index = %d", TraceToAnsi(Board), index);
        if (IsMissing(Board))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const BoardText text = Split(Board);
        const std::wstring file = BoardFile(programFolder, MakeBoardNameStripFirst(text.board));
        const std::uint32_t parameterCapacity = LengthOrZero(parLen);
        const std::uint32_t valueCapacity = LengthOrZero(valLen);
        const Result result = EnumBoard(file, text, index, {Parameter, parLen, Value, valLen});

        NORV_TRACE(frame, TraceInfo, "Parameter = %s, parLen = %d, Value = %s, valLen = %d",
                   TraceToAnsi(Parameter, parameterCapacity), LengthOrZero(parLen),
                   TraceToAnsi(Value, valueCapacity), LengthOrZero(valLen));
        return frame.Return(result);
    });
}
