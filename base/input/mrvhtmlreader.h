#pragma once

#include "util/mrvbase_export.h"
#include "util/mrvmetadataentry.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What the head of an HTML page says about the page; empty where it says nothing.
 *
 * @since 1.0
 */
struct MRVHtmlHead
{
    /** Each once, in order: the meta elements "author", or else the first "creator". */
    QStringList authors;
    QString description;
    /** A well-formed tag, as MRV::languageTag() gives it. */
    QString language;
    /** All meta elements with a name, without "dc." or "dcterms.", and a content, in order. */
    QVector<MRVMetadataEntry> entries;
};

/**
 * What can be asked of an HTML page before a parser gets it.
 *
 * All functions take any text, take time linear in it, and read tags as a browser does: names in
 * any case, comments, scripts and styles passed over, end tags left out where they may be.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVHtmlReader
{
    Q_DECLARE_TR_FUNCTIONS(MRVHtmlReader)

public:
    MRVHtmlReader() = delete;

    /** Reads the attributes of the element html and the meta elements of the head. */
    static MRVHtmlHead head(const QString &html);

    /**
     * Whether bytes without a name are a page or a fragment of HTML: whether they begin with a tag,
     * after white space, comments and an XML declaration. Only the first 64 KiB are looked at.
     */
    static bool looksLikeHtml(const QByteArray &bytes);

    /**
     * Why reading @p html could take far more time or memory than its length explains: elements
     * nested more deeply than MRVInputLimits::HtmlDepth, more attributes of one than
     * MRVInputLimits::HtmlAttributes, or so many that are left open that a parser would repeat them
     * more than MRVInputLimits::HtmlRepeats times. No parser should get such a text.
     *
     * @return a translated text without a full stop; empty for a page that can be read.
     */
    static QString whyTooComplex(const QString &html);
};
