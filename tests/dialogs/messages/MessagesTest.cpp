// SPDX-License-Identifier: MIT
#include "support/DestructorSlots.h"
#include "support/RowName.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/MessageNumbers.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

#include <cstddef>
#include <limits>
#include <memory>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace {

using ktqtbase::test::RowName;

const int typeAtLoad = QKtMsgEvent::iKtMsgEventType;

// Before any test: a number that the library asked Qt for would be free only the first time.
const int firstTypes[] = {QEvent::registerEventType(), QKtMsgEvent::eventType(),
                          QEvent::registerEventType()};

using Values = std::tuple<UINT, WPARAM, LPARAM>;

// A window that notes the messages it gets, as a host's window knows them.
class Receiver : public QWidget
{
public:
    Receiver() { winId(); }

    HWND handle() const { return reinterpret_cast<HWND>(internalWinId()); }

    std::vector<Values> messages;
    int spontaneous = 0;
    int type = -1;

protected:
    bool event(QEvent* event) override
    {
        auto* const message = dynamic_cast<QKtMsgEvent*>(event);
        if (!message)
            return QWidget::event(event);
        messages.emplace_back(message->message(), message->wParam(), message->lParam());
        spontaneous += event->spontaneous();
        type = event->type();
        if (message->lParam() && message->message() == WM_USER)
            *reinterpret_cast<int*>(message->lParam()) = 42;
        return true;
    }
};

// Counts what Qt prints meanwhile.
class Prints
{
public:
    Prints() : m_former(qInstallMessageHandler(count))
    {
        testing::internal::CaptureStderr();
        s_count = 0;
    }

    ~Prints()
    {
        qInstallMessageHandler(m_former);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(s_count, 0);
    }

    Prints(const Prints&) = delete;
    Prints& operator=(const Prints&) = delete;

private:
    // The display server may still report windows of earlier tests, at a moment of its own.
    static void count(QtMsgType, const QMessageLogContext& context, const QString&)
    {
        if (!QByteArray(context.category).startsWith("qt.qpa."))
            ++s_count;
    }

    static int s_count;
    QtMessageHandler m_former;
};

int Prints::s_count = 0;

// Sees a widget's messages before the widget does, and may keep them from it.
class Filter : public QObject
{
public:
    explicit Filter(bool eats) : m_eats(eats) {}

    int seen = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        const bool isMessage = dynamic_cast<QKtMsgEvent*>(event);
        seen += isMessage;
        return isMessage && m_eats;
    }

private:
    bool m_eats;
};

// Notes the types of the user events it gets.
class TypeReceiver : public QWidget
{
public:
    std::vector<int> types;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() < QEvent::User)
            return QWidget::event(event);
        types.push_back(event->type());
        return true;
    }
};

// Where a field lies in an object.
template<class Object, class Field>
std::ptrdiff_t distance(const Object& object, const Field& field)
{
    return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&object);
}

HWND staleHandle()
{
    return Receiver().handle();
}

TEST(QKtMsgEvent, HasNoTypeBeforeTheFirstUse)
{
    EXPECT_EQ(typeAtLoad, -1);
}

TEST(QKtMsgEvent, KeepsTheThreeValues)
{
    const QKtMsgEvent event(0xFFFFFFFF, std::numeric_limits<WPARAM>::max(),
                            std::numeric_limits<LPARAM>::min());
    EXPECT_EQ(event.message(), 0xFFFFFFFF);
    EXPECT_EQ(event.wParam(), std::numeric_limits<WPARAM>::max());
    EXPECT_EQ(event.lParam(), std::numeric_limits<LPARAM>::min());
}

TEST(QKtMsgEvent, CarriesOneRegisteredUserType)
{
    const QKtMsgEvent first(1, 0, 0);
    const QKtMsgEvent second(2, 0, 0);
    EXPECT_EQ(first.type(), second.type());
    EXPECT_EQ(first.type(), QKtMsgEvent::eventType());
    EXPECT_GE(first.type(), QEvent::User);
    EXPECT_LE(first.type(), QEvent::MaxUser);
    EXPECT_NE(QEvent::registerEventType(first.type()), first.type());
}

TEST(QKtMsgEvent, IsKnownByDynamicCast)
{
    const std::unique_ptr<QEvent> message = std::make_unique<QKtMsgEvent>(7, 8, 9);
    EXPECT_NE(dynamic_cast<QKtMsgEvent*>(message.get()), nullptr);
    const auto type = static_cast<QEvent::Type>(QKtMsgEvent::eventType());
    const std::unique_ptr<QEvent> other = std::make_unique<QEvent>(type);
    EXPECT_EQ(dynamic_cast<QKtMsgEvent*>(other.get()), nullptr);
}

