#pragma once

// A temporary log device that doesn't outlive its owner.

#include <string>

namespace norvctl
{

class TemporaryDevice
{
public:
    // Both throw when none can be made.
    [[nodiscard]] static TemporaryDevice CopyOf(const std::string& device);
    [[nodiscard]] static TemporaryDevice FromTemplate(const std::string& source);

    TemporaryDevice(const TemporaryDevice&) = delete;
    TemporaryDevice& operator=(const TemporaryDevice&) = delete;
    ~TemporaryDevice(); // discards it, unless it has taken a log device's place

    [[nodiscard]] const std::string& name() const { return m_name; }

    // Throws when it couldn't. Where the log device is gone by then, the temporary one stays: it is all that
    // is left, and the message tells its name.
    void ReplaceDevice(const std::string& device);

    // For a name that no log device has. For a moment the new one is visible and can be removed, whatever its
    // values say.
    void BecomeDevice(const std::string& device);

private:
    explicit TemporaryDevice(std::string name) : m_name(std::move(name)) {}

    std::string m_name;
    bool m_isKept = false;
};

} // namespace norvctl
