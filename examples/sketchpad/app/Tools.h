// SPDX-License-Identifier: MIT
//
// The tools: each turns what the mouse and the keyboard do into messages to the view.
#ifndef SKETCHPAD_TOOLS_H
#define SKETCHPAD_TOOLS_H

#include "Shape.h"
#include "SketchMessages.h"

#include <memory>

class CTool
{
public:
    explicit CTool(HWND view) : m_hView(view) {}
    virtual ~CTool() = default;

    virtual void OnDown(POINT point) = 0;
    virtual void OnMove(POINT point) = 0;
    virtual void OnUp(POINT point) = 0;
    virtual void OnChar(wchar_t) {}
    // Completes an unfinished shape before another tool is chosen or the drawing is saved.
    virtual void Finish() {}

protected:
    CPenInfo AskForPen() const;
    void Send(UINT message, const void* what) const;

    HWND m_hView;
};

std::unique_ptr<CTool> MakeTool(ToolId id, HWND view);

#endif
