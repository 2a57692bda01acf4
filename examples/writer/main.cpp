// A small writing program on the base library of Morvane, which shows how the library is used.

#include "updates.h"
#include "writerwindow.h"

#include <core/mtranslator.h>
#include <options/mrvoptions.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string_view>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // These are answered without a display, too.
    constexpr std::string_view questions[] = {"-h", "--help", "--help-all", "-v", "--version"};
    char **const files = std::find(argv, argv + argc, std::string_view("--"));
    const bool isQuestion =
        std::find_first_of(argv, files, std::begin(questions), std::end(questions)) != files;
    const std::unique_ptr<QCoreApplication> application(
        isQuestion ? new QCoreApplication(argc, argv) : new QApplication(argc, argv));
    QApplication::setOrganizationName(MRVOptions::companyName());
    QApplication::setApplicationName(QStringLiteral("mrv-writer"));
    QApplication::setApplicationDisplayName(QStringLiteral("Morvane Writer"));
    QApplication::setApplicationVersion(QStringLiteral(MRV_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("mrv-writer"));
    if (!isQuestion) {
        // Wayland finds the icon by the desktop file, X11 is told.
        QApplication::setWindowIcon(QIcon::fromTheme(
            QStringLiteral("mrv-writer"), QIcon(QStringLiteral(":/Writer/mrv-writer.svg"))));
    }

    // Before anything else of the library: some texts stay in the language of their first use.
    const QString language = mrvOptions()->value(MRVOptions::GuiLanguage);
    MTranslator::install(language);
    QLocale::setDefault(QLocale(language));
    QTranslator translator;
    if (translator.load(QLocale(language), QStringLiteral("mrvwriter"), QStringLiteral("_"),
                        QStringLiteral(":/Writer/Translations"))) {
        QApplication::installTranslator(&translator);
    }

    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "A small writing program."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QApplication::translate("main", "The manuscripts to open."),
                                 QStringLiteral("[FILE...]"));
    parser.process(*application);
    // Settings, presets and copies lie where those of the application do.
    QApplication::setApplicationName(MRVOptions::applicationName());

    auto *window = new WriterWindow; // deletes itself when it is closed
    window->show();
    for (const QString &file : parser.positionalArguments()) {
        window->openFile(file);
    }
    // Once the window is on the screen.
    QTimer::singleShot(0, window, &WriterWindow::offerRecovery);
    Updates::checkAtStart();
    return QApplication::exec();
}
