#include "core/mcoretype.h"
#include "core/mrvcore.h"
#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "core/mrvfuzzycompare.h"
#include "core/mtranslator.h"
#include "network/mrvnetwork.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <limits>

#include <arpa/inet.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Writes beyond this length fail as they do on a full disk, for as long as the object lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{bytes, m_old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FileSizeLimit)

private:
    rlimit m_old;
    void (*m_handler)(int);
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QStringList matches(const QRegularExpression &expression, const QString &text)
{
    QStringList list;
    for (auto it = expression.globalMatch(text); it.hasNext();)
        list << it.next().captured();
    return list;
}

QStringList matches(QRegExp expression, const QString &text)
{
    QStringList list;
    for (int at = 0; (at = expression.indexIn(text, at)) >= 0; at += expression.matchedLength())
        list << expression.cap();
    return list;
}

} // namespace

class TestPlatform : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString &name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void init();
    void writesWholeFile_data();
    void writesWholeFile();
    void fullDiskKeepsOldFile_data();
    void fullDiskKeepsOldFile();
    void keepsPermissions();
    void writesThroughLinks_data();
    void writesThroughLinks();
    void refusesToWrite_data();
    void refusesToWrite();
    void textRoundTrip_data();
    void textRoundTrip();
    void textIsRefused_data();
    void textIsRefused();
    void readsText_data();
    void readsText();
    void readFails_data();
    void readFails();
    void uniqueFileName_data();
    void uniqueFileName();
    void uniqueFileNameIsFast();
    void compileDate_data();
    void compileDate();
    void addressPatterns_data();
    void addressPatterns();
    void patternsAreLinear_data();
    void patternsAreLinear();
    void numberPairs_data();
    void numberPairs();
    void mapBytesAscend();
    void corruptBytes_data();
    void corruptBytes();
    void listRoundTrip();
    void fuzzyCompare_data();
    void fuzzyCompare();
    void guiLanguages();
    void systemLanguage_data();
    void systemLanguage();
    void applicationIdentity();
    void networkNeedsMoreThanLoopback();
    void routeMeansNetwork();
};

void TestPlatform::init()
{
    QVERIFY(m_dir.isValid());
    for (const QFileInfo &info : QDir(m_dir.path())
                                     .entryInfoList(QDir::AllEntries | QDir::System | QDir::Hidden
                                                    | QDir::NoDotAndDotDot)) {
        if (info.isDir() && !info.isSymLink())
            QVERIFY(QDir(info.filePath()).removeRecursively());
        else
            QVERIFY(QFile::remove(info.filePath()));
    }
}

void TestPlatform::writesWholeFile_data()
{
    QTest::addColumn<bool>("replaces");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("new") << false << QByteArray("new");
    QTest::newRow("replaced-by-shorter") << true << QByteArray("n");
    QTest::newRow("replaced-by-empty") << true << QByteArray();
    QTest::newRow("binary") << true << QByteArray("a\0\r\n\xff", 5);
    QTest::newRow("large") << true << QByteArray(3000000, 'x');
}

void TestPlatform::writesWholeFile()
{
    QFETCH(bool, replaces);
    QFETCH(QByteArray, bytes);
    const QString file = path("file");
    if (replaces)
        put(file, "the old contents");
    QString error = "untouched";
    QVERIFY(MRVCoreUtil::WriteBinaryFile(bytes, file, &error));
    QCOMPARE(error, QString("untouched"));
    QCOMPARE(contents(file), bytes);
    QCOMPARE(namesIn(m_dir.path()), QStringList{"file"});
}

void TestPlatform::fullDiskKeepsOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("room");
    // Small writes fail when the buffer is flushed, large ones when they are taken.
    QTest::newRow("no-room-small") << 100 << 0;
    QTest::newRow("no-room-large") << 1000000 << 0;
    QTest::newRow("one-byte-short") << 100 << 99;
    QTest::newRow("cut-in-the-middle") << 1000000 << 409600;
}

