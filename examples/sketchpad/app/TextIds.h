// SPDX-License-Identifier: MIT
//
// The numbers of the program's texts, shared with the resource module. A command's text has the
// command's number.
#ifndef SKETCHPAD_TEXTIDS_H
#define SKETCHPAD_TEXTIDS_H

// A %ls in a text is a name, a reason or a number.
enum TextId : unsigned int
{
    IDS_APPTITLE = 101,
    IDS_UNTITLED,
    IDS_ASKTOSAVE,
    IDS_OVERWRITE,
    IDS_CHANGED,
    IDS_RECOVER,
    IDS_CANNOTOPEN,
    IDS_CANNOTSAVE,
    IDS_CANNOTPRINT,
    IDS_NOTPRINTED,
    IDS_BADNAME,
    IDS_OPENED,
    IDS_SAVED,
    IDS_COPIED,
    IDS_PRINTED,
    IDS_RECOVERED,
    IDS_SELECTED,
    IDS_ZOOMED,
    IDS_READY,
    IDS_OPENTITLE,
    IDS_SAVETITLE,
    IDS_PRINTTITLE,
    IDS_FILTER,
    IDS_PDFFILTER,
    IDS_NOCOPYNAME,
    IDS_NOTEXTS,
    IDS_NOPLUGIN,
    IDS_BADPASTE,
    IDS_ABOUT,
    IDS_KEYS,
    IDS_CANVAS,
    IDS_TOOLBAR,
    IDS_SAVE,
    IDS_DISCARD,
    IDS_CANCEL,
    IDS_REPLACE,
    IDS_GOON,
    IDS_DELETE,
    IDS_LATER,
    IDS_UNDO_ADD,
    IDS_UNDO_DELETE,
    IDS_UNDO_CUT,
    IDS_UNDO_PASTE,
    IDS_UNDO_MOVE,
    IDS_UNDO_PEN,
    IDS_UNDO_FILL,
    IDS_UNDO_TEXT,
    IDS_UNDO_NAMED,
    IDS_REDO_NAMED
};

#endif
