#include "trace/TraceRing.h"

#include "trace/TraceRecord.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <limits>

namespace norvepa
{

namespace
{

constexpr char RingName[] = "Global\\NorvSDD_Trace";
constexpr std::uint32_t RingVersion = 1;
constexpr std::uint32_t LongestRing = std::numeric_limits<std::uint32_t>::max() - sizeof(RingHeader);

// The header's words belong to all processes: each is read once and written once.
using Word = std::atomic_ref<std::uint32_t>;

} // namespace

std::optional<TraceRing> TraceRing::Attach(std::uint32_t ringBytes, SECURITY_ATTRIBUTES* security) noexcept
{
    const DWORD bytes = std::min(ringBytes, LongestRing) + static_cast<DWORD>(sizeof(RingHeader));
    win::Handle mapping(
        CreateFileMappingA(INVALID_HANDLE_VALUE, security, PAGE_READWRITE, 0, bytes, RingName));
    const bool isThereAlready = GetLastError() == ERROR_ALREADY_EXISTS;

    win::MappedView view(mapping, FILE_MAP_WRITE, 0);
    if (!view || view.CommittedBytes() < sizeof(RingHeader))
    {
        return std::nullopt;
    }

    TraceRing ring(std::move(mapping), std::move(view));
    if (!isThereAlready)
    {
        ring.FillHeader(bytes - static_cast<DWORD>(sizeof(RingHeader)));
        return ring;
    }
    return ring.Join() ? std::optional(std::move(ring)) : std::nullopt;
}

TraceRing::TraceRing(win::Handle mapping, win::MappedView view) noexcept
    : m_mapping(std::move(mapping)),
      m_view(std::move(view)),
      m_header(static_cast<RingHeader*>(m_view.get())),
      m_data(static_cast<char*>(m_view.get()) + RingDataOffset)
{
}

void TraceRing::FillHeader(std::uint32_t ringBytes) noexcept
{
    *m_header = {.writePosition = 0,
                 .ringBytes = ringBytes,
                 .wraps = 0,
                 .enabled = 1,
                 .writers = 1,
                 .version = RingVersion,
                 .unused = {}};
    m_ringBytes = ringBytes;
}

bool TraceRing::Join() noexcept
{
    m_ringBytes = Word(m_header->ringBytes).load();
    if (Word(m_header->version).load() != RingVersion ||
        m_ringBytes > m_view.CommittedBytes() - RingDataOffset)
    {
        return false;
    }
    Word(m_header->writers).fetch_add(1);
    return true;
}

void TraceRing::Write(std::string_view line) noexcept
{
    if ((Word(m_header->enabled).load() & 0xFF) == 0)
    {
        return;
    }
    FixedText<TraceLineLimit + 2> text(line);
    text.Append("\r\n");
    Put(text.view().substr(0, m_ringBytes));
}

void TraceRing::Put(std::string_view bytes) noexcept
{
    std::uint32_t position = Word(m_header->writePosition).load();
    if (position > m_ringBytes)
    {
        position = 0;
    }

    const std::size_t fitting = std::min<std::size_t>(bytes.size(), m_ringBytes - position);
    std::memcpy(m_data + position, bytes.data(), fitting);
    std::memcpy(m_data, bytes.data() + fitting, bytes.size() - fitting);

    const std::uint64_t moved = std::uint64_t{position} + bytes.size();
    if (moved <= m_ringBytes)
    {
        Word(m_header->writePosition).store(static_cast<std::uint32_t>(moved));
        return;
    }
    Word(m_header->writePosition).store(static_cast<std::uint32_t>(moved - m_ringBytes));
    const std::uint32_t wraps = Word(m_header->wraps).load();
    if (wraps != std::numeric_limits<std::uint32_t>::max())
    {
        Word(m_header->wraps).store(wraps + 1);
    }
}

} // namespace norvepa
