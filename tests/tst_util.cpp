#include "util/mrv.h"

#include "datarows.h"
#include "gui/mrvguiutil.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QTranslator>

#include <functional>

namespace {

// Turns every text of one context round, so that what was not translated shows.
class Mirror : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        QString text = qstrcmp(context, "QObject") == 0 ? source : "";
        std::reverse(text.begin(), text.end());
        return text;
    }
    bool isEmpty() const override { return false; }
};

QString stripped(const QString &name)
{
    int number = 77;
    const QString rest = MRV::stripAutoNumberEnding(name, &number);
    return rest == MRV::stripAutoNumberEnding(name) ? rest + '|' + QString::number(number) : "";
}

QString cleaned(const QString &name)
{
    const QStringList names{MRV::cleanFileName(name), MRV::cleanFileName(name, '-'),
                            MRV::cleanFileName(name, '.')};
    const QStringList others{MRV::cleanFileNameRegExp(name), MRV::cleanFileNameRegExp(name, '-'),
                             MRV::cleanFileNameRegExp(name, '.')};
    return names == others ? names.join('|') : "the functions differ";
}

QString projectNodes(const QString &hex)
{
    QMimeData mime;
    mime.setData("application/morvane.node", QByteArray::fromHex(hex.toLatin1()));
    const QPair<QString, QList<int>> nodes = MRV::parseProjectNodeMimeType(&mime);
    QStringList ids;
    for (const int id : nodes.second)
        ids << QString::number(id);
    return MRV::parseProjectNodeMimeTypePath(&mime) == nodes.first
        ? nodes.first + '|' + ids.join(',')
        : "the paths differ";
}

QString mimeType(int row)
{
    const QStringList types = QStringList()
        << MRV::ProjectNodeMimeType << MRV::TitleSynopsisMimeType << MRV::FernwickNotesMimeType
        << MRV::FernwickGroupedNotesMimeType << MRV::UriListMimeType << MRV::KeywordsMimeType
        << MRV::ReferencesMimeType << MRV::CommentsMimeType << MRV::TextCursorPosMimeType
        << MRV::CharFormatMimeType << MRV::DocumentReferenceMimeType << MRV::LinksMimeType
        << MRV::TocMimeType << MRV::FontMimeType << MRV::RulerMimeType << MRV::FormattingMimeType
        << MRV::MorvaneMarkupRtfMimeType << MRV::OdfMimeType;
    return types.value(row);
}

QString sorted(const QSet<QString> &set)
{
    QStringList list = set.values();
    list.sort();
    return list.join('|');
}

QString colorName(const QColor &color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : "invalid";
}

QString nodeTypes(int type)
{
    return MRV::toString(MRV::NodeType(type)) + '|' + MRV::toStringTr(MRV::NodeType(type));
}

} // namespace

class TestUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void calls_data() { addRows("util.tsv", {"call", "input", "output"}); }
    void calls();
    void compileNoteFlags();
    void noProjectNodes();
    void suffixTable();
    void paths();
    void forwards();
};

void TestUtil::calls()
{
    QFETCH(QString, call);
    QFETCH(QString, input);
    QFETCH(QString, output);
    const int i = input.toInt();
    const auto text = [](int number) { return QString::number(number); };
    const QMap<QString, std::function<QString()>> functions{
        {"toHtmlEncoded", [&] { return MRV::toHtmlEncoded(input); }},
        {"escape", [&] { return MRV::escape(input); }},
        {"toHtmlTooltipFormat", [&] { return MRV::toHtmlTooltipFormat(input); }},
        {"stripAutoNumberEnding", [&] { return stripped(input); }},
        {"adjustName", [&] { return MRV::adjustName(input); }},
        {"cleanFileName", [&] { return cleaned(input); }},
        {"colorToFloatString", [&] { return MRV::colorToFloatString(QColor(input)); }},
        {"floatStringToColor", [&] { return colorName(MRV::floatStringToColor(input)); }},
        {"textColorForBackground", [&] { return MRV::textColorForBackground(input).name(); }},
        {"OpenInTarget", [&] { return MRV::toString(MRV::OpenInTarget(i)); }},
        {"SeparatorContext", [&] { return MRV::toString(MRV::SeparatorContext(i)); }},
        {"SeparatorType", [&] { return MRV::toString(MRV::SeparatorType(i)); }},
        {"NodeType", [&] { return nodeTypes(i); }},
        {"toOpenInTarget", [&] { return text(MRV::toOpenInTarget(input)); }},
        {"toSeparatorType", [&] { return text(MRV::toSeparatorType(input)); }},
        {"viewModeToAppView", [&] { return text(MRV::viewModeToAppView(MRV::ViewMode(i))); }},
        {"isFreeTextColumn", [&] { return text(MRV::isFreeTextColumn(MRV::Columns(i))); }},
        {"opmlImportTypesDescr",
         [&] { return MRV::opmlImportTypesDescr().value(MRV::OpmlImportType(i)); }},
        {"opmlImportTypesDescrSorted", [&] { return MRV::opmlImportTypesDescrSorted().join('|'); }},
        {"parseProjectNodeMimeType", [&] { return projectNodes(input); }},
        {"rtfMimeTypes", [&] { return MRV::rtfMimeTypes().join('|'); }},
        {"mimeType", [&] { return mimeType(i); }},
        {"mimeTypeForSuffix", [&] { return sorted(MRV::mimeTypeForSuffix(input)); }},
        {"suffixForMimeType", [&] { return sorted(MRV::suffixForMimeType(input)); }},
        {"createFormatFilter",
         [&] {
             return MRV::createFormatFilter(input.section('|', 0, 0), input.split('|').mid(1));
         }},
    };
    QVERIFY(functions.contains(call));
    Mirror mirror;
    QCoreApplication::installTranslator(&mirror);
    // Its decimal sign is a comma.
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(functions[call](), output);
}

