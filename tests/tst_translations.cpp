#include "core/mrvfilewriter.h"
#include "core/mtranslator.h"
#include "datarows.h"
#include "download/mrvdownloaduserinput.h"
#include "fileformats/mrvenginechoice.h"
#include "fileformats/mrvimportexport.h"
#include "screenplay/mrvfinaldraft.h"
#include "search/mrvtextreplacer.h"
#include "shortcuts/mrvshortcut.h"
#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "support.h"
#include "update/mrvcheckforupdatesdialog.h"
#include "util/mrvenums.h"
#include "util/mrvfixeddate.h"
#include "util/mrvunit.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

Q_DECLARE_METATYPE(std::function<QString()>)

namespace {

/// Translations that belong together.
struct Catalogue
{
    const char *name;
    QString files; ///< up to the code of the language
    QStringList folders; ///< of the sources
    int fewest; ///< texts that there are at least
};

const Catalogue Library{"library",
                        QStringLiteral(MRV_SOURCE_DIR "/base/resources/translations/mrvbase_"),
                        {"base", "platform", "plugins"},
                        600};
const Catalogue Program{"program",
                        QStringLiteral(MRV_SOURCE_DIR "/examples/writer/translations/mrvwriter_"),
                        {"examples/writer"},
                        150};

struct Message
{
    QString context;
    QString source;
    QStringList translations; // one, or one a plural form
    bool isFinished = true;
};

/// Whether a text has forms for one and for several: "%n", or "%Ln" as the locale writes numbers.
bool hasCount(const QString &text)
{
    return text.contains("%n") || text.contains("%Ln");
}

QVector<Message> messagesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    }
    QVector<Message> messages;
    QString context;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == "name") {
            context = xml.readElementText();
        } else if (xml.name() == "message") {
            messages.append({context, {}, {}});
        } else if (xml.name() == "source") {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == "numerusform") {
            messages.last().translations << xml.readElementText();
        } else if (xml.name() == "translation") {
            messages.last().isFinished = !xml.attributes().hasAttribute("type");
            if (!hasCount(messages.last().source)) {
                messages.last().translations << xml.readElementText();
            }
        }
    }
    return messages;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// What a translation must have in common with its source, in one text.
QString frameOf(const QString &text)
{
    QStringList parts;
    const QRegularExpression expression(R"(%(?:\d|L?n)|&(?=\w))");
    for (auto it = expression.globalMatch(text); it.hasNext();) {
        parts << it.next().captured();
    }
    const auto blanks = [](const QString &side) { return side.size() - side.trimmed().size(); };
    return QStringLiteral("%1; %2 lines; blanks: %3, %4")
        .arg(sorted(parts).join(' '))
        .arg(text.count('\n'))
        .arg(blanks(text + '.'))
        .arg(blanks('.' + text));
}

} // namespace

