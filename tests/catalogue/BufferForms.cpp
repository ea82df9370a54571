#include "catalogue/BufferForms.h"

#include "catalogue/norvxmlCatalogue.h"

namespace norvepa::test
{

namespace
{

Result AskElementGetAttribute(const wchar_t* file, wchar_t* buffer, std::uint32_t* length)
{
    return NorvXMLElementGetAttribute(file, L"CP_TYPE", buffer, length);
}

Result AskProtocolGetValue(const wchar_t* file, wchar_t* buffer, std::uint32_t* length)
{
    return NorvXMLProtocolGetValue(file, L"p", L"default", buffer, length);
}

Result AskProfileGetValue(const wchar_t* file, wchar_t* buffer, std::uint32_t* length)
{
    return NorvXMLProfileGetValue(file, L"p", L"v", L"n", buffer, length);
}

Result AskSubProfileGetValue(const wchar_t* file, wchar_t* buffer, std::uint32_t* length)
{
    return NorvXMLSubProfileGetValue(file, L"p", L"v", L"sp", L"sv", L"n", buffer, length);
}

// The first question about a file, which works the list out.
Result AskEnumValue(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumValue(file, 0, pair);
}

Result AskEnumProtocolValue(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumProtocolValue(file, 0, pair);
}

Result AskEnumConstraintDefault(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumConstraintDefault(file, 0, pair);
}

Result AskEnumProtocolParameter(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumProtocolParameter(file, L"p", 0, pair);
}

Result AskEnumParamSection(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumParamSection(file, L"p", 0, pair);
}

Result AskEnumProfileValue(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumProfileValue(file, L"p", L"v", 0, pair);
}

Result AskEnumSubProfileValue(const wchar_t* file, const PairBuffers& pair)
{
    return NorvXMLEnumSubProfileValue(file, L"p", L"v", L"sp", L"sv", 0, pair);
}

} // namespace

const std::vector<TextForm>& TextForms()
{
    static const std::vector<TextForm> forms{
        {"ElementGetAttribute", AskElementGetAttribute},
        {"ProtocolGetValue", AskProtocolGetValue},
        {"ProfileGetValue", AskProfileGetValue},
        {"SubProfileGetValue", AskSubProfileGetValue},
    };
    return forms;
}

const std::vector<PairForm>& PairForms()
{
    constexpr Result bad = PGSP_ERR_INVALID_PARAMETERS;
    static const std::vector<PairForm> forms{
        {"EnumValue", L"n", bad, AskEnumValue},
        {"EnumProtocolValue", L"p", bad, AskEnumProtocolValue},
        {"EnumConstraintDefault", L"p", Result{-1}, AskEnumConstraintDefault},
        {"EnumProtocolParameter", L"default", bad, AskEnumProtocolParameter},
        {"EnumParamSection", L"default", Result{-1}, AskEnumParamSection},
        {"EnumProfileValue", L"n", bad, AskEnumProfileValue},
        {"EnumSubProfileValue", L"n", bad, AskEnumSubProfileValue},
    };
    return forms;
}

} // namespace norvepa::test
