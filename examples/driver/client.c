/*
 * Asks for the parameters of a log device as its driver does, when the driver starts or its log device has
 * been changed, and prints them: client_driver DEVICE
 */
#include "norvepa.h"
#include "records.h"

#include <windows.h>
#include <io.h>

#include <fcntl.h>
#include <stdio.h>

enum exit_status
{
    DONE,
    FAILED,
    MISUSED
};

static void print_record(const struct record* record)
{
    switch (record->type)
    {
    case RECORD_BOOLEAN:
        wprintf(L"%-32ls boolean  %ls\n", record->name, record->number != 0 ? L"true" : L"false");
        break;
    case RECORD_INTEGER:
        wprintf(L"%-32ls integer  %d\n", record->name, (int)record->number);
        break;
    case RECORD_STRING:
        wprintf(L"%-32ls string   %ls\n", record->name, record->text);
        break;
    }
}

/* Goes over the records without taking any: where they are damaged, or null. */
static const uint8_t* find_damage(struct record_reader reader)
{
    struct record record;
    enum record_status status;

    while ((status = next_record(&reader, &record)) == RECORD_TAKEN)
    {
    }
    return status == RECORDS_DAMAGED ? reader.at : NULL;
}

/* A driver looks its parameters up by their names here. Of a block that is damaged it takes none. */
static int print_records(const wchar_t* device, const uint8_t* block, uint32_t length)
{
    struct record_reader reader = {block, block + length};
    const uint8_t* const damage = find_damage(reader);
    struct record record;

    if (damage != NULL)
    {
        fwprintf(stderr, L"client_driver: %ls: the records are damaged at byte %u\n", device,
                 (unsigned)(damage - block));
        return FAILED;
    }
    while (next_record(&reader, &record) == RECORD_TAKEN)
    {
        print_record(&record);
    }
    return DONE;
}

int wmain(int argc, wchar_t** argv)
{
    uint8_t* block = NULL;
    uint32_t length = 0;
    int32_t result;
    int status;

    _setmode(_fileno(stdout), _O_U8TEXT);
    _setmode(_fileno(stderr), _O_U8TEXT);
    if (argc != 2)
    {
        fputws(L"usage: client_driver DEVICE  prints what the driver of a log device receives\n", stderr);
        return MISUSED;
    }

    /* On a thread that the library wasn't loaded on, CoInitializeEx goes ahead of this. */
    result = norvDriverReadLogDevice(argv[1], &block, &length);
    if (result != PGSP_OK)
    {
        fwprintf(stderr, L"client_driver: %ls: norvDriverReadLogDevice answers %d\n", argv[1], (int)result);
        return FAILED;
    }
    status = print_records(argv[1], block, length);
    GlobalFree(block); /* the one thing of the library's that a caller releases */
    return status;
}
