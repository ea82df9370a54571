#include "CabinetStreams.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <utility>

namespace norvctl
{

namespace
{

constexpr std::intptr_t NoHandle = -1;
constexpr unsigned NoCount = std::numeric_limits<unsigned>::max();

} // namespace

std::size_t CabinetStream::Read(void* bytes, std::size_t count)
{
    const std::string_view rest = Bytes().substr(std::min(m_place, Bytes().size())).substr(0, count);
    std::ranges::copy(rest, static_cast<char*>(bytes));
    m_place += rest.size();
    return rest.size();
}

bool CabinetStream::Write(const void* bytes, std::size_t count)
{
    if (m_file == nullptr)
    {
        return false;
    }
    if (m_file->size() < m_place)
    {
        m_file->resize(m_place);
    }
    m_file->replace(m_place, count, static_cast<const char*>(bytes), count);
    m_place += count;
    return true;
}

long CabinetStream::Seek(long distance, int from)
{
    const std::size_t base = from == SEEK_SET ? 0 : from == SEEK_CUR ? m_place : Bytes().size();
    const std::int64_t place = static_cast<std::int64_t>(base) + distance;
    if (place < 0 || place > std::numeric_limits<long>::max())
    {
        return -1;
    }
    m_place = static_cast<std::size_t>(place);
    return static_cast<long>(place);
}

std::intptr_t CabinetStreams::Open(const char* name) noexcept
try
{
    return Keep(CabinetStream(m_files[name]));
}
catch (...)
{
    return NoHandle;
}

std::intptr_t CabinetStreams::Open(std::string_view fixed) noexcept
{
    return Keep(CabinetStream(fixed));
}

std::intptr_t CabinetStreams::Open(std::string& file) noexcept
{
    return Keep(CabinetStream(file));
}

std::intptr_t CabinetStreams::Keep(CabinetStream stream) noexcept
try
{
    m_streams.emplace(m_lastHandle + 1, stream);
    return ++m_lastHandle;
}
catch (...)
{
    return NoHandle;
}

CabinetStream* CabinetStreams::Find(std::intptr_t handle) noexcept
{
    const auto found = m_streams.find(handle);
    return found == m_streams.end() ? nullptr : &found->second;
}

unsigned CabinetStreams::Read(std::intptr_t handle, void* bytes, unsigned count) noexcept
{
    CabinetStream* const stream = Find(handle);
    return stream == nullptr ? NoCount : static_cast<unsigned>(stream->Read(bytes, count));
}

unsigned CabinetStreams::Write(std::intptr_t handle, const void* bytes, unsigned count) noexcept
try
{
    CabinetStream* const stream = Find(handle);
    return stream != nullptr && stream->Write(bytes, count) ? count : NoCount;
}
catch (...)
{
    return NoCount;
}

int CabinetStreams::Close(std::intptr_t handle) noexcept
{
    return m_streams.erase(handle) == 0 ? -1 : 0;
}

long CabinetStreams::Seek(std::intptr_t handle, long distance, int from) noexcept
{
    CabinetStream* const stream = Find(handle);
    return stream == nullptr ? -1 : stream->Seek(distance, from);
}

int CabinetStreams::Remove(const char* name) noexcept
{
    const auto found = m_files.find(std::string_view(name));
    if (found == m_files.end())
    {
        return -1;
    }
    m_files.erase(found);
    return 0;
}

std::string CabinetStreams::Take(const char* name)
{
    return std::exchange(m_files[name], {});
}

} // namespace norvctl
