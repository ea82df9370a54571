#pragma once

// The examples as whoever tries them has them: run on a copy of the sample store, by their exit statuses and
// what they print.

#include "support/Norvctl.h"

namespace norvepa::test
{

class Examples : public Norvctl
{
protected:
    static ProgramEnd Run(const std::wstring& program, const Words& arguments)
    {
        return ChildProgram(program, arguments).Finish();
    }
};

} // namespace norvepa::test
