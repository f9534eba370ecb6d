#include "platform/qt/PluginLimits.h"

#include <QString>
#include <QtGlobal>

namespace tessarin {
namespace {

QtMessageHandler handlerBefore = nullptr;

void DropPluginLimits(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    // A server may have no run-time folder either; Qt then takes one of its own and says so.
    if (!message.startsWith(QLatin1String("This plugin does not support ")) &&
        !message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"))) {
        handlerBefore(type, context, message);
    }
}

}  // namespace

void PassOverPluginLimits() {
    const QtMessageHandler before = qInstallMessageHandler(DropPluginLimits);
    if (before != DropPluginLimits) {
        handlerBefore = before;
    }
}

}  // namespace tessarin
