#include "trace/TraceDriver.h"

#include "trace/TraceRecord.h"

namespace norvepa
{

namespace
{

constexpr char DriverName[] = "\\\\.\\NorvONLINX.VXD";
constexpr DWORD WriteLineCode = 2;

} // namespace

TraceDriver::TraceDriver() noexcept
    : m_driver(CreateFileA(DriverName, 0, 0, nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr)),
      m_error(m_driver ? ERROR_SUCCESS : GetLastError())
{
}

void TraceDriver::Write(std::string_view line) noexcept
{
    TraceLine text(line); // terminated; the driver gets the terminator too
    DWORD returned = 0;
    DeviceIoControl(m_driver.get(), WriteLineCode, text.data(), static_cast<DWORD>(text.view().size() + 1),
                    nullptr, 0, &returned, nullptr);
}

std::string_view DriverFault(DWORD error) noexcept
{
    return error == ERROR_NOT_SUPPORTED ? "Unable to open VxD, device does not support DeviceIOCTL"
                                        : "Unable to open VxD, got error code !";
}

} // namespace norvepa
