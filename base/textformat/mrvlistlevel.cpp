#include "textformat/mrvlistlevel.h"

#include <QDataStream>
#include <QTextCursor>
#include <QTextList>

namespace {

// Any non-null value keeps Qt from asking for the id that is being registered here.
template<typename T>
T *withoutLookup()
{
    return reinterpret_cast<T *>(quintptr(-1));
}

int levelOf(const QTextBlockFormat &format)
{
    return qMax(0, format.intProperty(MRVParagraphListLevelProperty));
}

// Of a paragraph's indent, what shows its level.
int indentOf(int level)
{
    constexpr int Deepest = 1000;
    return qMin(level, Deepest);
}

} // namespace

int QMetaTypeId<MRVQtListLevel>::qt_metatype_id()
{
    static QBasicAtomicInt registered = Q_BASIC_ATOMIC_INITIALIZER(0);
    if (const int id = registered.loadAcquire()) {
        return id;
    }
    const QByteArray name = QByteArrayLiteral("QTextListFormat::Level");
    const int id =
        qRegisterNormalizedMetaType<MRVQtListLevel>(name, withoutLookup<MRVQtListLevel>());
    // The comparator is registered by type, which asks for the id again.
    registered.storeRelease(id);
    QMetaType::registerEqualsComparator<MRVQtListLevel>();
    QMetaType::registerStreamOperators(
        id,
        [](QDataStream &stream, const void *level) {
            stream << *static_cast<const MRVQtListLevel *>(level);
        },
        [](QDataStream &stream, void *level) { stream >> *static_cast<MRVQtListLevel *>(level); });
    return id;
}

int QMetaTypeId<MRVTextBlockLevelMap>::qt_metatype_id()
{
    static const int id = qRegisterNormalizedMetaType(QByteArrayLiteral("MRVTextBlockLevelMap"),
                                                      withoutLookup<MRVTextBlockLevelMap>());
    return id;
}

bool operator==(const MRVQtListLevel &a, const MRVQtListLevel &b)
{
    return a.text == b.text && a.numberStyle == b.numberStyle && a.leftIndent == b.leftIndent
        && a.textIndent == b.textIndent;
}

QDataStream &operator<<(QDataStream &stream, const MRVQtListLevel &level)
{
    return stream << level.text << qint32(level.numberStyle) << level.leftIndent
                  << level.textIndent;
}

QDataStream &operator>>(QDataStream &stream, MRVQtListLevel &level)
{
    MRVQtListLevel read;
    qint32 numberStyle = 0;
    stream >> read.text >> numberStyle >> read.leftIndent >> read.textIndent;
    read.numberStyle = numberStyle;
    if (stream.status() == QDataStream::Ok) {
        level = read;
    }
    return stream;
}

int mrvListLevel(const QTextList &list, const QTextBlock &block)
{
    if (!block.isValid() || block.textList() != &list) {
        return 0;
    }
    return levelOf(block.blockFormat());
}

void mrvSetListLevel(QTextList &list, const QTextBlock &block, int level)
{
    level = qMax(0, level);
    if (!block.isValid() || block.textList() != &list || mrvListLevel(list, block) == level) {
        return;
    }
    QTextBlockFormat format = mrvWithoutListLevel(block.blockFormat());
    if (level > 0) {
        format.setProperty(MRVParagraphListLevelProperty, level);
        format.setIndent(format.indent() + indentOf(level));
    }
    QTextCursor(block).setBlockFormat(format);
}

QTextBlockFormat mrvWithoutListLevel(const QTextBlockFormat &format)
{
    QTextBlockFormat without = format;
    without.clearProperty(MRVParagraphListLevelProperty);
    const int indent = format.indent() - indentOf(levelOf(format));
    // An indent of 0 is left unset: a format that says it is another one than one that does not.
    if (indent > 0) {
        without.setIndent(indent);
    } else if (levelOf(format) > 0) {
        without.clearProperty(QTextFormat::BlockIndent);
    }
    return without;
}

void mrvRemoveFromList(const QTextBlock &block)
{
    QTextList *list = block.isValid() ? block.textList() : nullptr;
    if (!list) {
        return;
    }
    QTextCursor cursor(block);
    cursor.beginEditBlock();
    // With it, a paragraph that joins another list later would start at the level of this one.
    mrvSetListLevel(*list, block, 0);
    list->remove(block);
    cursor.endEditBlock();
}
