#include "util/mrv.h"

#include "gui/mrvguiutil.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>
#include <QTranslator>
#include <QtTest>

#include <limits>

namespace {

QMimeData *nodeMime(const QByteArray &bytes)
{
    auto *mime = new QMimeData;
    mime->setData("application/morvane.node", bytes);
    return mime;
}

QByteArray nodeBytes(const QString &path, const QList<qint32> &ids)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << path;
    for (const qint32 id : ids)
        stream << id;
    return bytes;
}

// Turns every text of one context round, so that what was not translated shows.
class Mirror : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, "QObject") != 0)
            return QString();
        QString text = QString::fromUtf8(source);
        std::reverse(text.begin(), text.end());
        return text;
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void htmlEncoded_data();
    void htmlEncoded();
    void tooltip_data();
    void tooltip();
    void autoNumbers_data();
    void autoNumbers();
    void cleanFileName_data();
    void cleanFileName();
    void cleanFileNameIsLinear();
    void specialFileNameChars();
    void colorToText_data();
    void colorToText();
    void textToColor_data();
    void textToColor();
    void enumTexts_data();
    void enumTexts();
    void textsToEnums_data();
    void textsToEnums();
    void viewsAndColumns_data();
    void viewsAndColumns();
    void opmlDescriptions();
    void compileNoteFlags_data();
    void compileNoteFlags();
    void mimeTypeNames_data();
    void mimeTypeNames();
    void projectNodes_data();
    void projectNodes();
    void rtfTypes();
    void suffixTable();
    void suffixLookup_data();
    void suffixLookup();
    void suffixFileIsInOrder();
    void paths();
    void forwards();
};

void TestUtil::htmlEncoded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("encoded");
    QTest::addColumn<QString>("escaped");
    QTest::newRow("empty") << ""
                           << ""
                           << "";
    QTest::newRow("plain") << "plain"
                           << "plain"
                           << "plain";
    QTest::newRow("ampersands") << "a &amp; b & c"
                                << "a &amp; b &amp; c"
                                << "a &amp;amp; b &amp; c";
    QTest::newRow("only-entity") << "&amp;"
                                 << "&amp;"
                                 << "&amp;amp;";
    QTest::newRow("other-entity") << "&lt;"
                                  << "&amp;lt;"
                                  << "&amp;lt;";
    QTest::newRow("upper-entity") << "&AMP;"
                                  << "&amp;AMP;"
                                  << "&amp;AMP;";
    QTest::newRow("cut-entity") << "&amp"
                                << "&amp;amp"
                                << "&amp;amp";
    QTest::newRow("twice") << "&&amp;"
                           << "&amp;&amp;"
                           << "&amp;&amp;amp;";
    QTest::newRow("at-end") << "a&"
                            << "a&amp;"
                            << "a&amp;";
    QTest::newRow("all-five") << "<a b=\"c\" d='e'>"
                              << "&lt;a b=&quot;c&quot; d=&apos;e&apos;&gt;"
                              << "&lt;a b=&quot;c&quot; d=&apos;e&apos;&gt;";
    QTest::newRow("beyond-ascii") << QString::fromUtf8("\xc3\xa9\xf0\x9f\x98\x80")
                                  << QString::fromUtf8("\xc3\xa9\xf0\x9f\x98\x80")
                                  << QString::fromUtf8("\xc3\xa9\xf0\x9f\x98\x80");
}

void TestUtil::htmlEncoded()
{
    QFETCH(QString, text);
    QFETCH(QString, encoded);
    QFETCH(QString, escaped);
    QCOMPARE(MRV::toHtmlEncoded(text), encoded);
    QCOMPARE(MRV::escape(text), escaped);
}

void TestUtil::tooltip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("html");
    QTest::newRow("blank") << "  \t\n "
                           << "";
    QTest::newRow("trimmed") << "  a & b "
                             << "<p>a &amp; b</p>";
    QTest::newRow("just-fits") << QString(93, 'x') << "<p>" + QString(93, 'x') + "</p>";
    QTest::newRow("one-too-long") << QString(94, 'x') << "<p>" + QString(94, 'x') + "</p...";
    QTest::newRow("200") << QString(200, 'x') << "<p>" + QString(97, 'x') + "...";
    QTest::newRow("long-by-encoding")
        << QString(50, '<') << "<p>" + QString("&lt;").repeated(24) + "&...";
}