void TestPlatform::fullDiskKeepsOldFile()
{
    QFETCH(int, size);
    QFETCH(int, room);
    const QString file = path("novel.txt");
    put(file, "a million words");
    QString error;
    bool written = true;
    {
        const FileSizeLimit limit{rlim_t(room)};
        written = MRVFileWriter::write(file, QByteArray(size, 'x'), &error);
    }
    QVERIFY(!written);
    QCOMPARE(contents(file), QByteArray("a million words"));
    QCOMPARE(namesIn(m_dir.path()), QStringList{"novel.txt"});
    QVERIFY2(error.contains("novel.txt"), qPrintable(error));
    QVERIFY2(error.endsWith(qt_error_string(EFBIG)), qPrintable(error));
}

void TestPlatform::keepsPermissions()
{
    const QString old = path("old");
    put(old, "old");
    QCOMPARE(::chmod(qPrintable(old), 0640), 0);
    QVERIFY(MRVFileWriter::write(old, "new"));
    struct stat info;
    QCOMPARE(::stat(qPrintable(old), &info), 0);
    QCOMPARE(int(info.st_mode & 07777), 0640);

    const mode_t mask = ::umask(027);
    const bool written = MRVFileWriter::write(path("fresh"), "new");
    ::umask(mask);
    QVERIFY(written);
    QCOMPARE(::stat(qPrintable(path("fresh")), &info), 0);
    QCOMPARE(int(info.st_mode & 07777), 0640);
}

void TestPlatform::writesThroughLinks_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QString>("link");
    QTest::newRow("link") << true << "link";
    QTest::newRow("link-to-link") << true << "link2";
    QTest::newRow("leads-nowhere-yet") << false << "link";
    QTest::newRow("up-from-linked-folder") << true << "way/uplink";
    QTest::newRow("up-to-nowhere-yet") << false << "way/uplink";
}

void TestPlatform::writesThroughLinks()
{
    QFETCH(bool, exists);
    QFETCH(QString, link);
    // "way/.." is the folder "deep", not the one that holds "way".
    QVERIFY(QDir(m_dir.path()).mkpath("deep/folder"));
    QVERIFY(QDir(m_dir.path()).mkpath("real"));
    QCOMPARE(::symlink("deep/folder", qPrintable(path("way"))), 0);
    QCOMPARE(::symlink("../../real/novel", qPrintable(path("deep/folder/uplink"))), 0);
    if (exists)
        put(path("real/novel"), "old");
    QCOMPARE(::symlink("real/novel", qPrintable(path("link"))), 0);
    QCOMPARE(::symlink("link", qPrintable(path("link2"))), 0);

    QString error;
    QVERIFY2(MRVFileWriter::write(path(link), "new", &error), qPrintable(error));
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QVERIFY(QFileInfo(path("link2")).isSymLink());
    QVERIFY(!QFileInfo(path("real/novel")).isSymLink());
    QCOMPARE(contents(path("real/novel")), QByteArray("new"));
    QCOMPARE(namesIn(path("real")), QStringList{"novel"});
}

void TestPlatform::refusesToWrite_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("folder") << "folder"
                            << "it is a folder";
    QTest::newRow("link-to-folder") << "folderlink"
                                    << "it is a folder";
    QTest::newRow("trailing-slash") << "new/"
                                    << "it is a folder";
    QTest::newRow("no-folder") << "missing/file"
                               << "its folder does not exist";
    QTest::newRow("file-as-folder") << "file/file"
                                    << "its folder does not exist";
    QTest::newRow("pipe") << "pipe"
                          << "it is not a regular file";
    QTest::newRow("circle") << "circle"
                            << "its symbolic links lead round in a circle";
    QTest::newRow("line-break") << "missing\n/file"
                                << "its folder does not exist";
}

void TestPlatform::refusesToWrite()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_dir.path()).mkdir("folder"));
    put(path("file"), "old");
    QCOMPARE(::mkfifo(qPrintable(path("pipe")), 0600), 0);
    QCOMPARE(::symlink("folder", qPrintable(path("folderlink"))), 0);
    QCOMPARE(::symlink("circle", qPrintable(path("circle"))), 0);
    const QStringList before = namesIn(m_dir.path());

    QString error;
    QVERIFY(!MRVFileWriter::write(path(name), "new", &error));
    QVERIFY2(error.endsWith(": " + reason), qPrintable(error));
    QVERIFY(error.contains(path(name).replace('\n', ' ')));
    QVERIFY(!error.contains('\n'));
    QVERIFY(!MRVFileWriter::write(path(name), "new"));
    QCOMPARE(namesIn(m_dir.path()), before);
    QCOMPARE(contents(path("file")), QByteArray("old"));

    error.clear();
    QVERIFY(!MRVFileWriter::write(QString(), "new", &error));
    QVERIFY(error.endsWith(": the file has no name"));
}

