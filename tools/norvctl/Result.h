#pragma once

// Result codes in words, for people.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace norvctl
{

// "there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)"; a code without a word is told as its number.
[[nodiscard]] std::string InWords(int32_t result);

// A call that failed, with what was asked for: "Kessel 1: there is no such file (8503 ...)".
class Failure : public std::runtime_error
{
public:
    Failure(const std::string& subject, int32_t result);
    Failure(const std::string& subject, int32_t result, const std::string& more); // "...: allowed are ..."

    [[nodiscard]] int32_t result() const { return m_result; }

private:
    int32_t m_result;
};

// Throws unless it is PGSP_OK. `more` may be empty.
void Require(int32_t result, const std::string& subject, const std::string& more = {});

} // namespace norvctl
