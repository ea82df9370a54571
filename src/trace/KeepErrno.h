#pragma once

// Puts errno back as it was: whoever traces may still have to look at it.

#include <cerrno>

namespace norvepa
{

class KeepErrno
{
public:
    KeepErrno() noexcept : m_value(errno) {}
    KeepErrno(const KeepErrno&) = delete;
    KeepErrno& operator=(const KeepErrno&) = delete;
    ~KeepErrno() { errno = m_value; }

private:
    int m_value;
};

} // namespace norvepa
