#include "catalogue/EveryQuestion.h"

#include "catalogue/CatalogueScene.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace norvepa::test
{

namespace
{

template <typename Query>
Result AskText(const wchar_t* answer, const Query& query)
{
    const TextAnswer given = TextOf(query);
    return given.result == PGSP_OK && given.text != answer ? OtherAnswer : given.result;
}

template <typename Query>
Result AskPair(const wchar_t* answer, const Query& query)
{
    const PairAnswer given = PairOf(query);
    return given.result == PGSP_OK && given.value != answer ? OtherAnswer : given.result;
}

std::wstring Key(const wchar_t* front, const wchar_t* answer)
{
    return std::wstring(front) + answer;
}

Result AskElementGetAttribute(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLElementGetAttribute(file, L"CP_TYPE", out); });
}

Result AskProtocolGetValue(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLProtocolGetValue(file, L"p", L"default", out); });
}

Result AskProfileGetValue(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLProfileGetValue(file, L"p", L"v", L"n", out); });
}

Result AskSubProfileGetValue(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) {
        return NorvXMLSubProfileGetValue(file, L"p", L"v", L"sp", L"sv", L"n", out);
    });
}

Result AskProtocolGetValueRaw(const wchar_t* file, const wchar_t* answer)
{
    return AskText(
        answer, [&](auto* out) { return NorvXMLProtocolGetValueRaw(file, L"Constraints\\p\\v", L"n", out); });
}

Result AskBoardKeyExists(const wchar_t* file, const wchar_t* answer)
{
    return NorvXMLBoardKeyExists(file, Key(L"Constraints\\", answer).c_str(), 0);
}

Result AskProtocolKeyExists(const wchar_t* file, const wchar_t* answer)
{
    return NorvXMLProtocolKeyExists(file, Key(L"Constraints\\p\\", answer).c_str(), 0);
}

Result AskTemplateKeyExists(const wchar_t* file, const wchar_t* answer)
{
    return NorvXMLTemplateKeyExists(file, Key(L"Bindings\\Subdevices\\", answer).c_str(), 0);
}

Result AskGetConstraint(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLGetConstraint(file, L"p", L"default", out); });
}

Result AskEnumBaudrate(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLEnumBaudrate(file, 0, out); });
}

Result AskEnumProfileBaudrate(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLEnumProfileBaudrate(file, L"DP", 0, out); });
}

Result AskProfileCollectionExists(const wchar_t* file, const wchar_t* answer)
{
    return NorvXMLProfileCollectionExists(file, L"p", answer);
}

Result AskSubProfileCollectionExists(const wchar_t* file, const wchar_t* answer)
{
    return NorvXMLSubProfileCollectionExists(file, L"p", L"v", L"sp", answer);
}

Result AskGetParamDesc(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLGetParamDesc(file, L"p", L"v", out); });
}

Result AskEnumValue(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(answer, [&](const PairBuffers& pair) { return NorvXMLEnumValue(file, 0, pair); });
}

Result AskEnumValueCollectionRaw(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer,
                   [&](auto* out) { return NorvXMLEnumValueCollectionRaw(file, L"Constraints\\p", 0, out); });
}

Result AskEnumProtocolValue(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(answer, [&](const PairBuffers& pair) { return NorvXMLEnumProtocolValue(file, 0, pair); });
}

Result AskEnumConstraintDefault(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(answer,
                   [&](const PairBuffers& pair) { return NorvXMLEnumConstraintDefault(file, 0, pair); });
}

Result AskEnumProtocolParameter(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(
        answer, [&](const PairBuffers& pair) { return NorvXMLEnumProtocolParameter(file, L"p", 0, pair); });
}

Result AskEnumParamSection(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(answer,
                   [&](const PairBuffers& pair) { return NorvXMLEnumParamSection(file, L"p", 0, pair); });
}

Result AskEnumProfileValue(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(
        answer, [&](const PairBuffers& pair) { return NorvXMLEnumProfileValue(file, L"p", L"v", 0, pair); });
}

Result AskEnumSubProfile(const wchar_t* file, const wchar_t* answer)
{
    return AskText(answer, [&](auto* out) { return NorvXMLEnumSubProfile(file, L"p", L"names", 0, out); });
}

Result AskEnumSubProfileValue(const wchar_t* file, const wchar_t* answer)
{
    return AskPair(answer, [&](const PairBuffers& pair) {
        return NorvXMLEnumSubProfileValue(file, L"p", L"v", L"sp", L"sv", 0, pair);
    });
}

// The only one that adds ".xml" without looking.
constexpr const char* WithoutLooking = "ProtocolGetValue";

template <typename Wanted>
std::vector<Question> QuestionsThat(const Wanted& wanted)
{
    std::vector<Question> some;
    std::ranges::copy_if(EveryQuestion(), std::back_inserter(some), wanted);
    return some;
}

XmlContent Rates(std::wstring_view rate)
{
    return XmlContent().ParamSection(L"baudrate", Values(XmlContent().ParamSection(rate, XmlContent())));
}

} // namespace