void TestUtil::tooltip()
{
    QFETCH(QString, text);
    QFETCH(QString, html);
    QCOMPARE(MRV::toHtmlTooltipFormat(text), html);
}

void TestUtil::autoNumbers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stripped");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("next");
    QTest::newRow("empty") << ""
                           << "" << 0 << "-1";
    QTest::newRow("no-number") << "Chapter"
                               << "Chapter" << 0 << "Chapter-1";
    QTest::newRow("hyphen") << "Chapter-1"
                            << "Chapter" << 1 << "Chapter-2";
    QTest::newRow("two-digits") << "Scene-12"
                                << "Scene" << 12 << "Scene-13";
    QTest::newRow("no-hyphen") << "Scene12"
                               << "Scene12" << 0 << "Scene13";
    QTest::newRow("carry") << "Draft9"
                           << "Draft9" << 0 << "Draft10";
    QTest::newRow("leading-zeros") << "Scene 007"
                                   << "Scene 007" << 0 << "Scene 8";
    QTest::newRow("leading-zeros-hyphen") << "Scene-007"
                                          << "Scene" << 7 << "Scene-8";
    QTest::newRow("overflow") << "v99999999999"
                              << "v99999999999" << 0 << "v1";
    QTest::newRow("overflow-hyphen") << "v-99999999999"
                                     << "v" << 0 << "v-1";
    QTest::newRow("largest-int") << "v-2147483647"
                                 << "v" << 2147483647 << "v-2147483648";
    QTest::newRow("beyond-int") << "v-2147483648"
                                << "v" << 0 << "v-1";
    QTest::newRow("only-number") << "-5"
                                 << "" << 5 << "-6";
    QTest::newRow("digits-only") << "12"
                                 << "12" << 0 << "13";
    QTest::newRow("two-hyphens") << "a--3"
                                 << "a-" << 3 << "a--4";
    QTest::newRow("not-at-end") << "a-3 b"
                                << "a-3 b" << 0 << "a-3 b-1";
    QTest::newRow("line-end-after") << "a-3\n"
                                    << "a-3\n"
                                    << 0 << "a-3\n-1";
    QTest::newRow("arabic-digits")
        << QString::fromUtf8("a-\xd9\xa1\xd9\xa2") << "a" << 12 << "a-13";
}

void TestUtil::autoNumbers()
{
    QFETCH(QString, name);
    QFETCH(QString, stripped);
    QFETCH(int, number);
    QFETCH(QString, next);
    int result = 77;
    QCOMPARE(MRV::stripAutoNumberEnding(name, &result), stripped);
    QCOMPARE(result, number);
    QCOMPARE(MRV::stripAutoNumberEnding(name), stripped);
    QCOMPARE(MRV::adjustName(name), next);
}

void TestUtil::cleanFileName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QChar>("replacement");
    QTest::addColumn<QString>("clean");
    const QChar blank(' ');
    QTest::newRow("plain") << "name" << blank << "name";
    QTest::newRow("one") << "a:b" << blank << "a b";
    QTest::newRow("run") << "a::/b" << blank << "a b";
    QTest::newRow("ends") << "?name?" << blank << "name";
    QTest::newRow("double-quote") << "a\"b" << blank << "a b";
    QTest::newRow("all-special") << "*:/\\?<>|=;[],.^%\"" << blank << "";
    QTest::newRow("all-special-dash") << "*:/\\?<>|=;[],.^%\"" << QChar('-') << "-";
    QTest::newRow("after-literal") << "a :b" << blank << "a b";
    QTest::newRow("literal-after") << "a: b" << blank << "a b";
    QTest::newRow("literal-runs") << "a   b----c" << QChar('-') << "a   b-c";
    QTest::newRow("dash-at-ends") << "?a?" << QChar('-') << "-a-";
    QTest::newRow("special-replacement") << "a:b..c.d" << QChar('.') << "a.b.c.d";
    QTest::newRow("kept") << "&'()+!" << blank << "&'()+!";
    QTest::newRow("path") << "../../etc/passwd" << blank << "etc passwd";
    QTest::newRow("empty") << "" << blank << "";
}

void TestUtil::cleanFileName()
{
    QFETCH(QString, name);
    QFETCH(QChar, replacement);
    QFETCH(QString, clean);
    QCOMPARE(MRV::cleanFileName(name, replacement), clean);
    QCOMPARE(MRV::cleanFileNameRegExp(name, replacement), clean);
    if (replacement == ' ') {
        QCOMPARE(MRV::cleanFileName(name), clean);
        QCOMPARE(MRV::cleanFileNameRegExp(name), clean);
    }
}

