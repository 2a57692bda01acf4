#include "core/mrvcoreutil.h"
#include "documentdump.h"
#include "gui/mrvguiutil.h"
#include "text/mrvtextformat.h"
#include "text/mtextdoc.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QtTest>

namespace {

QImage picture(const QColor &color, int size = 6)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

QByteArray png(const QImage &image)
{
    return MRVGuiUtil::toByteArray(image, "PNG");
}

bool write(const QString &path, const QByteArray &bytes)
{
    return MRVCoreUtil::WriteBinaryFile(bytes, path);
}

QTextImageFormat imageFormat(const QString &id, const QString &name = QString())
{
    QTextImageFormat format;
    format.setName(id);
    if (!name.isNull())
        format.setProperty(MRVTextFormat::ImageNameProperty, name);
    return format;
}

/// Puts an image at the end of the document, with a resource unless the picture is null.
void insert(QTextDocument *document, const QTextImageFormat &format, const QImage &image)
{
    if (!image.isNull())
        document->addResource(QTextDocument::ImageResource, QUrl(format.name()), image);
    QTextCursor cursor(document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertImage(format);
}

/// Forgets how the document was made.
QStringList settled(QTextDocument *document)
{
    document->clearUndoRedoStacks();
    document->setModified(false);
    return documentDump(*document);
}

QStringList ids(const QTextDocument &document)
{
    QStringList list;
    const auto formats = MTextDoc::imageFormats(document);
    for (const QTextImageFormat &format : formats)
        list << MTextDoc::imageResourceId(format);
    return list;
}

QImage resource(const QTextDocument &document, const QString &id)
{
    return MTextDoc::image(document, imageFormat(id));
}

QStringList fileNames(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths)
        names << QFileInfo(path).fileName();
    return names;
}

} // namespace

class TestTextImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void exportFormat_data();
    void exportFormat();
    void exportOntoLinkedFile();
    void exportFailureLeavesNoStaleFile();
    void exportJpegOnWhite();

    void fixHtmlImages_data();
    void fixHtmlImages();
    void fixHtmlImagesOfFileNotLoadedByQt();
    void fixLeavesOthersAlone();
    void convertUnique();
    void convertUniqueCrossedIds();
    void convertUniqueWithoutChange();
    void rekeyWithBaseUrl();

    void onlyOneImage_data();
    void onlyOneImage();
    void lists();
    void dumpInfo();

    void findUniqueString_data();
    void findUniqueString();
    void uniqueInDocument();
    void mmdImageName_data();
    void mmdImageName();

    void exportIntoFolder_data();
    void exportIntoFolder();
    void exportUsed();
    void exportAll();
    void exportNothing();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    QScopedPointer<QTemporaryDir> m_dir;
};

void TestTextImages::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
}

void TestTextImages::exportFormat_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("link"); // holds "linked bytes"
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<bool>("hasPicture");
    QTest::addColumn<QByteArray>("expected"); // the file's beginning; empty for failure
    const QByteArray jpegMagic("\xff\xd8\xff"), pngMagic("\x89PNG");
    QTest::newRow("empty-name") << ""
                                << "" << QByteArray("raw") << true << QByteArray();
    QTest::newRow("encoded-png") << "a.png"
                                 << "" << QByteArray() << true << pngMagic;
    QTest::newRow("encoded-jpeg") << "a.jpg"
                                  << "" << QByteArray() << true << jpegMagic;
    QTest::newRow("encoded-upper-case") << "a.PNG"
                                        << "" << QByteArray() << true << pngMagic;
    QTest::newRow("linked") << "a.png"
                            << "l.png" << QByteArray("raw") << true << QByteArray("linked bytes");
    QTest::newRow("linked-without-picture")
        << "a.x"
        << "l.x" << QByteArray() << false << QByteArray("linked bytes");
    QTest::newRow("link-suffix-case") << "a.png"
                                      << "l.PNG" << QByteArray() << true << pngMagic;
    QTest::newRow("link-other-suffix") << "a.jpg"
                                       << "l.png" << QByteArray("raw") << true << QByteArray("raw");
    QTest::newRow("raw-jpeg") << "photo.JPG"
                              << "" << QByteArray("raw bytes") << true << QByteArray("raw bytes");
    QTest::newRow("raw-jpeg-long-suffix") << "a.jpeg"
                                          << "" << QByteArray("raw") << false << QByteArray("raw");
    QTest::newRow("raw-for-png-is-encoded") << "a.png"
                                            << "" << QByteArray("raw") << true << pngMagic;
    QTest::newRow("no-picture") << "a.png"
                                << "" << QByteArray() << false << QByteArray();
    QTest::newRow("unknown-suffix") << "a.xyz"
                                    << "" << QByteArray() << true << QByteArray();
    QTest::newRow("no-suffix") << "a"
                               << "" << QByteArray() << true << QByteArray();
    QTest::newRow("missing-folder") << "none/a.png"
                                    << "" << QByteArray() << true << QByteArray();
}

