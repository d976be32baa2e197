// SPDX-License-Identifier: MIT
//
// Who deletes which QFileDialog: the object, a parent, the host.
#include "dialogs/FileDialogFixture.h"

#include <cstring>
#include <memory>
#include <new>

namespace {

using FileDialogLifetime = FileDialogFixture;
using RunningFileDialog = FileDialogFixture;

void cancel(QFileDialog& shown)
{
    press(shown, QDialogButtonBox::Cancel);
}

// Runs a dialog whose user cancels it, and returns it.
QPointer<QFileDialog> cancelledRun(KtQtFileDialog& dialog)
{
    const User<QFileDialog> user(cancel);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    return dialog.m_pDialog;
}

// A dialog in memory that stays when the dialog dies, to show whether anybody still writes there.
class DialogInMemory
{
public:
    explicit DialogInMemory(QWidget* parent)
        : m_dialog(new (m_bytes) KtQtFileDialog(true, nullptr, nullptr, 0, nullptr, parent))
    {}

    KtQtFileDialog* operator->() { return m_dialog; }
    KtQtFileDialog& operator*() { return *m_dialog; }

    // Ends its life and fills the memory with a pointer, wherever a field may have been.
    void dieAndFill(const void* pointer)
    {
        m_dialog->~KtQtFileDialog();
        for (std::size_t at = 0; at < sizeof m_bytes; at += sizeof pointer)
            std::memcpy(m_bytes + at, &pointer, sizeof pointer);
        std::memcpy(m_filled, m_bytes, sizeof m_bytes);
    }

    bool isUntouched() const { return std::memcmp(m_bytes, m_filled, sizeof m_bytes) == 0; }

private:
    alignas(KtQtFileDialog) unsigned char m_bytes[sizeof(KtQtFileDialog)];
    unsigned char m_filled[sizeof(KtQtFileDialog)];
    KtQtFileDialog* m_dialog;
};

// ---- A parent dies -----------------------------------------------------------------------------

TEST_F(FileDialogLifetime, CancelsWhenTheParentDiesMeanwhile)
{
    auto* const parent = new QWidget;
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, parent);
    fill(dialog);
    const User<QFileDialog> user([parent](QFileDialog&) { delete parent; });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_pDialog, nullptr);
}

TEST_F(FileDialogLifetime, LeavesADialogThatItsParentDeletedAlone)
{
    auto parent = std::make_unique<QWidget>();
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, parent.get());
    fill(dialog);
    const User<QFileDialog> user(
        [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("may.txt")); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    parent.reset();
    EXPECT_EQ(dialog.m_pDialog, nullptr);
    EXPECT_EQ(dialog.GetFileName(), L"may.txt");
}

TEST_F(FileDialogLifetime, LosesTheDialogBeforeAHostHearsOfItsEnd)
{
    auto parent = std::make_unique<QWidget>();
    auto dialog =
        std::make_unique<KtQtFileDialog>(true, nullptr, nullptr, 0, nullptr, parent.get());
    cancelledRun(*dialog);
    QObject::connect(dialog->m_pDialog, &QObject::destroyed, [&dialog] {
        EXPECT_EQ(dialog->m_pDialog, nullptr);
        dialog.reset();
    });
    parent.reset();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(FileDialogLifetime, LosesADialogThatTheHostDisconnected)
{
    auto parent = std::make_unique<QWidget>();
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, parent.get());
    cancelledRun(dialog)->disconnect();
    parent.reset();
    EXPECT_EQ(dialog.m_pDialog, nullptr);
}

TEST_F(FileDialogLifetime, LeavesAFieldAloneThatTheHostSet)
{
    KtQtFileDialog dialog(true);
    const QPointer<QFileDialog> first = cancelledRun(dialog);
    auto* const other = new QFileDialog;
    dialog.m_pDialog = other;
    delete first;
    EXPECT_EQ(dialog.m_pDialog, other);
}

// ---- Several runs ------------------------------------------------------------------------------

TEST_F(FileDialogLifetime, DeletesOnlyTheDialogOfTheLastRun)
{
    auto dialog = std::make_unique<KtQtFileDialog>(true);
    fill(*dialog);
    const QPointer<QFileDialog> first = cancelledRun(*dialog);
    const QPointer<QFileDialog> last = cancelledRun(*dialog);
    dialog.reset();
    EXPECT_TRUE(last.isNull());
    ASSERT_FALSE(first.isNull());
    delete first;
}

TEST_F(FileDialogLifetime, KeepsTheLastDialogWhenTheFirstDies)
{
    KtQtFileDialog dialog(true);
    const QPointer<QFileDialog> first = cancelledRun(dialog);
    const QPointer<QFileDialog> last = cancelledRun(dialog);
    delete first;
    EXPECT_EQ(dialog.m_pDialog, last.data());
    EXPECT_FALSE(last.isNull());
}

