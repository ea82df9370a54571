#include "Reads.h"

#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

constexpr std::size_t FirstCapacity = 1024; // characters; lists need 260 at least

// Calls with a buffer that grows for as long as the answer doesn't fit; its final size is the answer's. A
// length that comes back as it went in means a text that needs room for one more; twice in a row it means a
// name that makes too long a path, of which the library says the same and no more.
int32_t CallWithRoom(const std::function<int32_t(wchar_t*, uint32_t*)>& call, std::vector<wchar_t>& buffer,
                     std::size_t room)
{
    buffer.resize(room);
    for (bool wasUnchanged = false;;)
    {
        auto length = static_cast<uint32_t>(buffer.size());
        const int32_t result = call(buffer.data(), &length);
        const bool isUnchanged = length == buffer.size();
        if (result != PGSP_ERR_BUFFER_TOO_SHORT || length < buffer.size() || (isUnchanged && wasUnchanged))
        {
            buffer.resize(result == PGSP_OK ? length : 0);
            return result;
        }
        wasUnchanged = isUnchanged;
        buffer.resize(std::size_t{length} + 1);
    }
}

// Past the last item, or no list at all: nothing to enumerate either way.
bool IsEnd(int32_t result)
{
    return result == PGSP_ERR_NO_MORE_ITEMS || result == PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace

ReadResult ReadText(const std::function<int32_t(wchar_t*, uint32_t*)>& read)
{
    return ReadTextWithRoom(FirstCapacity, read);
}

ReadResult ReadTextWithRoom(std::size_t room, const std::function<int32_t(wchar_t*, uint32_t*)>& read)
{
    std::vector<wchar_t> buffer;
    const int32_t result = CallWithRoom(read, buffer, room);
    return {result, ToUtf8({buffer.data(), buffer.size()})};
}

std::vector<std::string> ReadTexts(const std::string& subject,
                                   const std::function<int32_t(wchar_t*, uint32_t*)>& read)
{
    std::vector<wchar_t> buffer;
    const int32_t result = CallWithRoom(read, buffer, FirstCapacity);
    Require(result, subject);
    std::vector<std::string> texts;
    const auto end = buffer.empty() ? buffer.end() : buffer.end() - 1; // the terminator behind the last
    for (auto at = buffer.begin(); at < end;)
    {
        const auto stop = std::find(at, end, L'\0');
        texts.push_back(ToUtf8({&*at, static_cast<std::size_t>(stop - at)}));
        at = stop + 1;
    }
    return texts;
}

std::vector<std::string> EnumerateTexts(const std::string& subject,
                                        const std::function<int32_t(uint32_t, wchar_t*, uint32_t*)>& read)
{
    std::vector<std::string> texts;
    for (uint32_t index = 0;; ++index)
    {
        const ReadResult item =
            ReadText([&](wchar_t* text, uint32_t* length) { return read(index, text, length); });
        if (IsEnd(item.result))
        {
            return texts;
        }
        Require(item.result, subject);
        texts.push_back(item.value);
    }
}

std::vector<NameAndValue> EnumeratePairs(const std::string& subject, const ReadPair& read)
{
    std::vector<NameAndValue> pairs;
    std::vector<wchar_t> name(FirstCapacity);
    std::vector<wchar_t> value(FirstCapacity);
    bool wasUnchanged = false; // both lengths, as above
    for (uint32_t index = 0;;)
    {
        auto nameLength = static_cast<uint32_t>(name.size());
        auto valueLength = static_cast<uint32_t>(value.size());
        const int32_t result = read(index, name.data(), &nameLength, value.data(), &valueLength);
        if (IsEnd(result))
        {
            return pairs;
        }
        const bool isUnchanged = nameLength == name.size() && valueLength == value.size();
        const bool grows = nameLength >= name.size() || valueLength >= value.size();
        if (result == PGSP_ERR_BUFFER_TOO_SHORT && grows && !(isUnchanged && wasUnchanged))
        {
            wasUnchanged = isUnchanged;
            name.resize(std::max<std::size_t>(name.size(), nameLength + 1));
            value.resize(std::max<std::size_t>(value.size(), valueLength + 1));
            continue;
        }
        Require(result, subject);
        pairs.push_back({ToUtf8({name.data(), nameLength}), ToUtf8({value.data(), valueLength})});
        wasUnchanged = false;
        ++index;
    }
}

Table AsTable(const std::vector<NameAndValue>& pairs, const char* heading)
{
    Table table({{heading, 28}, {"VALUE", 0}});
    for (const NameAndValue& pair : pairs)
    {
        table.Add({pair.name, pair.value});
    }
    return table;
}

std::string AsLines(const std::vector<NameAndValue>& pairs)
{
    return AsTable(pairs).AsText({});
}

Json AsObject(const std::vector<NameAndValue>& pairs)
{
    Json object = Json::object();
    for (const NameAndValue& pair : pairs)
    {
        object[pair.name] = pair.value;
    }
    return object;
}

Table AsTable(const char* heading, const std::vector<std::string>& texts)
{
    Table table({{heading, 0}});
    for (const std::string& text : texts)
    {
        table.Add({text});
    }
    return table;
}

std::string AsLines(const std::vector<std::string>& texts)
{
    return fmt::format("{}", fmt::join(texts, "\n"));
}

} // namespace norvctl
