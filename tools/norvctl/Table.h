#pragma once

// Rows of columns, laid out for a terminal or for a pipe.

#include <cstddef>
#include <string>
#include <vector>

namespace norvctl
{

struct Column
{
    std::string heading; // in capitals
    std::size_t width;   // columns of the terminal that it takes at least, when there is room
};

// How a table is laid out.
struct TableForm
{
    bool headings = false;
    std::size_t width = 0; // of the terminal, whose lines nothing may break; 0: no terminal, nothing is cut
};

class Table
{
public:
    // The last column is as wide as its texts.
    explicit Table(std::vector<Column> columns);

    // As many texts as there are columns.
    void Add(std::vector<std::string> row);

    // A line across all columns, above the rows that follow it.
    void AddTitle(std::string title);

    [[nodiscard]] bool IsEmpty() const { return m_rows.empty(); }

    // A line each, without a line feed behind the last. Into a width that is too small the widest columns are
    // cut; an ellipsis shows where.
    [[nodiscard]] std::string AsText(const TableForm& form) const;

private:
    using Widths = std::vector<std::size_t>;

    [[nodiscard]] Widths WidthsFor(const TableForm& form,
                                   const std::vector<std::vector<std::string>>& rows) const;

    std::vector<Column> m_columns;
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace norvctl
