#pragma once

#include "manuscript/mrvsourcemisfit.h"
#include "manuscript/mrvsourcewriter_p.h"
#include "util/mrvsourceplace.h"

#include <QFont>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QTextDocument>
#include <QVector>

#include <memory>

struct MRVManuscript;

/**
 * Changes to the text of a manuscript, and what they mean in its source.
 *
 * A change that cannot be made in the source, or with which the source would not be read as the
 * document with the changes, is left out.
 */
class MRVSourceChanges
{
public:
    MRVSourceChanges(const MRVManuscript &manuscript, const QVector<MRVTextChange> &changes);

    /** Whether the changes are of this text, and in order. */
    bool isValid() const;
    /**
     * Finds out which changes are left out.
     *
     * @return false where the source is not read back without any of them.
     */
    bool settle();
    /** The source with the changes that are not left out. */
    QString edited() const;
    /** Those that are left out. */
    QVector<MRVSourceMisfit> misfits() const;

    /**
     * Addresses ("#name") of links in a source, in order, that lead nowhere there and led somewhere
     * in the document: a heading of Markdown is named by its text.
     */
    QStringList brokenLinks(const QString &source) const;

    /**
     * The whole document with all changes, written by Qt with the line ends of the source.
     *
     * @return false where the encoding lacks a character.
     */
    bool writeWhole(QString *text) const;
    /** Whether a source has the text of the document with the changes that are not left out. */
    bool isReadBack(const QString &source) const { return differingBlocks(source).isEmpty(); }

private:
    struct Edit
    {
        MRVSourcePlace place;
        QString text;
    };
    using Edits = QVector<Edit>;

    enum class State { Made, Waiting, OnTrial, LeftOut };

    struct Change
    {
        MRVTextChange change; // with the ends of lines that a document makes of it
        int block = 0;
        int linkedCharacters = 0; // that it adds
        int deletedLinks = 0; // with all of their text
        State state = State::Made;
        QVector<Edits> ways; // the first one that is read back is taken
        int way = 0;
        QString misfit; // why it is left out, if it is

        bool isIn() const { return state == State::Made || state == State::OnTrial; }
        /** Goes on to the next way; without one, it is left out. */
        void fail();
    };

    void findWays(Change *change) const;
    Edits editsOf(const MRVTextChange &change) const;
    MRVSourcePlace insertionPlace(int position, bool prefersBefore) const;
    Edits withLinkLabel(const Edits &edits) const;
    Edits withoutLink(const Edits &edits) const;
    Edits withEscapes(const Edits &raw, const MRVTextChange &change) const;
    bool suspendDiffering();
    bool suspendIn(const QSet<int> &blocks);
    void suspend(int index);
    void tryGroups();
    void judge(int block, const QVector<int> &group, bool isUndecided, bool isWrong);
    QSet<int> differingBlocks(const QString &source) const;
    std::unique_ptr<QTextDocument> read(const QString &source, const QFont &font = QFont()) const;

    const MRVManuscript &m_manuscript;
    const QString m_source;
    const QString m_text; // of the document
    const MRVSourceWriter m_writer;
    QVector<Change> m_changes;
    MRVSourcePlaces m_places;
    QMap<int, QVector<QVector<int>>> m_groups; // of changes that wait, by block
    bool m_isSerial = false; // a paragraph was wrong in which nothing was tried
};
