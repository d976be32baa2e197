// SPDX-License-Identifier: MIT
//
// Runs every cell of the grid. check-rows.py sees to it that no function is without a row.
#include "grid/Grid.h"

#include "support/LocaleScope.h"
#include "support/RowName.h"

#include <cctype>
#include <cstdlib>
#include <cwchar>

namespace ktqtbase::test {

Widened widened(const std::string& bytes)
{
    Widened result{L"", true};
    std::mbstate_t state{};
    for (std::size_t at = 0; at < bytes.size();) {
        wchar_t wide = 0;
        const std::size_t length = std::mbrtowc(&wide, &bytes[at], bytes.size() - at, &state);
        if (length > bytes.size())
            return {result.text, false};
        result.text += wide;
        at += length;
    }
    return result;
}

} // namespace ktqtbase::test

namespace {

using namespace ktqtbase::test;

struct GridLocale
{
    const char* name;
    const char* locale;
};

const GridLocale kLocales[] = {
    {"C", "C"},
    {"Utf8", "C.UTF-8"},
    {"Latin1", "en_US.ISO-8859-1"},
    {"Turkish", "tr_TR.UTF-8"},
    {"DecimalComma", "de_DE.UTF-8"},
};

const char* const kColumnNames[] = {"Null",  "Zero",         "One",   "ExactMinusOne",
                                    "Exact", "ExactPlusOne", "Large", "Greatest"};

struct GridCell
{
    std::string name;
    const char* locale;
    GridRow row;
    Column column;
};

std::vector<GridRow> allRows()
{
    std::vector<GridRow> rows;
    for (const auto family : {moduleRows, fileRows, profileRows, registryRows, resourceRows,
                              pathRows, drawingRows, helperRows, dialogRows}) {
        for (GridRow& row : family())
            rows.push_back(std::move(row));
    }
    return rows;
}

std::string nameOfCell(const GridRow& row, const GridLocale& locale, Column column)
{
    std::string name;
    for (const char letter : std::string(row.function) + row.variant) {
        if (std::isalnum(static_cast<unsigned char>(letter)))
            name += letter;
    }
    return name + "_" + locale.name + "_" + kColumnNames[static_cast<int>(column)];
}

std::vector<GridCell> allCells()
{
    std::vector<GridCell> cells;
    for (const GridRow& row : allRows()) {
        for (const GridLocale& locale : kLocales) {
            if (row.locales == Locales::One && &locale != kLocales)
                break;
            for (const Column column : row.columns)
                cells.push_back({nameOfCell(row, locale, column), locale.locale, row, column});
        }
    }
    return cells;
}

std::size_t sizeFor(const GridRow& row, Column column)
{
    const std::size_t exact = row.exact();
    switch (column) {
    case Column::Zero:
        return 0;
    case Column::One:
        return 1;
    case Column::ExactMinusOne:
        return exact - 1;
    case Column::ExactPlusOne:
        return exact + 1;
    case Column::Large:
        return kLarge;
    case Column::Greatest:
        return row.greatest;
    default:
        return exact;
    }
}

class BoundaryGrid : public testing::TestWithParam<GridCell>
{
protected:
    // The C library reads the variable whenever a locale is set.
    static void SetUpTestSuite() { setenv("LOCPATH", GRID_LOCALES, 1); }
};

TEST_P(BoundaryGrid, KeepsToWhatItsHeaderSays)
{
    const GridCell& cell = GetParam();
    for (const Guard guard : {Guard::Front, Guard::Behind}) {
        const LocaleScope locale(cell.locale);
        const GlobalLocaleScope global{std::locale(cell.locale)};
        cell.row.call({cell.column, sizeFor(cell.row, cell.column), guard});
    }
}

INSTANTIATE_TEST_SUITE_P(Cells, BoundaryGrid, testing::ValuesIn(allCells()), RowName());

} // namespace
