#include "shortcuts/mrvshortcutscheme.h"

#include "util/mrvclosestmatch.h"
#include "util/mrvfailure.h"

#include "core/mcoretype.h"
#include "core/mrvcheckedstream.h"
#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "core/mrvinputlimits.h"

#include <QDataStream>
#include <QFileInfo>
#include <QIODevice>
#include <QSet>

#include <algorithm>

namespace {

using Shortcuts = MRVShortcutScheme::Shortcuts;

QList<MRVShortcut::Id> sortedIds(const Shortcuts &shortcuts)
{
    QList<MRVShortcut::Id> ids = shortcuts.keys();
    std::sort(ids.begin(), ids.end());
    return ids;
}

} // namespace

MRVShortcutScheme::MRVShortcutScheme(const QString &name)
    : m_name(name)
{
}

MRVShortcutScheme::MRVShortcutScheme(const QString &name, const Shortcuts &shortcuts)
    : m_name(name)
{
    mergeShortcuts(shortcuts);
}

MRVShortcutScheme::MRVShortcutScheme(const QByteArray &data, bool mergeDefaults)
    : MRVShortcutScheme(fromByteArray(data))
{
    if (mergeDefaults) {
        mergeMissingShortcuts(morvane().m_shortcuts);
    }
}

QList<MRVShortcutInfo> MRVShortcutScheme::sortedShortcuts() const
{
    QList<MRVShortcutInfo> infos;
    infos.reserve(m_shortcuts.size());
    const QList<Id> ids = sortedIds(m_shortcuts);
    for (const Id id : ids) {
        infos.append(m_shortcuts.value(id));
    }
    return infos;
}

MRVShortcutInfo MRVShortcutScheme::shortcutInfo(Id id) const
{
    return m_shortcuts.value(id);
}

QKeySequence MRVShortcutScheme::shortcut(Id id) const
{
    return m_shortcuts.value(id).sequence;
}

bool MRVShortcutScheme::contains(const QKeySequence &sequence) const
{
    const QString text = sequence.toString(QKeySequence::NativeText);
    return std::any_of(m_shortcuts.cbegin(), m_shortcuts.cend(), [&](const MRVShortcutInfo &info) {
        return info.sequence.toString(QKeySequence::NativeText) == text;
    });
}

bool MRVShortcutScheme::setShortcut(Id id, const QKeySequence &sequence)
{
    const auto found = m_shortcuts.find(id);
    if (found == m_shortcuts.end()) {
        return false;
    }
    found->sequence = sequence;
    return true;
}

bool MRVShortcutScheme::setShortcut(Id id, const MRVShortcutInfo &info)
{
    if (!MRVShortcut::isValid(id)) {
        return false;
    }
    m_shortcuts.insert(id, {id, info.sequence, info.text});
    return true;
}

void MRVShortcutScheme::mergeMissingShortcuts(const Shortcuts &shortcuts)
{
    for (auto it = shortcuts.cbegin(); it != shortcuts.cend(); ++it) {
        if (!m_shortcuts.contains(it.key())) {
            setShortcut(it.key(), it.value());
        }
    }
}

void MRVShortcutScheme::mergeShortcuts(const Shortcuts &shortcuts)
{
    for (auto it = shortcuts.cbegin(); it != shortcuts.cend(); ++it) {
        setShortcut(it.key(), it.value());
    }
}

void MRVShortcutScheme::mergeCopy(const MRVShortcutScheme &other)
{
    mergeShortcuts(other.m_shortcuts);
    m_name = other.m_name;
}

QList<MRVShortcutInfo> MRVShortcutScheme::findShortcuts(const QString &filter) const
{
    QList<MRVShortcutInfo> infos = sortedShortcuts();
    infos.erase(
        std::remove_if(infos.begin(), infos.end(),
                       [&](const MRVShortcutInfo &info) { return !info.matchFilter(filter); }),
        infos.end());
    return infos;
}

QList<MRVShortcutInfo> MRVShortcutScheme::findShortcuts(const QString &filter,
                                                        const Shortcuts &shortcuts)
{
    return MRVShortcutScheme(QString(), shortcuts).findShortcuts(filter);
}

QList<MRVShortcutInfo> MRVShortcutScheme::groupShortcuts(const QString &group) const
{
    QList<MRVShortcutInfo> infos;
    const QList<Id> ids = sortedIds(m_shortcuts);
    for (const Id id : ids) {
        if (MRVShortcut::group(id) == group) {
            infos.append(m_shortcuts.value(id));
        }
    }
    return infos;
}

QList<MRVShortcutInfo> MRVShortcutScheme::groupShortcuts(const QString &group,
                                                         const Shortcuts &shortcuts)
{
    return MRVShortcutScheme(QString(), shortcuts).groupShortcuts(group);
}

