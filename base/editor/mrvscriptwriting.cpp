#include "editor/mrvscriptwriting.h"

#include "textformat/mrvtextformat.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>

#include <algorithm>

namespace {

// Brackets that script mode has put there are no text.
bool isEmpty(const QTextBlock &block)
{
    return block.length() == 1 || block.text() == addBrackets(QString());
}

} // namespace

MRVScriptWriting::MRVScriptWriting(QTextEdit *editor)
    : QObject(editor)
    , m_editor(editor)
    , m_completer(new QCompleter(this))
    , m_completions(new QStringListModel(this))
{
    m_completer->setModel(m_completions);
    m_completer->setWidget(editor);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->popup()->setObjectName(QStringLiteral("ScriptCompletions"));
    connect(m_completer, QOverload<const QString &>::of(&QCompleter::activated), this,
            &MRVScriptWriting::complete);
    connect(editor, &QTextEdit::cursorPositionChanged, this, &MRVScriptWriting::followCursor);
    connect(&m_collecting, &QTimer::timeout, this, &MRVScriptWriting::collectPhrases);
}

void MRVScriptWriting::setMode(const MRVScriptMode &mode)
{
    m_mode = mode;
    m_shownMode = mode.forEditor();
    m_elements = m_shownMode.elements();
    m_phrases.clear();
    m_collected = 0;
    m_collecting.start(0);
    if (isActive() && m_editor->document()->isEmpty()) {
        const bool isModified = m_editor->document()->isModified();
        setElement(0);
        m_editor->document()->setModified(isModified);
    }
    m_shownElement = -2;
    Q_EMIT modeChanged();
    followCursor();
}

int MRVScriptWriting::currentElement() const
{
    return isActive() ? m_shownMode.indexOf(m_editor->textCursor().block()) : -1;
}

const MRVScriptElement *MRVScriptWriting::element() const
{
    const int index = currentElement();
    return index < 0 ? nullptr : &m_elements.at(index);
}

void MRVScriptWriting::followCursor()
{
    const int index = currentElement();
    if (index != m_shownElement) {
        m_shownElement = index;
        Q_EMIT elementChanged(index);
    }
}

void MRVScriptWriting::setElement(int index)
{
    if (index < 0 || index >= m_elements.size()) {
        return;
    }
    const MRVScriptElement &look = m_elements.at(index);
    QTextCursor cursor = m_editor->textCursor();
    int position = cursor.position();
    cursor.beginEditBlock();
    const int last = cursor.document()->findBlock(cursor.selectionEnd()).blockNumber();
    for (QTextBlock block = cursor.document()->findBlock(cursor.selectionStart());
         block.isValid() && block.blockNumber() <= last; block = block.next()) {
        cursor.setPosition(block.position());
        cursor.setBlockFormat(look.blockFormat());
        cursor.setBlockCharFormat(look.charFormat());
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(look.charFormat());
        look.recapitalizeBlock(block);
        if (look.hasFlag(MRVScriptElement::Parenthetical) && block.length() == 1) {
            cursor.insertText(addBrackets(QString()), look.charFormat());
            position = block.position() + 1;
        }
    }
    cursor.endEditBlock();
    cursor.setPosition(qMin(position, cursor.document()->characterCount() - 1));
    m_editor->setTextCursor(cursor);
    m_editor->setCurrentCharFormat(look.charFormat());
    followCursor();
}

bool MRVScriptWriting::handleKey(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isTab = event->key() == Qt::Key_Tab;
    if (!isActive() || event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) {
        return false;
    }
    QAbstractItemView *popup = m_completer->popup();
    if (popup->isVisible() && (isReturn || isTab || event->key() == Qt::Key_Escape)) {
        if (popup->currentIndex().isValid() || event->key() == Qt::Key_Escape) {
            event->ignore(); // the popup takes it
            return true;
        }
        popup->hide();
    }
    bool isHandled = false;
    if (isReturn && !(event->modifiers() & Qt::ShiftModifier)) {
        isHandled = goOn(MRVScriptElement::ReturnAction);
    } else if (isTab) {
        isHandled =
            goOn(isEmpty(m_editor->textCursor().block()) ? MRVScriptElement::TabOnEmptyAction
                                                         : MRVScriptElement::TabAfterTypingAction);
    } else {
        isHandled = typeCapital(event->text());
    }
    if (isHandled) {
        event->accept();
    }
    return isHandled;
}

// What Return or Tab does, as the element of the paragraph says.
bool MRVScriptWriting::goOn(MRVScriptElement::Action action)
{
    const MRVScriptElement *here = element();
    if (!here) {
        return false;
    }
    if (action == MRVScriptElement::TabAfterTypingAction
        && here->tabBehavior() == MRVScriptElement::TabInsertsText) {
        m_editor->insertPlainText(here->actionText(action));
        return true;
    }
    const QString title = here->actionElement(action);
    if (action == MRVScriptElement::ReturnAction) {
        collectPhrase(m_editor->textCursor().block(), *here);
        beginParagraph(title.isEmpty() ? here->title() : title);
    } else if (title.isEmpty()) {
        return !here->hasFlag(MRVScriptElement::AllowTabs);
    } else if (action == MRVScriptElement::TabAfterTypingAction) {
        beginParagraph(title);
    } else {
        turnInto(title);
    }
    return true;
}

