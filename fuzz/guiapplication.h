#pragma once

// For targets that need fonts or pictures: an application without a display, and without words
// about what is damaged.

#include <QGuiApplication>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static QGuiApplication application(*argc, *argv);
    return 0;
}
