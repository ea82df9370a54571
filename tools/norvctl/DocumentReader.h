#pragma once

// The reading of a JSON document of ours, that somebody may have edited: what is wrong is thrown with its
// place, as "sections/LocalSettings/baudrate", after the document's name.

#include "FileValues.h"
#include "Report.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvctl
{

class DocumentReader
{
public:
    explicit DocumentReader(std::string source) : m_source(std::move(source)) {}

    [[noreturn]] void Refuse(const std::string& place, std::string_view what) const;
    void Require(bool isRight, const std::string& place, std::string_view what) const;

    // Keys that come twice are refused here: a tree of them no longer tells.
    [[nodiscard]] Json Parse(const std::string& bytes) const;

    [[nodiscard]] const Json& Member(const Json& root, const std::string& key) const;
    [[nodiscard]] std::string Text(const Json& value, const std::string& place) const;

    // Of an object of objects of values; a value is a text, or several are an array of texts.
    [[nodiscard]] std::vector<ValueGroup> Groups(const Json& root, const std::string& key) const;

private:
    [[nodiscard]] ValueGroup Group(const std::string& name, const Json& values,
                                   const std::string& place) const;
    [[nodiscard]] std::string Name(const std::string& key, const std::string& place) const;
    void TakeValues(ValueGroup& group, const std::string& name, const Json& value,
                    const std::string& place) const;

    std::string m_source;
};

} // namespace norvctl
