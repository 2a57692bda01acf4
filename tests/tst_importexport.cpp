#include "datarows.h"

#include "importexport/mrvenginetables_p.h"

using namespace MRVEngineTables;
using F = MRVFormat;
using E = MRVImportExport;

namespace {

// The stored form, written without any stream.
QByteArray number(quint32 value)
{
    return QByteArray::fromHex(QByteArray::number(value, 16).rightJustified(8, '0'));
}

QByteArray text(const QString &string)
{
    QByteArray bytes = number(quint32(string.size()) * 2);
    for (QChar unit : string)
        (bytes += char(unit.row())) += char(unit.cell());
    return bytes;
}

// "DOC=RtfBasedDoc PDF=QtEngine"
QByteArray stored(const QString &entries)
{
    const QStringList list = entries.split(' ', Qt::SkipEmptyParts);
    QByteArray bytes = number(quint32(list.size()));
    for (const QString &entry : list)
        bytes += text(entry.section('=', 0, 0)) + text(entry.section('=', 1));
    return bytes;
}

QString written(const FormatEngines &engines)
{
    QStringList entries;
    for (auto it = engines.cbegin(); it != engines.cend(); ++it)
        entries << F::name(it.key()) + '=' + E::toString(it.value());
    entries.sort();
    return entries.join(' ');
}

QString names(const QList<E::Engine> &engines)
{
    QStringList list;
    for (E::Engine engine : engines)
        list << E::toString(engine);
    return list.join(' ');
}

QString names(const QList<F::Format> &formats)
{
    QStringList list;
    for (F::Format format : formats)
        list << F::name(format);
    return list.join(' ');
}

template<typename Test>
QVector<int> numbersOf(const Test &test)
{
    QVector<int> numbers;
    for (int i = -1; i <= 42; ++i) {
        if (test(F::Format(i)))
            numbers << i;
    }
    return numbers;
}

Applications withWord(bool msWord)
{
    Applications applications;
    applications.msWord = msWord;
    return applications;
}

} // namespace

/** Formats, engines, and the choice of an engine for a format. */
class tst_ImportExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatTable();
    void formatLookups_data() { addRows("format-lookups.tsv", {"suffix", "name"}); }
    void formatLookups();
    void formatKinds();
    void engineTable();
    void urlImportTypes();
    void allowedUrlImportTypes();
    void formatLists();
    void supported_data();
    void supported();
    void defaults();
    void storedForm();
    void readsStored_data() { addRows("engine-maps.tsv", {"case", "stored", "read"}); }
    void readsStored();
    void damagedStored();
    void choices_data()
    {
        addRows("engine-choices.tsv",
                {"case", "stored", "from", "to", "engine", "reason", "offered"});
    }
    void choices();
};

void tst_ImportExport::formatTable()
{
    const QVector<QStringList> rows = rowsOf("formats.tsv");
    QCOMPARE(F::formatsCount(), 43);
    QCOMPARE(rows.size(), 43);
    QHash<int, QString> firstSuffixes;
    for (int i = 0; i < rows.size(); ++i) {
        const QStringList &row = rows.at(i);
        const int format = row.at(1).toInt();
        const MRVFormatInfo info = F::formatInfo(i);
        QCOMPARE(int(info.format), format);
        QCOMPARE(int(F::formatAt(i)), format);
        QCOMPARE(info.name, row.at(2));
        QCOMPARE(info.extension, row.value(3));
        QCOMPARE(F::formatExtension(i), row.value(3));
        QCOMPARE(info.description, row.value(4));
        QCOMPARE(F::name(info.format), row.at(2));
        if (!firstSuffixes.contains(format))
            firstSuffixes.insert(format, row.value(3));
        QCOMPARE(F::extension(info.format), firstSuffixes.value(format));
    }
    QCOMPARE(firstSuffixes.size(), 39);
    for (int none : {-1, 0, 22, 41}) {
        QVERIFY(F::name(F::Format(none)).isEmpty());
        QVERIFY(F::extension(F::Format(none)).isEmpty());
    }
}

void tst_ImportExport::formatLookups()
{
    QFETCH(QString, suffix);
    QTEST(F::name(F::format(suffix)), "name");
}

