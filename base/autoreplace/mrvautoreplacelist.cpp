#include "autoreplace/mrvautoreplacelist.h"

#include "autoreplace/mrvautoreplaceindex_p.h"
#include "core/mrvcheckedstream.h"
#include "util/mrvfailure.h"

#include <QDataStream>

#include <algorithm>

namespace {

// By name, so that stored lists stay the same under a newer Qt.
constexpr int StreamVersion = QDataStream::Qt_5_15;
constexpr qint32 ListVersion = 1;

// Up to this size, comparing each entry costs less than an index.
constexpr int LongestScan = 64;

// The default list as it is stored, in hexadecimal digits: version and count, then an entry a line.
// clang-format off
constexpr char defaultDigits[] =
    "00000001" "00000021"
    "01" "00000006" "002800630029"         "00000002" "00a9" // (c)
    "01" "00000006" "002800720029"         "00000002" "00ae" // (r)
    "01" "00000006" "002800650029"         "00000002" "20ac" // (e)
    "01" "00000006" "002800700029"         "00000002" "2117" // (p)
    "01" "00000008" "00280074006d0029"     "00000002" "2122" // (tm)
    "01" "00000006" "0061002f0063"         "00000002" "2100" // a/c
    "01" "00000006" "0061002f0073"         "00000002" "2101" // a/s
    "01" "00000006" "0063002f006f"         "00000002" "2105" // c/o
    "01" "00000006" "002d002d003e"         "00000002" "2192" // -->
    "01" "00000006" "003c002d002d"         "00000002" "2190" // <--
    "01" "00000008" "003c002d002d003e"     "00000002" "2194" // <-->
    "01" "00000006" "003c003d003d"         "00000002" "21d0" // <==
    "01" "00000006" "003d003d003e"         "00000002" "21d2" // ==>
    "01" "00000008" "003c003d003d003e"     "00000002" "21d4" // <==>
    "00" "00000006" "0031002f0032"         "00000002" "00bd" // 1/2
    "00" "00000006" "0031002f0034"         "00000002" "00bc" // 1/4
    "00" "00000006" "0033002f0034"         "00000002" "00be" // 3/4
    "00" "00000006" "0031002f0038"         "00000002" "215b" // 1/8
    "00" "00000006" "0033002f0038"         "00000002" "215c" // 3/8
    "00" "00000006" "0035002f0038"         "00000002" "215d" // 5/8
    "00" "00000006" "0037002f0038"         "00000002" "215e" // 7/8
    "00" "00000006" "0031002f0033"         "00000002" "2153" // 1/3
    "00" "00000006" "0032002f0033"         "00000002" "2154" // 2/3
    "00" "00000006" "0031002f0035"         "00000002" "2155" // 1/5
    "00" "00000006" "0032002f0035"         "00000002" "2156" // 2/5
    "00" "00000006" "0033002f0035"         "00000002" "2157" // 3/5
    "00" "00000006" "0034002f0035"         "00000002" "2158" // 4/5
    "00" "00000006" "003100730074"         "00000004" "003100b0" // 1st
    "00" "00000006" "0032006e0064"         "00000004" "003200b0" // 2nd
    "00" "00000006" "003300720064"         "00000004" "003300b0" // 3rd
    "00" "00000006" "003100730074"         "00000004" "00310072" // 1st
    "00" "00000006" "0032006e0064"         "00000004" "0032006e" // 2nd
    "00" "00000006" "003300720064"         "00000004" "00330072"; // 3rd
// clang-format on

} // namespace

MRVAutoReplaceList::MRVAutoReplaceList() = default;

MRVAutoReplaceList::MRVAutoReplaceList(std::initializer_list<MRVAutoReplace> entries)
    : List(entries)
{
}

MRVAutoReplaceList::MRVAutoReplaceList(const List &entries)
    : List(entries)
{
}

MRVAutoReplaceList::MRVAutoReplaceList(const MRVAutoReplaceList &other)
    : List(other)
    , m_index(other.m_index)
{
    // The holder of a reference changes only the other list.
    if (other.m_givenAway) {
        detach();
    }
}

MRVAutoReplaceList::MRVAutoReplaceList(MRVAutoReplaceList &&other) noexcept
{
    swap(other);
}

MRVAutoReplaceList::~MRVAutoReplaceList() = default;

MRVAutoReplaceList &MRVAutoReplaceList::operator=(const MRVAutoReplaceList &other)
{
    MRVAutoReplaceList copy(other);
    swap(copy);
    return *this;
}

MRVAutoReplaceList &MRVAutoReplaceList::operator=(MRVAutoReplaceList &&other) noexcept
{
    MRVAutoReplaceList moved(std::move(other));
    swap(moved);
    return *this;
}