/// The languages that come with the library and with the writing program. They are read as they
/// lie in the sources, and as a program finds them in its resources.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qunsetenv("MORVANE_TRANSLATIONS");
        QVERIFY(MTranslator::install("en"));
    }
    void shipped()
    {
        QCOMPARE(MTranslator::morvaneGuiLanguages(), (QStringList{"en", "de", "es", "fr"}));
    }

    void sourcesAndTranslationsAgree_data()
    {
        addCatalogues();
        addRow(Library, "en");
    }
    /// A text that was added, changed or removed shows as a difference; so does one that lupdate
    /// loses, of which it only warns.
    void sourcesAndTranslationsAgree()
    {
        QFETCH(QString, language);
        QFETCH(QString, path);
        QFETCH(QStringList, folders);
        QTemporaryDir folder;
        const QString copy = folder.filePath("copy_" + language + ".ts");
        QVERIFY(QFile::copy(path, copy));
        QVERIFY(QDir::setCurrent(MRV_SOURCE_DIR));
        QStringList arguments = QString(MRV_LUPDATE_OPTIONS).split(' ');
        if (language == "en") {
            arguments << "-pluralonly";
        }
        arguments << "-target-language" << language << folders << "-ts" << copy;
        const Ran lupdate = run(MRV_LUPDATE, arguments);
        QCOMPARE(lupdate.exitCode, 0);
        QCOMPARE(lupdate.errors, QString());
        const bool isSame = bytesOf(copy) == bytesOf(path);
        QVERIFY2(isSame, "run the target update-translations, then translate what is unfinished");
    }

    void complete_data() { addCatalogues(); }
    void complete()
    {
        QFETCH(QString, language);
        QFETCH(QString, path);
        QFETCH(int, fewest);
        const QRegularExpression foreign(language == "fr" ? " [:;!?»]|« |\"|'|^[:;!?]" : "\"|'");
        QMap<QString, QString> sources;
        const QVector<Message> messages = messagesOf(path);
        QVERIFY(messages.size() > fewest);
        for (const Message &message : messages) {
            const QByteArray where = (message.context + ": " + message.source).toUtf8();
            QVERIFY2(message.isFinished, where);
            QCOMPARE(message.translations.size(), hasCount(message.source) ? 2 : 1);
            for (const QString &text : message.translations) {
                QCOMPARE(frameOf(text), frameOf(message.source));
                QVERIFY2(!text.trimmed().isEmpty(), where);
                QVERIFY2(!text.contains(foreign), where);
            }
            // Two commands, colours or formats must not look the same.
            QString &twin = sources[message.context + '\n' + message.translations.constFirst()];
            QVERIFY2(twin.isEmpty(), where);
            twin = message.source;
        }
    }

    void eachTextComesOut_data() { addCatalogues(); }
    void eachTextComesOut()
    {
        QFETCH(QString, language);
        QFETCH(QString, path);
        QVERIFY(MTranslator::install(language));
        QTranslator program;
        QVERIFY(program.load(":/Writer/Translations/mrvwriter_" + language));
        QVERIFY(QCoreApplication::installTranslator(&program));
        for (const Message &message : messagesOf(path)) {
            QString expected = message.translations.constLast();
            const int count = hasCount(expected) ? 5 : -1;
            QCOMPARE(QCoreApplication::translate(message.context.toUtf8(), message.source.toUtf8(),
                                                 nullptr, count),
                     expected.replace("%n", "5").replace("%Ln", "5"));
        }
    }

    void keysWork_data() { addLanguages({"de", "es", "fr"}); }
    /// A language may have keys of its own. They are read by their English names, since Qt's own
    /// translation need not be there, and must not get in each other's way.
    void keysWork()
    {
        MRVShortcutScheme scheme = MRVShortcutScheme::morvane();
        QVERIFY(MTranslator::install(cell("language")));
        for (const MRVShortcutInfo &info : scheme.shortcuts()) {
            const QString english = info.sequence.toString().remove(' ');
            const QString own = english.isEmpty() ? english : MRVShortcut::tr(qPrintable(english));
            const QKeySequence keys(own, QKeySequence::PortableText);
            QCOMPARE(keys.toString().remove(' '), own);
            QVERIFY(scheme.setShortcut(info.id, keys));
        }
        QVERIFY(MRVShortcutCheck::conflicts(scheme).isEmpty());
    }

    /// Texts as the user gets them, of tables and of contexts that are named in the code.
    void texts_data()
    {
        QTest::addColumn<std::function<QString()>>("made");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &expected,
                            std::function<QString()> made) {
            QTest::newRow(name) << made << expected;
        };
        row("OPML", "Nur Titel",
            [] { return MRV::opmlImportTypesDescr().value(MRV::OpmlTitlesOnly); });
        row("web pages", "Reiner Text", [] {
            return MRVImportExport::urlImportTypesDescr().value(MRVImportExport::ImportAsPlainText);
        });
        row("unit", " Zoll", [] { return MRVUnit::suffix(MRVUnit::Inch); });
        row("engine", "das ist die Vorgabe, da nichts gespeichert ist", [] {
            MRVEngineChoice choice;
            choice.reason = MRVEngineChoice::Default;
            return choice.reasonText();
        });
        row("command", "Datei", [] { return MRVShortcut::group(MRVShortcut::NewProject); });
        row("expression", "(bei Zeichen 2)", [] {
            QString error;
            MRVTextQuery query;
            query.text = "(";
            query.syntax = MRVTextQuery::RegularExpression;
            query.isValid(&error);
            return error.mid(error.lastIndexOf('('));
        });
        row("XML", "Zeile 1: ", [] {
            QString error;
            MRVFinalDraft::fromXml("<", nullptr, &error);
            return error.left(9);
        });
        row("form", "Nach Updates suchen",
            [] { return MRVCheckForUpdatesDialog(QString()).windowTitle(); });
        const QString address = "http://b/" + QString("c/").repeated(80);
        row("password", "HTTP-Anmeldung erforderlich, a bei " + address, [address] {
            QString shown;
            QTimer::singleShot(0, qApp, [&shown] {
                QWidget *const dialog = QApplication::activeModalWidget();
                shown = dialog->windowTitle();
                for (const QLabel *label : dialog->findChildren<QLabel *>()) {
                    if (label->objectName() == "siteDescription") {
                        shown += ", " + label->text().remove(QChar(0x200b));
                    }
                    if (label->height() < label->heightForWidth(label->width())) {
                        shown += ", cut off: " + label->text();
                    }
                }
                dialog->close();
            });
            MRVDownloadUserInput().authenticate("a", QUrl(address), nullptr, nullptr);
            return shown;
        });
    }
    void texts()
    {
        QFETCH(std::function<QString()>, made);
        QFETCH(QString, expected);
        QVERIFY(made() != expected);
        QVERIFY(MTranslator::install("de"));
        QCOMPARE(made(), expected);
    }

    /// Qt's own texts come from its own translations.
    void standardButtons()
    {
        QVERIFY(MTranslator::install("de"));
        const QDialogButtonBox box(QDialogButtonBox::Cancel);
        QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QString("Abbrechen"));
    }

    void plurals_data() { addRows("plurals.tsv"); }
    void plurals()
    {
        QVERIFY(MTranslator::install(cell("language")));
        const char *source = "it is damaged or truncated; shortcuts that could be read: %n";
        QCOMPARE(
            MRVShortcutScheme::tr(source, nullptr, cell("count").toInt()).section(';', 1).trimmed(),
            cell("text"));
    }

    void install_data() { addRows("installedlanguages.tsv"); }
    void install()
    {
        QFETCH(QString, before);
        QFETCH(QString, error);
        QTranslator foreign(qApp);
        QVERIFY(MTranslator::install(before));
        const int count = qApp->findChildren<QTranslator *>().size();
        QString got = "untouched";
        QCOMPARE(MTranslator::install(cell("code"), &got), error.isEmpty());
        QCOMPARE(got, error.isEmpty() ? "untouched" : error);
        QCOMPARE(MRVShortcut::tr("File"), cell("shown"));
        QVERIFY(MTranslator::install(before));
        QCOMPARE(qApp->findChildren<QTranslator *>().size(), count);
    }

    /// A translation can be tried out in a folder; a damaged one changes nothing.
    void ownFolder()
    {
        QTemporaryDir folder;
        qputenv("MORVANE_TRANSLATIONS", folder.path().toUtf8());
        QVERIFY(
            QFile::copy(":/Other/Translations/mrvbase_es.qm", folder.filePath("mrvbase_de.qm")));
        QVERIFY(
            QFile::copy(":/Other/Translations/mrvbase_fr.qm", folder.filePath("mrvbase_de_CH.qm")));
        QVERIFY(MTranslator::install("de"));
        QCOMPARE(MRVShortcut::tr("File"), QString("Archivo"));
        QVERIFY(MTranslator::install("de-CH"));
        QCOMPARE(MRVShortcut::tr("File"), QString("Fichier"));
        QVERIFY(MRVFileWriter::write(folder.filePath("mrvbase_it.qm"), "damaged"));
        QString error;
        QVERIFY(!MTranslator::install("it", &error));
        QVERIFY2(error.contains("mrvbase_it.qm"), qPrintable(error));
        QCOMPARE(MRVShortcut::tr("File"), QString("Fichier"));
    }

private:
    static void addRow(const Catalogue &catalogue, const QString &language)
    {
        QTest::addRow("%s-%s", catalogue.name, qPrintable(language))
            << language << catalogue.files + language + ".ts" << catalogue.folders
            << catalogue.fewest;
    }
    static void addCatalogues()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<int>("fewest");
        for (const char *language : {"de", "es", "fr"}) {
            addRow(Library, language);
            addRow(Program, language);
        }
    }
    static void addLanguages(const QStringList &languages)
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : languages) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }
};

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