void TestTextImages::exportFormat()
{
    QFETCH(QString, target);
    QFETCH(QString, link);
    QFETCH(QByteArray, raw);
    QFETCH(bool, hasPicture);
    QFETCH(QByteArray, expected);
    QTextImageFormat format = imageFormat("id");
    if (!link.isEmpty()) {
        QVERIFY(write(path(link), "linked bytes"));
        format.setProperty(MRVTextFormat::ImageLinkProperty, path(link));
    }
    format.setProperty(MRVTextFormat::ImageRawDataProperty, raw);
    const QString file = target.isEmpty() ? QString() : path(target);
    const bool done =
        MRVTextFormat::exportImageFormat(file, format, hasPicture ? picture(Qt::red) : QImage());
    QCOMPARE(done, !expected.isEmpty());
    if (done)
        QCOMPARE(MRVCoreUtil::ReadBinaryFile(file).left(expected.size()), expected);
    else
        QVERIFY(!QFile::exists(file));
}

void TestTextImages::exportOntoLinkedFile()
{
    QVERIFY(write(path("l.png"), "linked bytes"));
    QVERIFY(QFile::link(path("l.png"), path("same.png")));
    QTextImageFormat format = imageFormat("id");
    format.setProperty(MRVTextFormat::ImageLinkProperty, path("l.png"));
    for (const char *name : {"l.png", "./l.png", "same.png"}) {
        QVERIFY(MRVTextFormat::exportImageFormat(path(name), format, picture(Qt::red)));
        QCOMPARE(MRVCoreUtil::ReadBinaryFile(path("l.png")), QByteArray("linked bytes"));
        QVERIFY(QFileInfo(path("same.png")).isSymLink());
    }
}

void TestTextImages::exportFailureLeavesNoStaleFile()
{
    QVERIFY(write(path("a.png"), "old"));
    QVERIFY(!MRVTextFormat::exportImageFormat(path("a.png"), imageFormat("id"), QImage()));
    QVERIFY(!QFile::exists(path("a.png")));
}

void TestTextImages::exportJpegOnWhite()
{
    QVERIFY(MRVTextFormat::exportImageFormat(path("a.jpg"), imageFormat("id"),
                                             picture(Qt::transparent)));
    QVERIFY(QImage(path("a.jpg")).pixelColor(2, 2).lightness() > 250);
}

void TestTextImages::fixHtmlImages_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("id"); // %1 stands for the folder
    QTest::addColumn<QString>("name");
    QTest::newRow("path") << "pic.png"
                          << "%1/pic.png"
                          << "pic";
    QTest::newRow("url") << "pic.png"
                         << "file://%1/pic.png"
                         << "pic";
    QTest::newRow("several-suffixes") << "a.b.png"
                                      << "%1/a.b.png"
                                      << "a";
    QTest::newRow("blank") << "my pic.png"
                           << "%1/my pic.png"
                           << "my pic";
    QTest::newRow("encoded-blank") << "my pic.png"
                                   << "%1/my%20pic.png"
                                   << "my pic";
    QTest::newRow("number-sign") << "a#b.png"
                                 << "%1/a#b.png"
                                 << "a#b";
    QTest::newRow("percent") << "a%b.png"
                             << "%1/a%b.png"
                             << "a%b";
}

