#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

namespace norvepa
{

namespace
{

// The part of an entry that counts as the value: what is ahead of a "/", leading ones skipped.
std::wstring_view FirstToken(std::wstring_view entry)
{
    const std::size_t begin = entry.find_first_not_of(L'/');
    return begin == std::wstring_view::npos ? std::wstring_view{}
                                            : entry.substr(begin, entry.find(L'/', begin) - begin);
}

// Walks a list of allowed values; `enumerate` answers the entry at an index.
template <typename Enumerate>
bool IsListed(std::wstring_view value, const Enumerate& enumerate)
{
    std::wstring entry;
    for (std::uint32_t index = 0; enumerate(index, &entry) == PGSP_OK; ++index)
    {
        if (EqualNoCase(FirstToken(entry), value))
        {
            return true;
        }
    }
    return false;
}

bool Defines(const std::wstring& file, const wchar_t* parameter)
{
    std::wstring type;
    return NorvXMLGetConstraint(file.c_str(), parameter, L"type", &type) == PGSP_OK;
}

bool IsInCollection(const std::wstring& file, const wchar_t* key, std::wstring_view value)
{
    return IsListed(value, [&](std::uint32_t index, std::wstring* entry) {
        return NorvXMLEnumValueCollectionRaw(file.c_str(), key, index, entry);
    });
}

// The list of a baud rate always comes from the board, also when only the protocol defines the parameter:
// then it is read another way, and a board without it refuses every value.
bool IsAllowedBaudrate(const DeviceCatalogue& catalogue, bool boardDefines, std::wstring_view value)
{
    if (boardDefines)
    {
        return IsInCollection(catalogue.board(), L"Constraints\\baudrate", value);
    }
    return IsListed(value, [&](std::uint32_t index, std::wstring* entry) {
        return NorvXMLEnumBaudrate(catalogue.board().c_str(), index, entry);
    });
}

// That of a timeout comes from the file that defines the parameter.
bool IsAllowedTimeout(const DeviceCatalogue& catalogue, bool boardDefines, std::wstring_view value)
{
    return IsInCollection(boardDefines ? catalogue.board() : catalogue.protocol(), L"Constraints\\l4_timeout",
                          value);
}

} // namespace

Result LogDeviceCheckConstraintList(DeviceCatalogue& catalogue, const wchar_t* Parameter,
                                    const wchar_t* ValueToCheck)
{
    const ExportFrame frame{"LogDeviceCheckConstraintList: "};

    NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, ValueToCheck = %s",
               TraceToAnsi(catalogue.logDevice()), TraceToAnsi(Parameter), TraceToAnsi(ValueToCheck));
    if (IsMissing(catalogue.logDevice()) || IsMissing(Parameter) || IsMissing(ValueToCheck))
    {
        return frame.InvalidParameters();
    }
    if (const auto exit = catalogue.Unavailable(frame))
    {
        return *exit;
    }

    const bool isBaudrate = EqualNoCase(Parameter, L"baudrate");
    if (isBaudrate || EqualNoCase(Parameter, L"l4_timeout"))
    {
        const bool boardDefines = Defines(catalogue.board(), Parameter);
        if (!boardDefines && !Defines(catalogue.protocol(), Parameter))
        {
            NORV_TRACE(frame, TraceExit, "<< return PGSP_OK, no Constraints found");
            return PGSP_OK;
        }
        const bool isAllowed = isBaudrate ? IsAllowedBaudrate(catalogue, boardDefines, ValueToCheck)
                                          : IsAllowedTimeout(catalogue, boardDefines, ValueToCheck);
        if (!isAllowed)
        {
            NORV_TRACE(frame, TraceExit, "<< return 0x%x", static_cast<unsigned>(PGSP_NOT_IN_LIST));
            return PGSP_NOT_IN_LIST;
        }
    }
    NORV_TRACE(frame, TraceExit, "<< return PGSP_OK, Constraint = %s", TraceToAnsi(ValueToCheck));
    return PGSP_OK;
}

Result LogDeviceCheckConstraintList(const wchar_t* LogDevice, const wchar_t* Parameter,
                                    const wchar_t* ValueToCheck)
{
    DeviceCatalogue catalogue(LogDevice);
    return LogDeviceCheckConstraintList(catalogue, Parameter, ValueToCheck);
}

} // namespace norvepa
