// SPDX-License-Identifier: MIT
//
// Messages beside the same delivery written with Qt: find the widget, make an event with the three
// values, send or post it. Posted messages are delivered before the work ends, to all receivers,
// since Qt clears its queue up only then.
#include "support/Rows.h"

#include <KtQtBase/Messages.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

#include <memory>

namespace {

using bench::Row;

constexpr UINT kMessage = 0x0400;

const QEvent::Type kPlainType = static_cast<QEvent::Type>(QEvent::registerEventType());

class PlainEvent : public QEvent
{
public:
    PlainEvent(UINT message, WPARAM wParam, LPARAM lParam)
        : QEvent(kPlainType), m_message(message), m_wParam(wParam), m_lParam(lParam)
    {}

    UINT m_message;
    WPARAM m_wParam;
    LPARAM m_lParam;
};

// A widget that takes every message in.
class Receiver : public QWidget
{
public:
    HWND handle() const { return reinterpret_cast<HWND>(internalWinId()); }

    bool event(QEvent* event) override
    {
        if (event->type() < QEvent::User)
            return QWidget::event(event);
        ++m_received;
        return true;
    }

private:
    int m_received = 0;
};

std::shared_ptr<Receiver> makeReceiver()
{
    auto receiver = std::make_shared<Receiver>();
    receiver->winId();
    QCoreApplication::sendPostedEvents();
    return receiver;
}

void addSend()
{
    Row("SendMessage", "1")
        .library([] {
            return [receiver = makeReceiver()] { SendMessage(receiver->handle(), kMessage, 1, 2); };
        })
        .reference("find, sendEvent", [] {
            return [receiver = makeReceiver()] {
                PlainEvent event(kMessage, 1, 2);
                QWidget* const widget = QWidget::find(receiver->internalWinId());
                QCoreApplication::sendEvent(widget, &event);
            };
        });
}

void addPost(const char* size, int count)
{
    Row("PostMessage", size)
        .library([=] {
            return [count, receiver = makeReceiver()] {
                for (int i = 0; i < count; ++i)
                    PostMessage(receiver->handle(), kMessage, 1, i);
                QCoreApplication::sendPostedEvents();
            };
        })
        .reference("find, postEvent", [=] {
            return [count, receiver = makeReceiver()] {
                for (int i = 0; i < count; ++i) {
                    QWidget* const widget = QWidget::find(receiver->internalWinId());
                    QCoreApplication::postEvent(widget, new PlainEvent(kMessage, 1, i));
                }
                QCoreApplication::sendPostedEvents();
            };
        });
}

} // namespace

void bench::addMessageRows()
{
    addSend();
    addPost("100", 100);
    addPost("1,000", 1000);
    addPost("10,000", 10000);
}