void TestTextImages::fixHtmlImages()
{
    QFETCH(QString, file);
    QFETCH(QString, id);
    QFETCH(QString, name);
    const QImage image = picture(Qt::darkGreen);
    const QString newId = MRVGuiUtil::resourceId(image);
    QVERIFY(write(path(file), png(image)));
    const QString oldId = id.arg(m_dir->path());
    QTextDocument document;
    QTextCursor(&document).insertText("a");
    insert(&document, imageFormat(oldId), QImage());
    insert(&document, imageFormat(oldId), QImage());
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText("b", QTextCharFormat());
    const QStringList before = settled(&document);

    MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
    QCOMPARE(ids(document), (QStringList{newId, newId}));
    QCOMPARE(MTextDoc::imageNames(document), (QStringList{name, name}));
    QVERIFY(QFile::remove(path(file)));
    QCOMPARE(MRVGuiUtil::resourceId(resource(document, newId)), newId);
    QCOMPARE(document.toPlainText(), QString("a%1%1b").arg(QChar(0xfffc)));

    document.undo();
    QCOMPARE(documentDump(document), before);
    QVERIFY(!document.isUndoAvailable());
}

// A relative path is looked for in the current folder; Qt by itself looks beside the document.
void TestTextImages::fixHtmlImagesOfFileNotLoadedByQt()
{
    const QString current = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_dir->path()));
    QVERIFY(write("rel.png", png(picture(Qt::cyan))));
    QVERIFY(QDir(m_dir->path()).mkdir("base"));
    QVERIFY(write("base/rel2.png", png(picture(Qt::yellow))));
    QTextDocument document;
    document.setBaseUrl(QUrl::fromLocalFile(path("base/page.html")));
    insert(&document, imageFormat("rel.png"), QImage());
    insert(&document, imageFormat("rel2.png"), QImage());
    MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
    QVERIFY(QDir::setCurrent(current));
    const QStringList expected{MRVGuiUtil::resourceId(picture(Qt::cyan)),
                               MRVGuiUtil::resourceId(picture(Qt::yellow))};
    QCOMPARE(ids(document), expected);
    QVERIFY(!resource(document, expected.at(0)).isNull());
    QVERIFY(!resource(document, expected.at(1)).isNull());
}

void TestTextImages::fixLeavesOthersAlone()
{
    QVERIFY(write(path("text.png"), "no picture"));
    QTextDocument document;
    insert(&document, imageFormat("embedded"), picture(Qt::red));
    insert(&document, imageFormat(path("missing.png")), QImage());
    insert(&document, imageFormat(path("text.png")), QImage());
    insert(&document, imageFormat(m_dir->path()), QImage());
    insert(&document, imageFormat(""), QImage());
    const QStringList before = settled(&document);
    MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
    MTextDoc::fixHtmlImageFormatsAndResourceIds(nullptr);
    QCOMPARE(documentDump(document), before);
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(!document.isModified());
    QVERIFY(!resource(document, "embedded").isNull());
}

void TestTextImages::convertUnique()
{
    QTextDocument document;
    insert(&document, imageFormat("one", "First"), picture(Qt::red));
    QTextCursor(&document).insertText("a");
    insert(&document, imageFormat("two", "Second"), picture(Qt::red));
    insert(&document, imageFormat("two", "Third"), QImage());
    insert(&document, imageFormat("blue"), picture(Qt::blue));
    insert(&document, imageFormat("none"), QImage());
    document.addResource(QTextDocument::ImageResource, QUrl("bytes"), png(picture(Qt::green)));
    insert(&document, imageFormat("bytes"), QImage());
    const QStringList before = settled(&document);

    MTextDoc::convertUniqueImageResources(&document);
    const QString red = MRVGuiUtil::resourceId(picture(Qt::red));
    const QString blue = MRVGuiUtil::resourceId(picture(Qt::blue));
    const QString green = MRVGuiUtil::resourceId(picture(Qt::green));
    QCOMPARE(ids(document), (QStringList{red, red, red, blue, "none", green}));
    QCOMPARE(MTextDoc::imageNames(document),
             (QStringList{"First", "Second", "Third", blue, "none", green}));
    QCOMPARE(resource(document, red), picture(Qt::red));
    QCOMPARE(resource(document, blue), picture(Qt::blue));
    for (const char *old : {"one", "two", "blue", "bytes"})
        QVERIFY2(resource(document, old).isNull(), old);

    document.undo();
    QCOMPARE(documentDump(document), before);
    QVERIFY(!document.isUndoAvailable());
}

