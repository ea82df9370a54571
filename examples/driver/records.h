/*
 * The parameters of a log device as its driver receives them from norvDriverReadLogDevice, taken apart. Plain
 * C99, to be taken into a driver's own sources as it is.
 *
 *   struct record_reader reader = {block, block + length};
 *   struct record record;
 *
 *   while (next_record(&reader, &record) == RECORD_TAKEN)
 *   {
 *       ...
 *   }
 *
 * Nothing is believed that the bytes don't bear out: no length reaches beyond the block or beyond its record,
 * and a record whose lengths don't add up ends the reading.
 */
#ifndef RECORDS_H
#define RECORDS_H

#include <stdint.h>
#include <wchar.h>

/* A length is told in one byte, and a character takes two. */
enum
{
    LONGEST_TEXT = 127 /* characters */
};

/* By the numbers that the records have for them. */
enum record_type
{
    RECORD_BOOLEAN,
    RECORD_INTEGER,
    RECORD_STRING
};

struct record
{
    wchar_t name[LONGEST_TEXT + 1];
    enum record_type type;
    int32_t number;                 /* of a boolean, 0 or 1, and of an integer */
    wchar_t text[LONGEST_TEXT + 1]; /* of a string; else empty */
};

/* What hasn't been read yet. */
struct record_reader
{
    const uint8_t* at;
    const uint8_t* end;
};

enum record_status
{
    RECORD_TAKEN,
    RECORDS_AT_END, /* all of the block has been taken */
    RECORDS_DAMAGED /* and the reader stays where the damaged record begins */
};

/* Takes the next record. Only RECORD_TAKEN sets it. */
enum record_status next_record(struct record_reader* reader, struct record* record);

#endif
