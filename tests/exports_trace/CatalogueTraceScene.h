#pragma once

// The trace of exports that read the catalogue, on a board "X" and a protocol "X".

#include "LogNameTraceScene.h"

namespace norvepa::test
{

class CatalogueTraceScene : public LogNameTraceScene
{
protected:
    CatalogueTraceScene();

    void TakeProgramFolderAway() const;

    // A buffer of this test's own, with something in it.
    wchar_t buffer[300] = L"before";
    std::uint32_t length = 20;
};

// The lines of a program folder that can't be found, behind the entry.
inline const std::string NoProgramFolder = "information: Can not get FilesOAM Path";
inline const std::string FolderNotFound = "exit: << return lRet = 8517";

} // namespace norvepa::test
