// SPDX-License-Identifier: MIT
//
// The grid: a row for each function that takes a buffer or a size, a column for each size at which
// such functions go wrong. A cell is one call in one locale, with memory that shows every byte which
// is written or read outside of what the header allows.
#ifndef KTQTBASE_TESTS_GRID_GRID_H
#define KTQTBASE_TESTS_GRID_GRID_H

#include "support/GuardedMemory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace ktqtbase::test {

// ---- Columns -----------------------------------------------------------------------------------

// The size, or for Null the buffer. The exact size is the least at which the answer is whole.
enum class Column
{
    Null,
    Zero,
    One,
    ExactMinusOne,
    Exact,
    ExactPlusOne,
    Large,
    Greatest
};

inline const std::vector<Column> kAllColumns{
    Column::Null,          Column::Zero,  Column::One,          Column::Exact,
    Column::ExactMinusOne, Column::Large, Column::ExactPlusOne, Column::Greatest};

// The columns of a size without a buffer that could be null.
inline const std::vector<Column> kSizes{
    Column::Zero,         Column::One,   Column::ExactMinusOne, Column::Exact,
    Column::ExactPlusOne, Column::Large, Column::Greatest};

// The columns of a size that the caller has to have in fact, which nobody has of the greatest.
inline const std::vector<Column> kTrueSizes{Column::Zero,  Column::One,
                                            Column::Exact, Column::ExactMinusOne,
                                            Column::Large, Column::ExactPlusOne};

// The columns of a buffer whose size is not told: a smaller one is the caller's fault.
inline const std::vector<Column> kEnoughRoom{Column::Null, Column::Exact, Column::ExactPlusOne,
                                             Column::Large};

constexpr std::size_t kLarge = 4096;

struct Cell
{
    bool isNull() const { return column == Column::Null; }

    Column column;
    std::size_t size; // Null has the exact one
    Guard guard;
};

// ---- Buffers -----------------------------------------------------------------------------------

// A buffer for output, poisoned, of exactly so many units.
template<class Unit>
class Output
{
public:
    Output(const Cell& cell, std::size_t units)
        : m_isNull(cell.isNull()), m_memory(units * sizeof(Unit), cell.guard)
    {}

    Unit* data() const { return m_isNull ? nullptr : static_cast<Unit*>(m_memory.data()); }

    // What the buffer holds, as far as it is compared.
    std::basic_string<Unit> text(std::size_t units) const
    {
        std::basic_string<Unit> text(units, Unit());
        std::memcpy(text.data(), m_memory.data(), units * sizeof(Unit));
        return text;
    }

    // The buffer begins with this, and all else is as it was, beside the buffer, too.
    void expect(const std::basic_string<Unit>& written) const
    {
        EXPECT_TRUE(text(written.size()) == written) << "another text of " << written.size();
        EXPECT_TRUE(m_memory.isUntouchedBut(written.size() * sizeof(Unit))) << "more was written";
    }

private:
    bool m_isNull;
    GuardedMemory m_memory;
};

// Units to be read, and nothing around them may be.
template<class Unit>
class Input
{
public:
    Input(const Cell& cell, const Unit* units, std::size_t count)
        : m_size(count * sizeof(Unit)), m_memory(m_size, cell.guard)
    {
        if (count > 0)
            std::memcpy(m_memory.data(), units, m_size);
    }
    Input(const Cell& cell, const std::basic_string<Unit>& text)
        : Input(cell, text.data(), text.size())
    {}
    ~Input() { EXPECT_TRUE(m_memory.isUntouchedBut(m_size)); }

    Unit* data() const { return static_cast<Unit*>(m_memory.data()); }

private:
    std::size_t m_size;
    GuardedMemory m_memory;
};

// ---- Rows --------------------------------------------------------------------------------------

// Where a row has a cell: everywhere, or in one locale since no text passes through any.
enum class Locales
{
    All,
    One
};

struct GridRow
{
    const char* function; // as the headers have it
    const char* variant;  // what the row is about, where a function has several
    Locales locales;
    std::vector<Column> columns;
    std::function<std::size_t()> exact;
    std::size_t greatest;
    std::function<void(const Cell&)> call; // calls and compares
};

constexpr std::size_t kGreatestInt = std::numeric_limits<int>::max();
constexpr std::size_t kGreatestUnsigned = std::numeric_limits<unsigned int>::max();
constexpr std::size_t kGreatestSize = std::numeric_limits<std::size_t>::max();

inline std::function<std::size_t()> always(std::size_t size)
{
    return [size] { return size; };
}

// What the header promises of a call.
template<class Unit>
struct Promise
{
    long long result;
    std::basic_string<Unit> written; // from the buffer's start
    std::size_t room;                // the least that the caller must provide
};

// The cells of a function that writes into a buffer: calls it with exactly the room of the promise.
template<class Unit, class Call, class Rule>
std::function<void(const Cell&)> writes(Call call, Rule rule)
{
    return [call, rule](const Cell& cell) {
        const Promise<Unit> promise = rule(cell);
        const Output<Unit> out(cell, promise.room);
        EXPECT_EQ(static_cast<long long>(call(out.data(), cell.size)), promise.result);
        out.expect(promise.written);
    };
}

// What LC_CTYPE makes of bytes, and whether it knows all of them.
struct Widened
{
    std::wstring text;
    bool whole;
};

Widened widened(const std::string& bytes);

// ---- The families ------------------------------------------------------------------------------

std::vector<GridRow> moduleRows();
std::vector<GridRow> fileRows();
std::vector<GridRow> profileRows();
std::vector<GridRow> registryRows();
std::vector<GridRow> resourceRows();
std::vector<GridRow> pathRows();
std::vector<GridRow> drawingRows();
std::vector<GridRow> helperRows();
std::vector<GridRow> dialogRows();

} // namespace ktqtbase::test

#endif