void tst_ImportExport::formatKinds()
{
    QCOMPARE(numbersOf(F::isMmdVariant), (QVector<int>{32, 33, 34, 35, 36}));
    QCOMPARE(numbersOf(F::isPlainTextVariant), (QVector<int>{3, 32, 33, 34, 35, 36}));
    QCOMPARE(numbersOf(F::isRtfOrDoc), (QVector<int>{4, 10, 11}));
    QCOMPARE(numbersOf(F::isEBook), (QVector<int>{7, 8}));
}

void tst_ImportExport::engineTable()
{
    QMap<E::Engine, QString> stored;
    QMap<E::Engine, QString> shown;
    for (const QStringList &row : rowsOf("engines.tsv")) {
        const E::Engine engine = E::Engine(row.at(0).toInt());
        stored.insert(engine, row.at(1));
        if (row.size() > 2)
            shown.insert(engine, row.at(2));
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
    QVERIFY(E::toString(E::Engine(8)).isEmpty() && E::toString(E::Engine(-1)).isEmpty());
    QVERIFY(!E::isDoc2AnyEngine(E::Engine(8)) && !E::isDoc2AnyEngine(E::Engine(-1)));
    QVERIFY(!E::hasMsWord() && !E::hasOpenOffice() && !E::hasLibreOffice() && !E::hasIE());
    QCOMPARE(msWordVersion(), 0);
}

void tst_ImportExport::urlImportTypes()
{
    QMap<E::UrlImportType, QString> shown;
    for (const QStringList &row : rowsOf("urlimporttypes.tsv")) {
        const E::UrlImportType type = E::UrlImportType(row.at(0).toInt());
        QCOMPARE(E::toByteArray(type), row.at(1).toUtf8());
        QCOMPARE(E::toUrlImportType(row.at(1).toUtf8()), type);
        QCOMPARE(E::isImportToPdfType(type), type >= 1 && type <= 3);
        if (row.size() > 2 && type != E::ImportAsPdfWithDoc2AnyOffice)
            shown.insert(type, row.at(2));
    }
    QCOMPARE(shown.size(), 4);
    QCOMPARE(E::urlImportTypesDescr(), shown);
    QCOMPARE(E::urlImportTypesDescrSorted(),
             (QStringList{shown[E::ImportAsPdfWithDoc2AnyDefault],
                          shown[E::ImportAsPdfWithDoc2AnyWebKit], "Plain Text",
                          "Webpage Complete (MHT)"}));
    QCOMPARE(E::toUrlImportType("ImportAsPdf"), E::ImportAsPdfWithDoc2AnyWebKit);
    for (const QByteArray &unknown : {QByteArray(), QByteArray("importashtml"),
                                      QByteArray("ImportAsPdf", 12), QByteArray("ImportAs")})
        QCOMPARE(E::toUrlImportType(unknown), E::ImportUndefined);
    QVERIFY(E::toByteArray(E::UrlImportType(9)).isEmpty());
    QVERIFY(E::toByteArray(E::UrlImportType(-1)).isEmpty());
}

void tst_ImportExport::allowedUrlImportTypes()
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

void tst_ImportExport::formatLists()
{
    const QString exported("TXT RTF HTML XHTML EPUB ODT DOC DOCX PDF PS PNG FDX MMDtoHTML MMDtoTEX "
                           "MMDtoOPML MMDtoODF MMD");
    Applications applications;
    QCOMPARE(names(formats(Import, applications)),
             QString("TXT RTF HTML ODT DOC DOCX FDX MMD DOT OTT"));
    QCOMPARE(names(formats(Export, applications)), exported);
    applications.kindleConverter = true;
    QCOMPARE(names(formats(Export, applications)), exported + " MOBI");
    QCOMPARE(names(defaultImportAsRtfFormats()),
             QString("TXT RTF DOC DOCX DOT FDX MMD HTML ODT OTT"));
}

void tst_ImportExport::supported_data()
{
    addRows("engine-support.tsv", {"direction", "format", "without", "with"});
}

void tst_ImportExport::supported()
{
    QFETCH(QString, direction);
    QFETCH(QString, format);
    QVector<F::Format> formats;
    for (int i = 0; i < F::formatsCount(); ++i)
        formats << F::formatAt(i);
    for (const QStringList &row : rowsOf("engine-support.tsv")) {
        const F::Format listed = F::format(row.at(1));
        if (row.at(0) == direction && format == "other")
            formats.removeAll(listed);
    }
    if (format != "other")
        formats = {F::format(format)};
    const Direction way = direction == "import" ? Import : Export;
    for (F::Format one : qAsConst(formats)) {
        QTEST(names(supportedEngines(way, one, withWord(false))), "without");
        QTEST(names(supportedEngines(way, one, withWord(true))), "with");
    }
}

void tst_ImportExport::defaults()
{
    const QString imported("DOC=%1 DOCX=%2 DOT=Doc2AnyInternalEngine FDX=QtEngine HTML=QtEngine "
                           "MMD=QtEngine ODT=%1 OTT=%1 RTF=QtEngine TXT=QtEngine");
    QCOMPARE(written(defaultEngines(Import, withWord(false))),
             imported.arg("Doc2AnyInternalEngine", "SubSystemsEngine"));
    QCOMPARE(written(defaultEngines(Import, withWord(true))),
             imported.arg("Doc2AnyPreferMsOffice", "Doc2AnyPreferMsOffice"));
    const FormatEngines exported = defaultEngines(Export, withWord(false));
    QCOMPARE(exported.size(), 17);
    QCOMPARE(exported.value(F::DOC), E::RtfBasedDoc);
    QCOMPARE(exported.value(F::DOCX), E::SubSystemsEngine);
    QCOMPARE(exported.values().count(E::QtEngine), 15);
}

void tst_ImportExport::storedForm()
{
    const QByteArray bytes =
        QByteArray::fromHex("00000003"
                            "00000008"
                            "0044004f00430058"
                            "00000020"
                            "00530075006200530079007300740065006d00730045006e00670069006e0065"
                            "00000012"
                            "004d004d00440074006f00480054004d004c"
                            "00000010"
                            "005100740045006e00670069006e0065"
                            "00000006"
                            "004f00440054"
                            "00000010"
                            "005100740045006e00670069006e0065");
    const FormatEngines engines{
        {F::ODT, E::QtEngine}, {F::DOCX, E::SubSystemsEngine}, {F::MMDtoHTML, E::QtEngine}};
    QCOMPARE(toByteArray(engines).toHex(), bytes.toHex());
    QCOMPARE(toFormatEngines(bytes),
             (FormatEngines{{F::ODT, E::QtEngine}, {F::DOCX, E::SubSystemsEngine}}));
    QCOMPARE(toByteArray({}), number(0));
    QVERIFY(toFormatEngines({}).isEmpty());
    for (bool msWord : {false, true}) {
        const FormatEngines all = defaultEngines(Import, withWord(msWord));
        QCOMPARE(toByteArray(all), stored(written(all)));
        QCOMPARE(toFormatEngines(toByteArray(all)), all);
    }
}

void tst_ImportExport::readsStored()
{
    QFETCH(QString, stored);
    QTEST(written(toFormatEngines(::stored(stored))), "read");
}

// Whatever is read from damaged bytes can be stored, and is then read as the same.
void tst_ImportExport::damagedStored()
{
    const QByteArray sound = stored("DOC=RtfBasedDoc MMD=QtEngine ODT=Doc2AnyInternalEngine");
    QCOMPARE(toFormatEngines(sound).size(), 3);
    QCOMPARE(toFormatEngines(sound + "more").size(), 3);
    for (int i = 0; i < sound.size(); ++i) {
        QVERIFY(toFormatEngines(sound.left(i)).isEmpty());
        for (int value = 0; value < 256; ++value) {
            QByteArray bytes = sound;
            bytes[i] = char(value);
            FormatEngines engines = toFormatEngines(bytes);
            QVERIFY(engines.size() <= 3);
            engines.remove(F::MMDtoODF); // read by its suffix, stored by its name
            QCOMPARE(toFormatEngines(toByteArray(engines)), engines);
        }
    }
}

void tst_ImportExport::choices()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, stored);
    Choices choices;
    for (Direction direction : {Import, Export}) {
        choices.stored[direction] = toFormatEngines(::stored(stored));
        choices.used[direction] = usableEngines(direction, choices.stored[direction], {});
    }
    const MRVEngineChoice choice = choose(F::format(from), F::format(to), choices, {});
    QTEST(E::toString(choice.engine), "engine");
    QTEST(QString(MRVEngineChoice::toString(choice.reason)), "reason");
    QTEST(QString(choice.isOffered() ? "yes" : "no"), "offered");
    QCOMPARE(choice.reasonText().contains("Prefer"), choice.reason == MRVEngineChoice::Repaired);
    QVERIFY(!choice.supported.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ImportExport)
#include "tst_importexport.moc"
