#include "service/norvepaLogDevBl64/SectionSearch.h"

#include "store/norvxml.h"

namespace norvepa
{

FoundEntry FindEntry(const std::wstring& file, const wchar_t* parameter, std::uint32_t lastSection)
{
    FoundEntry found;
    for (std::uint32_t index = 0; index <= lastSection; ++index)
    {
        if (NorvXMLGetValueBySectionIndex(file.c_str(), index, parameter, &found.element, &found.section) ==
            PGSP_OK)
        {
            return found;
        }
    }
    return {};
}

} // namespace norvepa
