#include "archive/mrvarchivecontent_p.h"

#include "archive/mrvdocumentsettings_p.h"
#include "textformat/mrvtextformat.h"

#include "core/mrvcheckedstream.h"

#include <QDataStream>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr quint32 Magic = 0x4d525641;
constexpr quint32 Version = 1;
constexpr int StreamVersion = QDataStream::Qt_5_15;

constexpr int NoState = -1; // what Qt gives paragraphs at first

// One by one: a count is no reason to reserve memory.
template<typename Item, typename ReadOne>
bool readAll(MRVCheckedStream *in, QVector<Item> *items, const ReadOne &readOne)
{
    constexpr int Least = 4; // bytes of any item
    quint32 count = 0;
    bool isGood = in->readCount(&count, Least);
    for (quint32 i = 0; i < count && isGood; ++i) {
        Item item{};
        isGood = readOne(&item);
        items->append(item);
    }
    return isGood;
}

bool readEntry(MRVCheckedStream *in, MRVMetadataEntry *entry)
{
    qint32 line = 0;
    QVector<QString> values;
    const bool isGood = in->read(&entry->key)
        && readAll(in, &values, [in](QString *value) { return in->read(value); })
        && in->read(&line);
    entry->values = values.toList();
    entry->line = line;
    return isGood;
}

bool readPair(MRVCheckedStream *in, QPair<int, int> *pair)
{
    qint32 first = 0;
    qint32 second = 0;
    const bool isGood = in->read(&first) && in->read(&second);
    *pair = {first, second};
    return isGood;
}

} // namespace

MRVArchiveContent MRVArchiveContent::of(const QTextDocument &document)
{
    MRVArchiveContent content;
    content.settings = mrvDocumentSettings(document);
    QTextCursor all(document.begin());
    all.select(QTextCursor::Document);
    content.fragment = MRVDocumentFragment::fromCursor(all, MRVDocumentFragment::WithoutPictures);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.userState() != NoState) {
            content.states.append({block.blockNumber(), block.userState()});
        }
    }
    return content;
}

void MRVArchiveContent::apply(QTextDocument *document) const
{
    mrvApplyDocumentSettings(settings, document);
    QTextCursor cursor(document);
    fragment.insert(&cursor);
    for (const QPair<int, int> &state : states) {
        document->findBlockByNumber(state.first).setUserState(state.second);
    }
}

QByteArray MRVArchiveContent::beginning() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << Magic << Version << MRVTextFormat::toByteArray(settings) << fragment.toByteArray();
    return bytes;
}

QByteArray MRVArchiveContent::toByteArray(const QByteArray &beginning) const
{
    QByteArray bytes = beginning;
    QDataStream stream(&bytes, QIODevice::WriteOnly | QIODevice::Append);
    stream.setVersion(StreamVersion);
    stream << quint32(pictures.size());
    for (const MRVArchivedPicture &picture : pictures) {
        stream << picture.name << qint32(picture.format) << picture.file;
    }
    stream << quint32(metadata.size());
    for (const MRVMetadataEntry &entry : metadata) {
        stream << entry.key << quint32(entry.values.size());
        for (const QString &value : entry.values) {
            stream << value;
        }
        stream << qint32(entry.line);
    }
    stream << quint32(states.size());
    for (const QPair<int, int> &state : states) {
        stream << qint32(state.first) << qint32(state.second);
    }
    return bytes;
}

MRVArchiveContent::Result MRVArchiveContent::fromByteArray(const QByteArray &bytes,
                                                           MRVArchiveContent *content)
{
    *content = MRVArchiveContent();
    QDataStream stream(bytes);
    stream.setVersion(StreamVersion);
    MRVCheckedStream in(&stream);
    quint32 magic = 0;
    quint32 version = 0;
    if (!in.read(&magic) || !in.read(&version) || magic != Magic) {
        return Damaged;
    }
    if (version > Version) {
        return Newer;
    }
    QByteArray settings;
    QByteArray fragment;
    QSet<int> hasRawData;
    const auto readPicture = [&](MRVArchivedPicture *picture) {
        qint32 format = -1;
        const bool isGood = in.read(&picture->name) && in.read(&format) && in.read(&picture->file)
            && format >= -1 && format < content->fragment.formats.size()
            && !hasRawData.contains(format);
        picture->format = format;
        if (format >= 0) {
            hasRawData.insert(format);
        }
        return isGood;
    };
    const auto readMetadata = [&](MRVMetadataEntry *entry) { return readEntry(&in, entry); };
    const auto readState = [&](QPair<int, int> *state) { return readPair(&in, state); };
    const bool isGood = in.read(&settings) && in.read(&fragment)
        && MRVDocumentFragment::fromByteArray(fragment, &content->fragment)
        && readAll(&in, &content->pictures, readPicture)
        && readAll(&in, &content->metadata, readMetadata)
        && readAll(&in, &content->states, readState) && stream.atEnd();
    content->settings = MRVTextFormat::toCharFormat(settings);
    return isGood && content->settings.propertyCount() > 0 ? Good : Damaged;
}
