#include "datarows.h"
#include "support.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilebatch.h"
#include "core/mrvfilewriter.h"
#include "core/mrvinputlimits.h"
#include "core/mrvpartialfile.h"
#include "dom/mrvdomdoc.h"
#include "epub/mrvbooklist.h"
#include "epub/mrvepubpackage.h"
#include "gui/mrvpicturereader.h"
#include "manuscript/mrvmanuscriptreader.h"
#include "manuscript/mrvsourcefile.h"
#include "options/mrvoptionsfile.h"
#include "pdf/mrvmanuscriptpdf.h"
#include "pdf/mrvscriptpdf.h"
#include "presets/mrvtextpresetscheme.h"
#include "publish/mrvpagepublisher.h"
#include "screenplay/mrvfountain.h"
#include "scriptmode/mrvscriptmode.h"
#include "settings/mrvsettings.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <QTextCursor>
#include <QTextDocument>

#include <csignal>
#include <ctime>
#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

Q_DECLARE_METATYPE(MRVErrorKind)

namespace {

using Kind = MRVErrorKind;
/** Saves or loads the file; false on failure. */
using Operation = std::function<bool(const QString &path, MRVErrorSink error)>;

// What stands in a file before it is saved over: anything may be replaced but by settings.
const QByteArray Old = "[General]\nnovel=old\n";

/// What a user may not do who is not the administrator; nothing changes where the tests have one.
class Unprivileged
{
public:
    Unprivileged()
        : m_isRoot(::getuid() == 0)
    {
        m_isRoot = m_isRoot && ::setresuid(Nobody, Nobody, 0) == 0;
    }
    ~Unprivileged()
    {
        if (m_isRoot && ::setresuid(0, 0, 0) != 0) {
            qFatal("the user's identity is lost");
        }
    }
    Q_DISABLE_COPY(Unprivileged)

private:
    static constexpr uid_t Nobody = 65534;
    bool m_isRoot;
};

/** Writes beyond some bytes fail as they do on a full disk. */
class FullDisk
{
public:
    FullDisk()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{200, m_old.rlim_max}; // the files beside it are smaller
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_old); }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_old;
};

const QMap<QString, Operation> &saving()
{
    static const QByteArray bytes = QByteArray("a million words").repeated(20);
    static const QMap<QString, Operation> operations{
        {"bytes",
         [](const QString &path, MRVErrorSink error) {
             return MRVCoreUtil::WriteBinaryFile(bytes, path, error);
         }},
        {"text",
         [](const QString &path, MRVErrorSink error) {
             return MRVCoreUtil::WriteUnicodeTextFile(bytes, path, error);
         }},
        {"batch",
         [](const QString &path, MRVErrorSink error) {
             MRVFileBatch batch;
             if (!batch.add(path, bytes, error)) {
                 return false;
             }
             const QMap<QString, MRVError> failed = batch.commit();
             error.set(failed.value(path));
             return failed.isEmpty();
         }},
        {"piece by piece",
         [](const QString &path, MRVErrorSink error) {
             MRVPartialFile file(path);
             return file.open(error) && file.restart(QByteArray(), error)
                 && file.append(bytes, error) && file.putInPlace(error);
         }},
        {"source",
         [](const QString &path, MRVErrorSink error) {
             return MRVSourceFile::replace(path, Old, bytes, nullptr, error);
         }},
        {"source with a backup",
         [](const QString &path, MRVErrorSink error) {
             QString backup;
             return MRVSourceFile::replace(path, Old, bytes, &backup, error);
         }},
        {"page",
         [](const QString &path, MRVErrorSink error) {
             QTextDocument document("a million words");
             MRVPagePublisher publisher;
             return publisher.add(&document, "en", path, error)
                 && publisher.publish(nullptr, error);
         }},
        {"page without the others",
         [](const QString &path, MRVErrorSink error) {
             QTextDocument document("a million words");
             return MRVTextXhtmlExporter(&document).toFile(MRVTextXhtmlExporter::Xhtml, path, false,
                                                           QString(), error);
         }},
        {"e-book",
         [](const QString &path, MRVErrorSink error) {
             MRVEPubPackage package;
             return package.addDocument(QTextDocument("a million words"), QString(), error)
                 && package.write(path, error);
         }},
        {"presets",
         [](const QString &path, MRVErrorSink error) {
             return MRVTextPresetScheme::defaultScheme().save(path, error);
         }},
        {"shortcuts",
         [](const QString &path, MRVErrorSink error) {
             return MRVShortcutScheme::morvane().save(path, error);
         }},
        {"script mode",
         [](const QString &path, MRVErrorSink error) {
             MRVScriptMode mode;
             mode.loadFactoryDefaults();
             return mode.save(path, error);
         }},
        {"XML",
         [](const QString &path, MRVErrorSink error) {
             MRVDomDoc document;
             document.setRoot("novel", bytes);
             return document.save(path, error);
         }},
        {"settings",
         [](const QString &path, MRVErrorSink error) {
             MRVSettings settings(QFileInfo(path).path() + "/others", QSettings::IniFormat);
             settings.QSettings::setValue("novel", bytes);
             const bool isSaved = settings.saveToFile(path, error);
             settings.revert();
             return isSaved;
         }},
    };
    return operations;
}

