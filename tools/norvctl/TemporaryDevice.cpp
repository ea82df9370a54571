#include "TemporaryDevice.h"

#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

// The buffer has room at once: one too small would cost a number that nobody learns.
template <typename Create>
std::string Made(const Create& create, const std::string& original)
{
    const std::wstring name = ToWide(original);
    const ReadResult made =
        ReadText([&](wchar_t* text, uint32_t* length) { return create(name.c_str(), text, length); });
    Require(made.result, original);
    return made.value;
}

} // namespace

TemporaryDevice TemporaryDevice::CopyOf(const std::string& device)
{
    return TemporaryDevice(Made(&LogDeviceCreateTempBL, device));
}

TemporaryDevice TemporaryDevice::FromTemplate(const std::string& source)
{
    return TemporaryDevice(Made(&LogDeviceCreateTempFromDefBL, source));
}

TemporaryDevice::~TemporaryDevice()
{
    if (!m_isKept)
    {
        LogDeviceDelTempBL(ToWide(m_name).c_str());
    }
}

void TemporaryDevice::ReplaceDevice(const std::string& device)
{
    const int32_t result = LogDeviceUpdateWithTempBL(ToWide(m_name).c_str(), ToWide(device).c_str());
    m_isKept = result == PGSP_OK || result == PGSP_ERR_CANT_COPY_FILE;
    switch (result)
    {
    case PGSP_ERR_CANT_DELETE_FILE: // all is done, and the destructor tries once more
        return;
    case PGSP_ERR_FILE_NOT_FOUND:
        throw Failure(device, result, "the log device is gone, in use or protected");
    case PGSP_ERR_CANT_COPY_FILE:
        throw Failure(device, result,
                      fmt::format("the log device is gone, all that is left of it is {}", m_name));
    default:
        Require(result, device);
    }
}

void TemporaryDevice::BecomeDevice(const std::string& device)
{
    const std::wstring name = ToWide(device);
    Require(LogDeviceCopyBL(ToWide(m_name).c_str(), name.c_str()), device);
    try
    {
        ReplaceDevice(device); // the copy has two values set, and this hasn't
    }
    catch (...)
    {
        const int32_t result = m_isKept ? PGSP_OK : LogDeviceDelBL(name.c_str(), 1);
        Require(result, device, "an unfinished log device of this name stays: remove it");
        throw;
    }
}

} // namespace norvctl
