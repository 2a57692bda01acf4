#include "text/mrvdocnavigator.h"

#include <QLoggingCategory>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextTable>

namespace {

// Off by default: it writes a line for each fragment.
Q_LOGGING_CATEGORY(lcNavigator, "mrv.text.navigator", QtWarningMsg)

const char *kindOf(const QTextFormat &format)
{
    if (format.isFrameFormat() && format.objectType() == QTextFormat::TableObject) {
        return "table";
    }
    if (format.isCharFormat() && format.objectType() == QTextFormat::TableCellObject) {
        return "table cell";
    }
    if (format.isListFormat()) {
        return "list";
    }
    if (format.isCharFormat() && format.objectType() == QTextFormat::ImageObject) {
        return "image";
    }
    return "text";
}

} // namespace

MRVDocNavigator::MRVDocNavigator(QTextDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
}

bool MRVDocNavigator::navigate()
{
    if (!m_document) {
        return false;
    }
    processFrame(*m_document->rootFrame());
    return true;
}

bool MRVDocNavigator::navigateIteration()
{
    if (!m_document) {
        return false;
    }
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.isValid()) {
                qCDebug(lcNavigator, "%d: %s", fragment.position(), kindOf(fragment.charFormat()));
            }
        }
    }
    return true;
}

void MRVDocNavigator::startBlock(QTextBlock &) { }

void MRVDocNavigator::finishBlock(QTextBlock &) { }

void MRVDocNavigator::startFragment(QTextFragment &) { }

void MRVDocNavigator::finishFragment(QTextFragment &) { }

void MRVDocNavigator::startFrame(QTextFrame &) { }

void MRVDocNavigator::finishFrame(QTextFrame &) { }

void MRVDocNavigator::startTable(QTextTable &) { }

void MRVDocNavigator::finishTable(QTextTable &) { }

bool MRVDocNavigator::processBlock(QTextBlock &block)
{
    if (!block.isValid()) {
        return false;
    }
    startBlock(block);
    Q_EMIT blockStarted(block);
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
        QTextFragment fragment = it.fragment();
        processFragment(fragment);
    }
    finishBlock(block);
    Q_EMIT blockFinished(block);
    return true;
}

bool MRVDocNavigator::processFragment(QTextFragment &fragment)
{
    if (!fragment.isValid()) {
        return false;
    }
    startFragment(fragment);
    Q_EMIT fragmentStarted(fragment);
    finishFragment(fragment);
    Q_EMIT fragmentFinished(fragment);
    return true;
}

bool MRVDocNavigator::processTable(QTextTable &table)
{
    startTable(table);
    Q_EMIT tableStarted(table);
    // Deliberate: column by column, and a spanning cell once at each place that it covers.
    for (int column = 0; column < table.columns(); ++column) {
        for (int row = 0; row < table.rows(); ++row) {
            const QTextTableCell cell = table.cellAt(row, column);
            for (QTextFrame::iterator it = cell.begin(); !it.atEnd(); ++it) {
                processFrameIterator(it);
            }
        }
    }
    finishTable(table);
    Q_EMIT tableFinished(table);
    return true;
}

bool MRVDocNavigator::processFrameIterator(QTextFrame::iterator it)
{
    if (QTextFrame *frame = it.currentFrame()) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            processTable(*table);
        } else {
            processFrame(*frame);
        }
    } else {
        QTextBlock block = it.currentBlock();
        if (block.isValid()) {
            processBlock(block);
        }
    }
    return true;
}

bool MRVDocNavigator::processFrame(QTextFrame &frame)
{
    startFrame(frame);
    Q_EMIT frameStarted(frame);
    for (QTextFrame::iterator it = frame.begin(); !it.atEnd(); ++it) {
        processFrameIterator(it);
    }
    finishFrame(frame);
    Q_EMIT frameFinished(frame);
    return true;
}

MRVTableCollector::MRVTableCollector(QTextDocument *document, QObject *parent)
    : MRVDocNavigator(document, parent)
{
}

bool MRVTableCollector::processTable(QTextTable &table)
{
    m_tables.append(MRVTextRange(table.firstPosition(), table.lastPosition()));
    return MRVDocNavigator::processTable(table);
}
