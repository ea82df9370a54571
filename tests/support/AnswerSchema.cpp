#include "support/AnswerSchema.h"

#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/schema.h>
#include <rapidjson/stringbuffer.h>
#include <sstream>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

using rapidjson::Document;
using Arguments = std::vector<std::wstring>;

Document ReadSchema()
{
    Document schema;
    schema.Parse(ReadBytes(FromUtf8(NORV_ANSWER_SCHEMA)).c_str());
    if (schema.HasParseError())
    {
        throw std::runtime_error("norvctl.schema.json is no JSON");
    }
    return schema;
}

const Document& Schema()
{
    static const Document schema = ReadSchema();
    return schema;
}

bool HasDefinition(const std::string& command)
{
    return Schema()["definitions"].HasMember(command.c_str());
}

// The words of the command are the first that aren't options: as many of them as a definition is named by.
std::string CommandOf(const Arguments& arguments)
{
    std::string command;
    std::string longest;
    for (const std::wstring& argument : arguments)
    {
        if (argument.starts_with(L"--"))
        {
            continue;
        }
        command += (command.empty() ? "" : " ") + ToUtf8(argument);
        if (HasDefinition(command))
        {
            longest = command;
        }
    }
    return longest;
}

// The definition of a command, with all that it may refer to.
Document SchemaOf(const std::string& command)
{
    Document schema;
    const rapidjson::Value& definitions = Schema()["definitions"];
    schema.CopyFrom(definitions[command.c_str()], schema.GetAllocator());
    schema.AddMember("definitions", rapidjson::Value(definitions, schema.GetAllocator()),
                     schema.GetAllocator());
    return schema;
}

std::string WhyInvalid(const rapidjson::SchemaDocument& schema, const std::string& text)
{
    Document answer;
    answer.Parse(text.c_str());
    if (answer.HasParseError())
    {
        return std::string("it is no JSON: ") + rapidjson::GetParseError_En(answer.GetParseError());
    }
    rapidjson::SchemaValidator validator(schema);
    if (answer.Accept(validator))
    {
        return {};
    }
    rapidjson::StringBuffer place;
    validator.GetInvalidDocumentPointer().StringifyUriFragment(place);
    return std::string("at ") + place.GetString() + " against " + validator.GetInvalidSchemaKeyword();
}

// A watch answers line by line, every other command as a whole.
std::vector<std::string> AnswersIn(const std::string& command, std::string_view text)
{
    if (command != "watch")
    {
        return {std::string(text)};
    }
    std::vector<std::string> lines;
    std::istringstream stream{std::string(text)};
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

std::string WhyUndocumented(const Arguments& arguments, std::string_view answer)
{
    if (answer.empty() || std::find(arguments.begin(), arguments.end(), L"--json") == arguments.end())
    {
        return {};
    }
    const std::string command = CommandOf(arguments);
    if (command.empty())
    {
        return "no definition";
    }
    const Document definition = SchemaOf(command);
    const rapidjson::SchemaDocument schema(definition);
    for (const std::string& each : AnswersIn(command, answer))
    {
        const std::string why = WhyInvalid(schema, each);
        if (!why.empty())
        {
            return command + ": " + why + ": " + each;
        }
    }
    return {};
}

void ExpectDocumentedAnswer(const Arguments& arguments, std::string_view answer)
{
    EXPECT_EQ(WhyUndocumented(arguments, answer), "");
}

std::vector<std::string> DocumentedCommands()
{
    std::vector<std::string> commands;
    for (const auto& definition : Schema()["definitions"].GetObject())
    {
        const std::string name = definition.name.GetString();
        if (std::islower(static_cast<unsigned char>(name.front())) != 0)
        {
            commands.push_back(name);
        }
    }
    return commands;
}

} // namespace norvepa::test
