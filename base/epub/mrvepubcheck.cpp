#include "epub/mrvepubcheck.h"

#include "util/mrvfailure.h"
#include "util/mrvlimitedprogram.h"
#include "util/mrvtemporaryfolder.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace {

constexpr struct
{
    MRVEPubFinding::Severity severity;
    const char *word; // of epubcheck
    const char *name;
} severities[] = {
    {MRVEPubFinding::Warning, "WARNING", "warning"},
    {MRVEPubFinding::Error, "ERROR", "error"},
    {MRVEPubFinding::Fatal, "FATAL", "fatal"},
};

// The virtual machine reserves far more address space than it uses.
constexpr MRVProgramLimits Limits{180000, qint64(16) << 30, qint64(256) << 20};

constexpr char LinkName[] = "book.epub";

// What is no archive at all is no book with faults.
bool isArchive(const QString &path, MRVErrorSink error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return MRV::fail(error, path, MRVError::ofDevice(file));
    }
    return file.read(4) == "PK\x03\x04"
        || MRV::fail(error, path,
                     {MRVErrorKind::Damaged,
                      MRVEPubCheck::tr("it is no e-book, as it is no ZIP archive")});
}

// Where distributions put it; the command "epubcheck" may be the archive itself, which not every
// system can start.
QString archive()
{
    for (const char *file : {"/usr/share/java/epubcheck.jar", "/usr/share/epubcheck/epubcheck.jar",
                             "/usr/local/share/java/epubcheck.jar"}) {
        if (QFileInfo::exists(QLatin1String(file))) {
            return QLatin1String(file);
        }
    }
    return QString();
}

void addFindings(const QJsonObject &message, QVector<MRVEPubFinding> *findings)
{
    const QString word = message.value(QLatin1String("severity")).toString();
    for (const auto &row : severities) {
        if (word != QLatin1String(row.word)) {
            continue; // hints and what is not wrong
        }
        const QJsonArray places = message.value(QLatin1String("locations")).toArray();
        for (const QJsonValue &place : places) {
            const QString path = place.toObject().value(QLatin1String("path")).toString();
            findings->append({row.severity, message.value(QLatin1String("ID")).toString(),
                              message.value(QLatin1String("message")).toString().simplified(),
                              path == QLatin1String(LinkName) ? QString() : path,
                              qMax(0, place.toObject().value(QLatin1String("line")).toInt()),
                              qMax(0, place.toObject().value(QLatin1String("column")).toInt())});
        }
    }
}

} // namespace

QString MRVEPubFinding::toString(const QString &book) const
{
    const QString place = (file.isEmpty() ? book : book + u'/' + file)
        + (line > 0 ? u':' + QString::number(line) : QString());
    return QStringLiteral("%1: %2: %3 (%4)")
        .arg(place, QLatin1String(severities[severity].name), text, id);
}

QJsonObject MRVEPubFinding::toJson(const QString &book) const
{
    return {{QStringLiteral("book"), book},
            {QStringLiteral("file"), file},
            {QStringLiteral("line"), line},
            {QStringLiteral("column"), column},
            {QStringLiteral("severity"), QLatin1String(severities[severity].name)},
            {QStringLiteral("id"), id},
            {QStringLiteral("text"), text}};
}

bool MRVEPubCheck::check(const QString &file, QVector<MRVEPubFinding> *findings, MRVErrorSink error)
{
    const QFileInfo book(file);
    const QString jar = archive();
    const QString java = QStandardPaths::findExecutable(QStringLiteral("java"));
    if (!book.isFile()) {
        return MRV::fail(error, file, {MRVErrorKind::NotFound, tr("there is no such file")});
    }
    if (jar.isEmpty() || java.isEmpty()) {
        return MRV::fail(error, MRVErrorKind::ProgramMissing,
                         tr("e-books are checked by epubcheck, which is not installed; install "
                            "the packages epubcheck and default-jre-headless"));
    }
    if (!isArchive(file, error)) {
        return false;
    }
    const MRVTemporaryFolder folder(QDir::tempPath());
    // The suffix of the file counts for epubcheck.
    const QString link = QDir(folder.path()).filePath(QLatin1String(LinkName));
    if (folder.path().isEmpty() || !QFile::link(book.absoluteFilePath(), link)) {
        return MRV::fail(error, QDir::tempPath(),
                         {folder.error().kind, tr("no files can be made there")});
    }
    const QString answer = QDir(folder.path()).filePath(QStringLiteral("findings.json"));
    const QStringList arguments{QStringLiteral("-Xmx1g"),
                                QStringLiteral("-XX:-UsePerfData"),
                                QLatin1String("-Djava.io.tmpdir=") + folder.path(),
                                QStringLiteral("-jar"),
                                jar,
                                link,
                                QStringLiteral("--json"),
                                answer,
                                QStringLiteral("--quiet")};
    const MRVProgramResult result =
        mrvRunLimited(java, arguments, QStringLiteral("/dev/null"), folder.path(), Limits);
    if (result.end == MRVProgramResult::OutOfTime) {
        return MRV::fail(
            error, file,
            {MRVErrorKind::TooLarge,
             tr("epubcheck was not done after %1 seconds").arg(Limits.milliseconds / 1000)});
    }
    const QJsonObject report =
        QJsonDocument::fromJson(MRVCoreUtil::ReadBinaryFile(answer)).object();
    if (!report.contains(QLatin1String("messages"))) {
        return MRV::fail(error, file, {MRVErrorKind::Other, tr("epubcheck gives no answer")});
    }
    const QJsonArray messages = report.value(QLatin1String("messages")).toArray();
    for (const QJsonValue &message : messages) {
        addFindings(message.toObject(), findings);
    }
    return true;
}
