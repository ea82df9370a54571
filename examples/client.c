/* Prints the log device that a log name stands for: client_c LOGNAME */
#include "norvepa.h"

#include <stdio.h>

int wmain(int argc, wchar_t** argv)
{
    wchar_t device[260];
    uint32_t length = 260; /* characters that the buffer holds */
    const int32_t result = LogNameGetValueBL(argc > 1 ? argv[1] : L"", L"LogDevice", device, &length);

    if (result != PGSP_OK)
    {
        fprintf(stderr, "result %d\n", (int)result);
        return 1;
    }
    printf("%ls\n", device);
    return 0;
}
