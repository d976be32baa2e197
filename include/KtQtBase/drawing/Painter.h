// SPDX-License-Identifier: MIT
//
// The device context: pens, brushes, fonts, clips, paths and primitives with Windows arguments,
// painted by a QPainter.
//
//     painter.setPen(PS_DASH, 1, 0x000000FF);      // red
//     painter.setBrush(0x0000FF00u);               // solid green: unsigned is a colour
//     painter.setBrush(int(Qt::NoBrush));          // hollow: int is a style
//     painter.drawAlphaRect(CRect(10, 10, 60, 40), 0x00FF0000, 128);
//
// A colour is a COLORREF: red in bits 0-7, green in 8-15, blue in 16-23, the rest ignored; it is
// opaque unless a function takes an alpha. Coordinates are pixels of the device, changed by
// whatever transformation is set. Integers that name a Qt enumeration (brush style, composition
// mode, image format) reach Qt as they are and are not checked, here or by Qt: pass only values
// that it names.
//
// Settings and drawing act on the painter while it paints, that is between beginDraw and endDraw.
// Outside, Qt does nothing, mostly with a warning; setClipRegion and the path bracket work at all
// times. Nothing is checked for null but where a function says so. Points and text belong to the
// caller and are read during the call.
#ifndef KTQTBASE_DRAWING_PAINTER_H
#define KTQTBASE_DRAWING_PAINTER_H

#include <KtQtBase/Export.h>
#include <KtQtBase/WindowsTypes.h>

#include <QtCore/QRect>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>
#include <QtGui/QRegion>

class QImage;
class QPaintDevice;
class QPainter;

// Paints on a device that the caller owns. Not copyable. No operation is virtual, and the order of
// the fields is part of the interface.
class KTQTBASE_EXPORT KtQtPainterWrapper
{
public:
    // An idle painter without a device, an open path or a clip.
    KtQtPainterWrapper();

    // The same on a device.
    //   device    in: what to paint on, or null; it outlives the wrapper's sessions
    explicit KtQtPainterWrapper(QPaintDevice* device);

    // Forgets the device and the stored clip.
    // Kept: neither the QPainter nor an open path is deleted; hosts hold their pointers longer
    // than the wrapper. A session that is still open stays open, and the device must not die in it.
    ~KtQtPainterWrapper();

    KtQtPainterWrapper(const KtQtPainterWrapper&) = delete;
    KtQtPainterWrapper& operator=(const KtQtPainterWrapper&) = delete;

    // ---- Device and session --------------------------------------------------------------------

    // Sets the device of the sessions to come; a session that is open goes on with its own.
    //   device    in: what to paint on, or null; not owned
    void setWrappedDevice(QPaintDevice* device);

    // Result: the device, or null.
    QPaintDevice* wrappedDevice() const;

    // Result: the painter, never null; it stays the wrapper's.
    QPainter* wrappedPainter() const;

    // Starts painting: a solid black pen of width 0 (one pixel under any transformation), a solid
    // black brush, the stored clip, and Qt's defaults for all else.
    // Result: false without a device, and nothing happens; else true.
    // Kept: true even where the device refuses to be painted on (a null image, one that is already
    // painted on); hosts go on, and Qt ignores what they draw.
    // Kept: the brush fills; set Qt::NoBrush for an outline.
    // On Windows: the default brush is white, and only private contexts keep their settings.
    bool beginDraw();

    // Undoes the settings and ends painting. A device must not be destroyed before this.
    // Result: false without a device, and nothing happens, so that a painting whose device was taken
    // away goes on; else whether a painting was ended.
    bool endDraw();

    // Saves the painter's whole state, or takes the last one saved back. Each save needs its
    // restore before endDraw.
    void save();
    void restore();

    // ---- Pen, brush and background -------------------------------------------------------------

    // Sets a pen.
    //   style    in: a PS_ value; bits above the low four are dropped
    //   width    in: pixels, not negative; 0 is one pixel under any transformation
    //   color    in: a COLORREF
    //   PS_SOLID => Qt::SolidLine           PS_DASH => Qt::DashLine, 12 widths on and 4 off
    //   PS_DOT => Qt::DotLine               PS_USERSTYLE => Qt::CustomDashLine, 12 on and 4 off
    //   PS_DASHDOT => Qt::DashDotLine       PS_INSIDEFRAME => Qt::CustomDashLine, 12 on and 4 off
    //   PS_DASHDOTDOT => Qt::DashDotDotLine PS_NULL => Qt::NoPen
    //   8 to 15 => the same number, which Qt has no line for
    // Qt turns a dash line that has a pattern into a custom dash line, and getPen says so.
    // Kept: PS_INSIDEFRAME comes out dashed; hosts' drawings have looked so from the start.
    // On Windows: PS_INSIDEFRAME is a solid line, and caps and joins count.
    void setPen(int style, int width, unsigned int color);

