#pragma once

#include "office/mrvofficertfcontrol_p.h"

#include <QHash>
#include <QVector>

class QTextCodec;

/**
 * What the bytes of an RTF mean at a place: that depends on the code page of the document and on
 * the font, and groups keep the latter to themselves.
 */
class MRVRtfCodecs
{
public:
    /** To be called at "{", "}" and each control, in order. */
    void open();
    void close();
    void read(const MRVRtfControl &control);

    /** Whether the control may change what bytes mean. */
    static bool isRead(const MRVRtfControl &control);
    /** Null means Windows-1252. */
    QTextCodec *codec() const;
    /** Decodes bytes that stand beside each other here. */
    QString decoded(const QByteArray &bytes) const;
    /** Whether the last of these bytes is half a character, so that the next one belongs to it. */
    bool isIncomplete(const QByteArray &bytes) const;
    /** How many bytes after "\u220" are for older programs. */
    int substitutes() const { return m_group.substitutes; }

private:
    struct Group
    {
        int font = -1; // of the text; in the table, the one that is described
        bool isFontTable = false;
        int substitutes = 1;
    };

    Group m_group;
    QVector<Group> m_groups; // around it
    QHash<int, QTextCodec *> m_fonts; // those that say what they are
    QTextCodec *m_codec = nullptr; // of the document
    int m_font = -1; // that text has at first
};