void TestUtil::cleanFileNameIsLinear()
{
    QCOMPARE(MRV::cleanFileName("a" + QString("- -").repeated(300000) + "b", '-').size(), 600003);
}

void TestUtil::specialFileNameChars()
{
    const QString expected = "*:/\\?<>|=;[],.^%";
    const QSet<QChar> &chars = MRV::specialFileNameChars();
    QCOMPARE(chars.size(), 16);
    for (const QChar c : expected)
        QVERIFY(chars.contains(c));
    QCOMPARE(&MRV::specialFileNameChars(), &chars);
}

void TestUtil::colorToText_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("orange") << QColor(255, 128, 0) << "1.000000 0.501961 0.000000";
    QTest::newRow("alpha-dropped") << QColor(255, 128, 0, 7) << "1.000000 0.501961 0.000000";
    QTest::newRow("hsv") << QColor::fromHsv(120, 255, 255) << "0.000000 1.000000 0.000000";
    QTest::newRow("invalid") << QColor() << "0.000000 0.000000 0.000000";
}

void TestUtil::colorToText()
{
    QFETCH(QColor, color);
    QFETCH(QString, text);
    const QLocale old;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString result = MRV::colorToFloatString(color);
    QLocale::setDefault(old);
    QCOMPARE(result, text);
    QCOMPARE(MRV::floatStringToColor(text).rgb(), color.rgb());
}

void TestUtil::textToColor_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("clamped") << "0.5 2 -1" << QColor::fromRgbF(0.5, 1, 0);
    QTest::newRow("two-parts") << "0.5 0.5" << QColor();
    QTest::newRow("four-parts") << "0 0 0 1" << QColor();
    QTest::newRow("empty") << "" << QColor();
    QTest::newRow("no-number") << "x 0 0" << QColor::fromRgbF(0, 0, 0);
    QTest::newRow("nan") << "nan 1 nan" << QColor::fromRgbF(0, 1, 0);
    QTest::newRow("infinite") << "inf -inf 0" << QColor::fromRgbF(1, 0, 0);
    QTest::newRow("white-space") << "  1\t0 \n 1 " << QColor::fromRgbF(1, 0, 1);
    QTest::newRow("commas") << "1,0,0" << QColor();
}

void TestUtil::textToColor()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    const QColor result = MRV::floatStringToColor(text);
    QCOMPARE(result, color);
    QCOMPARE(result.isValid(), color.isValid());
    QCOMPARE(result.alpha(), 255);
}

