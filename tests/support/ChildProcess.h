// SPDX-License-Identifier: MIT
//
// A program that a test starts.
//
// Where Qt 5 cannot start a process it takes it for process -1, and QProcess::kill and ~QProcess
// then signal every process of the user. So no test uses QProcess but by this class.
#ifndef KTQTBASE_TESTS_SUPPORT_CHILDPROCESS_H
#define KTQTBASE_TESTS_SUPPORT_CHILDPROCESS_H

#include <QtCore/QProcess>

#include <vector>

class ChildProcess
{
public:
    // How long to wait for what comes at once, in milliseconds: a sanitizer, an emulator and other
    // work on the machine slow a program down many times. CTest ends a test that hangs.
    static constexpr int kPatience = 240000;

    ChildProcess() : m_process(new QProcess) {}
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Kills the program if it still runs.
    ~ChildProcess()
    {
        end();
        if (m_process->state() == QProcess::NotRunning)
            delete m_process;
        else
            neverStarted().push_back(m_process);
    }

    QProcess* operator->() const { return m_process; }
    QProcess& operator*() const { return *m_process; }

    // Starts a program, or the one that was set up before. Result: whether there is a process for it.
    bool start(const QString& program, const QStringList& arguments)
    {
        m_process->setProgram(program);
        m_process->setArguments(arguments);
        return start();
    }

    bool start()
    {
        m_process->start();
        return isThere();
    }

    // Kills the program if it still runs.
    void end()
    {
        if (!isThere())
            return;
        m_process->kill();
        m_process->waitForFinished(kPatience);
    }

private:
    bool isThere() const { return m_process->processId() > 0; }

    // They are never deleted, and kept where a search for leaks finds them.
    static std::vector<QProcess*>& neverStarted()
    {
        static auto& processes = *new std::vector<QProcess*>;
        return processes;
    }

    QProcess* m_process;
};

#endif
