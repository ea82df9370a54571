#pragma once

// Two files of steps, by the paths that the store takes and by what they are called on disk.

#include "store/WriteScene.h"

namespace norvepa::test
{

class FileStepsScene : public WriteScene
{
protected:
    const std::wstring m_source = folder() / L"Quelle#1";
    const std::wstring m_sourceFile = folder() / L"Quelle(nmbr)1.xml";
    const std::wstring m_destination = folder() / L"Ziel#1";
    const std::wstring m_destinationFile = folder() / L"Ziel(nmbr)1.xml";
    const std::wstring m_tooLong = folder() / std::wstring(260, L'x');
};

} // namespace norvepa::test
