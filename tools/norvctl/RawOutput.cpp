#include "RawOutput.h"

#include <io.h>

#include <cstdio>
#include <fcntl.h>
#include <stdexcept>

namespace norvctl
{

namespace
{

void Require(bool written)
{
    if (!written)
    {
        throw std::runtime_error("the output cannot be written");
    }
}

} // namespace

RawOutput::RawOutput()
{
    _setmode(_fileno(stdout), _O_BINARY);
}

void RawOutput::Write(std::string_view bytes)
{
    Require(std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size());
    m_last = bytes.empty() ? m_last : bytes.back();
}

void RawOutput::EndLine()
{
    if (m_last != '\n')
    {
        Write("\n");
    }
    Require(std::fflush(stdout) == 0);
}

} // namespace norvctl
