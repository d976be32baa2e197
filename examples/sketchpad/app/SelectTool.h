// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SELECTTOOL_H
#define SKETCHPAD_SELECTTOOL_H

#include "Tools.h"

// Selects what lies in a rectangle; on a shape it selects and moves.
class CSelectTool : public CTool
{
public:
    using CTool::CTool;

    void OnDown(POINT point) override;
    void OnMove(POINT point) override;
    void OnUp(POINT point) override;

private:
    POINT OffsetTo(POINT point) const { return {point.x - m_from.x, point.y - m_from.y}; }

    POINT m_from = {};
    bool m_bMoving = false;
};

#endif
