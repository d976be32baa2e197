// SPDX-License-Identifier: MIT
//
// Keeps what Qt prints while it lives.
//
//     const Warnings warnings;
//     painter.endDraw();
//     EXPECT_EQ(warnings.texts(), std::vector<std::string>());
#ifndef KTQTBASE_TESTS_DRAWING_WARNINGS_H
#define KTQTBASE_TESTS_DRAWING_WARNINGS_H

#include <QtCore/QString>

#include <string>
#include <vector>

namespace drawing {

class Warnings
{
public:
    Warnings() : m_former(qInstallMessageHandler(keep)) { s_texts.clear(); }
    ~Warnings() { qInstallMessageHandler(m_former); }
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    std::vector<std::string> texts() const { return s_texts; }

private:
    // The display server may still report windows of earlier tests, at a moment of its own.
    static void keep(QtMsgType, const QMessageLogContext& context, const QString& text)
    {
        if (!QByteArray(context.category).startsWith("qt.qpa."))
            s_texts.push_back(text.toStdString());
    }

    inline static std::vector<std::string> s_texts;
    QtMessageHandler m_former;
};

} // namespace drawing

#endif
