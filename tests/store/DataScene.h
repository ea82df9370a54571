#pragma once

// A file of parameter data to ask and to write to.

#include "store/WriteScene.h"
#include "support/ParameterDataFile.h"

namespace norvepa::test
{

class DataScene : public WriteScene
{
protected:
    // The writing operations on that file.
    [[nodiscard]] Result SetData(const wchar_t* name, const wchar_t* value,
                                 const wchar_t* type = L"string") const
    {
        return NorvXMLSetParameterData(path().c_str(), name, value, type);
    }
    [[nodiscard]] Result DelData(const wchar_t* name) const
    {
        return NorvXMLDelParameterData(path().c_str(), name);
    }
};

} // namespace norvepa::test
