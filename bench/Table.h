#pragma once

// How the measurements of one run are told: a row each, as a time and as the ratio to one of them.

#include <cstdio>

namespace norvepa::bench
{

class Table
{
public:
    // `title` says what is measured, `reference` what the ratios are to, and how long that takes.
    Table(const char* title, const char* reference, double nanoseconds) : m_reference(nanoseconds)
    {
        std::printf("\n%-62s %14s %14s\n", title, "median", reference);
    }

    void Row(const char* what, double nanoseconds) const
    {
        std::printf("%-62s %11.2f us %14.2f\n", what, nanoseconds / 1000, nanoseconds / m_reference);
        std::fflush(stdout);
    }

private:
    double m_reference;
};

} // namespace norvepa::bench
