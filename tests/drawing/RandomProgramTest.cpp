// SPDX-License-Identifier: MIT
//
// Random programs of operations, run through the wrapper and through plain QPainter calls.
#include "drawing/Operations.h"
#include "drawing/Twin.h"

#include <string>

namespace {

using namespace drawing;

constexpr unsigned kFirstSeed = 20240501;
constexpr int kProgramsPerTest = 100;
constexpr int kLeastOperations = 20;

// Both painters with one program, and a record of what they did.
class Run
{
public:
    explicit Run(unsigned seed, QImage::Format format)
        : m_lot(seed), m_actual(ground(format, QSize(64, 64))), m_expected(m_actual)
    {}

    // A program of 20 to 60 operations, in sessions that open and close.
    ::testing::AssertionResult play()
    {
        for (int left = m_lot.between(kLeastOperations, 60); left > 0; --left)
            step();
        while (m_saves > 0)
            restore();
        if (m_active)
            endDraw();
        m_wrapper.endPath();
        return compare();
    }

private:
    void step()
    {
        const int choice = m_lot.below(20);
        if (!m_active && choice < 14)
            beginDraw();
        else if (m_active && m_saves == 0 && choice == 0)
            endDraw();
        else if (m_active && choice == 1)
            save();
        else if (m_saves > 0 && choice < 5)
            restore();
        else
            perform();
    }

    void beginDraw()
    {
        m_tale += "beginDraw ";
        EXPECT_EQ(m_wrapper.beginDraw(), m_plain.beginDraw());
        m_active = true;
    }

    void endDraw()
    {
        m_tale += "endDraw ";
        EXPECT_EQ(m_wrapper.endDraw(), m_plain.endDraw());
        m_active = false;
        EXPECT_TRUE(compare());
    }

    void save()
    {
        m_tale += "save ";
        m_wrapper.save();
        m_plain.save();
        ++m_saves;
    }

    void restore()
    {
        m_tale += "restore ";
        m_wrapper.restore();
        m_plain.restore();
        --m_saves;
    }

    void perform()
    {
        const auto count = static_cast<int>(operations().size());
        const Operation& operation = operations()[static_cast<std::size_t>(m_lot.below(count))];
        if (!m_active && operation.when == When::InSession)
            return beginDraw();
        m_tale += operation.name + std::string(" ");
        const unsigned seed = m_lot.color();
        Lot forWrapper(seed);
        Lot forPlain(seed);
        operation.onWrapper(m_wrapper, forWrapper);
        operation.onPlain(m_plain, forPlain);
        if (m_active)
            compareStates();
    }

    void compareStates()
    {
        EXPECT_TRUE(m_wrapper.getPen() == m_plain.getPen()) << m_tale;
        EXPECT_TRUE(m_wrapper.getBrush() == m_plain.getBrush()) << m_tale;
        EXPECT_EQ(m_wrapper.getBkMode(), m_plain.getBkMode()) << m_tale;
        EXPECT_EQ(m_wrapper.getROP2(), m_plain.getROP2()) << m_tale;
        EXPECT_EQ(m_wrapper.getBkColor(), m_plain.getBkColor()) << m_tale;
    }

    ::testing::AssertionResult compare()
    {
        ::testing::AssertionResult result = support::samePicture(m_expected, m_actual);
        return result ? result : result << "; the program was: " << m_tale;
    }

    Lot m_lot;
    QImage m_actual;
    QImage m_expected;
    KtQtPainterWrapper m_wrapper{&m_actual};
    PlainPainter m_plain{&m_expected};
    bool m_active = false;
    int m_saves = 0;
    std::string m_tale;
};

void playPrograms(unsigned firstSeed, QImage::Format format)
{
    for (unsigned seed = firstSeed; seed < firstSeed + kProgramsPerTest; ++seed) {
        ASSERT_TRUE(Run(seed, format).play()) << "seed " << seed;
        if (::testing::Test::HasFailure())
            return;
    }
}

TEST(RandomPrograms, PaintThePlainPictureOnPremultipliedColours)
{
    playPrograms(kFirstSeed, QImage::Format_ARGB32_Premultiplied);
}

TEST(RandomPrograms, PaintThePlainPictureOnMorePremultipliedColours)
{
    playPrograms(kFirstSeed + 1000, QImage::Format_ARGB32_Premultiplied);
    playPrograms(kFirstSeed + 2000, QImage::Format_ARGB32_Premultiplied);
}

TEST(RandomPrograms, PaintThePlainPictureOn32BitsWithoutAlpha)
{
    playPrograms(kFirstSeed + 3000, QImage::Format_RGB32);
}

TEST(RandomPrograms, PaintThePlainPictureOn24Bits)
{
    playPrograms(kFirstSeed + 4000, QImage::Format_RGB888);
}

TEST(RandomPrograms, PaintThePlainPictureOn8Bits)
{
    playPrograms(kFirstSeed + 5000, QImage::Format_Grayscale8);
}

TEST(RandomPrograms, PaintThePlainPictureOn1Bit)
{
    playPrograms(kFirstSeed + 6000, QImage::Format_Mono);
}

} // namespace
