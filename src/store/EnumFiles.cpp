#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/FileWalk.h"
#include "store/norvxml.h"
#include "trace/TraceStatement.h"

#include <utility>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLEnumFile: ", "XML"};

// Only for the length: a folder is listed by the name that it was given.
Result TestByEscaping(const std::wstring& folderPath)
{
    std::wstring escaped;
    return EscapePath(folderPath.c_str(), escaped);
}

} // namespace

Result NorvXMLEnumFile(const wchar_t* folderPath, std::uint32_t index, std::wstring* name)
{
    if (IsMissing(folderPath) || name == nullptr)
    {
        NORV_TRACE(source, TraceEntry, ">> folderPath = %s, index = %d", TraceToAnsi(folderPath), index);
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    return FileWalk(folderPath, GetDataFolder()).At(index, name);
}

FileWalk::FileWalk(std::wstring folderPath, std::wstring dataFolder)
    : m_folderPath(std::move(folderPath)),
      m_dataFolder(std::move(dataFolder)),
      m_escaping(TestByEscaping(m_folderPath))
{
}

Result FileWalk::At(std::uint32_t index, std::wstring* name)
{
    NORV_TRACE(source, TraceEntry, ">> folderPath = %s, index = %d", TraceToAnsi(m_folderPath.c_str()),
               index);
    if (m_escaping != PGSP_OK)
    {
        return m_escaping;
    }

    // A folder that can't be read is one without files. Without a watch nothing is kept from step to step.
    if (!IsWatching())
    {
        m_listing = nullptr;
    }
    if (m_listing == nullptr && getDirectoryContent(m_folderPath, m_dataFolder, m_listing) != PGSP_OK)
    {
        m_listing = nullptr;
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    if (index >= m_listing->size())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }

    *name = (*m_listing)[index];
    NORV_TRACE(source, TraceExit, "<< file = %s", TraceToAnsi(name->c_str()));
    return PGSP_OK;
}

Result NorvXMLEnumFileName(const wchar_t* folderPath, std::uint32_t index, wchar_t* buffer,
                           std::uint32_t* length)
{
    if (folderPath == nullptr || buffer == nullptr || length == nullptr || *length == 0)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    std::wstring name;
    const Result result = NorvXMLEnumFile(folderPath, index, &name);
    if (result != PGSP_OK || name.empty())
    {
        return result;
    }
    return CopyOut(name, buffer, length);
}

} // namespace norvepa