void TestPlatform::textRoundTrip_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    const QString smile = QString::fromUtf8("a\xf0\x9f\x98\x80z");
    QTest::newRow("utf8-no-mark") << QByteArray("UTF-8") << QString::fromUtf8("\xc3\xa9\r\n")
                                  << QByteArray("\xc3\xa9\r\n");
    QTest::newRow("empty") << QByteArray("UTF-8") << QString("") << QByteArray();
    QTest::newRow("utf8-astral") << QByteArray("utf-8") << smile
                                 << QByteArray("a\xf0\x9f\x98\x80z");
    QTest::newRow("utf16le-astral") << QByteArray("UTF-16LE") << smile
                                    << QByteArray("\xff\xfe"
                                                  "a\0\x3d\xd8\x00\xdez\0",
                                                  10);
    QTest::newRow("utf32be-astral") << QByteArray("UTF-32BE") << smile
                                    << QByteArray("\0\0\xfe\xff\0\0\0a\0\x01\xf6\0\0\0\0z", 16);
    QTest::newRow("latin1") << QByteArray("ISO-8859-1") << QString::fromUtf8("\xc3\xa9")
                            << QByteArray("\xe9");
    QTest::newRow("windows-1252") << QByteArray("windows-1252") << QString::fromUtf8("\xe2\x82\xac")
                                  << QByteArray("\x80");
    QTest::newRow("shift-jis") << QByteArray("Shift_JIS") << QString::fromUtf8("\xe6\x97\xa5")
                               << QByteArray("\x93\xfa");
}

void TestPlatform::textRoundTrip()
{
    QFETCH(QByteArray, codec);
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QString error = "untouched";
    QVERIFY(MRVCoreUtil::WriteUnicodeTextFile(text, path("t"), &error, codec));
    QCOMPARE(contents(path("t")).toHex(' '), bytes.toHex(' '));
    QCOMPARE(MRVCoreUtil::ReadUnicodeTextFile(path("t"), &error, codec), text);
    QCOMPARE(error, QString("untouched"));
}

void TestPlatform::textIsRefused_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    const QString euro = QString::fromUtf8("5 \xe2\x82\xac");
    QTest::newRow("unknown-codec") << QByteArray("Klingon-8") << "x"
                                   << "unknown text encoding";
    QTest::newRow("empty-codec") << QByteArray("") << "x"
                                 << "unknown text encoding";
    QTest::newRow("latin1-lacks-euro")
        << QByteArray("ISO-8859-1") << euro << "lacks some characters";
    QTest::newRow("ascii-lacks-euro") << QByteArray("US-ASCII") << euro << "lacks some characters";
    QTest::newRow("encoder-keeps-last") << QByteArray("UTF-7") << euro << "lacks some characters";
}

void TestPlatform::textIsRefused()
{
    QFETCH(QByteArray, codec);
    QFETCH(QString, text);
    QFETCH(QString, reason);
    put(path("t"), "old");
    QString error;
    QVERIFY(!MRVCoreUtil::WriteUnicodeTextFile(text, path("t"), &error, codec));
    QVERIFY2(error.contains(path("t")) && error.contains(reason), qPrintable(error));
    QCOMPARE(contents(path("t")), QByteArray("old"));
}

void TestPlatform::readsText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("text");
    const QString word = QString::fromUtf8("\xc3\xa9t\xc3\xa9");
    QTest::newRow("empty-file") << QByteArray() << QByteArray("UTF-8") << QString();
    QTest::newRow("null-codec") << QByteArray("\xc3\xa9t\xc3\xa9") << QByteArray() << word;
    QTest::newRow("utf8-mark") << QByteArray("\xef\xbb\xbf\xc3\xa9t\xc3\xa9") << QByteArray("UTF-8")
                               << word;
    QTest::newRow("mark-beats-codec")
        << QByteArray("\xef\xbb\xbf\xc3\xa9t\xc3\xa9") << QByteArray("ISO-8859-1") << word;
    QTest::newRow("utf16le-mark") << QByteArray("\xff\xfe\xe9\0t\0\xe9\0", 8) << QByteArray("UTF-8")
                                  << word;
    QTest::newRow("utf16be-mark") << QByteArray("\xfe\xff\0\xe9\0t\0\xe9", 8) << QByteArray("UTF-8")
                                  << word;
    QTest::newRow("latin1") << QByteArray("\xe9t\xe9") << QByteArray("ISO-8859-1") << word;
    QTest::newRow("line-ends-kept")
        << QByteArray("a\r\nb\rc\n") << QByteArray("UTF-8") << QString("a\r\nb\rc\n");
}

