// SPDX-License-Identifier: MIT
//
// Single operations with random arguments, for the wrapper and for the plain painter.
#ifndef KTQTBASE_TESTS_DRAWING_OPERATIONS_H
#define KTQTBASE_TESTS_DRAWING_OPERATIONS_H

#include "drawing/PlainPainter.h"

#include <KtQtBase/PainterWrapper.h>

#include <random>
#include <string>
#include <vector>

namespace drawing {

// Random numbers, the same ones from the same seed on every platform.
class Lot
{
public:
    explicit Lot(unsigned seed) : m_engine(seed) {}

    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    int place() { return between(-8, 72); }
    unsigned color() { return static_cast<unsigned>(m_engine()); }
    std::vector<POINT> points(int count);
    QRect rect();
    QPen pen();
    LOGFONTW font();

private:
    std::mt19937 m_engine;
};

// When an operation may occur in a program.
enum class When
{
    Always,
    InSession
};

struct Operation
{
    const char* name;
    When when;
    void (*onWrapper)(KtQtPainterWrapper&, Lot&);
    void (*onPlain)(PlainPainter&, Lot&);
};

// All of them, except those that open and close sessions and saved states.
const std::vector<Operation>& operations();

} // namespace drawing

#endif