// The new id of one image is the old id of another: neither picture may be lost.
void TestTextImages::convertUniqueCrossedIds()
{
    const QString red = MRVGuiUtil::resourceId(picture(Qt::red));
    const QString blue = MRVGuiUtil::resourceId(picture(Qt::blue));
    QTextDocument document;
    insert(&document, imageFormat(blue), picture(Qt::red));
    insert(&document, imageFormat(red), picture(Qt::blue));
    MTextDoc::convertUniqueImageResources(&document);
    QCOMPARE(ids(document), (QStringList{red, blue}));
    QCOMPARE(resource(document, red), picture(Qt::red));
    QCOMPARE(resource(document, blue), picture(Qt::blue));
}

void TestTextImages::convertUniqueWithoutChange()
{
    QTextDocument document;
    insert(&document, imageFormat(MRVGuiUtil::resourceId(picture(Qt::red))), picture(Qt::red));
    insert(&document, imageFormat("none"), QImage());
    settled(&document);
    MTextDoc::convertUniqueImageResources(&document);
    MTextDoc::convertUniqueImageResources(nullptr);
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(!document.isModified());
}

// With a base URL, Qt looks for a resource under the resolved name only.
void TestTextImages::rekeyWithBaseUrl()
{
    QTextDocument document;
    document.setBaseUrl(QUrl("file:///home/writer/page.html"));
    document.addResource(QTextDocument::ImageResource, QUrl("file:///home/writer/old"),
                         picture(Qt::red));
    insert(&document, imageFormat("old"), QImage());
    MTextDoc::convertUniqueImageResources(&document);
    const QString red = MRVGuiUtil::resourceId(picture(Qt::red));
    QCOMPARE(ids(document), QStringList{red});
    QCOMPARE(resource(document, red), picture(Qt::red));
    QVERIFY(resource(document, "old").isNull());
    document.setBaseUrl(QUrl());
    QCOMPARE(resource(document, red), picture(Qt::red));
}

void TestTextImages::onlyOneImage_data()
{
    QTest::addColumn<QStringList>("images");
    QTest::addColumn<bool>("only");
    QTest::newRow("none") << QStringList{} << true;
    QTest::newRow("one") << QStringList{"red"} << true;
    QTest::newRow("others") << QStringList{"red", "blue", "blue"} << true;
    QTest::newRow("side-by-side") << QStringList{"red", "red"} << false;
    QTest::newRow("apart") << QStringList{"red", "blue", "red"} << false;
}

void TestTextImages::onlyOneImage()
{
    QFETCH(QStringList, images);
    QTextDocument document;
    for (const QString &id : images)
        insert(&document, imageFormat(id), QImage());
    // Without pictures, nothing counts.
    QVERIFY(MTextDoc::onlyOneImageWithResourceId(document, "red"));
    document.addResource(QTextDocument::ImageResource, QUrl("red"), picture(Qt::red));
    QTEST(MTextDoc::onlyOneImageWithResourceId(document, "red"), "only");
}

void TestTextImages::lists()
{
    QTextDocument document;
    QTextCursor(&document).insertText("text");
    insert(&document, imageFormat("red", "Rose"), picture(Qt::red));
    insert(&document, imageFormat("red", "Rose"), QImage());
    insert(&document, imageFormat("blue"), picture(Qt::blue));
    insert(&document, imageFormat("gone", "Lost"), QImage());

    QCOMPARE(ids(document), (QStringList{"red", "red", "blue", "gone"}));
    QCOMPARE(MTextDoc::imageResourceIds(document), (QSet<QString>{"red", "blue", "gone"}));
    QCOMPARE(MTextDoc::imageNames(document), (QStringList{"Rose", "Rose", "blue", "Lost"}));
    QCOMPARE(MTextDoc::imagesWithResourceIds(document),
             (QMap<QString, QImage>{{"red", picture(Qt::red)}, {"blue", picture(Qt::blue)}}));
    const QList<QPair<QString, QImage>> named{
        {"Rose", picture(Qt::red)}, {"Rose", picture(Qt::red)}, {"blue", picture(Qt::blue)}};
    QCOMPARE(MTextDoc::imagesWithNames(document), named);

    QCOMPARE(MTextDoc::generateResourceId(picture(Qt::red)),
             MRVGuiUtil::resourceId(picture(Qt::red)));
    QCOMPARE(MTextDoc::toImage(png(picture(Qt::red))).size(), QSize(6, 6));
    QVERIFY(MTextDoc::toImage(QVariant(3)).isNull());
}