void TestUtil::enumTexts_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("node");
    const auto row = [](int value, const char *target, const char *context, const char *separator,
                        const char *node) {
        QTest::addRow("%d", value) << value << target << context << separator << node;
    };
    row(-1, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Unknown");
    row(0, "OpenInOtherEditor", "Morvanings", "SingleReturn", "Unknown");
    row(1, "OpenInCurrentEditor", "MergedDocuments", "EmptyLine", "Unknown");
    row(2, "OpenInReferencePanel", "Clippings", "CustomSeparator", "Unknown");
    row(3, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Unknown");
    row(4, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Text");
    row(5, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Image");
    row(6, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "PDF");
    row(7, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Media");
    row(8, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Web");
    row(9, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Custom");
    row(10, "OpenInOtherEditor", "UnknownContext", "UnknownSeparatorType", "Unknown");
}

void TestUtil::enumTexts()
{
    QFETCH(int, value);
    QFETCH(QString, target);
    QFETCH(QString, context);
    QFETCH(QString, separator);
    QFETCH(QString, node);
    Mirror mirror;
    QCoreApplication::installTranslator(&mirror);
    QCOMPARE(QString(MRV::toString(MRV::OpenInTarget(value))), target);
    QCOMPARE(QString(MRV::toString(MRV::SeparatorContext(value))), context);
    QCOMPARE(QString(MRV::toString(MRV::SeparatorType(value))), separator);
    QCOMPARE(MRV::toString(MRV::NodeType(value)), node);
    QCOMPARE(MRV::toStringTr(MRV::NodeType(value)), node);
}

void TestUtil::textsToEnums_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("separator");
    QTest::newRow("other") << "OpenInOtherEditor" << 0 << 2;
    QTest::newRow("current") << "OpenInCurrentEditor" << 1 << 2;
    QTest::newRow("panel") << "OpenInReferencePanel" << 2 << 2;
    QTest::newRow("single") << "SingleReturn" << 0 << 0;
    QTest::newRow("empty-line") << "EmptyLine" << 0 << 1;
    QTest::newRow("custom") << "CustomSeparator" << 0 << 2;
    QTest::newRow("unknown") << "Whatever" << 0 << 2;
    QTest::newRow("wrong-case") << "openincurrenteditor" << 0 << 2;
    QTest::newRow("wrong-case-separator") << "emptyLine" << 0 << 2;
    QTest::newRow("empty") << "" << 0 << 2;
}

void TestUtil::textsToEnums()
{
    QFETCH(QString, text);
    QFETCH(int, target);
    QFETCH(int, separator);
    QCOMPARE(int(MRV::toOpenInTarget(text)), target);
    QCOMPARE(int(MRV::toSeparatorType(text)), separator);
}

void TestUtil::viewsAndColumns_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("view");
    QTest::addColumn<bool>("freeText");
    QTest::newRow("-1") << -1 << 0 << false;
    QTest::newRow("0") << 0 << 5 << false;
    QTest::newRow("1") << 1 << 4 << true;
    QTest::newRow("2") << 2 << 2 << false;
    QTest::newRow("3") << 3 << 3 << false;
    QTest::newRow("4") << 4 << 0 << false;
}

void TestUtil::viewsAndColumns()
{
    QFETCH(int, value);
    QFETCH(int, view);
    QFETCH(bool, freeText);
    QCOMPARE(MRV::viewModeToAppView(MRV::ViewMode(value)), view);
    QCOMPARE(MRV::isFreeTextColumn(MRV::Columns(value)), freeText);
}

void TestUtil::opmlDescriptions()
{
    const QMap<MRV::OpmlImportType, QString> descriptions = MRV::opmlImportTypesDescr();
    QCOMPARE(descriptions.keys(),
             (QList<MRV::OpmlImportType>{MRV::OpmlImportType(0), MRV::OpmlImportType(1),
                                         MRV::OpmlImportType(2), MRV::OpmlImportType(3)}));
    QCOMPARE(QStringList(descriptions.values()),
             (QStringList{"Titles Only", "Synopsis", "Main Text(with Synopsis)",
                          "Notes (with Synopsis)"}));
    QCOMPARE(MRV::opmlImportTypesDescrSorted(),
             (QStringList{"Main Text(with Synopsis)", "Notes (with Synopsis)", "Synopsis",
                          "Titles Only"}));

    // Sorted after translation.
    Mirror mirror;
    QCoreApplication::installTranslator(&mirror);
    QCOMPARE(MRV::opmlImportTypesDescrSorted(),
             (QStringList{")sisponyS htiw( setoN", ")sisponyS htiw(txeT niaM", "sisponyS",
                          "ylnO seltiT"}));
}

void TestUtil::compileNoteFlags_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<QString>("set");
    QTest::newRow("none") << 0 << "";
    QTest::newRow("unused-bit") << 0x80 << "";
    const char *labels[] = {"IncludeFootnotes",
                            "FootnotesToComments",
                            "FootnotesToFootnotes",
                            "FootnotesToEndnotes",
                            "FootnotesToEndOfDocument",
                            "FootnotesToEndnoteMarker",
                            "FootnotesOverrideFont",
                            nullptr,
                            "IncludeAnnotations",
                            "AnnotationsToMarginComments",
                            "AnnotationsToInlineComments",
                            "AnnotationsToFootnotes",
                            "AnnotationsToEndnotes",
                            "AnnotationsToHtml",
                            "IncludeComments"};
    for (int bit = 0; bit < 15; ++bit) {
        if (labels[bit])
            QTest::newRow(labels[bit]) << (1 << bit) << labels[bit];
    }
}

void TestUtil::compileNoteFlags()
{
    QFETCH(int, bits);
    QFETCH(QString, set);
    QString text;
    QDebug(&text) << MRV::CompileNoteFlags(bits) << "after";
    const QString pattern = "CompileFlags(IncludeFootnotes:%1\nFootnotesToComments:%1\n"
                            "FootnotesToFootnotes:%1\nFootnotesToEndnotes:%1\n"
                            "FootnotesToEndOfDocument:%1\nFootnotesToEndnoteMarker:%1\n"
                            "FootnotesOverrideFont:%1\nIncludeAnnotations:%1\n"
                            "AnnotationsToMarginComments:%1\nAnnotationsToInlineComments:%1\n"
                            "AnnotationsToFootnotes:%1\nAnnotationsToEndnotes:%1\n"
                            "AnnotationsToHtml:%1\nIncludeComments:%1\n) after ";
    QString expected = pattern.arg("false");
    if (!set.isEmpty())
        expected.replace(set + ":false", set + ":true");
    QCOMPARE(text, expected);
    QCOMPARE(text.count("true"), set.isEmpty() ? 0 : 1);
}

void TestUtil::mimeTypeNames_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *type, const char *expected) {
        QTest::newRow(expected) << QString(type) << QString(expected);
    };
    row(MRV::ProjectNodeMimeType, "application/morvane.node");
    row(MRV::TitleSynopsisMimeType, "application/morvane.title-synopsis");
    row(MRV::FernwickNotesMimeType, "application/fernwick.notes");
    row(MRV::FernwickGroupedNotesMimeType, "application/fernwick.notes.grouped");
    row(MRV::UriListMimeType, "text/uri-list");
    row(MRV::KeywordsMimeType, "application/morvane.keywords");
    row(MRV::ReferencesMimeType, "application/morvane.references");
    row(MRV::CommentsMimeType, "application/morvane.comments");
    row(MRV::TextCursorPosMimeType, "application/x-qt-document-textcursor");
    row(MRV::CharFormatMimeType, "application/x-qt-document-charformat");
    row(MRV::DocumentReferenceMimeType, "application/x-qt-document-reference");
    row(MRV::LinksMimeType, "application/morvane.qt.links");
    row(MRV::TocMimeType, "application/morvane.qt.toc");
    row(MRV::FontMimeType, "application/morvane.qt.font");
    row(MRV::RulerMimeType, "application/morvane.qt.ruler");
    row(MRV::FormattingMimeType, "application/morvane.qt.formatting");
    row(MRV::MorvaneMarkupRtfMimeType, "application/morvane.markuprtf");
    row(MRV::OdfMimeType, "application/vnd.oasis.opendocument.text");
}

void TestUtil::mimeTypeNames()
{
    QFETCH(QString, type);
    QFETCH(QString, expected);
    QCOMPARE(type, expected);
}

void TestUtil::projectNodes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QList<int>>("ids");
    const QByteArray good = nodeBytes("/a/b.morv", {3, -1, 7});
    QTest::newRow("negative-skipped") << good << "/a/b.morv" << QList<int>{3, 7};
    QTest::newRow("zero-kept") << nodeBytes("/a", {0, 5, 0}) << "/a" << QList<int>{0, 5, 0};
    QTest::newRow("no-ids") << nodeBytes("/a", {}) << "/a" << QList<int>();
    QTest::newRow("empty-path") << nodeBytes("", {1}) << "" << QList<int>{1};
    QTest::newRow("two-spare-bytes")
        << good + QByteArray("\0\1", 2) << "/a/b.morv" << QList<int>{3, 7};
    QTest::newRow("path-cut") << good.left(9) << "" << QList<int>();
    QTest::newRow("path-length-lies") << QByteArray("\x7f\xff\xff\xf0\0a", 6) << "" << QList<int>();
    QTest::newRow("empty") << QByteArray() << "" << QList<int>();
}

