#pragma once

#include "scriptmode/mrvscriptmode.h"
#include "util/mrvbase_export.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

class QCompleter;
class QKeyEvent;
class QStringListModel;
class QTextBlock;
class QTextEdit;

/**
 * What the keys of an editor do in script mode.
 *
 * Return and Tab go to the element that the mode says, capitals and parentheses come by themselves,
 * and beginnings are completed: by what the element offers and, where it says so, by what stands in
 * other paragraphs of it. The editor hands its keys over:
 *
 * @code
 * class Editor : public QTextEdit
 * {
 * protected:
 *     void keyPressEvent(QKeyEvent *event) override
 *     {
 *         if (!m_script->handleKey(event)) {
 *             QTextEdit::keyPressEvent(event);
 *             m_script->offerCompletions();
 *         }
 *     }
 *
 * private:
 *     MRVScriptWriting *m_script = new MRVScriptWriting(this);
 * };
 * @endcode
 *
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptWriting : public QObject
{
    Q_OBJECT

public:
    /** Without a mode. @param editor owns it; its document may be replaced before setMode(). */
    explicit MRVScriptWriting(QTextEdit *editor);

    /**
     * Writes with a mode from now on. Paragraphs that are there stay as they are; an empty document
     * begins with the mode's first element. To be called again after the editor's document has
     * been replaced.
     *
     * @param mode one without elements ends script mode.
     */
    void setMode(const MRVScriptMode &mode);
    /** As setMode() got it. */
    const MRVScriptMode &mode() const { return m_mode; }
    /** The mode of the document's formats: that of the mode's MRVScriptMode::forEditor(). */
    const MRVScriptMode &shownMode() const { return m_shownMode; }
    /** Whether the mode has elements. */
    bool isActive() const { return !m_elements.isEmpty(); }

    /** The index of the element of the caret's paragraph; -1 for another paragraph. */
    int currentElement() const;
    /**
     * Makes the paragraphs of the selection, or of the caret, elements: one undo step.
     *
     * @param index of the mode's elements; one that does not exist does nothing.
     */
    void setElement(int index);

    /** Whether the key is one of script mode; if so, it has been dealt with, and accepted. */
    bool handleKey(QKeyEvent *event);
    /** To be called when the editor itself has taken a key. Does nothing without a mode. */
    void offerCompletions();

Q_SIGNALS:
    /** setMode() was called. */
    void modeChanged();
    /** The caret is in an element of this index, or in another paragraph: -1. */
    void elementChanged(int index);

private:
    const MRVScriptElement *element() const;
    void followCursor();
    bool goOn(MRVScriptElement::Action action);
    void beginParagraph(const QString &title);
    void turnInto(const QString &title);
    bool typeCapital(const QString &text);
    void collectPhrases();
    void collectPhrase(const QTextBlock &block, const MRVScriptElement &of);
    QStringList completionsOf(const MRVScriptElement &element, const QString &before) const;
    void complete(const QString &text);

    QTextEdit *m_editor;
    MRVScriptMode m_mode;
    MRVScriptMode m_shownMode;
    QList<MRVScriptElement> m_elements; // as they are shown
    int m_shownElement = -1;
    QMap<QString, QSet<QString>> m_phrases; // of the manuscript, by the title of their element
    int m_collected = 0; // how many paragraphs of the manuscript were looked through
    QTimer m_collecting;
    QCompleter *m_completer;
    QStringListModel *m_completions;
};