void TestTextImages::dumpInfo()
{
    QTextDocument document;
    QTextCursor(&document).insertText("ab");
    QTextImageFormat linked = imageFormat("red", "Rose");
    linked.setProperty(MRVTextFormat::ImageTypeProperty, "JPG");
    linked.setProperty(MRVTextFormat::ImageLinkProperty, "/rose.jpg");
    linked.setProperty(MRVTextFormat::ImageRawDataProperty, QByteArray("1234"));
    insert(&document, linked, picture(Qt::red));
    insert(&document, imageFormat("gone"), QImage());
    QCOMPARE(MTextDoc::dumpImageInfo(document),
             QString("2\tred\tRose\tJPG\t6x6\t4\t/rose.jpg\n"
                     "3\tgone\tgone\tPNG\tnone\t0\t\n"));
    QVERIFY(MTextDoc::dumpImageInfo(QTextDocument()).isEmpty());
}

void TestTextImages::findUniqueString_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QSet<QString>>("taken");
    QTest::addColumn<QString>("expected");
    QTest::newRow("free") << "fig" << QSet<QString>{"other"} << "fig";
    QTest::newRow("first-number") << "fig" << QSet<QString>{"fig"} << "fig_1";
    QTest::newRow("second-number") << "fig" << QSet<QString>{"fig", "fig_1"} << "fig_2";
    QTest::newRow("gap") << "fig" << QSet<QString>{"fig", "fig_2"} << "fig_1";
    QTest::newRow("numbered-base") << "fig_1" << QSet<QString>{"fig_1"} << "fig_1_1";
    QTest::newRow("cleaned") << "a:b?" << QSet<QString>{"a b"} << "a b_1";
    QTest::newRow("file") << "%1/photo.large.png" << QSet<QString>{} << "photo";
    QTest::newRow("empty") << "" << QSet<QString>{} << "";
}

void TestTextImages::findUniqueString()
{
    QFETCH(QString, base);
    QFETCH(QSet<QString>, taken);
    QVERIFY(write(path("photo.large.png"), "x"));
    if (base.contains("%1"))
        base = base.arg(m_dir->path());
    QTEST(MTextDoc::findUniqueString(base, taken), "expected");
}

void TestTextImages::uniqueInDocument()
{
    QTextDocument document;
    insert(&document, imageFormat("id", "Name"), QImage());
    QCOMPARE(MTextDoc::uniqueResourceId(document, "id"), QString("id_1"));
    QCOMPARE(MTextDoc::uniqueResourceId(document, "Name"), QString("Name"));
    QCOMPARE(MTextDoc::uniqueImageName(document, "Name"), QString("Name_1"));
    QCOMPARE(MTextDoc::uniqueImageName(document, "id"), QString("id"));
}

void TestTextImages::mmdImageName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("underscore-and-blank") << "My_photo 1"
                                          << "My-photo-1";
    QTest::newRow("hyphen-between-blanks") << "a - b"
                                           << "a-b";
    QTest::newRow("many") << "a -_- b"
                          << "a-b";
    QTest::newRow("unsafe") << "a/b:c"
                            << "a-b-c";
    QTest::newRow("empty") << ""
                           << "";
}

void TestTextImages::mmdImageName()
{
    QFETCH(QString, name);
    QTEST(MTextDoc::mmdImageName(name), "expected");
}

