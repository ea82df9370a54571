#include "records.h"

#include <stdbool.h>
#include <stddef.h>

enum
{
    LENGTH_SIZE = 2, /* bytes of the length that a record begins with, which counts itself */
    NUMBER_SIZE = 4,
    CHARACTER_SIZE = 2
};

/* A part of the block. */
struct field
{
    const uint8_t* bytes;
    size_t size;
};

/* Least significant byte first. */
static uint32_t to_number(struct field field)
{
    uint32_t number = 0;

    for (size_t i = field.size; i > 0; --i)
    {
        number = number << 8 | field.bytes[i - 1];
    }
    return number;
}

/* Takes so many bytes off what is left, if that has as many. */
static bool take(struct record_reader* rest, size_t size, struct field* field)
{
    if (size > (size_t)(rest->end - rest->at))
    {
        return false;
    }
    *field = (struct field){rest->at, size};
    rest->at += size;
    return true;
}

/* Takes a field behind the byte that tells its length. */
static bool take_counted(struct record_reader* rest, struct field* field)
{
    struct field length;

    return take(rest, 1, &length) && take(rest, to_number(length), field);
}

/* `text` has room: a field that was counted has 255 bytes at most. */
static bool to_text(struct field field, wchar_t* text)
{
    const size_t length = field.size / CHARACTER_SIZE;

    if (field.size % CHARACTER_SIZE != 0)
    {
        return false;
    }
    for (size_t i = 0; i < length; ++i)
    {
        /* The records aren't aligned: no character can be read as one. */
        text[i] = (wchar_t)to_number((struct field){field.bytes + i * CHARACTER_SIZE, CHARACTER_SIZE});
    }
    text[length] = L'\0';
    return true;
}

static bool to_value(uint32_t type, struct field field, struct record* record)
{
    record->number = 0;
    record->text[0] = L'\0';
    if (type == RECORD_STRING)
    {
        record->type = RECORD_STRING;
        return to_text(field, record->text);
    }
    if (type > RECORD_STRING || field.size != NUMBER_SIZE)
    {
        return false;
    }
    record->type = type == RECORD_BOOLEAN ? RECORD_BOOLEAN : RECORD_INTEGER;
    record->number = (int32_t)to_number(field);
    return type == RECORD_INTEGER || record->number == 0 || record->number == 1;
}

/* Takes the whole record off what is left. */
static bool take_record(struct record_reader* rest, struct record_reader* inside)
{
    struct field length;
    struct field body;

    if (!take(rest, LENGTH_SIZE, &length) || to_number(length) < LENGTH_SIZE ||
        !take(rest, to_number(length) - LENGTH_SIZE, &body))
    {
        return false;
    }
    *inside = (struct record_reader){body.bytes, body.bytes + body.size};
    return true;
}

static bool to_record(struct record_reader inside, struct record* record)
{
    struct field name;
    struct field type;
    struct field value;

    return take_counted(&inside, &name) && take_counted(&inside, &type) && take_counted(&inside, &value) &&
           inside.at == inside.end && type.size == 1 && to_text(name, record->name) &&
           to_value(to_number(type), value, record);
}

enum record_status next_record(struct record_reader* reader, struct record* record)
{
    struct record_reader rest = *reader;
    struct record_reader inside;
    struct record taken;

    if (reader->at == reader->end)
    {
        return RECORDS_AT_END;
    }
    if (!take_record(&rest, &inside) || !to_record(inside, &taken))
    {
        return RECORDS_DAMAGED;
    }
    *record = taken;
    *reader = rest;
    return RECORD_TAKEN;
}
