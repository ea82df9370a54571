#pragma once

// The files of the catalogue that say what a log device's parameters may hold: its board's and its
// protocol's.

#include "frame/ExportFrame.h"

#include <string>
#include <string_view>

namespace norvepa
{

struct DeviceCatalogue
{
    std::wstring board;
    std::wstring protocol;
};

// As the log device's file names them now; what can't be read of it makes a file name that nothing has.
[[nodiscard]] DeviceCatalogue CatalogueOf(const ExportFrame& frame, std::wstring_view dataFolder,
                                          std::wstring_view programFolder, const wchar_t* logDevice);

// The exit without a program folder, which is a success: nothing is known, so everything passes.
[[nodiscard]] Result NothingKnown(const ExportFrame& frame);

} // namespace norvepa