void TestPlatform::readsText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, codec);
    QFETCH(QString, text);
    put(path("t"), bytes);
    QString error;
    QCOMPARE(MRVCoreUtil::ReadUnicodeTextFile(path("t"), &error,
                                              codec.isNull() ? nullptr : codec.constData()),
             text);
    QCOMPARE(error, QString());

    // And from a resource.
    QVERIFY(MRVCoreUtil::ReadUnicodeTextFile(":/Other/Resources/mimetypes.csv", &error)
                .contains("\ntxt,text/plain\n"));
    QCOMPARE(error, QString());
}

void TestPlatform::readFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing" << QByteArray("UTF-8") << "No such file or directory";
    QTest::newRow("folder") << "." << QByteArray("UTF-8") << "it is a folder";
    QTest::newRow("latin1-read-as-utf8")
        << "latin1" << QByteArray("UTF-8") << "it is not valid UTF-8 text";
    QTest::newRow("cut-short") << "cut" << QByteArray("UTF-8") << "it is not valid UTF-8 text";
    QTest::newRow("unknown-codec")
        << "ascii" << QByteArray("Klingon-8") << "unknown text encoding \"Klingon-8\"";
}

void TestPlatform::readFails()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, codec);
    QFETCH(QString, reason);
    put(path("latin1"), "caf\xe9 au lait");
    put(path("cut"), "caf\xc3");
    put(path("ascii"), "abc");
    QString error;
    QCOMPARE(MRVCoreUtil::ReadUnicodeTextFile(path(name), &error, codec), QString());
    QVERIFY2(error.contains(path(name)) && error.endsWith(": " + reason), qPrintable(error));
    QCOMPARE(MRVCoreUtil::ReadUnicodeTextFile(QString(), &error), QString());
    QVERIFY(error.endsWith("the file has no name"));
}

void TestPlatform::uniqueFileName_data()
{
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("free") << QStringList() << "a.png"
                          << "a.png";
    QTest::newRow("taken") << QStringList{"a.png"} << "a.png"
                           << "a-1.png";
    QTest::newRow("two-taken") << QStringList{"a.png", "a-1.png"} << "a.png"
                               << "a-2.png";
    QTest::newRow("six-taken") << QStringList{"a", "a-1", "a-2", "a-3", "a-4", "a-5", "a-6"} << "a"
                               << "a-7";
    QTest::newRow("numbered") << QStringList{"a-1.png"} << "a-1.png"
                              << "a-1-1.png";
    QTest::newRow("two-dots") << QStringList{"a.b.png"} << "a.b.png"
                              << "a.b-1.png";
    QTest::newRow("hidden") << QStringList{".rc"} << ".rc"
                            << ".rc-1";
    QTest::newRow("dot-in-folder") << QStringList{"v1.2/a"} << "v1.2/a"
                                   << "v1.2/a-1";
    QTest::newRow("folder-with-dot") << QStringList{"v1.2/a"} << "v1.2"
                                     << "v1.2-1";
    QTest::newRow("trailing-slash") << QStringList{"f/a"} << "f/"
                                    << "f-1";
    QTest::newRow("dangling-link") << QStringList{"@a.png"} << "a.png"
                                   << "a-1.png";
    QTest::newRow("percent") << QStringList{"50%1.png"} << "50%1.png"
                             << "50%1-1.png";
}

