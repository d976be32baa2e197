// SPDX-License-Identifier: MIT
//
// The tools: each turns what the mouse and the keyboard do into messages to the view.
#ifndef SKETCHPAD_TOOLS_H
#define SKETCHPAD_TOOLS_H

#include "Shape.h"
#include "SketchMessages.h"

#include <memory>
#include <optional>

// Keys that the library's headers have no name for.
constexpr WPARAM kKeyEnd = 0x23;
constexpr WPARAM kKeyHome = 0x24;

// Where the next character of a text goes: behind so many characters.
struct CCaret
{
    POINT start = {};
    std::wstring before;
};

class CTool
{
public:
    explicit CTool(HWND view) : m_hView(view) {}
    virtual ~CTool() = default;

    virtual void OnDown(POINT point) = 0;
    virtual void OnMove(POINT point) = 0;
    virtual void OnUp(POINT point) = 0;
    virtual void OnChar(wchar_t) {}
    // Result: whether the key is one of this tool's.
    virtual bool OnKey(WPARAM) { return false; }
    // Completes an unfinished shape before another tool is chosen or the drawing is saved.
    virtual void Finish() {}
    virtual bool IsUnfinished() const { return false; }
    virtual std::optional<CCaret> GetCaret() const { return std::nullopt; }

protected:
    CPenInfo AskForPen() const;
    void Send(UINT message, const void* what) const;

    HWND m_hView;
};

std::unique_ptr<CTool> MakeTool(ToolId id, HWND view);

#endif