MRVAutoReplace MRVAutoReplaceList::bestMatch(const QString &text) const
{
    if (m_givenAway || size() <= LongestScan) {
        return scan(text);
    }
    if (!m_index || !m_index->holdsFor(*this)) {
        m_index = std::make_shared<MRVAutoReplaceIndex>(*this);
    }
    const int found = m_index->find(text);
    return found < 0 ? MRVAutoReplace() : at(found);
}

MRVAutoReplace MRVAutoReplaceList::scan(const QString &text) const
{
    int found = -1;
    int length = 0;
    for (int i = 0; i < size() && length < text.size(); ++i) {
        const MRVAutoReplace &entry = at(i);
        if (entry.enabled && entry.match.size() > length && text.endsWith(entry.match)) {
            found = i;
            length = entry.match.size();
        }
    }
    return found < 0 ? MRVAutoReplace() : at(found);
}

bool MRVAutoReplaceList::containsMatch(const QString &match) const
{
    return std::any_of(cbegin(), cend(),
                       [&](const MRVAutoReplace &entry) { return entry.match == match; });
}

bool MRVAutoReplaceList::containsEnabled(const QString &match) const
{
    return std::any_of(cbegin(), cend(), [&](const MRVAutoReplace &entry) {
        return entry.enabled && entry.match == match;
    });
}

QVector<int> MRVAutoReplaceList::indexesOf(const QString &match, const QString &replacement) const
{
    QVector<int> indexes;
    for (int i = 0; i < size(); ++i) {
        if (at(i).match == match && (replacement.isNull() || at(i).replacement == replacement)) {
            indexes.append(i);
        }
    }
    return indexes;
}

bool MRVAutoReplaceList::containsReplacement(const QString &match, const QString &replacement) const
{
    return std::any_of(cbegin(), cend(), [&](const MRVAutoReplace &entry) {
        return entry.match == match && entry.replacement == replacement;
    });
}

QByteArray MRVAutoReplaceList::toByteArray() const
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << ListVersion << qint32(size());
    for (const MRVAutoReplace &entry : *this) {
        stream << entry.enabled << entry.match << entry.replacement;
    }
    return data;
}

void MRVAutoReplaceList::fromByteArray(const QByteArray &data, MRVErrorSink error)
{
    clear();
    QDataStream stream(data);
    stream.setVersion(StreamVersion);
    MRVCheckedStream in(&stream);
    qint32 version = 0;
    qint32 count = 0;
    if (!in.read(&version) || version != ListVersion) {
        MRV::fail(error, MRVErrorKind::Unsupported,
                  tr("it is not an auto-replace list of a known version"));
        return;
    }
    in.read(&count);
    // Entries before the damage are kept, so a count that is too large is no reason to stop.
    for (qint32 i = 0; i < count && in.isOk(); ++i) {
        MRVAutoReplace entry;
        in.read(&entry.enabled);
        in.read(&entry.match);
        in.read(&entry.replacement);
        if (!entry.match.isEmpty() || !entry.replacement.isEmpty()) {
            append(entry);
        }
    }
    if (count < 0 || !in.isOk() || !stream.atEnd()) {
        MRV::fail(
            error, MRVErrorKind::Damaged,
            tr("it is damaged or truncated; entries that could be read: %n", nullptr, size()));
    }
}

void MRVAutoReplaceList::appendMissingOrdinals(MRVAutoReplaceList *list)
{
    if (!list) {
        return;
    }
    const MRVAutoReplaceList ordinals = MRVAutoReplace::ordinals();
    for (const MRVAutoReplace &ordinal : ordinals) {
        if (!list->containsReplacement(ordinal.match, ordinal.replacement)) {
            list->append(ordinal);
        }
    }
}

MRVAutoReplaceList MRVAutoReplaceList::defaultReplacements()
{
    static const MRVAutoReplaceList list = [] {
        MRVAutoReplaceList read;
        read.fromByteArray(defaultReplacementsByteArray());
        return read;
    }();
    return list;
}

QByteArray MRVAutoReplaceList::defaultReplacementsByteArray()
{
    return QByteArray::fromHex(QByteArray::fromRawData(defaultDigits, sizeof(defaultDigits) - 1));
}

void MRVAutoReplaceList::clear()
{
    MRVAutoReplaceList empty;
    swap(empty);
}

void MRVAutoReplaceList::swap(MRVAutoReplaceList &other) noexcept
{
    List::swap(other);
    m_index.swap(other.m_index);
    std::swap(m_givenAway, other.m_givenAway);
}

void MRVAutoReplaceList::giveAway()
{
    // Before the reference is taken: the list need not be detached from the index's copy then.
    m_index.reset();
    m_givenAway = true;
}
