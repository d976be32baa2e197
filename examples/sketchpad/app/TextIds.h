// SPDX-License-Identifier: MIT
//
// The numbers of the program's texts, shared with the resource module.
#ifndef SKETCHPAD_TEXTIDS_H
#define SKETCHPAD_TEXTIDS_H

// A %ls in a text is a name, a reason or a number.
enum TextId : unsigned int
{
    IDS_APPTITLE = 101,
    IDS_UNTITLED,
    IDS_DISCARD,
    IDS_OVERWRITE,
    IDS_CANNOTOPEN,
    IDS_CANNOTSAVE,
    IDS_CANNOTPRINT,
    IDS_BADNAME,
    IDS_OPENED,
    IDS_SAVED,
    IDS_COPIED,
    IDS_PRINTED,
    IDS_SELECTED,
    IDS_READY,
    IDS_OPENTITLE,
    IDS_SAVETITLE,
    IDS_PRINTTITLE,
    IDS_FILTER,
    IDS_PDFFILTER,
    IDS_NOCOPYNAME
};

#endif
