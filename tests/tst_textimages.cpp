#include "core/mrvcoreutil.h"
#include "datarows.h"
#include "documentdump.h"
#include "gui/mrvguiutil.h"
#include "text/mrvtextformat.h"
#include "text/mtextdoc.h"

#include <QImageReader>
#include <QTextCursor>

namespace {

QImage picture(const QColor &color)
{
    QImage image(6, 6, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

QString idOf(const QColor &color)
{
    return MRVGuiUtil::resourceId(picture(color));
}

bool write(const QString &path, const QByteArray &bytes)
{
    return MRVCoreUtil::WriteBinaryFile(bytes, path);
}

QTextImageFormat imageFormat(const QString &id, const QString &name = QString(),
                             const QString &type = QString(), const QString &link = QString(),
                             const QByteArray &raw = QByteArray())
{
    QTextImageFormat format;
    format.setName(id);
    const QVariant values[] = {link, raw, type, name};
    for (int i = 0; i < 4; ++i)
        if (!values[i].isNull())
            format.setProperty(MRVTextFormat::ImageLinkProperty + i, values[i]);
    return format;
}

/// A document of images, with resources for those that have a colour, and nothing to undo.
struct Document : QTextDocument
{
    Document(std::initializer_list<QPair<QTextImageFormat, QColor>> images)
    {
        QTextCursor cursor(this);
        for (const auto &image : images) {
            if (image.second.isValid())
                addResource(ImageResource, QUrl(image.first.name()), picture(image.second));
            cursor.insertImage(image.first);
        }
        clearUndoRedoStacks();
        setModified(false);
    }
    QStringList ids() const
    {
        QStringList list;
        for (const QTextImageFormat &format : MTextDoc::imageFormats(*this))
            list << MTextDoc::imageResourceId(format);
        return list;
    }
    QImage image(const QString &id) const { return MTextDoc::image(*this, imageFormat(id)); }
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
        QVERIFY(m_dir->isValid() && QDir::setCurrent(m_dir->path()));
    }

    void exportFormat_data()
    {
        addRows("exportedimages.tsv", {"name", "target", "link", "raw", "picture", "expected"});
    }
    void exportFormat()
    {
        QFETCH(QString, target);
        QFETCH(QString, link);
        QFETCH(QString, raw);
        QFETCH(QString, expected);
        QVERIFY(link.isEmpty() || write(path(link), "linked bytes"));
        const QString file = target.isEmpty() ? "" : path(target);
        // A failure leaves no file of before, either.
        QVERIFY(target.isEmpty() || target.contains('/') || write(file, "old"));
        const QTextImageFormat format =
            imageFormat("id", "", "", link.isEmpty() ? "" : path(link), raw.toLatin1());
        QFETCH(QString, picture);
        const bool done = MRVTextFormat::exportImageFormat(
            file, format, picture.isEmpty() ? QImage() : ::picture(Qt::red));
        QCOMPARE(done, !expected.isEmpty());
        QCOMPARE(QFile::exists(file), done);
        const QByteArray type = QImageReader::imageFormat(file);
        if (done)
            QCOMPARE(type.isEmpty() ? MRVCoreUtil::ReadBinaryFile(file) : type,
                     expected.toLatin1());
    }

    void exportOntoLinkedFile()
    {
        QVERIFY(write(path("l.png"), "linked bytes")
                && QFile::link(path("l.png"), path("same.png")));
        for (const char *name : {"l.png", "./l.png", "same.png"}) {
            QVERIFY(MRVTextFormat::exportImageFormat(
                path(name), imageFormat("id", "", "", path("l.png")), picture(Qt::red)));
            QCOMPARE(MRVCoreUtil::ReadBinaryFile(path("l.png")), QByteArray("linked bytes"));
            QVERIFY(QFileInfo(path("same.png")).isSymLink());
        }
    }

    void exportJpegOnWhite()
    {
        QVERIFY(MRVTextFormat::exportImageFormat(path("a.jpg"), imageFormat("id"),
                                                 picture(Qt::transparent)));
        QVERIFY(QImage(path("a.jpg")).pixelColor(2, 2).lightness() > 250);
    }

    void fixHtmlImages_data() { addRows("htmlimages.tsv", {"row", "file", "id", "name"}); }
    void fixHtmlImages()
    {
        QFETCH(QString, file);
        QFETCH(QString, id);
        QFETCH(QString, name);
        QVERIFY(QDir(m_dir->path()).mkdir("base"));
        QVERIFY(picture(Qt::green).save(path(file)));
        id.replace("%1", m_dir->path());
        Document document{{imageFormat(id), QColor()}, {imageFormat(id), QColor()}};
        document.setBaseUrl(QUrl::fromLocalFile(path("base/page.html")));
        const QStringList before = documentDump(document);
        MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
        QCOMPARE(document.ids(), (QStringList{idOf(Qt::green), idOf(Qt::green)}));
        QCOMPARE(MTextDoc::imageNames(document), (QStringList{name, name}));
        QVERIFY(QFile::remove(path(file)));
        QCOMPARE(MRVGuiUtil::resourceId(document.image(idOf(Qt::green))), idOf(Qt::green));
        document.undo();
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable());
    }

    void fixAndConvertLeaveOthersAlone()
    {
        QVERIFY(write(path("text.png"), "no picture"));
        Document document{{imageFormat("embedded"), Qt::red},
                          {imageFormat(path("missing.png")), QColor()},
                          {imageFormat(path("text.png")), QColor()},
                          {imageFormat(m_dir->path()), QColor()},
                          {imageFormat(""), QColor()}};
        const QStringList before = documentDump(document);
        MTextDoc::fixHtmlImageFormatsAndResourceIds(&document);
        MTextDoc::fixHtmlImageFormatsAndResourceIds(nullptr);
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable() && !document.isModified());
        QCOMPARE(document.image("embedded"), picture(Qt::red));
        Document unique{{imageFormat(idOf(Qt::red)), Qt::red}, {imageFormat("none"), QColor()}};
        MTextDoc::convertUniqueImageResources(&unique);
        MTextDoc::convertUniqueImageResources(nullptr);
        QVERIFY(!unique.isUndoAvailable() && !unique.isModified());
    }

