// SPDX-License-Identifier: MIT
#include "BoxAnswerer.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>

BoxAnswerer::BoxAnswerer(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

// A box can be closed only while its event loop runs.
bool BoxAnswerer::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show || object == m_seen)
        return false;
    if (auto* box = qobject_cast<QMessageBox*>(object)) {
        QTimer::singleShot(0, box, [this, box] { answer(box); });
    } else if (auto* dialog = qobject_cast<QFileDialog*>(object)) {
        m_seen = dialog;
        QTimer::singleShot(0, dialog, [this, dialog] { choose(dialog); });
    }
    return false;
}

void BoxAnswerer::answer(QMessageBox* box)
{
    const bool expected = !m_answers.isEmpty();
    const bool yes = expected && m_answers.takeFirst();
    if (answered)
        answered(box->text(), yes, expected);
    if (QAbstractButton* button = box->button(yes ? QMessageBox::Yes : QMessageBox::No))
        button->click();
    else
        box->reject();
}

// A dialog that refuses the name would wait for a user.
void BoxAnswerer::choose(QFileDialog* dialog)
{
    m_seen = nullptr;
    const QPointer<QFileDialog> alive(dialog);
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    if (name && !m_choices.isEmpty()) {
        name->setText(m_choices.takeFirst());
        QMetaObject::invokeMethod(dialog, "accept");
    }
    if (alive && alive->isVisible())
        alive->reject();
}
