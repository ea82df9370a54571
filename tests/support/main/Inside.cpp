#include "support/RedirectedRegistry.h"
#include "trace/Norvotrc.h"

#include <objbase.h>

#include <gmock/gmock.h>

// A process that links the library's objects instead of loading it does here what the load would do:
// COM on the main thread, and the trace settings read, which switches tracing off.
int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    CoInitialize(nullptr);
    {
        const norvepa::test::RedirectedRegistry noSettings;
        norvepa::TraceInit(nullptr, "norvepaBl64x");
    }
    const int result = RUN_ALL_TESTS();
    CoUninitialize();
    return result;
}
