#include "Resources.h"

#include <windows.h>

#include <stdexcept>

namespace norvctl
{

namespace
{

std::string_view TextOf(const wchar_t* name)
{
    const HRSRC found = FindResourceW(nullptr, name, RT_RCDATA);
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(nullptr, found);
    if (loaded == nullptr)
    {
        throw std::runtime_error("a part of the program is missing");
    }
    return {static_cast<const char*>(LockResource(loaded)), SizeofResource(nullptr, found)};
}

} // namespace

std::string_view PageStyle()
{
    return TextOf(L"REPORT_STYLE");
}

std::string_view PageScript()
{
    return TextOf(L"REPORT_SCRIPT");
}

std::string_view AnswerSchema()
{
    return TextOf(L"ANSWER_SCHEMA");
}

} // namespace norvctl
