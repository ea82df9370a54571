#include "endurance/Ledger.h"

#include <windows.h>

#include <algorithm>
#include <numeric>

namespace norvepa::test
{

namespace
{

constexpr std::size_t MostFaults = 50;

constexpr std::array Documented{
    std::int32_t{-1}, // no output at all for a section of a board
    std::int32_t{ERROR_OUTOFMEMORY},
    std::int32_t{PGSP_OK},
    std::int32_t{PGSP_ERR_ACCESS_DENIED},
    std::int32_t{PGSP_ERR_INVALID_PARAMETERS},
    std::int32_t{PGSP_ERR_BUFFER_TOO_SHORT},
    std::int32_t{PGSP_ERR_NO_MORE_ITEMS},
    std::int32_t{PGSP_ERR_LOG_DEVICE_NOT_EXISTS},
    std::int32_t{PGSP_ERR_LOG_DEVICE_NOT_DELETABLE},
    std::int32_t{PGSP_ERR_NOT_REGISTERED},
    std::int32_t{PGSP_ERR_PARAM_DESC_NOT_FOUND},
    std::int32_t{PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND},
    std::int32_t{PGSP_NOT_IN_LIST},
    std::int32_t{PGSP_NOT_A_BOOL},
    std::int32_t{PGSP_SET_VAL_LESS_THAN_MIN},
    std::int32_t{PGSP_SET_VAL_BIGGER_THAN_MAX},
    std::int32_t{PGSP_NOT_IN_STEP},
    std::int32_t{PGSP_PROFILE_NO_VALUE},
    std::int32_t{PGSP_ERR_CANT_LOAD_DLL},
    std::int32_t{PGSP_CANT_CREATE_TEMP_LOG_DEVICE},
    std::int32_t{PGSP_LOCKED_BY_THIS_THREAD},
    std::int32_t{PGSP_LOCKED_BY_OTHER_THREAD},
    std::int32_t{PGSP_ERR_FILE_NOT_FOUND},
    std::int32_t{PGSP_ERR_FILE_EXISTS},
    std::int32_t{PGSP_ERR_CANT_CREATE_XML_ENGINE},
    std::int32_t{PGSP_ERR_INVALID_FILE},
    std::int32_t{PGSP_ERR_CANT_LOAD_XML_FILE},
    std::int32_t{PGSP_ERR_CANT_LOAD_SCHEMA},
    std::int32_t{PGSP_ERR_CANT_CREATE_FILE},
    std::int32_t{PGSP_ERR_CANT_DELETE_FILE},
    std::int32_t{PGSP_ERR_CANT_COPY_FILE},
    std::int32_t{PGSP_ERR_PARAM_NOT_FOUND},
    std::int32_t{PGSP_ERR_CANT_SET_VALUE},
    std::int32_t{PGSP_ERR_SAME_VALUE},
    std::int32_t{PGSP_ERR_DRIVER_READ},
    std::int32_t{PGSP_ERR_FOLDER_NOT_FOUND},
    std::int32_t{PGSP_ERR_DUPLICATE_EVENT},
    std::int32_t{PGSP_ERR_DRIVER_BUFFER},
    std::int32_t{PGSP_ERR_DRIVER_NO_MEMORY},
    std::int32_t{PGSP_ERR_CANT_LOAD_RESOURCE},
};

} // namespace

bool IsDocumented(std::int32_t result)
{
    return std::ranges::find(Documented, result) != Documented.end();
}

void Ledger::Enter(const Card& card, std::int32_t result, bool isIntact)
{
    ++m_counts[card.call];
    const auto where = [&] {
        return std::string(m_calls[card.call].name) + ", card " + std::to_string(card.number);
    };
    if (!IsDocumented(result))
    {
        AddFault(where() + " answers " + std::to_string(result));
    }
    if (!isIntact)
    {
        AddFault(where() + " writes behind a buffer");
    }
}

std::uint64_t Ledger::total() const
{
    return std::accumulate(m_counts.begin(), m_counts.end(), std::uint64_t{0});
}

std::vector<std::string> Ledger::rareCalls(std::uint64_t least) const
{
    std::vector<std::string> rare;
    for (std::size_t call = 0; call < m_calls.size(); ++call)
    {
        if (m_counts[call] < least)
        {
            rare.push_back(m_calls[call].name + (": " + std::to_string(m_counts[call])));
        }
    }
    return rare;
}

std::vector<std::string> Ledger::faults() const
{
    const std::lock_guard lock(m_mutex);
    return m_faults;
}

void Ledger::AddFault(std::string fault)
{
    const std::lock_guard lock(m_mutex);
    if (m_faults.size() < MostFaults)
    {
        m_faults.push_back(std::move(fault));
    }
}

} // namespace norvepa::test
