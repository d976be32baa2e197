// SPDX-License-Identifier: MIT
//
// The numbers of the commands, for menus, toolbar, scripts and texts.
#ifndef SKETCHPAD_COMMANDS_H
#define SKETCHPAD_COMMANDS_H

#include "SketchMessages.h"

constexpr UINT kPenStyles = 5; // PS_SOLID to PS_DASHDOTDOT
constexpr UINT kColorCount = 6;

enum CommandId : unsigned int
{
    ID_FILE_NEW = 0xE100,
    ID_FILE_OPEN = 0xE101,
    ID_FILE_SAVE = 0xE103,
    ID_FILE_SAVE_AS = 0xE104,
    ID_FILE_SAVE_COPY_AS = 0xE105,
    ID_FILE_PAGE_SETUP = 0xE106,
    ID_FILE_PRINT = 0xE107,
    ID_FILE_PRINT_PREVIEW = 0xE109,
    ID_FILE_PRINT_PDF = 0xE10A,
    ID_FILE_MRU_FILE1 = 0xE110,
    ID_FILE_MRU_LAST = 0xE113,
    ID_EDIT_CLEAR = 0xE120,
    ID_EDIT_COPY = 0xE122,
    ID_EDIT_CUT = 0xE123,
    ID_EDIT_PASTE = 0xE125,
    ID_EDIT_SELECT_ALL = 0xE12A,
    ID_EDIT_UNDO = 0xE12B,
    ID_EDIT_REDO = 0xE12C,
    ID_EDIT_SELECT_NEXT = 0xE12D,
    ID_EDIT_INSERT = 0xE12E,
    ID_APP_ABOUT = 0xE140,
    ID_APP_EXIT = 0xE141,
    ID_HELP_KEYS = 0xE142,
    ID_VIEW_ZOOM_IN = 0xE800,
    ID_VIEW_ZOOM_OUT = 0xE801,
    ID_VIEW_ZOOM_FULL = 0xE802,
    ID_VIEW_ZOOM_FIT = 0xE803,
    ID_TOOL_FIRST = 0x8000, // and a ToolId
    ID_TOOL_LAST = ID_TOOL_FIRST + TOOL_COUNT - 1,
    ID_PEN_STYLE_FIRST = 0x8100, // and a PS_ style
    ID_PEN_STYLE_LAST = ID_PEN_STYLE_FIRST + kPenStyles - 1,
    ID_PEN_WIDTH_FIRST = 0x8200, // and a width in pixels
    ID_PEN_WIDTH_LAST = ID_PEN_WIDTH_FIRST + 20,
    ID_PEN_COLOR_FIRST = 0x8300, // and an index of kColors
    ID_PEN_COLOR_LAST = ID_PEN_COLOR_FIRST + kColorCount - 1,
    ID_FILL_NONE = 0x8400,
    ID_FILL_COLOR_FIRST = 0x8401, // and an index of kColors
    ID_FILL_COLOR_LAST = ID_FILL_COLOR_FIRST + kColorCount - 1,
    ID_MENU_FILE = 0x9000,
    ID_MENU_RECENT,
    ID_MENU_EDIT,
    ID_MENU_VIEW,
    ID_MENU_TOOLS,
    ID_MENU_PEN,
    ID_MENU_FILL,
    ID_MENU_HELP
};

constexpr UINT CommandOf(ToolId tool)
{
    return ID_TOOL_FIRST + static_cast<UINT>(tool);
}

constexpr COLORREF kColors[kColorCount] = {RGB(0, 0, 0),     RGB(200, 30, 30),  RGB(20, 120, 50),
                                           RGB(20, 70, 190), RGB(250, 200, 60), RGB(170, 205, 245)};

// How a command looks in a menu.
struct CCommandState
{
    bool enabled = true;
    bool checked = false;
    std::wstring text; // in place of the menu's own; empty to keep that
};

#endif
