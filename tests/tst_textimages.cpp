#include "datarows.h"
#include "document/mrvdocumentpictures.h"
#include "document/mtextdoc.h"
#include "documentdump.h"
#include "gui/mrvguiutil.h"
#include "images.h"
#include "input/mrvguardeddocument.h"
#include "support.h"
#include "textformat/mrvtextformat.h"

#include <QImageReader>
#include <QTextCursor>

namespace {

QImage picture(const QColor &color)
{
    return filledImage(6, 6, color);
}

QString idOf(const QColor &color)
{
    return MRVGuiUtil::resourceId(picture(color));
}

/// An image given as "id;name;colour;type;link;raw"; "@red" is the id made from a red picture.
QTextImageFormat imageFormat(const QString &text)
{
    const QStringList fields = text.split(';');
    QTextImageFormat format;
    format.setName(text.startsWith('@') ? idOf(fields.at(0).mid(1)) : fields.at(0));
    const int properties[] = {MRVTextFormat::ImageNameProperty, 0, MRVTextFormat::ImageTypeProperty,
                              MRVTextFormat::ImageLinkProperty,
                              MRVTextFormat::ImageRawDataProperty};
    for (int i = 1; i < fields.size(); ++i) {
        if (i != 2 && !fields.at(i).isEmpty()) {
            format.setProperty(properties[i - 1], fields.at(i));
        }
    }
    return format;
}

/// A document of images with "|" between them, with resources for those that have a colour.
struct Document : QTextDocument
{
    Document(const QString &text)
    {
        QTextCursor cursor(this);
        for (const QString &image : text.split('|', Qt::SkipEmptyParts)) {
            const QString color = image.section(';', 2, 2);
            if (!color.isEmpty()) {
                addResource(ImageResource, QUrl(imageFormat(image).name()), picture(color));
            }
            cursor.insertImage(imageFormat(image));
        }
        clearUndoRedoStacks();
        setModified(false);
    }
    /// Id, name and colour of each image.
    QString text() const
    {
        QStringList images;
        for (const QTextImageFormat &format : MTextDoc::imageFormats(*this)) {
            const QString id = MRVGuiUtil::resourceId(MTextDoc::image(*this, format));
            images << format.name() + ';' + MTextDoc::imageName(format) + ';' + id;
        }
        QString text = images.join('|');
        for (const QString name : {"red", "green", "blue"}) {
            text.replace(idOf(name), '@' + name);
        }
        return text.replace(";@", ";");
    }
};

} // namespace

class TestTextImages : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    QScopedPointer<QTemporaryDir> m_dir;