void TestPlatform::uniqueFileName()
{
    QFETCH(QStringList, taken);
    QFETCH(QString, name);
    QFETCH(QString, expected);
    for (QString file : taken) {
        if (file.startsWith('@')) {
            QCOMPARE(::symlink("nowhere", qPrintable(path(file.mid(1)))), 0);
            continue;
        }
        QVERIFY(QDir(m_dir.path()).mkpath(QFileInfo(path(file)).path()));
        put(path(file), "x");
    }
    // Not filePath(), which would clean a slash away.
    QCOMPARE(MRVCoreUtil::GetUniqueFileName(m_dir.path() + '/' + name), path(expected));
    QCOMPARE(MRVCoreUtil::GetUniqueFileName(QString()), QString());
}

void TestPlatform::uniqueFileNameIsFast()
{
    QSet<QString> names;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 3000; ++i) {
        const QString name = MRVCoreUtil::GetUniqueFileName(path("picture.png"));
        QVERIFY(!names.contains(name));
        names.insert(name);
        put(name, QByteArray());
    }
    // Trying every number in turn would take four and a half million look-ups.
    QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
}

void TestPlatform::compileDate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("padded-day") << "Oct  8 2015" << QDate(2015, 10, 8);
    QTest::newRow("one-blank") << "Oct 8 2015" << QDate(2015, 10, 8);
    QTest::newRow("two-digits") << "May 18 2024" << QDate(2024, 5, 18);
    QTest::newRow("leap-day") << "Feb 29 2024" << QDate(2024, 2, 29);
    QTest::newRow("no-leap-day") << "Feb 29 2023" << QDate();
    QTest::newRow("other-language") << "Okt 18 2015" << QDate();
    QTest::newRow("iso") << "2015-10-18" << QDate();
    QTest::newRow("empty") << "" << QDate();
}

void TestPlatform::compileDate()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const QLocale old;
    QLocale::setDefault(QLocale(QLocale::German));
    const QDate result = MRVCoreUtil::convertCompileStringDate(text);
    QLocale::setDefault(old);
    QCOMPARE(result, date);
}

void TestPlatform::addressPatterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");
    const QString www = MRVCoreUtil::wwwPattern();
    const QString mail = MRVCoreUtil::emailPattern();
    const QString url = MRVCoreUtil::webUrlPattern();
    const auto row = [](const char *name, const QString &pattern, const char *text,
                        const QStringList &found) {
        QTest::newRow(name) << pattern << QString::fromUtf8(text) << found;
    };
    row("www-bare", www, "www.morvane.example", {"www.morvane.example"});
    row("www-path", www, "see www.a.example/b?c=d#e.", {"www.a.example/b?c=d#e"});
    row("www-sentence-end", www, "Go to www.a.example. Then", {"www.a.example"});
    row("www-upper", www, "WWW.A.EXAMPLE", {"WWW.A.EXAMPLE"});
    row("www-in-brackets", www, "(www.a.example)", {"www.a.example"});
    row("www-needs-domain", www, "www. and www.a and www.a.1 and wwww.a.example", {});
    row("www-inside-word", www, "xwww.a.example", {});
    row("www-two", www, "www.a.example,www.b.example", {"www.a.example", "www.b.example"});

    row("mail-plain", mail, "Write to jo.doe+x@mail.a.example!", {"jo.doe+x@mail.a.example"});
    row("mail-angle", mail, "<jo@a.example>", {"jo@a.example"});
    row("mail-upper", mail, "JO@A.EXAMPLE", {"JO@A.EXAMPLE"});
    row("mail-no-domain", mail, "jo@localhost @a.example jo@.example jo@a", {});
    row("mail-hyphen", mail, "a_b-c@x-y.example.", {"a_b-c@x-y.example"});
    row("mail-umlaut", mail,
        "m\xc3\xbcller@b\xc3\xbc"
        "cher.example",
        {QString::fromUtf8("m\xc3\xbcller@b\xc3\xbc"
                           "cher.example")});

    row("url-plain", url, "http://a.example", {"http://a.example"});
    row("url-port-path", url, "https://a.example:8080/b/c.html?d=e&f=%20#g",
        {"https://a.example:8080/b/c.html?d=e&f=%20#g"});
    row("url-sentence-end", url, "Is it http://a.example/b? Yes: http://a.example/c.",
        {"http://a.example/b", "http://a.example/c"});
    row("url-brackets", url, "(http://a.example/w/Foo_(bar))", {"http://a.example/w/Foo_(bar)"});
    row("url-quotes", url, "\xe2\x80\x9chttp://a.example/b\xe2\x80\x9d \"http://c.example/\"",
        {"http://a.example/b", "http://c.example/"});
    row("url-dash", url, "http://a.example/b\xe2\x80\x94he said", {"http://a.example/b"});
    row("url-tag", url, "<a href=\"http://a.example/b\">x</a>", {"http://a.example/b"});
    row("url-localhost", url, "ftp://localhost/x", {"ftp://localhost/x"});
    row("url-ip", url, "http://127.0.0.1:80/ http://[::1]/x",
        {"http://127.0.0.1:80/", "http://[::1]/x"});
    row("url-user", url, "ftp://jo:pw@a.example/", {"ftp://jo:pw@a.example/"});
    row("url-upper", url, "HTTP://A.EXAMPLE/B", {"HTTP://A.EXAMPLE/B"});
    row("url-other-schemes", url,
        "file:///etc mailto:jo@a.example xhttp://a.example http:// http:a", {});
    row("url-no-scheme", url, "www.a.example a.example", {});
}

