#include "datarows.h"

#include "engines/mrvimportexportconfig.h"
#include "fileformats/mrvenginetables.h"
#include "options/mrvoptions.h"

#include <QTemporaryDir>

using namespace MRVEngineTables;
using F = MRVFormat;
using E = MRVImportExport;

namespace {

// "DOC=RtfBasedDoc PDF=QtEngine"
QByteArray stored(const QString &entries)
{
    const QStringList list = entries.split(' ', Qt::SkipEmptyParts);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << list.size();
    for (const QString &entry : list) {
        stream << entry.section('=', 0, 0) << entry.section('=', 1);
    }
    return bytes;
}

QString written(const FormatEngines &engines)
{
    QStringList entries;
    for (auto it = engines.cbegin(); it != engines.cend(); ++it) {
        entries << F::name(it.key()) + '=' + E::toString(it.value());
    }
    entries.sort();
    return entries.join(' ');
}

QString names(const QList<E::Engine> &engines)
{
    QStringList list;
    for (E::Engine engine : engines) {
        list << E::toString(engine);
    }
    return list.join(' ');
}

} // namespace

/** Formats, engines, and the choice of an engine for a format. */
class tst_ImportExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The converter is there when the formats are first asked for, and then gone. First, before
    // anything else asks for them.
    void kindleConverter()
    {
        QTemporaryDir folder;
        QFile converter(folder.filePath("kindlegen"));
        QVERIFY(mrvOptions()->setValue(MRVOptions::KindlePath, converter.fileName()));
        QCOMPARE(MRVImportExportConfig::kindleGenFilePath(), converter.fileName());
        QVERIFY(!MRVImportExportConfig::kindleGenExists());
        QVERIFY(converter.open(QIODevice::WriteOnly));
        QVERIFY(MRVImportExportConfig::kindleGenExists());
        QVERIFY(MRVImportExportConfig::exportFormats().contains(F::MOBI));
        QVERIFY(converter.remove());
        const MRVOptions other(folder.filePath("other.ini"));
        const QByteArray byDefault =
            MRVImportExportConfig::toByteArray(MRVImportExportConfig::defaultExportEngines());
        QCOMPARE(mrvOptions()->value(MRVOptions::ExportFormatConverters), byDefault);
        QCOMPARE(other.value(MRVOptions::ExportFormatConverters), byDefault);
        QCOMPARE(MRVImportExportConfig::exportFormats().size(), 18);
        QCOMPARE(MRVImportExportConfig::defaultExportEngines().size(), 18);
        QCOMPARE(MRVImportExportConfig::importFormats().size(), 10);
        QCOMPARE(MRVImportExportConfig::instance()->exportEngine(F::DOC), E::RtfBasedDoc);
        QCOMPARE(names(MRVImportExportConfig::supportedImportEngines(F::DOCX, F::ODT)), "QtEngine");
        QCOMPARE(names(MRVImportExportConfig::supportedExportEngines(F::DOCX, F::ODT)), "QtEngine");
        mrvOptions()->remove(mrvOptions()->keyText(MRVOptions::KindlePath));
    }

    void formatTable()
    {
        QCOMPARE(F::formatsCount(), 43);
        QStringList stored;
        QHash<int, QString> firstSuffixes;
        for (int i = 0; i < F::formatsCount(); ++i) {
            const MRVFormatInfo info = F::formatInfo(i);
            const int format = info.format;
            stored << QString("%1 %2 %3").arg(format).arg(info.name, info.extension);
            QCOMPARE(int(F::formatAt(i)), format);
            QCOMPARE(F::formatExtension(i), info.extension);
            QCOMPARE(F::name(info.format), info.name);
            const bool isMmd = format >= 32 && format <= 36;
            QCOMPARE(F::isMmdVariant(info.format), isMmd);
            QCOMPARE(F::isPlainTextVariant(info.format), isMmd || format == 3);
            QCOMPARE(F::isRtfOrDoc(info.format), format == 4 || format == 10 || format == 11);
            QCOMPARE(F::isEBook(info.format), format == 7 || format == 8);
            if (!firstSuffixes.contains(format)) {
                firstSuffixes.insert(format, info.extension);
            }
            QCOMPARE(F::extension(info.format), firstSuffixes.value(format));
        }
        // Engine maps that were stored hold the names: one may be added, none may change.
        QVERIFY2(
            QCryptographicHash::hash(stored.join('\n').toUtf8(), QCryptographicHash::Md5).toHex()
                == "6572f7b9479cb8fca547d9c98163ce2f",
            qPrintable(stored.join('\n')));
        for (const QStringList &row : rowsOf("formats.tsv")) {
            const MRVFormatInfo info = F::formatInfo(row.at(0).toInt());
            QCOMPARE(QString::number(info.format), row.at(1));
            QCOMPARE(info.name, row.at(2));
            QCOMPARE(info.extension, row.value(3));
            QCOMPARE(info.description, row.value(4));
        }
        QCOMPARE(firstSuffixes.size(), 39);
        for (int none : {-1, 0, 22, 41}) {
            QVERIFY(F::name(F::Format(none)).isEmpty());
            QVERIFY(F::extension(F::Format(none)).isEmpty());
        }
    }

    void formatLookups_data() { addRows("format-lookups.tsv"); }
    void formatLookups() { QTEST(F::name(F::format(cell("suffix"))), "name"); }

    void engineTable()
    {
        QMap<E::Engine, QString> stored;
        QMap<E::Engine, QString> shown;
        for (const QStringList &row : rowsOf("engines.tsv")) {
            const E::Engine engine = E::Engine(row.at(0).toInt());
            stored.insert(engine, row.at(1));
            if (row.size() > 2) {
                shown.insert(engine, row.at(2));
            }
            QCOMPARE(E::toString(engine), row.at(1));
            QCOMPARE(E::toEngine(row.at(1)), engine);
            QCOMPARE(E::isDoc2AnyEngine(engine), engine >= 1 && engine <= 4);
        }
        QCOMPARE(E::engineTypes(), stored);
        QCOMPARE(stored.size(), 8);
        QCOMPARE(E::engineTypesDescr(), shown);
        QCOMPARE(E::engineTypesDescrSorted(),
                 (QStringList{"Doc2Any", "Doc2Any", "Morvane", "Morvane", "RTF-Based"}));
        QCOMPARE(E::toEngine("qtengine"), E::UnknownEngine);
        QVERIFY(E::toString(E::Engine(8)).isEmpty());
        QVERIFY(E::toString(E::Engine(-1)).isEmpty());
        QVERIFY(!E::hasMsWord());
        QVERIFY(!E::hasOpenOffice());
        QVERIFY(!E::hasLibreOffice());
        QVERIFY(!E::hasIE());
        QVERIFY(!msWordVersion());
    }

    void urlImportTypes()
    {
        QMap<E::UrlImportType, QString> shown;
        for (const QStringList &row : rowsOf("urlimporttypes.tsv")) {
            const E::UrlImportType type = E::UrlImportType(row.at(0).toInt());
            QCOMPARE(E::toByteArray(type), row.at(1).toUtf8());
            QCOMPARE(E::toUrlImportType(row.at(1).toUtf8()), type);
            QCOMPARE(E::isImportToPdfType(type), type >= 1 && type <= 3);
            if (row.size() > 2 && type != E::ImportAsPdfWithDoc2AnyOffice) {
                shown.insert(type, row.at(2));
            }
        }
        QCOMPARE(shown.size(), 4);
        QCOMPARE(E::urlImportTypesDescr(), shown);
        QStringList sorted = shown.values();
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(E::urlImportTypesDescrSorted(), sorted);
        QCOMPARE(E::toUrlImportType("ImportAsPdf"), E::ImportAsPdfWithDoc2AnyWebKit);
        for (const QByteArray &unknown : {QByteArray(), QByteArray("importashtml"),
                                          QByteArray("ImportAsPdf", 12), QByteArray("ImportAs")}) {
            QCOMPARE(E::toUrlImportType(unknown), E::ImportUndefined);
        }
        QVERIFY(E::toByteArray(E::UrlImportType(9)).isEmpty());
        QVERIFY(E::toByteArray(E::UrlImportType(-1)).isEmpty());
    }

    void allowedUrlImportTypes()
    {
        const QVector<QVector<int>> allowed{{}, {0, 1, 2, 3, 4, 5, 6, 7, 8}, {5}, {4, 5, 8}, {}};
        const QVector<int> preset{1, 1, 5, 5, 1};
        for (int allow = 0; allow < allowed.size(); ++allow) {
            QCOMPARE(int(E::defaultUrlImportType(E::AllowImport(allow))), preset.at(allow));
            for (int type = 0; type <= 8; ++type) {
                QCOMPARE(E::isAllowedUrlImportType(E::AllowImport(allow), E::UrlImportType(type)),
                         allowed.at(allow).contains(type));
            }
        }
    }

    void supported_data() { addRows("engine-support.tsv"); }
    void supported()
    {
        QFETCH(QString, direction);
        QFETCH(QString, format);
        QVector<F::Format> formats;
        for (int i = 0; i < F::formatsCount(); ++i) {
            formats << F::formatAt(i);
        }
        for (const QStringList &row : rowsOf("engine-support.tsv")) {
            if (row.at(0) == direction) {
                formats.removeAll(F::format(row.at(1)));
            }
        }
        if (format != "other") {
            formats = {F::format(format)};
        }
        for (F::Format one : qAsConst(formats)) {
            const Direction way = direction == "import" ? Import : Export;
            QTEST(names(supportedEngines(way, one, {false})), "without");
            QTEST(names(supportedEngines(way, one, {true})), "with");
        }
    }

    void defaults()
    {
        const QString imported(
            "DOC=%1 DOCX=%2 DOT=Doc2AnyInternalEngine FDX=QtEngine HTML=QtEngine "
            "MMD=QtEngine ODT=%1 OTT=%1 RTF=QtEngine TXT=QtEngine");
        QCOMPARE(written(defaultEngines(Import, {false})),
                 imported.arg("Doc2AnyInternalEngine", "SubSystemsEngine"));
        QCOMPARE(written(defaultEngines(Import, {true})),
                 imported.arg("Doc2AnyPreferMsOffice", "Doc2AnyPreferMsOffice"));
        QCOMPARE(
            written(defaultEngines(Export, {false})),
            QString("DOC=RtfBasedDoc DOCX=SubSystemsEngine EPUB=QtEngine FDX=QtEngine "
                    "HTML=QtEngine MMD=QtEngine MMDtoHTML=QtEngine MMDtoODF=QtEngine "
                    "MMDtoOPML=QtEngine MMDtoTEX=QtEngine ODT=QtEngine PDF=QtEngine PNG=QtEngine "
                    "PS=QtEngine RTF=QtEngine TXT=QtEngine XHTML=QtEngine"));
        QCOMPARE(MRVImportExportConfig::defaultImportAsRtfFormats(),
                 (QList<F::Format>{F::TXT, F::RTF, F::DOC, F::DOCX, F::DOT, F::FDX, F::MMD, F::HTML,
                                   F::ODT, F::OTT}));
    }

    void storedForm()
    {
        const QByteArray bytes = QByteArray::fromHex(
            "00000003 00000008 0044004f00430058"
            " 00000020 00530075006200530079007300740065006d00730045006e00670069006e0065"
            " 00000012 004d004d00440074006f00480054004d004c 00000010 "
            "005100740045006e00670069006e0065"
            " 00000006 004f00440054 00000010 005100740045006e00670069006e0065");
        const FormatEngines engines{
            {F::ODT, E::QtEngine}, {F::DOCX, E::SubSystemsEngine}, {F::MMDtoHTML, E::QtEngine}};
        QCOMPARE(toByteArray(engines).toHex(), bytes.toHex());
        QCOMPARE(toFormatEngines(bytes),
                 (FormatEngines{{F::ODT, E::QtEngine}, {F::DOCX, E::SubSystemsEngine}}));
        QCOMPARE(toByteArray({}), QByteArray(4, 0));
        QVERIFY(toFormatEngines({}).isEmpty());
    }

    void readsStored_data() { addRows("engine-maps.tsv"); }
    void readsStored() { QTEST(written(toFormatEngines(::stored(cell("stored")))), "read"); }

    void cutStored()
    {
        const QByteArray sound = stored("DOC=RtfBasedDoc MMD=QtEngine ODT=Doc2AnyInternalEngine");
        QCOMPARE(toFormatEngines(sound + "more").size(), 3);
        QVERIFY(toFormatEngines(sound.left(sound.size() - 1)).isEmpty());
    }

    void choices_data() { addRows("engine-choices.tsv"); }
    void choices()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, stored);
        QTemporaryDir folder;
        MRVOptions options(folder.filePath("s.ini"));
        for (auto setting :
             {MRVOptions::ImportFormatConverters, MRVOptions::ExportFormatConverters}) {
            if (!stored.isEmpty()) {
                options.setValue(setting, ::stored(stored));
            }
        }
        const MRVImportExportConfig config(&options);
        const MRVEngineChoice choice = config.explain(F::format(from), F::format(to));
        QTEST(E::toString(choice.engine), "engine");
        QTEST(QString(MRVEngineChoice::toString(choice.reason)), "reason");
        QTEST(QString(choice.isOffered() ? "yes" : "no"), "offered");
        QCOMPARE(choice.reasonText().contains("Prefer"),
                 choice.reason == MRVEngineChoice::Repaired);
        QCOMPARE(config.findEngine(F::format(from), F::format(to)), choice.engine);
        if (!stored.isEmpty()) {
            QCOMPARE(options.value(MRVOptions::ExportFormatConverters), ::stored(stored));
        }
    }

    // What is set holds as it is until the next start.
    void setsAndStores()
    {
        QTemporaryDir folder;
        MRVOptions options(folder.filePath("s.ini"));
        QCOMPARE(options.value(MRVOptions::ImportFormatConverters),
                 toByteArray(defaultEngines(Import, {})));
        QCOMPARE(options.value(MRVOptions::ExportFormatConverters),
                 toByteArray(MRVImportExportConfig::defaultExportEngines()));
        MRVImportExportConfig config(&options);
        QVERIFY(config.setExportFormatEngines(
            {{F::PDF, E::Doc2AnyPreferMsOffice}, {F::DOCX, E::RtfBasedDoc}}));
        QVERIFY(config.setImportFormatEngines({{F::DOC, E::SubSystemsEngine}}));
        QCOMPARE(config.exportEngine(F::PDF), E::Doc2AnyPreferMsOffice);
        QCOMPARE(config.exportEngine(F::DOC), E::QtEngine);
        QCOMPARE(options.value("Import/exportFormatConverters"),
                 QVariant(stored("DOCX=RtfBasedDoc PDF=Doc2AnyPreferMsOffice")));
        QCOMPARE(options.value("Import/importFormatConverters"),
                 QVariant(stored("DOC=SubSystemsEngine")));

        MRVImportExportConfig next(&options);
        QCOMPARE(next.exportEngine(F::PDF), E::QtEngine);
        QCOMPARE(next.importEngine(F::DOC), E::SubSystemsEngine);
        QVERIFY(next.setEngine(F::RTF, F::DOCX, E::SubSystemsEngine));
        QCOMPARE(next.exportEngine(F::PDF), E::QtEngine);
        QCOMPARE(options.value("Import/exportFormatConverters"),
                 QVariant(stored("DOCX=SubSystemsEngine PDF=Doc2AnyPreferMsOffice")));
        QVERIFY(!next.setEngine(F::RTF, F::DOCX, E::RtfBasedDoc));
        QVERIFY(!next.setEngine(F::DOC, F::PDF, E::QtEngine));
        QVERIFY(!next.setEngine(F::XML, F::RTF, E::QtEngine));
        QCOMPARE(next.exportEngine(F::DOCX), E::SubSystemsEngine);
        next.resetEngines();
        QVERIFY(!options.contains("Import/exportFormatConverters"));
        QCOMPARE(next.exportEngine(F::DOC), E::RtfBasedDoc);
        QCOMPARE(next.importEngine(F::DOC), E::Doc2AnyInternalEngine);
    }
};

QTEST_GUILESS_MAIN(tst_ImportExport)
#include "tst_importexport.moc"
