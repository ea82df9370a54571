#pragma once

// A board, "X", whose parameter "a" is changed through the library, and whose other content stays.

#include "TemplateScene.h"

#include <string>

namespace norvepa::test
{

class TemplateSetScene : public TemplateScene
{
protected:
    TemplateSetScene() { WriteBoard(L"X", BoardWith(L"1")); }

    // With this value of "a", among much else that has the name or looks alike.
    [[nodiscard]] static XmlContent BoardWith(std::wstring_view value);

    [[nodiscard]] std::int32_t SetBoard(const std::wstring& value) const
    {
        return Set(L"Boards", L"X", L"a", value);
    }

    // What the board's file says now, and its bytes.
    void ExpectSaved(std::wstring_view value) const;
    [[nodiscard]] std::string Bytes() const { return ReadBytes(roots.board(L"X")); }
};

} // namespace norvepa::test