    // Equal images side by side are one run, and each has to be re-keyed.
    void convertUnique()
    {
        Document document{
            {imageFormat("one", "First"), Qt::red},   {imageFormat("two", "Second"), Qt::red},
            {imageFormat("two", "Second"), QColor()}, {imageFormat("two", "Third"), QColor()},
            {imageFormat("blue"), Qt::blue},          {imageFormat("none"), QColor()}};
        const QStringList before = documentDump(document);
        MTextDoc::convertUniqueImageResources(&document);
        const QString red = idOf(Qt::red), blue = idOf(Qt::blue);
        QCOMPARE(document.ids(), (QStringList{red, red, red, red, blue, "none"}));
        QCOMPARE(MTextDoc::imageNames(document),
                 (QStringList{"First", "Second", "Second", "Third", blue, "none"}));
        QCOMPARE(document.image(red), picture(Qt::red));
        QCOMPARE(document.image(blue), picture(Qt::blue));
        for (const char *old : {"one", "two", "blue"})
            QVERIFY2(document.image(old).isNull(), old);
        document.undo();
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable());
    }

    // The new id of one image is the old id of another: neither picture may be lost.
    void convertUniqueCrossedIds()
    {
        const QString red = idOf(Qt::red), blue = idOf(Qt::blue);
        Document document{{imageFormat(blue), Qt::red}, {imageFormat(red), Qt::blue}};
        MTextDoc::convertUniqueImageResources(&document);
        QCOMPARE(document.ids(), (QStringList{red, blue}));
        QCOMPARE(document.image(red), picture(Qt::red));
        QCOMPARE(document.image(blue), picture(Qt::blue));
    }

    // With a base URL, Qt looks for a resource under the resolved name only.
    void convertUniqueWithBaseUrl()
    {
        Document document{{imageFormat("old"), QColor()}};
        document.setBaseUrl(QUrl("file:///home/writer/page.html"));
        document.addResource(QTextDocument::ImageResource, QUrl("file:///home/writer/old"),
                             picture(Qt::red));
        MTextDoc::convertUniqueImageResources(&document);
        QCOMPARE(document.ids(), QStringList{idOf(Qt::red)});
        QVERIFY(document.image("old").isNull());
        document.setBaseUrl(QUrl());
        QCOMPARE(document.image(idOf(Qt::red)), picture(Qt::red));
    }

    void lists()
    {
        QTextImageFormat rose = imageFormat("red", "Rose", "JPG", "/rose.jpg", "1234");
        Document document{{rose, Qt::red},
                          {rose, QColor()},
                          {imageFormat("blue"), Qt::blue},
                          {imageFormat("gone", "Lost"), QColor()},
                          {imageFormat("gone", "Lost"), QColor()}};
        QCOMPARE(document.ids(), (QStringList{"red", "red", "blue", "gone", "gone"}));
        QCOMPARE(MTextDoc::imageResourceIds(document), (QSet<QString>{"red", "blue", "gone"}));
        QCOMPARE(MTextDoc::imageNames(document),
                 (QStringList{"Rose", "Rose", "blue", "Lost", "Lost"}));
        const QImage red = picture(Qt::red), blue = picture(Qt::blue);
        QCOMPARE(MTextDoc::imagesWithResourceIds(document),
                 (QMap<QString, QImage>{{"red", red}, {"blue", blue}}));
        QCOMPARE(MTextDoc::imagesWithNames(document),
                 (QList<QPair<QString, QImage>>{{"Rose", red}, {"Rose", red}, {"blue", blue}}));
        QVERIFY(!MTextDoc::onlyOneImageWithResourceId(document, "red"));
        for (const char *id : {"blue", "gone", "none"})
            QVERIFY(MTextDoc::onlyOneImageWithResourceId(document, id));
        QCOMPARE(MTextDoc::dumpImageInfo(document).section('\n', 1, 3),
                 QString("1\tred\tRose\tJPG\t6x6\t4\t/"
                         "rose.jpg\n2\tblue\tblue\tPNG\t6x6\t0\t\n3\tgone\tLost\tPNG\tnone\t0\t"));
        QCOMPARE(MTextDoc::uniqueResourceId(document, "red"), QString("red_1"));
        QCOMPARE(MTextDoc::uniqueResourceId(document, "Rose"), QString("Rose"));
        QCOMPARE(MTextDoc::uniqueImageName(document, "Rose"), QString("Rose_1"));
        QCOMPARE(MTextDoc::uniqueImageName(document, "red"), QString("red"));
    }

    void findUniqueString_data() { addRows("uniquestrings.tsv", {"base", "taken", "expected"}); }
    void findUniqueString()
    {
        QFETCH(QString, base);
        QFETCH(QString, taken);
        QVERIFY(write(path("photo.large.png"), "x"));
        const QStringList list = taken.split(',');
        QTEST(MTextDoc::findUniqueString(base.replace("%1", m_dir->path()),
                                         {list.begin(), list.end()}),
              "expected");
    }

    void mmdImageName()
    {
        const QStringList names{"My_photo 1", "a - b", "a -_- b", "a/b:c", ""};
        QStringList actual;
        for (const QString &name : names)
            actual << MTextDoc::mmdImageName(name);
        QCOMPARE(actual, (QStringList{"My-photo-1", "a-b", "a-b", "a-b-c", ""}));
    }

    void exportIntoFolder_data()
    {
        addRows("imagefilenames.tsv", {"row", "name", "type", "mmd", "expected"});
        const QString rose = QString::fromUtf8("\U0001F339");
        QTest::newRow("long") << "" << QString(5000, 'x') << ""
                              << "" << QString(200, 'x') + ".png";
        QTest::newRow("pairs") << "" << rose.repeated(99) << ""
                               << "" << rose.repeated(50) + ".png";
    }
    void exportIntoFolder()
    {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(QString, mmd);
        QFETCH(QString, expected);
        const QTextImageFormat format =
            imageFormat("id", name.isNull() ? "" : name, type.isEmpty() ? QString() : type);
        const Document document{{format, Qt::red}};
        const QDir folder(path("new/images"));
        const QString file =
            MTextDoc::exportImageFormat(document, format, folder, !mmd.isEmpty(), nullptr);
        QCOMPARE(file, expected.isEmpty() ? QString() : folder.path() + '/' + expected);
        QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden).join('|'), expected);
        QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"new"});
    }

    void exportAll()
    {
        const Document document{{imageFormat("red", "Rose"), Qt::red},
                                {imageFormat("none", "Rose"), QColor()},
                                {imageFormat("blue", "Rose"), Qt::blue},
                                {imageFormat("red", "A_b"), QColor()},
                                {imageFormat("red", "A_b"), QColor()}};
        // A file of before is replaced.
        QVERIFY(write(path("Rose.png"), "old"));
        const auto names = [this](const QStringList &paths) {
            return QString(paths.join('|')).remove(m_dir->path());
        };
        QCOMPARE(names(MTextDoc::exportImages(document, m_dir->path(), false)),
                 QString("/Rose.png|/Rose-1.png|/A_b.png|/A_b-1.png"));
        QCOMPARE(QImage(path("Rose.png")).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(QImage(path("Rose-1.png")).pixelColor(0, 0), QColor(Qt::blue));
        const QString mmd = "/m/d/Rose.png|/m/d/Rose-1.png|/m/d/A-b.png|/m/d/A-b-1.png";
        QCOMPARE(names(MTextDoc::exportImagesToMmd(document, path("m/d"))), mmd);
        QCOMPARE(names(MTextDoc::exportImages(document, path("m/e"), true)).replace("/e/", "/d/"), mmd);

        QVERIFY(MTextDoc::exportImages(Document{}, path("never"), false).isEmpty());
        QVERIFY(!QFile::exists(path("never")));
        QVERIFY(write(path("file"), "in the way"));
        QVERIFY(MTextDoc::exportImages(document, path("file"), false).isEmpty());
        QCOMPARE(MRVCoreUtil::ReadBinaryFile(path("file")), QByteArray("in the way"));
    }
};

QTEST_MAIN(TestTextImages)
#include "tst_textimages.moc"
