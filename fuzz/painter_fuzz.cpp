// SPDX-License-Identifier: MIT
//
// Programs of drawing calls on an image, through the wrapper and through plain QPainter calls: both
// leave one picture and one state, nothing is painted beside the image, and a restored state is the
// one that was saved.
#include "support/CanvasBits.h"
#include "support/DrawnCalls.h"
#include "support/Expect.h"
#include "support/Input.h"

#include "drawing/Operations.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPaintEngine>

#include <algorithm>
#include <memory>
#include <string>

using namespace drawing;
using namespace ktqtbase::fuzz;

namespace {

constexpr int kLongestProgram = 24;
constexpr int kMostSaves = 4;
constexpr int kLargestFont = 60; // of a text that is drawn, in pixels, since larger ones take long

// What a saved state holds.
struct State
{
    explicit State(const QPainter& painter)
        : pen(painter.pen()), brush(painter.brush()), background(painter.background()),
          font(painter.font()), transform(painter.transform()), clip(painter.clipRegion()),
          mode(painter.backgroundMode()), composition(painter.compositionMode()),
          hasClip(painter.hasClipping())
    {}

    void expectSameAs(const State& other) const
    {
        expect("restored pen", pen == other.pen);
        expect("restored brush", brush == other.brush);
        expect("restored background", background == other.background);
        expect("restored font", font == other.font);
        expect("restored transformation", transform == other.transform);
        expect("restored clip", clip == other.clip && hasClip == other.hasClip);
        expect("restored modes", mode == other.mode && composition == other.composition);
    }

    QPen pen;
    QBrush brush;
    QBrush background;
    QFont font;
    QTransform transform;
    QRegion clip;
    Qt::BGMode mode;
    QPainter::CompositionMode composition;
    bool hasClip;
};

// Whether one of the random tests' operations takes longer than all else: a font that Qt was not
// asked for before, and thousands of random pixels.
bool isSlow(const Operation& operation)
{
    const std::string name = operation.name;
    return name == "setFontIndirect" || name == "drawImage(raw)";
}

const std::vector<Operation>& usualOperations()
{
    static const std::vector<Operation> usual = [] {
        std::vector<Operation> list = operations();
        list.erase(std::remove_if(list.begin(), list.end(), isSlow), list.end());
        return list;
    }();
    return usual;
}

class Program
{
public:
    explicit Program(Input& input)
        : m_input(input), m_shape(drawShape(input)), m_actualBits(m_shape), m_expectedBits(m_shape),
          m_actual(m_actualBits.image()), m_expected(m_expectedBits.image()), m_wrapper(&m_actual),
          m_painter(m_wrapper.wrappedPainter()), m_plain(&m_expected)
    {}

    void run()
    {
        for (int step = 0; step < kLongestProgram && !m_input.atEnd(); ++step)
            runStep();
        while (!m_saves.empty())
            restore();
        if (m_isActive)
            endDraw();
        m_wrapper.endPath();
        expectSamePictures();
    }

private:
    void runStep()
    {
        const unsigned int drawn = m_input.byte();
        if (!m_isActive && drawn < 0xC0)
            beginDraw();
        else if (m_isActive && m_saves.empty() && drawn < 8)
            endDraw();
        else if (m_isActive && drawn < 16 && m_saves.size() < kMostSaves)
            save();
        else if (!m_saves.empty() && drawn < 24)
            restore();
        else
            call(drawn);
    }

    void beginDraw()
    {
        expectSame("beginDraw", m_wrapper.beginDraw(), m_plain.beginDraw());
        m_isActive = true;
    }

    void endDraw()
    {
        expectSame("endDraw", m_wrapper.endDraw(), m_plain.endDraw());
        m_isActive = false;
        expect("the painter is idle", !m_painter->isActive());
        expectSamePictures();
    }

    void save()
    {
        m_saves.emplace_back(*m_painter);
        m_wrapper.save();
        m_plain.save();
    }

    void restore()
    {
        m_wrapper.restore();
        m_plain.restore();
        State(*m_painter).expectSameAs(m_saves.back());
        m_saves.pop_back();
    }

    // One of the random tests' operations, or one with arguments that these never have.
    void call(unsigned int drawn)
    {
        const std::size_t count = usualOperations().size();
        const std::size_t index = drawn % (count + drawnCalls().size());
        const bool isUsual = index < count;
        const Operation* const usual = isUsual ? &usualOperations()[index] : nullptr;
        const DrawnCall* const other = isUsual ? nullptr : &drawnCalls()[index - count];
        const When when = usual ? usual->when : other->when;
        if (!m_isActive && when == When::InSession)
            return;
        if (m_painter->font().pixelSize() > kLargestFont && isText(usual, other))
            return;
        if (usual)
            perform(*usual);
        else
            perform(*other);
        if (m_isActive)
            expectSameStates();
    }

    static bool isText(const Operation* usual, const DrawnCall* other)
    {
        return std::string(usual ? usual->name : other->name) == "drawText";
    }

    void perform(const Operation& operation)
    {
        const unsigned int seed = m_input.byte() << 8 | m_input.byte();
        Lot forWrapper(seed);
        Lot forPlain(seed);
        operation.onWrapper(m_wrapper, forWrapper);
        operation.onPlain(m_plain, forPlain);
    }

    void perform(const DrawnCall& call)
    {
        Input forPlain = m_input;
        call.onWrapper(m_wrapper, m_input);
        call.onPlain(m_plain, forPlain);
    }

    void expectSameStates() const
    {
        expect("same pen", m_wrapper.getPen() == m_plain.getPen());
        expect("same brush", m_wrapper.getBrush() == m_plain.getBrush());
        expect("same background", m_wrapper.getBkColor() == m_plain.getBkColor());
        expectSame("background mode", m_wrapper.getBkMode(), m_plain.getBkMode());
        expectSame("raster operation", m_wrapper.getROP2(), m_plain.getROP2());
    }

    void expectSamePictures() const
    {
        m_actualBits.expectUntouchedMargins();
        m_expectedBits.expectUntouchedMargins();
        expect("same picture", m_actual == m_expected);
    }

    Input& m_input;
    CanvasShape m_shape;
    CanvasBits m_actualBits;
    CanvasBits m_expectedBits;
    QImage m_actual;
    QImage m_expected;
    KtQtPainterWrapper m_wrapper;
    std::unique_ptr<QPainter> m_painter; // which the wrapper never deletes
    PlainPainter m_plain;
    std::vector<State> m_saves;
    bool m_isActive = false;
};

void keepQuiet(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

// Qt keeps a part of what it asks about each new font, and loses memory over a polygon that it cannot
// make a region of. The library's own objects are made outside of both.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libQt5Gui\nleak:libQt6Gui\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    qInstallMessageHandler(keepQuiet);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    Program(input).run();
    return 0;
}
