// Runs the tests of the windows; a warning from Qt that nobody expects fails the test it comes in.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/PluginLimits.h"

namespace {

void FailOnWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    // A desktop's own folders are missing on a bare machine; that is none of the program's doing.
    if (type == QtDebugMsg || type == QtInfoMsg ||
        message.startsWith(QLatin1String("QStandardPaths: "))) {
        return;
    }
    ADD_FAILURE() << "Qt says: " << qPrintable(message);
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(FailOnWarning);
    tessarin::PassOverPluginLimits();
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toUtf8());
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
