// SPDX-License-Identifier: MIT
#include "Host.h"

#include "support/ChildProcess.h"

namespace fs = std::filesystem;

namespace {

QString toQt(const fs::path& path)
{
    return QString::fromStdString(path.string());
}

} // namespace

Host::Host(const std::string& folder)
    : environment(QProcessEnvironment::systemEnvironment()), m_program(m_folder / folder),
      m_work(m_folder / "work")
{
    fs::create_directory(m_program);
    fs::create_directory(m_work);
    fs::copy(SKETCHPAD_FOLDER "/sketchpad", m_program);
    fs::copy(SKETCHPAD_FOLDER "/sketchpad.ini", m_program);
    fs::copy(fs::path(SKETCHPAD_FOLDER) / textsModule().filename(), m_program);
    fs::copy(fs::path(SKETCHPAD_FOLDER) / plugIn().filename(), m_program);
    environment.insert("HOME", toQt(m_folder.path()));
    environment.insert("XDG_CONFIG_HOME", toQt(m_folder / "config"));
}

fs::path Host::settings() const
{
    return m_folder / "config" / "tarnex" / "Marrowfield.conf";
}

fs::path Host::textsModule() const
{
    return m_program / ("libsketchtexts" MODULE_SUFFIX);
}

fs::path Host::plugIn() const
{
    return m_program / ("libstarshape" MODULE_SUFFIX);
}

void Host::prepare(QProcess& process, const QStringList& arguments) const
{
    process.setProgram(toQt(m_program / "sketchpad"));
    process.setArguments(arguments);
    process.setWorkingDirectory(toQt(m_work));
    process.setProcessEnvironment(environment);
}

SessionResult Host::play(const std::string& script)
{
    writeFile("script", script);
    ChildProcess process;
    prepare(*process, {"--script", "script"});
    SessionResult result;
    if (process.start() && process->waitForFinished(30000) &&
        process->exitStatus() == QProcess::NormalExit)
        result.status = process->exitCode();
    process.end();
    result.out = process->readAllStandardOutput().toStdString();
    result.err = process->readAllStandardError().toStdString();
    return result;
}
