#include "xhtml/mrvhtmltext.h"

#include "xhtml/mrvstyleclasses.h"
#include "xhtml/mrvtextxhtmlexporter.h"

namespace {

using RuleSet = QHash<QString, QString>;

// The order of a hash is random, so equal sets are found by a text in a fixed order.
QString canonicalText(const RuleSet &rules)
{
    QStringList names = rules.keys();
    names.sort();
    QString text;
    for (const QString &name : qAsConst(names)) {
        text += name + QChar(0) + rules.value(name) + QChar(0);
    }
    return text;
}

// How Qt displays raised and lowered text on the screen; in HTML it leaves that to the browser.
RuleSet shownRules(RuleSet rules)
{
    const QString place = rules.value(QStringLiteral("vertical-align"));
    const bool shifted = place == QLatin1String("super") || place == QLatin1String("sub");
    if (shifted && !rules.contains(QStringLiteral("font-size"))) {
        rules.insert(QStringLiteral("font-size"), QStringLiteral("70%"));
        rules.insert(QStringLiteral("line-height"), QStringLiteral("0"));
    }
    return rules;
}

bool isSafeCss(const QString &text)
{
    for (const QChar c : text) {
        if (c == u'{' || c == u'}' || c == u';' || c == u'<' || c.unicode() < 0x20) {
            return false;
        }
    }
    // An unclosed quote or parenthesis would swallow the rules that follow.
    return text.count(u'"') % 2 == 0 && text.count(u'\'') % 2 == 0
        && text.count(u'(') == text.count(u')') && !text.contains(QLatin1String("/*"))
        && !text.contains(u'\\');
}

} // namespace

MRVStyleClasses::MRVStyleClasses(MRVTextXhtmlExporter::StyleList *styles, bool dropFontFamily,
                                 bool kindleKF8)
    : m_styles(styles)
    , m_dropFontFamily(dropFontFamily)
    , m_kindleKF8(kindleKF8)
{
    for (int i = styles->size() - 1; i >= 0; --i) {
        m_classes.insert(canonicalText(styles->at(i)), i); // of equal sets the first wins
    }
}

void MRVStyleClasses::convert(QString *html)
{
    const QLatin1String opening(" style=\"");
    const QLatin1String emptyEnd("><br /></p>");
    QString result;
    int done = 0;
    for (int at = html->indexOf(opening, 0, Qt::CaseInsensitive); at >= 0;
         at = html->indexOf(opening, done, Qt::CaseInsensitive)) {
        const int begin = at + opening.size();
        const int end = html->indexOf(u'"', begin);
        if (end < 0) {
            break;
        }
        const Use replacement = use(html->mid(begin, end - begin));
        result.append(html->constData() + done, at - done);
        done = end + 1;
        if (!replacement.emptyParagraph.isNull() && result.endsWith(QLatin1String("<p"))
            && QStringView(*html).mid(done, emptyEnd.size()) == emptyEnd) {
            result.chop(2);
            result.append(replacement.emptyParagraph);
            done += emptyEnd.size();
        } else {
            result.append(replacement.attribute);
        }
    }
    if (done > 0) {
        result.append(html->constData() + done, html->size() - done);
        *html = result;
    }
}

MRVStyleClasses::Use MRVStyleClasses::use(const QString &value)
{
    const auto known = m_uses.constFind(value);
    if (known != m_uses.constEnd()) {
        return *known;
    }
    Use result;
    result.attribute = attribute(value);
    if (m_kindleKF8 && value.contains(QLatin1String("page-break-before:always;"))) {
        result.emptyParagraph = QStringLiteral("<mbp:pagebreak/>");
    } else if (value.contains(QLatin1String("-qt-paragraph-type:empty;"))
               && !value.contains(QLatin1String("page-break"))) {
        const QString undecorated = MRVTextXhtmlExporter::removeTextDecorations(value);
        result.emptyParagraph =
            QLatin1String("<p") + attribute(undecorated) + QLatin1String(">&nbsp;</p>");
    }
    m_uses.insert(value, result);
    return result;
}

