#include "manuscripteditor.h"

#include <clipboard/mrvdocumentmimedata.h>
#include <core/mrverror.h>
#include <document/mrvmarginnotes.h>
#include <document/mtextdoc.h>
#include <editor/mrvlistmarkerpainter.h>
#include <editor/mrvscriptwriting.h>
#include <editor/mrvtypingcorrection.h>
#include <gui/mrvguiutil.h>
#include <gui/mrvpicturereader.h>
#include <input/mrvguardeddocument.h>
#include <options/mrvoptions.h>
#include <presets/mrvtextpreset.h>
#include <shortcuts/mrvshortcutscheme.h>
#include <text/mrvtextlistformat.h>

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextList>

#include <algorithm>

namespace {

// The paragraphs that a selection touches; that of the caret without one.
QVector<QTextBlock> blocksOf(const QTextCursor &cursor)
{
    QVector<QTextBlock> blocks;
    const QTextDocument *document = cursor.document();
    const int end = document->findBlock(cursor.selectionEnd()).blockNumber();
    for (QTextBlock block = document->findBlock(cursor.selectionStart());
         block.isValid() && block.blockNumber() <= end; block = block.next()) {
        blocks.append(block);
    }
    return blocks;
}

// Three levels that look different.
QList<MRVTextListLevel> levelsOf(QTextListFormat::Style style)
{
    if (style == QTextListFormat::ListDecimal) {
        return {{QStringLiteral("%0."), 1, 36, 18},
                {QStringLiteral("%0)"), 2, 72, 18},
                {QStringLiteral("(%0)"), 4, 108, 18}};
    }
    return {{QStringLiteral("\u2022"), 0, 36, 18},
            {QStringLiteral("\u2013"), 0, 72, 18},
            {QStringLiteral("\u25e6"), 0, 108, 18}};
}

// The page's own margin is no part of the manuscript, which would store it.
constexpr int Margin = 20;

QKeySequence keysOf(const QKeyEvent &event)
{
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    return QKeySequence(int(modifiers) | event.key());
}

// A view of text does these by itself, whether a command has them or not.
bool isKeyOfEditing(const QKeyEvent &event)
{
    static const MRVShortcutScheme scheme = MRVShortcutScheme::morvane();
    const QKeySequence keys = keysOf(event);
    const MRVShortcut::Id commands[] = {MRVShortcut::Undo,  MRVShortcut::Redo,
                                        MRVShortcut::Cut,   MRVShortcut::Copy,
                                        MRVShortcut::Paste, MRVShortcut::SelectAll};
    return std::any_of(std::begin(commands), std::end(commands),
                       [&](MRVShortcut::Id id) { return scheme.shortcut(id) == keys; });
}

bool isTyping(const QKeyEvent &event)
{
    const bool isCommand =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

bool isPictureFile(const QString &path)
{
    return MRVGuiUtil::readImageFormats().contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

// Word processors offer a picture of the text, too; a PNG is as its program made it.
QByteArray pictureIn(const QMimeData &source)
{
    if (!source.hasImage() || source.hasText()) {
        return QByteArray();
    }
    const QByteArray png = source.data(QStringLiteral("image/png"));
    return !png.isEmpty()
        ? png
        : MRVGuiUtil::toByteArray(qvariant_cast<QImage>(source.imageData()), "PNG");
}

// Links to pages are not files, and what names no file at all is text.
QStringList filesIn(const QMimeData &source)
{
    QStringList files;
    for (const QUrl &url : source.urls()) {
        if (!url.isLocalFile()) {
            return {};
        }
        files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

ManuscriptEditor::ManuscriptEditor(QWidget *parent)
    : QTextEdit(parent)
    , m_script(new MRVScriptWriting(this))
{
    setObjectName(QStringLiteral("ManuscriptEditor"));
    setAccessibleName(tr("Manuscript"));
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(Margin, Margin, Margin, Margin);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    new MRVListMarkerPainter(this);
    connect(mrvOptions(), &MRVOptions::groupsChanged, this, &ManuscriptEditor::readOptions);
    connect(mrvOptions(), &MRVOptions::settingsReset, this, &ManuscriptEditor::readOptions);
    setManuscript(std::make_unique<MRVGuardedDocument>());
    readOptions();
}

void ManuscriptEditor::setManuscript(std::unique_ptr<QTextDocument> manuscript)
{
    manuscript->setUndoRedoEnabled(false); // which empties the history
    manuscript->setUndoRedoEnabled(true);
    setDocument(manuscript.get());
    manuscript->setModified(false);
    m_manuscript = std::move(manuscript); // the one before goes when no view shows it any more
    moveCursor(QTextCursor::Start);
}

void ManuscriptEditor::setMarks(MarkLayer layer, const QList<ExtraSelection> &marks)
{
    m_marks[layer] = marks;
    QList<ExtraSelection> all;
    for (const QList<ExtraSelection> &ofLayer : m_marks) {
        all += ofLayer;
    }
    setExtraSelections(all);
}

QTextEdit::ExtraSelection ManuscriptEditor::markOf(const MRVTextRange &range,
                                                   const QColor &background,
                                                   const QColor &foreground) const
{
    ExtraSelection mark;
    mark.cursor = QTextCursor(document());
    const int end = document()->characterCount() - 1;
    mark.cursor.setPosition(qMin(range.start(), end));
    mark.cursor.setPosition(qMin(range.end(), end), QTextCursor::KeepAnchor);
    mark.format.setBackground(background);
    mark.format.setForeground(foreground);
    return mark;
}

MRVTextRange ManuscriptEditor::visibleRange() const
{
    const QRect view = viewport()->rect();
    return {cursorForPosition(view.topLeft()).position(),
            cursorForPosition(view.bottomRight()).position()};
}

void ManuscriptEditor::readOptions()
{
    m_typing = MRVTypingOptions(*mrvOptions());
    setColors();
}

// A theme decides about the colours until the user does.
void ManuscriptEditor::setColors()
{
    const MRVOptions *options = mrvOptions();
    const QPalette theme = QApplication::palette();
    const auto colorOf = [&](MRVSettings::ColorSetting setting, QPalette::ColorRole role) {
        const QColor color = options->value(setting);
        return color == options->defaultValue(setting) ? theme.color(role) : color;
    };
    QPalette colors = theme;
    colors.setColor(QPalette::Text, colorOf(MRVOptions::TextColor, QPalette::Text));
    colors.setColor(QPalette::Base, colorOf(MRVOptions::PageColor, QPalette::Base));
    setPalette(colors);
}

void ManuscriptEditor::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        setColors();
    }
}

void ManuscriptEditor::applyPreset(const MRVTextPreset &preset)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (preset.applyFlags() & MRVTextPreset::ApplyBlockFormat) {
        cursor.mergeBlockFormat(preset.blockFormat());
    }
    if (preset.applyFlags() & MRVTextPreset::ApplyCharFormat) {
        if (!cursor.hasSelection()) {
            cursor.mergeBlockCharFormat(preset.charFormat());
            cursor.movePosition(QTextCursor::StartOfBlock);
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        }
        cursor.mergeCharFormat(preset.charFormat());
    }
    cursor.endEditBlock();
}

void ManuscriptEditor::mergeFormat(const QTextCharFormat &format)
{
    mergeCurrentCharFormat(format);
}

void ManuscriptEditor::toggleList(QTextListFormat::Style style)
{
    QTextCursor cursor = textCursor();
    const QTextList *list = cursor.currentList();
    if (list && MRVTextListFormat::qtStyle(list->format()) == style) {
        cursor.beginEditBlock();
        for (const QTextBlock &block : blocksOf(cursor)) {
            MRVTextListFormat::clearListProperties(document(), block.position());
        }
        cursor.endEditBlock();
        return;
    }
    QTextListFormat format;
    format.setStyle(style);
    MRVTextListFormat::setLevels(format, levelsOf(style));
    cursor.createList(format);
}

bool ManuscriptEditor::changeListLevel(int by)
{
    QTextCursor cursor = textCursor();
    bool isChanged = false;
    cursor.beginEditBlock();
    for (const QTextBlock &block : blocksOf(cursor)) {
        if (QTextList *list = block.textList()) {
            MRVTextListFormat::setBlockLevel(*list, block,
                                             MRVTextListFormat::blockLevel(*list, block) + by);
            isChanged = true;
        }
    }
    cursor.endEditBlock();
    return isChanged;
}

// The view takes keys that it knows before any command gets them. They are the commands' alone:
// a key that the user gave to another command, or to none, must not work the old way.
bool ManuscriptEditor::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && isForWindow(*static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    return QTextEdit::event(event);
}

bool ManuscriptEditor::isForWindow(const QKeyEvent &event) const
{
    if (isTyping(event)) {
        return false;
    }
    const QKeySequence keys = keysOf(event);
    const QList<QAction *> actions = window()->findChildren<QAction *>();
    return isKeyOfEditing(event)
        || std::any_of(actions.begin(), actions.end(), [&](const QAction *action) {
               const bool isCommand = action->isEnabled()
                   && (action->shortcutContext() == Qt::WindowShortcut
                       || action->shortcutContext() == Qt::ApplicationShortcut);
               const QList<QKeySequence> shortcuts = action->shortcuts();
               return isCommand
                   && std::any_of(shortcuts.begin(), shortcuts.end(), [&](const auto &shortcut) {
                          return keys.matches(shortcut) != QKeySequence::NoMatch;
                      });
           });
}

void ManuscriptEditor::keyPressEvent(QKeyEvent *event)
{
    if (isKeyOfEditing(*event)) { // of a command that is disabled, or of no command any more
        event->ignore();
        return;
    }
    const bool isRemoval = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (!event->text().isEmpty() && !isRemoval) {
        leaveLinkAndNote();
    }
    if (m_script->handleKey(event)) {
        return;
    }
    if (handleListKey(event)) {
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
    followTyping(event->text());
}

// Dead keys and input methods do not come as keys.
void ManuscriptEditor::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty()) {
        leaveLinkAndNote();
    }
    QTextEdit::inputMethodEvent(event);
    followTyping(event->commitString());
}

// What is typed after a link or the text of a note is the author's text, and so is the end of the
// paragraph.
void ManuscriptEditor::leaveLinkAndNote()
{
    QTextCursor cursor = textCursor();
    const bool hasLeft = MTextDoc::leaveLink(&cursor);
    if (MRVMarginNotes::leave(&cursor) || hasLeft) {
        setTextCursor(cursor);
    }
}

void ManuscriptEditor::followTyping(const QString &text)
{
    if (!text.isEmpty() && text.at(0).isPrint()) {
        mrvCorrectTyping(textCursor(), m_typing);
    }
    if (!text.isEmpty()) { // Backspace is one, arrows are not
        m_script->offerCompletions();
    }
}

// Tab at the start of an item moves it inward, Return in an empty item ends the list.
bool ManuscriptEditor::handleListKey(QKeyEvent *event)
{
    const QTextCursor cursor = textCursor();
    if (!cursor.currentList()) {
        return false;
    }
    const bool isAtStart = cursor.atBlockStart() || cursor.hasSelection();
    if (event->key() == Qt::Key_Tab && isAtStart) {
        return changeListLevel(1);
    }
    if (event->key() == Qt::Key_Backtab) {
        return changeListLevel(-1);
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && cursor.block().length() == 1) {
        MRVTextListFormat::clearListProperties(document(), cursor.position());
        return true;
    }
    return false;
}

void ManuscriptEditor::focusInEvent(QFocusEvent *event)
{
    QTextEdit::focusInEvent(event);
    Q_EMIT cursorPositionChanged(); // so that panels follow this editor again
}

QMimeData *ManuscriptEditor::createMimeDataFromSelection() const
{
    return MRVDocumentMimeData::createMimeData(textCursor());
}

bool ManuscriptEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return MRVDocumentMimeData::hasFragment(source) || source->hasImage()
        || QTextEdit::canInsertFromMimeData(source);
}

