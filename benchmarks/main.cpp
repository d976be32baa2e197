// SPDX-License-Identifier: MIT
//
// The benchmark program: every row of the table, the library's work beside its references. It runs
// with a private home, without a screen, in a UTF-8 locale, whatever the caller's environment is.
#include "support/Fixture.h"
#include "support/Rows.h"

#include <KtQtBase/VolumeDescriptor.h>

#include <QtWidgets/QApplication>

namespace {

void usePrivateEnvironment()
{
    const QByteArray home = QByteArray::fromStdString(bench::folder());
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home);
    qputenv("XDG_RUNTIME_DIR", home);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

// What a host on two drives registers; the library deletes them.
void registerVolumes()
{
    volumeList.append(new CRbUiNTFSVolumeDescriptor(L"D:"));
    volumeList.append(new CRbUiNTFSVolumeDescriptor(L"C:"));
}

} // namespace

int main(int argc, char** argv)
{
    usePrivateEnvironment();
    const QApplication application(argc, argv);
    registerVolumes();
    bench::addStringRows();
    bench::addPathRows();
    bench::addPathQueryRows();
    bench::addVolumeRows();
    bench::addModuleRows();
    bench::addFileRows();
    bench::addProfileRows();
    bench::addRegistryRows();
    bench::addDrawingRows();
    bench::addMessageRows();
    bench::addTraceRows();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
