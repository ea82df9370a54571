#include "Table.h"

#include "DisplayText.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace norvctl
{

namespace
{

using Row = std::vector<std::string>;
using Widths = std::vector<std::size_t>;

constexpr std::size_t Narrowest = 4; // columns that a text keeps when it is cut

std::size_t WidthOf(const Widths& widths)
{
    const std::size_t gaps = widths.size() - 1;
    return std::accumulate(widths.begin(), widths.end(), gaps);
}

// Takes columns from the widest until the line fits, or nothing is left to take.
void Shrink(Widths& widths, std::size_t room)
{
    while (WidthOf(widths) > room)
    {
        const auto widest = std::max_element(widths.begin(), widths.end());
        if (*widest <= Narrowest)
        {
            return;
        }
        --*widest;
    }
}

Widths WidestTexts(const std::vector<Row>& rows, std::size_t columns)
{
    Widths widths(columns, 0);
    for (const Row& row : rows)
    {
        const bool isTitle = row.size() < columns;
        for (std::size_t i = 0; !isTitle && i < columns; ++i)
        {
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
        }
    }
    return widths;
}

// Columns that are empty up to the end leave no blanks there.
std::size_t LastText(const Row& row)
{
    std::size_t last = row.size() - 1;
    while (last > 0 && row[last].empty())
    {
        --last;
    }
    return last;
}

std::string AsLine(const Row& row, const Widths& widths)
{
    const std::size_t last = LastText(row);
    std::string line;
    for (std::size_t i = 0; i < last; ++i)
    {
        line += Padded(Shortened(row[i], widths[i]), widths[i]) + ' ';
    }
    return line + Shortened(row[last], widths[last]);
}

std::string AsTitle(const std::string& title, const TableForm& form)
{
    return form.width == 0 ? title : Shortened(title, form.width);
}

} // namespace

Table::Table(std::vector<Column> columns) : m_columns(std::move(columns)) {}

void Table::Add(std::vector<std::string> row)
{
    m_rows.push_back(std::move(row));
}

void Table::AddTitle(std::string title)
{
    m_rows.push_back({std::move(title)});
}

std::string Table::AsText(const TableForm& form) const
{
    std::vector<Row> rows = m_rows;
    if (form.headings)
    {
        Row headings;
        for (const Column& column : m_columns)
        {
            headings.push_back(column.heading);
        }
        rows.insert(rows.begin(), std::move(headings));
    }
    if (form.width != 0)
    {
        for (Row& row : rows)
        {
            std::transform(row.begin(), row.end(), row.begin(), &OnOneLine);
        }
    }

    const Widths widths = WidthsFor(form, rows);
    std::string text;
    const char* lineEnd = "";
    for (const Row& row : rows)
    {
        const bool isTitle = row.size() < m_columns.size();
        text += lineEnd + (isTitle ? AsTitle(row.front(), form) : AsLine(row, widths));
        lineEnd = "\n";
    }
    return text;
}

Table::Widths Table::WidthsFor(const TableForm& form, const std::vector<Row>& rows) const
{
    const Widths texts = WidestTexts(rows, m_columns.size());
    Widths widths = texts;
    for (std::size_t i = 0; i + 1 < widths.size(); ++i)
    {
        widths[i] = std::max(widths[i], m_columns[i].width);
    }
    if (form.width == 0 || WidthOf(widths) <= form.width)
    {
        return widths;
    }
    widths = texts;
    Shrink(widths, form.width);
    return widths;
}

} // namespace norvctl