void MRVScriptWriting::beginParagraph(const QString &title)
{
    QTextCursor cursor = m_editor->textCursor();
    cursor.beginEditBlock();
    // The caret before the bracket of a parenthetical is at the end of what is said.
    if (cursor.block().text().mid(cursor.positionInBlock()) == QLatin1String(")")) {
        cursor.movePosition(QTextCursor::EndOfBlock);
    }
    const bool isAtEnd = cursor.atBlockEnd();
    cursor.insertBlock();
    m_editor->setTextCursor(cursor);
    if (isAtEnd) { // else it is a paragraph that was divided
        setElement(m_shownMode.indexOf(title));
    }
    cursor.endEditBlock();
    m_editor->ensureCursorVisible();
}

void MRVScriptWriting::turnInto(const QString &title)
{
    QTextCursor cursor = m_editor->textCursor();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText(); // the brackets of an empty parenthetical
    m_editor->setTextCursor(cursor);
    setElement(m_shownMode.indexOf(title));
    cursor.endEditBlock();
}

bool MRVScriptWriting::typeCapital(const QString &text)
{
    const MRVScriptElement *here = element();
    if (!here || !here->hasFlag(MRVScriptElement::AllCaps) || text.toUpper() == text) {
        return false;
    }
    const QTextCursor cursor = m_editor->textCursor();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    if (!here->styleDelimiter().isEmpty() && before.contains(here->styleDelimiter())) {
        return false;
    }
    m_editor->insertPlainText(text.toUpper());
    offerCompletions();
    return true;
}

// Looks through the manuscript in slices, so that no key waits for it.
void MRVScriptWriting::collectPhrases()
{
    QElapsedTimer timer;
    timer.start();
    QTextBlock block = m_editor->document()->findBlockByNumber(m_collected);
    for (; isActive() && block.isValid() && !timer.hasExpired(5); block = block.next()) {
        const int index = m_shownMode.indexOf(block);
        if (index >= 0) {
            collectPhrase(block, m_elements.at(index));
        }
        ++m_collected;
    }
    if (!isActive() || !block.isValid()) {
        m_collecting.stop();
    }
}

void MRVScriptWriting::collectPhrase(const QTextBlock &block, const MRVScriptElement &of)
{
    if (!of.hasFlag(MRVScriptElement::AddToProjectList)) {
        return;
    }
    QString phrase = block.text();
    const int start =
        of.phraseStartDelimiter().isEmpty() ? 0 : phrase.indexOf(of.phraseStartDelimiter());
    phrase = start < 0 ? QString() : phrase.mid(start + of.phraseStartDelimiter().size());
    const int end =
        of.phraseEndDelimiter().isEmpty() ? -1 : phrase.indexOf(of.phraseEndDelimiter());
    phrase = phrase.left(end).trimmed();
    if (!phrase.isEmpty()) {
        m_phrases[of.title()].insert(phrase);
    }
}

QStringList MRVScriptWriting::completionsOf(const MRVScriptElement &element,
                                            const QString &before) const
{
    QStringList texts;
    for (const MRVCompletion &own : element.filteredCompletions(before).completions()) {
        texts.append(own.text);
    }
    const QString delimiter = element.phraseStartDelimiter();
    const int place = delimiter.isEmpty() ? -1 : before.lastIndexOf(delimiter);
    const int start = place < 0 ? 0 : place + delimiter.size();
    QStringList phrases = m_phrases.value(element.title()).values();
    std::sort(phrases.begin(), phrases.end());
    for (const QString &phrase : qAsConst(phrases)) {
        const bool isLonger = phrase.size() > before.size() - start && start < before.size();
        if (isLonger && phrase.startsWith(before.midRef(start), Qt::CaseInsensitive)) {
            texts.append(before.left(start) + phrase);
        }
    }
    texts.removeDuplicates();
    return texts;
}

void MRVScriptWriting::offerCompletions()
{
    const MRVScriptElement *here = element();
    const QTextCursor cursor = m_editor->textCursor();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    QAbstractItemView *popup = m_completer->popup();
    m_completions->setStringList(here && cursor.atBlockEnd() && !before.isEmpty()
                                     ? completionsOf(*here, before)
                                     : QStringList());
    if (m_completions->rowCount() == 0) {
        popup->hide();
        return;
    }
    QRect place = m_editor->cursorRect();
    place.moveTopLeft(m_editor->viewport()->mapTo(m_editor, place.topLeft())); // beyond its margins
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width()
                   + 2 * popup->frameWidth());
    m_completer->complete(place);
    // Return takes the first one, unless what stands there is something already.
    const bool isSomething = m_phrases.value(here->title()).contains(before);
    popup->setCurrentIndex(isSomething ? QModelIndex()
                                       : m_completer->completionModel()->index(0, 0));
}

void MRVScriptWriting::complete(const QString &text)
{
    const MRVScriptElement *here = element();
    QTextCursor cursor = m_editor->textCursor();
    if (!here) {
        return;
    }
    const bool isNewLine = here->newLineAfter(text)
        || here->completeBehavior() == MRVScriptElement::CompleteToNextLine;
    cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(text, here->charFormat());
    m_editor->setTextCursor(cursor);
    if (isNewLine) {
        goOn(MRVScriptElement::ReturnAction);
    }
}
