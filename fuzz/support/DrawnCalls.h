// SPDX-License-Identifier: MIT
//
// Drawing calls with arguments from an input: huge and negative places, empty and odd images, texts
// of several scripts.
#ifndef KTQTBASE_FUZZ_SUPPORT_DRAWNCALLS_H
#define KTQTBASE_FUZZ_SUPPORT_DRAWNCALLS_H

#include "drawing/Operations.h"
#include "support/Input.h"

#include <vector>

namespace ktqtbase::fuzz {

struct DrawnCall
{
    const char* name;
    drawing::When when;
    void (*onWrapper)(KtQtPainterWrapper&, Input&);
    void (*onPlain)(drawing::PlainPainter&, Input&);
};

const std::vector<DrawnCall>& drawnCalls();

} // namespace ktqtbase::fuzz

#endif