    // Sets or gets the pen as Qt has it.
    void setPen(const QPen& pen);
    QPen getPen() const;

    // Gives the current pen another colour.
    //   color    in: a COLORREF
    void setPenColor(unsigned int color);

    // Sets a black brush of a style.
    //   style    in: a Qt::BrushStyle other than a gradient or a texture
    // The colour goes back to black. An int is a style and an unsigned int a colour: mind literals.
    // On Windows: hatches have numbers of their own, which mean other patterns here.
    void setBrush(int style);

    // Sets a solid brush.
    //   color    in: a COLORREF
    void setBrush(unsigned int color);

    // Sets or gets the brush as Qt has it.
    void setBrush(const QBrush& brush);
    QBrush getBrush() const;

    // Says whether gaps of dashes, patterns and text are filled with the background.
    //   mode    in: TRANSPARENT (1) or OPAQUE (2)
    void setBkMode(int mode);

    // Result: 0 transparent, 1 opaque.
    // Kept: one less than what setBkMode takes; hosts compare with Qt::BGMode.
    // On Windows: the same values as are set.
    int getBkMode() const;

    // Sets the background.
    //   color    in: a COLORREF
    void setBackground(unsigned int color);

    // Result: the background's colour.
    // Kept: a QColor and no COLORREF; hosts pass it on to Qt.
    QColor getBkColor() const;

    // Sets or gets how colours meet what is already there.
    //   mode    in: a QPainter::CompositionMode, 0 painting over; the same comes back
    // On Windows: R2_ codes, of which none is translated.
    void setROP2(int mode);
    int getROP2() const;

    // ---- Font ----------------------------------------------------------------------------------

    // Sets the font. The device must be set, for its colour depth in bits enters the size.
    //   lf    in: lfFaceName    the family, up to its NUL or to all of its 32 characters
    //             lfItalic      italic where not 0
    //             lfWeight      0 Qt's own weight; else a tenth of it, cut, is Qt's: 0 to 999
    //             lfHeight      above 0 the height h; else lfWeight is h
    //             lfPitchAndFamily    fixed pitch where it is exactly FIXED_PITCH
    //             all others    ignored
    // The size is depth * h / 36 pixels, cut; Qt keeps its own size where that is below 1.
    //   depth 32, lfHeight 18                  => 16 pixels
    //   depth 24, lfHeight 18                  => 12 pixels
    //   depth 32, lfHeight -16, lfWeight 400   => 355 pixels, weight 40
    // The product is of 32 bits and wraps.
    // Kept: the depth and, for a height of 0 or less, the weight make the size; hosts scale their
    // heights to it.
    // On Windows: a negative height is the character height in pixels, and the depth plays no part.
    void setFontIndirect(const LOGFONTW* lf);

    // ---- Clip and transformation ---------------------------------------------------------------

    // Clips at once, in this session only; the stored clip stays.
    //   rect         in: Qt's inclusive rectangle, in the painter's coordinates
    //   operation    in: how it joins the clip that is set; Qt::NoClip removes clipping
    // Give an empty rectangle with Qt::NoClip: to any other one Qt still cuts text that has an
    // opaque background.
    // On Windows: right and bottom are not part of the rectangle.
    void setClipRect(const QRect& rect, Qt::ClipOperation operation);

    // Stores a clip of polygons, which replaces the one there is: at once while painting, and at
    // every beginDraw from now on.
    //   points    in: the corners, polygon after polygon; null removes the clip
    //   counts    in: the number of corners of each polygon; the sum is below 2^31
    //   n         in: the number of polygons; 0 removes the clip
    // Corners are in the painter's coordinates; keep them within some thousands, since much larger
    // polygons are slow, and beyond what Qt can fill they remove the clip. A spot is inside where an
    // odd number of polygons covers it. Polygons without an area remove the clip.
    // On Windows: the region is an object of its own.
    void setClipRegion(POINT* points, unsigned int* counts, unsigned int n);

