#pragma once

#include <QByteArray>

/** A tag of XML, by its place. */
struct MRVOfficeTag
{
    enum Kind { Start, End, Empty };

    int begin = 0;
    int end = 0; ///< after ">"
    Kind kind = Start;
    QByteArray name; ///< with its prefix; points into the text

    bool is(const char *word) const { return name == word; }
};

/**
 * Goes from tag to tag of a text, which has to outlive it. Comments, declarations and the like are
 * passed over, and the rest of a text that ends within a tag.
 */
class MRVOfficeTags
{
public:
    explicit MRVOfficeTags(const QByteArray &xml)
        : m_xml(xml)
    {
    }

    /** False when all have been met. */
    bool next(MRVOfficeTag *tag);

private:
    const QByteArray &m_xml;
    int m_at = 0;
};

/** The value of an attribute as it is written; empty where it is missing. */
QByteArray mrvOfficeAttribute(const QByteArray &tag, const QByteArray &name);

/** The text without the tags of that name; what is inside of them stays. */
QByteArray mrvWithoutTags(const QByteArray &xml, const QByteArray &name);

/** A text as an application may use it: the five entities of XML are characters. */
QByteArray mrvWithoutEntities(QByteArray text);
