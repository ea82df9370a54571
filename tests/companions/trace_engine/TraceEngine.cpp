// A stand-in for the trace engine library. Each call becomes a line of the file that the environment
// variable NORV_TEST_ENGINE_LOG names; NORV_TEST_ENGINE_OPEN and NORV_TEST_ENGINE_WRITE hold the results
// that the calls give, 0 when they aren't set. Which of the functions are exported is a matter of the
// .def file.

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace
{

constexpr int TheHandle = 4711;

std::string Variable(const char* name)
{
    std::string value(1024, '\0');
    value.resize(GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

int ResultOf(const char* variable)
{
    return std::atoi(Variable(variable).c_str());
}

void Log(const std::string& line)
{
    std::ofstream(Variable("NORV_TEST_ENGINE_LOG"), std::ios::app) << line << '\n';
}

std::string Hexadecimal(const unsigned char* bytes, int count)
{
    std::string text;
    for (int index = 0; index < count; ++index)
    {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned int>(bytes[index]));
        text += digits;
    }
    return text;
}

} // namespace

extern "C"
{

int TraceOpenA(const char* metaInfo, const char* settings, const char* folder, int unused,
               const char* version, int* handle)
{
    Log(std::string("open ") + metaInfo + "," + settings + "," + folder + "," + std::to_string(unused) + "," +
        version);
    *handle = TheHandle;
    return ResultOf("NORV_TEST_ENGINE_OPEN");
}

int TraceWrite(int handle, int first, int second, const unsigned char* buffer, int length)
{
    Log("write " + std::to_string(handle) + "," + std::to_string(first) + "," + std::to_string(second) + "," +
        Hexadecimal(buffer, 4) + "," +
        std::string(reinterpret_cast<const char*>(buffer) + 4, static_cast<std::size_t>(length - 4)));
    return ResultOf("NORV_TEST_ENGINE_WRITE");
}

int TraceCommand()
{
    Log("command");
    return 0;
}

int TraceClose()
{
    Log("close");
    return 0;
}

} // extern "C"
