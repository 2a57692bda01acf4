// A store with settings of its own: keys, defaults, and a listener that hears which groups changed.
#include "settings/mrvsettings.h"

#include <QGuiApplication>
#include <QTextStream>

namespace {

class PrintSettings : public MRVSettings
{
public:
    using MRVSettings::MRVSettings;

    static constexpr IntSetting Copies = IntSetting(0);
    static constexpr ColorSetting PaperColor = ColorSetting(0);

    using MRVSettings::defaultValue;
    int defaultValue(IntSetting setting) const override { return setting == Copies ? 1 : 0; }

    using MRVSettings::keyText;
    QString keyText(IntSetting setting) const override
    {
        return setting == Copies ? QStringLiteral("Printer/copies") : QString();
    }
    QString keyText(ColorSetting setting) const override
    {
        return setting == PaperColor ? QStringLiteral("Paper/color") : QString();
    }
};

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    if (argc != 2) {
        out << "usage: settings FILE\n";
        return 2;
    }
    const QString file = QString::fromLocal8Bit(argv[1]);
    PrintSettings settings(file, QSettings::IniFormat);

    // Once for all changes of a pass of the event loop.
    QObject::connect(&settings, &MRVSettings::groupsChanged, &app,
                     [&out](const QStringList &groups) {
                         out << "changed: " << groups.join(u' ') << '\n';
                         QCoreApplication::quit();
                     });
    QObject::connect(&settings, &MRVSettings::saveFailed, &app,
                     [&out](const QString &error) { out << error << '\n'; });

    out << "copies: " << settings.value(PrintSettings::Copies) << '\n';
    settings.setValue(PrintSettings::Copies, 2);
    settings.setValue(PrintSettings::PaperColor, QColor(255, 250, 240));
    settings.setValue(PrintSettings::Copies, 3);
    QGuiApplication::exec();

    QString error;
    if (!settings.saveNow(&error)) {
        out << error << '\n';
        return 1;
    }
    const PrintSettings reread(file, QSettings::IniFormat);
    out << "copies: " << reread.value(PrintSettings::Copies)
        << ", paper: " << reread.value(PrintSettings::PaperColor).name() << '\n';
    return 0;
}
