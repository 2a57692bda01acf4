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
    const QStringList types = QStringList()
        << MRV::ProjectNodeMimeType << MRV::TitleSynopsisMimeType << MRV::FernwickNotesMimeType
        << MRV::FernwickGroupedNotesMimeType << MRV::UriListMimeType << MRV::KeywordsMimeType
        << MRV::ReferencesMimeType << MRV::CommentsMimeType << MRV::TextCursorPosMimeType
        << MRV::CharFormatMimeType << MRV::DocumentReferenceMimeType << MRV::LinksMimeType
        << MRV::TocMimeType << MRV::FontMimeType << MRV::RulerMimeType << MRV::FormattingMimeType
        << MRV::MorvaneMarkupRtfMimeType << MRV::OdfMimeType;
    return types.value(row);
}

template<typename T>
QString sorted(const QSet<T> &set)
{
    QStringList list;
    for (const T &item : set)
        list << item;
    list.sort();
    return list.join('|');
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
    void calls_data() { addRows("util.tsv", {"call", "input", "output"}); }

    void calls()
    {
        QFETCH(QString, call);
        QFETCH(QString, input);
        QFETCH(QString, output);
        const int i = input.toInt();
        int number = 77;
        QMimeData mime;
        mime.setData("application/morvane.node", QByteArray::fromHex(input.toLatin1()));
        const auto text = [](int value) { return QString::number(value); };
        const QMap<QString, std::function<QString()>> functions{
            {"toHtmlEncoded", [&] { return MRV::toHtmlEncoded(input); }},
            {"escape", [&] { return MRV::escape(input); }},
            {"toHtmlTooltipFormat", [&] { return MRV::toHtmlTooltipFormat(input); }},
            {"stripAutoNumberEnding", [&] { return MRV::stripAutoNumberEnding(input); }},
            {"autoNumber",
             [&] { return (MRV::stripAutoNumberEnding(input, &number), text(number)); }},
            {"adjustName", [&] { return MRV::adjustName(input); }},
            {"cleanFileName", [&] { return MRV::cleanFileName(input); }},
            {"cleanFileNameRegExp", [&] { return MRV::cleanFileNameRegExp(input); }},
            {"cleanFileName with", [&] { return MRV::cleanFileName(input.mid(1), input[0]); }},
            {"cleanFileNameRegExp with",
             [&] { return MRV::cleanFileNameRegExp(input.mid(1), input[0]); }},
            {"specialFileNameChars", [&] { return sorted(MRV::specialFileNameChars()); }},
            {"colorToFloatString", [&] { return MRV::colorToFloatString(QColor(input)); }},
            {"floatStringToColor", [&] { return colorName(MRV::floatStringToColor(input)); }},
            {"textColorForBackground", [&] { return MRV::textColorForBackground(input).name(); }},
            {"OpenInTarget", [&] { return MRV::toString(MRV::OpenInTarget(i)); }},
            {"SeparatorContext", [&] { return MRV::toString(MRV::SeparatorContext(i)); }},
            {"SeparatorType", [&] { return MRV::toString(MRV::SeparatorType(i)); }},
            {"NodeType", [&] { return MRV::toString(MRV::NodeType(i)); }},
            {"NodeType toStringTr", [&] { return MRV::toStringTr(MRV::NodeType(i)); }},
            {"toOpenInTarget", [&] { return text(MRV::toOpenInTarget(input)); }},
            {"toSeparatorType", [&] { return text(MRV::toSeparatorType(input)); }},
            {"viewModeToAppView", [&] { return text(MRV::viewModeToAppView(MRV::ViewMode(i))); }},
            {"isFreeTextColumn", [&] { return text(MRV::isFreeTextColumn(MRV::Columns(i))); }},
            {"opmlImportTypesDescr",
             [&] { return MRV::opmlImportTypesDescr().value(MRV::OpmlImportType(i)); }},
            {"opmlImportTypesDescrSorted",
             [&] { return MRV::opmlImportTypesDescrSorted().join('|'); }},
            {"CompileNoteFlags",
             [&] { return printed(MRV::CompileNoteFlags(input.toInt(nullptr, 16))); }},
            {"parseProjectNodeMimeTypePath",
             [&] { return MRV::parseProjectNodeMimeTypePath(&mime); }},
            {"parseProjectNodeMimeType",
             [&] { return printed(MRV::parseProjectNodeMimeType(&mime)); }},
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

    // Every row of the file is well formed, stands in it once and is in the table; comments are not.
    void suffixTable()
    {
        QHash<QString, QSet<QString>> expected;
        const QRegExp row("([a-z0-9]+),((application|audio|font|image|message|multipart|text|video)"
                          "/[A-Za-z0-9][A-Za-z0-9.+-]*)");
        const QByteArray file = MRVCoreUtil::ReadBinaryFile(":/Other/Resources/mimetypes.csv");
        for (const QString line : file.split('\n')) {
            if (line.isEmpty() || line.startsWith('#'))
                continue;
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