void TestUtil::compileNoteFlags()
{
    const QVector<QStringList> labels = rowsOf("compilenoteflags.tsv");
    QCOMPARE(labels.size(), 14);
    for (int bits = 1; bits <= 0x8000; bits *= 2) {
        QString expected = "CompileFlags(";
        for (const QStringList &label : labels) {
            const bool isSet = label.at(0).toInt(nullptr, 16) == bits;
            expected += label.at(1) + (isSet ? ":true\n" : ":false\n");
        }
        QString printed;
        QDebug(&printed) << MRV::CompileNoteFlags(bits) << "after";
        QCOMPARE(printed, expected + ") after ");
    }
}

void TestUtil::noProjectNodes()
{
    const QMimeData other;
    for (const QMimeData *mime : {&other, static_cast<const QMimeData *>(nullptr)}) {
        QCOMPARE(MRV::parseProjectNodeMimeTypePath(mime), QString());
        QCOMPARE(MRV::parseProjectNodeMimeType(mime), qMakePair(QString(), QList<int>()));
    }
}

// Every row of the file is well formed, stands in it once and is in the table; comments are not.
void TestUtil::suffixTable()
{
    const QHash<QString, QSet<QString>> table = MRV::suffixMimeTypes();
    QVERIFY(table.size() >= 120);
    int types = 0;
    for (const QSet<QString> &set : table)
        types += set.size();
    QFile file(":/Other/Resources/mimetypes.csv");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QRegExp row("[a-z0-9]+,(application|audio|font|image|message|multipart|text|video)"
                      "/[A-Za-z0-9][A-Za-z0-9.+-]*");
    for (const QString line : file.readAll().split('\n')) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        QVERIFY2(row.exactMatch(line), qPrintable(line));
        QVERIFY2(table[line.section(',', 0, 0)].contains(line.section(',', 1)), qPrintable(line));
        --types;
    }
    QCOMPARE(types, 0);
}

void TestUtil::paths()
{
    const QString program = QCoreApplication::applicationDirPath();
    QDir(program).rmdir("resources");
    QCOMPARE(MRV::morvaneRootDir().absolutePath(), program);
    QCOMPARE(MRV::resourceDir().absolutePath(), program);
    QVERIFY(QDir(program).mkdir("resources"));
    const QString found = MRV::resourceDir().absolutePath();
    QVERIFY(QDir(program).rmdir("resources"));
    QCOMPARE(found, program + "/resources");
}

void TestUtil::forwards()
{
    QCOMPARE(MRV::displayImageFormats(), MRVGuiUtil::readImageFormats());
    QCOMPARE(MRV::writeImageFormats(), MRVGuiUtil::writeImageFormats());
    QCOMPARE(MRV::readWriteImageFormats(), MRVGuiUtil::readWriteImageFormats());
    QCOMPARE(MRV::imageFileFilters(), MRVGuiUtil::readImageFileFilters());
    QCOMPARE(MRV::writeImageFileFilters(), MRVGuiUtil::writeImageFileFilters());
    QSet<QChar> special;
    for (const QChar c : QString("*:/\\?<>|=;[],.^%"))
        special << c;
    QCOMPARE(MRV::specialFileNameChars(), special);
}

QTEST_GUILESS_MAIN(TestUtil)

#include "tst_util.moc"
