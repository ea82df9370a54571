#include "service/norvepaPgspBl64/CatalogueValue.h"

#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "store/norvxml.h"

namespace norvepa
{

Result ReadFromPlaces(const std::wstring& file, std::span<const wchar_t* const> sections,
                      const wchar_t* parameter, wchar_t* value, std::uint32_t* length)
{
    const std::uint32_t capacity = *length;
    Result result = NorvXMLElementGetAttribute(file.c_str(), parameter, value, length);
    for (const wchar_t* const section : sections)
    {
        if (result == PGSP_OK)
        {
            return PGSP_OK;
        }
        *length = capacity;
        result = NorvXMLGetValueBuffer(file.c_str(), section, parameter, value, length);
    }
    return result;
}

Result ReadFromPath(const ExportFrame& frame, const std::wstring& file, const wchar_t* path,
                    const wchar_t* parameter, wchar_t* value, std::uint32_t* length)
{
    NORV_TRACE(frame, TraceInfo, "NorvXMLGetValueRaw");
    std::wstring text;
    const Result result = NorvXMLGetValueRaw(file.c_str(), path, parameter, &text);
    return result == PGSP_OK ? CopyOut(text, value, length) : result;
}

} // namespace norvepa
