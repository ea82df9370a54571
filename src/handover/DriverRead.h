#pragma once

// A log device as its driver receives it: loaded and checked by its schema, then written as records.
//
// Callers must: have COM on their thread. Nothing of a read survives its context but the block that was
// handed out.

#include "frame/Result.h"
#include "xml/Document.h"

#include <cstdint>
#include <string>

namespace norvepa
{

struct DriverReadContext
{
    Document document; // loaded and valid
    std::string bytes; // from which it was loaded
};

// On PGSP_OK the document is set. PGSP_ERR_INVALID_PARAMETERS for a name that is null or empty,
// PGSP_ERR_BUFFER_TOO_SHORT for one whose escaped form has 260 characters or more, PGSP_ERR_FOLDER_NOT_FOUND,
// PGSP_ERR_CANT_CREATE_XML_ENGINE, PGSP_ERR_CANT_LOAD_SCHEMA, PGSP_ERR_CANT_LOAD_XML_FILE,
// PGSP_ERR_INVALID_FILE. The schema comes before the file: when both are missing it is the schema that is
// told.
[[nodiscard]] Result DriverLoadLogDevice(DriverReadContext& context, const wchar_t* logDeviceName);

// On PGSP_OK `outBuffer` is a block of GlobalAlloc, the caller's, and `outLength` its size in bytes; else
// both are as they were. PGSP_ERR_DRIVER_READ when the document names nothing to load,
// PGSP_ERR_DRIVER_BUFFER, PGSP_ERR_DRIVER_NO_MEMORY.
[[nodiscard]] Result DriverBuildRecords(const DriverReadContext& context, std::uint8_t** outBuffer,
                                        std::uint32_t* outLength);

} // namespace norvepa
