#pragma once

#include <search/mrvtextreplacer.h>

#include <QDialog>

class QListWidget;
class QListWidgetItem;
class QPushButton;

/**
 * Shows what a replacement would change, each with the text around it, and lets some be left out.
 */
class ReplacePreview final : public QDialog
{
    Q_OBJECT

public:
    /** @param document must not change as long as the dialog is open. */
    ReplacePreview(const QTextDocument *document, const QVector<MRVTextChange> &changes,
                   QWidget *parent = nullptr);

    /** The changes that are ticked. */
    QVector<MRVTextChange> chosen() const;

private:
    void fill(Qt::CheckState state);
    void follow(const QListWidgetItem *item);
    void showCount();

    const QTextDocument *m_document;
    QVector<MRVTextChange> m_changes;
    QListWidget *m_list;
    QPushButton *m_replace;
    int m_count = 0; // of those that are ticked
};
