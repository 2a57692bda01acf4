#include "findbar.h"

#include "manuscripteditor.h"
#include "replacepreview.h"

#include <options/mrvoptions.h>
#include <search/mrvfindsession.h>
#include <search/mrvtextreplacer.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace {

QToolButton *button(QWidget *parent, const char *name, const QString &text)
{
    auto *result = new QToolButton(parent);
    result->setObjectName(QLatin1String(name));
    result->setText(text);
    return result;
}

} // namespace

FindBar::FindBar(ManuscriptEditor *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
{
    setObjectName(QStringLiteral("FindBar"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(4);
    layout->addWidget(findRow());
    layout->addWidget(replaceRow());
    layout->addWidget(flags());

    connect(&m_searching, &QTimer::timeout, this, &FindBar::advance);
    m_marking.setSingleShot(true);
    connect(&m_marking, &QTimer::timeout, this, &FindBar::markFinds);
    const auto markLater = [this] { m_marking.start(0); };
    connect(m_editor->verticalScrollBar(), &QScrollBar::valueChanged, this, markLater);
    connect(m_editor, &QTextEdit::cursorPositionChanged, this, &FindBar::showState);
    followDocument();
    hide();
}

FindBar::~FindBar() = default;

QWidget *FindBar::findRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_find = new QLineEdit(row);
    m_find->setObjectName(QStringLiteral("FindText"));
    m_find->setPlaceholderText(tr("Find"));
    m_find->setAccessibleName(tr("Find"));
    m_find->setClearButtonEnabled(true);
    connect(m_find, &QLineEdit::textChanged, this, &FindBar::restart);
    connect(m_find, &QLineEdit::returnPressed, this, &FindBar::findNext);
    layout->addWidget(m_find, 1);
    m_state = new QLabel(row);
    m_state->setObjectName(QStringLiteral("FindState"));
    m_state->setMinimumWidth(m_state->fontMetrics().averageCharWidth() * 18);
    layout->addWidget(m_state);
    auto *previous = button(row, "FindPreviousButton", tr("Previous"));
    connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
    layout->addWidget(previous);
    auto *next = button(row, "FindNextButton", tr("Next"));
    connect(next, &QToolButton::clicked, this, &FindBar::findNext);
    layout->addWidget(next);
    auto *close = button(row, "CloseFindBar", tr("Close"));
    connect(close, &QToolButton::clicked, this, &FindBar::closeBar);
    layout->addWidget(close);
    return row;
}

QWidget *FindBar::replaceRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_replace = new QLineEdit(row);
    m_replace->setObjectName(QStringLiteral("ReplaceText"));
    m_replace->setPlaceholderText(tr("Replace with"));
    m_replace->setAccessibleName(tr("Replace with"));
    layout->addWidget(m_replace, 1);
    auto *one = button(row, "ReplaceButton", tr("Replace"));
    connect(one, &QToolButton::clicked, this, &FindBar::replace);
    layout->addWidget(one);
    auto *all = button(row, "ReplaceAllButton", tr("Replace All..."));
    connect(all, &QToolButton::clicked, this, &FindBar::replaceAll);
    layout->addWidget(all);
    return row;
}

QWidget *FindBar::flags()
{
    auto *box = new QWidget(this);
    auto *layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_case = addFlag("MatchCase", tr("Match case"), QString());
    m_words = addFlag("WholeWords", tr("Whole words"), QString());
    m_expression = addFlag("Expression", tr("Expression"),
                           tr("The text is a regular expression; $1 stands for its first group."));
    m_typography = addFlag("IgnoreTypography", tr("Any quotes and dashes"),
                           tr("Straight and curly quotes, hyphens and dashes count as the same."));
    m_accents = addFlag("IgnoreAccents", tr("Any accents"),
                        tr("Letters count as the same with and without accents."));
    m_paragraphs = addFlag("AcrossParagraphs", tr("Across paragraphs"),
                           tr("With expressions: \\n is the end of a paragraph."));
    m_selection = addFlag("InSelection", tr("In selection"), QString());
    m_keepCase = addFlag("KeepCase", tr("Keep capitals"),
                         tr("The new text takes over how the old one is capitalized."));
    for (const QCheckBox *flag :
         {m_case, m_words, m_expression, m_typography, m_accents, m_paragraphs}) {
        connect(flag, &QCheckBox::toggled, this, &FindBar::restart);
    }
    connect(m_selection, &QCheckBox::toggled, this, &FindBar::searchSelection);
    // Long ones below each other, so that the bar fits beside the notes.
    QCheckBox *const columns[][3] = {{m_case, m_typography, m_selection},
                                     {m_words, m_accents, m_keepCase},
                                     {m_expression, m_paragraphs, nullptr}};
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 3 && columns[column][row]; ++row) {
            layout->addWidget(columns[column][row], row, column);
        }
    }
    return box;
}

QCheckBox *FindBar::addFlag(const char *name, const QString &text, const QString &tip)
{
    auto *flag = new QCheckBox(text, this);
    flag->setObjectName(QLatin1String(name));
    flag->setToolTip(tip);
    return flag;
}

MRVTextQuery FindBar::query() const
{
    MRVTextQuery query;
    query.text = m_find->text();
    if (m_expression->isChecked()) {
        query.syntax = MRVTextQuery::RegularExpression;
    }
    query.flags.setFlag(MRVTextFinder::FindCaseSensitively, m_case->isChecked());
    if (m_words->isChecked()) {
        query.flags |= MRVTextFinder::FindWholeWords;
    }
    query.ignoreTypography = m_typography->isChecked();
    query.ignoreAccents = m_accents->isChecked();
    query.acrossParagraphs = m_paragraphs->isChecked();
    query.range = m_session->query().range; // which has moved with the text
    return query;
}

