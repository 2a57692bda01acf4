#include "epub/mrvepubmetadata.h"

#include "epub/mrvbooknames_p.h"
#include "manuscript/mrvmanuscript.h"
#include "markdown/mrvfrontmatter.h"
#include "util/mrvfailure.h"
#include "util/mrvnames.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvpicturereader.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>

namespace {

using Metadata = MRVEPubMetadata;

/** Stores a value in its normal form; false, with nothing stored, where it is malformed. */
using Setter = bool (*)(Metadata *metadata, const QString &value);

template<QString Metadata::*Member>
bool setText(Metadata *metadata, const QString &value)
{
    metadata->*Member = value;
    return true;
}

template<QString Metadata::*Member, QString (*Normal)(const QString &)>
bool setNormal(Metadata *metadata, const QString &value)
{
    const QString normal = Normal(value);
    metadata->*Member = normal.isEmpty() ? metadata->*Member : normal;
    return !normal.isEmpty();
}

// "Name | Form by which lists file it" is stored as the latter, and the name remains.
QString withoutFileAs(Metadata *metadata, const QString &value)
{
    const QString name = value.section(u'|', 0, 0).simplified();
    const QString filed = value.section(u'|', 1).simplified();
    if (!name.isEmpty() && !filed.isEmpty()) {
        metadata->fileAs.insert(name, filed);
    }
    return name;
}

bool addAuthor(Metadata *metadata, const QString &value)
{
    const QString name = withoutFileAs(metadata, value);
    if (!name.isEmpty() && !metadata->authors.contains(name)) {
        metadata->authors.append(name);
    }
    return !name.isEmpty();
}

bool addContributorOf(Metadata *metadata, const QString &role, const QString &value)
{
    const QString code = mrvRoleCode(role);
    const QString name = code.isEmpty() ? QString() : withoutFileAs(metadata, value);
    if (!name.isEmpty()) {
        metadata->contributors.append({code, name});
    }
    return !name.isEmpty();
}

bool addContributor(Metadata *metadata, const QString &value)
{
    return addContributorOf(metadata, value.section(u':', 0, 0).trimmed(),
                            value.section(u':', 1).trimmed());
}

template<const char *Role>
bool addPerson(Metadata *metadata, const QString &value)
{
    return addContributorOf(metadata, QLatin1String(Role), value);
}

constexpr char Editor[] = "edt";
constexpr char Illustrator[] = "ill";
constexpr char Narrator[] = "nrt";
constexpr char Translator[] = "trl";

bool addSubject(Metadata *metadata, const QString &value)
{
    if (!metadata->subjects.contains(value)) {
        metadata->subjects.append(value);
    }
    return true;
}

// HTML separates them by commas.
bool addKeywords(Metadata *metadata, const QString &value)
{
    const QStringList keywords = value.split(u',');
    for (const QString &keyword : keywords) {
        if (!keyword.trimmed().isEmpty()) {
            addSubject(metadata, keyword.simplified());
        }
    }
    return true;
}

// A year, a month, or a day, of which the time is left out.
QString normalDate(const QString &value)
{
    static const QRegularExpression shape(
        QStringLiteral("^([0-9]{4})(?:-([0-9]{2})(?:-([0-9]{2})(?:T.*)?)?)?$"));
    const QRegularExpressionMatch match = shape.match(value);
    const QString month = match.captured(2);
    const QString day = match.captured(3);
    return match.hasMatch()
            && QDate::isValid(match.captured(1).toInt(), month.isEmpty() ? 1 : month.toInt(),
                              day.isEmpty() ? 1 : day.toInt())
        ? value.section(u'T', 0, 0)
        : QString();
}

QString normalNumber(const QString &value)
{
    static const QRegularExpression shape(QStringLiteral("^[0-9]+(?:\\.[0-9]+)*$"));
    return shape.match(value).hasMatch() ? value : QString();
}

struct Key
{
    const char *names; // separated by blanks
    Setter set;
    const char *wanted; // what a malformed value is not; null: none is malformed
};

constexpr Key keys[] = {
    {"title", setText<&Metadata::title>, nullptr},
    {"subtitle", setText<&Metadata::subtitle>, nullptr},
    {"author authors creator", addAuthor, nullptr},
    {"contributor contributors", addContributor,
     QT_TRANSLATE_NOOP("MRVEPubMetadata", "a role and a name such as \"translator: Ann Lee\"")},
    {"editor editors", addPerson<Editor>, nullptr},
    {"illustrator illustrators", addPerson<Illustrator>, nullptr},
    {"narrator narrators", addPerson<Narrator>, nullptr},
    {"translator translators", addPerson<Translator>, nullptr},
    {"language lang", setNormal<&Metadata::language, MRV::languageTag>,
     QT_TRANSLATE_NOOP("MRVEPubMetadata", "the tag of a language such as en-GB")},
    {"identifier", setText<&Metadata::identifier>, nullptr},
    {"isbn", setNormal<&Metadata::isbn, mrvIsbn>,
     QT_TRANSLATE_NOOP("MRVEPubMetadata", "an ISBN, whose last digit proves the others")},
    {"publisher", setText<&Metadata::publisher>, nullptr},
    {"description summary abstract", setText<&Metadata::description>, nullptr},
    {"rights copyright", setText<&Metadata::rights>, nullptr},
    {"published date", setNormal<&Metadata::published, normalDate>,
     QT_TRANSLATE_NOOP("MRVEPubMetadata", "a date such as 2026, 2026-01 or 2026-01-31")},
    {"series", setText<&Metadata::series>, nullptr},
    {"series-number series-index", setNormal<&Metadata::seriesNumber, normalNumber>,
     QT_TRANSLATE_NOOP("MRVEPubMetadata", "a number such as 2 or 2.5")},
    {"subject subjects", addSubject, nullptr},
    {"keyword keywords tags", addKeywords, nullptr},
    {"source", setText<&Metadata::source>, nullptr},
};

const Key *keyNamed(const QString &name)
{
    const QString wanted = name.toLower().replace(u'_', u'-');
    for (const Key &key : keys) {
        if (QString::fromLatin1(key.names).split(u' ').contains(wanted)) {
            return &key;
        }
    }
    return nullptr;
}

// "line 3: reason", or the reason alone where no line is known.
QString atLine(int line, const QString &reason)
{
    return line > 0 ? MRVEPubMetadata::tr("line %1: %2").arg(QString::number(line), reason)
                    : reason;
}

bool isCover(const QString &key)
{
    return key == QLatin1String("cover") || key == QLatin1String("cover-image");
}

bool isKnown(const QString &key)
{
    return isCover(key) || keyNamed(key);
}

// Sets what an entry of a file in the folder says.
bool setAll(Metadata *metadata, const MRVMetadataEntry &entry, const QDir &folder,
            MRVErrorSink reason)
{
    if (entry.values.isEmpty()) {
        return MRV::fail(reason, MRVErrorKind::Damaged,
                         MRVEPubMetadata::tr("the value cannot be read"));
    }
    if (isCover(entry.key)) {
        return metadata->readCover(folder.filePath(entry.values.constFirst()), reason);
    }
    return std::all_of(entry.values.begin(), entry.values.end(), [&](const QString &value) {
        return metadata->set(entry.key, value, reason);
    });
}

template<typename Value>
void complete(Value *value, const Value &other)
{
    if (value->isEmpty()) {
        *value = other;
    }
}

} // namespace

