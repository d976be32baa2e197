// SPDX-License-Identifier: MIT
#include "TextTool.h"

void CTextTool::OnDown(POINT point)
{
    Finish();
    m_hit.point = point;
    Send(WM_SKETCH_TAKETEXT, &m_hit);
    if (m_hit.index == kNoShape) {
        m_hit.shape.kind = ShapeKind::Text;
        m_hit.shape.pen = AskForPen();
        m_hit.shape.points = {point};
    }
    m_before = Typed();
    m_caret = Typed().size();
    Send(WM_SKETCH_PREVIEW, &m_hit.shape);
}

void CTextTool::Insert(wchar_t character)
{
    Typed().insert(m_caret, 1, character);
    ++m_caret;
}

void CTextTool::EraseBefore()
{
    if (m_caret > 0)
        Typed().erase(--m_caret, 1);
}

void CTextTool::EraseBehind()
{
    if (m_caret < Typed().size())
        Typed().erase(m_caret, 1);
}

void CTextTool::OnChar(wchar_t character)
{
    if (!IsTyping())
        return;
    if (character == VK_RETURN) {
        Finish();
        return;
    }
    if (character == VK_BACK)
        EraseBefore();
    else if (character >= L' ' && !(character >= 0x7F && character <= 0x9F))
        Insert(character);
    Send(WM_SKETCH_PREVIEW, &m_hit.shape);
}

bool CTextTool::OnKey(WPARAM key)
{
    if (!IsTyping())
        return false;
    if (key == VK_ESCAPE) {
        Cancel();
        return true;
    }
    if (key == VK_DELETE)
        EraseBehind();
    else if (key == VK_LEFT && m_caret > 0)
        --m_caret;
    else if (key == VK_RIGHT && m_caret < Typed().size())
        ++m_caret;
    else if (key == kKeyHome)
        m_caret = 0;
    else if (key == kKeyEnd)
        m_caret = Typed().size();
    Send(WM_SKETCH_PREVIEW, &m_hit.shape);
    return true;
}

bool CTextTool::IsUnfinished() const
{
    return IsTyping() && m_hit.shape.text != m_before;
}

std::optional<CCaret> CTextTool::GetCaret() const
{
    if (!IsTyping())
        return std::nullopt;
    return CCaret{m_hit.shape.points.front(), m_hit.shape.text.substr(0, m_caret)};
}

void CTextTool::Cancel()
{
    Typed() = m_before;
    End();
}

void CTextTool::Finish()
{
    if (IsTyping())
        End();
}

void CTextTool::End()
{
    Send(WM_SKETCH_PREVIEW, nullptr);
    if (m_hit.index != kNoShape)
        Send(WM_SKETCH_ENDTEXT, &m_hit);
    else if (!Typed().empty())
        Send(WM_SKETCH_ADDSHAPE, &m_hit.shape);
    m_hit = CSketchHit();
    m_before.clear();
    m_caret = 0;
}
