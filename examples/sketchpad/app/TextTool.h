// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_TEXTTOOL_H
#define SKETCHPAD_TEXTTOOL_H

#include "Tools.h"

// A click chooses the place of a new text, or an old text to change; each key changes it until
// Return or another click. Escape leaves all as it was.
class CTextTool : public CTool
{
public:
    using CTool::CTool;

    void OnDown(POINT point) override;
    void OnMove(POINT) override {}
    void OnUp(POINT) override {}
    void OnChar(wchar_t character) override;
    bool OnKey(WPARAM key) override;
    void Finish() override;
    bool IsUnfinished() const override;
    std::optional<CCaret> GetCaret() const override;

private:
    bool IsTyping() const { return !m_hit.shape.points.empty(); }
    std::wstring& Typed() { return m_hit.shape.text; }
    void Insert(wchar_t character);
    void EraseBefore();
    void EraseBehind();
    void Cancel();
    void End();

    CSketchHit m_hit;      // the text, and which of the drawing it is
    std::wstring m_before; // the text at first
    std::size_t m_caret = 0;
};

#endif