bool MRVEPubMetadata::set(const QString &key, const QString &value, MRVErrorSink error)
{
    const Key *const row = keyNamed(key);
    const QString given = value.trimmed();
    if (!row) {
        return MRV::fail(error, tr("'%1' is no key of a book").arg(key));
    }
    if (given.isEmpty() || row->set(this, given)) {
        return true;
    }
    const QString wanted = row->wanted ? tr(row->wanted) : tr("a name");
    return MRV::fail(error, tr("%1: '%2' is not %3").arg(key, given, wanted));
}

bool MRVEPubMetadata::readFile(const QString &file, QStringList *notes, MRVErrorSink error)
{
    MRVError reason;
    const QString text = MRVCoreUtil::ReadUnicodeTextFile(file, &reason);
    if (reason) {
        return MRV::fail(error, reason); // names the file
    }
    QVector<MRVMetadataEntry> entries;
    const int refused = MRVFrontMatter::read(text, &entries);
    if (refused > 0) {
        return MRV::fail(error, file,
                         {MRVErrorKind::Damaged,
                          atLine(refused, tr("this is neither \"key: value\" nor continues it"))});
    }
    MRVEPubMetadata read;
    QStringList unknown;
    for (const MRVMetadataEntry &entry : qAsConst(entries)) {
        if (!isKnown(entry.key)) {
            unknown.append(QStringLiteral("%1: %2").arg(
                file, atLine(entry.line, tr("'%1' is no key of a book").arg(entry.key))));
        } else if (!setAll(&read, entry, QFileInfo(file).dir(), &reason)) {
            return MRV::fail(error, file, {reason.kind, atLine(entry.line, reason.text)});
        }
    }
    if (notes) {
        *notes += unknown;
    }
    completeFrom(read);
    return true;
}

