#pragma once

#include "util/mrvbase_export.h"

#include <QFlags>
#include <QHash>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QVariant>

class QTextBlock;

/**
 * A text that is offered while its beginning is typed.
 *
 * @since 1.0
 */
struct MRVCompletion
{
    QString text;
    /** Whether a new paragraph begins after the text once it is accepted. */
    bool newLineAfter = false;

    bool operator==(const MRVCompletion &other) const
    {
        return text == other.text && newLineAfter == other.newLineAfter;
    }
    bool operator!=(const MRVCompletion &other) const { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(MRVCompletion, Q_MOVABLE_TYPE);

/**
 * Completions in the order in which they are offered.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVCompletionList
{
public:
    /** Adds a completion at the end; one that is there already is there twice. */
    void append(const MRVCompletion &completion);
    /** In the order of append(). */
    QList<MRVCompletion> completions() const { return m_completions; }
    /** Whether nothing can be offered. */
    bool isEmpty() const { return m_completions.isEmpty(); }

    /** The length of the longest text, in QChars; 0 for an empty list. */
    int longestLength() const { return m_longestLength; }

    /**
     * The completions that begin with @p prefix in any case and are longer than it, in their order.
     * None for an empty prefix, which would offer everything. Takes time linear in the list.
     */
    MRVCompletionList filter(const QString &prefix) const;

    /** Of the first completion that is @p text in any case; false where there is none. */
    bool newLineAfter(const QString &text) const;

    bool operator==(const MRVCompletionList &other) const
    {
        return m_completions == other.m_completions;
    }
    bool operator!=(const MRVCompletionList &other) const { return !(*this == other); }

private:
    QList<MRVCompletion> m_completions;
    int m_longestLength = 0;
};

/**
 * One kind of paragraph of a script, such as the scene heading or the dialogue: what it looks like,
 * what Return and Tab do in it, and what is offered for completion.
 *
 * It is a value. It neither edits documents by itself nor knows its neighbours: the elements that
 * it goes on with are named by their titles, and MRVScriptMode holds them.
 *
 * What a default one is: no title, no formats, no completions, every flag off, and Tab after text
 * goes to another element that is not named.
 *
 * The meta types "MRVScriptElement" and "QList<MRVScriptElement>" are known by these names to any
 * program that includes this header: see metaType().
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptElement
{
public:
    enum Flag {
        AllCaps = 0x1, ///< typed text becomes upper case; see recapitalizeBlock()
        Parenthetical = 0x2, ///< the text stands in parentheses
        KeepWithNext = 0x4, ///< no page break between this paragraph and the next
        AllowTabs = 0x8, ///< Tab may insert a tab
        AppendProjectList = 0x10, ///< the project's own completions are offered, too
        AddToProjectList = 0x20, ///< what is typed is added to the project's completions
        /**
         * The underline is double. Qt's formats know no such line, so the character format has a
         * single one.
         */
        DoubleUnderline = 0x40,
        /** Blanks are not underlined. Mode files may say so, but are never written with it. */
        UnderlineByWord = 0x80,
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    /** What ends a paragraph of this element, or turns it into one of another. */
    enum Action {
        ReturnAction = 0, ///< Return
        TabOnEmptyAction = 1, ///< Tab in an empty paragraph
        TabAfterTypingAction = 2, ///< Tab after text
    };

    enum TabBehavior {
        TabToNewElement = 0, ///< goes to the element of TabAfterTypingAction
        TabInsertsText = 1, ///< inserts the text of TabAfterTypingAction
    };

    /** What follows when a completion from the project's list is accepted. */
    enum CompleteBehavior {
        CompleteDefault = 0, ///< nothing
        CompleteToNextLine = 1,
        CompleteInsertsTab = 2,
    };

    /** What other elements and the user call it; not translated. */
    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    /** A key sequence in portable text, such as "Ctrl+1"; empty for none. */
    QString shortcut() const { return m_shortcut; }
    void setShortcut(const QString &shortcut) { m_shortcut = shortcut; }

    /**
     * @name Character format
     *
     * What text typed into a paragraph of this element looks like. Properties that are not set are
     * those of the document.
     */
    //@{
    QTextCharFormat charFormat() const { return m_charFormat; }
    void setCharFormat(const QTextCharFormat &format) { m_charFormat = format; }
    //@}

    /**
     * Lengths are in points. Indents are MRVTextFormat::BlockLeftIndent and BlockRightIndent,
     * measured from the margins of the page, and QTextFormat::TextIndent, measured from the left
     * indent. Line spacing is the pair MRVTextFormat::BlockSpacing and BlockBaseSpacing.
     */
    QTextBlockFormat blockFormat() const { return m_blockFormat; }
    void setBlockFormat(const QTextBlockFormat &format) { m_blockFormat = format; }

    /**
     * @name Flags
     *
     * Combinations that contradict each other are kept as they are; @p on says whether a single
     * one is set or cleared.
     */
    //@{
    Flags flags() const { return m_flags; }
    bool hasFlag(Flag flag) const { return m_flags.testFlag(flag); }
    void setFlags(Flags flags) { m_flags = flags; }
    void setFlag(Flag flag, bool on = true) { m_flags.setFlag(flag, on); }
    //@}