void TestTextImages::exportIntoFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("mmd");
    QTest::addColumn<QString>("expected"); // empty for failure
    QTest::newRow("default-type") << "Rose" << QString() << false << "Rose.png";
    QTest::newRow("type") << "Rose"
                          << "JPG" << false << "Rose.jpg";
    QTest::newRow("name-stays") << "Fig. 1: a_b" << QString() << false << "Fig. 1: a_b.png";
    QTest::newRow("mmd") << "Fig 1: a_b" << QString() << true << "Fig-1-a-b.png";
    QTest::newRow("mmd-nothing-left") << "???" << QString() << true << "image.png";
    QTest::newRow("empty-name") << "" << QString() << false << "";
    QTest::newRow("out-of-the-folder") << "../../Rose" << QString() << false << ".._.._Rose.png";
    QTest::newRow("absolute") << "/etc/Rose" << QString() << false << "_etc_Rose.png";
    QTest::newRow("parent") << ".." << QString() << false << "...png";
    QTest::newRow("type-out-of-the-folder") << "a"
                                            << "/../../B.PNG" << false << "a._.._.._b.png";
    QTest::newRow("unwritable-type") << "Rose"
                                     << "XYZ" << false << "";
    QTest::newRow("long-name") << QString(5000, 'x') << QString() << false
                               << QString(200, 'x') + ".png";
    QTest::newRow("long-wide-name")
        << QString(300, QChar(0x20ac)) << QString() << false << QString(66, QChar(0x20ac)) + ".png";
    QTest::newRow("long-pairs") << QString::fromUtf8("\U0001F339").repeated(99) << QString()
                                << false << QString::fromUtf8("\U0001F339").repeated(50) + ".png";
}

void TestTextImages::exportIntoFolder()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QFETCH(bool, mmd);
    QFETCH(QString, expected);
    QTextDocument document;
    QTextImageFormat format = imageFormat("id", name);
    if (!type.isNull())
        format.setProperty(MRVTextFormat::ImageTypeProperty, type);
    insert(&document, format, picture(Qt::red));
    const QDir folder(path("new/images"));
    const QString file = MTextDoc::exportImageFormat(document, format, folder, mmd, nullptr);
    QVERIFY(folder.exists());
    QCOMPARE(file, expected.isEmpty() ? QString() : folder.path() + '/' + expected);
    QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden),
             expected.isEmpty() ? QStringList() : QStringList{expected});
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{"new"});
}

void TestTextImages::exportUsed()
{
    QTextDocument document;
    const QTextImageFormat format = imageFormat("id", "Rose");
    insert(&document, format, picture(Qt::red));
    const QDir folder(m_dir->path());
    // An existing file is replaced, unless it is one of those in use.
    QVERIFY(write(path("Rose.png"), "old"));
    QCOMPARE(MTextDoc::exportImageFormat(document, format, folder, false, nullptr),
             path("Rose.png"));
    const QSet<QString> used{path("Rose.png")};
    const QString second = MTextDoc::exportImageFormat(document, format, folder, false, &used);
    QCOMPARE(second, path("Rose-1.png"));
    QVERIFY(QImage(second).size() == QSize(6, 6));
    QVERIFY(MTextDoc::exportImageFormat(document, imageFormat("none", "x"), folder, false, nullptr)
                .isEmpty());
}

void TestTextImages::exportAll()
{
    QTextDocument document;
    insert(&document, imageFormat("red", "Rose"), picture(Qt::red));
    insert(&document, imageFormat("none", "Rose"), QImage());
    insert(&document, imageFormat("blue", "Rose"), picture(Qt::blue));
    insert(&document, imageFormat("red", "A_b"), QImage());
    insert(&document, imageFormat("red", "A_b"), QImage());
    const QString folder = path("made/here");
    const QStringList plain = MTextDoc::exportImages(document, folder, false);
    QCOMPARE(fileNames(plain), (QStringList{"Rose.png", "Rose-1.png", "A_b.png", "A_b-1.png"}));
    QCOMPARE(QImage(plain.at(0)).pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(QImage(plain.at(1)).pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), 4);

    const QStringList mmd = MTextDoc::exportImagesToMmd(document, path("mmd"));
    QCOMPARE(fileNames(mmd), (QStringList{"Rose.png", "Rose-1.png", "A-b.png", "A-b-1.png"}));
    QCOMPARE(MTextDoc::exportImages(document, path("mmd2"), true).size(), 4);
}

void TestTextImages::exportNothing()
{
    QVERIFY(MTextDoc::exportImages(QTextDocument(), path("never"), false).isEmpty());
    QVERIFY(!QFile::exists(path("never")));
    QTextDocument document;
    insert(&document, imageFormat("red", "Rose"), picture(Qt::red));
    QVERIFY(write(path("file"), "in the way"));
    QVERIFY(MTextDoc::exportImages(document, path("file"), false).isEmpty());
    QCOMPARE(MRVCoreUtil::ReadBinaryFile(path("file")), QByteArray("in the way"));
}

QTEST_MAIN(TestTextImages)
#include "tst_textimages.moc"
