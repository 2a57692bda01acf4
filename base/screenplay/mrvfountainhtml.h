#pragma once

#include "core/mrverror.h"
#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/**
 * Scripts as web pages that say what each paragraph is.
 *
 * A page is one HTML 5 document that is also well-formed XML, in UTF-8, with its style sheet in it.
 * The classes of its paragraphs are the kinds of a script ("scene-heading", "dialogue", ...), a
 * title page's entries and scenes have their keys and numbers as data-key and data-number, and what
 * is not printed is there, but hidden. So a page can be read again without a loss. For e-books
 * there is MRVEPubPackage, with a document made by MRVScriptDocument.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFountainHtml
{
    Q_DECLARE_TR_FUNCTIONS(MRVFountainHtml)

public:
    MRVFountainHtml() = delete;

    /** The class of paragraphs of a kind, such as "scene-heading". */
    static QString className(MRVFountainElement::Kind kind);

    /**
     * The page of a script. Characters that XML forbids are left out. Without a title it is called
     * "Script".
     *
     * @param language a BCP 47 tag such as "en-GB"; empty for none.
     */
    static QByteArray toHtml(const MRVFountainScript &script, const QString &language = QString());

    /**
     * Reads a page that toHtml() wrote; other elements than those may stand around its paragraphs.
     *
     * @param error if given, receives a translated line with the number of the line on failure.
     * @param language if given, receives the page's language on success; empty for none.
     * @param html the page's bytes.
     * @return false, with @p script untouched, where the page is not well-formed, has no paragraph
     * of a script, has elements within elements beyond 256 levels, or a tag with more than 64
     * attributes, or where its document type declares entities or attributes.
     */
    static bool fromHtml(const QByteArray &html, MRVFountainScript *script,
                         MRVErrorSink error = nullptr, QString *language = nullptr);
};
