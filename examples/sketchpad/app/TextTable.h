// SPDX-License-Identifier: MIT
//
// The English texts. The resource module gives them by their numbers; without a module, or for a
// text that a translated one lacks, the program has them built in.
//
// A command has its text in the menu, its key behind a tab, and what it does in a second line.
#ifndef SKETCHPAD_TEXTTABLE_H
#define SKETCHPAD_TEXTTABLE_H

#include "Commands.h"
#include "TextIds.h"

#include <algorithm>
#include <iterator>

struct CTextEntry
{
    unsigned int id;
    const wchar_t* text;
};

constexpr CTextEntry kTexts[] = {
    {IDS_APPTITLE, L"Sketchpad"},
    {IDS_UNTITLED, L"New drawing"},
    {IDS_ASKTOSAVE, L"\u201c%ls\u201d has unsaved changes.\n\nSave them?"},
    {IDS_OVERWRITE, L"\u201c%ls\u201d already exists.\n\nReplace it?"},
    {IDS_CHANGED, L"Another program has changed \u201c%ls\u201d since it was opened here.\n\n"
                  L"Replace what that program saved?"},
    {IDS_RECOVER, L"The program ended before \u201c%ls\u201d was saved.\n\n"
                  L"Go on with the drawing as it was?"},
    {IDS_CANNOTOPEN, L"\u201c%ls\u201d cannot be opened:\n%ls."},
    {IDS_CANNOTSAVE, L"\u201c%ls\u201d cannot be saved:\n%ls."},
    {IDS_CANNOTPRINT, L"\u201c%ls\u201d cannot be printed to:\n%ls."},
    {IDS_NOTPRINTED, L"The drawing was not printed: the printer does not take it."},
    {IDS_BADNAME, L"\u201c%ls\u201d is no name for a file:\n%ls."},
    {IDS_OPENED, L"Opened %ls"},
    {IDS_SAVED, L"Saved %ls"},
    {IDS_COPIED, L"Saved a copy as %ls"},
    {IDS_PRINTED, L"Printed to %ls"},
    {IDS_RECOVERED, L"%ls is as it was, and not saved yet"},
    {IDS_SELECTED, L"Selected: %ls"},
    {IDS_ZOOMED, L"Shown at %ls%"},
    {IDS_READY, L"Ready"},
    {IDS_OPENTITLE, L"Open a drawing"},
    {IDS_SAVETITLE, L"Save the drawing"},
    {IDS_PRINTTITLE, L"Print to a PDF file"},
    {IDS_FILTER, L"Drawings (*.sketch);;All files (*)"},
    {IDS_PDFFILTER, L"PDF files (*.pdf);;All files (*)"},
    {IDS_NOCOPYNAME, L"no free name was found"},
    {IDS_NOTEXTS, L"The built-in texts are used: %ls"},
    {IDS_NOPLUGIN, L"There are no stars: %ls"},
    {IDS_BADPASTE, L"What was copied cannot be pasted:\n%ls."},
    {IDS_ABOUT,
     L"Sketchpad draws lines, figures and texts.\n\nIt shows how a Windows program goes on "
     L"living on other systems."},
    {IDS_KEYS, L"Insert\tdraw the tool\u2019s figure in the middle\n"
               L"Tab\tselect the next figure\n"
               L"Arrow keys\tmove what is selected; with Shift ten times as far\n"
               L"Return, Escape\tend a text, or leave it as it was\n"
               L"Ctrl and the wheel\tzoom"},
    {IDS_CANVAS, L"Drawing"},
    {IDS_TOOLBAR, L"Tools"},
    {IDS_SAVE, L"&Save"},
    {IDS_DISCARD, L"&Discard"},
    {IDS_CANCEL, L"&Cancel"},
    {IDS_REPLACE, L"&Replace"},
    {IDS_GOON, L"&Go On"},
    {IDS_DELETE, L"&Delete It"},
    {IDS_LATER, L"Ask &Later"},
    {IDS_UNDO_ADD, L"drawing"},
    {IDS_UNDO_DELETE, L"delete"},
    {IDS_UNDO_CUT, L"cut"},
    {IDS_UNDO_PASTE, L"paste"},
    {IDS_UNDO_MOVE, L"move"},
    {IDS_UNDO_PEN, L"change of pen"},
    {IDS_UNDO_FILL, L"change of fill"},
    {IDS_UNDO_TEXT, L"change of text"},
    {IDS_UNDO_NAMED, L"&Undo %ls"},
    {IDS_REDO_NAMED, L"&Redo %ls"},
    {IDS_ISFOLDER, L"it is a folder"},
    {IDS_ISDEVICE, L"it is a device or a pipe, not a file"},
    {IDS_PROTECTED, L"it is write-protected"},
    {IDS_NOFOLDER, L"there is no such folder"},
    {IDS_NOFILE, L"there is no such file or folder"},
    {IDS_NOPATH, L"a part of its path is no folder"},
    {IDS_FORBIDDEN, L"it is not permitted"},
    {IDS_DISKFULL, L"the disk is full"},
    {IDS_DISKREADONLY, L"the disk is read-only"},
    {IDS_NAMETOOLONG, L"the name is too long"},
    {IDS_FILETOOLARGE, L"the file would be too large"},
    {IDS_DISKREFUSED, L"the disk did not take it"},
    {IDS_NOMODULE, L"it is no module of this program"},
    {IDS_UNUSABLENAME, L"the name is too long, or not valid in this locale"},
    {IDS_NAMERULES, L"a name must not be empty nor hold any of * : < > ? / \\ | \""},
    {IDS_NODRAWING, L"it is not a drawing of this program"},
    {IDS_INLINE, L"line %ls: %ls"},
    {IDS_TOOLARGE, L"it is larger than 8 MB, and no drawing is"},
    {IDS_LINETOOLONG, L"longer than 2,000,000 bytes"},
    {IDS_HOLDSNUL, L"it holds a NUL"},
    {IDS_TOOMUCH, L"a drawing has at most 100,000 shapes, and 8 MB as a file"},
    {IDS_TOOMANY, L"a drawing has at most 100,000 shapes"},
    {IDS_BADKIND, L"no shape begins like this"},
    {IDS_BADPEN, L"the pen or the fill is wrong (a width is at most 100)"},
    {IDS_BADPOINT,
     L"a point is missing or wrong (a shape has at most 100,000, none is farther than 30,000)"},
    {IDS_BADTEXT, L"the text is missing, not UTF-8, or one too many"},
    {IDS_DEFAULTSFOLDER, L"The built-in defaults are used: %ls is a folder"},
    {IDS_NODEFAULTS, L"The built-in defaults are used: %ls is missing or may not be written"},

    {ID_MENU_FILE, L"&File"},
    {ID_FILE_NEW, L"&New\tCtrl+N\nBegin an empty drawing"},
    {ID_FILE_OPEN, L"&Open...\tCtrl+O\nOpen a drawing"},
    {ID_MENU_RECENT, L"&Recent Files"},
    {ID_FILE_SAVE, L"&Save\tCtrl+S\nSave the drawing"},
    {ID_FILE_SAVE_AS, L"Save &As...\tCtrl+Shift+S\nSave the drawing under another name"},
    {ID_FILE_SAVE_COPY_AS, L"Save a &Copy\t\nSave a copy beside the drawing, under a free name"},
    {ID_FILE_PAGE_SETUP, L"Page Set&up...\t\nChoose the paper and its margins"},
    {ID_FILE_PRINT_PREVIEW, L"Print Pre&view...\t\nShow the printed page"},
    {ID_FILE_PRINT, L"&Print...\tCtrl+P\nPrint the drawing"},
    {ID_FILE_PRINT_PDF, L"Print to P&DF...\tCtrl+Shift+P\nPrint the drawing to a file"},
    {ID_APP_EXIT, L"E&xit\tCtrl+Q\nEnd the program"},
    {ID_MENU_EDIT, L"&Edit"},
    {ID_EDIT_UNDO, L"&Undo\tCtrl+Z\nTake the last change back"},
    {ID_EDIT_REDO, L"&Redo\tCtrl+Y\nMake the change again"},
    {ID_EDIT_CUT, L"Cu&t\tCtrl+X\nCopy what is selected, and delete it"},
    {ID_EDIT_COPY, L"&Copy\tCtrl+C\nCopy what is selected, as a drawing and as a picture"},
    {ID_EDIT_PASTE,
     L"&Paste\tCtrl+V\nAdd the figures or the text that were copied, to a text while it is typed"},
    {ID_EDIT_CLEAR, L"&Delete\t\nDelete what is selected"},
    {ID_EDIT_SELECT_ALL, L"Select &All\tCtrl+A\nSelect every figure"},
    {ID_EDIT_SELECT_NEXT, L"Select Ne&xt\tTab\nSelect the next figure"},
    {ID_EDIT_INSERT, L"&Insert\tIns\nDraw the tool\u2019s figure in the middle of the paper"},
    {ID_MENU_VIEW, L"&View"},
    {ID_VIEW_ZOOM_IN, L"Zoom &In\tCtrl++\nShow the drawing larger"},
    {ID_VIEW_ZOOM_OUT, L"Zoom &Out\tCtrl+-\nShow the drawing smaller"},
    {ID_VIEW_ZOOM_FULL, L"&Full Size\tCtrl+0\nShow the drawing in its own size"},
    {ID_VIEW_ZOOM_FIT, L"Fit the &Window\tCtrl+9\nShow the whole drawing"},
    {ID_MENU_TOOLS, L"&Tools"},
    {CommandOf(TOOL_SELECT), L"&Select\tCtrl+1\nSelect and move figures"},
    {CommandOf(TOOL_FREEHAND), L"&Freehand\tCtrl+2\nDraw where the mouse goes"},
    {CommandOf(TOOL_LINE), L"&Line\tCtrl+3\nDraw a line"},
    {CommandOf(TOOL_RECTANGLE), L"&Rectangle\tCtrl+4\nDraw a rectangle"},
    {CommandOf(TOOL_ELLIPSE), L"&Ellipse\tCtrl+5\nDraw an ellipse"},
    {CommandOf(TOOL_TEXT), L"&Text\tCtrl+6\nWrite a text, or change one"},
    {CommandOf(TOOL_PLUGIN), L"St&ar\tCtrl+7\nDraw a star"},
    {ID_MENU_PEN, L"&Pen"},
    {ID_PEN_COLOR_FIRST + 0, L"&Black\t\nDraw in black"},
    {ID_PEN_COLOR_FIRST + 1, L"&Red\t\nDraw in red"},
    {ID_PEN_COLOR_FIRST + 2, L"&Green\t\nDraw in green"},
    {ID_PEN_COLOR_FIRST + 3, L"Bl&ue\t\nDraw in blue"},
    {ID_PEN_COLOR_FIRST + 4, L"&Yellow\t\nDraw in yellow"},
    {ID_PEN_COLOR_FIRST + 5, L"&Light Blue\t\nDraw in light blue"},
    {ID_PEN_WIDTH_FIRST + 1, L"&1 Pixel\t\nDraw lines of one pixel"},
    {ID_PEN_WIDTH_FIRST + 3, L"&3 Pixels\t\nDraw lines of three pixels"},
    {ID_PEN_WIDTH_FIRST + 5, L"&5 Pixels\t\nDraw lines of five pixels"},
    {ID_PEN_STYLE_FIRST + PS_SOLID, L"&Solid\t\nDraw whole lines"},
    {ID_PEN_STYLE_FIRST + PS_DASH, L"&Dashed\t\nDraw dashes"},
    {ID_PEN_STYLE_FIRST + PS_DOT, L"D&otted\t\nDraw dots"},
    {ID_PEN_STYLE_FIRST + PS_DASHDOT, L"D&ash and Dot\t\nDraw dashes and dots"},
    {ID_PEN_STYLE_FIRST + PS_DASHDOTDOT, L"Das&h, Dot, Dot\t\nDraw dashes with two dots between"},
    {ID_MENU_FILL, L"Fi&ll"},
    {ID_FILL_NONE, L"&None\t\nDraw outlines only"},
    {ID_FILL_COLOR_FIRST + 0, L"&Black\t\nFill with black"},
    {ID_FILL_COLOR_FIRST + 1, L"&Red\t\nFill with red"},
    {ID_FILL_COLOR_FIRST + 2, L"&Green\t\nFill with green"},
    {ID_FILL_COLOR_FIRST + 3, L"Bl&ue\t\nFill with blue"},
    {ID_FILL_COLOR_FIRST + 4, L"&Yellow\t\nFill with yellow"},
    {ID_FILL_COLOR_FIRST + 5, L"&Light Blue\t\nFill with light blue"},
    {ID_MENU_HELP, L"&Help"},
    {ID_HELP_KEYS, L"&Keys\tF1\nWhat the keys do"},
    {ID_APP_ABOUT, L"&About Sketchpad\t\nWhat this program is"},
};

// Result: null for a number that no text has.
inline const wchar_t* EnglishText(unsigned int id)
{
    const auto found = std::find_if(std::begin(kTexts), std::end(kTexts),
                                    [id](const CTextEntry& entry) { return entry.id == id; });
    return found == std::end(kTexts) ? nullptr : found->text;
}

#endif
