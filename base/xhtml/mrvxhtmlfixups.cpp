#include "xhtml/mrvhtmltext.h"

#include "core/mrvcoreutil.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QRegularExpression>
#include <QtMath>

#include <limits>

using MRVHtmlText::replaceAll;
using MRVHtmlText::rewriteBetween;

namespace {

constexpr QLatin1String operator""_l1(const char *text, size_t size)
{
    return QLatin1String(text, int(size));
}

// In the order in which the paragraph fix-up takes them.
constexpr const char *paragraphAlignments[] = {"center", "left",   "right",
                                               "top",    "bottom", "justify"};
constexpr const char *itemAlignments[] = {"center", "right", "justify"};

constexpr struct
{
    const char *property;
    const char *pattern;
} margins[] = {
    {"margin-top:", "margin-top:%1em;"},
    {"margin-right:", "margin-right:%1em;"},
    {"margin-left:", "margin-left:%1em;"},
    {"margin-bottom:", "margin-bottom:%1em;"},
};

// Replaces one pattern by another, with a value in place of "%1" in both.
void replaceFilled(QString *html, const char *before, const char *after, const char *value)
{
    replaceAll(html, QLatin1String(QByteArray(before).replace("%1", value)),
               QLatin1String(QByteArray(after).replace("%1", value)));
}

// Replaces "PROPERTYdigitsUNIT;" by what @p rewrite makes of the number.
template<typename Rewrite>
void replaceLengths(QString *text, QLatin1String property, QLatin1String unit, Rewrite rewrite)
{
    QString result;
    int done = 0;
    for (int at = text->indexOf(property); at >= 0; at = text->indexOf(property, at + 1)) {
        const int digits = at + property.size();
        int end = digits;
        while (end < text->size() && text->at(end) >= u'0' && text->at(end) <= u'9') {
            ++end;
        }
        if (end == digits || QStringView(*text).mid(end, unit.size()) != unit) {
            continue;
        }
        result.reserve(text->size());
        result.append(text->constData() + done, at - done);
        result.append(rewrite(QStringView(*text).mid(digits, end - digits).toString().toDouble()));
        done = end + unit.size();
        at = done - 1;
    }
    if (done > 0) {
        result.append(text->constData() + done, text->size() - done);
        *text = result;
    }
}

QString emLength(const QString &pattern, double px)
{
    if (px == 0) {
        return pattern.arg(QLatin1String("0"));
    }
    return MRVTextXhtmlExporter::trimEm(
        pattern.arg(QString::number(MRVTextXhtmlExporter::pxToEm(px), 'f', 3)));
}

// A name that is an address is not a valid identifier.
bool isAddress(const QString &name)
{
    static const QRegularExpression pattern(
        MRVCoreUtil::wwwPattern() + u'|' + MRVCoreUtil::webUrlPattern() + u'|'
            + MRVCoreUtil::emailPattern(),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return pattern.match(name).hasMatch();
}

// Removes from every style attribute the declarations that @p keep refuses.
template<typename Keep>
void filterDeclarations(QString *html, Keep keep)
{
    rewriteBetween(html, "style=\""_l1, "\""_l1, Qt::CaseInsensitive, [&](QStringView value) {
        QString kept;
        for (const QStringView declaration : MRVHtmlText::declarations(value)) {
            const int colon = int(declaration.indexOf(u':'));
            if (colon > 0 && keep(declaration.left(colon).trimmed())) {
                kept += declaration.trimmed().toString() + u';';
            }
        }
        return QString("style=\""_l1 + kept + u'"');
    });
}

// Removes every attribute ' NAME="..."'.
void removeAttribute(QString *html, QLatin1String opening)
{
    rewriteBetween(html, opening, "\""_l1, Qt::CaseInsensitive,
                   [](QStringView) { return QString(); });
}

} // namespace

void MRVTextXhtmlExporter::fixDoctypeTag(QString *html)
{
    if (html) {
        replaceAll(html,
                   "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
                   "\"http://www.w3.org/TR/REC-html40/strict.dtd\">"_l1,
                   "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.1//EN\" "
                   "\"http://www.w3.org/TR/xhtml11/DTD/xhtml11.dtd\">"_l1);
    }
}

void MRVTextXhtmlExporter::fixHtmlTag(QString *html)
{
    if (html) {
        replaceAll(html, "<html>"_l1, "<html xmlns=\"http://www.w3.org/1999/xhtml\">"_l1);
    }
}

void MRVTextXhtmlExporter::fixBrTag(QString *html)
{
    if (html) {
        replaceAll(html, "<br>"_l1, "<br />"_l1);
    }
}

void MRVTextXhtmlExporter::fixImgTag(QString *html)
{
    if (html) {
        replaceAll(html, "<img src="_l1, "<img alt=\" \" src="_l1);
    }
}

void MRVTextXhtmlExporter::fixPTag(QString *html)
{
    if (!html) {
        return;
    }
    if (html->contains("<p align=\""_l1)) {
        for (const char *alignment : paragraphAlignments) {
            replaceFilled(html, "<p align=\"%1\" style=\"", "<p style=\"text-align:%1; ",
                          alignment);
        }
        for (const char *alignment : paragraphAlignments) {
            replaceFilled(html, "<p align=\"%1\"", "<p style=\"text-align:%1\"", alignment);
        }
    }
    replaceAll(html, ";\"></p>"_l1, ";\"><br /></p>"_l1);
}

void MRVTextXhtmlExporter::fixLiAlign(QString *html)
{
    if (!html || !html->contains("<li "_l1)) {
        return;
    }
    for (const char *alignment : itemAlignments) {
        replaceFilled(html, "<li align=\"%1\" ", "<li ", alignment);
        replaceFilled(html, "<li style=\"\" align=\"%1\" ", "<li ", alignment);
    }
}

void MRVTextXhtmlExporter::fixDoubleStyleAttr(QString *html)
{
    if (!html) {
        return;
    }
    const QLatin1String opening = " style=\""_l1;
    const QStringView all(*html);
    QString result;
    int done = 0;
    for (int at = html->indexOf(opening); at >= 0;) {
        const int close = html->indexOf(u'"', at + opening.size());
        if (close < 0) {
            break;
        }
        if (all.mid(close + 1).startsWith(opening)) {
            result.append(all.data() + done, close - done);
            done = close + 1 + opening.size();
            at = close + 1; // the joined value may be followed by yet another
        } else {
            at = html->indexOf(opening, close);
        }
    }
    if (done > 0) {
        result.append(all.data() + done, html->size() - done);
        *html = result;
    }
}

void MRVTextXhtmlExporter::fixParPreWrap(QString *html)
{
    if (html) {
        replaceAll(html, "p, li { white-space: pre-wrap; }"_l1, ""_l1);
    }
}

void MRVTextXhtmlExporter::fixTdWidthTag(QString *html)
{
    if (html) {
        rewriteBetween(html, "<td width=\""_l1, "\""_l1, Qt::CaseSensitive,
                       [](QStringView) { return QStringLiteral("<td"); });
    }
}

void MRVTextXhtmlExporter::fixTdBgcolorTag(QString *html)
{
    if (html) {
        rewriteBetween(html, "<td bgcolor=\""_l1, "\""_l1, Qt::CaseSensitive,
                       [](QStringView) { return QStringLiteral("<td"); });
    }
}

void MRVTextXhtmlExporter::fixStyleSpaces(QString *html)
{
    if (html) {
        replaceAll(html, "style=\" "_l1, "style=\""_l1);
    }
}

void MRVTextXhtmlExporter::fixImgScrSpaces(QString *html)
{
    if (html) {
        replaceAll(html, "scr=\" "_l1, "scr=\""_l1);
    }
}

void MRVTextXhtmlExporter::fixImgSpaces(QString *html)
{
    if (html) {
        replaceAll(html, "img  scr=\""_l1, "img scr=\""_l1);
    }
}

void MRVTextXhtmlExporter::fixTagEndSpaces(QString *html)
{
    if (html) {
        replaceAll(html, " >"_l1, ">"_l1);
    }
}

void MRVTextXhtmlExporter::fixTagStartSpaces(QString *html)
{
    if (html) {
        replaceAll(html, "< "_l1, "<"_l1);
    }
}

void MRVTextXhtmlExporter::fixStyleEnding(QString *html)
{
    if (html) {
        replaceAll(html, "; \""_l1, ";\""_l1);
    }
}

void MRVTextXhtmlExporter::addCssStylesheet(QString *html)
{
    if (html) {
        replaceAll(
            html, "</head>"_l1,
            "  <link rel=\"stylesheet\" href=\"css/stylesheet.css\" type=\"text/css\" />\n</head>"_l1);
    }
}

void MRVTextXhtmlExporter::addDocAnchor(QString *html)
{
    if (!html) {
        return;
    }
    const int body = html->indexOf("<body "_l1);
    const int end = body < 0 ? -1 : html->indexOf(u'>', body);
    if (end >= 0) {
        html->insert(end + 1, "\n<p><a id=\"start\"></a></p>"_l1);
    }
}

void MRVTextXhtmlExporter::convertAnchorNameToId(QString *html)
{
    if (html) {
        rewriteBetween(html, "<a name=\""_l1, "\""_l1, Qt::CaseSensitive, [](QStringView name) {
            const bool address = isAddress(MRVHtmlText::unescaped(name));
            return QString((address ? "<a title=\""_l1 : "<a id=\""_l1) + name.toString() + u'"');
        });
    }
}

void MRVTextXhtmlExporter::convertFontSizeToPercent(QString *html)
{
    if (html) {
        replaceLengths(html, "font-size:"_l1, "pt;"_l1, [](double pt) {
            // A size of ten digits must not overflow.
            const double percent = qMin(ptToPercent(pt), double(std::numeric_limits<int>::max()));
            return QStringLiteral("font-size:%1%;").arg(int(percent));
        });
    }
}

void MRVTextXhtmlExporter::convertMarginToEm(QString *html)
{
    if (!html) {
        return;
    }
    for (const auto &margin : margins) {
        replaceLengths(html, QLatin1String(margin.property), "px;"_l1,
                       [&](double px) { return emLength(QLatin1String(margin.pattern), px); });
    }
}

void MRVTextXhtmlExporter::convertIndentToEm(QString *html)
{
    if (html) {
        replaceLengths(html, "text-indent:"_l1, "px;"_l1,
                       [](double px) { return emLength(QStringLiteral("text-indent:%1em;"), px); });
    }
}

void MRVTextXhtmlExporter::convertSpanToP(QString *html)
{
    if (html) {
        replaceAll(html, "<span"_l1, "<p"_l1);
        replaceAll(html, "</span>"_l1, "</p>"_l1);
    }
}

void MRVTextXhtmlExporter::removeImgTag(QString *html)
{
    if (html) {
        rewriteBetween(html, "<img"_l1, ">"_l1, Qt::CaseInsensitive,
                       [](QStringView) { return QString(); });
    }
}

void MRVTextXhtmlExporter::removeFontFamily(QString *html)
{
    if (html) {
        filterDeclarations(html, [](QStringView property) {
            return property.compare("font-family"_l1, Qt::CaseInsensitive) != 0;
        });
    }
}

void MRVTextXhtmlExporter::removeAltTag(QString *html)
{
    if (html) {
        removeAttribute(html, " alt=\""_l1);
    }
}

void MRVTextXhtmlExporter::removeComments(QString *html)
{
    if (html) {
        rewriteBetween(html, "<!--"_l1, "-->"_l1, Qt::CaseSensitive,
                       [](QStringView) { return QString(); });
    }
}

void MRVTextXhtmlExporter::removeAllInlineCssProperties(QString *html)
{
    if (html) {
        removeAttribute(html, " style=\""_l1);
    }
}

void MRVTextXhtmlExporter::removeUnsupportedQtCssProperties(QString *html)
{
    if (html) {
        const QStringList supported = qtCssProperties();
        filterDeclarations(html, [&](QStringView property) {
            return supported.contains(property.toString(), Qt::CaseInsensitive);
        });
    }
}

void MRVTextXhtmlExporter::replaceLinks(QString *html, const QHash<QString, QString> &links)
{
    if (!html || links.isEmpty()) {
        return;
    }
    rewriteBetween(html, "<a href=\""_l1, "\""_l1, Qt::CaseSensitive, [&](QStringView target) {
        const auto replacement = links.constFind(MRVHtmlText::unescaped(target));
        const QString value =
            replacement == links.constEnd() ? target.toString() : replacement->toHtmlEscaped();
        return QString("<a href=\""_l1 + value + u'"');
    });
}

QString MRVTextXhtmlExporter::trimEm(const QString &text)
{
    static const QRegularExpression zeros(QStringLiteral("(\\.[0-9]*?)0*(?=em;)"));
    QString result;
    int done = 0;
    for (auto it = zeros.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result.append(text.constData() + done, match.capturedStart() - done);
        if (match.capturedLength(1) > 1) {
            result.append(match.capturedRef(1));
        }
        done = match.capturedEnd();
    }
    result.append(text.constData() + done, text.size() - done);
    return result;
}

QString MRVTextXhtmlExporter::htmlToXhtml(const QString &html)
{
    QString text = html;
    fixDoctypeTag(&text);
    fixHtmlTag(&text);
    fixBrTag(&text);
    fixImgTag(&text);
    fixLiAlign(&text);
    fixDoubleStyleAttr(&text);
    fixParPreWrap(&text);
    return text;
}

QString MRVTextXhtmlExporter::htmlToEBook(const QString &html)
{
    QString text = htmlToXhtml(html);
    fixPTag(&text);
    fixTdWidthTag(&text);
    fixTdBgcolorTag(&text);
    addCssStylesheet(&text);
    fixParPreWrap(&text);
    convertAnchorNameToId(&text);
    convertFontSizeToPercent(&text);
    convertMarginToEm(&text);
    convertIndentToEm(&text);
    fixStyleSpaces(&text);
    return text;
}

QString MRVTextXhtmlExporter::htmlToEpub(const QString &html, StyleList *styles)
{
    QString text = htmlToEBook(html);
    convertStyleToCss(&text, styles, true, false);
    return text;
}

QString MRVTextXhtmlExporter::htmlToKindle(const QString &html, StyleList *styles)
{
    return htmlToEpub(html, styles);
}

QString MRVTextXhtmlExporter::htmlToKindleKF8(const QString &html, StyleList *styles)
{
    QString text = htmlToEBook(html);
    convertStyleToCss(&text, styles, true, true);
    return text;
}

QString MRVTextXhtmlExporter::mimeHtmlToCleanHtml(const QString &html)
{
    QString text = html;
    fixBrTag(&text);
    removeAltTag(&text);
    fixImgTag(&text);
    fixParPreWrap(&text);
    fixPTag(&text);
    fixTdBgcolorTag(&text);
    fixTdWidthTag(&text);
    fixImgScrSpaces(&text);
    fixImgSpaces(&text);
    fixTagStartSpaces(&text);
    fixTagEndSpaces(&text);
    fixStyleEnding(&text);
    removeUnsupportedQtCssProperties(&text);
    return text;
}

QStringList MRVTextXhtmlExporter::qtCssProperties()
{
    static constexpr const char *properties[] = {
        "vertical-align",
        "text-indent",
        "text-decoration",
        "page-break-before",
        "page-break-after",
        "padding-top",
        "padding-right",
        "padding-left",
        "padding-bottom",
        "padding",
        "margin-top",
        "margin-right",
        "margin-left",
        "margin-bottom",
        "font-variant",
        "font-style",
        "font-weight",
        "font-size",
        "font-family",
        "font",
        "float",
        "border-style",
        "border-color",
        "background-image",
    };
    QStringList list;
    for (const char *property : properties) {
        list.append(QLatin1String(property));
    }
    return list;
}

QStringList MRVTextXhtmlExporter::imgTags(const QString &html)
{
    static const QRegularExpression tag(
        QStringLiteral("<img\\b(?:\"[^\"]*+\"|'[^']*+'|[^\"'>]++)*+>"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList tags;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        tags.append(it.next().captured());
    }
    return tags;
}

QStringList MRVTextXhtmlExporter::imgUrls(const QString &html)
{
    static const QRegularExpression source(
        QStringLiteral("\\ssrc\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList urls;
    const QStringList tags = imgTags(html);
    for (const QString &tag : tags) {
        const QRegularExpressionMatch match = source.match(tag);
        if (match.hasMatch()) {
            urls.append(MRVHtmlText::unescaped(match.capturedRef(match.lastCapturedIndex())));
        }
    }
    return urls;
}