const QMap<QString, Operation> &loading()
{
    static const auto hasNoError = [](const auto &load, MRVErrorSink error) {
        MRVError found;
        load(&found);
        error.set(found);
        return !found;
    };
    static const QMap<QString, Operation> operations{
        {"bytes",
         [](const QString &path, MRVErrorSink error) {
             return hasNoError([&](auto *e) { MRVCoreUtil::ReadBinaryFile(path, e); }, error);
         }},
        {"text",
         [](const QString &path, MRVErrorSink error) {
             return hasNoError([&](auto *e) { MRVCoreUtil::ReadUnicodeTextFile(path, e); }, error);
         }},
        {"picture",
         [](const QString &path, MRVErrorSink error) {
             return !MRVPictureReader::ofFile(path).read(error).isNull();
         }},
        {"manuscript",
         [](const QString &path, MRVErrorSink error) {
             MRVManuscript manuscript;
             MRVManuscriptReader reader;
             const bool isRead = reader.read(path, &manuscript);
             error.set({reader.errorKind(), reader.errorString()});
             return isRead;
         }},
        {"book list",
         [](const QString &path, MRVErrorSink error) {
             QVector<MRVBookListEntry> entries;
             return MRVBookList::read(path, &entries, error);
         }},
        {"metadata",
         [](const QString &path, MRVErrorSink error) {
             return MRVEPubMetadata().readFile(path, nullptr, error);
         }},
        {"cover",
         [](const QString &path, MRVErrorSink error) {
             return MRVEPubMetadata().readCover(path, error);
         }},
        {"presets",
         [](const QString &path, MRVErrorSink error) {
             return hasNoError([&](auto *e) { MRVTextPresetScheme::load(path, e); }, error);
         }},
        {"shortcuts",
         [](const QString &path, MRVErrorSink error) {
             return hasNoError([&](auto *e) { MRVShortcutScheme::load(path, e); }, error);
         }},
        {"script mode",
         [](const QString &path, MRVErrorSink error) { return MRVScriptMode().load(path, error); }},
        {"options",
         [](const QString &path, MRVErrorSink error) {
             return MRVOptionsFile().open(path, MRVOptionsFile::Read, error);
         }},
    };
    return operations;
}

/** Exports a document; false on failure. */
using Followed = std::function<bool(const QTextDocument &document, const QString &path,
                                    const MRVProgress &progress, MRVErrorSink error)>;

