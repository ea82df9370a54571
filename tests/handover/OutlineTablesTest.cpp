// What is asked of the documents in the tables of the other files.

#include "handover/OutlineScene.h"

namespace norvepa::test
{

TEST_P(AlikeBothWays, IsRead)
{
    ExpectAlike(GetParam().bytes, GetParam().line);
}

TEST_P(LeftToTheEngine, IsNotRead)
{
    ExpectLeftToTheEngine(GetParam().bytes);
}

} // namespace norvepa::test
