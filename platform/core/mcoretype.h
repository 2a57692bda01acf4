#pragma once

#include "core/mrvcore_export.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

/**
 * Values as text and as bytes.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MCoreType
{
public:
    MCoreType() = delete;

    /** The stream version of all stored bytes; fixed, so that a newer Qt changes no file. */
    static constexpr int StreamVersion = QDataStream::Qt_5_15;

    /**
     * Two whole decimal numbers separated by a comma, with or without blanks around them.
     *
     * @param ok if given, receives whether the text is just that.
     * @return (0, 0) where it is not.
     */
    static QPair<int, int> toIntPair(const QString &text, bool *ok = nullptr);

    /** As toIntPair(), with finite reals, whose decimal sign is always the point. */
    static QPair<double, double> toDoublePair(const QString &text, bool *ok = nullptr);

    /**
     * The QDataStream form of @p value, written with its type's own operator; a map as a qint32
     * count and the pairs in ascending order of their keys.
     */
    template<typename T>
    static QByteArray toByteArray(const T &value)
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(StreamVersion);
        write(stream, value);
        return bytes;
    }

    /**
     * Reads what toByteArray() wrote; bytes that follow are ignored. Maps accept any order.
     *
     * @return a default-constructed T where the bytes are empty, end too early, or hold a map or
     * list whose count the bytes after it cannot fill: no memory is taken on the word of a count.
     */
    template<typename T>
    static T fromByteArray(const QByteArray &bytes)
    {
        T value{};
        QDataStream stream(bytes);
        stream.setVersion(StreamVersion);
        read(stream, &value);
        return stream.status() == QDataStream::Ok ? value : T{};
    }

private:
    template<typename T>
    static void write(QDataStream &stream, const T &value)
    {
        stream << value;
    }

    // Qt's own operator writes the keys in descending order.
    template<typename Key, typename Value>
    static void write(QDataStream &stream, const QMap<Key, Value> &map)
    {
        stream << qint32(map.size());
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            stream << it.key() << it.value();
    }

    template<typename T>
    static void read(QDataStream &stream, T *value)
    {
        stream >> *value;
    }

    template<typename Key, typename Value>
    static void read(QDataStream &stream, QMap<Key, Value> *map)
    {
        for (qint64 left = readCount(stream); left > 0; --left) {
            Key key{};
            Value value{};
            stream >> key >> value;
            if (stream.status() != QDataStream::Ok)
                return;
            map->insert(key, value);
        }
    }

    // Qt's own operator reserves memory for whatever the count says.
    template<typename T>
    static void read(QDataStream &stream, QList<T> *list)
    {
        for (qint64 left = readCount(stream); left > 0; --left) {
            T value{};
            stream >> value;
            if (stream.status() != QDataStream::Ok)
                return;
            list->append(value);
        }
    }
    static void read(QDataStream &stream, QStringList *list)
    {
        read(stream, static_cast<QList<QString> *>(list));
    }

    // The count of a map or list, or 0 with a bad status where more entries are promised than bytes.
    static qint64 readCount(QDataStream &stream);
};
