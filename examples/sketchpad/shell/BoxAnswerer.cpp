// SPDX-License-Identifier: MIT
#include "BoxAnswerer.h"

#include <QtCore/QEvent>
#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>

namespace {

QMessageBox::StandardButton buttonOf(const QString& word)
{
    static const QMap<QString, QMessageBox::StandardButton> buttons = {
        {"yes", QMessageBox::Yes},      {"no", QMessageBox::No},
        {"save", QMessageBox::Yes},     {"discard", QMessageBox::No},
        {"replace", QMessageBox::Yes},  {"delete", QMessageBox::No},
        {"later", QMessageBox::Cancel}, {"cancel", QMessageBox::Cancel},
        {"ok", QMessageBox::Ok}};
    return buttons.value(word, QMessageBox::NoButton);
}

} // namespace

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
    const QString word = m_answers.isEmpty() ? QString() : m_answers.takeFirst();
    QAbstractButton* const button = box->button(buttonOf(word));
    if (answered)
        answered(box->text(), button ? word : QString());
    if (button)
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
    if (m_choices.isEmpty() && answered)
        answered(dialog->windowTitle(), QString());
    if (name && !m_choices.isEmpty()) {
        name->setText(m_choices.takeFirst());
        QMetaObject::invokeMethod(dialog, "accept");
    }
    if (alive && alive->isVisible())
        alive->reject();
}