// The fields in the order that hosts are compiled against, as the compiler lays them out.
struct MessageTwin : QEvent
{
    MessageTwin() : QEvent(QEvent::None) {}

    unsigned int message = 1;
    unsigned long long wParam = 2;
    long long lParam = 3;
};

TEST(QKtMsgEvent, HasItsFieldsInTheirOrder)
{
    const QKtMsgEvent event(1, 2, 3);
    const MessageTwin twin;
    EXPECT_EQ(distance(event, event.m_nMessage), distance(twin, twin.message));
    EXPECT_EQ(distance(event, event.m_wParam), distance(twin, twin.wParam));
    EXPECT_EQ(distance(event, event.m_lParam), distance(twin, twin.lParam));
    EXPECT_EQ(sizeof event, sizeof twin);
}

TEST(QKtMsgEvent, HasTheTwoFormsOfItsDestructorInTheFirstSlots)
{
    ktqtbase::test::expectDestructorInTheFirstSlots<QKtMsgEvent>(1u, WPARAM(2), LPARAM(3));
}

TEST(QKtMsgEvent, HasTheNextTypeThatQtChooses)
{
    EXPECT_EQ(firstTypes[1], firstTypes[0] - 1);
    EXPECT_EQ(firstTypes[2], firstTypes[1] - 1);
}

TEST(QKtMsgEvent, RegistersATypeInPlaceOfAnyNegativeNumber)
{
    const int former = QKtMsgEvent::iKtMsgEventType;
    for (const int unset : {-2, -1000, std::numeric_limits<int>::min()}) {
        QKtMsgEvent::iKtMsgEventType = unset;
        EXPECT_GE(QKtMsgEvent::eventType(), QEvent::User) << unset;
    }
    QKtMsgEvent::iKtMsgEventType = former;
}

TEST(QKtMsgEvent, TakesAnyOtherNumberForARegisteredType)
{
    const int former = QKtMsgEvent::iKtMsgEventType;
    for (const int set : {0, 1, 999, 1000}) {
        QKtMsgEvent::iKtMsgEventType = set;
        EXPECT_EQ(QKtMsgEvent::eventType(), set);
        EXPECT_EQ(QKtMsgEvent(1, 2, 3).type(), set);
    }
    QKtMsgEvent::iKtMsgEventType = former;
}

TEST(SendMessage, IsDeliveredBeforeItReturns)
{
    Receiver receiver;
    EXPECT_EQ(SendMessage(receiver.handle(), WM_USER + 1, 2, -3), 0);
    EXPECT_EQ(receiver.messages, (std::vector<Values>{{WM_USER + 1, 2, -3}}));
    EXPECT_EQ(receiver.type, QKtMsgEvent::eventType());
    EXPECT_EQ(receiver.spontaneous, 0);
}

TEST(SendMessage, ReachesAChildByItsOwnHandle)
{
    QWidget window;
    auto* const child = new Receiver;
    child->setParent(&window);
    child->winId();
    EXPECT_EQ(QKtMessageCenter::sendMessage(child->handle(), WM_APP, 1, 0), 0);
    EXPECT_EQ(child->messages, (std::vector<Values>{{WM_APP, 1, 0}}));
}

TEST(SendMessage, BringsTheAnswerBackThroughMemory)
{
    Receiver receiver;
    int answer = -1;
    EXPECT_EQ(SendMessage(receiver.handle(), WM_USER, 0, reinterpret_cast<LPARAM>(&answer)), 0);
    EXPECT_EQ(answer, 42);
}

TEST(SendMessage, ReachesADisabledWidget)
{
    Receiver receiver;
    receiver.setEnabled(false);
    EXPECT_EQ(SendMessage(receiver.handle(), WM_USER + 1, 2, 3), 0);
    EXPECT_EQ(receiver.messages, (std::vector<Values>{{WM_USER + 1, 2, 3}}));
}

TEST(SendMessage, PassesTheFiltersOfItsReceiver)
{
    for (const bool eats : {false, true}) {
        Receiver receiver;
        Filter filter(eats);
        receiver.installEventFilter(&filter);
        EXPECT_EQ(SendMessage(receiver.handle(), WM_USER + 1, 2, 3), 0);
        EXPECT_EQ(filter.seen, 1) << eats;
        EXPECT_EQ(receiver.messages.size(), eats ? 0u : 1u) << eats;
    }
}

TEST(SendMessage, IsSilentForAHandleThatNamesNoWidget)
{
    const HWND stale = staleHandle();
    const Prints nothing;
    EXPECT_EQ(SendMessage(nullptr, 1, 2, 3), 0);
    EXPECT_EQ(SendMessage(stale, 1, 2, 3), 0);
    EXPECT_EQ(SendMessage(reinterpret_cast<HWND>(-1LL), 1, 2, 3), 0);
}

