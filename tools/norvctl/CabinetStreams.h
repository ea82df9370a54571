#pragma once

// The files that the system's cabinet functions believe to work on: in memory, for as long as the object
// lives.

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace norvctl
{

// Bytes with a place in them at which is read and written.
class CabinetStream
{
public:
    explicit CabinetStream(std::string& file) : m_file(&file) {}
    explicit CabinetStream(std::string_view fixed) : m_fixed(fixed) {} // can't be written

    [[nodiscard]] std::size_t Read(void* bytes, std::size_t count);
    [[nodiscard]] bool Write(const void* bytes, std::size_t count);
    [[nodiscard]] long Seek(long distance, int from); // SEEK_SET and so on; the new place, or -1

private:
    [[nodiscard]] std::string_view Bytes() const { return m_file == nullptr ? m_fixed : *m_file; }

    std::string* m_file = nullptr;
    std::string_view m_fixed;
    std::size_t m_place = 0;
};

// The functions below are for callers in C: they tell failures by what they return and throw nothing. A
// handle is one of a stream that has been opened and not closed, or they fail.
class CabinetStreams
{
public:
    // A file of this name, made when there is none.
    [[nodiscard]] std::intptr_t Open(const char* name) noexcept;
    [[nodiscard]] std::intptr_t Open(std::string_view fixed) noexcept;
    [[nodiscard]] std::intptr_t Open(std::string& file) noexcept;
    [[nodiscard]] unsigned Read(std::intptr_t handle, void* bytes, unsigned count) noexcept;
    [[nodiscard]] unsigned Write(std::intptr_t handle, const void* bytes, unsigned count) noexcept;
    [[nodiscard]] int Close(std::intptr_t handle) noexcept;
    [[nodiscard]] long Seek(std::intptr_t handle, long distance, int from) noexcept;
    [[nodiscard]] int Remove(const char* name) noexcept;

    [[nodiscard]] std::string Take(const char* name); // a file's bytes, once nobody works on it

private:
    [[nodiscard]] std::intptr_t Keep(CabinetStream stream) noexcept;
    [[nodiscard]] CabinetStream* Find(std::intptr_t handle) noexcept;

    std::map<std::string, std::string, std::less<>> m_files;
    std::map<std::intptr_t, CabinetStream> m_streams;
    std::intptr_t m_lastHandle = 0;
};

} // namespace norvctl
