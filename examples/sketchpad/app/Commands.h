// SPDX-License-Identifier: MIT
//
// The numbers of the commands, for menus, toolbar and scripts.
#ifndef SKETCHPAD_COMMANDS_H
#define SKETCHPAD_COMMANDS_H

#include "SketchMessages.h"

#include <KtQtBase/windows/Packing.h>

enum CommandId : unsigned int
{
    ID_FILE_NEW = 0xE100,
    ID_FILE_OPEN = 0xE101,
    ID_FILE_SAVE = 0xE103,
    ID_FILE_SAVE_AS = 0xE104,
    ID_FILE_SAVE_COPY_AS = 0xE105,
    ID_FILE_PRINT = 0xE107,
    ID_FILE_MRU_FILE1 = 0xE110,
    ID_FILE_MRU_LAST = 0xE113,
    ID_EDIT_CLEAR = 0xE120,
    ID_EDIT_UNDO = 0xE12B,
    ID_APP_EXIT = 0xE141,
    ID_TOOL_FIRST = 0x8000, // and a ToolId
    ID_TOOL_LAST = ID_TOOL_FIRST + TOOL_COUNT - 1,
    ID_PEN_STYLE_FIRST = 0x8100, // and a PS_ style
    ID_PEN_STYLE_LAST = ID_PEN_STYLE_FIRST + PS_DASHDOTDOT,
    ID_PEN_WIDTH_FIRST = 0x8200, // and a width in pixels
    ID_PEN_WIDTH_LAST = ID_PEN_WIDTH_FIRST + 20,
    ID_PEN_COLOR_FIRST = 0x8300, // and an index of kColors
    ID_PEN_COLOR_LAST = ID_PEN_COLOR_FIRST + 5,
    ID_FILL_NONE = 0x8400,
    ID_FILL_COLOR_FIRST = 0x8401, // and an index of kColors
    ID_FILL_COLOR_LAST = ID_FILL_COLOR_FIRST + 5
};

constexpr UINT CommandOf(ToolId tool)
{
    return ID_TOOL_FIRST + static_cast<UINT>(tool);
}

constexpr COLORREF kColors[] = {RGB(0, 0, 0),     RGB(200, 30, 30),  RGB(20, 120, 50),
                                RGB(20, 70, 190), RGB(250, 200, 60), RGB(170, 205, 245)};

#endif