void TestPlatform::addressPatterns()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(QStringList, found);
    const QRegularExpression modern(pattern);
    QCOMPARE(modern.captureCount(), 0);
    QCOMPARE(matches(modern, text), found);
    QCOMPARE(matches(QRegExp(pattern), text), found);
    for (const QString &address : qAsConst(found))
        QVERIFY(QRegExp(pattern).exactMatch(address));
}

void TestPlatform::patternsAreLinear_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *start, const char *part) {
        QTest::newRow(name) << start + QString(part).repeated(200000 / int(strlen(part)));
    };
    row("letters", "", "a");
    row("labels", "", "a.");
    row("www-labels", "www.", "a.");
    row("hyphens", "http://a", "a-");
    row("open-brackets", "http://a.example/", "(");
    row("open-brackets-and-letters", "http://a.example/", "(a");
    row("full-stops", "http://a.example/a", ".");
    row("schemes", "", "http://");
    row("unclosed-in-each", "", "http://a/(");
    row("at-signs", "", "a@");
}

void TestPlatform::patternsAreLinear()
{
    QFETCH(QString, text);
    QElapsedTimer timer;
    timer.start();
    for (const QString &pattern :
         {MRVCoreUtil::wwwPattern(), MRVCoreUtil::emailPattern(), MRVCoreUtil::webUrlPattern()}) {
        matches(QRegularExpression(pattern), text);
        matches(QRegExp(pattern), text);
    }
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

// A JPEG with an EXIF block that says "held turned by 90 degrees".
void TestPlatform::numberPairs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isInt");
    QTest::addColumn<bool>("isDouble");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::newRow("plain") << "640,480" << true << true << 640. << 480.;
    QTest::newRow("blanks") << " 640 , -480\t" << true << true << 640. << -480.;
    QTest::newRow("reals") << "1.5,-2e3" << false << true << 1.5 << -2000.;
    QTest::newRow("too-large-for-int") << "3000000000,1" << false << true << 3e9 << 1.;
    QTest::newRow("one") << "640" << false << false << 0. << 0.;
    QTest::newRow("three") << "1,2,3" << false << false << 0. << 0.;
    QTest::newRow("second-bad") << "1,x" << false << false << 0. << 0.;
    QTest::newRow("second-empty") << "1," << false << false << 0. << 0.;
    QTest::newRow("no-number") << "1,nan" << false << false << 0. << 0.;
    QTest::newRow("infinite") << "inf,1" << false << false << 0. << 0.;
    QTest::newRow("decimal-comma") << "1,5,2,5" << false << false << 0. << 0.;
    QTest::newRow("empty") << "" << false << false << 0. << 0.;
}

void TestPlatform::numberPairs()
{
    QFETCH(QString, text);
    QFETCH(bool, isInt);
    QFETCH(bool, isDouble);
    QFETCH(double, first);
    QFETCH(double, second);
    bool ok = !isInt;
    const QPair<int, int> ints = MCoreType::toIntPair(text, &ok);
    QCOMPARE(ok, isInt);
    QCOMPARE(ints, isInt ? qMakePair(int(first), int(second)) : qMakePair(0, 0));
    ok = !isDouble;
    QCOMPARE(MCoreType::toDoublePair(text, &ok), qMakePair(first, second));
    QCOMPARE(ok, isDouble);
    MCoreType::toIntPair(text);
}