    // Moves the origin to a place and turns the axes clockwise around it.
    //   angle    in: degrees
    //   x, y     in: the new origin
    // Kept: the move stays, so that later coordinates count from the place; hosts draw so.
    void Rotate(double angle, int x, int y);

    // ---- Path ----------------------------------------------------------------------------------

    // Opens an empty path, which drawPolyline adds to from then on; an open one stays as it is.
    // Result: false without a device, else true.
    // On Windows: an open path is discarded, and every drawing call is recorded.
    bool beginPath();

    // Deletes the open path with all that is in it: fill or stroke it before.
    // Result: false without a device, and the path stays; else true, with or without a path.
    // On Windows: the path is kept in the device context.
    bool endPath();

    // Result: the open path, or null; the wrapper's until endPath.
    QPainterPath* getPainterPath() const;

    // Makes a path the open one; the one before is not deleted and is the caller's again.
    //   path    in: made with new, for endPath deletes it; or null for none
    void setPainterPath(QPainterPath* path);

    // Fills a path with the brush, strokes it with the pen, or does both.
    //   path    in: any path, often the open one; unchanged. Not null
    // Kept: the last takes a pointer where the others take a value; hosts call them so.
    // On Windows: all three use up the path of the device context.
    void fillPath(QPainterPath path);
    void strokePath(QPainterPath path);
    void strokeAndFillPath(QPainterPath* path);

    // ---- Primitives ----------------------------------------------------------------------------

    // Draws one point with the pen.
    void drawPoint(int x, int y);

    // Draws lines from point to point with the pen; or, into an open path, adds them and closes
    // the figure.
    //   pts    in: the points
    //   n      in: their number. Below 2 nothing is drawn; with an open path at least 1, since the
    //          first point is read whatever n is
    // Kept: a recorded line always becomes a closed figure; hosts record to fill.
    // On Windows: nothing is closed.
    void drawPolyline(const POINT* pts, int n);

    // Draws a polygon at once, open path or not: fill with the brush where an odd number of edges
    // lies around, outline with the pen.
    //   pts, n    in: the corners and their number; below 2 nothing is drawn
    // On Windows: the fill mode is set apart, and an open path records it.
    void drawPolygon(const POINT* pts, int n);

    // Draws text with the pen and the font.
    //   x, y    in: the left end of the baseline
    //   text    in: UTF-32
    //   len     in: characters, NULs among them kept; negative for up to the NUL
    // The colour is the pen's; with PS_NULL there is no text.
    // On Windows: the text has a colour of its own, and the place is the upper left corner unless
    // set otherwise.
    void drawText(int x, int y, const wchar_t* text, int len);

    // Draws a rectangle, filled with a translucent colour and outlined with the pen.
    //   rc       in: two corners; right and bottom are painted too
    //   color    in: a COLORREF
    //   alpha    in: 0 transparent to 255 opaque
    // Kept: where left is not below right the corners change places as wholes, so that y is never
    // put in order; edges are inclusive; and the brush stays set. Hosts rely on all three.
    void drawAlphaRect(const CRect& rc, unsigned int color, int alpha);

    // Draws pixels.
    //   x, y            in: where, and also the width and height of the pixels
    //   bits            in: rows from the top, each padded to 32 bits; not copied, not freed
    //   fourth, fifth   ignored
    //   format          in: a QImage::Format of the pixels, one that needs no colour table
    // Kept: the place is the size; hosts pass sizes first.
    //   drawImage(64, 32, bits, 100, 200, 6)    => 64 by 32 pixels, placed at (64, 32)
    void drawImage(int x, int y, unsigned char* bits, int, int, int format);

    // Draws a whole image, scaled to a rectangle.
    //   target    in: Qt's inclusive rectangle
    //   image     in: the image
    void drawImage(QRect& target, QImage& image);

    // Fills a rectangle; pen and brush play no part and stay.
    //   rect     in: Qt's inclusive rectangle
    //   color    in: the colour
    // On Windows: right and bottom are not painted, and a brush gives the colour.
    void fillRect(const QRect& rect, Qt::GlobalColor color);

    // ---- Fields --------------------------------------------------------------------------------

    QPaintDevice* m_pWrappedDevice = nullptr; // not owned; null for none
    QPainter* m_pPainter;                     // never null, never deleted
    QPainterPath* m_pPath = nullptr;          // the open path, or null
    QRegion m_rClipRegion;                    // the stored clip; empty for none
};

#endif
