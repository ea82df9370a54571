#include "store/ReadScene.h"

namespace norvepa::test
{

void PrintTo(const Answer& answer, std::ostream* out)
{
    *out << answer.result << " \"" << ToUtf8(answer.value) << '"';
}

Answer Found(std::wstring_view value)
{
    return {PGSP_OK, std::wstring(value)};
}

Answer NotFound()
{
    return {PGSP_ERR_PARAM_NOT_FOUND, {}};
}

Answer Refused(Result result)
{
    return {result, std::wstring(Before)};
}

void PrintTo(const Item& item, std::ostream* out)
{
    *out << item.result << " \"" << ToUtf8(item.name) << "\" \"" << ToUtf8(item.value) << '"';
}

Item NoItem(Result result)
{
    return {result, std::wstring(Before), std::wstring(Before)};
}

std::wstring ReadScene::File(std::string_view bytes, std::wstring_view name) const
{
    const std::wstring path = m_folder / name;
    WriteBytes(path + L".xml", bytes);
    return path;
}

Answer GetValue(const std::wstring& file, const wchar_t* section, const wchar_t* parameter)
{
    std::wstring value(Before);
    const Result result = NorvXMLGetValue(file.c_str(), section, parameter, &value);
    return {result, value};
}

Answer GetValueRaw(const std::wstring& file, const wchar_t* sectionPath, const wchar_t* parameter)
{
    std::wstring value(Before);
    const Result result = NorvXMLGetValueRaw(file.c_str(), sectionPath, parameter, &value);
    return {result, value};
}

Answer GetSubdevValue(const std::wstring& file, const wchar_t* subdevName, const wchar_t* parameter)
{
    std::wstring value(Before);
    const Result result = NorvXMLGetSubdevValue(file.c_str(), subdevName, parameter, &value);
    return {result, value};
}

} // namespace norvepa::test