void TestPlatform::mapBytesAscend()
{
    const QMap<int, QString> map{{30, "c"}, {10, "a"}, {20, "b"}};
    const QByteArray bytes = MCoreType::toByteArray(map);
    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << qint32(3) << 10 << QString("a") << 20 << QString("b") << 30 << QString("c");
    QCOMPARE(bytes.toHex(), expected.toHex());
    QCOMPARE((MCoreType::fromByteArray<QMap<int, QString>>(bytes)), map);
    QCOMPARE((MCoreType::fromByteArray<QMap<int, QString>>(bytes + "later")), map);

    // What Qt's own operator wrote, in descending order, reads as well.
    QByteArray descending;
    QDataStream descendingStream(&descending, QIODevice::WriteOnly);
    descendingStream << map;
    QVERIFY(descending != bytes);
    QCOMPARE((MCoreType::fromByteArray<QMap<int, QString>>(descending)), map);
}

void TestPlatform::corruptBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = MCoreType::toByteArray(QMap<int, QString>{{1, "one"}, {2, "two"}});
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("half-a-count") << good.left(3);
    for (int length = 4; length < good.size(); length += 5)
        QTest::addRow("cut-at-%d", length) << good.left(length);
    QTest::newRow("count-too-large") << "\x7f\xff\xff\xf0" + good.mid(4);
    QTest::newRow("count-one-too-large") << QByteArray("\0\0\0\3", 4) + good.mid(4);
    QTest::newRow("negative-count") << "\xff\xff\xff\xff" + good.mid(4);
}

void TestPlatform::corruptBytes()
{
    QFETCH(QByteArray, bytes);
    QVERIFY((MCoreType::fromByteArray<QMap<int, QString>>(bytes).isEmpty()));
    QVERIFY((MCoreType::fromByteArray<QStringList>(bytes).isEmpty()));
    QVERIFY((MCoreType::fromByteArray<QList<qint64>>(bytes.left(11)).isEmpty()));
}

void TestPlatform::listRoundTrip()
{
    const QStringList words{"b", "", "a", "b"};
    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << words;
    QCOMPARE(MCoreType::toByteArray(words), expected);
    QCOMPARE(MCoreType::fromByteArray<QStringList>(expected), words);
    QCOMPARE(MCoreType::fromByteArray<QList<int>>(MCoreType::toByteArray(QList<int>{3, 1, 2})),
             (QList<int>{3, 1, 2}));
    QCOMPARE(MCoreType::fromByteArray<QDate>(MCoreType::toByteArray(QDate(2024, 2, 29))),
             QDate(2024, 2, 29));
    QCOMPARE(MCoreType::fromByteArray<int>(QByteArray("\0\0", 2)), 0);
}

void TestPlatform::fuzzyCompare_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<bool>("equal");
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("same") << 12.0 << 12.0 << true;
    QTest::newRow("rounding") << 0.1 + 0.2 << 0.3 << true;
    QTest::newRow("near") << 12.0 << 12.0001 << false;
    QTest::newRow("zeros") << 0.0 << -0.0 << true;
    QTest::newRow("computed-zero") << 0.1 + 0.2 - 0.3 << 0.0 << true;
    QTest::newRow("small-is-not-zero") << 1e-6 << 0.0 << false;
    QTest::newRow("large-relative") << 1e15 << 1e15 + 1 << true;
    QTest::newRow("large-apart") << 1e15 << 1.001e15 << false;
    QTest::newRow("signs") << 1.0 << -1.0 << false;
    QTest::newRow("infinities") << inf << inf << true;
    QTest::newRow("infinity-finite") << inf << 1e300 << false;
    QTest::newRow("opposite-infinities") << inf << -inf << false;
    QTest::newRow("nan") << nan << nan << false;
}

void TestPlatform::fuzzyCompare()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(bool, equal);
    QCOMPARE(mrvFuzzyCompare(a, b), equal);
    QCOMPARE(mrvFuzzyCompare(b, a), equal);
}