TEST_F(FileDialogLifetime, IsUnknownToTheFirstDialogWhenItDies)
{
    auto parent = std::make_unique<QWidget>();
    DialogInMemory dialog(parent.get());
    const QPointer<QFileDialog> first = cancelledRun(*dialog);
    const QPointer<QFileDialog> last = cancelledRun(*dialog);
    dialog.dieAndFill(first.data());
    EXPECT_TRUE(last.isNull());
    EXPECT_FALSE(first.isNull());
    parent.reset();
    EXPECT_TRUE(dialog.isUntouched());
}

TEST_F(FileDialogLifetime, CanBeFreedBeforeTheFirstDialog)
{
    auto parent = std::make_unique<QWidget>();
    auto dialog =
        std::make_unique<KtQtFileDialog>(true, nullptr, nullptr, 0, nullptr, parent.get());
    const QPointer<QFileDialog> first = cancelledRun(*dialog);
    cancelledRun(*dialog);
    dialog.reset();
    EXPECT_FALSE(first.isNull());
    parent.reset();
    EXPECT_TRUE(first.isNull());
}

TEST_F(FileDialogLifetime, LeavesTheHostsConnectionsAlone)
{
    QWidget parent;
    int ends = 0;
    {
        KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &parent);
        for (int run = 0; run < 2; ++run)
            QObject::connect(cancelledRun(dialog), &QObject::destroyed, [&ends] { ++ends; });
        EXPECT_EQ(ends, 0);
        delete parent.findChild<QFileDialog*>();
        EXPECT_EQ(ends, 1);
    }
    EXPECT_EQ(ends, 2);
}

// ---- During a run ------------------------------------------------------------------------------

TEST_F(RunningFileDialog, KeepsTheDialogBeforeItShowsIt)
{
    class ShowFilter : public QObject
    {
    public:
        explicit ShowFilter(const KtQtFileDialog& dialog) : m_dialog(dialog) {}
        int seen = 0;

    protected:
        bool eventFilter(QObject* object, QEvent* event) override
        {
            if (event->type() == QEvent::Show && qobject_cast<QFileDialog*>(object)) {
                ++seen;
                EXPECT_EQ(m_dialog.m_pDialog, object);
            }
            return false;
        }

    private:
        const KtQtFileDialog& m_dialog;
    };
    KtQtFileDialog dialog(true);
    ShowFilter filter(dialog);
    qApp->installEventFilter(&filter);
    cancelledRun(dialog);
    EXPECT_EQ(filter.seen, 1);
}

// Runs the object again while a dialog of it is shown; the user of the second one cancels.
QPointer<QFileDialog> nestedRun(KtQtFileDialog& dialog)
{
    QTimer::singleShot(0, [&dialog] { dialog.m_pDialog->reject(); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    return dialog.m_pDialog;
}

TEST_F(RunningFileDialog, TakesTheSelectionAfterANestedRun)
{
    QWidget parent;
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &parent);
    fill(dialog);
    QPointer<QFileDialog> inner;
    const User<QFileDialog> user([&](QFileDialog& shown) {
        inner = nestedRun(dialog);
        EXPECT_NE(inner.data(), &shown);
        typeNameAndReturn(shown, QStringLiteral("may.txt"));
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetFileName(), L"may.txt");
    EXPECT_EQ(dialog.m_pDialog, inner.data());
}

TEST_F(RunningFileDialog, KeepsTheNestedRunsDialogWhenItsOwnDies)
{
    KtQtFileDialog dialog(true);
    QPointer<QFileDialog> inner;
    const User<QFileDialog> user([&](QFileDialog& shown) {
        inner = nestedRun(dialog);
        delete &shown;
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(inner.isNull());
    EXPECT_EQ(dialog.m_pDialog, inner.data());
}

TEST_F(RunningFileDialog, IsUnknownToItsDialogAfterANestedRun)
{
    auto parent = std::make_unique<QWidget>();
    DialogInMemory dialog(parent.get());
    QPointer<QFileDialog> outer;
    const User<QFileDialog> user([&](QFileDialog& shown) {
        outer = &shown;
        nestedRun(*dialog);
        cancel(shown);
    });
    EXPECT_EQ(dialog->DoModal(), IDCANCEL);
    dialog.dieAndFill(outer.data());
    parent.reset();
    EXPECT_TRUE(dialog.isUntouched());
}

TEST_F(RunningFileDialog, CancelsWhenTheObjectDiesMeanwhile)
{
    auto dialog = std::make_unique<KtQtFileDialog>(true);
    const User<QFileDialog> user([&dialog](QFileDialog&) { dialog.reset(); });
    EXPECT_EQ(dialog->DoModal(), IDCANCEL);
}

} // namespace