    /** What ends the part of a paragraph that AllCaps is about; empty where that is all of it. */
    QString styleDelimiter() const { return m_styleDelimiter; }
    void setStyleDelimiter(const QString &delimiter) { m_styleDelimiter = delimiter; }

    /** The title of the element that @p action goes to; empty where it stays in this one. */
    QString actionElement(Action action) const { return m_actionElements.value(action); }
    /**
     * Sets the @p title of the element that the @p action goes to; it need not be that of any
     * element yet. Empty for staying in this one.
     */
    void setActionElement(Action action, const QString &title);
    /** The text that @p action inserts. Mode files hold that of TabAfterTypingAction only. */
    QString actionText(Action action) const { return m_actionTexts.value(action); }
    /** Sets the @p text that the @p action inserts; empty for none. */
    void setActionText(Action action, const QString &text);

    /**
     * @name Behaviour
     *
     * What Tab does after text, and what follows an accepted completion. A number outside the
     * enumeration is kept, and written as the default to a file.
     */
    //@{
    TabBehavior tabBehavior() const { return m_tabBehavior; }
    void setTabBehavior(TabBehavior behavior) { m_tabBehavior = behavior; }
    CompleteBehavior completeBehavior() const { return m_completeBehavior; }
    void setCompleteBehavior(CompleteBehavior behavior) { m_completeBehavior = behavior; }
    //@}

    /**
     * What a phrase that AddToProjectList collects stands after, and before; an empty one is the
     * start or the end of the paragraph.
     */
    QString phraseStartDelimiter() const { return m_phraseStartDelimiter; }
    void setPhraseStartDelimiter(const QString &delimiter) { m_phraseStartDelimiter = delimiter; }
    /** As phraseStartDelimiter(), for what stands after the phrase. */
    QString phraseEndDelimiter() const { return m_phraseEndDelimiter; }
    void setPhraseEndDelimiter(const QString &delimiter) { m_phraseEndDelimiter = delimiter; }

    /** The element's own completions, beside those that the project collects. */
    MRVCompletionList completions() const { return m_completions; }
    void setCompletions(const MRVCompletionList &completions) { m_completions = completions; }

    /** Whether a paragraph is of this element: equal() of the two formats. */
    bool match(const QTextBlock &block) const;

    /**
     * Whether the paragraph formats @p a and @p b belong to the same element: they look the same,
     * where all ways of centring look the same, as do all ways to write one line spacing. Page
     * breaks do not count. Tab stops must be the same in number and order.
     */
    static bool equal(const QTextBlockFormat &a, const QTextBlockFormat &b);

    /**
     * A paragraph format of an element for Qt's layout, which knows margins in pixels of 96 to the
     * inch, and not the indents in points: margins are set to those lengths, beside the indents.
     */
    static QTextBlockFormat withMargins(const QTextBlockFormat &format);

    /**
     * Turns the text of a paragraph into upper case, up to the first styleDelimiter() where it has
     * one. Does nothing without the flag AllCaps.
     *
     * Each fragment keeps its format, also where upper case has more characters. One undo step;
     * none where nothing changes.
     */
    void recapitalizeBlock(const QTextBlock &block) const;

    /** See MRVCompletionList. */
    MRVCompletionList filteredCompletions(const QString &prefix) const;
    /** MRVCompletionList::newLineAfter() of completions(). */
    bool newLineAfter(const QString &text) const;

    /**
     * @name Meta types
     *
     * The numbers of "MRVScriptElement" and "QList<MRVScriptElement>", which the first call
     * registers. These calls are made while a program starts that includes this header, since names
     * may be looked up before anything else of the library is used: by streams, queued connections
     * and scripts.
     */
    //@{
    static int metaType();
    static int listMetaType();
    //@}

    /**
     * @name Variants
     *
     * A variant that holds something else gives a default element or an empty list.
     */
    //@{
    static QVariant toVariant(const MRVScriptElement &element);
    static QVariant toVariant(const QList<MRVScriptElement> &elements);
    static MRVScriptElement toScriptElement(const QVariant &variant);
    static QList<MRVScriptElement> toScriptElementList(const QVariant &variant);
    //@}

    /** Whether all is equal; formats are when they look the same. */
    bool operator==(const MRVScriptElement &other) const;
    bool operator!=(const MRVScriptElement &other) const { return !(*this == other); }

private:
    QString m_title;
    QString m_shortcut;
    QTextCharFormat m_charFormat;
    QTextBlockFormat m_blockFormat;
    Flags m_flags;
    QString m_styleDelimiter;
    QHash<Action, QString> m_actionElements; // no empty values, as in the next
    QHash<Action, QString> m_actionTexts;
    TabBehavior m_tabBehavior = TabToNewElement;
    CompleteBehavior m_completeBehavior = CompleteDefault;
    QString m_phraseStartDelimiter;
    QString m_phraseEndDelimiter;
    MRVCompletionList m_completions;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVScriptElement::Flags)
Q_DECLARE_METATYPE(MRVScriptElement)

#ifndef MRVBASE_BUILD // loading the library itself runs no code
inline const int mrvScriptElementType = MRVScriptElement::metaType();
inline const int mrvScriptElementListType = MRVScriptElement::listMetaType();
#endif
