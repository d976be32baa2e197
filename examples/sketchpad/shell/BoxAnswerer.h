// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_BOXANSWERER_H
#define SKETCHPAD_BOXANSWERER_H

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>

class QFileDialog;
class QMessageBox;

// Answers boxes and file dialogs in the place of a human.
class BoxAnswerer : public QObject
{
    Q_OBJECT

public:
    explicit BoxAnswerer(QObject* parent);

    // What the next box, or the next file dialog, is answered with, in turn.
    void answerNext(bool yes) { m_answers.append(yes); }
    void chooseNext(const QString& name) { m_choices.append(name); }

    // Whether an answer or a choice is left that nothing asked for.
    bool hasLeftovers() const { return !m_answers.isEmpty() || !m_choices.isEmpty(); }

    // Called with each box's text and its answer; expected is false where no answer was ready.
    std::function<void(const QString& text, bool yes, bool expected)> answered;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void answer(QMessageBox* box);
    void choose(QFileDialog* dialog);

    QList<bool> m_answers;
    QStringList m_choices;
    QObject* m_seen = nullptr; // the dialog that is being answered: it is shown twice
};

#endif