QString MRVStyleClasses::attribute(const QString &value)
{
    const RuleSet rules = MRVTextXhtmlExporter::toStyleSheet(value, m_dropFontFamily);
    if (rules.isEmpty()) {
        return QString();
    }
    const QString text = canonicalText(rules);
    auto index = m_classes.constFind(text);
    if (index == m_classes.constEnd()) {
        index = m_classes.insert(text, m_styles->size());
        m_styles->append(rules);
    }
    // Deliberate: the first class has no number.
    return QLatin1String(" class=\"morvane") + (*index > 0 ? QString::number(*index) : QString())
        + u'"';
}

void MRVTextXhtmlExporter::convertStyleToCss(QString *html, StyleList *styles, bool dropFontFamily,
                                             bool kindleKF8)
{
    if (html && styles) {
        MRVStyleClasses(styles, dropFontFamily, kindleKF8).convert(html);
    }
}

QHash<QString, QString> MRVTextXhtmlExporter::toStyleSheet(const QString &style,
                                                           bool dropFontFamily)
{
    RuleSet rules;
    // Families are written as &quot;Some Name&quot;: the semicolons of the escapes do not end
    // declarations.
    const QStringList declarations = MRVHtmlText::unescaped(style).split(u';');
    for (const QString &declaration : declarations) {
        const QStringList parts = declaration.split(u':', Qt::SkipEmptyParts);
        const QString name = parts.value(0).trimmed();
        QString value = parts.value(1).trimmed();
        if (name.isEmpty() || (dropFontFamily && name == QLatin1String("font-family"))
            || name.startsWith(QLatin1String("-qt-"))) {
            continue;
        }
        if (name == QLatin1String("font-weight") && value == QLatin1String("600")) {
            value = QStringLiteral("bold");
        }
        rules.insert(name, value);
    }
    return rules;
}

QString MRVTextXhtmlExporter::removeTextDecorations(const QString &style)
{
    QString result;
    int done = 0;
    const QStringView all(style);
    const QVector<QStringView> declarations = MRVHtmlText::declarations(all);
    for (const QStringView declaration : declarations) {
        const int colon = int(declaration.indexOf(u':'));
        if (colon < 0
            || declaration.left(colon).trimmed().compare(QLatin1String("text-decoration"),
                                                         Qt::CaseInsensitive)) {
            continue;
        }
        QStringList kept = declaration.mid(colon + 1).toString().simplified().split(u' ');
        const int before = kept.removeAll(QStringLiteral("underline"))
            + kept.removeAll(QStringLiteral("line-through"));
        if (before == 0) {
            continue;
        }
        const int begin = int(declaration.data() - all.data());
        int end = begin + int(declaration.size());
        result.append(all.data() + done, begin - done);
        if (!kept.isEmpty()) {
            result.append(declaration.data(), colon + 1);
            result.append(kept.join(u' '));
        } else if (end < all.size()) {
            ++end; // its semicolon
        }
        done = end;
    }
    result.append(all.data() + done, int(all.size()) - done);
    return result;
}

QString MRVTextXhtmlExporter::styleSheetText(const StyleList &styles)
{
    QString css;
    for (int i = 0; i < styles.size(); ++i) {
        css += QLatin1String(".morvane") + (i > 0 ? QString::number(i) : QString())
            + QLatin1String(" {\n");
        const RuleSet rules = shownRules(styles.at(i));
        QStringList names = rules.keys();
        names.sort();
        for (const QString &name : qAsConst(names)) {
            const QString value = rules.value(name);
            if (isSafeCss(name) && isSafeCss(value) && !value.isEmpty()) {
                css += QLatin1String("    ") + name + QLatin1String(": ") + value
                    + QLatin1String(";\n");
            }
        }
        css += QLatin1String("}\n");
    }
    return css;
}
