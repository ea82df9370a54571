#pragma once

// Files that are read within a call and outside of one.

#include "frame/CallScope.h"
#include "xml/FileLooks.h"
#include "xml/ImageCache.h"
#include "xml/OldFolder.h"
#include "xml/PullScene.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace norvepa::test
{

class CallScene : public PullScene
{
protected:
    CallScene() { DropImages(); }
    ~CallScene() override { DropImages(); }

    // What a reader meets in a file now; why not, when it can't be opened.
    [[nodiscard]] static std::string Met(const std::wstring& path)
    {
        PullReader reader;
        return reader.Open(path) == PGSP_OK ? RestOf(reader)
                                            : "error " + std::to_string(HRESULT_CODE(reader.lastStatus()));
    }

    // The file of the test, changed to say something else.
    void Say(std::string_view word) const { WriteBytes(file(), "<" + std::string(word) + "/>"); }
};

} // namespace norvepa::test