private Q_SLOTS:
    void init()
    {
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
        QVERIFY(QDir::setCurrent(m_dir->path()));
    }

    void exportFormat_data() { addRows("exportedimages.tsv"); }
    void exportFormat()
    {
        QFETCH(QString, target);
        QFETCH(QString, link);
        QFETCH(QString, expected);
        QVERIFY(link.isEmpty() || writeBytes(path(link), "linked bytes"));
        const QString file = target.isEmpty() ? "" : path(target);
        // A failure leaves no file of before, either.
        QVERIFY(target.isEmpty() || target.contains('/') || writeBytes(file, "old"));
        const auto format =
            imageFormat("id;;;;" + (link.isEmpty() ? "" : path(link)) + ';' + cell("raw"));
        const bool done = MRVTextFormat::exportImageFormat(
            file, format, cell("picture").isEmpty() ? QImage() : ::picture(Qt::transparent));
        QCOMPARE(done, !expected.isEmpty());
        QCOMPARE(QFile::exists(file), done);
        const QByteArray type = QImageReader::imageFormat(file);
        QVERIFY(type != "jpeg" || QImage(file).pixelColor(2, 2).lightness() > 250);
        if (done) {
            QCOMPARE(type.isEmpty() ? bytesOf(file) : type, expected.toLatin1());
        }
    }

    void exportOntoLinkedFile()
    {
        QVERIFY(writeBytes(path("l.png"), "linked bytes"));
        QVERIFY(QFile::link(path("l.png"), path("same.png")));
        for (const char *name : {"l.png", "./l.png", "same.png"}) {
            QVERIFY(MRVTextFormat::exportImageFormat(
                path(name), imageFormat("id;;;;" + path("l.png")), picture(Qt::red)));
            QCOMPARE(bytesOf(path("l.png")), QByteArray("linked bytes"));
            QVERIFY(QFileInfo(path("same.png")).isSymLink());
        }
    }

    void rekey_data() { addRows("rekeyedimages.tsv"); }
    // In one undo step, or in none if nothing changes; resources of old ids are gone.
    void rekey()
    {
        QFETCH(QString, images);
        QFETCH(QString, file);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QVERIFY(QDir().mkdir("base"));
        QVERIFY(writeBytes(path("text.png"), "no picture"));
        QVERIFY(file.isEmpty() || picture("green").save(path(file)));
        Document document(before.replace("%1", m_dir->path()));
        document.addResource(QTextDocument::ImageResource, QUrl::fromLocalFile(path("base/beside")),
                             picture("red"));
        if (before == "beside" || file.startsWith("base/")) {
            document.setBaseUrl(QUrl::fromLocalFile(path("base/page.html")));
        }
        const QStringList dump = documentDump(document);
        const QList<QTextImageFormat> old = MTextDoc::imageFormats(document);
        const auto convert = images == "html" ? MTextDoc::fixHtmlImageFormatsAndResourceIds
                                              : MTextDoc::convertUniqueImageResources;
        convert(&document);
        convert(nullptr);
        QVERIFY(file.isEmpty() || QFile::remove(path(file)));
        QCOMPARE(document.text(), after.replace("%1", m_dir->path()));
        // Qt keeps what it has loaded from a file by itself.
        for (const QTextImageFormat &format : old) {
            QVERIFY(images == "html" || after.contains(format.name())
                    || format.name().startsWith("img-")
                    || MTextDoc::image(document, format).isNull());
        }
        document.setBaseUrl(QUrl());
        QCOMPARE(document.text(), after);
        const bool changed = documentDump(document) != dump;
        QCOMPARE(document.isModified(), changed);
        document.undo();
        QCOMPARE(documentDump(document), dump);
        QVERIFY(!document.isUndoAvailable());
        QCOMPARE(document.isRedoAvailable(), changed);
        document.redo();
        QCOMPARE(document.text(), after);
    }

    // With the ids, the pictures come back, and only while the step is there.
    void undoneIds()
    {
        Document document("@blue;A;red|@red;B;blue|file;;green");
        const QString before = document.text();
        MTextDoc::convertUniqueImageResources(&document);
        const QString after = document.text();
        QTextCursor(&document).insertText("typed");
        for (int i = 0; i < 2; ++i) {
            document.undo();
            document.undo();
            QCOMPARE(document.text(), before);
            document.redo();
            QCOMPARE(document.text(), after);
        }
        document.undo();
        QTextCursor(&document).insertText("typed");
        QCOMPARE(document.text(), before);
        MTextDoc::convertUniqueImageResources(&document);
        document.clearUndoRedoStacks();
        document.addResource(QTextDocument::ImageResource, QUrl("file"), picture("red"));
        QTextCursor(&document).insertText("typed");
        document.undo();
        QCOMPARE(document.text(), after);
        QCOMPARE(MTextDoc::image(document, imageFormat("file")), picture("red"));
    }

    void lists()
    {
        const Document document("red;Rose;red;JPG;/rose.jpg;1234|red;Rose;;JPG;/"
                                "rose.jpg;1234|blue;;blue|gone;Lost|gone;Lost");
        QCOMPARE(MTextDoc::imageResourceIds(document), (QSet<QString>{"red", "blue", "gone"}));
        QCOMPARE(MTextDoc::imageNames(document),
                 (QStringList{"Rose", "Rose", "blue", "Lost", "Lost"}));
        const QImage red = picture(Qt::red), blue = picture(Qt::blue);
        QCOMPARE(MTextDoc::imagesWithResourceIds(document),
                 (QMap<QString, QImage>{{"red", red}, {"blue", blue}}));
        QCOMPARE(MTextDoc::imagesWithNames(document),
                 (QList<QPair<QString, QImage>>{{"Rose", red}, {"Rose", red}, {"blue", blue}}));
        QVERIFY(!MTextDoc::onlyOneImageWithResourceId(document, "red"));
        for (const char *id : {"blue", "gone", "none"}) {
            QVERIFY(MTextDoc::onlyOneImageWithResourceId(document, id));
        }
        QCOMPARE(MTextDoc::dumpImageInfo(document).section('\n', 1, 1),
                 QString("1\tred\tRose\tJPG\t6x6\t4\t/rose.jpg"));
        QCOMPARE(MTextDoc::dumpImageInfo(document).section('\n', 3, 3),
                 QString("3\tgone\tLost\tPNG\tnone\t0\t"));
        QCOMPARE(MTextDoc::uniqueResourceId(document, "red"), QString("red_1"));
        QCOMPARE(MTextDoc::uniqueImageName(document, "Rose"), QString("Rose_1"));
        QCOMPARE(MTextDoc::uniqueImageName(document, "red"), QString("red"));
    }

    void names_data() { addRows("imagenames.tsv"); }
    void names()
    {
        QFETCH(QString, name);
        QVERIFY(writeBytes(path("photo.large.png"), "x"));
        const QStringList list = cell("taken").split(',');
        const QSet<QString> set(list.begin(), list.end());
        QTEST(cell("kind") == "mmd"
                  ? MTextDoc::mmdImageName(name)
                  : MTextDoc::findUniqueString(name.replace("%1", m_dir->path()), set),
              "expected");
    }

    void exportIntoFolder_data()
    {
        addRows("imagefilenames.tsv");
        const QString rose = QString::fromUtf8("\U0001F339");
        QTest::newRow("long") << "" << QString(5000, 'x') << ""
                              << "" << QString(200, 'x') + ".png";
        QTest::newRow("pairs") << "" << rose.repeated(99) << ""
                               << "" << rose.repeated(50) + ".png";
    }
    void exportIntoFolder()
    {
        QFETCH(QString, expected);
        const Document document("id;;red");
        QTextImageFormat format = imageFormat("id;;;" + cell("type"));
        format.setProperty(MRVTextFormat::ImageNameProperty, cell("name"));
        const QDir folder(path("new/images"));
        const QString file =
            MTextDoc::exportImageFormat(document, format, folder, !cell("mmd").isEmpty(), nullptr);
        QCOMPARE(file, expected.isEmpty() ? QString() : folder.path() + '/' + expected);
        QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden).join('|'), expected);
        QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"new"});
    }

    void exportAll()
    {
        const Document document("red;Rose;red|none;Rose|blue;Rose;blue|red;A_b|red;A_b");
        // A file of before is replaced.
        QVERIFY(writeBytes(path("Rose.png"), "old"));
        const auto names = [this](const QStringList &paths) {
            return QString(paths.join('|')).remove(m_dir->path());
        };
        QCOMPARE(names(MTextDoc::exportImages(document, m_dir->path(), false)),
                 QString("/Rose.png|/Rose-1.png|/A_b.png|/A_b-1.png"));
        QCOMPARE(QImage(path("Rose.png")).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(QImage(path("Rose-1.png")).pixelColor(0, 0), QColor(Qt::blue));
        const QString mmd = "/m/d/Rose.png|/m/d/Rose-1.png|/m/d/A-b.png|/m/d/A-b-1.png";
        for (int i = 0; i < 2; ++i) { // no more files for the second time
            QCOMPARE(names(MTextDoc::exportImagesToMmd(document, path("m/d"))), mmd);
        }
        QCOMPARE(names(MTextDoc::exportImages(document, path("m/e"), true)).replace("/e/", "/d/"),
                 mmd);

        // A file that an image links to stays, though another image has its name.
        QVERIFY(filledImage(9, 9, Qt::green).save(path("b.png")));
        const Document linked("b;;red|b;;;;" + path("b.png"));
        QCOMPARE(names(MTextDoc::exportImages(linked, m_dir->path(), false)), "/b-1.png|/b.png");
        QCOMPARE(QImage(path("b.png")).width(), 9);

        QVERIFY(MTextDoc::exportImages(QTextDocument(), path("never"), false).isEmpty());
        QVERIFY(!QFile::exists(path("never")));
        QVERIFY(writeBytes(path("file"), "in the way"));
        QVERIFY(MTextDoc::exportImages(document, path("file"), false).isEmpty());
        QCOMPARE(bytesOf(path("file")), QByteArray("in the way"));
    }

    // However the document shows a photo, it is written as it is, and seen upright.
    void photosOfShownDocument()
    {
        const QByteArray photo = turnedPhoto();
        QVERIFY(writeBytes(path("a.jpg"), photo));
        const QString url = QUrl::fromLocalFile(path("a.jpg")).toString();
        const QString linked = "id;;;;" + path("a.jpg");
        for (const QString &image : {url, linked}) {
            Document document(image);
            document.addResource(QTextDocument::ImageResource, QUrl("id"), QImage(path("a.jpg")));
            QVERIFY(document.resource(QTextDocument::ImageResource, QUrl(url)).isValid());
            QCOMPARE(MRVDocumentPictures(document).all().at(0).bytes(), photo);
            MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
            if (image == url) {
                QCOMPARE(MTextDoc::image(document, MTextDoc::imageFormats(document).at(0)).size(),
                         QSize(32, 64));
            }
            QCOMPARE(MRVDocumentPictures(document).all().at(0).bytes(), photo);
        }
    }

    // In the bytes that they came in.
    void exportsEncoded()
    {
        const QByteArray photo = turnedPhoto();
        const QByteArray gif = QByteArray::fromHex(
            "47494638396101000100 800000 000000ffffff 2c00000000010001000002024401003b");
        QVERIFY(writeBytes(path("a.jpg"), photo));
        QVERIFY(writeBytes(path("b.gif"), gif));
        QVERIFY(picture("red").save(path("c.png")));
        Document document(path("a.jpg") + '|' + path("b.gif") + '|' + path("c.png"));
        MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
        const QStringList files = MTextDoc::exportImages(document, path("to"), false);
        QCOMPARE(QDir(path("to")).entryList(QDir::Files), (QStringList{"a.jpg", "b.gif", "c.png"}));
        QCOMPARE(bytesOf(files.at(0)), photo);
        QCOMPARE(bytesOf(files.at(1)), gif);
    }

    /// Pictures in files of their own: as they are where browsers show them, else as PNG.
    void documentPictures()
    {
        const QByteArray photo = turnedPhoto();
        const QByteArray svg = "<svg width='30000' height='30000' onload='a()'><script>a()</script>"
                               "<style>@import 'a.css';a{fill:url(#a);mask:URL(a.png)}</style>"
                               "<rect fill='url(http://a)' aria-label='url(a)'/><set "
                               "attributeName='xlink:href' to='a'/><image href='a.png'/><a "
                               "href='a'>text</a><use xlink:href='#c' href='b.svg#c'/></svg>";
        const QByteArray safe =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><svg xmlns=\"http://www.w3.org/2000/svg\" "
            "xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
            "width=\"30000\" height=\"30000\"><style>a{fill:url(#a);mask:none}</style>"
            "<rect fill=\"none\" aria-label=\"url(a)\"/><g/><a>text</a>"
            "<use xlink:href=\"#c\"/></svg>";
        QVERIFY(writeBytes(path("photo.jpg"), photo));
        QVERIFY(writeBytes(path("same.jpg"), photo));
        QVERIFY(writeBytes(path("drawing.svg"), svg));
        QVERIFY(picture(Qt::red).save(path("red.bmp")));
        MRVGuardedDocument document;
        document.addResource(QTextDocument::ImageResource, QUrl("pixels"), picture(Qt::blue));
        QTextCursor cursor(&document);
        const QStringList ids{"photo.jpg", "same.jpg", "drawing.svg", "red.bmp", "pixels", "none"};
        for (const QString &id : ids) {
            const QUrl url = QUrl::fromLocalFile(path(id));
            cursor.insertImage(imageFormat(id.contains('.') ? url.toString() : id));
        }
        const MRVDocumentPictures pictures(document);
        QStringList types;
        for (const MRVDocumentPicture &picture : pictures.all()) {
            const QSize size = picture.size();
            types << QString("%1 %2x%3")
                         .arg(picture.mediaType())
                         .arg(size.width())
                         .arg(size.height());
        }
        QCOMPARE(types,
                 (QStringList{"image/jpeg 32x64", "image/svg+xml 30000x30000", "image/png 6x6",
                              "image/png 6x6"}));
        QCOMPARE(pictures.indexOf(QUrl::fromLocalFile(path("same.jpg")).toString()), 0);
        QCOMPARE(pictures.indexOf("none"), -1);
        QCOMPARE(pictures.missing().size(), 1);
        QCOMPARE(pictures.all().at(0).bytes(), photo);
        QCOMPARE(pictures.all().at(1).bytes(), safe);
        QCOMPARE(QImage::fromData(pictures.all().at(3).bytes()), picture(Qt::blue));

        QString error;
        QVERIFY(writeBytes(path("photo.jpg"), photo + ' '));
        QCOMPARE(pictures.all().at(0).bytes(&error), QByteArray());
        QVERIFY(error.contains("changed"));
    }
};

QTEST_MAIN(TestTextImages)
#include "tst_textimages.moc"
