/*
 * Reads and changes one parameter of a log device, the way a configuration tool does:
 *
 *   - a value that the catalogue refuses is explained by what the catalogue says of the parameter;
 *   - whoever shows the value is told that it has changed, by an event of his own.
 *
 * Every failure is told by its code. The exit status is 0, 1 for a failure, or 2 for a misuse.
 */
#include "norvepa.h"

#include <windows.h>
#include <io.h>
#include <objbase.h>

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <wchar.h>

static const wchar_t usage[] =
    L"usage: client_c get DEVICE PARAMETER        prints a value of a log device, or the catalogue's "
    L"default\n"
    L"       client_c allowed DEVICE PARAMETER    prints what the catalogue says of a parameter\n"
    L"       client_c set DEVICE PARAMETER VALUE  sets a value, and waits until the change is announced\n";

enum exit_status
{
    DONE,
    FAILED,
    MISUSED
};

static int fail(const wchar_t* call, const wchar_t* subject, int32_t result)
{
    fwprintf(stderr, L"client_c: %ls: %ls answers %d\n", subject, call, (int)result);
    return FAILED;
}

/* Reading --------------------------------------------------------------------------------------------- */

/*
 * Reads a value of any length. The text is the caller's, to be given to free(); null after a failure.
 *
 * A length that comes back as it went in tells nothing: the value has as many characters as the buffer, which
 * lacks room for the terminator, or it was a path that was too long. Twice the room shows which.
 */
static int32_t read_value(const wchar_t* device, const wchar_t* parameter, wchar_t** value)
{
    uint32_t room = 64; /* characters, terminator included */
    int doubled = 0;

    *value = NULL;
    for (;;)
    {
        wchar_t* const larger = realloc(*value, room * sizeof **value);
        uint32_t length = room;
        int32_t result = ERROR_OUTOFMEMORY;

        if (larger != NULL)
        {
            *value = larger;
            result = LogDeviceGetValueBL(device, parameter, *value, &length);
        }
        if (result == PGSP_OK)
        {
            return PGSP_OK;
        }
        if (result != PGSP_ERR_BUFFER_TOO_SHORT || length < room || (length == room && doubled))
        {
            free(*value);
            *value = NULL;
            return result;
        }
        doubled = length == room;
        room = doubled ? 2 * room : length + 1;
    }
}

static int get(const wchar_t* device, const wchar_t* parameter)
{
    wchar_t* value;
    const int32_t result = read_value(device, parameter, &value);

    if (result != PGSP_OK)
    {
        return fail(L"LogDeviceGetValueBL", device, result);
    }
    wprintf(L"%ls\n", value);
    free(value);
    return DONE;
}

/* What the catalogue says ------------------------------------------------------------------------------- */

/* The board's words for a parameter, or else the protocol's; a word that neither has is passed over. */
static void print_words(FILE* stream, const wchar_t* device, const wchar_t* parameter)
{
    static const wchar_t* const words[] = {L"type", L"min", L"max", L"step", L"base", L"default"};

    for (size_t i = 0; i < sizeof words / sizeof *words; ++i)
    {
        wchar_t text[1024];
        uint32_t length = sizeof text / sizeof *text;

        if (LogDeviceGetParamDescBL(device, parameter, words[i], text, &length) == PGSP_OK)
        {
            fwprintf(stream, L"  %-8ls %ls\n", words[i], text);
        }
    }
}

/* The values to choose from, if the board or the protocol lists any. */
static void print_choices(FILE* stream, const wchar_t* device, const wchar_t* parameter)
{
    wchar_t values[4096];
    uint32_t length = sizeof values / sizeof *values - 1; /* one character more than the export is told */
    const int32_t result = PGSP_LogDeviceGetMostSpecializedEnumListBL(device, parameter, values, &length);

    /* Those that fit are there also when not all do; each has its terminator. */
    if (result != PGSP_OK && result != PGSP_ERR_BUFFER_TOO_SHORT)
    {
        return;
    }
    for (const wchar_t* value = values; value < values + length; value += wcslen(value) + 1)
    {
        fwprintf(stream, L"  %-8ls %ls\n", L"value", value);
    }
}

static int allowed(const wchar_t* device, const wchar_t* parameter)
{
    const int32_t result = LogDeviceExistBL(device, 0);

    if (result != PGSP_OK)
    {
        return fail(L"LogDeviceExistBL", device, result);
    }
    print_words(stdout, device, parameter);
    print_choices(stdout, device, parameter);
    return DONE;
}

