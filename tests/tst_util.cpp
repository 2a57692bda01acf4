#include "util/mrv.h"

#include "core/mrvcoreutil.h"
#include "datarows.h"
#include "gui/mrvguiutil.h"

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
};

template<typename T>
QString printed(const T &value)
{
    QString text;
    QDebug(&text) << value << "and more";
    return text;
}

QString mimeType(int row)
{
    using namespace MRV;
    const QStringList types = QStringList()
        << ProjectNodeMimeType << TitleSynopsisMimeType << FernwickNotesMimeType
        << FernwickGroupedNotesMimeType << UriListMimeType << KeywordsMimeType << ReferencesMimeType
        << CommentsMimeType << TextCursorPosMimeType << CharFormatMimeType
        << DocumentReferenceMimeType << LinksMimeType << TocMimeType << FontMimeType
        << RulerMimeType << FormattingMimeType << MorvaneMarkupRtfMimeType << OdfMimeType;
    return types.value(row);
}

template<typename T>
QString sorted(const QSet<T> &set)
{
    QStringList list;
    for (const T &item : set) {
        list << item;
    }
    list.sort();
    return list.join('|');
}

// With a blank, with "-" and with "." for what a file name may not hold, by both functions.
QString cleanFileNames(const QString &name)
{
    const QStringList clean{MRV::cleanFileName(name), MRV::cleanFileName(name, '-'),
                            MRV::cleanFileName(name, '.')};
    const QStringList byExpression{MRV::cleanFileNameRegExp(name),
                                   MRV::cleanFileNameRegExp(name, '-'),
                                   MRV::cleanFileNameRegExp(name, '.')};
    return clean == byExpression ? clean.join('~') : "two results";
}

// A colour whose components may lie outside 0 to 1
QColor extended(const QString &text)
{
    const QStringList parts = text.split(' ');
    return QColor::fromRgbF(parts.value(0).toDouble(), parts.value(1).toDouble(),
                            parts.value(2).toDouble());
}

QString colorName(const QColor &color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : "invalid";
}

} // namespace

class TestUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void calls_data() { addRows("util.tsv"); }

    void calls()
    {
        using namespace MRV;
        QFETCH(QString, input);
        const int i = input.toInt();
        const QStringList parts = input.split('|');
        int number = 77;
        QMimeData mime;
        mime.setData("application/morvane.node", QByteArray::fromHex(input.toLatin1()));
        const auto text = [](int value) { return QString::number(value); };
        const QMap<QString, std::function<QString()>> functions{
            {"toHtmlEncoded", [&] { return toHtmlEncoded(input); }},
            {"escape", [&] { return escape(input); }},
            {"toHtmlTooltipFormat", [&] { return toHtmlTooltipFormat(input); }},
            {"stripAutoNumberEnding",
             [&] {
                 const QString name = stripAutoNumberEnding(input, &number);
                 return name + '|' + text(number);
             }},
            {"adjustName", [&] { return adjustName(input); }},
            {"cleanFileName", [&] { return cleanFileNames(input); }},
            {"specialFileNameChars", [&] { return sorted(specialFileNameChars()); }},
            {"colorToFloatString", [&] { return colorToFloatString(QColor(input)); }},
            {"colorToFloatString beyond", [&] { return colorToFloatString(extended(input)); }},
            {"floatStringToColor", [&] { return colorName(floatStringToColor(input)); }},
            {"textColorForBackground", [&] { return textColorForBackground(input).name(); }},
            {"OpenInTarget", [&] { return toString(OpenInTarget(i)); }},
            {"SeparatorContext", [&] { return toString(SeparatorContext(i)); }},
            {"SeparatorType", [&] { return toString(SeparatorType(i)); }},
            {"NodeType", [&] { return toString(NodeType(i)); }},
            {"toOpenInTarget", [&] { return text(toOpenInTarget(input)); }},
            {"toSeparatorType", [&] { return text(toSeparatorType(input)); }},
            {"viewModeToAppView", [&] { return text(viewModeToAppView(ViewMode(i))); }},
            {"isFreeTextColumn", [&] { return text(isFreeTextColumn(Columns(i))); }},
            {"opmlImportTypesDescr",
             [&] { return opmlImportTypesDescr().value(OpmlImportType(i)); }},
            {"opmlImportTypesDescrSorted", [&] { return opmlImportTypesDescrSorted().join('|'); }},
            {"CompileNoteFlags", [&] { return printed(CompileNoteFlags(i)); }},
            {"parseProjectNodeMimeType", [&] { return printed(parseProjectNodeMimeType(&mime)); }},
            {"rtfMimeTypes", [&] { return rtfMimeTypes().join('|'); }},
            {"mimeType", [&] { return mimeType(i); }},
            {"mimeTypeForSuffix", [&] { return sorted(mimeTypeForSuffix(input)); }},
            {"suffixForMimeType", [&] { return sorted(suffixForMimeType(input)); }},
            {"closestMatch", [&] { return closestMatch(parts[0], parts.mid(1)); }},
            {"createFormatFilter", [&] { return createFormatFilter(parts[0], parts.mid(1)); }},
        };
        Mirror mirror;
        QCoreApplication::installTranslator(&mirror);
        // Its decimal sign is a comma.
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(functions[cell("call")](), cell("output"));
    }

    // Every row of the file is well formed, stands in it once and is in the table; comments are
    // not.
    void suffixTable()
    {
        QHash<QString, QSet<QString>> expected;
        const QRegExp row("([a-z0-9]+),((application|audio|font|image|message|multipart|text|video)"
                          "/[A-Za-z0-9][A-Za-z0-9.+-]*)");
        const QByteArray file = MRVCoreUtil::ReadBinaryFile(":/Other/Resources/mimetypes.csv");
        for (const QString line : file.split('\n')) {
            if (line.isEmpty() || line.startsWith('#')) {
                continue;
            }
            QVERIFY2(row.exactMatch(line), qPrintable(line));
            QVERIFY2(!expected[row.cap(1)].contains(row.cap(2)), qPrintable(line));
            expected[row.cap(1)] << row.cap(2);
        }
        QVERIFY(expected.size() >= 120);
        QCOMPARE(MRV::suffixMimeTypes(), expected);
    }

    void paths()
    {
        const QDir program(QCoreApplication::applicationDirPath());
        program.rmdir("resources");
        QCOMPARE(MRV::morvaneRootDir(), program);
        QCOMPARE(MRV::resourceDir(), program);
        QVERIFY(program.mkdir("resources"));
        const QString found = MRV::resourceDir().path();
        QVERIFY(program.rmdir("resources"));
        QCOMPARE(found, program.filePath("resources"));
    }

    void forwards()
    {
        QMimeData mime;
        mime.setData(MRV::ProjectNodeMimeType, QByteArray::fromHex("00000004002f0061"));
        QCOMPARE(MRV::parseProjectNodeMimeTypePath(&mime), QString("/a"));
        QCOMPARE(MRV::toStringTr(MRV::PdfNode), QString("PDF"));
        const QMimeData other;
        QCOMPARE(MRV::parseProjectNodeMimeTypePath(&other), QString());
        QCOMPARE(MRV::parseProjectNodeMimeType(nullptr), qMakePair(QString(), QList<int>()));
        QCOMPARE(MRV::displayImageFormats(), MRVGuiUtil::readImageFormats());
        QCOMPARE(MRV::writeImageFormats(), MRVGuiUtil::writeImageFormats());
        QCOMPARE(MRV::readWriteImageFormats(), MRVGuiUtil::readWriteImageFormats());
        QCOMPARE(MRV::imageFileFilters(), MRVGuiUtil::readImageFileFilters());
        QCOMPARE(MRV::writeImageFileFilters(), MRVGuiUtil::writeImageFileFilters());
    }
};

QTEST_GUILESS_MAIN(TestUtil)

#include "tst_util.moc"
