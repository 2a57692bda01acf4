#pragma once

#include <QList>
#include <QTextFormat>

#include <cstddef>

/**
 * The machinery of the two format merges: a table says to which group each property belongs, and a
 * merge says which groups it takes from the existing format.
 */
namespace MrvFormatMerge {

/** The group of properties that a table does not list: they come from the new format. */
constexpr unsigned Restyled = 0;

/** The properties from @c first to @c last, both included, belong to @c group, a single bit. */
struct Row
{
    int first;
    int last;
    unsigned group;
};

/** Rows in ascending order that do not overlap, seen as a range. */
struct Table
{
    template<std::size_t Size>
    constexpr Table(const Row (&rows)[Size])
        : first(rows)
        , last(rows + Size)
    {
    }

    constexpr const Row *begin() const { return first; }
    constexpr const Row *end() const { return last; }

    const Row *first;
    const Row *last;
};

constexpr bool isAscending(const Table &table)
{
    int previous = -1;
    for (const Row &row : table) {
        if (row.first <= previous || row.last < row.first || row.group == Restyled) {
            return false;
        }
        previous = row.last;
    }
    return true;
}

/** The group of @p property. */
unsigned groupOf(const Table &table, int property);

/**
 * Makes every property of @p groups in @p result what it is in @p existing: the same value, or
 * unset where @p existing does not set it.
 */
void takeGroups(QTextFormat *result, const QTextFormat &existing, const Table &table,
                unsigned groups);

/** Does the same to the listed properties. Qt's two font families count as one property. */
void takeProperties(QTextFormat *result, const QTextFormat &existing, const QList<int> &properties);

} // namespace MrvFormatMerge
