#pragma once

// What the catalogue says of a parameter of the log device "Presse": its board, or else its protocol.

#include "exports_device/SetScene.h"
#include "support/Answers.h"
#include "support/ProfileFiles.h"

#include <cstdint>
#include <string>

namespace norvepa::test
{

class DeviceParamDescScene : public SetScene
{
protected:
    DeviceParamDescScene() { Write({}); }

    [[nodiscard]] std::int32_t Ask(const wchar_t* parameter, const wchar_t* word, OutputBuffer& text) const
    {
        return library.LogDeviceGetParamDescBL(L"Presse", parameter, word, text.data(), &text.length);
    }

    [[nodiscard]] std::wstring Text(const wchar_t* parameter, const wchar_t* word,
                                    const std::wstring& device = L"Presse") const
    {
        return TextOf([&](wchar_t* text, std::uint32_t* length) {
            return library.LogDeviceGetParamDescBL(device.c_str(), parameter, word, text, length);
        });
    }

    // A board and a protocol that each have a word "default" of the parameter "Takt", and a protocol that
    // describes the value "1" of it.
    void WriteBoardsWord(std::wstring_view text) const
    {
        store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"default", text}}));
    }
    void WriteProtocolsWord(std::wstring_view text) const
    {
        store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"default", text}}));
    }
    void WriteDescribedValue(std::wstring_view description) const
    {
        store.WriteProtocol(Catalogue().Parameter(
            L"Takt", {}, Profiles({{L"1", XmlContent().Element(L"ParamDesc", description)}})));
    }
};

} // namespace norvepa::test
