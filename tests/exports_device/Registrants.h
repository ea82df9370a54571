#pragma once

// Those who may have registered for what happens to the log device "Presse", on top of a scene that changes
// it.

#include "support/NamedEvent.h"

#include <gmock/gmock.h>

namespace norvepa::test
{

template <typename Scene>
class WithRegistrants : public Scene
{
protected:
    WithRegistrants()
    {
        this->Register(press, L"Presse");
        this->Register(pump, L"Pumpe");
        this->Register(all);
        this->Register(names, nullptr, L"LogNames");
        this->Register(templates, nullptr, L"meta");
    }

    void ExpectNobodyTold() const
    {
        EXPECT_EQ(this->workers.count(), 0U);
        EXPECT_FALSE(this->IsTold(press));
        EXPECT_FALSE(this->IsTold(all));
    }

    const NamedEvent press;
    const NamedEvent pump;
    const NamedEvent all;
    const NamedEvent names;     // of all log names
    const NamedEvent templates; // of the catalogue
};

} // namespace norvepa::test
