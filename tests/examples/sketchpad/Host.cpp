// SPDX-License-Identifier: MIT
#include "Host.h"

#include "support/ChildProcess.h"

namespace fs = std::filesystem;

namespace {

QString toQt(const fs::path& path)
{
    return QString::fromStdString(path.string());
}

SessionResult run(ChildProcess& process)
{
    SessionResult result;
    if (process.start() && process->waitForFinished(ChildProcess::kPatience) &&
        process->exitStatus() == QProcess::NormalExit)
        result.status = process->exitCode();
    process.end();
    result.out = process->readAllStandardOutput().toStdString();
    result.err = process->readAllStandardError().toStdString();
    return result;
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
    environment.insert("XDG_DATA_HOME", toQt(m_folder / "data"));
    environment.insert("QT_LOGGING_RULES", "*.warning=false");
}

fs::path Host::settings() const
{
    return m_folder / "config" / "tarnex" / "Marrowfield.conf";
}

fs::path Host::data() const
{
    return m_folder / "data" / "sketchpad";
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
    return run(process);
}

SessionResult Host::playWithLimit(int kibibytes, const std::string& script)
{
    writeFile("script", script);
    ChildProcess process;
    prepare(*process, {"--script", "script"});
    const QString limit = QString(R"(trap '' XFSZ; ulimit -f %1; exec "$0" "$@")").arg(kibibytes);
    process->setArguments(QStringList{"-c", limit, process->program()} + process->arguments());
    process->setProgram("bash");
    return run(process);
}

void Host::replaceFile(const fs::path& file, const std::string& content) const
{
    fs::remove(file);
    ktqtbase::test::writeFile(file, content);
}