const QMap<QString, Followed> &following()
{
    static const QMap<QString, Followed> operations{
        {"adding to an e-book",
         [](const QTextDocument &document, const QString &, const MRVProgress &progress,
            MRVErrorSink error) {
             MRVEPubPackage package;
             package.setProgress(progress);
             return package.addDocument(document, QString(), error);
         }},
        {"packing an e-book",
         [](const QTextDocument &document, const QString &path, const MRVProgress &progress,
            MRVErrorSink error) {
             MRVEPubOptions options;
             options.packing = MRVEPubOptions::Small;
             MRVEPubPackage package(MRVEPubVersion::EPub3, MRVEPubMetadata(), options);
             const bool isAdded = package.addDocument(document, QString(), error);
             package.setProgress(progress);
             return isAdded && package.write(path, error);
         }},
        {"PDF",
         [](const QTextDocument &document, const QString &, const MRVProgress &progress,
            MRVErrorSink error) {
             MRVManuscriptPdf pdf((MRVPrintOptions()));
             pdf.addDocument(document);
             pdf.setProgress(progress);
             QByteArray bytes;
             return pdf.toByteArray(&bytes, error);
         }},
        {"PDF of a script",
         [](const QTextDocument &, const QString &, const MRVProgress &progress,
            MRVErrorSink error) {
             MRVScriptMode mode;
             mode.loadFactoryDefaults();
             MRVScriptPdf::Options options;
             options.progress = progress;
             const QString scene = "INT. HOUSE - DAY\n\nRain.\n\nANN\nCome in.\n\n";
             return !MRVScriptPdf::toByteArray(MRVFountainScript::fromText(scene.repeated(2000)),
                                               mode, options, error)
                         .isEmpty();
         }},
        {"page",
         [](const QTextDocument &document, const QString &path, const MRVProgress &progress,
            MRVErrorSink error) {
             const std::unique_ptr<QTextDocument> copy(document.clone());
             MRVPageOptions options;
             options.type = MRVTextXhtmlExporter::Xhtml;
             MRVPagePublisher publisher(options);
             publisher.setProgress(progress);
             return publisher.add(copy.get(), QString(), path, error)
                 && publisher.publish(nullptr, error);
         }},
        {"reading",
         [](const QTextDocument &document, const QString &, const MRVProgress &progress,
            MRVErrorSink error) {
             MRVManuscriptReader reader;
             reader.setProgress(progress);
             reader.setMissingPictures(MRVManuscriptReader::Keep);
             MRVManuscript manuscript;
             const bool isRead =
                 reader.readBytes(document.toHtml().toUtf8(), "novel", QString(), &manuscript);
             error.set({reader.errorKind(), reader.errorString()});
             return isRead;
         }},
        {"converting",
         [](const QTextDocument &document, const QString &, const MRVProgress &progress,
            MRVErrorSink error) {
             MRVManuscriptReader reader;
             reader.setProgress(progress);
             MRVManuscript manuscript;
             const bool isRead = reader.readBytes(
                 "{\\rtf1\\ansi " + document.toPlainText().left(100000).toUtf8() + '}', "novel",
                 QString(), &manuscript);
             error.set({reader.errorKind(), reader.errorString()});
             return isRead;
         }},
    };
    return operations;
}

QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator entry(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (entry.hasNext()) {
        entry.next();
        files.insert(entry.filePath(), bytesOf(entry.filePath()));
    }
    return files;
}

} // namespace

