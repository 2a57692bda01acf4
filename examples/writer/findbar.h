#pragma once

#include <search/mrvtextquery.h>
#include <search/mrvtextreplacement.h>

#include <QTimer>
#include <QWidget>

#include <memory>

class ManuscriptEditor;
class MRVFindSession;
class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

/**
 * Find and replace below an editor: the finds are counted and marked while the text to look for is
 * typed, and replacing all of them shows beforehand what it would do.
 */
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    /** @param editor must live as long as the bar. */
    explicit FindBar(ManuscriptEditor *editor, QWidget *parent = nullptr);
    ~FindBar() override;

public Q_SLOTS:
    /** Shows the bar, with what is selected as the text to look for. */
    void open();
    void closeBar();
    void findNext();
    void findPrevious();
    void replace();
    void replaceAll();
    /** Has the bar look at the editor's document, after that was replaced. */
    void followDocument();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *findRow();
    QWidget *replaceRow();
    QWidget *flags();
    QCheckBox *addFlag(const char *name, const QString &text, const QString &tip);
    MRVTextQuery query() const;
    MRVTextReplacement replacement() const;
    void restart();
    void searchSelection(bool isOn);
    void search(const MRVTextQuery &query);
    void advance();
    void select(const QTextCursor &find, bool wrapped);
    void report(const QString &text, const QString &tip = QString());
    void showState();
    void markFinds();

    ManuscriptEditor *m_editor;
    std::unique_ptr<MRVFindSession> m_session;
    QTimer m_searching;
    QTimer m_marking;
    QLineEdit *m_find = nullptr;
    QLineEdit *m_replace = nullptr;
    QLabel *m_state = nullptr;
    QCheckBox *m_case = nullptr;
    QCheckBox *m_words = nullptr;
    QCheckBox *m_expression = nullptr;
    QCheckBox *m_typography = nullptr;
    QCheckBox *m_accents = nullptr;
    QCheckBox *m_paragraphs = nullptr;
    QCheckBox *m_selection = nullptr;
    QCheckBox *m_keepCase = nullptr;
    bool m_isWrapped = false;
    QString m_report; // of what was replaced, or why not, until the next search
    QString m_reportTip;
};
