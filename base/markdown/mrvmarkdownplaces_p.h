#pragma once

#include "util/mrvsourceplace.h"

#include <cmark-gfm-core-extensions.h>

#include <QByteArray>
#include <QHash>
#include <QVector>

/**
 * Finds out where the text of a tree stands in its Markdown, and carries that through cmark's HTML.
 *
 * cmark tells the line and column of a node, but not what escapes, references and the beginnings of
 * lines make of the text in it.
 */
class MRVMarkdownPlaces
{
public:
    /** @param markdown what was parsed; it must not be changed while this lives. */
    explicit MRVMarkdownPlaces(const QByteArray &markdown);

    /** Finds the text of a tree as it was parsed. */
    void find(cmark_node *root);
    /** Puts marks into the text of the tree, by which takeMarks() knows it. */
    void setMarks(cmark_node *root);
    /** The rendered HTML without these marks. Fills places(). */
    QString takeMarks(const QString &html);

    /** For each character of the HTML, with offsets in UTF-8 of the Markdown. */
    const MRVSourcePlaces &places() const { return m_places; }

private:
    struct Text
    {
        QByteArray literal;
        MRVSourcePlaces places; // of its bytes
        MRVSourcePlace::Syntax syntax = MRVSourcePlace::Plain;
    };

    void findText(cmark_node *node);
    void findLines(int line, Text *text);
    void findInline(cmark_node *node, Text *text);
    bool search(int begin, int end, Text *text);
    bool take(int at, Text *text);
    bool takeText(int at, Text *text, int *end);
    bool takeBytes(int at, Text *text, int *end);
    bool takeCode(int at, Text *text, int *end);
    int referenceAt(int at, QByteArray *meant);
    int lineStart(int line) const;
    int lineEnd(int line) const;
    int pastPrefix(int at) const;
    int pastMarkup(int at) const;
    int appendPlaces(const Text &text, QStringView html);
    MRVSourcePlace lineEndPlace() const;

    const QByteArray &m_markdown;
    QVector<int> m_lines; // where they begin
    QVector<Text> m_texts;
    QHash<cmark_node *, int> m_indexes; // of m_texts
    QHash<QByteArray, QByteArray> m_meanings; // of references
    MRVSourcePlaces m_places;
    int m_end = 0; // of the text found last
};
