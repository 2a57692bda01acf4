#pragma once

#include <editor/mrvtypingcorrection.h>
#include <text/mrvtextrange.h>

#include <QTextEdit>
#include <QTextListFormat>

#include <memory>

class MRVPictureReader;
class MRVTextPreset;
class MRVScriptWriting;
struct MRVError;

/**
 * The editor of a manuscript: a QTextEdit with the library's clipboard, list levels, corrections
 * while typing, and, in script mode, the keys of the script's elements.
 */
class ManuscriptEditor final : public QTextEdit
{
    Q_OBJECT

public:
    explicit ManuscriptEditor(QWidget *parent = nullptr);

    /** Shows a manuscript, with an empty history of undo. */
    void setManuscript(std::unique_ptr<QTextDocument> manuscript);

    MRVScriptWriting *script() const { return m_script; }

    /** What marks text in the view; the later one is on top. */
    enum MarkLayer { NoteMarks, FindMarks, MarkLayerCount };
    /** Replaces the marks of a layer. */
    void setMarks(MarkLayer layer, const QList<ExtraSelection> &marks);
    /** A mark of that colour. */
    ExtraSelection markOf(const MRVTextRange &range, const QColor &background,
                          const QColor &foreground) const;
    /** The text that can be seen. */
    MRVTextRange visibleRange() const;

    /** Takes a picture into the manuscript, no wider than the view; pictureRefused() where not. */
    void insertPicture(const MRVPictureReader &picture, const QString &name);
    void insertPictureFile(const QString &path);

public Q_SLOTS:
    /** Applies what the preset says to the selection or the paragraph of the caret. */
    void applyPreset(const MRVTextPreset &preset);
    /** Makes a list of the selected paragraphs, or text of a list that has the style. */
    void toggleList(QTextListFormat::Style style);
    /** Moves the selected items of lists by levels: 1 inward, -1 outward. */
    bool changeListLevel(int by);
    /** Merges a format into the selection, or into what is typed next. */
    void mergeFormat(const QTextCharFormat &format);

Q_SIGNALS:
    /** A file that is no picture was dropped or pasted. */
    void openRequested(const QString &path);
    void pictureRefused(const QString &name, const MRVError &error);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    void changeEvent(QEvent *event) override;

private:
    void readOptions();
    void setColors();
    bool handleListKey(QKeyEvent *event);
    void leaveLinkAndNote();
    void insertFile(const QString &path);
    bool isForWindow(const QKeyEvent &event) const;
    void followTyping(const QString &text);

    MRVTypingOptions m_typing;
    MRVScriptWriting *m_script;
    QList<ExtraSelection> m_marks[MarkLayerCount];
    std::unique_ptr<QTextDocument> m_manuscript;
};
