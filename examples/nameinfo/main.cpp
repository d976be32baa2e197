// SPDX-License-Identifier: MIT
//
// Shows how the library parses file names of a Windows program.
#include "Arguments.h"
#include "Complaints.h"
#include "Help.h"
#include "NameSource.h"
#include "ReportPrinter.h"

#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

#include <clocale>
#include <system_error>

namespace {

constexpr int kUnwritable = 1;
constexpr int kBadInput = 2;

constexpr int kWideName = 30; // for names that nobody has seen yet, which may be longer

// The library converts names with LC_CTYPE; plain UTF-8 has different names on macOS and Linux.
void useUtf8()
{
    if (!std::setlocale(LC_CTYPE, "UTF-8"))
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

// What a ported application does before it parses names: it registers its drives, and sets the
// folder of relative names.
void setUpNames()
{
    // The library owns its list's descriptors and deletes them when it is unloaded.
    for (const wchar_t* drive : {L"C:", L"D:"})
        volumeList.append(new CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(drive)));
    ktuiSetCurrentDirPrefix();
}

// One run over the names that are given.
class Run
{
public:
    explicit Run(const Arguments& arguments)
        : m_arguments(arguments), m_source(arguments.names, arguments.lists)
    {}

    // Result: the exit status.
    int answer()
    {
        const std::unique_ptr<ReportPrinter> printer = makePrinter();
        startAnswers();
        Complaints complaints(m_output, m_progress);
        m_source.read([&](const std::wstring& name) { printer->print(rowFor(name)); },
                      [&](const std::string& error) { complaints.add(error); });
        printer->end();
        m_output.close();
        return complaints.isEmpty() ? 0 : kBadInput;
    }

private:
    Row rowFor(const std::wstring& name)
    {
        m_progress.next();
        return pick(describe(name, m_arguments.questions), m_arguments.columns);
    }

    // Answers on a terminal show by themselves how far they are.
    void startAnswers()
    {
        m_progress.start("answered");
        if (m_output.isTerminal())
            m_progress.stop();
    }

    std::unique_ptr<ReportPrinter> makePrinter()
    {
        switch (m_arguments.form) {
        case Form::Json:
            return jsonArray(m_output);
        case Form::Csv:
            return csvLines(m_output, m_arguments.columns);
        case Form::WideTable:
            return wideTable(m_output, m_arguments.columns, widths(kWideName));
        case Form::Table:
            break;
        }
        return makeShortTable(m_output.width());
    }

    std::unique_ptr<ReportPrinter> makeShortTable(int room)
    {
        const Columns& columns = m_arguments.columns;
        const std::optional<Widths> fitting = fitted(widths(room), columns, room);
        return fitting ? shortTable(m_output, columns, *fitting) : blocks(m_output, columns, room);
    }

    // The widths that the columns need, or such as do where the names can be had only once.
    Widths widths(int nameWidth)
    {
        if (!m_source.canBeReadTwice())
            return assumedWidths(m_arguments.columns, nameWidth);
        Widths measured = headingWidths(m_arguments.columns);
        m_progress.start("measured");
        m_source.readAhead([&](const std::wstring& name) { widen(measured, rowFor(name)); });
        return measured;
    }

    const Arguments& m_arguments;
    NameSource m_source;
    Output m_output;
    Progress m_progress;
};

int print(std::string_view text)
{
    Output output;
    output.write(text);
    output.close();
    return 0;
}

int runFor(const Arguments& arguments)
{
    if (arguments.help)
        return print(kHelp);
    if (arguments.version)
        return print("nameinfo " NAMEINFO_VERSION "\n");
    return Run(arguments).answer();
}

} // namespace

int main(int argc, char** argv)
{
    useUtf8();
    setUpNames();
    try {
        return runFor(readArguments(argc, argv));
    } catch (const ArgumentError& error) {
        complain(std::string(error.what()) + "; see nameinfo --help");
    } catch (const std::system_error& error) {
        // Whoever read the output has seen enough.
        if (error.code() != std::errc::broken_pipe)
            complain(error.what());
        return kUnwritable;
    }
    return kBadInput;
}