/** The kinds of failures: what a program is told of each, and that it loses nothing. */
class tst_Errors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // Where another user may go, too, whatever the folder of the build allows.
        m_folder = std::make_unique<QTemporaryDir>("/tmp/tst_errors-XXXXXX");
        QVERIFY(m_folder->isValid());
    }

    void savingFails_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<Kind>("kind");
        const QVector<QPair<QString, Kind>> faults{{"full", Kind::NoSpace},
                                                   {"forbidden", Kind::NoPermission},
                                                   {"protected", Kind::NoPermission},
                                                   {"missing", Kind::NotFound}};
        for (const QString &operation : saving().keys()) {
            for (const auto &[fault, kind] : faults) {
                // What has to be there is missing because somebody has taken it away.
                const bool isChange = fault == "missing" && operation.startsWith("source");
                QTest::addRow("%s, %s", qPrintable(operation), qPrintable(fault))
                    << operation << fault << (isChange ? Kind::Changed : kind);
            }
        }
    }
    void savingFails()
    {
        QFETCH(QString, operation);
        QFETCH(QString, fault);
        QFETCH(MRVErrorKind, kind);
        const QString path = m_folder->filePath(fault == "missing" ? "novel/novel" : "novel");
        QVERIFY(writeBytes(m_folder->filePath("novel"), Old));
        // A folder that lets nobody in is not told from one without the file.
        QCOMPARE(::chmod(qPrintable(m_folder->path()), fault == "protected" ? 0777 : 0755), 0);
        QCOMPARE(::chmod(qPrintable(m_folder->filePath("novel")), 0444), 0);
        const QMap<QString, QByteArray> before = filesBelow(m_folder->path());
        MRVError error;
        bool isSaved = true;
        if (fault == "full") {
            QCOMPARE(::chmod(qPrintable(m_folder->filePath("novel")), 0644), 0);
            const FullDisk full;
            isSaved = saving()[operation](path, &error);
        } else if (fault == "missing") {
            isSaved = saving()[operation](path, &error);
        } else {
            const Unprivileged user;
            isSaved = saving()[operation](path, &error);
        }
        QVERIFY(!isSaved);
        QVERIFY2(error.kind == kind, qPrintable(error.text));
        QVERIFY2(error.text.contains(m_folder->path()), qPrintable(error.text));
        QCOMPARE(filesBelow(m_folder->path()), before);
    }

    void loadingFails_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<Kind>("kind");
        const QVector<QPair<QString, Kind>> faults{{"missing", Kind::NotFound},
                                                   {"forbidden", Kind::NoPermission},
                                                   {"damaged", Kind::Damaged},
                                                   {"huge", Kind::TooLarge}};
        for (const QString &operation : loading().keys()) {
            for (const auto &[fault, kind] : faults) {
                const bool isAnyGood = operation == "bytes" && fault == "damaged";
                // It begins like no settings, and is looked at no further.
                const bool isOther = operation == "options" && fault == "huge";
                if (!isAnyGood) {
                    QTest::addRow("%s, %s", qPrintable(operation), qPrintable(fault))
                        << operation << fault << (isOther ? Kind::Damaged : kind);
                }
            }
        }
    }
    void loadingFails()
    {
        QFETCH(QString, operation);
        QFETCH(QString, fault);
        QFETCH(MRVErrorKind, kind);
        const QString path = m_folder->filePath("novel.md");
        QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
        QVERIFY(fault == "missing" || writeBytes(path, "\x89PNG\r\n\x1a\n\xff\xfe damaged"));
        QVERIFY(fault != "forbidden" || ::chmod(qPrintable(path), 0) == 0);
        QVERIFY(fault != "huge" || QFile::resize(path, MRVInputLimits::FileBytes + 1));
        MRVError error;
        bool isLoaded = true;
        {
            const Unprivileged user;
            isLoaded = loading()[operation](path, &error);
        }
        QVERIFY(!isLoaded);
        QVERIFY2(error.kind == kind, qPrintable(error.text));
    }

    // The others that a program asks about, each where it is known first.
    void otherKinds()
    {
        const QString path = m_folder->filePath("novel");
        MRVPartialFile first(path);
        MRVPartialFile second(path);
        MRVError error;
        QVERIFY(first.open());
        QVERIFY(!second.open(&error));
        QCOMPARE(error.kind, Kind::InUse);

        QVERIFY(writeBytes(path, "by somebody else"));
        QVERIFY(!MRVSourceFile::replace(path, "as it was", "new", nullptr, &error));
        QCOMPARE(error.kind, Kind::Changed);
        QCOMPARE(bytesOf(path), QByteArray("by somebody else"));

        QVERIFY(!MRVCoreUtil::WriteUnicodeTextFile("€", path, &error, "ISO-8859-1"));
        QCOMPARE(error.kind, Kind::Unsupported);

        const QString word = m_folder->filePath("novel.docx");
        QVERIFY(writeBytes(word, "PK\3\4 and no more"));
        QVERIFY(!loading()["manuscript"](word, &error));
        QVERIFY2(error.kind == Kind::Damaged, qPrintable(error.text));
        const QByteArray programs = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        QVERIFY(!loading()["manuscript"](word, &error));
        qputenv("PATH", programs);
        QVERIFY2(error.kind == Kind::ProgramMissing, qPrintable(error.text));
    }

    void cancelling_data()
    {
        QTest::addColumn<QString>("operation");
        for (const QString &operation : following().keys()) {
            QTest::addRow("%s", qPrintable(operation)) << operation;
        }
    }
    // Each is followed to its end, and then cancelled at once and half way.
    void cancelling()
    {
        QFETCH(QString, operation);
        const QString path = m_folder->filePath("novel");
        for (const int cancelledAt : {1001, 0, 400}) {
            QVERIFY(writeBytes(path, Old));
            const QMap<QString, QByteArray> before = filesBelow(m_folder->path());
            bool isInside = false;
            bool isRefused = false;
            int last = 0;
            std::clock_t ended = 0;
            MRVError error;
            const auto follow = [&](int thousandths) {
                const bool isRight = !isInside && last <= thousandths && thousandths <= 1000;
                isInside = true;
                last = isRight ? thousandths : 10000;
                QCoreApplication::processEvents();
                isInside = false;
                ended = std::clock();
                isRefused = thousandths >= cancelledAt;
                return !isRefused;
            };
            const bool isDone = following()[operation](novel(), path, follow, &error);
            const double took = 1000.0 * double(std::clock() - ended) / CLOCKS_PER_SEC;
            // What is fast may be done before it is half way the next time that it asks.
            QCOMPARE(isDone, !isRefused);
            QVERIFY2(isRefused || cancelledAt > 0, "nobody is asked");
            QVERIFY(last <= 1000);
            if (!isDone) {
                QVERIFY2(error.kind == Kind::Cancelled, qPrintable(error.text));
                QCOMPARE(filesBelow(m_folder->path()), before);
                // Of the processor, as other programs may be running.
                QVERIFY2(took < 100 * SanitizerTime, qPrintable(QString::number(took)));
            }
        }
    }

    // Callers who want a text alone, or nothing, get that.
    void sinks()
    {
        const QString path = m_folder->filePath("no/novel");
        QString text;
        MRVError error;
        QVERIFY(!MRVFileWriter::write(path, "words", &text));
        QVERIFY(!MRVFileWriter::write(path, "words", &error));
        QVERIFY(!MRVFileWriter::write(path, "words", nullptr));
        QCOMPARE(error.text, text);
        QVERIFY(text.contains(path));
        QVERIFY(error);
    }

private:
    // So long that each operation takes its time, with a picture on each page.
    static const QTextDocument &novel()
    {
        static QTextDocument document;
        if (document.isEmpty()) {
            QTextCursor cursor(&document);
            QImage picture(200, 200, QImage::Format_RGB32);
            for (int i = 0; i < 3000; ++i) {
                cursor.insertText(QString("Call me %1. ").arg(i).repeated(50));
                if (i % 50 == 0) {
                    picture.fill(QColor::fromRgb(QRgb(i * 1000)));
                    cursor.insertImage(picture, QString("picture%1").arg(i));
                }
                cursor.insertBlock();
            }
        }
        return document;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    std::signal(SIGXFSZ, SIG_IGN);
    tst_Errors test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_errors.moc"
