#pragma once

#include "core/mrvcheckedstream.h"
#include "core/mrvcore_export.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <type_traits>

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
     * Two whole decimal numbers in @p text, separated by a comma, with or without blanks around
     * them.
     *
     * @param ok if given, receives whether the text is just that.
     * @return (0, 0) where it is not.
     */
    static QPair<int, int> toIntPair(const QString &text, bool *ok = nullptr);

    /**
     * As toIntPair() of @p text and @p ok, with finite reals, whose decimal sign is always the
     * point.
     */
    static QPair<double, double> toDoublePair(const QString &text, bool *ok = nullptr);

    /**
     * The QDataStream form of @p value, written with its type's own operator. Containers (QList,
     * QStringList, QVector, QSet, QMap, and QPair, nested as deep as you like) are written as a
     * qint32 count and their entries; sets and maps in ascending order, so that the same value
     * gives the same bytes in every process. Other containers do not compile.
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
     * Reads what toByteArray() wrote; bytes that follow are ignored. Maps and sets accept any
     * order.
     *
     * @return a default-constructed T where the bytes are empty, end too early, or hold a
     * container, however deep, whose count the bytes after it cannot fill: no memory is taken on
     * the word of a count. Types with operators of their own must see to that in them.
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
    template<typename T, typename = void>
    struct IsContainer : std::false_type
    {
    };
    template<typename T>
    struct IsContainer<T, std::void_t<typename T::const_iterator>>
        : std::bool_constant<!std::is_same_v<T, QString> && !std::is_same_v<T, QByteArray>>
    {
    };

    template<typename T>
    static void write(QDataStream &stream, const T &value)
    {
        static_assert(!IsContainer<T>::value, "Qt writes some containers in random order");
        stream << value;
    }
    template<typename First, typename Second>
    static void write(QDataStream &stream, const QPair<First, Second> &pair)
    {
        write(stream, pair.first);
        write(stream, pair.second);
    }
    template<typename T>
    static void write(QDataStream &stream, const QList<T> &list)
    {
        writeEntries(stream, list);
    }
    static void write(QDataStream &stream, const QStringList &list) { writeEntries(stream, list); }
    template<typename T>
    static void write(QDataStream &stream, const QVector<T> &vector)
    {
        writeEntries(stream, vector);
    }
    template<typename T>
    static void write(QDataStream &stream, const QSet<T> &set)
    {
        QList<T> sorted = set.values();
        std::sort(sorted.begin(), sorted.end());
        writeEntries(stream, sorted);
    }
    // Qt's own operator writes the keys in descending order.
    template<typename Key, typename Value>
    static void write(QDataStream &stream, const QMap<Key, Value> &map)
    {
        stream << qint32(map.size());
        for (auto it = map.cbegin(); it != map.cend(); ++it) {
            write(stream, it.key());
            write(stream, it.value());
        }
    }
    template<typename Container>
    static void writeEntries(QDataStream &stream, const Container &entries)
    {
        stream << qint32(entries.size());
        for (const auto &entry : entries) {
            write(stream, entry);
        }
    }

    // Qt's own operators reserve memory for whatever a count or a length says.
    template<typename T>
    static void read(QDataStream &stream, T *value)
    {
        static_assert(!IsContainer<T>::value, "Qt believes any count");
        if constexpr (std::is_same_v<T, QString> || std::is_same_v<T, QByteArray>) {
            MRVCheckedStream(&stream).read(value);
        } else {
            stream >> *value;
        }
    }
    template<typename First, typename Second>
    static void read(QDataStream &stream, QPair<First, Second> *pair)
    {
        read(stream, &pair->first);
        read(stream, &pair->second);
    }
    template<typename T>
    static void read(QDataStream &stream, QList<T> *list)
    {
        readEntries<T>(stream, [list](const T &entry) { list->append(entry); });
    }
    static void read(QDataStream &stream, QStringList *list)
    {
        read(stream, static_cast<QList<QString> *>(list));
    }
    template<typename T>
    static void read(QDataStream &stream, QVector<T> *vector)
    {
        readEntries<T>(stream, [vector](const T &entry) { vector->append(entry); });
    }
    template<typename T>
    static void read(QDataStream &stream, QSet<T> *set)
    {
        readEntries<T>(stream, [set](const T &entry) { set->insert(entry); });
    }
    template<typename Key, typename Value>
    static void read(QDataStream &stream, QMap<Key, Value> *map)
    {
        using Pair = QPair<Key, Value>;
        readEntries<Pair>(stream,
                          [map](const Pair &pair) { map->insert(pair.first, pair.second); });
    }
    template<typename Entry, typename Insert>
    static void readEntries(QDataStream &stream, const Insert &insert)
    {
        quint32 count = 0;
        MRVCheckedStream(&stream).readCount(&count, 1);
        for (; count > 0; --count) {
            Entry entry{};
            read(stream, &entry);
            if (stream.status() != QDataStream::Ok) {
                return;
            }
            insert(entry);
        }
    }
};
