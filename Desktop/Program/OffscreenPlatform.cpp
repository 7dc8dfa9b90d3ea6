#include "Program/OffscreenPlatform.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>

namespace {

void Say(QtMsgType, const QMessageLogContext&, const QString& said)
{
    if (said.contains("propagateSizeHints") || said.contains("XDG_RUNTIME_DIR")) return;
    std::fprintf(stderr, "%s\n", qPrintable(said));
}

} // namespace

void OffscreenPlatform::Choose()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(&Say);
}