void TestPlatform::guiLanguages()
{
    qunsetenv("MORVANE_TRANSLATIONS");
    QCOMPARE(MTranslator::morvaneGuiLanguages().value(0), QString("en"));
    const QStringList shipped = MTranslator::morvaneGuiLanguages();
    for (const char *name :
         {"mrvbase_fr.qm", "mrvbase_de.qm", "mrvbase_pt_BR.qm", "mrvbase_en.qm", "mrvbase_.qm",
          "mrvbase_xx.qm", "mrvbase_C.qm", "other_it.qm", "mrvbase_es.ts"})
        put(path(name), "x");
    qputenv("MORVANE_TRANSLATIONS", m_dir.path().toUtf8());
    QStringList expected = shipped.mid(1) + QStringList{"de", "fr", "pt_BR"};
    expected.sort();
    expected.removeDuplicates();
    expected.prepend("en");
    QCOMPARE(MTranslator::morvaneGuiLanguages(), expected);
    qunsetenv("MORVANE_TRANSLATIONS");
}

void TestPlatform::systemLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("code");
    QTest::newRow("german") << "de_DE.UTF-8"
                            << ""
                            << "de";
    QTest::newRow("c-locale") << "C"
                              << ""
                              << "en";
    QTest::newRow("language-list") << "de_DE.UTF-8"
                                   << "fr_FR:de"
                                   << "fr";
    QTest::newRow("shipped-with-country") << "pt_BR.UTF-8"
                                          << ""
                                          << "pt_BR";
    QTest::newRow("other-country") << "pt_PT.UTF-8"
                                   << ""
                                   << "pt";
}

// Qt reads the system's locale once, so each row needs a process of its own.
void TestPlatform::systemLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, languages);
    QFETCH(QString, code);
    put(path("mrvbase_pt_BR.qm"), "x");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    environment.insert("LANGUAGE", languages);
    environment.insert("MORVANE_TRANSLATIONS", m_dir.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {"--print-system-language"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), code + '\n');
}

void TestPlatform::applicationIdentity()
{
    const QString name = QCoreApplication::applicationName();
    const QMap<QString, bool> rows{{"Morvane", true}, {"Fernwick", false}, {"mrv", true}};
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        QCoreApplication::setApplicationName(it.key());
        QCOMPARE(MrvCore::isAppMorvane(), it.value());
    }
    QCoreApplication::setApplicationName(name);
    QVERIFY(QRegExp(MRVCoreUtil::emailPattern()).exactMatch(MrvCore::supportEmail()));
    QVERIFY(MrvCore::supportEmail().endsWith(".example"));
}

// A process in a network of its own sees nothing but the loopback, which it brings up.
void TestPlatform::networkNeedsMoreThanLoopback()
{
    QProcess process;
    process.start("unshare",
                  {"--user", "--map-root-user", "--net", QCoreApplication::applicationFilePath(),
                   "--print-network-of-loopback"});
    QVERIFY(process.waitForFinished());
    if (process.exitCode() != 0)
        QSKIP("no network namespace can be made here");
    QCOMPARE(process.readAllStandardOutput(), QByteArray("down\n"));
}

// Connecting a datagram socket sends nothing; it succeeds where there is a way to other networks.
void TestPlatform::routeMeansNetwork()
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(9);
    inet_pton(AF_INET, "192.0.2.1", &address.sin_addr);
    const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
    const bool hasRoute =
        ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(socket);
    if (!hasRoute)
        QSKIP("this machine has no network");
    QVERIFY(MrvNetwork::isNetworkConnected());
}

static bool bringUpLoopback()
{
    ifreq request{};
    qstrncpy(request.ifr_name, "lo", IFNAMSIZ);
    request.ifr_flags = IFF_UP | IFF_RUNNING;
    const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
    const bool done = ::ioctl(socket, SIOCSIFFLAGS, &request) == 0;
    ::close(socket);
    return done;
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QByteArray task = argc > 1 ? argv[1] : "";
    if (task == "--print-system-language") {
        puts(qPrintable(MTranslator::systemGuiLanguageCode()));
        return 0;
    }
    if (task == "--print-network-of-loopback") {
        if (!bringUpLoopback())
            return 1;
        puts(MrvNetwork::isNetworkConnected() ? "up" : "down");
        return 0;
    }
    TestPlatform test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_platform.moc"