MRVTextReplacement FindBar::replacement() const
{
    MRVTextReplacement replacement(m_replace->text());
    replacement.preservesCase = m_keepCase->isChecked();
    return replacement;
}

void FindBar::followDocument()
{
    m_session = std::make_unique<MRVFindSession>(m_editor->document());
    const QSignalBlocker blocker(m_selection);
    m_selection->setChecked(false); // the selection was one of another document
    connect(m_session.get(), &MRVFindSession::changed, this, [this] {
        m_report.clear();
        if (isVisible()) {
            m_searching.start(0);
        }
    });
    if (isVisible()) {
        restart();
    }
}

void FindBar::open()
{
    constexpr int LongestText = 100; // of what is selected to be looked for, and not in
    const QTextCursor cursor = m_editor->textCursor();
    const bool isText = cursor.selectionEnd() - cursor.selectionStart() <= LongestText;
    const QString selected = isText ? cursor.selectedText() : QString();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)
        && !m_selection->isChecked()) {
        m_find->setText(m_expression->isChecked() ? QRegularExpression::escape(selected)
                                                  : selected);
    }
    show();
    m_find->setFocus();
    m_find->selectAll();
    restart();
}

void FindBar::closeBar()
{
    hide();
    m_searching.stop();
    m_editor->setMarks(ManuscriptEditor::FindMarks, {});
    m_editor->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        closeBar();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FindBar::restart()
{
    search(query());
}

void FindBar::searchSelection(bool isOn)
{
    MRVTextQuery wanted = query();
    wanted.range = isOn ? MRVTextRange(m_editor->textCursor()) : MRVTextQuery().range;
    search(wanted);
}

void FindBar::search(const MRVTextQuery &query)
{
    m_isWrapped = false;
    m_report.clear();
    m_session->setQuery(query, m_editor->textCursor());
    m_searching.start(0);
}

void FindBar::advance()
{
    if (m_session->advance(10)) {
        m_searching.stop();
    }
    showState();
    m_marking.start(0);
}

void FindBar::report(const QString &text, const QString &tip)
{
    m_report = text;
    m_reportTip = tip;
    showState();
}

void FindBar::showState()
{
    if (!isVisible()) {
        return;
    }
    QString error;
    if (!m_report.isEmpty()) {
        m_state->setText(m_report);
        error = m_reportTip;
    } else if (m_find->text().isEmpty()) {
        m_state->clear();
    } else if (!m_session->query().isValid(&error)) {
        m_state->setText(tr("Invalid expression"));
    } else if (!m_session->outcome().isComplete()) {
        m_state->setText(tr("Search too costly"));
        error = m_session->outcome().text();
    } else {
        const int number = m_session->numberOf(m_editor->textCursor());
        const QString count = tr("%n find(s)", nullptr, m_session->count());
        m_state->setText(number > 0 ? tr("%1 of %2").arg(number).arg(m_session->count()) : count);
        if (m_isWrapped) {
            m_state->setText(tr("%1, from the other end").arg(m_state->text()));
        }
    }
    m_state->setToolTip(error);
}

void FindBar::findNext()
{
    bool wrapped = false;
    while (m_session->next(m_editor->textCursor()).isNull() && !m_session->advance(50)) { }
    select(m_session->next(m_editor->textCursor(), &wrapped), wrapped);
}

void FindBar::findPrevious()
{
    bool wrapped = false;
    while (m_session->previous(m_editor->textCursor()).isNull() && !m_session->advance(50)) { }
    select(m_session->previous(m_editor->textCursor(), &wrapped), wrapped);
}

void FindBar::select(const QTextCursor &find, bool wrapped)
{
    m_isWrapped = wrapped;
    m_report.clear();
    if (!find.isNull()) {
        m_editor->setTextCursor(find);
    }
    showState();
}

void FindBar::replace()
{
    QTextCursor cursor = m_editor->textCursor();
    if (MRVTextReplacer::replace(cursor, query(), replacement())) {
        m_editor->setTextCursor(cursor);
    }
    findNext();
}

void FindBar::replaceAll()
{
    const MRVTextQuery query = this->query();
    QString error;
    if (!query.isValid(&error)) {
        report(tr("Invalid expression"), error);
        return;
    }
    MRVSearchOutcome outcome;
    const QVector<MRVTextChange> changes =
        MRVTextReplacer::preview(m_editor->document(), query, replacement(), &outcome);
    if (!outcome.isComplete()) {
        report(tr("Search too costly"), outcome.text());
        return;
    }
    if (changes.isEmpty()) {
        report(tr("%n replaced", nullptr, 0));
        return;
    }
    ReplacePreview preview(m_editor->document(), changes, this);
    if (preview.exec() == QDialog::Accepted) {
        const int count = MRVTextReplacer::apply(m_editor->document(), preview.chosen());
        report(tr("%n replaced", nullptr, count));
    }
}

// Only what is visible, since a letter may be found a million times.
void FindBar::markFinds()
{
    QList<QTextEdit::ExtraSelection> marks;
    const MRVTextRange shown = m_editor->visibleRange();
    const QVector<MRVTextRange> finds = isVisible() ? m_session->finds() : QVector<MRVTextRange>();
    const auto isAbove = [](const MRVTextRange &find, int place) { return find.end() < place; };
    auto find = std::lower_bound(finds.cbegin(), finds.cend(), shown.start(), isAbove);
    for (; find != finds.cend() && find->start() <= shown.end(); ++find) {
        marks.append(m_editor->markOf(*find, mrvOptions()->value(MRVOptions::FindColor),
                                      mrvOptions()->value(MRVOptions::FindTextColor)));
    }
    m_editor->setMarks(ManuscriptEditor::FindMarks, marks);
}
