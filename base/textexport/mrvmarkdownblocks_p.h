#pragma once

#include "textexport/mrvinlinewriter_p.h"
#include "textexport/mrvtextblocks_p.h"

#include <QString>
#include <QVector>

/** Writes blocks as Markdown. */
class MRVMarkdownBlocks
{
public:
    MRVMarkdownBlocks(const MRVDocumentFlow &flow, const MRVTextNotes &notes,
                      const QHash<QString, QString> &pictures);

    QString write();

private:
    // A quotation, item or note around a line: what its first line begins with, and the others.
    struct Container
    {
        QString first;
        QString rest;
    };

    void writeChildren(const MRVTextBlock &parent, bool isTight);
    void writeBlock(const MRVTextBlock &block);
    void writeIn(const Container &container, const MRVTextBlock &parent, bool isTight);
    void writeParagraph(const MRVTextBlock &block);
    void writeHeading(const MRVTextBlock &block);
    QString languageOf(const MRVTextBlock &code) const;
    void writeCode(const MRVTextBlock &block);
    void writeList(const MRVTextBlock &list);
    void writeNotes();
    bool isTight(const MRVTextBlock &list) const;
    QString taskMark(const MRVTextBlock &block) const;

    bool isPipeTable(const MRVTextBlock &table) const;
    void writeTable(const MRVTextBlock &table);
    QString delimiterRow(const MRVTextBlock &table) const;

    QString htmlOf(const MRVTextBlock &block, bool isHeader);
    QString htmlOfChildren(const MRVTextBlock &parent, bool isHeader);
    QString htmlOfTable(const MRVTextBlock &table);
    QString htmlOfCode(const MRVTextBlock &block);

    void line(const QString &text);

    const MRVDocumentFlow &m_flow;
    const MRVTextNotes &m_notes;
    MRVTextBlockReader m_blocks;
    MRVInlineWriter m_inline;
    QVector<Container> m_containers;
    int m_begun = 0; // how many containers have had their first line
    int m_listDepth = 0;
    QString m_text;
};