/* Changing ---------------------------------------------------------------------------------------------- */

/* What a thread is to write, and what has come of it. */
struct change
{
    const wchar_t* device;
    const wchar_t* parameter;
    const wchar_t* value;
    int32_t result;
};

/* A thread that writes has COM initialised. The one that the library was loaded on has that already. */
static DWORD WINAPI write_change(void* argument)
{
    struct change* const change = argument;
    const HRESULT com = CoInitializeEx(NULL, COINIT_APARTMENTTHREADED);

    change->result = LogDeviceSetValueBL(change->device, change->parameter, change->value);
    if (SUCCEEDED(com))
    {
        CoUninitialize();
    }
    return 0;
}

/* Writes on a thread of its own, as a program does that has a window to keep alive. */
static int write_aside(struct change* change)
{
    const HANDLE thread = CreateThread(NULL, 0, write_change, change, 0, NULL);

    if (thread == NULL)
    {
        return fail(L"CreateThread", change->device, (int32_t)GetLastError());
    }
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    return DONE;
}

/* A refusal of the value, which lies between these codes, leaves the log device as it was. */
static int explain(const struct change* change)
{
    if (change->result >= PGSP_NOT_IN_LIST && change->result <= PGSP_NOT_IN_STEP)
    {
        fwprintf(stderr, L"client_c: %ls is refused; the catalogue says of %ls:\n", change->value,
                 change->parameter);
        print_words(stderr, change->device, change->parameter);
        print_choices(stderr, change->device, change->parameter);
    }
    return fail(L"LogDeviceSetValueBL", change->device, change->result);
}

/*
 * The announcement comes a moment after the call that makes the change has returned, and not at all when the
 * value was the same before. It carries no data: what has changed is to be asked for.
 */
static int await_announcement(HANDLE event, const struct change* change)
{
    enum
    {
        PATIENCE = 2000 /* milliseconds */
    };

    if (WaitForSingleObject(event, PATIENCE) != WAIT_OBJECT_0)
    {
        wprintf(L"set; nothing was announced, so it was like that before\n");
        return DONE;
    }
    wprintf(L"announced: %ls of %ls is now ", change->parameter, change->device);
    return get(change->device, change->parameter);
}

static int write_and_wait(HANDLE event, struct change* change)
{
    const int status = write_aside(change);

    if (status != DONE)
    {
        return status;
    }
    return change->result == PGSP_OK ? await_announcement(event, change) : explain(change);
}

/*
 * A registration belongs to the process that makes it, and is served by the changes of this process, on
 * whatever thread. Who wants to hear of another process's changes owns the event, and that process registers
 * its name.
 */
static int set(const wchar_t* device, const wchar_t* parameter, const wchar_t* value)
{
    struct change change = {device, parameter, value, PGSP_OK};
    wchar_t name[64]; /* of the event: no other process may have it */
    HANDLE event;
    int32_t result;
    int status;

    swprintf(name, sizeof name / sizeof *name, L"norvepa.client_c.%lu", GetCurrentProcessId());
    event = CreateEventW(NULL, FALSE, FALSE, name);
    if (event == NULL)
    {
        return fail(L"CreateEventW", name, (int32_t)GetLastError());
    }
    result = RegisterNotification(L"LogDevices", device, name); /* from here on no change is missed */
    if (result != PGSP_OK)
    {
        CloseHandle(event);
        return fail(L"RegisterNotification", device, result);
    }
    status = write_and_wait(event, &change);
    UnRegisterNotification(L"LogDevices", device, name);
    CloseHandle(event);
    return status;
}

int wmain(int argc, wchar_t** argv)
{
    _setmode(_fileno(stdout), _O_U8TEXT); /* names have letters of all alphabets */
    _setmode(_fileno(stderr), _O_U8TEXT);

    if (argc == 4 && wcscmp(argv[1], L"get") == 0)
    {
        return get(argv[2], argv[3]);
    }
    if (argc == 4 && wcscmp(argv[1], L"allowed") == 0)
    {
        return allowed(argv[2], argv[3]);
    }
    if (argc == 5 && wcscmp(argv[1], L"set") == 0)
    {
        return set(argv[2], argv[3], argv[4]);
    }
    fputws(usage, stderr);
    return MISUSED;
}
