#include "replacepreview.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextBlock>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {

// Text around a change, on one line.
QString onOneLine(QString text)
{
    for (QChar &c : text) {
        c = c.isSpace() ? QChar(u' ') : c;
    }
    return text;
}

// Text that is changed. Blanks that would not be seen are: those at the ends, those that follow
// others, and those that are no ordinary ones.
QString withBlanks(const QString &text)
{
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isBetween =
            i > 0 && i + 1 < text.size() && !text.at(i - 1).isSpace() && !text.at(i + 1).isSpace();
        if (c == u'\n' || c == QChar::ParagraphSeparator || c == QChar::LineSeparator) {
            shown += u'\u00b6';
        } else if (c == u'\t') {
            shown += u'\u21e5';
        } else if (c == u' ') {
            shown += isBetween ? c : QChar(u'\u00b7');
        } else {
            shown += c.isSpace() ? QChar(u'\u00b0') : c;
        }
    }
    return shown;
}

// Changes with some words around them, one on a line. A paragraph is fetched once for all of its
// changes.
QStringList linesOf(const QTextDocument *document, const QVector<MRVTextChange> &changes)
{
    constexpr int Around = 30;
    QStringList lines;
    lines.reserve(changes.size());
    QTextBlock block;
    QString text;
    for (const MRVTextChange &change : changes) {
        if (!block.isValid() || !block.contains(change.range.start())) {
            block = document->findBlock(change.range.start());
            text = block.text();
        }
        const int start = change.range.start() - block.position();
        const int end = change.range.end() - block.position();
        const QString before = onOneLine(text.mid(qMax(0, start - Around), qMin(start, Around)));
        const QString after = onOneLine(text.mid(end, Around));
        lines.append(QStringLiteral("%1[%2 \u2192 %3]%4")
                         .arg(before, withBlanks(change.before), withBlanks(change.after), after));
    }
    return lines;
}

} // namespace

ReplacePreview::ReplacePreview(const QTextDocument *document, const QVector<MRVTextChange> &changes,
                               QWidget *parent)
    : QDialog(parent)
    , m_document(document)
    , m_changes(changes)
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("ReplacePreview"));
    setWindowTitle(tr("Replace All"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("What is ticked will be replaced:"), this));
    m_list->setObjectName(QStringLiteral("Changes"));
    m_list->setUniformItemSizes(true);
    layout->addWidget(m_list);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_replace = buttons->button(QDialogButtonBox::Ok);
    auto *all = buttons->addButton(tr("&All or None"), QDialogButtonBox::ActionRole);
    all->setObjectName(QStringLiteral("AllOrNone"));
    connect(all, &QPushButton::clicked, this,
            [this] { fill(m_count < m_changes.size() ? Qt::Checked : Qt::Unchecked); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    connect(m_list, &QListWidget::itemChanged, this, &ReplacePreview::follow);
    fill(Qt::Checked);
    resize(640, 400);
}

// A list looks for the place of each item that changes, so all of them are made before they are in
// it, and made again to change all.
void ReplacePreview::fill(Qt::CheckState state)
{
    m_list->clear();
    for (const QString &line : linesOf(m_document, m_changes)) {
        auto *item = new QListWidgetItem(line);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(state);
        m_list->addItem(item);
    }
    m_count = state == Qt::Checked ? m_changes.size() : 0;
    showCount();
}

// Nothing else than its tick changes.
void ReplacePreview::follow(const QListWidgetItem *item)
{
    m_count += item->checkState() == Qt::Checked ? 1 : -1;
    showCount();
}

QVector<MRVTextChange> ReplacePreview::chosen() const
{
    QVector<MRVTextChange> chosen;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked) {
            chosen.append(m_changes.at(row));
        }
    }
    return chosen;
}

void ReplacePreview::showCount()
{
    m_replace->setText(tr("Replace %n", nullptr, m_count));
    m_replace->setEnabled(m_count > 0);
}
