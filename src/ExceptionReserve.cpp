#include "ExceptionReserve.h"

#include <cstddef> // tells which run-time library this is

#ifdef __GLIBCXX__
namespace __gnu_cxx // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp) the library's own name
{
void __freeres(); // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
}
#endif

namespace norvepa
{

void FreeExceptionReserve() noexcept
{
#ifdef __GLIBCXX__
    __gnu_cxx::__freeres();
#endif
}

} // namespace norvepa