void TestUtil::projectNodes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, path);
    QFETCH(QList<int>, ids);
    const QScopedPointer<QMimeData> mime(nodeMime(bytes));
    QCOMPARE(MRV::parseProjectNodeMimeTypePath(mime.data()), path);
    QCOMPARE(MRV::parseProjectNodeMimeType(mime.data()), qMakePair(path, ids));

    const QMimeData other;
    QCOMPARE(MRV::parseProjectNodeMimeTypePath(&other), QString());
    QCOMPARE(MRV::parseProjectNodeMimeTypePath(nullptr), QString());
    QVERIFY(MRV::parseProjectNodeMimeType(nullptr).second.isEmpty());
}

void TestUtil::rtfTypes()
{
    QCOMPARE(
        MRV::rtfMimeTypes(),
        (QStringList{"application/rtf", "application/x-qt-windows-mime;value=\"Rich Text Format\"",
                     "application/x-qt-richtext", "application/x-qrichtext"}));
}

// Every suffix that a writer's project may hold has its type.
void TestUtil::suffixTable()
{
    const QHash<QString, QSet<QString>> table = MRV::suffixMimeTypes();
    QVERIFY(table.size() >= 120);
    for (auto it = table.cbegin(); it != table.cend(); ++it) {
        QVERIFY2(QRegExp("[a-z0-9]+").exactMatch(it.key()), qPrintable(it.key()));
        for (const QString &type : it.value()) {
            QVERIFY2(QRegExp("(application|audio|font|image|message|multipart|text|video)"
                             "/[A-Za-z0-9][A-Za-z0-9.+-]*")
                         .exactMatch(type),
                     qPrintable(it.key() + ' ' + type));
        }
    }
}

