// SPDX-License-Identifier: MIT
#include "SelectTool.h"

void CSelectTool::OnDown(POINT point)
{
    m_from = point;
    CSketchHit hit;
    hit.point = point;
    Send(WM_SKETCH_HITTEST, &hit);
    m_bMoving = hit.index != kNoShape;
    const CRect rect = RectBetween(point, point);
    if (!hit.selected)
        Send(WM_SKETCH_SELECT, &rect);
}

void CSelectTool::OnMove(POINT point)
{
    const POINT offset = OffsetTo(point);
    const CRect rect = RectBetween(m_from, point);
    if (m_bMoving)
        Send(WM_SKETCH_DRAGBY, &offset);
    else
        Send(WM_SKETCH_DRAGRECT, &rect);
}

void CSelectTool::OnUp(POINT point)
{
    const POINT offset = OffsetTo(point);
    const CRect rect = RectBetween(m_from, point);
    Send(m_bMoving ? WM_SKETCH_DRAGBY : WM_SKETCH_DRAGRECT, nullptr);
    if (m_bMoving)
        Send(WM_SKETCH_MOVEBY, &offset);
    else
        Send(WM_SKETCH_SELECT, &rect);
}
