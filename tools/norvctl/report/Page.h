#pragma once

// The report as one self-contained page of HTML: its style and script are in it, and it loads nothing.

#include "Finding.h"
#include "report/Changes.h"

#include <string>

namespace norvctl::report
{

// What the page says of itself.
struct Facts
{
    std::string computer;
    std::string dataRoot;
    std::string programRoot;
    std::string library; // its version
    std::string time;
    std::string since; // the backup that the store is compared with, and its time; empty: with none
};

[[nodiscard]] std::string PageOf(const Facts& facts, const Findings& findings, const MarkedObjects& objects);

} // namespace norvctl::report
