#include "platform/qt/PluginLimits.h"

#include <QString>
#include <QtGlobal>

namespace tessarin {
namespace {

QtMessageHandler handlerBefore = nullptr;

void DropPluginLimits(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
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
