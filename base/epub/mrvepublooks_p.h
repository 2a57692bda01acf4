#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QTextFormat>
#include <QVector>

#include <array>

/** The kinds of elements that paragraphs become; each has a rule of its own. */
enum class MRVEPubKind {
    Paragraph,
    Heading1,
    Heading2,
    Heading3,
    Heading4,
    Heading5,
    Heading6,
    Item,
    Cell
};

/** What one paragraph looks like, as numbers that compare. */
struct MRVEPubParagraphLook
{
    // Lengths in thousandths of an em of the paragraph's own text, the rest in percent.
    enum Value {
        Align,
        Indent,
        Top,
        Right,
        Bottom,
        Left,
        LineHeight,
        Size,
        Weight,
        Background,
        ValueCount
    };
    enum Alignment { Start, LeftSide, RightSide, Centered, Justified };

    MRVEPubKind kind = MRVEPubKind::Paragraph;
    std::array<int, ValueCount> values{};

    int operator[](Value value) const { return values[value]; }
    int &operator[](Value value) { return values[value]; }
    bool operator==(const MRVEPubParagraphLook &other) const
    {
        return kind == other.kind && values == other.values;
    }
};
uint qHash(const MRVEPubParagraphLook &look, uint seed = 0);

/** What text looks like beside what its elements say, as numbers that compare. */
struct MRVEPubTextLook
{
    enum Value {
        Size,
        Weight,
        Caps,
        Lines,
        Spacing,
        WordSpacing,
        Color,
        Background,
        Family,
        ValueCount
    };
    enum { Underline = 1, Overline = 2, LineThrough = 4 };

    std::array<int, ValueCount> values{};

    int operator[](Value value) const { return values[value]; }
    int &operator[](Value value) { return values[value]; }
    bool isPlain() const { return values == decltype(values){}; }
    bool operator==(const MRVEPubTextLook &other) const { return values == other.values; }
};
uint qHash(const MRVEPubTextLook &look, uint seed = 0);

/**
 * The looks of a book, each of them once, and the rules of the style sheet that they become.
 *
 * Looks are numbered as they first appear. The most common one of a kind of paragraph is the rule
 * of its element and needs no class; which one that is, is known once all documents are in.
 */
class MRVEPubLooks
{
public:
    /** The number of a look, which is counted. */
    int add(const MRVEPubParagraphLook &look);
    void count(int look) { ++m_paragraphs[look].uses; }
    /** The class of a look; plain looks have none. */
    QByteArray textClass(const MRVEPubTextLook &look);
    /** The number that stands for the name of a font, or a colour. */
    int familyNumber(const QString &family);
    /** The class of what is no text: a table, a cell, a frame; @p rule is what braces hold. */
    QByteArray boxClass(const char *name, const QByteArray &rule);

    /** The look that is the rule of its kind; -1 where no paragraph is of the kind. */
    int common(MRVEPubKind kind) const;
    /** The class of a paragraph's look, where it needs one, by the number of the look. */
    QVector<QByteArray> paragraphClasses() const;
    /** The rules of all looks; with indents in percent of a text's width in ems, if it is not 0. */
    QByteArray rules(double textWidth) const;

private:
    struct Paragraph
    {
        MRVEPubParagraphLook look;
        int uses;
    };
    struct Named
    {
        QByteArray name;
        QByteArray rule;
    };
    QByteArray freeName(const QByteArray &base);
    QByteArray declarations(const MRVEPubParagraphLook &look, const MRVEPubParagraphLook &usual,
                            double textWidth) const;
    QByteArray declarations(const MRVEPubTextLook &look) const;

    QVector<Paragraph> m_paragraphs;
    QHash<MRVEPubParagraphLook, int> m_paragraphNumbers;
    QVector<Named> m_named; // classes of text and boxes
    QHash<MRVEPubTextLook, int> m_textNumbers; // in m_named
    QHash<QByteArray, int> m_boxNumbers; // in m_named, by rule
    QHash<QByteArray, int> m_names; // how often a name was asked for
    QStringList m_families;
};

/** The look of a kind that a document which says nothing about it has. */
MRVEPubParagraphLook mrvEPubPlainLook(MRVEPubKind kind);
/** A length of a look: @p pixels where the body's text has 16, at a size in percent of it. */
int mrvEPubLength(double pixels, int size);
