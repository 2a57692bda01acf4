#pragma once

#include <scriptmode/mrvscriptmode.h>

#include <QDialog>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

class ChoiceBox;
class ManuscriptFile;
class PathEdit;
class QCheckBox;
class QFormLayout;
class QLineEdit;
class QTextDocument;
struct ExportOptions;
struct MRVError;
struct MRVMarkdownHead;

/**
 * Asks for a format, a file and what the format has a use for, exports the manuscript, and tells
 * what the file lacks of it.
 */
class ExportDialog final : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param document not changed, and to live as long.
     * @param file     that of the manuscript, which may have no path.
     * @param mode     in which a script is written; without elements, the manuscript is none.
     */
    ExportDialog(QTextDocument *document, const ManuscriptFile &file, const MRVScriptMode &mode,
                 QWidget *parent = nullptr);

    /** Exports; the dialog stays open where that fails. */
    void accept() override;

private:
    void fillFields(const MRVMarkdownHead &head);
    void layOut();
    void addRow(int use, const QString &label, QWidget *field, const char *name);
    void showFormat();
    ExportOptions options() const;
    bool mayReplace(const QString &path);
    void showFailure(const MRVError &error);
    void showSuccess(const QString &path, const QStringList &notes);

    QTextDocument *m_document;
    const QString m_source;
    const MRVScriptMode m_mode;
    QFormLayout *m_form;
    ChoiceBox *m_format;
    PathEdit *m_path;
    QLineEdit *m_title;
    QLineEdit *m_authors;
    QLineEdit *m_language;
    PathEdit *m_cover;
    ChoiceBox *m_paper;
    QCheckBox *m_comments;
    QVector<QPair<int, QWidget *>> m_rows; // uses and fields
};
