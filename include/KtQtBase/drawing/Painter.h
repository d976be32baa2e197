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
// opaque unless a function takes an alpha. Coordinates are pixels of the device, changed by the
// transformation that is set. Integers for a Qt enumeration (brush style, composition mode, image
// format) reach Qt unchanged, and neither this library nor Qt checks them: pass only values of the
// enumeration.
//
// Settings and drawing work while the painter paints, that is between beginDraw and endDraw. At
// other times Qt does nothing, mostly with a warning. setClipRegion, the functions of a path, and
// drawing into an open path need no session; beginPath and endPath need a device. Nothing is checked for null, except where a function says so. Points and text belong to the
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
    // Kept: neither the QPainter nor an open path is deleted, so that pointers to them stay valid.
    // An open session stays open, and its device must not die before the session ends.
    ~KtQtPainterWrapper();

    KtQtPainterWrapper(const KtQtPainterWrapper&) = delete;
    KtQtPainterWrapper& operator=(const KtQtPainterWrapper&) = delete;

    // ---- Device and session --------------------------------------------------------------------

    // Sets the device of the next sessions; an open session keeps its own.
    //   device    in: what to paint on, or null; not owned
    void setWrappedDevice(QPaintDevice* device);

    // Result: the device, or null.
    QPaintDevice* wrappedDevice() const;

    // Result: the painter, never null. The wrapper made it and never deletes it, so that pointers to it
    // stay valid: a host that makes many wrappers deletes it once the wrapper is gone.
    QPainter* wrappedPainter() const;

    // Starts painting: a solid black pen of width 0 (one pixel under any transformation), a solid
    // black brush, the stored clip, and Qt's defaults for everything else.
    // Result: false without a device, and nothing happens; else true.
    // Kept: true even if the device refuses to be painted on (a null image, one that another
    // painter paints on); Qt then ignores what is drawn. Part of the interface.
    // Called again before endDraw it goes on with the session, with the pen, the brush and the clip
    // set anew; one endDraw then ends it.
    // Kept: the brush fills; a host's figures would be empty otherwise. Set Qt::NoBrush for an
    // outline.
    // On Windows: the default brush is white, and only private contexts keep their settings.
    bool beginDraw();

    // Undoes the settings and ends painting. The device must not be destroyed before this.
    // Result: false without a device, and nothing happens: a painting goes on if its device was
    // replaced by null. Else whether a painting was ended.
    bool endDraw();

    // Saves the painter's whole state, or restores the last one saved. Each save needs its restore
    // before endDraw.
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
    //   8 to 15 => the same number, for which Qt has no line
    // Qt turns a dash line that has a pattern into a custom dash line, and getPen returns that.
    // Kept: PS_INSIDEFRAME is dashed; a host's drawings would look different otherwise.
    // On Windows: PS_INSIDEFRAME is a solid line, and caps and joins have an effect.
    void setPen(int style, int width, unsigned int color);

    // Sets or gets the pen as Qt has it.
    void setPen(QPen pen);
    QPen getPen() const;

    // Gives the current pen another colour.
    //   color    in: a COLORREF
    void setPenColor(unsigned int color);

    // Sets a black brush of a style.
    //   style    in: a Qt::BrushStyle other than a gradient or a texture
    // The colour becomes black. An int is a style and an unsigned int a colour: take care with
    // literals.
    // On Windows: hatches have numbers of their own, which mean other patterns here.
    void setBrush(int style);

    // Sets a solid brush.
    //   color    in: a COLORREF
    void setBrush(unsigned int color);

    // Sets or gets the brush as Qt has it.
    void setBrush(QBrush brush);
    QBrush getBrush() const;

    // Sets whether gaps of dashes, patterns and text are filled with the background.
    //   mode    in: TRANSPARENT (1) or OPAQUE (2)
    void setBkMode(int mode);

    // Result: 0 transparent, 1 opaque.
    // Kept: a Qt::BGMode, one less than what setBkMode takes. Part of the interface.
    // On Windows: the value that was set.
    int getBkMode() const;

    // Sets the background.
    //   color    in: a COLORREF
    void setBackground(unsigned int color);

    // Result: the background's colour.
    // Kept: a QColor, not a COLORREF. Part of the interface.
    QColor getBkColor() const;

    // Sets or gets how colours are combined with what is already there.
    //   mode    in: a QPainter::CompositionMode, 0 paints over; getROP2 returns the same
    // On Windows: R2_ codes; none of them is translated.
    void setROP2(int mode);
    int getROP2() const;

    // ---- Font ----------------------------------------------------------------------------------

    // Sets the font. The device must be set, since the size depends on its colour depth in bits.
    //   lf    in: lfFaceName    the family, up to its NUL, 32 characters at most
    //             lfItalic      italic if not 0
    //             lfWeight      0: Qt's own weight; 1 to 999: a tenth of it, cut, is Qt's weight
    //             lfHeight      above 0: the height h; else lfWeight is h
    //             lfPitchAndFamily    fixed pitch if it is exactly FIXED_PITCH
    //             all others    ignored
    // The size is depth * h / 36 pixels, cut; if that is below 1, Qt keeps its own size.
    //   depth 32, lfHeight 18                  => 16 pixels
    //   depth 24, lfHeight 18                  => 12 pixels
    //   depth 32, lfHeight -16, lfWeight 400   => 355 pixels, weight 40
    // The product is of 32 bits and wraps.
    // Kept: the size depends on the depth, and for a height of 0 or less on the weight; a host's
    // texts would have another size otherwise.
    // On Windows: a negative height is the character height in pixels, and the depth has no effect.
    void setFontIndirect(const LOGFONTW* lf);

    // ---- Clip and transformation ---------------------------------------------------------------

    // Clips at once, in this session only; the stored clip stays.
    //   rect         in: Qt's inclusive rectangle, in the painter's coordinates
    //   operation    in: how it is combined with the present clip; Qt::NoClip removes clipping
    // With Qt::NoClip pass an empty rectangle: Qt still cuts text that has an opaque background to
    // any other one.
    // On Windows: right and bottom are not part of the rectangle.
    void setClipRect(const QRect& rect, Qt::ClipOperation operation);

    // Stores a clip of polygons in place of the former one. It is set at once while painting, and
    // at every later beginDraw.
    //   points    in: the corners, polygon after polygon; null removes the clip
    //   counts    in: the number of corners of each polygon; the sum is below 2^31
    //   n         in: the number of polygons; 0 removes the clip
    // Corners are in the painter's coordinates. Keep them within some thousands: much larger
    // polygons are slow, and those that Qt cannot fill remove the clip. A point is inside if an odd
    // number of polygons covers it. Polygons without an area remove the clip.
    // On Windows: the region is an object of its own.
    void setClipRegion(POINT* points, unsigned int* counts, unsigned int n);

    // Moves the origin and turns the axes clockwise around it.
    //   angle    in: degrees
    //   x, y     in: the new origin
    // Kept: the origin stays moved; a host's later coordinates would mean other places otherwise.
    void Rotate(double angle, int x, int y);

    // ---- Path ----------------------------------------------------------------------------------

    // Opens an empty path, to which drawPolyline adds from then on; an open one stays as it is.
    // Result: false without a device, else true.
    // On Windows: an open path is discarded, and every drawing call is recorded.
    bool beginPath();

    // Deletes the open path and its contents: fill or stroke it before.
    // Result: false without a device, and the path stays; else true, with or without a path.
    // On Windows: the path is kept in the device context.
    bool endPath();

    // Result: the open path, or null; owned by the wrapper until endPath.
    QPainterPath* getPainterPath() const;

    // Makes a path the open one. The former one is not deleted and belongs to the caller again.
    //   path    in: made with new, since endPath deletes it; or null for none
    void setPainterPath(QPainterPath* path);

    // Fills a path with the brush by its own fill rule, strokes it with the pen, or does both.
    //   path    in: any path, often the open one; unchanged. Not null
    // Kept: the last takes a pointer, the others take a value. Part of the interface.
    // On Windows: all three use up the path of the device context.
    void fillPath(QPainterPath path);
    void strokePath(QPainterPath path);
    void strokeAndFillPath(QPainterPath* path);

    // ---- Primitives ----------------------------------------------------------------------------

    // Draws one point with the pen.
    void drawPoint(int x, int y);

    // Draws lines from point to point with the pen. If a path is open, adds the lines to it instead
    // and closes the figure.
    //   pts    in: the points
    //   n      in: their number. Below 2 nothing is drawn; with an open path at least 1, since the
    //          first point is always read
    // Kept: a recorded line always becomes a closed figure; a stroked path would lack a line
    // otherwise.
    // On Windows: nothing is closed.
    void drawPolyline(const POINT* pts, int n);

    // Draws a polygon at once, even if a path is open: filled with the brush by the odd-even rule,
    // outlined with the pen.
    //   pts, n    in: the corners and their number; below 2 nothing is drawn
    // On Windows: the fill mode is set separately, and an open path records the polygon.
    void drawPolygon(const POINT* pts, int n);

    // Draws text with the pen and the font.
    //   x, y    in: the left end of the baseline
    //   text    in: UTF-32
    //   len     in: how many characters, NULs included; negative: up to the NUL
    // The colour is the pen's; with PS_NULL there is no text.
    // On Windows: the text has a colour of its own, and x, y is the upper left corner unless set
    // otherwise.
    void drawText(int x, int y, const wchar_t* text, int len);

    // Draws a rectangle, filled with a translucent colour and outlined with the pen.
    //   rc       in: two corners; right and bottom are painted too
    //   color    in: a COLORREF
    //   alpha    in: 0 transparent to 255 opaque
    // Kept: if left is not below right, the two corners are exchanged, so that top and bottom are
    // never put in order by themselves; edges are inclusive; and the brush stays set. Part of the
    // interface.
    void drawAlphaRect(const CRect& rc, unsigned int color, int alpha);

    // Draws pixels.
    //   x, y            in: the position, and also the width and height of the pixels
    //   bits            in: rows from the top, each padded to 32 bits; not copied, not freed
    //   fourth, fifth   ignored
    //   format          in: a QImage::Format of the pixels, one that needs no colour table
    //   drawImage(64, 32, bits, 100, 200, 6)    => 64 by 32 pixels, placed at (64, 32)
    // Kept: the position is also the size. Part of the interface.
    void drawImage(int x, int y, unsigned char* bits, int, int, int format);

    // Draws a whole image, scaled to a rectangle.
    //   target    in: Qt's inclusive rectangle
    //   image     in: the image; its size is counted in pixels at every device pixel ratio
    void drawImage(QRect& target, QImage& image);

    // Fills a rectangle; pen and brush are not used and stay.
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
