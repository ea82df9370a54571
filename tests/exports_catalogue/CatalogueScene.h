#pragma once

// Boards and protocols of a test's own, the library loaded on them, and its answers in one word each.

#include "support/Answers.h"
#include "support/ListBuffer.h"
#include "support/LoadedLibrary.h"
#include "support/OutputBuffer.h"
#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{

inline const std::wstring BoardPrefix = L"Automation-OnlineAccess-BT-";
inline const std::wstring ProtocolPrefix = L"Automation-OnlineAccess-PT-";
inline const std::wstring TemplatePrefix = L"Automation-OnlineAccess-LDT-";

class CatalogueScene : public testing::Test
{
protected:
    ~CatalogueScene() override;

    // Files of the catalogue; a name has no prefix and is as the file system has it.
    void WriteBoard(const std::wstring& name, const XmlContent& content) const;
    void WriteProtocol(const std::wstring& name, const XmlContent& content) const;

    // One whose whole name, without extension, is this.
    void WriteBoardAs(const std::wstring& fileName, const XmlContent& content) const;
    void WriteProtocolAs(const std::wstring& fileName, const XmlContent& content) const;

    void TakeProgramFolderAway() const;
    void TakeDataFolderAway() const;

    // Boards.
    [[nodiscard]] std::wstring BoardPair(const std::wstring& board, std::uint32_t index) const;
    [[nodiscard]] std::wstring BoardValue(const std::wstring& deviceId, const std::wstring& parameter) const;
    [[nodiscard]] std::wstring BoardValueRaw(const std::wstring& deviceId, const wchar_t* path,
                                             const std::wstring& parameter) const;
    [[nodiscard]] std::int32_t BoardValues(const std::wstring& deviceId, const Strings& names,
                                           ListBuffer& values) const;
    [[nodiscard]] std::int32_t BoardCollection(const std::wstring& collection, const std::wstring& deviceId,
                                               ListBuffer& values) const;

    // The strings of a list; throws when the call fails.
    [[nodiscard]] Strings BoardValues(const std::wstring& deviceId, const Strings& names) const;
    [[nodiscard]] Strings BoardCollection(const std::wstring& collection, const std::wstring& deviceId) const;

    // What protocols are asked about; null is not given.
    struct Question
    {
        const wchar_t* parameter = nullptr;
        const wchar_t* value = nullptr;
        const wchar_t* subParameter = nullptr;
        const wchar_t* subValue = nullptr;
    };

    // Protocols.
    [[nodiscard]] std::wstring ProtocolPair(const std::wstring& protocol, const Question& question,
                                            std::uint32_t index) const;
    [[nodiscard]] std::wstring Busprofile(const std::wstring& protocol, std::uint32_t index) const;
    [[nodiscard]] std::wstring Baudrate(const std::wstring& protocol, const wchar_t* profile,
                                        std::uint32_t index) const;
    [[nodiscard]] std::wstring ProtocolValue(const std::wstring& protocol, const Question& question,
                                             const wchar_t* attribute) const;
    [[nodiscard]] std::wstring ProtocolValueRaw(const std::wstring& protocol, const wchar_t* path,
                                                const wchar_t* attribute) const;

    // Folders.
    [[nodiscard]] std::wstring NameWithoutPrefix(const std::wstring& folder, std::uint32_t index) const;

    StoreRoots roots;
    Exports library;
};

// What a protocol for a bus says:
//
//   busparam  "0" to "3", which give a `slot` of 100 to 103; "3" also gives `(default)`, and has baud rates
//   9600
//             and 19200 of its own, which give a `slot` of 9 and 19 and, the first one, `(default)`
//   baudrate  "187500" and "1500000", which give a `gap` of 1 and 2
[[nodiscard]] XmlContent BusProtocol();

} // namespace norvepa::test
