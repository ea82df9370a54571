#include "Result.h"

#include "norvepa.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

struct Row
{
    int32_t result;
    const char* word;
    const char* meaning;
};

constexpr std::array<Row, 40> Table{{
    {PGSP_OK, "PGSP_OK", "done"},
    {PGSP_ERR_ACCESS_DENIED, "PGSP_ERR_ACCESS_DENIED", "access is denied"},
    {PGSP_ERR_INVALID_PARAMETERS, "PGSP_ERR_INVALID_PARAMETERS", "the name or the value is not acceptable"},
    {PGSP_ERR_BUFFER_TOO_SHORT, "PGSP_ERR_BUFFER_TOO_SHORT", "the text or the path is too long"},
    {PGSP_ERR_NO_MORE_ITEMS, "PGSP_ERR_NO_MORE_ITEMS", "there are no more items"},
    {PGSP_ERR_LOG_DEVICE_NOT_EXISTS, "PGSP_ERR_LOG_DEVICE_NOT_EXISTS", "there is no such log device"},
    {PGSP_ERR_LOG_DEVICE_NOT_DELETABLE, "PGSP_ERR_LOG_DEVICE_NOT_DELETABLE",
     "the log device does not allow its deletion"},
    {PGSP_ERR_NOT_REGISTERED, "PGSP_ERR_NOT_REGISTERED", "there is no such registration"},
    {PGSP_ERR_PARAM_DESC_NOT_FOUND, "PGSP_ERR_PARAM_DESC_NOT_FOUND", "the parameter has no description"},
    {PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND, "PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND",
     "there is neither such a parameter nor a default for it"},
    {PGSP_NOT_IN_LIST, "PGSP_NOT_IN_LIST", "the value is not one of those allowed"},
    {PGSP_NOT_A_BOOL, "PGSP_NOT_A_BOOL", "the value is neither true nor false"},
    {PGSP_SET_VAL_LESS_THAN_MIN, "PGSP_SET_VAL_LESS_THAN_MIN", "the value is under the minimum"},
    {PGSP_SET_VAL_BIGGER_THAN_MAX, "PGSP_SET_VAL_BIGGER_THAN_MAX", "the value is over the maximum"},
    {PGSP_NOT_IN_STEP, "PGSP_NOT_IN_STEP", "the value lies between two steps"},
    {PGSP_PROFILE_NO_VALUE, "PGSP_PROFILE_NO_VALUE", "the profile has no value for the parameter"},
    {PGSP_ERR_CANT_LOAD_DLL, "PGSP_ERR_CANT_LOAD_DLL", "the resource library cannot be loaded"},
    {PGSP_CANT_CREATE_TEMP_LOG_DEVICE, "PGSP_CANT_CREATE_TEMP_LOG_DEVICE",
     "no temporary log device could be made"},
    {PGSP_LOCKED_BY_THIS_THREAD, "PGSP_LOCKED_BY_THIS_THREAD", "it is locked by this thread"},
    {PGSP_LOCKED_BY_OTHER_THREAD, "PGSP_LOCKED_BY_OTHER_THREAD", "it is locked by another thread"},
    {PGSP_ERR_FILE_NOT_FOUND, "PGSP_ERR_FILE_NOT_FOUND", "there is no such file"},
    {PGSP_ERR_FILE_EXISTS, "PGSP_ERR_FILE_EXISTS", "the file exists already"},
    {PGSP_ERR_CANT_CREATE_XML_ENGINE, "PGSP_ERR_CANT_CREATE_XML_ENGINE", "the XML engine cannot be created"},
    {PGSP_ERR_INVALID_FILE, "PGSP_ERR_INVALID_FILE", "the file would not satisfy its schema"},
    {PGSP_ERR_CANT_LOAD_XML_FILE, "PGSP_ERR_CANT_LOAD_XML_FILE", "the file cannot be opened or parsed"},
    {PGSP_ERR_CANT_LOAD_SCHEMA, "PGSP_ERR_CANT_LOAD_SCHEMA", "the schema cannot be loaded"},
    {PGSP_ERR_CANT_CREATE_FILE, "PGSP_ERR_CANT_CREATE_FILE", "the file cannot be created"},
    {PGSP_ERR_CANT_DELETE_FILE, "PGSP_ERR_CANT_DELETE_FILE", "the file cannot be deleted"},
    {PGSP_ERR_CANT_COPY_FILE, "PGSP_ERR_CANT_COPY_FILE", "the file cannot be copied"},
    {PGSP_ERR_PARAM_NOT_FOUND, "PGSP_ERR_PARAM_NOT_FOUND", "there is no such parameter"},
    {PGSP_ERR_CANT_SET_VALUE, "PGSP_ERR_CANT_SET_VALUE", "there is no place to store the parameter"},
    {PGSP_ERR_SAME_VALUE, "PGSP_ERR_SAME_VALUE", "the parameter has this value already"},
    {PGSP_ERR_DRIVER_READ, "PGSP_ERR_DRIVER_READ", "the log device does not say what to load"},
    {PGSP_ERR_FOLDER_NOT_FOUND, "PGSP_ERR_FOLDER_NOT_FOUND", "the store's folder cannot be found"},
    {PGSP_ERR_DUPLICATE_EVENT, "PGSP_ERR_DUPLICATE_EVENT", "the event is registered already"},
    {PGSP_ERR_DRIVER_BUFFER, "PGSP_ERR_DRIVER_BUFFER", "the driver's records could not be written"},
    {PGSP_ERR_DRIVER_NO_MEMORY, "PGSP_ERR_DRIVER_NO_MEMORY", "the driver's records could not grow"},
    {PGSP_ERR_CANT_LOAD_RESOURCE, "PGSP_ERR_CANT_LOAD_RESOURCE", "the text cannot be loaded"},
    {14, "ERROR_OUTOFMEMORY", "memory ran out"},
    {-1, "none", "nothing was found"},
}};

} // namespace

std::string InWords(int32_t result)
{
    const auto row =
        std::find_if(Table.begin(), Table.end(), [=](const Row& each) { return each.result == result; });
    return row == Table.end() ? fmt::format("result {}", result)
                              : fmt::format("{} ({} {})", row->meaning, row->result, row->word);
}

Failure::Failure(const std::string& subject, int32_t result)
    : std::runtime_error(fmt::format("{}: {}", subject, InWords(result))), m_result(result)
{
}

Failure::Failure(const std::string& subject, int32_t result, const std::string& more)
    : std::runtime_error(fmt::format("{}: {}: {}", subject, InWords(result), more)), m_result(result)
{
}

void Require(int32_t result, const std::string& subject, const std::string& more)
{
    if (result != PGSP_OK)
    {
        throw more.empty() ? Failure(subject, result) : Failure(subject, result, more);
    }
}

} // namespace norvctl