void PrintTo(const Question& question, std::ostream* out)
{
    *out << question.name;
}

std::string NameOf(const testing::TestParamInfo<Question>& info)
{
    return info.param.name;
}

const std::vector<Question>& EveryQuestion()
{
    using enum NameOnDisk;
    using enum Sight;
    constexpr Result noFile = PGSP_ERR_FILE_NOT_FOUND;
    constexpr Result noLoad = PGSP_ERR_CANT_LOAD_XML_FILE;
    constexpr Result none = PGSP_ERR_PARAM_NOT_FOUND;
    constexpr Result noMore = PGSP_ERR_NO_MORE_ITEMS;
    static const std::vector<Question> questions{
        {"ElementGetAttribute", Escaped, Now, noLoad, none, AskElementGetAttribute},
        {WithoutLooking, AsGiven, Now, noLoad, none, AskProtocolGetValue},
        {"ProfileGetValue", Escaped, Parsed, noLoad, none, AskProfileGetValue},
        {"SubProfileGetValue", AsGiven, Now, noLoad, none, AskSubProfileGetValue},
        {"ProtocolGetValueRaw", AsGiven, NowAsDocument, noFile, none, AskProtocolGetValueRaw},
        {"BoardKeyExists", Escaped, Now, noLoad, none, AskBoardKeyExists},
        {"ProtocolKeyExists", Escaped, Now, noLoad, none, AskProtocolKeyExists},
        {"TemplateKeyExists", AsGiven, Now, noLoad, none, AskTemplateKeyExists},
        {"GetConstraint", AsGiven, Remembered, noLoad, none, AskGetConstraint},
        {"EnumBaudrate", Escaped, Parsed, noLoad, none, AskEnumBaudrate},
        {"EnumProfileBaudrate", Escaped, Parsed, noLoad, none, AskEnumProfileBaudrate},
        {"ProfileCollectionExists", Escaped, Parsed, noLoad, none, AskProfileCollectionExists},
        {"SubProfileCollectionExists", Escaped, Parsed, none, none, AskSubProfileCollectionExists},
        {"GetParamDesc", Escaped, Parsed, none, none, AskGetParamDesc},
        {"EnumValue", Escaped, Parsed, noFile, noMore, AskEnumValue},
        {"EnumValueCollectionRaw", EscapedTwice, Answered, noLoad, none, AskEnumValueCollectionRaw},
        {"EnumProtocolValue", Escaped, Parsed, noLoad, none, AskEnumProtocolValue},
        {"EnumConstraintDefault", Escaped, Parsed, noLoad, none, AskEnumConstraintDefault},
        {"EnumProtocolParameter", Escaped, Answered, noLoad, none, AskEnumProtocolParameter},
        {"EnumParamSection", Escaped, Answered, noLoad, none, AskEnumParamSection},
        {"EnumProfileValue", AsGiven, NowAsDocument, noFile, noMore, AskEnumProfileValue},
        {"EnumSubProfile", AsGiven, NowAsDocument, noFile, noMore, AskEnumSubProfile},
        {"EnumSubProfileValue", Escaped, Parsed, noLoad, noMore, AskEnumSubProfileValue},
    };
    return questions;
}

std::vector<Question> ExtendingQuestions()
{
    return QuestionsThat(
        [](const Question& question) { return std::strcmp(question.name, WithoutLooking) != 0; });
}

std::vector<Question> QuestionsSeeing(std::initializer_list<Sight> sights)
{
    return QuestionsThat(
        [&](const Question& question) { return std::ranges::find(sights, question.sight) != sights.end(); });
}

std::string FileAnswering(std::wstring_view answer)
{
    const XmlContent entry = XmlContent().Text(L"n", answer);
    const XmlContent subValues = XmlContent().ParamSection(L"sv", entry).ParamSection(answer, XmlContent());
    const XmlContent values =
        XmlContent()
            .Element(L"Value", answer)
            .ParamSection(L"names", XmlContent().ParamSection(answer, XmlContent()))
            .ParamSection(
                L"v", XmlContent(entry).Element(L"ParamDesc", answer).ParamSection(L"sp", Values(subValues)));
    const XmlContent constraints =
        XmlContent()
            .ParamSection(L"p", XmlContent().Element(L"default", answer).Raw(Values(values).utf8()))
            .Raw(Rates(answer).utf8())
            .ParamSection(L"busparam", Values(XmlContent().ParamSection(L"DP", Rates(answer))));
    return ProtocolFile(
        XmlContent()
            .Element(L"DeviceHeader", entry)
            .Element(L"Bindings",
                     XmlContent().Element(L"Subdevices", XmlContent().Subdevice(answer, XmlContent())))
            .Element(L"Constraints", constraints),
        answer);
}

std::string SilentFile()
{
    return XmlFile(L"Profile", {}, XmlContent().Element(L"Path", L"of the vocabulary"));
}

} // namespace norvepa::test