void ManuscriptEditor::insertFromMimeData(const QMimeData *source)
{
    leaveLinkAndNote();
    QTextCursor cursor = textCursor();
    const QStringList files = filesIn(*source);
    const QByteArray picture = pictureIn(*source);
    if (MRVDocumentMimeData::insert(&cursor, source)) {
        // all of it is there
    } else if (!files.isEmpty()) {
        for (const QString &file : files) {
            insertFile(file);
        }
    } else if (!picture.isEmpty()) {
        insertPicture(MRVPictureReader(picture), tr("Picture"));
    } else {
        QTextEdit::insertFromMimeData(source);
    }
    ensureCursorVisible();
}

void ManuscriptEditor::insertFile(const QString &path)
{
    if (isPictureFile(path)) {
        insertPictureFile(path);
    } else {
        Q_EMIT openRequested(path);
    }
}

void ManuscriptEditor::insertPictureFile(const QString &path)
{
    insertPicture(MRVPictureReader::ofFile(path), QFileInfo(path).completeBaseName());
}

void ManuscriptEditor::insertPicture(const MRVPictureReader &picture, const QString &name)
{
    QTextCursor cursor = textCursor();
    const int width = viewport()->width() - 2 * int(document()->documentMargin());
    MRVError error;
    if (MTextDoc::insertPicture(&cursor, picture, name, width, &error)) {
        setTextCursor(cursor);
    } else {
        Q_EMIT pictureRefused(name, error);
    }
}