QStringList MRVShortcutScheme::shortcutGroups() const
{
    QSet<QString> groups;
    for (auto it = m_shortcuts.cbegin(); it != m_shortcuts.cend(); ++it) {
        groups.insert(MRVShortcut::group(it.key()));
    }
    QStringList sorted = groups.values();
    sorted.sort();
    return sorted;
}

// A text that names no key gives Qt an unknown key, and a null character gives key 0: both make a
// sequence that is not empty and that no text stands for.
QKeySequence MRVShortcutScheme::toSequence(const QString &portableText)
{
    if (portableText.size() > MRVInputLimits::KeyText) {
        return QKeySequence();
    }
    const QKeySequence sequence(portableText, QKeySequence::PortableText);
    for (int i = 0; i < sequence.count(); ++i) {
        const int key = sequence[uint(i)] & ~int(Qt::KeyboardModifierMask);
        if (key == 0 || key == Qt::Key_unknown) {
            return QKeySequence();
        }
    }
    return sequence;
}

MRVShortcutScheme::Shortcuts MRVShortcutScheme::toHash(const QList<MRVShortcutInfo> &infos)
{
    Shortcuts shortcuts;
    for (const MRVShortcutInfo &info : infos) {
        shortcuts.insert(info.id, info);
    }
    return shortcuts;
}

QByteArray MRVShortcutScheme::toByteArray() const
{
    return MCoreType::toByteArray(*this);
}

QByteArray MRVShortcutScheme::toByteArray(const MRVShortcutScheme &scheme)
{
    return scheme.toByteArray();
}

MRVShortcutScheme MRVShortcutScheme::fromByteArray(const QByteArray &data, MRVErrorSink error)
{
    QDataStream stream(data);
    stream.setVersion(MCoreType::StreamVersion);
    MRVShortcutScheme scheme;
    scheme.read(stream, error);
    return scheme;
}

bool MRVShortcutScheme::save(const QString &path, MRVErrorSink error) const
{
    return MRVFileWriter::write(path, toByteArray(), error);
}

MRVShortcutScheme MRVShortcutScheme::load(const QString &path, MRVErrorSink error)
{
    MRVError unreadable;
    const QByteArray data = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (unreadable) {
        MRV::fail(error, unreadable); // names the file
        return MRVShortcutScheme();
    }
    MRVError damage;
    const MRVShortcutScheme scheme = fromByteArray(data, &damage);
    if (damage) {
        MRV::fail(error, damage.kind, tr("%1: %2").arg(path, damage.text));
    }
    return scheme;
}

bool MRVShortcutScheme::saveAsText(const QString &path, MRVErrorSink error) const
{
    return MRVCoreUtil::WriteUnicodeTextFile(toText(), path, error);
}

QString MRVShortcutScheme::toText() const
{
    QString text;
    const QStringList groups = shortcutGroups();
    for (const QString &group : groups) {
        if (!text.isEmpty()) {
            text += u'\n';
        }
        text += group.toUpper() + u'\n';
        const QList<MRVShortcutInfo> infos = groupShortcuts(group);
        for (const MRVShortcutInfo &info : infos) {
            // A line break in a text would make another line of it.
            text += QLatin1String("  ") + info.text.simplified() + QLatin1String(": ")
                + info.sequence.toString(QKeySequence::NativeText) + u'\n';
        }
    }
    return text;
}

bool MRVShortcutScheme::isStoredForm(const QByteArray &bytes)
{
    QString error;
    fromByteArray(bytes, &error);
    return error.isEmpty();
}

bool MRVShortcutScheme::isText(const QByteArray &bytes)
{
    // Each group is a heading and at least one entry.
    enum { Outside, AfterHeading, AfterEntry } place = Outside;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        const QString text = QString::fromUtf8(line);
        const bool isEntry = line.startsWith("  ") && line.contains(": ");
        const bool isHeading = !line.startsWith(' ') && text == text.toUpper();
        if (line.isEmpty() ? place == AfterHeading : place == Outside ? !isHeading : !isEntry) {
            return false;
        }
        place = line.isEmpty() ? Outside : place == Outside ? AfterHeading : AfterEntry;
    }
    return place == Outside;
}

MRVShortcutScheme MRVShortcutScheme::morvane()
{
    static const MRVShortcutScheme scheme = [] {
        MRVShortcutScheme defaults(tr("Morvane"));
        for (int i = MRVShortcut::NoId + 1; i <= MRVShortcut::FullScreenGoTo; ++i) {
            const MRVShortcut::Row *row = MRVShortcut::row(Id(i));
            const QKeySequence sequence =
                row->key ? QKeySequence(MRVShortcut::tr(row->key)) : QKeySequence();
            defaults.m_shortcuts.insert(row->id, {row->id, sequence, MRVShortcut::tr(row->text)});
        }
        return defaults;
    }();
    return scheme;
}