void TestUtil::suffixLookup_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("known");
    QTest::newRow("txt") << "txt"
                         << "text/plain" << true;
    QTest::newRow("fountain") << "fountain"
                              << "text/x-fountain" << true;
    QTest::newRow("fountain-second") << "fountain"
                                     << "text/plain" << true;
    QTest::newRow("odt") << "odt"
                         << "application/vnd.oasis.opendocument.text" << true;
    QTest::newRow("docx")
        << "docx"
        << "application/vnd.openxmlformats-officedocument.wordprocessingml.document" << true;
    QTest::newRow("epub") << "epub"
                          << "application/epub+zip" << true;
    QTest::newRow("jpeg") << "jpeg"
                          << "image/jpeg" << true;
    QTest::newRow("flac") << "flac"
                          << "audio/flac" << true;
    QTest::newRow("webm") << "webm"
                          << "video/webm" << true;
    QTest::newRow("zip") << "zip"
                         << "application/zip" << true;
    QTest::newRow("opml") << "opml"
                          << "text/x-opml" << true;
    QTest::newRow("wrong-case") << "TXT"
                                << "text/plain" << false;
    QTest::newRow("dot") << ".txt"
                         << "text/plain" << false;
    QTest::newRow("unknown") << "nosuchsuffix"
                             << "text/plain" << false;
    QTest::newRow("type-in-part") << "txt"
                                  << "text/" << false;
    QTest::newRow("comment") << "# Film"
                             << "" << false;
    QTest::newRow("empty") << ""
                           << "" << false;
}

void TestUtil::suffixLookup()
{
    QFETCH(QString, suffix);
    QFETCH(QString, type);
    QFETCH(bool, known);
    QCOMPARE(MRV::mimeTypeForSuffix(suffix).contains(type), known);
    QCOMPARE(MRV::suffixForMimeType(type).contains(suffix), known);
    QCOMPARE(MRV::suffixMimeTypes().value(suffix).contains(type), known);
    if (suffix == "jpeg")
        QCOMPARE(MRV::suffixForMimeType(type), (QSet<QString>{"jpg", "jpeg", "jpe", "jfif"}));
    QVERIFY(MRV::mimeTypeForSuffix("nosuchsuffix").isEmpty());
    QVERIFY(MRV::suffixForMimeType("no/such").isEmpty());
}

void TestUtil::suffixFileIsInOrder()
{
    QFile file(":/Other/Resources/mimetypes.csv");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QSet<QByteArray> seen;
    QByteArray last;
    QSet<QByteArray> suffixes;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        QVERIFY2(line.count(',') == 1 && line == line.trimmed(), line);
        QVERIFY2(!seen.contains(line), line);
        seen.insert(line);
        // The types of one suffix stand together.
        const QByteArray suffix = line.left(line.indexOf(','));
        QVERIFY2(suffix == last || !suffixes.contains(suffix), line);
        suffixes.insert(suffix);
        last = suffix;
    }
    QCOMPARE(suffixes.size(), MRV::suffixMimeTypes().size());
}

void TestUtil::paths()
{
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).absolutePath();
    QCOMPARE(MRV::morvaneRootDir().absolutePath(), program);
    const bool existed = QFileInfo::exists(program + "/resources");
    if (!existed) {
        QCOMPARE(MRV::resourceDir().absolutePath(), program);
        QVERIFY(QDir(program).mkdir("resources"));
    }
    const QString found = MRV::resourceDir().absolutePath();
    if (!existed)
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
    QCOMPARE(MRV::createFormatFilter("Text", {"txt"}), QString("Text (*.txt)"));
    QCOMPARE(MRV::textColorForBackground(Qt::yellow), QColor(Qt::black));
}

QTEST_GUILESS_MAIN(TestUtil)

#include "tst_util.moc"
