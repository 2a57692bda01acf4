#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

/** Markup in UTF-8, as it is appended. */
class MRVEPubMarkup
{
public:
    int size() const { return m_size; }

    void append(const char *text, int length);
    void append(const QByteArray &text) { append(text.constData(), text.size()); }
    void append(QLatin1String text) { append(text.data(), text.size()); }
    void append(char character) { append(&character, 1); }

    /**
     * Appends text, escaped, without what XML cannot hold; line separators are @p lineEnd.
     *
     * @param isAfterBlank whether a blank right at the beginning is one of several.
     * @return whether there is white space that a browser would swallow.
     */
    bool appendText(QStringView text, QLatin1String lineEnd, bool isAfterBlank);
    /** Appends a text that stands in double quotes. */
    void appendValue(const QString &value);

    /** What was written; nothing is left. */
    QByteArray take();

private:
    char *reserve(int length);

    QByteArray m_bytes; // larger than what was written
    int m_size = 0;
};

/** The value of an attribute in double quotes. */
QByteArray mrvEPubValue(const QString &value);
