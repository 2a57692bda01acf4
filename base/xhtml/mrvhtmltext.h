#pragma once

#include "util/mrvbase_export.h"

#include <QHash>
#include <QLatin1String>
#include <QString>
#include <QStringView>
#include <QVector>

/**
 * Small tools for rewriting markup texts in one pass.
 *
 * @since 1.0
 */
namespace MRVHtmlText {

/**
 * Replaces every @p before in @p text by @p after; linear also for very many matches, unlike
 * QString::replace().
 */
MRVBASE_EXPORT void replaceAll(QString *text, QLatin1String before, QLatin1String after);

/** Decodes the five predefined entities, no-break spaces and numeric references; others stay. */
MRVBASE_EXPORT QString unescaped(QStringView text);

/**
 * The declarations of a style attribute's escaped value, still escaped: split at semicolons, those
 * that end an entity excepted. Empty ones are left out.
 */
MRVBASE_EXPORT QVector<QStringView> declarations(QStringView style);

/**
 * Lets each image of @p html whose source is a key of @p references refer to its value; both
 * unescaped. A null value takes the source away.
 */
MRVBASE_EXPORT void replaceImageSources(QString *html, const QHash<QString, QString> &references);

/** Whether the text holds a tab or two blanks in a row. */
MRVBASE_EXPORT bool hasWideSpace(QStringView text);
/**
 * Rewrites every stretch of @p text from @p open up to the next @p close.
 *
 * @param cs      whether @p open is found in any case; @p close is exact.
 * @param rewrite called with the text between the two; returns what replaces the whole stretch.
 */
template<typename Rewrite>
void rewriteBetween(QString *text, QLatin1String open, QLatin1String close, Qt::CaseSensitivity cs,
                    Rewrite rewrite)
{
    const QStringView all(*text);
    QString result;
    int done = 0;
    for (int at = text->indexOf(open, 0, cs); at >= 0; at = text->indexOf(open, done, cs)) {
        const int begin = at + open.size();
        const int end = text->indexOf(close, begin);
        if (end < 0) {
            break;
        }
        result.reserve(text->size());
        result.append(all.data() + done, at - done);
        result.append(rewrite(all.mid(begin, end - begin)));
        done = end + close.size();
    }
    if (done > 0) {
        result.append(all.data() + done, text->size() - done);
        *text = result;
    }
}

} // namespace MRVHtmlText
