#include "markdown/mrvyamlvalue_p.h"

#include <QByteArray>
#include <QVector>

#include <algorithm>

#include <yaml.h>

namespace {

// libyaml looks at all open brackets for each new one.
constexpr int DeepestNesting = 100;

/** A parser's events, one at a time. */
class Events
{
public:
    explicit Events(const QByteArray &text)
    {
        yaml_parser_initialize(&m_parser);
        yaml_parser_set_input_string(&m_parser,
                                     reinterpret_cast<const unsigned char *>(text.constData()),
                                     size_t(text.size()));
        yaml_parser_set_encoding(&m_parser, YAML_UTF8_ENCODING);
    }
    ~Events()
    {
        yaml_event_delete(&m_event);
        yaml_parser_delete(&m_parser);
    }
    Events(const Events &) = delete;
    Events &operator=(const Events &) = delete;

    /** Goes on to the next one; false at an error, and from then on. */
    bool next()
    {
        yaml_event_delete(&m_event);
        m_isGood = m_isGood && yaml_parser_parse(&m_parser, &m_event);
        m_depth += is(YAML_SEQUENCE_START_EVENT) || is(YAML_MAPPING_START_EVENT) ? 1 : 0;
        m_depth -= is(YAML_SEQUENCE_END_EVENT) || is(YAML_MAPPING_END_EVENT) ? 1 : 0;
        m_isGood = m_isGood && m_depth <= DeepestNesting;
        return m_isGood;
    }
    bool is(yaml_event_type_t type) const { return m_isGood && m_event.type == type; }

    /** The text of a scalar, or an alias as it stands; empty for null and for lists and maps. */
    QString text() const
    {
        if (is(YAML_ALIAS_EVENT)) {
            return u'*'
                + QString::fromUtf8(reinterpret_cast<const char *>(m_event.data.alias.anchor));
        }
        if (!is(YAML_SCALAR_EVENT)) {
            return QString();
        }
        const auto &scalar = m_event.data.scalar;
        const QString text =
            QString::fromUtf8(reinterpret_cast<const char *>(scalar.value), int(scalar.length));
        const bool isNull = scalar.style == YAML_PLAIN_SCALAR_STYLE
            && (text == u'~' || text.compare(QLatin1String("null"), Qt::CaseInsensitive) == 0);
        return isNull ? QString() : text.trimmed();
    }

    /** Goes on to the end of the list or map that begins here; nothing else has one. */
    void skip()
    {
        const bool isNested = is(YAML_SEQUENCE_START_EVENT) || is(YAML_MAPPING_START_EVENT);
        for (const int outside = m_depth - 1; isNested && m_isGood && m_depth > outside;) {
            next();
        }
    }

private:
    yaml_parser_t m_parser;
    yaml_event_t m_event{};
    bool m_isGood = true;
    int m_depth = 0; // of lists and maps that have begun
};

// Characters that YAML does not allow stand for themselves in a plane for private use.
constexpr uint PrivatePlane = 0xf0000;

QString shielded(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        const uint stand = PrivatePlane + c.unicode();
        result += mrvIsYamlControl(c) ? QString::fromUcs4(&stand, 1) : QString(c);
    }
    return result;
}

QString unshielded(const QString &text)
{
    QString result;
    const QVector<uint> characters = text.toUcs4();
    for (const uint c : characters) {
        const QChar meant(ushort(c & 0xffff));
        const bool isStand = c >> 16 == PrivatePlane >> 16 && mrvIsYamlControl(meant);
        result += isStand ? QString(meant) : QString::fromUcs4(&c, 1);
    }
    return result;
}

class Reader
{
public:
    Reader(const QByteArray &text, bool pairs)
        : m_events(text)
        , m_pairs(pairs)
    {
    }

    bool read(MRVYamlValue *value)
    {
        // The beginning of the stream, the document and the map, and the key.
        for (int i = 0; i < 4; ++i) {
            m_events.next();
        }
        m_events.next();
        readItem(m_pairs && m_events.is(YAML_SEQUENCE_START_EVENT));
        m_events.next();
        const bool isAll = m_events.is(YAML_MAPPING_END_EVENT);
        m_events.next();
        m_events.next();
        if (!isAll || !m_events.is(YAML_STREAM_END_EVENT)) {
            return false;
        }
        m_value.texts.removeAll(QString());
        m_value.otherKeys.removeDuplicates();
        m_value.isNull = m_value.texts.isEmpty() && !m_isUnread;
        *value = m_value;
        return true;
    }

private:
    void readItem(bool pairs)
    {
        if (m_events.is(YAML_MAPPING_START_EVENT)) {
            readMap(pairs);
        } else if (m_events.is(YAML_SEQUENCE_START_EVENT)) { // one in another is a part of it
            while (m_events.next() && !m_events.is(YAML_SEQUENCE_END_EVENT)) {
                readItem(pairs);
            }
        } else {
            m_value.texts.append(m_events.text());
        }
    }

    void readMap(bool pairs)
    {
        QString name;
        QStringList otherKeys;
        QString last;
        while (m_events.next() && !m_events.is(YAML_MAPPING_END_EVENT)) {
            const QString key = m_events.text();
            m_events.skip();
            m_events.next();
            last = m_events.text();
            if (key == QLatin1String("name") && !last.isEmpty()) {
                m_value.texts.append(name); // of the same key twice
                name = last;
            } else if (!m_events.is(YAML_SCALAR_EVENT) || !last.isEmpty()) {
                otherKeys.append(key);
            }
            m_events.skip();
        }
        if (pairs && name.isEmpty() && otherKeys.size() == 1 && !last.isEmpty()) {
            m_value.texts.append(otherKeys.constFirst() + QLatin1String(": ") + last);
        } else {
            m_value.texts.append(name);
            m_value.otherKeys += otherKeys;
            m_isUnread = m_isUnread || !otherKeys.isEmpty();
        }
    }

    Events m_events;
    const bool m_pairs;
    MRVYamlValue m_value;
    bool m_isUnread = false; // a map without a name
};

} // namespace

bool mrvIsYamlControl(QChar character)
{
    const ushort c = character.unicode();
    return (c < ' ' && c != '\t' && c != '\n' && c != '\r') || (c >= 0x7f && c < 0xa0 && c != 0x85)
        || c >= 0xfffe;
}

bool mrvReadYamlValue(const QString &text, bool pairs, MRVYamlValue *value)
{
    const bool hasControls = std::any_of(text.begin(), text.end(), mrvIsYamlControl);
    const QString yaml = QLatin1String("key: ") + (hasControls ? shielded(text) : text) + u'\n';
    if (!Reader(yaml.toUtf8(), pairs).read(value)) {
        return false;
    }
    for (QString &one : value->texts) {
        one = hasControls ? unshielded(one) : one;
    }
    return true;
}
