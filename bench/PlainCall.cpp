#include "PlainCall.h"

namespace norvepa::bench
{

void PlainCall(const TraceSource&, std::uint32_t, const char*, int, const char*, const void*,
               const void*) noexcept
{
}

} // namespace norvepa::bench