TEST(PostMessage, IsDeliveredByTheEventLoopInOrder)
{
    Receiver receiver;
    EXPECT_TRUE(PostMessage(receiver.handle(), WM_USER + 1, 2, 3));
    EXPECT_TRUE(QKtMessageCenter::postMessage(receiver.handle(), WM_USER + 2, 4, 5));
    EXPECT_TRUE(receiver.messages.empty());
    QCoreApplication::sendPostedEvents(&receiver);
    EXPECT_EQ(receiver.messages, (std::vector<Values>{{WM_USER + 1, 2, 3}, {WM_USER + 2, 4, 5}}));
}

TEST(PostMessage, ReachesADisabledWidget)
{
    Receiver receiver;
    receiver.setEnabled(false);
    EXPECT_TRUE(PostMessage(receiver.handle(), WM_USER + 1, 2, 3));
    QCoreApplication::sendPostedEvents(&receiver);
    EXPECT_EQ(receiver.messages, (std::vector<Values>{{WM_USER + 1, 2, 3}}));
}

TEST(PostMessage, DeliversEveryOneOfEqualMessages)
{
    Receiver receiver;
    const Values same(WM_USER + 1, 2, 3);
    for (int count = 0; count < 3; ++count)
        EXPECT_TRUE(PostMessage(receiver.handle(), WM_USER + 1, 2, 3));
    QCoreApplication::sendPostedEvents(&receiver);
    EXPECT_EQ(receiver.messages, (std::vector<Values>{same, same, same}));
}

TEST(PostMessage, WaitsBehindEventsThatWerePostedBefore)
{
    TypeReceiver receiver;
    const HWND handle = reinterpret_cast<HWND>(receiver.winId());
    const int plain = QEvent::MaxUser;
    QCoreApplication::postEvent(&receiver, new QEvent(static_cast<QEvent::Type>(plain)));
    EXPECT_TRUE(PostMessage(handle, WM_USER + 1, 2, 3));
    QCoreApplication::postEvent(&receiver, new QEvent(static_cast<QEvent::Type>(plain)));
    QCoreApplication::sendPostedEvents(&receiver);
    EXPECT_EQ(receiver.types, (std::vector<int>{plain, QKtMsgEvent::eventType(), plain}));
}

TEST(PostMessage, IsSilentForAHandleThatNamesNoWidget)
{
    const HWND stale = staleHandle();
    const Prints nothing;
    EXPECT_TRUE(PostMessage(nullptr, 1, 2, 3));
    EXPECT_TRUE(PostMessage(stale, 1, 2, 3));
    EXPECT_TRUE(PostMessage(reinterpret_cast<HWND>(-1LL), 1, 2, 3));
    QCoreApplication::processEvents();
}

TEST(PostMessage, DiesWithItsReceiver)
{
    auto receiver = std::make_unique<Receiver>();
    const Prints nothing;
    EXPECT_TRUE(PostMessage(receiver->handle(), WM_USER + 1, 2, 3));
    receiver.reset();
    QCoreApplication::processEvents();
}

TEST(PostMessage, ArrivesOnTheGuiThreadFromAnother)
{
    Receiver receiver;
    QKtMsgEvent::eventType();
    std::thread([handle = receiver.handle()] {
        for (UINT number = 0; number < 100; ++number)
            EXPECT_TRUE(PostMessage(handle, WM_APP + number, number, 0));
    }).join();
    EXPECT_TRUE(receiver.messages.empty());
    QCoreApplication::processEvents();
    ASSERT_EQ(receiver.messages.size(), 100u);
    EXPECT_EQ(receiver.messages.back(), Values(WM_APP + 99, 99, 0));
}

struct FirstUseRow
{
    const char* name;
    void (*use)();
};

class FirstUse : public testing::TestWithParam<FirstUseRow>
{};

TEST_P(FirstUse, RegistersTheEventType)
{
    QKtMsgEvent::iKtMsgEventType = -1;
    GetParam().use();
    const int type = QKtMsgEvent::iKtMsgEventType;
    EXPECT_GE(type, QEvent::User);
    GetParam().use();
    EXPECT_EQ(QKtMsgEvent::eventType(), type);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FirstUse,
    testing::Values(FirstUseRow{"EventType", [] { QKtMsgEvent::eventType(); }},
                    FirstUseRow{"Constructor", [] { QKtMsgEvent event(1, 2, 3); }},
                    FirstUseRow{"SendToNobody", [] { SendMessage(nullptr, 1, 2, 3); }},
                    FirstUseRow{"PostToNobody", [] { PostMessage(nullptr, 1, 2, 3); }}),
    RowName());

} // namespace