MRVShortcutScheme MRVShortcutScheme::macMorvane()
{
    static const MRVShortcutScheme scheme(tr("Mac Morvane"), morvane().m_shortcuts);
    return scheme;
}

MRVShortcutScheme MRVShortcutScheme::openOffice()
{
    static const MRVShortcutScheme scheme(tr("Open Office"), morvane().m_shortcuts);
    return scheme;
}

MRVShortcutScheme MRVShortcutScheme::msWord()
{
    static const MRVShortcutScheme scheme(tr("Microsoft Word"), morvane().m_shortcuts);
    return scheme;
}

QList<MRVShortcutScheme> MRVShortcutScheme::predefinedSchemes()
{
    return {morvane(), msWord(), openOffice(), macMorvane()};
}

MRVShortcutScheme MRVShortcutScheme::predefinedScheme(const QString &name)
{
    const QList<MRVShortcutScheme> schemes = predefinedSchemes();
    const auto found =
        std::find_if(schemes.cbegin(), schemes.cend(),
                     [&](const MRVShortcutScheme &scheme) { return scheme.m_name == name; });
    return found != schemes.cend() ? *found : morvane();
}

MRVShortcutScheme MRVShortcutScheme::loadNamed(const QString &nameOrPath, MRVErrorSink error)
{
    const QList<MRVShortcutScheme> schemes = predefinedSchemes();
    QStringList names;
    for (const MRVShortcutScheme &scheme : schemes) {
        if (scheme.m_name == nameOrPath) {
            return scheme;
        }
        names.append(scheme.m_name);
    }
    if (QFileInfo::exists(nameOrPath)) {
        return load(nameOrPath, error);
    }
    const QString meant = MRV::closestMatch(nameOrPath, names);
    MRV::fail(
        error, MRVErrorKind::NotFound,
        meant.isNull()
            ? tr("%1: there is no such file, and no predefined scheme of that name").arg(nameOrPath)
            : tr("%1: there is no such file, and no predefined scheme of that name; did you "
                 "mean '%2'?")
                  .arg(nameOrPath, meant));
    return MRVShortcutScheme();
}

void MRVShortcutScheme::read(QDataStream &stream, MRVErrorSink error)
{
    MRVCheckedStream in(&stream);
    QString version;
    QString name;
    qint32 count = 0;
    const bool hasVersion = in.read(&version);
    if (!hasVersion || version != QLatin1String(version_1_0)) {
        MRV::fail(error, hasVersion ? MRVErrorKind::Unsupported : MRVErrorKind::Damaged,
                  hasVersion ? tr("it is not a shortcut scheme of a known version")
                             : tr("it is not a shortcut scheme"));
        return;
    }
    if (in.read(&name)) {
        m_name = name;
        in.read(&count);
    }
    for (; count > 0; --count) {
        QByteArray key;
        QString sequence;
        QString text;
        if (!in.read(&key) || !in.read(&sequence) || !in.read(&text)) {
            break;
        }
        const Id id = MRVShortcut::keyToValue(key.constData());
        // The look-up also takes "MRVShortcut::Save", and stops at a null character.
        if (MRVShortcut::isValid(id) && key == MRVShortcut::valueToKey(id)) {
            m_shortcuts.insert(id, {id, toSequence(sequence), text});
        }
    }
    if (count < 0) {
        in.fail();
    }
    if (!in.isOk()) {
        MRV::fail(error, MRVErrorKind::Damaged,
                  tr("it is damaged or truncated; shortcuts that could be read: %n", nullptr,
                     m_shortcuts.size()));
    }
}

QDataStream &operator<<(QDataStream &stream, const MRVShortcutScheme &scheme)
{
    const QList<MRVShortcut::Id> ids = sortedIds(scheme.m_shortcuts);
    stream << QString::fromLatin1(MRVShortcutScheme::version_1_0) << scheme.m_name
           << qint32(ids.size());
    for (const MRVShortcut::Id id : ids) {
        const MRVShortcutInfo info = scheme.m_shortcuts.value(id);
        stream << QByteArray(MRVShortcut::valueToKey(id))
               << info.sequence.toString(QKeySequence::PortableText) << info.text;
    }
    return stream;
}

QDataStream &operator>>(QDataStream &stream, MRVShortcutScheme &scheme)
{
    scheme.read(stream, nullptr);
    return stream;
}
