// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_BOXANSWERER_H
#define SKETCHPAD_BOXANSWERER_H

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>

class QFileDialog;
class QMessageBox;

// Answers boxes and file dialogs in place of a user.
class BoxAnswerer : public QObject
{
    Q_OBJECT

public:
    explicit BoxAnswerer(QObject* parent);

    // The answers for the next boxes, and for the next file dialogs, in order.
    //   answer    in: yes, no, save, discard, replace, delete, later, cancel or ok
    void answerNext(const QString& answer) { m_answers.append(answer); }
    void chooseNext(const QString& name) { m_choices.append(name); }

    // Whether an answer or a choice is left over.
    bool hasLeftovers() const { return !m_answers.isEmpty() || !m_choices.isEmpty(); }

    // Called with each box's text and its answer; an empty one if none was ready that it has a
    // button for.
    std::function<void(const QString& text, const QString& answer)> answered;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void answer(QMessageBox* box);
    void choose(QFileDialog* dialog);

    QStringList m_answers;
    QStringList m_choices;
    QObject* m_seen = nullptr; // the dialog that is being answered: it is shown twice
};

#endif