void MRVEPubMetadata::completeFrom(const MRVEPubMetadata &other)
{
    for (QString MRVEPubMetadata::*const text :
         {&MRVEPubMetadata::title, &MRVEPubMetadata::subtitle, &MRVEPubMetadata::language,
          &MRVEPubMetadata::identifier, &MRVEPubMetadata::isbn, &MRVEPubMetadata::publisher,
          &MRVEPubMetadata::description, &MRVEPubMetadata::rights, &MRVEPubMetadata::published,
          &MRVEPubMetadata::source}) {
        complete(&(this->*text), other.*text);
    }
    if (series.isEmpty()) { // the number is of its own series
        series = other.series;
        complete(&seriesNumber, other.seriesNumber);
    }
    complete(&authors, other.authors);
    complete(&contributors, other.contributors);
    complete(&subjects, other.subjects);
    complete(&cover, other.cover);
    for (auto name = other.fileAs.constBegin(); name != other.fileAs.constEnd(); ++name) {
        complete(&fileAs[name.key()], name.value());
    }
    modified = modified.isValid() ? modified : other.modified;
}

void MRVEPubMetadata::completeFrom(const MRVManuscript &manuscript, QStringList *notes)
{
    MRVEPubMetadata stated;
    stated.title = manuscript.document->metaInformation(QTextDocument::DocumentTitle).simplified();
    for (const QString &author : manuscript.authors) {
        stated.set(QStringLiteral("author"), author);
    }
    stated.description = manuscript.description;
    stated.language = manuscript.language;
    for (const MRVMetadataEntry &entry : manuscript.metadata) {
        const Key *const key = keyNamed(entry.key);
        // These were read by rules of their own.
        const bool isDone = !key || key == keyNamed(QStringLiteral("title"))
            || key == keyNamed(QStringLiteral("author"))
            || key == keyNamed(QStringLiteral("description"))
            || key == keyNamed(QStringLiteral("language"));
        if (notes && entry.values.isEmpty() && keyNamed(entry.key.section(u'.', 0, 0))) {
            const QString reason = key ? tr("the value cannot be read")
                                       : tr("'%1' is no key of a book").arg(entry.key);
            notes->append(
                QStringLiteral("%1: %2").arg(manuscript.path, atLine(entry.line, reason)));
        }
        for (const QString &value : isDone ? QStringList() : entry.values) {
            QString reason;
            if (!stated.set(entry.key, value, &reason) && notes) {
                notes->append(
                    QStringLiteral("%1: %2").arg(manuscript.path, atLine(entry.line, reason)));
            }
        }
    }
    completeFrom(stated);
}

bool MRVEPubMetadata::readCover(const QString &file, MRVErrorSink error)
{
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(file);
    MRVError reason;
    if (MRVPictureReader::ofFile(file).read(&reason).isNull()) {
        return MRV::fail(
            error, file,
            {reason.kind, tr("the cover picture cannot be read: %1").arg(reason.text)});
    }
    cover = bytes;
    return true;
}

QString MRVEPubMetadata::sortName(const QString &name) const
{
    const QString given = fileAs.value(name);
    return given.isEmpty() ? mrvFileAs(name, language) : given;
}
