#include "support/FreshThread.h"

#include <windows.h>
#include <objbase.h>

namespace norvepa::test
{

bool ThisThreadHasCom()
{
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    return CoGetApartmentType(&type, &qualifier) == S_OK;
}

} // namespace norvepa::test
